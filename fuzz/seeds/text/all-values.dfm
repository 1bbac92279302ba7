0inherited Form1: TForm1 [2]
  Left = -5
  Caption = 'It'#39's '#1040#55357#56832 +
    'more'
  Value = 1.500000000000000000
  Rate = 2.5s
  Day = 38353d
  Cost = 125c
  Anchors = [akLeft, akTop]
  Ref = DM.Source
  Items.Strings = (
    'one'
    -2
    ())
  Cols = <
    item
      Caption = 'é''x'
    end
    item [3]
      Inner = <>
    end>
  Data = {0102AAFF}
  object TLabel
    Visible = False
  end
  inline Frame1: Unit1/TFrame1
  end
end
