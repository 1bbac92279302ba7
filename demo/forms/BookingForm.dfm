object BookingForm: TBookingForm
  Left = 240
  Top = 140
  BorderStyle = bsDialog
  Caption = 'Booking'
  ClientHeight = 412
  ClientWidth = 500
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = 'Tahoma'
  Font.Style = []
  ParentBiDiMode = False
  Position = poMainFormCenter
  ShowHint = True
  PixelsPerInch = 96
  TextHeight = 14
  object LblSailing: TLabel
    Left = 16
    Top = 16
    Width = 150
    Height = 16
    AutoSize = False
    Caption = 'Sailing:'
  end
  object LblSailingValue: TLabel
    Left = 172
    Top = 16
    Width = 312
    Height = 16
    AutoSize = False
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clWindowText
    Font.Height = -12
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object LblPlaces: TLabel
    Left = 16
    Top = 152
    Width = 220
    Height = 16
    AutoSize = False
    Caption = 'Number of &places:'
    FocusControl = EdtPlaces
  end
  object LblFare: TLabel
    Left = 256
    Top = 152
    Width = 228
    Height = 16
    AutoSize = False
    Caption = '&Fare:'
    FocusControl = CbxFare
  end
  object LblRemarks: TLabel
    Left = 16
    Top = 236
    Width = 468
    Height = 16
    AutoSize = False
    Caption = '&Remarks for the crew:'
    FocusControl = MemRemarks
  end
  object EdtName: TLabeledEdit
    Left = 16
    Top = 66
    Width = 468
    Height = 22
    Hint = 'As it stands in the passport'
    EditLabel.Width = 93
    EditLabel.Height = 14
    EditLabel.Caption = 'Passenger'#39's &name:'
    TabOrder = 0
  end
  object EdtPhone: TLabeledEdit
    Left = 16
    Top = 116
    Width = 220
    Height = 22
    EditLabel.Width = 92
    EditLabel.Height = 14
    EditLabel.Caption = '&Telephone:'
    TabOrder = 1
  end
  object EdtMail: TLabeledEdit
    Left = 256
    Top = 116
    Width = 228
    Height = 22
    Hint = 'The ticket is sent to this address'
    EditLabel.Width = 70
    EditLabel.Height = 14
    EditLabel.Caption = '&E-mail:'
    TabOrder = 2
  end
  object EdtPlaces: TEdit
    Left = 16
    Top = 170
    Width = 60
    Height = 22
    TabOrder = 3
    Text = '1'
  end
  object CbxFare: TComboBox
    Left = 256
    Top = 170
    Width = 228
    Height = 22
    Style = csDropDownList
    ItemHeight = 14
    TabOrder = 4
    Items.Strings = (
      'Adult'
      'Child (6 to 15 years)'
      'Student'
      'Pensioner')
  end
  object CkxVehicle: TCheckBox
    Left = 16
    Top = 206
    Width = 220
    Height = 18
    Caption = 'With a &vehicle'
    TabOrder = 5
  end
  object CkxReturn: TCheckBox
    Left = 256
    Top = 206
    Width = 228
    Height = 18
    Caption = 'Back on the same &day'
    TabOrder = 6
  end
  object MemRemarks: TMemo
    Left = 16
    Top = 254
    Width = 468
    Height = 98
    Hint = 'Wheelchairs, pets, dangerous goods'
    ScrollBars = ssVertical
    TabOrder = 7
  end
  object BtnSave: TButton
    Left = 260
    Top = 370
    Width = 108
    Height = 27
    Caption = '&Save'
    Default = True
    ModalResult = 1
    TabOrder = 8
  end
  object BtnCancel: TButton
    Left = 376
    Top = 370
    Width = 108
    Height = 27
    Cancel = True
    Caption = 'Cancel'
    ModalResult = 2
    TabOrder = 9
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
