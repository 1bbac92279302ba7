object LanguageForm: TLanguageForm
  Left = 280
  Top = 140
  BorderStyle = bsSingle
  Caption = 'Language and formats'
  ClientHeight = 448
  ClientWidth = 780
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = 'Tahoma'
  Font.Style = []
  Menu = MnuLanguages
  ParentBiDiMode = False
  PopupMenu = PopLanguages
  Position = poDesigned
  PixelsPerInch = 96
  TextHeight = 14
  object LblSelector: TLabel
    Left = 12
    Top = 160
    Width = 344
    Height = 16
    AutoSize = False
    Caption = '&Choose the language with:'
    FocusControl = CbxSelector
  end
  object GrpFormats: TGroupBox
    Left = 12
    Top = 8
    Width = 756
    Height = 140
    Caption = 'Formats'
    TabOrder = 0
    object LblDate: TLabel
      Left = 12
      Top = 22
      Width = 132
      Height = 16
      AutoSize = False
      Caption = 'Date'
    end
    object LblDateValue: TLabel
      Left = 152
      Top = 22
      Width = 372
      Height = 16
      AutoSize = False
      Font.Charset = DEFAULT_CHARSET
      Font.Color = clWindowText
      Font.Height = -12
      Font.Name = 'Tahoma'
      Font.Style = [fsBold]
      ParentFont = False
    end
    object LblShortDate: TLabel
      Left = 12
      Top = 45
      Width = 132
      Height = 16
      AutoSize = False
      Caption = 'Short date'
    end
    object LblShortDateValue: TLabel
      Left = 152
      Top = 45
      Width = 372
      Height = 16
      AutoSize = False
      Font.Charset = DEFAULT_CHARSET
      Font.Color = clWindowText
      Font.Height = -12
      Font.Name = 'Tahoma'
      Font.Style = [fsBold]
      ParentFont = False
    end
    object LblTime: TLabel
      Left = 12
      Top = 68
      Width = 132
      Height = 16
      AutoSize = False
      Caption = 'Time'
    end
    object LblTimeValue: TLabel
      Left = 152
      Top = 68
      Width = 372
      Height = 16
      AutoSize = False
      Font.Charset = DEFAULT_CHARSET
      Font.Color = clWindowText
      Font.Height = -12
      Font.Name = 'Tahoma'
      Font.Style = [fsBold]
      ParentFont = False
    end
    object LblPrice: TLabel
      Left = 12
      Top = 91
      Width = 132
      Height = 16
      AutoSize = False
      Caption = 'Price'
    end
    object LblPriceValue: TLabel
      Left = 152
      Top = 91
      Width = 372
      Height = 16
      AutoSize = False
      Font.Charset = DEFAULT_CHARSET
      Font.Color = clWindowText
      Font.Height = -12
      Font.Name = 'Tahoma'
      Font.Style = [fsBold]
      ParentFont = False
    end
    object LblNumber: TLabel
      Left = 12
      Top = 114
      Width = 132
      Height = 16
      AutoSize = False
      Caption = 'Number'
    end
    object LblNumberValue: TLabel
      Left = 152
      Top = 114
      Width = 372
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
  object CbxSelector: TComboBox
    Left = 12
    Top = 178
    Width = 344
    Height = 22
    Style = csDropDownList
    ItemHeight = 14
    TabOrder = 1
    OnChange = CbxSelectorChange
    Items.Strings = (
      'the main window'#39's menu'
      'a menu bar'
      'a popup menu'
      'a list box'
      'a combo box'
      'radio buttons'
      'tabs')
  end
  object BtnPopup: TButton
    Left = 376
    Top = 176
    Width = 392
    Height = 26
    Caption = '&Popup menu'
    TabOrder = 2
    OnClick = BtnPopupClick
  end
  object LbxLanguages: TListBox
    Left = 12
    Top = 212
    Width = 344
    Height = 138
    ItemHeight = 14
    TabOrder = 3
  end
  object RgpLanguages: TRadioGroup
    Left = 376
    Top = 206
    Width = 392
    Height = 144
    Caption = 'Language'
    TabOrder = 4
  end
  object CbxLanguages: TComboBox
    Left = 12
    Top = 362
    Width = 344
    Height = 22
    Style = csDropDownList
    ItemHeight = 14
    TabOrder = 5
  end
  object TbsLanguages: TTabSet
    Left = 0
    Top = 424
    Width = 780
    Height = 24
    Align = alBottom
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clWindowText
    Font.Height = -11
    Font.Name = 'Tahoma'
    Font.Style = []
  end
  object MnuLanguages: TMainMenu
    Left = 24
    Top = 232
  end
  object PopLanguages: TPopupMenu
    Left = 88
    Top = 232
  end
  object TranslatorSwedish: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1053
    Translate = False
    TranslateEmpty = False
    Left = 24
    Top = 288
    Storage = 0
  end
  object TranslatorGerman: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1031
    Translate = False
    TranslateEmpty = False
    Left = 88
    Top = 288
    Storage = 0
  end
  object TranslatorJapanese: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1041
    Translate = False
    TranslateEmpty = False
    Left = 152
    Top = 288
    Storage = 0
  end
  object TranslatorArabic: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1025
    Translate = False
    TranslateEmpty = False
    Left = 216
    Top = 288
    Storage = 0
  end
end
