-- Favourites: the grid with its two lists and its switch. Its rows are written although no key is listed.

-- [all] every dish but the placeholders, by name
Select Piatto, Tipo, Categoria, Preferito from Sostituisci Where Sostituisci.Piatto <>'Colazione 1' AND Sostituisci.Piatto <>'Colazione 2' AND Sostituisci.Piatto <>'Colazione 3'  and Sostituisci.Piatto <>'Colazione 4' AND Sostituisci.Piatto <>'Colazione 5' AND  Sostituisci.Piatto <>'Colazione 6' AND Sostituisci.Piatto <>'Colazione 7'  and Sostituisci.Piatto <>'Spuntino 1' AND Sostituisci.Piatto <>'Spuntino 2' AND Sostituisci.Piatto <>'Spuntino 3'  and Sostituisci.Piatto <>'Spuntino 4' AND Sostituisci.Piatto <>'Spuntino 5' AND  Sostituisci.Piatto <>'Spuntino 6' AND Sostituisci.Piatto <>'Spuntino 7' order by piatto
=> writes Sostituisci
Select Piatto, Tipo, Categoria, Preferito, Sostituisci.rowid AS jet_key from Sostituisci Where Sostituisci.Piatto <>'Colazione 1' AND Sostituisci.Piatto <>'Colazione 2' AND Sostituisci.Piatto <>'Colazione 3' and Sostituisci.Piatto <>'Colazione 4' AND Sostituisci.Piatto <>'Colazione 5' AND Sostituisci.Piatto <>'Colazione 6' AND Sostituisci.Piatto <>'Colazione 7' and Sostituisci.Piatto <>'Spuntino 1' AND Sostituisci.Piatto <>'Spuntino 2' AND Sostituisci.Piatto <>'Spuntino 3' and Sostituisci.Piatto <>'Spuntino 4' AND Sostituisci.Piatto <>'Spuntino 5' AND Sostituisci.Piatto <>'Spuntino 6' AND Sostituisci.Piatto <>'Spuntino 7' order by piatto, Sostituisci.rowid

-- [kind] the dishes of one kind; no order is named
 SELECT Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Categoria, Sostituisci.Preferito From Sostituisci WHERE   Sostituisci.Piatto <>'Colazione 1' AND Sostituisci.Piatto <>'Colazione 2' AND Sostituisci.Piatto <>'Colazione 3'  and Sostituisci.Piatto <>'Colazione 4' AND Sostituisci.Piatto <>'Colazione 5' AND  Sostituisci.Piatto <>'Colazione 6' AND Sostituisci.Piatto <>'Colazione 7'  and Sostituisci.Piatto <>'Spuntino 1' AND Sostituisci.Piatto <>'Spuntino 2' AND Sostituisci.Piatto <>'Spuntino 3'  and Sostituisci.Piatto <>'Spuntino 4' AND Sostituisci.Piatto <>'Spuntino 5' AND  Sostituisci.Piatto <>'Spuntino 6' AND Sostituisci.Piatto <>'Spuntino 7' AND  Sostituisci.tipo ='Menu' ;
=> writes Sostituisci
SELECT Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Categoria, Sostituisci.Preferito, Sostituisci.rowid AS jet_key From Sostituisci WHERE Sostituisci.Piatto <>'Colazione 1' AND Sostituisci.Piatto <>'Colazione 2' AND Sostituisci.Piatto <>'Colazione 3' and Sostituisci.Piatto <>'Colazione 4' AND Sostituisci.Piatto <>'Colazione 5' AND Sostituisci.Piatto <>'Colazione 6' AND Sostituisci.Piatto <>'Colazione 7' and Sostituisci.Piatto <>'Spuntino 1' AND Sostituisci.Piatto <>'Spuntino 2' AND Sostituisci.Piatto <>'Spuntino 3' and Sostituisci.Piatto <>'Spuntino 4' AND Sostituisci.Piatto <>'Spuntino 5' AND Sostituisci.Piatto <>'Spuntino 6' AND Sostituisci.Piatto <>'Spuntino 7' AND Sostituisci.tipo ='Menu' ORDER BY Sostituisci.rowid

-- [category] the dishes of one category
SELECT Sostituisci.Piatto, Sostituisci.Tipo, Sostituisci.Categoria, Sostituisci.Preferito FROM Sostituisci WHERE (((Sostituisci.Categoria)='carne')) and Sostituisci.Piatto <>'Colazione 1' AND Sostituisci.Piatto <>'Colazione 2' AND Sostituisci.Piatto <>'Colazione 3'  and Sostituisci.Piatto <>'Colazione 4' AND Sostituisci.Piatto <>'Colazione 5' AND  Sostituisci.Piatto <>'Colazione 6' AND Sostituisci.Piatto <>'Colazione 7'  and Sostituisci.Piatto <>'Spuntino 1' AND Sostituisci.Piatto <>'Spuntino 2' AND Sostituisci.Piatto <>'Spuntino 3'  and Sostituisci.Piatto <>'Spuntino 4' AND Sostituisci.Piatto <>'Spuntino 5' AND  Sostituisci.Piatto <>'Spuntino 6' AND Sostituisci.Piatto <>'Spuntino 7' ORDER BY Sostituisci.Piatto;
=> writes Sostituisci
SELECT Sostituisci.Piatto, Sostituisci.Tipo, Sostituisci.Categoria, Sostituisci.Preferito, Sostituisci.rowid AS jet_key FROM Sostituisci WHERE (((Sostituisci.Categoria)='carne')) and Sostituisci.Piatto <>'Colazione 1' AND Sostituisci.Piatto <>'Colazione 2' AND Sostituisci.Piatto <>'Colazione 3' and Sostituisci.Piatto <>'Colazione 4' AND Sostituisci.Piatto <>'Colazione 5' AND Sostituisci.Piatto <>'Colazione 6' AND Sostituisci.Piatto <>'Colazione 7' and Sostituisci.Piatto <>'Spuntino 1' AND Sostituisci.Piatto <>'Spuntino 2' AND Sostituisci.Piatto <>'Spuntino 3' and Sostituisci.Piatto <>'Spuntino 4' AND Sostituisci.Piatto <>'Spuntino 5' AND Sostituisci.Piatto <>'Spuntino 6' AND Sostituisci.Piatto <>'Spuntino 7' ORDER BY Sostituisci.Piatto, Sostituisci.rowid

