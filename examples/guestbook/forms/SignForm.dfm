object SignForm: TSignForm
  Left = 640
  Top = 360
  BorderStyle = bsDialog
  Caption = 'Sign the Guest Book'
  ClientHeight = 212
  ClientWidth = 336
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = 'Tahoma'
  Font.Style = []
  Position = poMainFormCenter
  PixelsPerInch = 96
  TextHeight = 14
  object LblName: TLabel
    Left = 16
    Top = 12
    Width = 304
    Height = 16
    AutoSize = False
    Caption = '&Name:'
    FocusControl = EdtName
  end
  object LblMessage: TLabel
    Left = 16
    Top = 60
    Width = 304
    Height = 16
    AutoSize = False
    Caption = '&Message:'
    FocusControl = MemMessage
  end
  object EdtName: TEdit
    Left = 16
    Top = 30
    Width = 304
    Height = 22
    TabOrder = 0
  end
  object MemMessage: TMemo
    Left = 16
    Top = 78
    Width = 304
    Height = 80
    TabOrder = 1
  end
  object BtnSign: TButton
    Left = 88
    Top = 172
    Width = 112
    Height = 27
    Caption = '&Sign'
    Default = True
    TabOrder = 2
    OnClick = BtnSignClick
  end
  object BtnCancel: TButton
    Left = 208
    Top = 172
    Width = 112
    Height = 27
    Cancel = True
    Caption = 'Cancel'
    ModalResult = 2
    TabOrder = 3
  end
end
