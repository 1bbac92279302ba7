object ObxWizard: TObxWizard
  Left = 200
  Top = 120
  BorderIcons = [biSystemMenu, biMaximize]
  Caption = 'Orbilex Expert'
  ClientHeight = 440
  ClientWidth = 640
  Color = clBtnFace
  Constraints.MinHeight = 460
  Constraints.MinWidth = 600
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = 'Tahoma'
  Font.Style = []
  Position = poScreenCenter
  PixelsPerInch = 96
  TextHeight = 14
  object Notebook: TNotebook
    Left = 8
    Top = 8
    Width = 624
    Height = 388
    Anchors = [akLeft, akTop, akRight, akBottom]
    TabOrder = 0
    object TPage
      Left = 0
      Top = 0
      Width = 624
      Height = 388
      Caption = 'Main'
      object PanMain: TPanel
        Left = 0
        Top = 0
        Width = 624
        Height = 388
        Align = alClient
        BevelOuter = bvNone
        TabOrder = 0
        object LblMainTitle: TLabel
          Left = 8
          Top = 2
          Width = 608
          Height = 20
          Anchors = [akLeft, akTop, akRight]
          AutoSize = False
          Caption = 'Globalize a project'
          Font.Charset = DEFAULT_CHARSET
          Font.Color = clWindowText
          Font.Height = -15
          Font.Name = 'Tahoma'
          Font.Style = [fsBold]
          ParentFont = False
        end
        object StartNote: TPageControl
          Left = 8
          Top = 30
          Width = 608
          Height = 350
          ActivePage = TabStart
          Anchors = [akLeft, akTop, akRight, akBottom]
          TabOrder = 0
          object TabStart: TTabSheet
            Caption = 'Start'
            Height = 305
            Width = 600
            object LblProject: TLabel
              Left = 16
              Top = 14
              Width = 568
              Height = 14
              Anchors = [akLeft, akTop, akRight]
              AutoSize = False
              Caption = 'Project'
            end
            object LblRadio1: TLabel
              Left = 34
              Top = 140
              Width = 550
              Height = 30
              Anchors = [akLeft, akTop, akRight]
              AutoSize = False
              Caption = 
                'Places translators on the forms and fills them with the texts fo' +
                'und. Translations that are there are kept.'
              WordWrap = True
            end
            object LblRadio2: TLabel
              Left = 34
              Top = 198
              Width = 550
              Height = 30
              Anchors = [akLeft, akTop, akRight]
              AutoSize = False
              Caption = 
                'Writes a dictionary for each language, to be given to translator' +
                's.'
              WordWrap = True
            end
            object LblRadio3: TLabel
              Left = 34
              Top = 256
              Width = 550
              Height = 30
              Anchors = [akLeft, akTop, akRight]
              AutoSize = False
              Caption = 
                'Takes translations over from the dictionaries that translators h' +
                'ave returned.'
              WordWrap = True
            end
            object PnlProjectName: TPanel
              Left = 16
              Top = 32
              Width = 568
              Height = 26
              Alignment = taLeftJustify
              Anchors = [akLeft, akTop, akRight]
              BevelOuter = bvLowered
              BiDiMode = bdLeftToRight
              ParentBiDiMode = False
              TabOrder = 0
            end
            object BtnProject: TButton
              Left = 16
              Top = 68
              Width = 170
              Height = 25
              Caption = '&Open project...'
              TabOrder = 1
              OnClick = BtnProjectClick
            end
            object BtnFolder: TButton
              Left = 196
              Top = 68
              Width = 170
              Height = 25
              Caption = 'Open &folder...'
              TabOrder = 2
              OnClick = BtnFolderClick
            end
            object Radio1: TRadioButton
              Left = 16
              Top = 118
              Width = 568
              Height = 18
              Anchors = [akLeft, akTop, akRight]
              Caption = '&Globalize the project, or bring it up to date'
              Checked = True
              TabOrder = 3
              TabStop = True
            end
            object Radio2: TRadioButton
              Left = 16
              Top = 176
              Width = 568
              Height = 18
              Anchors = [akLeft, akTop, akRight]
              Caption = '&Prepare project for localization'
              Enabled = False
              TabOrder = 4
            end
            object Radio3: TRadioButton
              Left = 16
              Top = 234
              Width = 568
              Height = 18
              Anchors = [akLeft, akTop, akRight]
              Caption = '&Apply external localizations on the project'
              Enabled = False
              TabOrder = 5
            end
          end
          object TabChoices: TTabSheet
            Caption = 'Contents'
            Height = 305
            ImageIndex = 1
            Width = 600
            object LblMainForm: TLabel
              Left = 16
              Top = 136
              Width = 568
              Height = 14
              Anchors = [akLeft, akTop, akRight]
              AutoSize = False
              Caption = 'Main form, which &carries the language switch'
              FocusControl = CbxMainForm
            end
            object LblSelector: TLabel
              Left = 16
              Top = 192
              Width = 568
              Height = 14
              Anchors = [akLeft, akTop, akRight]
              AutoSize = False
              Caption = 'Language &selector: a menu item or list on the main form'
              FocusControl = CbxSelector
            end
            object CkxForms: TCheckBox
              Left = 16
              Top = 16
              Width = 568
              Height = 18
              Anchors = [akLeft, akTop, akRight]
              Caption = 'Translate &forms and their components'
              Checked = True
              State = cbChecked
              TabOrder = 0
            end
            object CkxScanForms: TCheckBox
              Left = 16
              Top = 44
              Width = 568
              Height = 18
              Anchors = [akLeft, akTop, akRight]
              Caption = 'Scan for&m files for translatable items'
              Checked = True
              State = cbChecked
              TabOrder = 1
            end
            object CkxResources: TCheckBox
              Left = 16
              Top = 72
              Width = 568
              Height = 18
              Anchors = [akLeft, akTop, akRight]
              Caption = 'Translate &resource strings'
              Checked = True
              State = cbChecked
              TabOrder = 2
            end
            object CkxCommonDlg: TCheckBox
              Left = 16
              Top = 100
              Width = 568
              Height = 18
              Anchors = [akLeft, akTop, akRight]
              Caption = 'Translate common &dialogs and message boxes'
              Checked = True
              State = cbChecked
              TabOrder = 3
            end
            object CbxMainForm: TComboBox
              Left = 16
              Top = 154
              Width = 320
              Height = 22
              Style = csDropDownList
              BiDiMode = bdLeftToRight
              ItemHeight = 14
              ParentBiDiMode = False
              TabOrder = 4
              OnChange = CbxMainFormChange
            end
            object CbxSelector: TComboBox
              Left = 16
              Top = 210
              Width = 320
              Height = 22
              Style = csDropDownList
              ItemHeight = 14
              TabOrder = 5
            end
          end
          object TabStorage: TTabSheet
            Caption = 'Storage'
            Height = 305
            ImageIndex = 2
            Width = 600
            object LblFormStorage: TLabel
              Left = 34
              Top = 76
              Width = 550
              Height = 14
              Anchors = [akLeft, akTop, akRight]
              AutoSize = False
              Caption = 'Fi&le name, in the folder of the project'
              FocusControl = EdtFormStorage
            end
            object LblStorage: TLabel
              Left = 16
              Top = 136
              Width = 568
              Height = 30
              Anchors = [akLeft, akTop, akRight]
              AutoSize = False
              Caption = 'Translators that the project has already keep their storage.'
              WordWrap = True
            end
            object RadioStorage1: TRadioButton
              Left = 16
              Top = 16
              Width = 568
              Height = 18
              Anchors = [akLeft, akTop, akRight]
              Caption = 'Store translations in the &forms'
              Checked = True
              TabOrder = 0
              TabStop = True
              OnClick = RadioStorage1Click
            end
            object RadioStorage2: TRadioButton
              Left = 16
              Top = 46
              Width = 568
              Height = 18
              Anchors = [akLeft, akTop, akRight]
              Caption = 'Store translations in an &external text file'
              TabOrder = 1
              OnClick = RadioStorage1Click
            end
            object EdtFormStorage: TEdit
              Left = 34
              Top = 94
              Width = 320
              Height = 22
              BiDiMode = bdLeftToRight
              Color = clBtnFace
              ParentBiDiMode = False
              TabOrder = 2
              TabStop = False
              Text = 'translations.lng'
              OnClick = RadioStorage1Click
              OnEnter = RadioStorage1Click
            end
          end
        end
      end
    end
    object TPage
      Left = 0
      Top = 0
      Width = 624
      Height = 388
      Caption = 'Found'
      object PanFound: TPanel
        Left = 0
        Top = 0
        Width = 624
        Height = 388
        Align = alClient
        BevelOuter = bvNone
        TabOrder = 0
        object LblFoundTitle: TLabel
          Left = 8
          Top = 2
          Width = 608
          Height = 20
          Anchors = [akLeft, akTop, akRight]
          AutoSize = False
          Caption = 'What was found'
          Font.Charset = DEFAULT_CHARSET
          Font.Color = clWindowText
          Font.Height = -15
          Font.Name = 'Tahoma'
          Font.Style = [fsBold]
          ParentFont = False
        end
        object LblFoundAbout: TLabel
          Left = 8
          Top = 26
          Width = 608
          Height = 14
          Anchors = [akLeft, akTop, akRight]
          AutoSize = False
          Caption = 
            'These forms and units have texts to translate. Nothing has been ' +
            'changed yet.'
          WordWrap = True
        end
        object PanLists: TPanel
          Left = 8
          Top = 46
          Width = 608
          Height = 312
          Anchors = [akLeft, akTop, akRight, akBottom]
          BevelOuter = bvNone
          TabOrder = 0
          object LvwFound: TListView
            Left = 0
            Top = 0
            Width = 608
            Height = 222
            Align = alClient
            Columns = <
              item
                Caption = 'Form or unit'
                Width = 150
              end
              item
                Caption = 'Kind'
                Width = 90
              end
              item
                Alignment = taRightJustify
                Caption = 'Texts'
                Width = 76
              end
              item
                Caption = 'Dialogs'
                Width = 130
              end
              item
                Caption = 'File'
                Width = 154
              end>
            HideSelection = False
            ReadOnly = True
            RowSelect = True
            TabOrder = 0
            ViewStyle = vsReport
          end
          object PanErrors: TPanel
            Left = 0
            Top = 222
            Width = 608
            Height = 90
            Align = alBottom
            BevelOuter = bvNone
            TabOrder = 1
            Visible = False
            object LblErrors: TLabel
              Left = 0
              Top = 6
              Width = 608
              Height = 14
              Anchors = [akLeft, akTop, akRight]
              AutoSize = False
              Caption = '&Errors: they must be put right first'
              FocusControl = MemErrors
            end
            object MemErrors: TMemo
              Left = 0
              Top = 24
              Width = 608
              Height = 66
              Anchors = [akLeft, akTop, akRight, akBottom]
              BiDiMode = bdLeftToRight
              Color = clBtnFace
              ParentBiDiMode = False
              ReadOnly = True
              ScrollBars = ssBoth
              TabOrder = 0
              WordWrap = False
            end
          end
        end
        object LblFound: TLabel
          Left = 8
          Top = 366
          Width = 608
          Height = 14
          Anchors = [akLeft, akRight, akBottom]
          AutoSize = False
        end
      end
    end
    object TPage
      Left = 0
      Top = 0
      Width = 624
      Height = 388
      Caption = 'Languages'
      object PanLanguages: TPanel
        Left = 0
        Top = 0
        Width = 624
        Height = 388
        Align = alClient
        BevelOuter = bvNone
        TabOrder = 0
        object LblLanguagesTitle: TLabel
          Left = 8
          Top = 2
          Width = 608
          Height = 20
          Anchors = [akLeft, akTop, akRight]
          AutoSize = False
          Caption = 'Languages'
          Font.Charset = DEFAULT_CHARSET
          Font.Color = clWindowText
          Font.Height = -15
          Font.Name = 'Tahoma'
          Font.Style = [fsBold]
          ParentFont = False
        end
        object LblOwnLocale: TLabel
          Left = 8
          Top = 32
          Width = 608
          Height = 14
          Anchors = [akLeft, akTop, akRight]
          AutoSize = False
          Caption = 'The project is &written in'
          FocusControl = CbxOwnLocale
        end
        object LblLocales: TLabel
          Left = 8
          Top = 84
          Width = 608
          Height = 14
          Anchors = [akLeft, akTop, akRight]
          AutoSize = False
          Caption = 'It is &translated into'
          FocusControl = LstLocales
        end
        object LblChosen: TLabel
          Left = 8
          Top = 348
          Width = 608
          Height = 32
          Anchors = [akLeft, akRight, akBottom]
          AutoSize = False
          WordWrap = True
        end
        object CbxOwnLocale: TComboBox
          Left = 8
          Top = 50
          Width = 320
          Height = 22
          Style = csDropDownList
          BiDiMode = bdLeftToRight
          DropDownCount = 16
          ItemHeight = 14
          ParentBiDiMode = False
          TabOrder = 0
        end
        object LstLocales: TCheckListBox
          Left = 8
          Top = 102
          Width = 608
          Height = 238
          Anchors = [akLeft, akTop, akRight, akBottom]
          BiDiMode = bdLeftToRight
          ItemHeight = 16
          ParentBiDiMode = False
          TabOrder = 1
          OnClickCheck = LstLocalesClickCheck
        end
      end
    end
    object TPage
      Left = 0
      Top = 0
      Width = 624
      Height = 388
      Caption = 'Dictionaries'
      object PanDictionaries: TPanel
        Left = 0
        Top = 0
        Width = 624
        Height = 388
        Align = alClient
        BevelOuter = bvNone
        TabOrder = 0
        object LblDictionariesTitle: TLabel
          Left = 8
          Top = 2
          Width = 608
          Height = 20
          Anchors = [akLeft, akTop, akRight]
          AutoSize = False
          Caption = 'Dictionaries'
          Font.Charset = DEFAULT_CHARSET
          Font.Color = clWindowText
          Font.Height = -15
          Font.Name = 'Tahoma'
          Font.Style = [fsBold]
          ParentFont = False
        end
        object LblFolder: TLabel
          Left = 8
          Top = 32
          Width = 608
          Height = 14
          Anchors = [akLeft, akTop, akRight]
          AutoSize = False
          Caption = 'F&older of the dictionaries'
          FocusControl = EdtFolder
        end
        object LblExport: TLabel
          Left = 8
          Top = 84
          Width = 608
          Height = 14
          Anchors = [akLeft, akTop, akRight]
          AutoSize = False
          Caption = 'Dictionaries to be &written'
          FocusControl = LstDictionaries
        end
        object LblImport: TLabel
          Left = 8
          Top = 84
          Width = 608
          Height = 14
          Anchors = [akLeft, akTop, akRight]
          AutoSize = False
          Caption = 'Dictionaries to be &taken over'
          FocusControl = LstDictionaries
        end
        object EdtFolder: TEdit
          Left = 8
          Top = 50
          Width = 608
          Height = 22
          Anchors = [akLeft, akTop, akRight]
          BiDiMode = bdLeftToRight
          ParentBiDiMode = False
          TabOrder = 0
          OnChange = EdtFolderChange
        end
        object LstDictionaries: TCheckListBox
          Left = 8
          Top = 102
          Width = 608
          Height = 246
          Anchors = [akLeft, akTop, akRight, akBottom]
          BiDiMode = bdLeftToRight
          ItemHeight = 16
          ParentBiDiMode = False
          TabOrder = 1
        end
        object BtnAdd: TButton
          Left = 8
          Top = 355
          Width = 170
          Height = 25
          Anchors = [akLeft, akBottom]
          Caption = '&Add files...'
          TabOrder = 2
          OnClick = BtnAddClick
        end
      end
    end
    object TPage
      Left = 0
      Top = 0
      Width = 624
      Height = 388
      Caption = 'Progress'
      object PanProgress: TPanel
        Left = 0
        Top = 0
        Width = 624
        Height = 388
        Align = alClient
        BevelOuter = bvNone
        TabOrder = 0
        object LblProgressTitle: TLabel
          Left = 8
          Top = 2
          Width = 608
          Height = 20
          Anchors = [akLeft, akTop, akRight]
          AutoSize = False
          Caption = 'At work'
          Font.Charset = DEFAULT_CHARSET
          Font.Color = clWindowText
          Font.Height = -15
          Font.Name = 'Tahoma'
          Font.Style = [fsBold]
          ParentFont = False
        end
        object LblProgressAbout: TLabel
          Left = 8
          Top = 26
          Width = 608
          Height = 30
          Anchors = [akLeft, akTop, akRight]
          AutoSize = False
          Caption = 
            'Nothing is changed before all new contents have been written. Ca' +
            'ncel leaves everything as it was.'
          WordWrap = True
        end
        object LblProgress: TLabel
          Left = 8
          Top = 90
          Width = 608
          Height = 14
          Anchors = [akLeft, akTop, akRight]
          AutoSize = False
        end
        object PrgWork: TProgressBar
          Left = 8
          Top = 112
          Width = 608
          Height = 18
          Anchors = [akLeft, akTop, akRight]
          TabOrder = 0
        end
      end
    end
    object TPage
      Left = 0
      Top = 0
      Width = 624
      Height = 388
      Caption = 'Result'
      object PanResult: TPanel
        Left = 0
        Top = 0
        Width = 624
        Height = 388
        Align = alClient
        BevelOuter = bvNone
        TabOrder = 0
        object LblResultTitle: TLabel
          Left = 8
          Top = 2
          Width = 608
          Height = 20
          Anchors = [akLeft, akTop, akRight]
          AutoSize = False
          Caption = 'What was changed'
          Font.Charset = DEFAULT_CHARSET
          Font.Color = clWindowText
          Font.Height = -15
          Font.Name = 'Tahoma'
          Font.Style = [fsBold]
          ParentFont = False
        end
        object MemResult: TMemo
          Left = 8
          Top = 32
          Width = 608
          Height = 348
          Anchors = [akLeft, akTop, akRight, akBottom]
          Color = clBtnFace
          ReadOnly = True
          ScrollBars = ssBoth
          TabOrder = 0
          WordWrap = False
        end
      end
    end
  end
  object BtnHelp: TButton
    Left = 8
    Top = 406
    Width = 90
    Height = 25
    Anchors = [akLeft, akBottom]
    Caption = '&Help'
    TabOrder = 1
    OnClick = BtnHelpClick
  end
  object BtnBack: TButton
    Left = 346
    Top = 406
    Width = 90
    Height = 25
    Anchors = [akRight, akBottom]
    Caption = '< &Back'
    TabOrder = 2
    OnClick = BtnBackClick
  end
  object BtnNext: TButton
    Left = 444
    Top = 406
    Width = 90
    Height = 25
    Anchors = [akRight, akBottom]
    Caption = '&Next >'
    Default = True
    TabOrder = 3
    OnClick = BtnNextClick
  end
  object BtnFinish: TButton
    Left = 444
    Top = 406
    Width = 90
    Height = 25
    Anchors = [akRight, akBottom]
    Caption = 'F&inish'
    TabOrder = 4
    Visible = False
    OnClick = BtnFinishClick
  end
  object BtnCancel: TButton
    Left = 542
    Top = 406
    Width = 90
    Height = 25
    Anchors = [akRight, akBottom]
    Cancel = True
    Caption = 'Cancel'
    TabOrder = 5
    OnClick = BtnCancelClick
  end
  object DlgProject: TOpenDialog
    DefaultExt = 'obp'
    Filter = 'Projects (*.obp)|*.obp|All files (*.*)|*.*'
    Options = [ofHideReadOnly, ofPathMustExist, ofFileMustExist, ofEnableSizing]
    Left = 120
    Top = 400
  end
  object DlgDictionaries: TOpenDialog
    DefaultExt = 'txt'
    Filter = 'Dictionary (*.txt)|*.txt|All files (*.*)|*.*'
    Options = [ofHideReadOnly, ofAllowMultiSelect, ofPathMustExist, ofFileMustExist, ofEnableSizing]
    Left = 160
    Top = 400
  end
end
