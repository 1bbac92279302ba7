object TextsModule: TTextsModule
  OldCreateOrder = False
  Height = 88
  Width = 320
  object TextsSwedish: TResourceTranslator
    FileName = 'demo.lng'
    Locale = 1053
    Translate = False
    Left = 24
    Top = 16
    ResStrings = ()
  end
  object TextsGerman: TResourceTranslator
    FileName = 'demo.lng'
    Locale = 1031
    Translate = False
    Left = 96
    Top = 16
    ResStrings = ()
  end
  object TextsJapanese: TResourceTranslator
    FileName = 'demo.lng'
    Locale = 1041
    Translate = False
    Left = 168
    Top = 16
    ResStrings = ()
  end
  object TextsArabic: TResourceTranslator
    FileName = 'demo.lng'
    Locale = 1025
    Translate = False
    Left = 240
    Top = 16
    ResStrings = ()
  end
end
