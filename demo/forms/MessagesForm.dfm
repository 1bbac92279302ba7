object MessagesForm: TMessagesForm
  Left = 300
  Top = 160
  BorderStyle = bsDialog
  Caption = 'Messages and errors'
  ClientHeight = 263
  ClientWidth = 500
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
  object GrpErrors: TGroupBox
    Left = 12
    Top = 8
    Width = 476
    Height = 64
    Caption = 'Errors of the framework'
    TabOrder = 0
    object BtnNumber: TButton
      Left = 12
      Top = 24
      Width = 144
      Height = 27
      Caption = '&Bad number'
      TabOrder = 0
      OnClick = BtnNumberClick
    end
    object BtnFile: TButton
      Left = 166
      Top = 24
      Width = 144
      Height = 27
      Caption = 'Missing &file'
      TabOrder = 1
      OnClick = BtnFileClick
    end
    object BtnIndex: TButton
      Left = 320
      Top = 24
      Width = 144
      Height = 27
      Caption = '&List index'
      TabOrder = 2
      OnClick = BtnIndexClick
    end
  end
  object GrpBoxes: TGroupBox
    Left = 12
    Top = 80
    Width = 476
    Height = 99
    Caption = 'Message boxes'
    TabOrder = 1
    object BtnWarning: TButton
      Left = 12
      Top = 24
      Width = 144
      Height = 27
      Caption = '&Warning'
      TabOrder = 0
      OnClick = BtnWarningClick
    end
    object BtnError: TButton
      Left = 166
      Top = 24
      Width = 144
      Height = 27
      Caption = '&Error'
      TabOrder = 1
      OnClick = BtnErrorClick
    end
    object BtnInformation: TButton
      Left = 320
      Top = 24
      Width = 144
      Height = 27
      Caption = '&Information'
      TabOrder = 2
      OnClick = BtnInformationClick
    end
    object BtnQuestion: TButton
      Left = 12
      Top = 59
      Width = 144
      Height = 27
      Caption = '&Question'
      TabOrder = 3
      OnClick = BtnQuestionClick
    end
    object BtnToAll: TButton
      Left = 166
      Top = 59
      Width = 144
      Height = 27
      Caption = '&Several at once'
      TabOrder = 4
      OnClick = BtnToAllClick
    end
    object BtnCustom: TButton
      Left = 320
      Top = 59
      Width = 144
      Height = 27
      Caption = '&Custom box'
      TabOrder = 5
      OnClick = BtnCustomClick
    end
  end
  object GrpTexts: TGroupBox
    Left = 12
    Top = 187
    Width = 476
    Height = 64
    Caption = 'Other dialogs'
    TabOrder = 2
    object BtnMessage: TButton
      Left = 12
      Top = 24
      Width = 144
      Height = 27
      Caption = '&Message'
      TabOrder = 0
      OnClick = BtnMessageClick
    end
    object BtnInput: TButton
      Left = 166
      Top = 24
      Width = 144
      Height = 27
      Caption = 'I&nput'
      TabOrder = 1
      OnClick = BtnInputClick
    end
  end
  object TranslatorSwedish: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1053
    Translate = False
    TranslateEmpty = False
    Left = 24
    Top = 8
    Storage = 0
  end
  object TranslatorGerman: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1031
    Translate = False
    TranslateEmpty = False
    Left = 88
    Top = 8
    Storage = 0
  end
  object TranslatorJapanese: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1041
    Translate = False
    TranslateEmpty = False
    Left = 152
    Top = 8
    Storage = 0
  end
  object TranslatorArabic: TFormTranslator
    FileName = 'demo.lng'
    Locale = 1025
    Translate = False
    TranslateEmpty = False
    Left = 216
    Top = 8
    Storage = 0
  end
end
