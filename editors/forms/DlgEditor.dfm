inherited DlgEditor: TDlgEditor
  Caption = 'Common Dialog Translations Editor'
  inherited Notebook: TPageControl
    inherited TabTranslations: TTabSheet
      inherited PanList: TPanel
        inherited LblList: TLabel
          Caption = 'Dialog properties to be translated'
        end
      end
    end
    object TabDialogs: TTabSheet [4]
      Caption = 'Dialogs'
      ImageIndex = 5
      object LblAvail: TLabel
        Left = 8
        Top = 8
        Width = 352
        Height = 14
        Anchors = [akLeft, akTop, akRight]
        AutoSize = False
        Caption = 'Properties available'
        FocusControl = ListAvail
      end
      object ListAvail: TListBox
        Left = 8
        Top = 28
        Width = 352
        Height = 323
        Anchors = [akLeft, akTop, akRight, akBottom]
        BiDiMode = bdLeftToRight
        ItemHeight = 14
        MultiSelect = True
        ParentBiDiMode = False
        ShowHint = True
        Sorted = True
        TabOrder = 0
        OnClick = ListAvailClick
        OnMouseMove = ListAvailMouseMove
      end
      object GrpSelected: TGroupBox
        Left = 372
        Top = 22
        Width = 236
        Height = 88
        Anchors = [akTop, akRight]
        Caption = 'Selected properties'
        TabOrder = 1
        object LblSelected: TLabel
          Left = 14
          Top = 24
          Width = 206
          Height = 14
          AutoSize = False
          Caption = '%s Selected'
        end
        object BtnIncludeProp: TButton
          Left = 14
          Top = 48
          Width = 104
          Height = 25
          Hint = 'Include the selected properties in the translation list.'
          Caption = 'Include'
          Enabled = False
          TabOrder = 0
          OnClick = BtnIncludePropClick
        end
      end
      object BtnRescan: TButton
        Left = 386
        Top = 124
        Width = 104
        Height = 25
        Anchors = [akTop, akRight]
        Caption = 'Rescan'
        TabOrder = 2
        OnClick = BtnRescanClick
      end
    end
  end
end
