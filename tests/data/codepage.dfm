object Okno: TOkno
  Left = 0
  Top = 0
  Caption = 'Za¿ó³æ gêœl¹ jaŸñ'
end
