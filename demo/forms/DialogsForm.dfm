object DialogsForm: TDialogsForm
  Left = 280
  Top = 150
  BorderStyle = bsDialog
  Caption = 'Dialogs of the system'
  ClientHeight = 284
  ClientWidth = 560
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = 'Tahoma'
  Font.Style = []
  ParentBiDiMode = False
  Position = poMainFormCenter
  PixelsPerInch = 96
  TextHeight = 14
  object GrpFiles: TGroupBox
    Left = 12
    Top = 8
    Width = 264
    Height = 64
    Caption = 'Files'
    TabOrder = 0
    object BtnOpen: TButton
      Left = 12
      Top = 24
      Width = 116
      Height = 27
      Caption = '&Open...'
      TabOrder = 0
      OnClick = BtnOpenClick
    end
    object BtnSave: TButton
      Left = 136
      Top = 24
      Width = 116
      Height = 27
      Caption = '&Save as...'
      TabOrder = 1
      OnClick = BtnSaveClick
    end
  end
  object GrpLook: TGroupBox
    Left = 284
    Top = 8
    Width = 264
    Height = 64
    Caption = 'Appearance'
    TabOrder = 1
    object BtnFont: TButton
      Left = 12
      Top = 24
      Width = 116
      Height = 27
      Caption = '&Font...'
      TabOrder = 0
      OnClick = BtnFontClick
    end
    object BtnColor: TButton
      Left = 136
      Top = 24
      Width = 116
      Height = 27
      Caption = '&Color...'
      TabOrder = 1
      OnClick = BtnColorClick
    end
  end
  object GrpPrint: TGroupBox
    Left = 12
    Top = 80
    Width = 264
    Height = 64
    Caption = 'Printing'
    TabOrder = 2
    object BtnPrint: TButton
      Left = 12
      Top = 24
      Width = 116
      Height = 27
      Caption = '&Print...'
      TabOrder = 0
      OnClick = BtnPrintClick
    end
    object BtnSetup: TButton
      Left = 136
      Top = 24
      Width = 116
      Height = 27
      Caption = 'Set &up...'
      TabOrder = 1
      OnClick = BtnSetupClick
    end
  end
  object GrpText: TGroupBox
    Left = 284
    Top = 80
    Width = 264
    Height = 64
    Caption = 'Text'
    TabOrder = 3
    object BtnFind: TButton
      Left = 12
      Top = 24
      Width = 116
      Height = 27
      Caption = 'Fi&nd...'
      TabOrder = 0
      OnClick = BtnFindClick
    end
    object BtnReplace: TButton
      Left = 136
      Top = 24
      Width = 116
      Height = 27
      Caption = '&Replace...'
      TabOrder = 1
      OnClick = BtnReplaceClick
    end
  end
  object MemText: TMemo
    Left = 12
    Top = 156
    Width = 536
    Height = 116
    HideSelection = False
    Lines.Strings = (
      'The ferry to Stora Rev leaves from pier A1.'
      'Tickets are sold until ten minutes before.')
    TabOrder = 4
  end
  object DlgOpen: TOpenDialog
    DefaultExt = 'txt'
    Filter = 'Texts (*.txt)|*.txt|All files (*.*)|*.*'
    Options = [ofHideReadOnly, ofFileMustExist, ofEnableSizing]
    Left = 24
    Top = 232
  end
  object DlgSave: TSaveDialog
    DefaultExt = 'txt'
    Filter = 'Texts (*.txt)|*.txt|All files (*.*)|*.*'
    Options = [ofOverwritePrompt, ofHideReadOnly, ofEnableSizing]
    Left = 88
    Top = 232
  end
  object DlgFont: TFontDialog
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clWindowText
    Font.Height = -12
    Font.Name = 'Tahoma'
    Font.Style = []
    Left = 152
    Top = 232
  end
  object DlgColor: TColorDialog
    Color = clWindow
    Options = [cdFullOpen]
    Left = 216
    Top = 232
  end
  object DlgPrint: TPrintDialog
    MaxPage = 9
    MinPage = 1
    Options = [poPageNums]
    Left = 280
    Top = 232
  end
  object DlgSetup: TPrinterSetupDialog
    Left = 344
    Top = 232
  end
  object DlgFind: TFindDialog
    OnFind = DlgFindFind
    Left = 408
    Top = 232
  end
  object DlgReplace: TReplaceDialog
    OnFind = DlgFindFind
    OnReplace = DlgReplaceReplace
    Left = 472
    Top = 232
  end
  object TranslatorSwedish: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1053
    Translate = False
    TranslateEmpty = False
    Left = 24
    Top = 200
    Storage = 0
  end
  object TranslatorGerman: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1031
    Translate = False
    TranslateEmpty = False
    Left = 88
    Top = 200
    Storage = 0
  end
  object TranslatorJapanese: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1041
    Translate = False
    TranslateEmpty = False
    Left = 152
    Top = 200
    Storage = 0
  end
  object TranslatorArabic: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1025
    Translate = False
    TranslateEmpty = False
    Left = 216
    Top = 200
    Storage = 0
  end
  object DialogsSwedish: TCommonDialogTranslator
    FileName = 'demo.lng'
    Locale = 1053
    Translate = False
    Left = 280
    Top = 200
    Storage = ()
  end
  object DialogsGerman: TCommonDialogTranslator
    FileName = 'demo.lng'
    Locale = 1031
    Translate = False
    Left = 344
    Top = 200
    Storage = ()
  end
end
