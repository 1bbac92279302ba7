object PlanningForm: TPlanningForm
  Left = 160
  Top = 90
  Caption = 'Skerry Line - Harbour Planning'
  ClientHeight = 480
  ClientWidth = 760
  Color = clAppWorkSpace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = 'Tahoma'
  Font.Style = []
  FormStyle = fsMDIForm
  Menu = MainMenu1
  ParentBiDiMode = False
  Position = poScreenCenter
  ShowHint = True
  WindowMenu = MnuWindow
  OnCreate = FormCreate
  PixelsPerInch = 96
  TextHeight = 14
  object StatusBar1: TStatusBar
    Left = 0
    Top = 458
    Width = 760
    Height = 22
    Panels = <>
    SimplePanel = True
    SimpleText = 'Harbour of Nyholm'
  end
  object MainMenu1: TMainMenu
    Left = 24
    Top = 16
    object MnuPlan: TMenuItem
      Caption = '&Plan'
      object ItemBerths: TMenuItem
        Caption = '&Berths'
        Hint = 'Which ship lies where'
        ShortCut = 16450
        OnClick = ItemBerthsClick
      end
      object ItemCrew: TMenuItem
        Caption = '&Crew'
        Hint = 'Who is on duty'
        ShortCut = 16459
        OnClick = ItemCrewClick
      end
      object ItemLine1: TMenuItem
        Caption = '-'
      end
      object ItemExit: TMenuItem
        Caption = 'E&xit'
        Hint = 'Close the harbour planning'
        ShortCut = 32883
        OnClick = ItemExitClick
      end
    end
    object MnuLanguage: TMenuItem
      Caption = '&Language'
    end
    object MnuWindow: TMenuItem
      Caption = '&Window'
      object ItemCascade: TMenuItem
        Caption = '&Cascade'
        Hint = 'Lay the windows over each other'
        OnClick = ItemCascadeClick
      end
      object ItemTile: TMenuItem
        Caption = '&Tile'
        Hint = 'Lay the windows side by side'
        OnClick = ItemTileClick
      end
      object ItemArrange: TMenuItem
        Caption = '&Arrange icons'
        Hint = 'Put the minimized windows in a row'
        OnClick = ItemArrangeClick
      end
    end
  end
  object TranslatorSwedish: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1053
    Translate = False
    TranslateEmpty = False
    Left = 24
    Top = 80
    Storage = 0
  end
  object TranslatorGerman: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1031
    Translate = False
    TranslateEmpty = False
    Left = 88
    Top = 80
    Storage = 0
  end
  object TranslatorJapanese: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1041
    Translate = False
    TranslateEmpty = False
    Left = 152
    Top = 80
    Storage = 0
  end
  object TranslatorArabic: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1025
    Translate = False
    TranslateEmpty = False
    Left = 216
    Top = 80
    Storage = 0
  end
  object Locales: TLocaleTranslator
    AdoptOn = MnuLanguage
    DesignLocale = 'English (United States) 00000409'
    ListFormat = '%2:s (%3:s)'
    Locale = 0
    StartupLocale = 'User default 00000400'
    Translate = True
    Translations.Strings = ()
    Left = 280
    Top = 80
    Storage = 0
  end
end
