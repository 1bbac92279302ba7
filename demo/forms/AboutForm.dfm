object AboutForm: TAboutForm
  Left = 280
  Top = 180
  BorderStyle = bsDialog
  Caption = 'About Booking Desk'
  ClientHeight = 288
  ClientWidth = 420
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = 'Tahoma'
  Font.Style = []
  ParentBiDiMode = False
  Position = poMainFormCenter
  ShowHint = True
  PixelsPerInch = 96
  TextHeight = 14
  object LblTitle: TLabel
    Left = 20
    Top = 16
    Width = 380
    Height = 32
    AutoSize = False
    Caption = 'Booking Desk'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clNavy
    Font.Height = -24
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object LblVersion: TLabel
    Left = 20
    Top = 56
    Width = 380
    Height = 16
    AutoSize = False
    Caption = 'Version 1.0'
  end
  object LblLink: TLabel
    Left = 20
    Top = 204
    Width = 380
    Height = 16
    Cursor = crHandPoint
    Hint = 'Show the address in the title'
    AutoSize = False
    Caption = 'Skerry Line on the web'
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clBlue
    Font.Height = -12
    Font.Name = 'Tahoma'
    Font.Style = [fsUnderline]
    ParentFont = False
    OnClick = LblLinkClick
  end
  object MemAbout: TMemo
    Left = 20
    Top = 84
    Width = 380
    Height = 108
    TabStop = False
    Color = clBtnFace
    Lines.Strings = (
      'The desk at which Skerry Line sells its crossings.'
      ''
      'It speaks five languages and changes them at once.'
      'Ask the terminal office for help.')
    ReadOnly = True
    TabOrder = 1
  end
  object BtnOK: TButton
    Left = 292
    Top = 244
    Width = 108
    Height = 27
    Cancel = True
    Caption = 'OK'
    Default = True
    ModalResult = 1
    TabOrder = 0
  end
  object TranslatorSwedish: TFormTranslator
    FileName = ''
    Locale = 1053
    Translate = False
    TranslateEmpty = False
    Translations.Strings = (
      'BtnOK.Caption='#39'OK'#39
      'Caption='#39'Om bokningsdisken'#39
      'LblLink.Caption='#39'Skerry Line p'#229' webben'#39
      'LblLink.Hint='#39'Visa adressen i titeln'#39
      'LblTitle.Caption='#39'Bokningsdisk'#39
      'LblVersion.Caption='#39'Version 1.0'#39
      
        'MemAbout.Lines[0]='#39'Disken d'#228'r Skerry Line s'#228'ljer sina '#246'verfarter' +
        '.'#39
      
        'MemAbout.Lines[2]='#39'Den talar fem spr'#229'k och byter dem p'#229' en g'#229'ng.' +
        #39
      'MemAbout.Lines[3]='#39'Fr'#229'ga terminalkontoret om du beh'#246'ver hj'#228'lp.'#39
      'SystemMenuClose='#39'&St'#228'ng'#39'#9'#39'Alt+F4'#39
      'SystemMenuMove='#39'&Flytta'#39)
    Left = 24
    Top = 8
    Storage = 0
  end
  object TranslatorGerman: TFormTranslator
    FileName = ''
    Locale = 1031
    Translate = False
    TranslateEmpty = False
    Translations.Strings = (
      'BtnOK.Caption='#39'OK'#39
      'Caption='#39'Info '#252'ber den Buchungsschalter'#39
      'LblLink.Caption='#39'Skerry Line im Internet'#39
      'LblLink.Hint='#39'Die Adresse im Titel anzeigen'#39
      'LblTitle.Caption='#39'Buchungsschalter'#39
      'LblVersion.Caption='#39'Version 1.0'#39
      
        'MemAbout.Lines[0]='#39'Der Schalter, an dem Skerry Line '#220'berfahrten ' +
        'verkauft.'#39
      
        'MemAbout.Lines[2]='#39'Er spricht f'#252'nf Sprachen und wechselt sie sof' +
        'ort.'#39
      'MemAbout.Lines[3]='#39'Hilfe erhalten Sie im Terminalb'#252'ro.'#39
      'SystemMenuClose='#39'S&chlie'#223'en'#39'#9'#39'Alt+F4'#39
      'SystemMenuMove='#39'&Verschieben'#39)
    Left = 88
    Top = 8
    Storage = 0
  end
  object TranslatorJapanese: TFormTranslator
    FileName = ''
    Locale = 1041
    Translate = False
    TranslateEmpty = False
    Translations.Strings = (
      'BtnOK.Caption='#39'OK'#39
      'Caption='#39#20104#32004#31379#21475#12395#12388#12356#12390#39
      'LblLink.Caption='#39'Skerry Line '#12398#12454#12455#12502#12469#12452#12488#39
      'LblLink.Hint='#39#12450#12489#12524#12473#12434#12479#12452#12488#12523#12395#34920#31034#12375#12414#12377#39
      'LblTitle.Caption='#39#20104#32004#31379#21475#39
      'LblVersion.Caption='#39#12496#12540#12472#12519#12531' 1.0'#39
      'MemAbout.Lines[0]='#39'Skerry Line '#12398#20055#33337#21048#12434#36009#22770#12377#12427#31379#21475#12391#12377#12290#39
      'MemAbout.Lines[2]='#39#20116#12388#12398#35328#35486#12434#12381#12398#22580#12391#20999#12426#26367#12360#12425#12428#12414#12377#12290#39
      'MemAbout.Lines[3]='#39#12372#19981#26126#12394#28857#12399#12479#12540#12511#12490#12523#20107#21209#25152#12408#12393#12358#12382#12290#39
      'SystemMenuClose='#39#38281#12376#12427'(&C)'#39'#9'#39'Alt+F4'#39
      'SystemMenuMove='#39#31227#21205'(&M)'#39)
    Left = 152
    Top = 8
    Storage = 0
  end
  object TranslatorArabic: TFormTranslator
    FileName = ''
    Locale = 1025
    Translate = False
    TranslateEmpty = False
    Translations.Strings = (
      'BiDiMode=bdRightToLeft'
      'BtnOK.Caption='#39#1605#1608#1575#1601#1602#39
      'Caption='#39#1581#1608#1604' '#1605#1603#1578#1576' '#1575#1604#1581#1580#1586#39
      'LblLink.Caption='#39'Skerry Line '#1593#1604#1609' '#1575#1604#1573#1606#1578#1585#1606#1578#39
      'LblLink.Hint='#39#1573#1592#1607#1575#1585' '#1575#1604#1593#1606#1608#1575#1606' '#1601#1610' '#1588#1585#1610#1591' '#1575#1604#1593#1606#1608#1575#1606#39
      'LblTitle.Caption='#39#1605#1603#1578#1576' '#1575#1604#1581#1580#1586#39
      'LblVersion.Caption='#39#1575#1604#1573#1589#1583#1575#1585' 1.0'#39
      
        'MemAbout.Lines[0]='#39#1575#1604#1605#1603#1578#1576' '#1575#1604#1584#1610' '#1578#1576#1610#1593' '#1601#1610#1607' '#1588#1585#1603#1577' Skerry Line '#1585#1581#1604#1575#1578#1607#1575 +
        '.'#39
      'MemAbout.Lines[2]='#39#1610#1578#1581#1583#1579' '#1582#1605#1587' '#1604#1594#1575#1578' '#1608#1610#1576#1583#1617#1604' '#1576#1610#1606#1607#1575' '#1601#1608#1585#1611#1575'.'#39
      'MemAbout.Lines[3]='#39#1575#1591#1604#1576' '#1575#1604#1605#1587#1575#1593#1583#1577' '#1605#1606' '#1605#1603#1578#1576' '#1575#1604#1605#1581#1591#1577'.'#39
      'SystemMenuClose='#39#1573#1594'&'#1604#1575#1602#39'#9'#39'Alt+F4'#39
      'SystemMenuMove='#39'&'#1606#1602#1604#39)
    Left = 216
    Top = 8
    Storage = 0
  end
end