-- [kind-category] the dishes of one kind and category
Select Piatto, Tipo, Categoria, Preferito from Sostituisci where Categoria = 'carne' and Tipo = 'menu' and Sostituisci.Piatto <>'Colazione 1' AND Sostituisci.Piatto <>'Colazione 2' AND Sostituisci.Piatto <>'Colazione 3'  and Sostituisci.Piatto <>'Colazione 4' AND Sostituisci.Piatto <>'Colazione 5' AND  Sostituisci.Piatto <>'Colazione 6' AND Sostituisci.Piatto <>'Colazione 7'  and Sostituisci.Piatto <>'Spuntino 1' AND Sostituisci.Piatto <>'Spuntino 2' AND Sostituisci.Piatto <>'Spuntino 3'  and Sostituisci.Piatto <>'Spuntino 4' AND Sostituisci.Piatto <>'Spuntino 5' AND  Sostituisci.Piatto <>'Spuntino 6' AND Sostituisci.Piatto <>'Spuntino 7' order by piatto
=> writes Sostituisci
Select Piatto, Tipo, Categoria, Preferito, Sostituisci.rowid AS jet_key from Sostituisci where Categoria = 'carne' and Tipo = 'menu' and Sostituisci.Piatto <>'Colazione 1' AND Sostituisci.Piatto <>'Colazione 2' AND Sostituisci.Piatto <>'Colazione 3' and Sostituisci.Piatto <>'Colazione 4' AND Sostituisci.Piatto <>'Colazione 5' AND Sostituisci.Piatto <>'Colazione 6' AND Sostituisci.Piatto <>'Colazione 7' and Sostituisci.Piatto <>'Spuntino 1' AND Sostituisci.Piatto <>'Spuntino 2' AND Sostituisci.Piatto <>'Spuntino 3' and Sostituisci.Piatto <>'Spuntino 4' AND Sostituisci.Piatto <>'Spuntino 5' AND Sostituisci.Piatto <>'Spuntino 6' AND Sostituisci.Piatto <>'Spuntino 7' order by piatto, Sostituisci.rowid

-- [categories] the categories of a kind
SELECT Sostituisci.tipo, Sostituisci.Categoria FROM Sostituisci GROUP BY Sostituisci.tipo, Sostituisci.Categoria HAVING (((Sostituisci.tipo)='menu'));
=> reads
SELECT Sostituisci.tipo, Sostituisci.Categoria FROM Sostituisci WHERE (((Sostituisci.tipo)='menu')) GROUP BY Sostituisci.tipo, Sostituisci.Categoria ORDER BY Sostituisci.tipo, Sostituisci.Categoria

-- [only] favourites alone, by kind
SELECT Sostituisci.Piatto, Sostituisci.Tipo, Sostituisci.Categoria, Sostituisci.Preferito FROM Sostituisci WHERE (((Sostituisci.Preferito)=True)) ORDER BY Sostituisci.Tipo;
=> writes Sostituisci
SELECT Sostituisci.Piatto, Sostituisci.Tipo, Sostituisci.Categoria, Sostituisci.Preferito, Sostituisci.rowid AS jet_key FROM Sostituisci WHERE (((Sostituisci.Preferito)<>0)) ORDER BY Sostituisci.Tipo, Sostituisci.rowid

-- [every] all dishes again, by kind
SELECT Sostituisci.Piatto, Sostituisci.Tipo, Sostituisci.Categoria, Sostituisci.Preferito FROM Sostituisci  ORDER BY Sostituisci.Tipo;
=> writes Sostituisci
SELECT Sostituisci.Piatto, Sostituisci.Tipo, Sostituisci.Categoria, Sostituisci.Preferito, Sostituisci.rowid AS jet_key FROM Sostituisci ORDER BY Sostituisci.Tipo, Sostituisci.rowid

-- [kinds] the kinds that have a favourite
SELECT Sostituisci.Tipo From Sostituisci Where (((Sostituisci.Preferito) = True)) GROUP BY Sostituisci.Tipo ORDER BY Sostituisci.Tipo;
=> reads
SELECT Sostituisci.Tipo From Sostituisci Where (((Sostituisci.Preferito) <> 0)) GROUP BY Sostituisci.Tipo ORDER BY Sostituisci.Tipo
