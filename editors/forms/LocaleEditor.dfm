inherited LocaleEditor: TLocaleEditor
  Caption = 'Locale Translation Editor'
  inherited Notebook: TPageControl
    inherited TabTranslations: TTabSheet
      inherited PanList: TPanel
        object LblLang: TLabel [0]
          Left = 8
          Top = 8
          Width = 276
          Height = 14
          Anchors = [akLeft, akTop, akRight]
          AutoSize = False
          Caption = 'Locale'
          FocusControl = CbxLang
        end
        inherited LblList: TLabel
          Top = 60
          Caption = 'Locale properties to be translated'
        end
        inherited PropList: TListBox
          Top = 80
          Height = 271
          MultiSelect = False
          Sorted = True
          TabOrder = 1
        end
        inherited BtnRemove: TButton
          TabOrder = 2
          Visible = False
        end
        inherited BtnNew: TButton
          TabOrder = 3
          Visible = False
        end
        object CbxLang: TComboBox
          Left = 8
          Top = 28
          Width = 276
          Height = 22
          Style = csDropDownList
          Anchors = [akLeft, akTop, akRight]
          DropDownCount = 16
          ItemHeight = 14
          Sorted = True
          TabOrder = 0
          OnChange = CbxLangChange
        end
        object DescList: TListBox
          Left = 212
          Top = 288
          Width = 64
          Height = 56
          TabStop = False
          ItemHeight = 14
          Items.Strings = (
            'LONGDAYNAMES[1]=Native name for Monday.'
            'LONGDAYNAMES[2]=Native name for Tuesday.'
            'LONGDAYNAMES[3]=Native name for Wednesday.'
            'LONGDAYNAMES[4]=Native name for Thursday.'
            'LONGDAYNAMES[5]=Native name for Friday.'
            'LONGDAYNAMES[6]=Native name for Saturday.'
            'LONGDAYNAMES[7]=Native name for Sunday.'
            'SHORTDAYNAMES[1]=Native abbreviated name for Monday.'
            'SHORTDAYNAMES[2]=Native abbreviated name for Tuesday.'
            'SHORTDAYNAMES[3]=Native abbreviated name for Wednesday.'
            'SHORTDAYNAMES[4]=Native abbreviated name for Thursday.'
            'SHORTDAYNAMES[5]=Native abbreviated name for Friday.'
            'SHORTDAYNAMES[6]=Native abbreviated name for Saturday.'
            'SHORTDAYNAMES[7]=Native abbreviated name for Sunday.'
            'LONGMONTHNAMES[1]=Native name for January.'
            'LONGMONTHNAMES[2]=Native name for February.'
            'LONGMONTHNAMES[3]=Native name for March.'
            'LONGMONTHNAMES[4]=Native name for April.'
            'LONGMONTHNAMES[5]=Native name for May.'
            'LONGMONTHNAMES[6]=Native name for June.'
            'LONGMONTHNAMES[7]=Native name for July.'
            'LONGMONTHNAMES[8]=Native name for August.'
            'LONGMONTHNAMES[9]=Native name for September.'
            'LONGMONTHNAMES[10]=Native name for October.'
            'LONGMONTHNAMES[11]=Native name for November.'
            'LONGMONTHNAMES[12]=Native name for December.'
            'SHORTMONTHNAMES[1]=Native abbreviated name for January.'
            'SHORTMONTHNAMES[2]=Native abbreviated name for February.'
            'SHORTMONTHNAMES[3]=Native abbreviated name for March.'
            'SHORTMONTHNAMES[4]=Native abbreviated name for April.'
            'SHORTMONTHNAMES[5]=Native abbreviated name for May.'
            'SHORTMONTHNAMES[6]=Native abbreviated name for June.'
            'SHORTMONTHNAMES[7]=Native abbreviated name for July.'
            'SHORTMONTHNAMES[8]=Native abbreviated name for August.'
            'SHORTMONTHNAMES[9]=Native abbreviated name for September.'
            'SHORTMONTHNAMES[10]=Native abbreviated name for October.'
            'SHORTMONTHNAMES[11]=Native abbreviated name for November.'
            'SHORTMONTHNAMES[12]=Native abbreviated name for December.'
            
              'SHORTTIMEFORMAT=Short time formatting string. Also specifies wet' +
              'her a 12-hour or a 24-hour format is used.'
            
              'LONGTIMEFORMAT=Long time formatting string. Also specifies wethe' +
              'r a 12-hour or a 24-hour format is used.'
            
              'TIMESEPARATOR=Character(s) for the time separator. Displayed bet' +
              'ween hours and minutes, and between minutes and seconds. This ca' +
              'nnot be set to the digits '#39'0'#39'-'#39'9'#39'.'
            
              'TIMEAMSTRING=String for indicating times in the range 00:00-11:5' +
              '9 in the 12-hour clock format (for example, "AM").'
            
              'TIMEPMSTRING=String for indicating times in the range 12.00-23:5' +
              '9 in the 12-hour clock format (for example, "PM"), or string for' +
              ' indicating any time in the 24-hour clock format.'
            
              'DATESEPARATOR=Character(s) for the date separator. This cannot b' +
              'e set to the digits '#39'0'#39'-'#39'9'#39'.'
            'SHORTDATEFORMAT=Short-date formatting string.'
            'LONGDATEFORMAT=The long-date formatting string for this locale.'
            
              'CURRENCYFORMAT=Positive currency format. 0=$1.1, 1=1.1$, 2=$ 1, ' +
              '3=1 $'
            
              'NEGCURRFORMAT=Negative currency format. 0=($1.1), 1=-$1.1, 2=$-1' +
              '.1, 3=$1.1-, 4=(1.1$), 5=-1.1$, 6=1.1-$, 7=1.1$-, 8=-1.1 $, 9=-$' +
              ' 1.1, 10=1.1 $-, 11=$ 1.1-, 12=$ -1.1, 13=1.1- $, 14=($ 1.1), 15' +
              '=(1.1 $).'
            
              'CURRENCYDECIMALS=Number of digits to the right of the decimal in' +
              ' the local currency format'
            
              'CURRENCYSTRING=Local monetary symbol. This cannot be set to the ' +
              'digits '#39'0'#39'-'#39'9'#39'. Be careful when using this setting. Don'#39't make g' +
              'lobal replacements of currency amounts in your application.'
            
              'THOUSANDSEPARATOR=Character used to separate groups of digits le' +
              'ft of the decimal (the thousand separator). This cannot be set t' +
              'o the digits '#39'0'#39'-'#39'9'#39'.'
            
              'DECIMALSEPARATOR=Character used to separate the integer part fro' +
              'm the fractional part of a number (the decimal separator). This ' +
              'cannot be set to the digits '#39'0'#39'-'#39'9'#39'.'
            
              'ENGLISHNAME=Full English name of the language from ISO Standard ' +
              '639. This will always be restricted to characters mappable to th' +
              'e 7-bit ASCII subset.'
            'NATIVENAME=Native name of the language'
            
              'ENGLISHCOUNTRYNAME=Full English name of the country. This will a' +
              'lways be restricted to characters mappable to the 7-bit ASCII su' +
              'bset.'
            'NATIVECOUNTRYNAME=Native name of the country'
            
              'COMPANIONTAG=A unique language tag for this locale that Translat' +
              'or components associates with. If set to 0 no association is mad' +
              'e.'
            'LISTSEPARATOR=The character used to separate items in a list.'
            
              'TWODIGITYEARCENTURYWINDOW=This value is subtracted from the curr' +
              'ent year before extracting the century. This can extend the life' +
              'time of existing applications that are inextricably tied to 2 di' +
              'git year data entry.')
          TabOrder = 4
          Visible = False
        end
      end
      inherited PanBox: TPanel
        inherited PanOriginal: TPanel
          inherited LblOrgTranslation: TLabel
            Visible = False
          end
          object LblProp: TLabel [1]
            Left = 4
            Top = 8
            Width = 313
            Height = 144
            Anchors = [akLeft, akTop, akRight, akBottom]
            AutoSize = False
            WordWrap = True
          end
          inherited EdtOrgTranslation: TMemo
            Visible = False
          end
        end
      end
    end
    object TabLocales: TTabSheet [1]
      Caption = 'Locales'
      ImageIndex = 5
      object LblLangList: TLabel
        Left = 8
        Top = 8
        Width = 224
        Height = 14
        Anchors = [akLeft, akTop, akRight]
        AutoSize = False
        Caption = 'System locales'
        FocusControl = LangList
      end
      object LblLangListInApp: TLabel
        Left = 387
        Top = 8
        Width = 221
        Height = 14
        Anchors = [akLeft, akTop, akRight]
        AutoSize = False
        Caption = 'Locales in application'
        FocusControl = LangListInApp
      end
      object LangList: TListBox
        Left = 8
        Top = 28
        Width = 224
        Height = 323
        Anchors = [akLeft, akTop, akBottom]
        ItemHeight = 14
        ScrollWidth = 320
        Sorted = True
        TabOrder = 0
        OnClick = LangListClick
      end
      object BtnCopyLang: TButton
        Left = 244
        Top = 28
        Width = 132
        Height = 25
        Caption = 'Copy >>'
        Enabled = False
        TabOrder = 1
        OnClick = BtnCopyLangClick
      end
      object BtnRemoveLang: TButton
        Left = 244
        Top = 60
        Width = 132
        Height = 25
        Caption = 'Remove <<'
        Enabled = False
        TabOrder = 2
        OnClick = BtnRemoveLangClick
      end
      object BtnUserLang: TButton
        Left = 244
        Top = 104
        Width = 132
        Height = 25
        Caption = 'New'
        TabOrder = 3
        OnClick = BtnUserLangClick
      end
      object BtnSetDefault: TButton
        Left = 244
        Top = 148
        Width = 132
        Height = 25
        Caption = 'Set designtime'
        Enabled = False
        TabOrder = 4
        Visible = False
        OnClick = BtnSetDefaultClick
      end
      object BtnSetStartup: TButton
        Left = 244
        Top = 180
        Width = 132
        Height = 25
        Caption = 'Set startup'
        Enabled = False
        TabOrder = 5
        Visible = False
        OnClick = BtnSetStartupClick
      end
      object LangListInApp: TListBox
        Left = 387
        Top = 28
        Width = 221
        Height = 323
        Anchors = [akLeft, akTop, akRight, akBottom]
        ItemHeight = 14
        ScrollWidth = 320
        Sorted = True
        TabOrder = 6
        OnClick = LangListInAppClick
      end
    end
    inherited TabOptions: TTabSheet
      inherited LblTotal: TLabel
        Visible = False
      end
      inherited LblTotalNr: TLabel
        Visible = False
      end
      inherited LblLocalized: TLabel
        Visible = False
      end
      inherited LblLocalizedNr: TLabel
        Visible = False
      end
      object LblLocaleList: TLabel [4]
        Left = 16
        Top = 60
        Width = 550
        Height = 14
        Anchors = [akLeft, akTop, akRight]
        AutoSize = False
        Caption = 'Get system Locale properties from file'
        FocusControl = EdtLocaleList
      end
      inherited CkxMove: TCheckBox
        Top = 20
      end
      object EdtLocaleList: TEdit
        Left = 16
        Top = 80
        Width = 550
        Height = 22
        Anchors = [akLeft, akTop, akRight]
        TabOrder = 1
        OnChange = EdtLocaleListChange
        OnExit = EdtLocaleListExit
      end
      object BtnSelLocale: TButton
        Left = 570
        Top = 78
        Width = 30
        Height = 25
        Anchors = [akTop, akRight]
        Caption = '...'
        TabOrder = 2
        OnClick = BtnSelLocaleClick
      end
    end
    inherited TabReading: TTabSheet
      TabVisible = False
    end
    inherited TabDictionary: TTabSheet
      inherited LblTranslate: TLabel
        Visible = False
      end
      inherited LblLoad: TLabel
        Top = 26
        Caption = 'Load locale properties from an external textfile.'
      end
      inherited LblSave: TLabel
        Top = 66
        Caption = 'Save current locale properties to an external textfile.'
      end
      inherited LblExport: TLabel
        Visible = False
      end
      inherited BtnTranslate: TButton
        TabOrder = 2
        Visible = False
      end
      inherited BtnLoad: TButton
        Top = 20
        TabOrder = 0
      end
      inherited BtnSave: TButton
        Top = 60
        TabOrder = 1
      end
      inherited BtnExport: TButton
        Visible = False
      end
    end
  end
  inherited DlgOpen: TOpenDialog
    Filter = 'Locale translations (*.txt)|*.txt|All files (*.*)|*.*'
  end
  inherited DlgSave: TSaveDialog
    Filter = 'Locale translations (*.txt)|*.txt|All files (*.*)|*.*'
  end
end
