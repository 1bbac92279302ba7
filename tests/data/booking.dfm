object BookingForm: TBookingForm
  Left = 192
  Top = 114
  Width = 420
  Height = 300
  Caption = 'Bookings for today'
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -11
  Font.Name = 'MS Sans Serif'
  Font.Style = []
  Menu = MainMenu
  OldCreateOrder = False
  OnCreate = FormCreate
  PixelsPerInch = 96
  TextHeight = 13
  object LblRoute: TLabel
    Left = 16
    Top = 20
    Width = 35
    Height = 13
    Caption = '&Route:'
    FocusControl = CbxRoute
  end
  object CbxRoute: TComboBox
    Left = 72
    Top = 16
    Width = 145
    Height = 21
    ItemHeight = 13
    TabOrder = 0
    Items.Strings = (
      'Stockholm '#8211' Mariehamn'
      'Turku '#8211' Mariehamn')
  end
  object Status: TStatusBar
    Left = 0
    Top = 250
    Width = 412
    Height = 19
    Panels = <
      item
        Text = 'Ready'
        Width = 120
      end
      item
        Text = 'No bookings'
        Width = 50
      end>
  end
  object Notes: TMemo
    Left = 16
    Top = 56
    Width = 369
    Height = 89
    Lines.Strings = (
      'It'#39's two lines'
      
        'of text, the second of which is so long that it has to be broken' +
        ' into two pieces')
    TabOrder = 1
  end
  object Gauge: TFancyGauge
    Left = 16
    Top = 160
    Width = 100
    Height = 40
    Title.Caption = 'Seats taken'
    Title.Font.Name = 'Arial'
    Percent = 12.500000000000000000
    Marks = <
      item
        Caption = 'Half'
        At = 50
      end>
    Source = DataModule1.Seats
    Glyph.Data = {
      9600000042494D960000000000000076000000280000000A0000000400000001
      0004000000000020000000}
  end
  object MainMenu: TMainMenu
    Left = 240
    Top = 16
    object MnuFile: TMenuItem
      Caption = '&File'
      object MnuExit: TMenuItem
        Caption = 'E&xit'
        ShortCut = 32883
        OnClick = MnuExitClick
      end
    end
  end
end
