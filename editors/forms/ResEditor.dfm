inherited ResEditor: TResEditor
  Caption = 'Resource Editor'
  inherited Notebook: TPageControl
    inherited TabTranslations: TTabSheet
      inherited PanList: TPanel
        inherited LblList: TLabel
          Caption = 'Resource strings to be translated'
        end
        inherited PropList: TListBox
          Hint = 'These are the resource strings to be translated'
        end
      end
      inherited PanBox: TPanel
        inherited PanTranslation: TPanel
          inherited EdtTranslation: TMemo
            Hint = 'Edit the translation. Use PageUp/PageDown to move between strings'
          end
        end
        inherited PanOriginal: TPanel
          inherited LblOrgTranslation: TLabel
            Caption = 'Original resource string'
          end
        end
      end
    end
    object TabVCL: TTabSheet [1]
      Caption = 'VCL'
      ImageIndex = 5
      object LblModules: TLabel
        Left = 8
        Top = 8
        Width = 600
        Height = 14
        Anchors = [akLeft, akTop, akRight]
        AutoSize = False
        Caption = 'Resource Modules'
        FocusControl = ModuleList
      end
      object LblResStrings: TLabel
        Left = 8
        Top = 124
        Width = 600
        Height = 14
        Anchors = [akLeft, akTop, akRight]
        AutoSize = False
        Caption = 'Resource Strings in module'
        FocusControl = ResStringList
      end
      object ModuleList: TListBox
        Left = 8
        Top = 28
        Width = 600
        Height = 84
        Hint = 'These are the modules that are loaded'
        Anchors = [akLeft, akTop, akRight]
        BiDiMode = bdLeftToRight
        ItemHeight = 14
        ParentBiDiMode = False
        TabOrder = 0
        OnClick = ModuleListClick
      end
      object ResStringList: TListBox
        Left = 8
        Top = 144
        Width = 600
        Height = 174
        Hint = 'These are the resource strings of the selected module'
        Style = lbOwnerDrawFixed
        Anchors = [akLeft, akTop, akRight, akBottom]
        BiDiMode = bdLeftToRight
        ItemHeight = 16
        ParentBiDiMode = False
        Sorted = True
        TabOrder = 1
        OnDrawItem = ResStringListDrawItem
      end
      object BtnInclude: TButton
        Left = 8
        Top = 326
        Width = 104
        Height = 25
        Hint = 'Include the strings of the module in the translation list.'
        Anchors = [akLeft, akBottom]
        Caption = 'Include'
        Enabled = False
        TabOrder = 2
        OnClick = BtnIncludeClick
      end
    end
    inherited TabOptions: TTabSheet
      inherited LblLocalized: TLabel
        Caption = 'Nr of strings localized:'
      end
      inherited CkxMove: TCheckBox
        Caption = 'PageUp/PageDown moves to next untranslated string'
      end
    end
    inherited TabDictionary: TTabSheet
      inherited LblTranslate: TLabel
        Caption = 'Translate strings using the selected dictionary'
      end
      inherited LblLoad: TLabel
        Caption = 'Load strings from an external textfile.'
      end
      inherited LblSave: TLabel
        Caption = 'Save current strings to an external textfile.'
      end
    end
  end
end
