object MainForm: TMainForm
  Left = 192
  Top = 108
  Caption = 'Skerry Line - Booking Desk'
  ClientHeight = 502
  ClientWidth = 840
  Color = clBtnFace
  Constraints.MinHeight = 480
  Constraints.MinWidth = 700
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = 'Tahoma'
  Font.Style = []
  Menu = MainMenu1
  ParentBiDiMode = False
  Position = poScreenCenter
  ShowHint = True
  OnCreate = FormCreate
  PixelsPerInch = 96
  TextHeight = 14
  object LblRoutes: TLabel
    Left = 12
    Top = 44
    Width = 212
    Height = 16
    AutoSize = False
    Caption = '&Routes:'
    FocusControl = LbxRoutes
  end
  object LblTraffic: TLabel
    Left = 12
    Top = 172
    Width = 212
    Height = 16
    AutoSize = False
    Caption = '&Travelling with:'
    FocusControl = CbxTraffic
  end
  object LblSailings: TLabel
    Left = 236
    Top = 44
    Width = 592
    Height = 16
    Anchors = [akLeft, akTop, akRight]
    AutoSize = False
    Caption = '&Sailings today:'
    FocusControl = LvwSailings
  end
  object ToolBar1: TToolBar
    Left = 0
    Top = 0
    Width = 840
    Height = 30
    AutoSize = True
    ButtonHeight = 24
    ButtonWidth = 96
    EdgeBorders = [ebBottom]
    Flat = True
    ShowCaptions = True
    TabOrder = 4
    object BtnNew: TToolButton
      Left = 0
      Top = 0
      Action = ActNew
      AutoSize = True
      Caption = 'New'
    end
    object BtnEdit: TToolButton
      Left = 96
      Top = 0
      Action = ActEdit
      AutoSize = True
      Caption = 'Edit'
    end
    object BtnCancelBooking: TToolButton
      Left = 192
      Top = 0
      Action = ActCancel
      AutoSize = True
      Caption = 'Cancel'
    end
    object BtnGap: TToolButton
      Left = 288
      Top = 0
      Width = 8
      Style = tbsSeparator
    end
    object BtnOptions: TToolButton
      Left = 296
      Top = 0
      Action = ActOptions
      AutoSize = True
      Caption = 'Options'
    end
  end
  object LbxRoutes: TListBox
    Left = 12
    Top = 62
    Width = 212
    Height = 98
    Hint = 'Show the sailings of one route only'
    ItemHeight = 14
    Items.Strings = (
      'All routes'
      'Northern archipelago'
      'Southern archipelago'
      'Overnight sailings'
      'Freight only')
    TabOrder = 0
    OnClick = LbxRoutesClick
  end
  object CbxTraffic: TComboBox
    Left = 12
    Top = 190
    Width = 212
    Height = 22
    Hint = 'What the customer takes on board'
    Style = csDropDownList
    ItemHeight = 14
    TabOrder = 1
    Items.Strings = (
      'On foot'
      'Bicycle'
      'Car'
      'Camper or caravan'
      'Lorry')
  end
  object LvwSailings: TListView
    Left = 236
    Top = 62
    Width = 592
    Height = 190
    Hint = 'Double-click a sailing to book it'
    Anchors = [akLeft, akTop, akRight]
    Columns = <
      item
        Caption = 'Departure'
        Width = 90
      end
      item
        Caption = 'From'
        Width = 105
      end
      item
        Caption = 'To'
        Width = 105
      end
      item
        Caption = 'Vessel'
        Width = 118
      end
      item
        Alignment = taRightJustify
        Caption = 'Free places'
        Width = 90
      end
      item
        Alignment = taRightJustify
        Caption = 'Fare'
        Width = 76
      end>
    HideSelection = False
    ReadOnly = True
    RowSelect = True
    PopupMenu = PopupMenu1
    TabOrder = 2
    ViewStyle = vsReport
    OnClick = LvwSailingsClick
    OnDblClick = ActEditExecute
  end
  object GroupSailing: TGroupBox
    Left = 12
    Top = 226
    Width = 212
    Height = 242
    Caption = 'Selected sailing'
    TabOrder = 5
    object LblVessel: TLabel
      Left = 14
      Top = 26
      Width = 184
      Height = 16
      AutoSize = False
      Caption = 'Vessel'
    end
    object LblVesselValue: TLabel
      Left = 14
      Top = 44
      Width = 184
      Height = 16
      AutoSize = False
      Font.Charset = DEFAULT_CHARSET
      Font.Color = clWindowText
      Font.Height = -12
      Font.Name = 'Tahoma'
      Font.Style = [fsBold]
      ParentFont = False
    end
    object LblGate: TLabel
      Left = 14
      Top = 78
      Width = 184
      Height = 16
      AutoSize = False
      Caption = 'Gate'
    end
    object LblGateValue: TLabel
      Left = 14
      Top = 96
      Width = 184
      Height = 16
      AutoSize = False
      Font.Charset = DEFAULT_CHARSET
      Font.Color = clWindowText
      Font.Height = -12
      Font.Name = 'Tahoma'
      Font.Style = [fsBold]
      ParentFont = False
    end
    object LblCheckIn: TLabel
      Left = 14
      Top = 130
      Width = 184
      Height = 16
      AutoSize = False
      Caption = 'Check-in closes'
    end
    object LblCheckInValue: TLabel
      Left = 14
      Top = 148
      Width = 184
      Height = 16
      AutoSize = False
      Font.Charset = DEFAULT_CHARSET
      Font.Color = clWindowText
      Font.Height = -12
      Font.Name = 'Tahoma'
      Font.Style = [fsBold]
      ParentFont = False
    end
    object LblLane: TLabel
      Left = 14
      Top = 182
      Width = 184
      Height = 16
      AutoSize = False
      Caption = 'Vehicle lane'
    end
    object LblLaneValue: TLabel
      Left = 14
      Top = 200
      Width = 184
      Height = 16
      AutoSize = False
      Font.Charset = DEFAULT_CHARSET
      Font.Color = clWindowText
      Font.Height = -12
      Font.Name = 'Tahoma'
      Font.Style = [fsBold]
      ParentFont = False
    end
  end
  object GroupRules: TGroupBox
    Left = 236
    Top = 262
    Width = 592
    Height = 206
    Anchors = [akLeft, akTop, akRight, akBottom]
    Caption = 'Check-in rules'
    TabOrder = 6
    object MemRules: TMemo
      Left = 12
      Top = 24
      Width = 568
      Height = 170
      Hint = 'Read these rules to the customer'
      Anchors = [akLeft, akTop, akRight, akBottom]
      Lines.Strings = (
        'Foot passengers check in 20 minutes before departure.'
        'Vehicles check in 45 minutes before departure.'
        'Children under six travel free of charge.'
        'Pets stay on the upper deck or in the vehicle.'
        'A booking can be cancelled until the day before departure.')
      ScrollBars = ssVertical
      TabOrder = 0
    end
  end
  object StatusBar1: TStatusBar
    Left = 0
    Top = 480
    Width = 840
    Height = 22
    Panels = <
      item
        Text = 'Ready'
        Width = 240
      end
      item
        Text = 'Terminal: Nyholm'
        Width = 260
      end
      item
        Text = 'Summer timetable'
        Width = 50
      end>
  end
  object MainMenu1: TMainMenu
    Left = 32
    Top = 96
    object MnuFile: TMenuItem
      Caption = '&File'
      object ItemNew: TMenuItem
        Action = ActNew
      end
      object ItemEdit: TMenuItem
        Action = ActEdit
      end
      object ItemCancel: TMenuItem
        Action = ActCancel
      end
      object ItemLine1: TMenuItem
        Caption = '-'
      end
      object ItemExit: TMenuItem
        Caption = 'E&xit'
        Hint = 'Close the booking desk'
        ShortCut = 32883
        OnClick = ItemExitClick
      end
    end
    object MnuEdit: TMenuItem
      Caption = '&Edit'
      object ItemCut: TMenuItem
        Caption = 'Cu&t'
        ShortCut = 16472
        OnClick = ItemCutClick
      end
      object ItemCopy: TMenuItem
        Caption = '&Copy'
        ShortCut = 16451
        OnClick = ItemCopyClick
      end
      object ItemPaste: TMenuItem
        Caption = '&Paste'
        ShortCut = 16470
        OnClick = ItemPasteClick
      end
      object ItemLine2: TMenuItem
        Caption = '-'
      end
      object ItemSelectAll: TMenuItem
        Caption = 'Select &all'
        ShortCut = 16449
        OnClick = ItemSelectAllClick
      end
    end
    object MnuView: TMenuItem
      Caption = '&View'
      object ItemToolBar: TMenuItem
        Caption = '&Toolbar'
        Checked = True
        OnClick = ItemToolBarClick
      end
      object ItemStatusBar: TMenuItem
        Caption = '&Status bar'
        Checked = True
        OnClick = ItemStatusBarClick
      end
      object ItemLine3: TMenuItem
        Caption = '-'
      end
      object ItemByDeparture: TMenuItem
        Caption = 'Sort by &departure'
        Checked = True
        GroupIndex = 1
        RadioItem = True
        OnClick = ItemByDepartureClick
      end
      object ItemByVessel: TMenuItem
        Caption = 'Sort by &vessel'
        GroupIndex = 1
        RadioItem = True
        OnClick = ItemByVesselClick
      end
      object ItemLine4: TMenuItem
        Caption = '-'
        GroupIndex = 1
      end
      object ItemOptions: TMenuItem
        Action = ActOptions
        GroupIndex = 1
      end
    end
    object MnuLanguage: TMenuItem
      Caption = '&Language'
      object ItemEnglish: TMenuItem
        Caption = '&English'
        Checked = True
        GroupIndex = 2
        RadioItem = True
        OnClick = ItemLanguageClick
      end
      object ItemSwedish: TMenuItem
        Tag = 1053
        Caption = '&Svenska'
        GroupIndex = 2
        RadioItem = True
        OnClick = ItemLanguageClick
      end
      object ItemGerman: TMenuItem
        Tag = 1031
        Caption = '&Deutsch'
        GroupIndex = 2
        RadioItem = True
        OnClick = ItemLanguageClick
      end
      object ItemJapanese: TMenuItem
        Tag = 1041
        Caption = #26085#26412#35486'(&J)'
        GroupIndex = 2
        RadioItem = True
        OnClick = ItemLanguageClick
      end
      object ItemArabic: TMenuItem
        Tag = 1025
        Caption = #1575#1604'&'#1593#1585#1576#1610#1577
        GroupIndex = 2
        RadioItem = True
        OnClick = ItemLanguageClick
      end
    end
    object MnuHelp: TMenuItem
      Caption = '&Help'
      object ItemRules: TMenuItem
        Caption = '&Check-in rules'
        Hint = 'Go to the check-in rules'
        ShortCut = 112
        OnClick = ItemRulesClick
      end
      object ItemAbout: TMenuItem
        Caption = '&About Booking Desk...'
        Hint = 'Program version and contact'
        OnClick = ItemAboutClick
      end
    end
  end
  object PopupMenu1: TPopupMenu
    Left = 96
    Top = 96
    object PopNew: TMenuItem
      Action = ActNew
    end
    object PopEdit: TMenuItem
      Action = ActEdit
      Default = True
    end
    object PopCancel: TMenuItem
      Action = ActCancel
    end
  end
  object ActionList1: TActionList
    Left = 160
    Top = 96
    object ActNew: TAction
      Caption = '&New booking...'
      Hint = 'Book places on the selected sailing'
      ShortCut = 16462
      OnExecute = ActNewExecute
    end
    object ActEdit: TAction
      Caption = '&Edit booking...'
      Hint = 'Change the booking of the selected sailing'
      ShortCut = 16453
      OnExecute = ActEditExecute
    end
    object ActCancel: TAction
      Caption = '&Cancel booking'
      Hint = 'Give the places back'
      ShortCut = 16430
      OnExecute = ActCancelExecute
    end
    object ActOptions: TAction
      Caption = '&Options...'
      Hint = 'Settings of the booking desk'
      ShortCut = 120
      OnExecute = ActOptionsExecute
    end
  end
  object TranslatorSwedish: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1053
    Translate = False
    TranslateEmpty = False
    Left = 24
    Top = 160
    Storage = 0
  end
  object TranslatorGerman: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1031
    Translate = False
    TranslateEmpty = False
    Left = 88
    Top = 160
    Storage = 0
  end
  object TranslatorJapanese: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1041
    Translate = False
    TranslateEmpty = False
    Left = 152
    Top = 160
    Storage = 0
  end
  object TranslatorArabic: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1025
    Translate = False
    TranslateEmpty = False
    Left = 216
    Top = 160
    Storage = 0
  end
end
