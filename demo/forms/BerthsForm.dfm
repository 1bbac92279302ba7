object BerthsForm: TBerthsForm
  Left = 20
  Top = 20
  Caption = 'Berths'
  ClientHeight = 220
  ClientWidth = 420
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
  OnCreate = FormCreate
  PixelsPerInch = 96
  TextHeight = 14
  object LvwBerths: TListView
    Left = 0
    Top = 0
    Width = 420
    Height = 184
    Hint = 'The ships in the order of their arrival'
    Align = alClient
    Columns = <
      item
        Caption = 'Berth'
        Width = 90
      end
      item
        Caption = 'Vessel'
        Width = 130
      end
      item
        Caption = 'Arrival'
        Width = 90
      end
      item
        Caption = 'Departure'
        Width = 90
      end>
    ReadOnly = True
    RowSelect = True
    TabOrder = 0
    ViewStyle = vsReport
  end
  object PnlTide: TPanel
    Left = 0
    Top = 184
    Width = 420
    Height = 36
    Align = alBottom
    BevelOuter = bvNone
    TabOrder = 1
    object CkxTide: TCheckBox
      Left = 10
      Top = 9
      Width = 400
      Height = 18
      Caption = '&Warn at low tide'
      TabOrder = 0
    end
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
