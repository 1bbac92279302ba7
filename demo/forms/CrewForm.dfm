object CrewForm: TCrewForm
  Left = 250
  Top = 150
  Caption = 'Crew'
  ClientHeight = 230
  ClientWidth = 440
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = 'Tahoma'
  Font.Style = []
  FormStyle = fsMDIChild
  ParentBiDiMode = False
  Position = poDesigned
  ShowHint = True
  Visible = True
  PixelsPerInch = 96
  TextHeight = 14
  object LblDuty: TLabel
    Left = 12
    Top = 12
    Width = 180
    Height = 16
    AutoSize = False
    Caption = '&On duty:'
    FocusControl = LbxDuty
  end
  object LblOrders: TLabel
    Left = 204
    Top = 12
    Width = 224
    Height = 16
    AutoSize = False
    Caption = 'Orders of the &day:'
    FocusControl = MemOrders
  end
  object LbxDuty: TListBox
    Left = 12
    Top = 30
    Width = 180
    Height = 188
    Hint = 'From seven in the morning'
    ItemHeight = 14
    Items.Strings = (
      'Captain'
      'Chief engineer'
      'Helmsman'
      'Purser'
      'Cook'
      'Deckhands')
    TabOrder = 0
  end
  object MemOrders: TMemo
    Left = 204
    Top = 30
    Width = 224
    Height = 188
    Hint = 'Every crew member signs this'
    Lines.Strings = (
      'Boat drill at nine.'
      'Fresh water at berth two.'
      'Fog is expected after noon.')
    TabOrder = 1
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
