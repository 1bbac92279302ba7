object DesignerForm: TDesignerForm
  Left = 0
  Top = 0
  Caption = 'Orbilex Designer'
  ClientHeight = 680
  ClientWidth = 560
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -11
  Font.Name = 'Tahoma'
  Font.Style = []
  Menu = MainMenu
  PixelsPerInch = 96
  TextHeight = 13
  object TreeSplitter: TSplitter
    Left = 220
    Top = 80
    Height = 461
  end
  object Palette: TTabControl
    Left = 0
    Top = 0
    Width = 620
    Height = 80
    Align = alTop
    TabOrder = 0
    object PaletteBar: TPanel
      Left = 4
      Top = 24
      Width = 612
      Height = 52
      Align = alClient
      BevelOuter = bvNone
      TabOrder = 0
    end
  end
  object LeftPanel: TPanel
    Left = 0
    Top = 80
    Width = 220
    Height = 461
    Align = alLeft
    BevelOuter = bvNone
    TabOrder = 1
    object LblProject: TLabel
      Left = 0
      Top = 0
      Width = 220
      Height = 16
      Align = alTop
      AutoSize = False
      Caption = '&Project:'
      FocusControl = ProjectList
    end
    object LblTree: TLabel
      Left = 0
      Top = 166
      Width = 220
      Height = 16
      Align = alTop
      AutoSize = False
      Caption = '&Components:'
      FocusControl = Tree
    end
    object ProjectList: TListBox
      Left = 0
      Top = 16
      Width = 220
      Height = 150
      Align = alTop
      ItemHeight = 13
      TabOrder = 0
      OnDblClick = ProjectListDblClick
      OnKeyDown = ProjectListKeyDown
    end
    object Tree: TTreeView
      Left = 0
      Top = 182
      Width = 220
      Height = 279
      Align = alClient
      HideSelection = False
      Indent = 19
      ReadOnly = True
      TabOrder = 1
    end
  end
  object InspectorPanel: TPanel
    Left = 223
    Top = 80
    Width = 397
    Height = 461
    Align = alClient
    BevelOuter = bvNone
    TabOrder = 2
    object LblSelected: TLabel
      Left = 0
      Top = 0
      Width = 397
      Height = 16
      Align = alTop
      AutoSize = False
    end
    object InspectorTabs: TTabControl
      Left = 0
      Top = 16
      Width = 397
      Height = 445
      Align = alClient
      TabOrder = 0
      Tabs.Strings = (
        'Properties'
        'Events')
      TabIndex = 0
      OnChange = InspectorTabsChange
    end
  end
  object StatusBar: TStatusBar
    Left = 0
    Top = 541
    Width = 620
    Height = 19
    Panels = <>
    SimplePanel = True
  end
  object MainMenu: TMainMenu
    Left = 40
    Top = 240
    object MnuFile: TMenuItem
      Caption = '&File'
      object MnuNewProject: TMenuItem
        Caption = 'New &project...'
        OnClick = MnuNewProjectClick
      end
      object MnuNewForm: TMenuItem
        Caption = 'New &form...'
        ShortCut = 16462
        OnClick = MnuNewFormClick
      end
      object MnuOpenProject: TMenuItem
        Caption = '&Open project...'
        OnClick = MnuOpenProjectClick
      end
      object MnuOpenFolder: TMenuItem
        Caption = 'Open fol&der...'
        OnClick = MnuOpenFolderClick
      end
      object MnuOpenForm: TMenuItem
        Caption = 'Open fo&rm...'
        ShortCut = 16463
        OnClick = MnuOpenFormClick
      end
      object MnuFileLine1: TMenuItem
        Caption = '-'
      end
      object MnuSave: TMenuItem
        Caption = '&Save'
        ShortCut = 16467
        OnClick = MnuSaveClick
      end
      object MnuSaveAll: TMenuItem
        Caption = 'Save &all'
        OnClick = MnuSaveAllClick
      end
      object MnuClose: TMenuItem
        Caption = '&Close form'
        OnClick = MnuCloseClick
      end
      object MnuFileLine2: TMenuItem
        Caption = '-'
      end
      object MnuExit: TMenuItem
        Caption = 'E&xit'
        OnClick = MnuExitClick
      end
    end
    object MnuEdit: TMenuItem
      Caption = '&Edit'
      object MnuUndo: TMenuItem
        Caption = '&Undo'
        ShortCut = 16474
        OnClick = MnuUndoClick
      end
      object MnuRedo: TMenuItem
        Caption = '&Redo'
        ShortCut = 16473
        OnClick = MnuRedoClick
      end
      object MnuEditLine1: TMenuItem
        Caption = '-'
      end
      object MnuCut: TMenuItem
        Caption = 'Cu&t'
        ShortCut = 16472
        OnClick = MnuCutClick
      end
      object MnuCopy: TMenuItem
        Caption = '&Copy'
        ShortCut = 16451
        OnClick = MnuCopyClick
      end
      object MnuPaste: TMenuItem
        Caption = '&Paste'
        ShortCut = 16470
        OnClick = MnuPasteClick
      end
      object MnuDelete: TMenuItem
        Caption = '&Delete'
        OnClick = MnuDeleteClick
      end
      object MnuSelectAll: TMenuItem
        Caption = 'Select &all'
        OnClick = MnuSelectAllClick
      end
      object MnuEditLine2: TMenuItem
        Caption = '-'
      end
      object MnuToFront: TMenuItem
        Caption = 'Bring to &front'
        OnClick = MnuToFrontClick
      end
      object MnuToBack: TMenuItem
        Caption = 'Send to &back'
        OnClick = MnuToBackClick
      end
    end
    object MnuView: TMenuItem
      Caption = '&View'
      object MnuInspector: TMenuItem
        Caption = '&Inspector'
        OnClick = MnuInspectorClick
      end
      object MnuTree: TMenuItem
        Caption = '&Tree'
        OnClick = MnuTreeClick
      end
    end
    object MnuTools: TMenuItem
      Caption = '&Tools'
      object MnuLoadPackage: TMenuItem
        Caption = '&Load package...'
        OnClick = MnuLoadPackageClick
      end
      object MnuToolsLine: TMenuItem
        Caption = '-'
      end
    end
    object MnuHelp: TMenuItem
      Caption = '&Help'
      object MnuContents: TMenuItem
        Caption = '&Contents'
        ShortCut = 112
        OnClick = MnuContentsClick
      end
      object MnuAbout: TMenuItem
        Caption = '&About'
        OnClick = MnuAboutClick
      end
    end
  end
  object VerbMenu: TPopupMenu
    Left = 80
    Top = 240
  end
  object DlgOpenForm: TOpenDialog
    DefaultExt = 'dfm'
    Filter = 'Forms (*.dfm;*.lfm;*.fmx;*.xfm)|*.dfm;*.lfm;*.fmx;*.xfm|All files|*.*'
    Title = 'Open form'
    Left = 120
    Top = 240
  end
  object DlgSaveForm: TSaveDialog
    DefaultExt = 'dfm'
    Filter = 'Forms (*.dfm)|*.dfm|All files|*.*'
    Title = 'New form'
    Left = 160
    Top = 240
  end
  object DlgOpenProject: TOpenDialog
    DefaultExt = 'obp'
    Filter = 'Projects (*.obp)|*.obp|All files|*.*'
    Title = 'Open project'
    Left = 120
    Top = 280
  end
  object DlgOpenPackage: TOpenDialog
    DefaultExt = 'dll'
    Filter = 'Packages (*.dll;*.so)|*.dll;*.so|All files|*.*'
    Title = 'Load package'
    Left = 200
    Top = 240
  end
  object DlgSaveProject: TSaveDialog
    DefaultExt = 'obp'
    Filter = 'Projects (*.obp)|*.obp|All files|*.*'
    Title = 'New project'
    Left = 160
    Top = 280
  end
end
