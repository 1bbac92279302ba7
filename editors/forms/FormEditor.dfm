inherited FormEditor: TFormEditor
  Caption = 'Form Translations Editor'
  inherited Notebook: TPageControl
    object TabForm: TTabSheet [1]
      Caption = 'Form'
      Height = 359
      ImageIndex = 5
      Width = 616
      object PropNotebook: TPageControl
        Left = 8
        Top = 8
        Width = 600
        Height = 343
        ActivePage = TabBrowser
        Anchors = [akLeft, akTop, akRight, akBottom]
        TabOrder = 0
        object TabBrowser: TTabSheet
          Caption = 'Browser'
          Height = 314
          Width = 592
          object LblAvail: TLabel
            Left = 8
            Top = 8
            Width = 336
            Height = 14
            Anchors = [akLeft, akTop, akRight]
            AutoSize = False
            Caption = 'Properties available'
            FocusControl = ListAvail
          end
          object ListAvail: TListBox
            Left = 8
            Top = 28
            Width = 336
            Height = 278
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
            Left = 356
            Top = 22
            Width = 228
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
          object GrpCommon: TGroupBox
            Left = 356
            Top = 122
            Width = 228
            Height = 92
            Anchors = [akTop, akRight]
            Caption = 'Common properties'
            TabOrder = 2
            object BtnSelect: TButton
              Left = 14
              Top = 24
              Width = 104
              Height = 25
              Hint = 'Select the most common properties in the list'
              Caption = 'Select'
              TabOrder = 0
              OnClick = BtnSelectClick
            end
            object CkxEmpty: TCheckBox
              Left = 14
              Top = 60
              Width = 206
              Height = 18
              Caption = 'Select empty properties'
              TabOrder = 1
            end
          end
        end
        object TabCommon: TTabSheet
          Caption = 'Common'
          Height = 314
          ImageIndex = 1
          Width = 592
          object LblCommon: TLabel
            Left = 8
            Top = 8
            Width = 336
            Height = 14
            Anchors = [akLeft, akTop, akRight]
            AutoSize = False
            Caption = 'Common properties'
            FocusControl = CommonPropList
          end
          object CommonPropList: TListBox
            Left = 8
            Top = 28
            Width = 336
            Height = 278
            Anchors = [akLeft, akTop, akRight, akBottom]
            BiDiMode = bdLeftToRight
            ItemHeight = 14
            Items.Strings = (
              'Caption'
              'Caption[*]'
              'Captions[*]'
              'Columns.Items[*].Title'
              'DisplayLabel'
              'FileName'
              'Hint'
              'Hints[*]'
              'Items[*]'
              'Lines[*]'
              'Pages[*]'
              'Panels.Items[*].Text'
              'SystemMenuClose'
              'SystemMenuMaximize'
              'SystemMenuMinimize'
              'SystemMenuMove'
              'SystemMenuNextWindow'
              'SystemMenuPrevWindow'
              'SystemMenuRestore'
              'SystemMenuSize'
              'SystemMenuTaskList'
              'Tabs[*]'
              'Text'
              'Translations[*]')
            ParentBiDiMode = False
            Sorted = True
            TabOrder = 0
            OnClick = CommonPropListClick
          end
          object BtnAddCommon: TButton
            Left = 356
            Top = 28
            Width = 104
            Height = 25
            Hint = 'Add a common property to the list'
            Anchors = [akTop, akRight]
            Caption = 'Add'
            TabOrder = 1
            OnClick = BtnAddCommonClick
          end
          object BtnDeleteCommon: TButton
            Left = 356
            Top = 60
            Width = 104
            Height = 25
            Hint = 'Deletes the selected common property'
            Anchors = [akTop, akRight]
            Caption = 'Delete'
            TabOrder = 2
            OnClick = BtnDeleteCommonClick
          end
          object BtnDefault: TButton
            Left = 356
            Top = 92
            Width = 104
            Height = 25
            Hint = 'Restore the original common properties'
            Anchors = [akTop, akRight]
            Caption = 'Default'
            TabOrder = 3
            OnClick = BtnDefaultClick
          end
          object BtnSet: TButton
            Left = 356
            Top = 124
            Width = 104
            Height = 25
            Hint = 'Save the current list of common properties to the registry'
            Anchors = [akTop, akRight]
            Caption = 'Set'
            TabOrder = 4
            OnClick = BtnSetClick
          end
        end
      end
    end
  end
end
