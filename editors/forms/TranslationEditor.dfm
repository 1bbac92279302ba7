object TranslationEditor: TTranslationEditor
  Left = 200
  Top = 120
  BorderIcons = [biSystemMenu, biMaximize]
  Caption = 'Translations Editor'
  ClientHeight = 440
  ClientWidth = 640
  Color = clBtnFace
  Constraints.MinHeight = 420
  Constraints.MinWidth = 560
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = 'Tahoma'
  Font.Style = []
  Position = poScreenCenter
  ShowHint = True
  PixelsPerInch = 96
  TextHeight = 14
  object Notebook: TPageControl
    Left = 8
    Top = 8
    Width = 624
    Height = 388
    ActivePage = TabTranslations
    Anchors = [akLeft, akTop, akRight, akBottom]
    TabOrder = 0
    OnChange = NotebookChange
    object TabTranslations: TTabSheet
      Caption = 'Translations'
      Height = 359
      Width = 616
      object SplList: TSplitter
        Left = 288
        Top = 0
        Height = 359
        MinSize = 180
        ResizeStyle = rsUpdate
      end
      object PanList: TPanel
        Left = 0
        Top = 0
        Width = 288
        Height = 359
        Align = alLeft
        BevelOuter = bvNone
        TabOrder = 0
        object LblList: TLabel
          Left = 8
          Top = 8
          Width = 276
          Height = 14
          Anchors = [akLeft, akTop, akRight]
          AutoSize = False
          Caption = 'Properties to be translated'
          FocusControl = PropList
        end
        object PropList: TListBox
          Left = 8
          Top = 28
          Width = 276
          Height = 290
          Hint = 'These are the internationalized properties to be translated'
          Style = lbOwnerDrawFixed
          Anchors = [akLeft, akTop, akRight, akBottom]
          BiDiMode = bdLeftToRight
          ItemHeight = 16
          MultiSelect = True
          ParentBiDiMode = False
          TabOrder = 0
          OnClick = PropListClick
          OnDrawItem = PropListDrawItem
        end
        object BtnRemove: TButton
          Left = 8
          Top = 326
          Width = 90
          Height = 25
          Anchors = [akLeft, akBottom]
          Caption = '&Remove'
          Enabled = False
          TabOrder = 1
          OnClick = BtnRemoveClick
        end
        object BtnNew: TButton
          Left = 106
          Top = 326
          Width = 90
          Height = 25
          Anchors = [akLeft, akBottom]
          Caption = '&New'
          TabOrder = 2
          OnClick = BtnNewClick
        end
      end
      object PanBox: TPanel
        Left = 291
        Top = 0
        Width = 325
        Height = 359
        Align = alClient
        BevelOuter = bvNone
        TabOrder = 1
        object SplBox: TSplitter
          Left = 0
          Top = 196
          Width = 325
          Height = 3
          Cursor = crVSplit
          Align = alBottom
          MinSize = 80
          ResizeStyle = rsUpdate
        end
        object PanTranslation: TPanel
          Left = 0
          Top = 0
          Width = 325
          Height = 196
          Align = alClient
          BevelOuter = bvNone
          TabOrder = 0
          object LblTranslation: TLabel
            Left = 4
            Top = 8
            Width = 313
            Height = 14
            Anchors = [akLeft, akTop, akRight]
            AutoSize = False
            Caption = 'Translation'
            FocusControl = EdtTranslation
          end
          object EdtTranslation: TMemo
            Left = 4
            Top = 28
            Width = 313
            Height = 164
            Hint = 'Edit the translation. Use PageUp/PageDown to move between properties'
            Anchors = [akLeft, akTop, akRight, akBottom]
            BiDiMode = bdLeftToRight
            Color = clBtnFace
            Enabled = False
            ParentBiDiMode = False
            ScrollBars = ssVertical
            TabOrder = 0
            OnExit = EdtTranslationExit
            OnKeyDown = EdtTranslationKeyDown
          end
        end
        object PanOriginal: TPanel
          Left = 0
          Top = 199
          Width = 325
          Height = 160
          Align = alBottom
          BevelOuter = bvNone
          TabOrder = 1
          object LblOrgTranslation: TLabel
            Left = 4
            Top = 4
            Width = 313
            Height = 14
            Anchors = [akLeft, akTop, akRight]
            AutoSize = False
            Caption = 'Original value of property'
            FocusControl = EdtOrgTranslation
          end
          object EdtOrgTranslation: TMemo
            Left = 4
            Top = 24
            Width = 313
            Height = 128
            Anchors = [akLeft, akTop, akRight, akBottom]
            BiDiMode = bdLeftToRight
            Color = clBtnFace
            ParentBiDiMode = False
            ReadOnly = True
            ScrollBars = ssVertical
            TabOrder = 0
          end
        end
      end
    end
    object TabOptions: TTabSheet
      Caption = 'Options'
      Height = 359
      ImageIndex = 1
      Width = 616
      object LblTotal: TLabel
        Left = 16
        Top = 20
        Width = 230
        Height = 14
        AutoSize = False
        Caption = 'Total nr of translations:'
      end
      object LblTotalNr: TLabel
        Left = 260
        Top = 20
        Width = 120
        Height = 14
        AutoSize = False
        Caption = '0'
      end
      object LblLocalized: TLabel
        Left = 16
        Top = 44
        Width = 230
        Height = 14
        AutoSize = False
        Caption = 'Nr of properties localized:'
      end
      object LblLocalizedNr: TLabel
        Left = 260
        Top = 44
        Width = 120
        Height = 14
        AutoSize = False
        Caption = '0'
      end
      object CkxMove: TCheckBox
        Left = 16
        Top = 80
        Width = 584
        Height = 18
        Anchors = [akLeft, akTop, akRight]
        Caption = 'PageUp/PageDown moves to next untranslated property'
        Checked = True
        State = cbChecked
        TabOrder = 0
        OnClick = CkxMoveClick
      end
    end
    object TabFont: TTabSheet
      Caption = 'Font'
      Height = 359
      ImageIndex = 2
      Width = 616
      object GrpEditFont: TGroupBox
        Left = 16
        Top = 16
        Width = 584
        Height = 76
        Anchors = [akLeft, akTop, akRight]
        Caption = 'Edit Font'
        TabOrder = 0
        object LblEditFont: TLabel
          Left = 16
          Top = 34
          Width = 420
          Height = 14
          AutoSize = False
          Caption = 'Tahoma'
        end
        object BtnEditFont: TButton
          Left = 478
          Top = 28
          Width = 90
          Height = 25
          Anchors = [akTop, akRight]
          Caption = 'Select'
          TabOrder = 0
          OnClick = BtnEditFontClick
        end
      end
      object GrpDisplayFont: TGroupBox
        Left = 16
        Top = 108
        Width = 584
        Height = 76
        Anchors = [akLeft, akTop, akRight]
        Caption = 'Display Font'
        TabOrder = 1
        object LblDisplayFont: TLabel
          Left = 16
          Top = 34
          Width = 420
          Height = 14
          AutoSize = False
          Caption = 'Tahoma'
        end
        object BtnDisplayFont: TButton
          Left = 478
          Top = 28
          Width = 90
          Height = 25
          Anchors = [akTop, akRight]
          Caption = 'Select'
          TabOrder = 0
          OnClick = BtnDisplayFontClick
        end
      end
    end
    object TabReading: TTabSheet
      Caption = 'Reading order'
      Height = 359
      ImageIndex = 3
      Width = 616
      object RgpReading: TRadioGroup
        Left = 16
        Top = 16
        Width = 584
        Height = 84
        Anchors = [akLeft, akTop, akRight]
        Caption = 'Reading Order'
        ItemIndex = 1
        Items.Strings = (
          'Right To Left (Arabic, Hebrew)'
          'Left to Right')
        TabOrder = 0
        OnClick = RgpReadingClick
      end
      object GrpIme: TGroupBox
        Left = 16
        Top = 116
        Width = 584
        Height = 92
        Anchors = [akLeft, akTop, akRight]
        Caption = 'Far Eastern Input Method Editors'
        TabOrder = 1
        object LblIme: TLabel
          Left = 16
          Top = 26
          Width = 552
          Height = 54
          Anchors = [akLeft, akTop, akRight]
          AutoSize = False
          Caption =
            'In Far Eastern Windows editions, set the IME functionality in th' +
            'e control panel. Activate the IME with Ctrl+Spacebar.'
          WordWrap = True
        end
      end
    end
    object TabDictionary: TTabSheet
      Caption = 'Dictionary'
      Height = 359
      ImageIndex = 4
      Width = 616
      object LblTranslate: TLabel
        Left = 136
        Top = 26
        Width = 464
        Height = 14
        Anchors = [akLeft, akTop, akRight]
        AutoSize = False
        Caption = 'Translate properties using the selected dictionary'
      end
      object LblLoad: TLabel
        Left = 136
        Top = 66
        Width = 464
        Height = 14
        Anchors = [akLeft, akTop, akRight]
        AutoSize = False
        Caption = 'Load properties from an external textfile.'
      end
      object LblSave: TLabel
        Left = 136
        Top = 106
        Width = 464
        Height = 14
        Anchors = [akLeft, akTop, akRight]
        AutoSize = False
        Caption = 'Save current properties to an external textfile.'
      end
      object LblExport: TLabel
        Left = 136
        Top = 146
        Width = 464
        Height = 14
        Anchors = [akLeft, akTop, akRight]
        AutoSize = False
        Caption = 'Create or update a dictionary with translations'
      end
      object BtnTranslate: TButton
        Left = 16
        Top = 20
        Width = 104
        Height = 25
        Caption = 'Translate'
        TabOrder = 0
        OnClick = BtnTranslateClick
      end
      object BtnLoad: TButton
        Left = 16
        Top = 60
        Width = 104
        Height = 25
        Caption = 'Load'
        TabOrder = 1
        OnClick = BtnLoadClick
      end
      object BtnSave: TButton
        Left = 16
        Top = 100
        Width = 104
        Height = 25
        Caption = 'Save'
        TabOrder = 2
        OnClick = BtnSaveClick
      end
      object BtnExport: TButton
        Left = 16
        Top = 140
        Width = 104
        Height = 25
        Caption = 'Export'
        TabOrder = 3
        OnClick = BtnExportClick
      end
    end
  end
  object BtnOK: TButton
    Left = 444
    Top = 406
    Width = 90
    Height = 25
    Anchors = [akRight, akBottom]
    Caption = '&OK'
    Default = True
    TabOrder = 1
    OnClick = BtnOKClick
  end
  object BtnCancel: TButton
    Left = 542
    Top = 406
    Width = 90
    Height = 25
    Anchors = [akRight, akBottom]
    Cancel = True
    Caption = '&Cancel'
    ModalResult = 2
    TabOrder = 2
  end
  object DlgOpen: TOpenDialog
    DefaultExt = 'txt'
    Filter = 'Dictionary (*.txt)|*.txt|All files (*.*)|*.*'
    Options = [ofHideReadOnly, ofPathMustExist, ofFileMustExist, ofEnableSizing]
    Left = 24
    Top = 400
  end
  object DlgSave: TSaveDialog
    DefaultExt = 'txt'
    Filter = 'Dictionary (*.txt)|*.txt|All files (*.*)|*.*'
    Options = [ofHideReadOnly, ofPathMustExist, ofEnableSizing]
    Left = 64
    Top = 400
  end
  object DlgFont: TFontDialog
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clWindowText
    Font.Height = -12
    Font.Name = 'Tahoma'
    Font.Style = []
    Left = 104
    Top = 400
  end
end
