object Okno: TOkno
  Left = 0
  Top = 0
  Caption = 'Za¿ó³æ gê¶l¹ ja¼ñ'
end
