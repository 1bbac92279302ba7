object MainForm: TMainForm
  Left = 640
  Top = 60
  Caption = 'Guest Book'
  ClientHeight = 264
  ClientWidth = 480
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = 'Tahoma'
  Font.Style = []
  Menu = MainMenu1
  Position = poScreenCenter
  ShowHint = True
  OnCreate = FormCreate
  PixelsPerInch = 96
  TextHeight = 14
  object LblTitle: TLabel
    Left = 16
    Top = 10
    Width = 448
    Height = 28
    AutoSize = False
    Caption = 'Who was here'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -20
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object LblGuests: TLabel
    Left = 16
    Top = 48
    Width = 176
    Height = 16
    AutoSize = False
    Caption = '&Guests:'
    FocusControl = LbxGuests
  end
  object LblMessage: TLabel
    Left = 208
    Top = 48
    Width = 256
    Height = 16
    AutoSize = False
    Caption = '&Message:'
    FocusControl = MemMessage
  end
  object LbxGuests: TListBox
    Left = 16
    Top = 66
    Width = 176
    Height = 144
    ItemHeight = 14
    TabOrder = 0
    OnClick = LbxGuestsClick
  end
  object MemMessage: TMemo
    Left = 208
    Top = 66
    Width = 256
    Height = 144
    ReadOnly = True
    TabOrder = 1
  end
  object BtnSign: TButton
    Left = 16
    Top = 224
    Width = 176
    Height = 27
    Hint = 'Write something into the book'
    Caption = '&Sign the book...'
    TabOrder = 2
    OnClick = ItemSignClick
  end
  object BtnRemove: TButton
    Left = 344
    Top = 224
    Width = 120
    Height = 27
    Caption = '&Remove'
    TabOrder = 3
    OnClick = ItemRemoveClick
  end
  object MainMenu1: TMainMenu
    Left = 384
    Top = 8
    object MnuFile: TMenuItem
      Caption = '&File'
      object ItemSign: TMenuItem
        Caption = '&New entry...'
        ShortCut = 16462
        OnClick = ItemSignClick
      end
      object ItemRemove: TMenuItem
        Caption = '&Remove guest'
        OnClick = ItemRemoveClick
      end
      object ItemLine: TMenuItem
        Caption = '-'
      end
      object ItemExit: TMenuItem
        Caption = 'E&xit'
        OnClick = ItemExitClick
      end
    end
    object MnuLanguage: TMenuItem
      Caption = '&Language'
    end
    object MnuHelp: TMenuItem
      Caption = '&Help'
      object ItemAbout: TMenuItem
        Caption = '&About'
        OnClick = ItemAboutClick
      end
    end
  end
end
