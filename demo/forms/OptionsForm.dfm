object OptionsForm: TOptionsForm
  Left = 260
  Top = 160
  BorderStyle = bsDialog
  Caption = 'Options'
  ClientHeight = 358
  ClientWidth = 460
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = 'Tahoma'
  Font.Style = []
  ParentBiDiMode = False
  Position = poMainFormCenter
  ShowHint = True
  OnCreate = FormCreate
  PixelsPerInch = 96
  TextHeight = 14
  object PageControl1: TPageControl
    Left = 12
    Top = 12
    Width = 436
    Height = 296
    ActivePage = TabGeneral
    TabOrder = 0
    object TabGeneral: TTabSheet
      Caption = 'General'
      object CkxToolBar: TCheckBox
        Left = 16
        Top = 16
        Width = 396
        Height = 18
        Caption = 'Show the &toolbar'
        Checked = True
        State = cbChecked
        TabOrder = 0
      end
      object CkxStatusBar: TCheckBox
        Left = 16
        Top = 42
        Width = 396
        Height = 18
        Caption = 'Show the &status bar'
        Checked = True
        State = cbChecked
        TabOrder = 1
      end
      object CkxHints: TCheckBox
        Left = 16
        Top = 68
        Width = 396
        Height = 18
        Hint = 'Short explanations like this one'
        Caption = 'Show &hints below the mouse pointer'
        Checked = True
        State = cbChecked
        TabOrder = 2
      end
      object GroupStart: TRadioGroup
        Left = 16
        Top = 104
        Width = 396
        Height = 112
        Caption = 'List at start'
        ItemIndex = 0
        Items.Strings = (
          'Sailings of to&day'
          'Sailings of the next &week'
          'Sailings with &free places only')
        TabOrder = 3
      end
    end
    object TabBooking: TTabSheet
      Caption = 'Booking'
      ImageIndex = 1
      object LblCurrency: TLabel
        Left = 16
        Top = 16
        Width = 396
        Height = 16
        AutoSize = False
        Caption = '&Currency of fares:'
        FocusControl = CbxCurrency
      end
      object LblReserve: TLabel
        Left = 16
        Top = 76
        Width = 300
        Height = 16
        AutoSize = False
        Caption = '&Places kept free on each sailing:'
        FocusControl = EdtReserve
      end
      object LblHold: TLabel
        Left = 16
        Top = 108
        Width = 300
        Height = 16
        AutoSize = False
        Caption = 'Hours an unpaid &booking is kept:'
        FocusControl = EdtHold
      end
      object CbxCurrency: TComboBox
        Left = 16
        Top = 34
        Width = 220
        Height = 22
        Style = csDropDownList
        ItemHeight = 14
        TabOrder = 0
        Items.Strings = (
          'Euro'
          'Swedish krona'
          'Japanese yen'
          'Egyptian pound')
      end
      object EdtReserve: TEdit
        Left = 330
        Top = 73
        Width = 60
        Height = 22
        TabOrder = 1
        Text = '4'
      end
      object EdtHold: TEdit
        Left = 330
        Top = 105
        Width = 60
        Height = 22
        TabOrder = 2
        Text = '24'
      end
      object CkxAsk: TCheckBox
        Left = 16
        Top = 144
        Width = 396
        Height = 18
        Caption = '&Ask before a booking is cancelled'
        Checked = True
        State = cbChecked
        TabOrder = 3
      end
    end
    object TabTicket: TTabSheet
      Caption = 'Ticket'
      ImageIndex = 2
      object LblPaper: TLabel
        Left = 16
        Top = 16
        Width = 396
        Height = 16
        AutoSize = False
        Caption = '&Delivery of the ticket:'
        FocusControl = CbxPaper
      end
      object LblFooter: TLabel
        Left = 16
        Top = 76
        Width = 396
        Height = 16
        AutoSize = False
        Caption = '&Last line of the ticket:'
        FocusControl = EdtFooter
      end
      object CbxPaper: TComboBox
        Left = 16
        Top = 34
        Width = 220
        Height = 22
        Style = csDropDownList
        ItemHeight = 14
        TabOrder = 0
        Items.Strings = (
          'On paper'
          'By e-mail'
          'On the telephone')
      end
      object EdtFooter: TEdit
        Left = 16
        Top = 94
        Width = 396
        Height = 22
        TabOrder = 1
        Text = 'Have a pleasant crossing!'
      end
      object CkxCopies: TCheckBox
        Left = 16
        Top = 132
        Width = 396
        Height = 18
        Caption = 'Print a copy for the &purser'
        TabOrder = 2
      end
    end
  end
  object BtnOK: TButton
    Left = 112
    Top = 320
    Width = 108
    Height = 27
    Caption = 'OK'
    Default = True
    ModalResult = 1
    TabOrder = 1
  end
  object BtnCancel: TButton
    Left = 226
    Top = 320
    Width = 108
    Height = 27
    Cancel = True
    Caption = 'Cancel'
    ModalResult = 2
    TabOrder = 2
  end
  object BtnHelp: TButton
    Left = 340
    Top = 320
    Width = 108
    Height = 27
    Hint = 'About the booking desk'
    Caption = 'Help'
    TabOrder = 3
    OnClick = BtnHelpClick
  end
  object TranslatorSwedish: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1053
    Translate = False
    TranslateEmpty = False
    Left = 24
    Top = 8
    Storage = 0
  end
  object TranslatorGerman: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1031
    Translate = False
    TranslateEmpty = False
    Left = 88
    Top = 8
    Storage = 0
  end
  object TranslatorJapanese: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1041
    Translate = False
    TranslateEmpty = False
    Left = 152
    Top = 8
    Storage = 0
  end
  object TranslatorArabic: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1025
    Translate = False
    TranslateEmpty = False
    Left = 216
    Top = 8
    Storage = 0
  end
end
