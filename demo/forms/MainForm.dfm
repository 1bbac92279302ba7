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
    Width = 292
    Height = 16
    AutoSize = False
    Caption = '&Sailings today:'
    FocusControl = LvwSailings
  end
  object LblTodayValue: TLabel
    Left = 528
    Top = 44
    Width = 300
    Height = 16
    Alignment = taRightJustify
    Anchors = [akLeft, akTop, akRight]
    AutoSize = False
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
      object ItemFormats: TMenuItem
        Caption = '&Language and formats...'
        GroupIndex = 1
        Hint = 'See dates and numbers, and choose the language in other ways'
        OnClick = ItemFormatsClick
      end
      object ItemMessages: TMenuItem
        Caption = '&Messages and errors...'
        GroupIndex = 1
        Hint = 'See what errors and message boxes say'
        OnClick = ItemMessagesClick
      end
      object ItemDialogs: TMenuItem
        Caption = 'D&ialogs of the system...'
        GroupIndex = 1
        Hint = 'See the dialogs for files, fonts, colors, printing and finding'
        OnClick = ItemDialogsClick
      end
      object ItemTranslations: TMenuItem
        Caption = 'Edit t&ranslations...'
        GroupIndex = 1
        Hint = 'Edit the texts of this window in the language that it shows'
        OnClick = ItemTranslationsClick
      end
    end
    object MnuLanguage: TMenuItem
      Caption = '&Language'
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
  object Buttons: TButtonTranslator
    Locale = 0
    Translate = True
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clWindowText
    Font.Height = -12
    Font.Name = 'Tahoma'
    Font.Style = []
    Language = lnUser
    Left = 344
    Top = 160
    Storage = ()
  end
  object Locales: TLocaleTranslator
    AdoptOn = MnuLanguage
    DesignLocale = 'English (United States) 00000409'
    ListFormat = '%2:s (%3:s)'
    Locale = 0
    StartupLocale = 'User default 00000400'
    Translate = True
    Translations.Strings = (
      '00000401_CURRENCYDECIMALS=2'
      '00000401_CURRENCYFORMAT=1'
      '00000401_CURRENCYSTRING='#1585'.'#1587'.'#8207
      '00000401_DATESEPARATOR='#8207'/'
      '00000401_DECIMALSEPARATOR=.'
      '00000401_ENGLISHCOUNTRYNAME=Saudi Arabia'
      '00000401_ENGLISHNAME=Arabic'
      '00000401_LISTSEPARATOR=;'
      '00000401_LONGDATEFORMAT=dddd'#1548' d MMMM yyyy'
      '00000401_LONGDAYNAMES[1]='#1575#1604#1571#1581#1583
      '00000401_LONGDAYNAMES[2]='#1575#1604#1575#1579#1606#1610#1606
      '00000401_LONGDAYNAMES[3]='#1575#1604#1579#1604#1575#1579#1575#1569
      '00000401_LONGDAYNAMES[4]='#1575#1604#1571#1585#1576#1593#1575#1569
      '00000401_LONGDAYNAMES[5]='#1575#1604#1582#1605#1610#1587
      '00000401_LONGDAYNAMES[6]='#1575#1604#1580#1605#1593#1577
      '00000401_LONGDAYNAMES[7]='#1575#1604#1587#1576#1578
      '00000401_LONGMONTHNAMES[10]='#1571#1603#1578#1608#1576#1585
      '00000401_LONGMONTHNAMES[11]='#1606#1608#1601#1605#1576#1585
      '00000401_LONGMONTHNAMES[12]='#1583#1610#1587#1605#1576#1585
      '00000401_LONGMONTHNAMES[1]='#1610#1606#1575#1610#1585
      '00000401_LONGMONTHNAMES[2]='#1601#1576#1585#1575#1610#1585
      '00000401_LONGMONTHNAMES[3]='#1605#1575#1585#1587
      '00000401_LONGMONTHNAMES[4]='#1571#1576#1585#1610#1604
      '00000401_LONGMONTHNAMES[5]='#1605#1575#1610#1608
      '00000401_LONGMONTHNAMES[6]='#1610#1608#1606#1610#1608
      '00000401_LONGMONTHNAMES[7]='#1610#1608#1604#1610#1608
      '00000401_LONGMONTHNAMES[8]='#1571#1594#1587#1591#1587
      '00000401_LONGMONTHNAMES[9]='#1587#1576#1578#1605#1576#1585
      '00000401_LONGTIMEFORMAT=hh:mm:ss AMPM'
      '00000401_NATIVECOUNTRYNAME='#1575#1604#1605#1605#1604#1603#1577' '#1575#1604#1593#1585#1576#1610#1577' '#1575#1604#1587#1593#1608#1583#1610#1577
      '00000401_NATIVENAME='#1575#1604#1593#1585#1576#1610#1577
      '00000401_NEGCURRFORMAT=4'
      '00000401_SHORTDATEFORMAT=d'#8207'/M'#8207'/yyyy'
      '00000401_SHORTDAYNAMES[1]='#1575#1604#1571#1581#1583
      '00000401_SHORTDAYNAMES[2]='#1575#1604#1575#1579#1606#1610#1606
      '00000401_SHORTDAYNAMES[3]='#1575#1604#1579#1604#1575#1579#1575#1569
      '00000401_SHORTDAYNAMES[4]='#1575#1604#1571#1585#1576#1593#1575#1569
      '00000401_SHORTDAYNAMES[5]='#1575#1604#1582#1605#1610#1587
      '00000401_SHORTDAYNAMES[6]='#1575#1604#1580#1605#1593#1577
      '00000401_SHORTDAYNAMES[7]='#1575#1604#1587#1576#1578
      '00000401_SHORTMONTHNAMES[10]='#1571#1603#1578#1608#1576#1585
      '00000401_SHORTMONTHNAMES[11]='#1606#1608#1601#1605#1576#1585
      '00000401_SHORTMONTHNAMES[12]='#1583#1610#1587#1605#1576#1585
      '00000401_SHORTMONTHNAMES[1]='#1610#1606#1575#1610#1585
      '00000401_SHORTMONTHNAMES[2]='#1601#1576#1585#1575#1610#1585
      '00000401_SHORTMONTHNAMES[3]='#1605#1575#1585#1587
      '00000401_SHORTMONTHNAMES[4]='#1571#1576#1585#1610#1604
      '00000401_SHORTMONTHNAMES[5]='#1605#1575#1610#1608
      '00000401_SHORTMONTHNAMES[6]='#1610#1608#1606#1610#1608
      '00000401_SHORTMONTHNAMES[7]='#1610#1608#1604#1610#1608
      '00000401_SHORTMONTHNAMES[8]='#1571#1594#1587#1591#1587
      '00000401_SHORTMONTHNAMES[9]='#1587#1576#1578#1605#1576#1585
      '00000401_SHORTTIMEFORMAT=hh:mm AMPM'
      '00000401_THOUSANDSEPARATOR=,'
      '00000401_TIMEAMSTRING='#1589
      '00000401_TIMEPMSTRING='#1605
      '00000401_TIMESEPARATOR=:'
      '00000401_TWODIGITYEARCENTURYWINDOW=0'
      '00000407_CURRENCYDECIMALS=2'
      '00000407_CURRENCYFORMAT=3'
      '00000407_CURRENCYSTRING='#8364
      '00000407_DATESEPARATOR=.'
      '00000407_DECIMALSEPARATOR=,'
      '00000407_ENGLISHCOUNTRYNAME=Germany'
      '00000407_ENGLISHNAME=German'
      '00000407_LISTSEPARATOR=;'
      '00000407_LONGDATEFORMAT=dddd, d. MMMM yyyy'
      '00000407_LONGDAYNAMES[1]=Sonntag'
      '00000407_LONGDAYNAMES[2]=Montag'
      '00000407_LONGDAYNAMES[3]=Dienstag'
      '00000407_LONGDAYNAMES[4]=Mittwoch'
      '00000407_LONGDAYNAMES[5]=Donnerstag'
      '00000407_LONGDAYNAMES[6]=Freitag'
      '00000407_LONGDAYNAMES[7]=Samstag'
      '00000407_LONGMONTHNAMES[10]=Oktober'
      '00000407_LONGMONTHNAMES[11]=November'
      '00000407_LONGMONTHNAMES[12]=Dezember'
      '00000407_LONGMONTHNAMES[1]=Januar'
      '00000407_LONGMONTHNAMES[2]=Februar'
      '00000407_LONGMONTHNAMES[3]=M'#228'rz'
      '00000407_LONGMONTHNAMES[4]=April'
      '00000407_LONGMONTHNAMES[5]=Mai'
      '00000407_LONGMONTHNAMES[6]=Juni'
      '00000407_LONGMONTHNAMES[7]=Juli'
      '00000407_LONGMONTHNAMES[8]=August'
      '00000407_LONGMONTHNAMES[9]=September'
      '00000407_LONGTIMEFORMAT=hh:mm:ss'
      '00000407_NATIVECOUNTRYNAME=Deutschland'
      '00000407_NATIVENAME=Deutsch'
      '00000407_NEGCURRFORMAT=8'
      '00000407_SHORTDATEFORMAT=d.M.yyyy'
      '00000407_SHORTDAYNAMES[1]=So.'
      '00000407_SHORTDAYNAMES[2]=Mo.'
      '00000407_SHORTDAYNAMES[3]=Di.'
      '00000407_SHORTDAYNAMES[4]=Mi.'
      '00000407_SHORTDAYNAMES[5]=Do.'
      '00000407_SHORTDAYNAMES[6]=Fr.'
      '00000407_SHORTDAYNAMES[7]=Sa.'
      '00000407_SHORTMONTHNAMES[10]=Okt'
      '00000407_SHORTMONTHNAMES[11]=Nov'
      '00000407_SHORTMONTHNAMES[12]=Dez'
      '00000407_SHORTMONTHNAMES[1]=Jan'
      '00000407_SHORTMONTHNAMES[2]=Feb'
      '00000407_SHORTMONTHNAMES[3]=M'#228'r'
      '00000407_SHORTMONTHNAMES[4]=Apr'
      '00000407_SHORTMONTHNAMES[5]=Mai'
      '00000407_SHORTMONTHNAMES[6]=Jun'
      '00000407_SHORTMONTHNAMES[7]=Jul'
      '00000407_SHORTMONTHNAMES[8]=Aug'
      '00000407_SHORTMONTHNAMES[9]=Sep'
      '00000407_SHORTTIMEFORMAT=hh:mm'
      '00000407_THOUSANDSEPARATOR=.'
      '00000407_TIMEAMSTRING=AM'
      '00000407_TIMEPMSTRING=PM'
      '00000407_TIMESEPARATOR=:'
      '00000407_TWODIGITYEARCENTURYWINDOW=0'
      '00000409_CURRENCYDECIMALS=2'
      '00000409_CURRENCYFORMAT=0'
      '00000409_CURRENCYSTRING=$'
      '00000409_DATESEPARATOR=/'
      '00000409_DECIMALSEPARATOR=.'
      '00000409_ENGLISHCOUNTRYNAME=United States'
      '00000409_ENGLISHNAME=English'
      '00000409_LISTSEPARATOR=,'
      '00000409_LONGDATEFORMAT=dddd, MMMM d, yyyy'
      '00000409_LONGDAYNAMES[1]=Sunday'
      '00000409_LONGDAYNAMES[2]=Monday'
      '00000409_LONGDAYNAMES[3]=Tuesday'
      '00000409_LONGDAYNAMES[4]=Wednesday'
      '00000409_LONGDAYNAMES[5]=Thursday'
      '00000409_LONGDAYNAMES[6]=Friday'
      '00000409_LONGDAYNAMES[7]=Saturday'
      '00000409_LONGMONTHNAMES[10]=October'
      '00000409_LONGMONTHNAMES[11]=November'
      '00000409_LONGMONTHNAMES[12]=December'
      '00000409_LONGMONTHNAMES[1]=January'
      '00000409_LONGMONTHNAMES[2]=February'
      '00000409_LONGMONTHNAMES[3]=March'
      '00000409_LONGMONTHNAMES[4]=April'
      '00000409_LONGMONTHNAMES[5]=May'
      '00000409_LONGMONTHNAMES[6]=June'
      '00000409_LONGMONTHNAMES[7]=July'
      '00000409_LONGMONTHNAMES[8]=August'
      '00000409_LONGMONTHNAMES[9]=September'
      '00000409_LONGTIMEFORMAT=hh:mm:ss AMPM'
      '00000409_NATIVECOUNTRYNAME=United States'
      '00000409_NATIVENAME=English'
      '00000409_NEGCURRFORMAT=0'
      '00000409_SHORTDATEFORMAT=M/d/yyyy'
      '00000409_SHORTDAYNAMES[1]=Sun'
      '00000409_SHORTDAYNAMES[2]=Mon'
      '00000409_SHORTDAYNAMES[3]=Tue'
      '00000409_SHORTDAYNAMES[4]=Wed'
      '00000409_SHORTDAYNAMES[5]=Thu'
      '00000409_SHORTDAYNAMES[6]=Fri'
      '00000409_SHORTDAYNAMES[7]=Sat'
      '00000409_SHORTMONTHNAMES[10]=Oct'
      '00000409_SHORTMONTHNAMES[11]=Nov'
      '00000409_SHORTMONTHNAMES[12]=Dec'
      '00000409_SHORTMONTHNAMES[1]=Jan'
      '00000409_SHORTMONTHNAMES[2]=Feb'
      '00000409_SHORTMONTHNAMES[3]=Mar'
      '00000409_SHORTMONTHNAMES[4]=Apr'
      '00000409_SHORTMONTHNAMES[5]=May'
      '00000409_SHORTMONTHNAMES[6]=Jun'
      '00000409_SHORTMONTHNAMES[7]=Jul'
      '00000409_SHORTMONTHNAMES[8]=Aug'
      '00000409_SHORTMONTHNAMES[9]=Sep'
      '00000409_SHORTTIMEFORMAT=hh:mm AMPM'
      '00000409_THOUSANDSEPARATOR=,'
      '00000409_TIMEAMSTRING=AM'
      '00000409_TIMEPMSTRING=PM'
      '00000409_TIMESEPARATOR=:'
      '00000409_TWODIGITYEARCENTURYWINDOW=0'
      '00000411_CURRENCYDECIMALS=0'
      '00000411_CURRENCYFORMAT=0'
      '00000411_CURRENCYSTRING='#65509
      '00000411_DATESEPARATOR=/'
      '00000411_DECIMALSEPARATOR=.'
      '00000411_ENGLISHCOUNTRYNAME=Japan'
      '00000411_ENGLISHNAME=Japanese'
      '00000411_LISTSEPARATOR=,'
      '00000411_LONGDATEFORMAT=yyyy'#24180'M'#26376'd'#26085'dddd'
      '00000411_LONGDAYNAMES[1]='#26085#26332#26085
      '00000411_LONGDAYNAMES[2]='#26376#26332#26085
      '00000411_LONGDAYNAMES[3]='#28779#26332#26085
      '00000411_LONGDAYNAMES[4]='#27700#26332#26085
      '00000411_LONGDAYNAMES[5]='#26408#26332#26085
      '00000411_LONGDAYNAMES[6]='#37329#26332#26085
      '00000411_LONGDAYNAMES[7]='#22303#26332#26085
      '00000411_LONGMONTHNAMES[10]=10'#26376
      '00000411_LONGMONTHNAMES[11]=11'#26376
      '00000411_LONGMONTHNAMES[12]=12'#26376
      '00000411_LONGMONTHNAMES[1]=1'#26376
      '00000411_LONGMONTHNAMES[2]=2'#26376
      '00000411_LONGMONTHNAMES[3]=3'#26376
      '00000411_LONGMONTHNAMES[4]=4'#26376
      '00000411_LONGMONTHNAMES[5]=5'#26376
      '00000411_LONGMONTHNAMES[6]=6'#26376
      '00000411_LONGMONTHNAMES[7]=7'#26376
      '00000411_LONGMONTHNAMES[8]=8'#26376
      '00000411_LONGMONTHNAMES[9]=9'#26376
      '00000411_LONGTIMEFORMAT=hh:mm:ss'
      '00000411_NATIVECOUNTRYNAME='#26085#26412
      '00000411_NATIVENAME='#26085#26412#35486
      '00000411_NEGCURRFORMAT=0'
      '00000411_SHORTDATEFORMAT=yyyy/M/d'
      '00000411_SHORTDAYNAMES[1]='#26085
      '00000411_SHORTDAYNAMES[2]='#26376
      '00000411_SHORTDAYNAMES[3]='#28779
      '00000411_SHORTDAYNAMES[4]='#27700
      '00000411_SHORTDAYNAMES[5]='#26408
      '00000411_SHORTDAYNAMES[6]='#37329
      '00000411_SHORTDAYNAMES[7]='#22303
      '00000411_SHORTMONTHNAMES[10]=10'#26376
      '00000411_SHORTMONTHNAMES[11]=11'#26376
      '00000411_SHORTMONTHNAMES[12]=12'#26376
      '00000411_SHORTMONTHNAMES[1]=1'#26376
      '00000411_SHORTMONTHNAMES[2]=2'#26376
      '00000411_SHORTMONTHNAMES[3]=3'#26376
      '00000411_SHORTMONTHNAMES[4]=4'#26376
      '00000411_SHORTMONTHNAMES[5]=5'#26376
      '00000411_SHORTMONTHNAMES[6]=6'#26376
      '00000411_SHORTMONTHNAMES[7]=7'#26376
      '00000411_SHORTMONTHNAMES[8]=8'#26376
      '00000411_SHORTMONTHNAMES[9]=9'#26376
      '00000411_SHORTTIMEFORMAT=hh:mm'
      '00000411_THOUSANDSEPARATOR=,'
      '00000411_TIMEAMSTRING='#21320#21069
      '00000411_TIMEPMSTRING='#21320#24460
      '00000411_TIMESEPARATOR=:'
      '00000411_TWODIGITYEARCENTURYWINDOW=0'
      '0000041D_CURRENCYDECIMALS=2'
      '0000041D_CURRENCYFORMAT=3'
      '0000041D_CURRENCYSTRING=kr'
      '0000041D_DATESEPARATOR=-'
      '0000041D_DECIMALSEPARATOR=,'
      '0000041D_ENGLISHCOUNTRYNAME=Sweden'
      '0000041D_ENGLISHNAME=Swedish'
      '0000041D_LISTSEPARATOR=;'
      '0000041D_LONGDATEFORMAT=dddd d MMMM yyyy'
      '0000041D_LONGDAYNAMES[1]=s'#246'ndag'
      '0000041D_LONGDAYNAMES[2]=m'#229'ndag'
      '0000041D_LONGDAYNAMES[3]=tisdag'
      '0000041D_LONGDAYNAMES[4]=onsdag'
      '0000041D_LONGDAYNAMES[5]=torsdag'
      '0000041D_LONGDAYNAMES[6]=fredag'
      '0000041D_LONGDAYNAMES[7]=l'#246'rdag'
      '0000041D_LONGMONTHNAMES[10]=oktober'
      '0000041D_LONGMONTHNAMES[11]=november'
      '0000041D_LONGMONTHNAMES[12]=december'
      '0000041D_LONGMONTHNAMES[1]=januari'
      '0000041D_LONGMONTHNAMES[2]=februari'
      '0000041D_LONGMONTHNAMES[3]=mars'
      '0000041D_LONGMONTHNAMES[4]=april'
      '0000041D_LONGMONTHNAMES[5]=maj'
      '0000041D_LONGMONTHNAMES[6]=juni'
      '0000041D_LONGMONTHNAMES[7]=juli'
      '0000041D_LONGMONTHNAMES[8]=augusti'
      '0000041D_LONGMONTHNAMES[9]=september'
      '0000041D_LONGTIMEFORMAT=hh:mm:ss'
      '0000041D_NATIVECOUNTRYNAME=Sverige'
      '0000041D_NATIVENAME=svenska'
      '0000041D_NEGCURRFORMAT=8'
      '0000041D_SHORTDATEFORMAT=yyyy-MM-dd'
      '0000041D_SHORTDAYNAMES[1]=s'#246'n'
      '0000041D_SHORTDAYNAMES[2]=m'#229'n'
      '0000041D_SHORTDAYNAMES[3]=tis'
      '0000041D_SHORTDAYNAMES[4]=ons'
      '0000041D_SHORTDAYNAMES[5]=tors'
      '0000041D_SHORTDAYNAMES[6]=fre'
      '0000041D_SHORTDAYNAMES[7]=l'#246'r'
      '0000041D_SHORTMONTHNAMES[10]=okt.'
      '0000041D_SHORTMONTHNAMES[11]=nov.'
      '0000041D_SHORTMONTHNAMES[12]=dec.'
      '0000041D_SHORTMONTHNAMES[1]=jan.'
      '0000041D_SHORTMONTHNAMES[2]=feb.'
      '0000041D_SHORTMONTHNAMES[3]=mars'
      '0000041D_SHORTMONTHNAMES[4]=apr.'
      '0000041D_SHORTMONTHNAMES[5]=maj'
      '0000041D_SHORTMONTHNAMES[6]=juni'
      '0000041D_SHORTMONTHNAMES[7]=juli'
      '0000041D_SHORTMONTHNAMES[8]=aug.'
      '0000041D_SHORTMONTHNAMES[9]=sep.'
      '0000041D_SHORTTIMEFORMAT=hh:mm'
      '0000041D_THOUSANDSEPARATOR='#160
      '0000041D_TIMEAMSTRING=fm'
      '0000041D_TIMEPMSTRING=em'
      '0000041D_TIMESEPARATOR=:'
      '0000041D_TWODIGITYEARCENTURYWINDOW=0'
      '00000809_CURRENCYDECIMALS=2'
      '00000809_CURRENCYFORMAT=0'
      '00000809_CURRENCYSTRING='#163
      '00000809_DATESEPARATOR=/'
      '00000809_DECIMALSEPARATOR=.'
      '00000809_ENGLISHCOUNTRYNAME=United Kingdom'
      '00000809_ENGLISHNAME=English'
      '00000809_LISTSEPARATOR=,'
      '00000809_LONGDATEFORMAT=dddd, d MMMM yyyy'
      '00000809_LONGDAYNAMES[1]=Sunday'
      '00000809_LONGDAYNAMES[2]=Monday'
      '00000809_LONGDAYNAMES[3]=Tuesday'
      '00000809_LONGDAYNAMES[4]=Wednesday'
      '00000809_LONGDAYNAMES[5]=Thursday'
      '00000809_LONGDAYNAMES[6]=Friday'
      '00000809_LONGDAYNAMES[7]=Saturday'
      '00000809_LONGMONTHNAMES[10]=October'
      '00000809_LONGMONTHNAMES[11]=November'
      '00000809_LONGMONTHNAMES[12]=December'
      '00000809_LONGMONTHNAMES[1]=January'
      '00000809_LONGMONTHNAMES[2]=February'
      '00000809_LONGMONTHNAMES[3]=March'
      '00000809_LONGMONTHNAMES[4]=April'
      '00000809_LONGMONTHNAMES[5]=May'
      '00000809_LONGMONTHNAMES[6]=June'
      '00000809_LONGMONTHNAMES[7]=July'
      '00000809_LONGMONTHNAMES[8]=August'
      '00000809_LONGMONTHNAMES[9]=September'
      '00000809_LONGTIMEFORMAT=hh:mm:ss'
      '00000809_NATIVECOUNTRYNAME=United Kingdom'
      '00000809_NATIVENAME=English'
      '00000809_NEGCURRFORMAT=0'
      '00000809_SHORTDATEFORMAT=dd/MM/yyyy'
      '00000809_SHORTDAYNAMES[1]=Sun'
      '00000809_SHORTDAYNAMES[2]=Mon'
      '00000809_SHORTDAYNAMES[3]=Tue'
      '00000809_SHORTDAYNAMES[4]=Wed'
      '00000809_SHORTDAYNAMES[5]=Thu'
      '00000809_SHORTDAYNAMES[6]=Fri'
      '00000809_SHORTDAYNAMES[7]=Sat'
      '00000809_SHORTMONTHNAMES[10]=Oct'
      '00000809_SHORTMONTHNAMES[11]=Nov'
      '00000809_SHORTMONTHNAMES[12]=Dec'
      '00000809_SHORTMONTHNAMES[1]=Jan'
      '00000809_SHORTMONTHNAMES[2]=Feb'
      '00000809_SHORTMONTHNAMES[3]=Mar'
      '00000809_SHORTMONTHNAMES[4]=Apr'
      '00000809_SHORTMONTHNAMES[5]=May'
      '00000809_SHORTMONTHNAMES[6]=Jun'
      '00000809_SHORTMONTHNAMES[7]=Jul'
      '00000809_SHORTMONTHNAMES[8]=Aug'
      '00000809_SHORTMONTHNAMES[9]=Sept'
      '00000809_SHORTTIMEFORMAT=hh:mm'
      '00000809_THOUSANDSEPARATOR=,'
      '00000809_TIMEAMSTRING=am'
      '00000809_TIMEPMSTRING=pm'
      '00000809_TIMESEPARATOR=:'
      '00000809_TWODIGITYEARCENTURYWINDOW=0')
    Left = 280
    Top = 160
    Storage = 0
  end
end
