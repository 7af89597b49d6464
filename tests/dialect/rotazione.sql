-- The planner's sets: one a kind or category, in rotation order.

-- [breakfasts] breakfasts but the numbered ones; the kind stands in every term
SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, Sostituisci.tipo From Sostituisci WHERE (((Sostituisci.Piatto)<>'Colazione 1') AND ((Sostituisci.tipo)='colazione')) and (((Sostituisci.Piatto)<>'Colazione 2') AND ((Sostituisci.tipo)='colazione')) and (((Sostituisci.Piatto)<>'Colazione 3') AND ((Sostituisci.tipo)='colazione')) and (((Sostituisci.Piatto)<>'Colazione 4') AND ((Sostituisci.tipo)='colazione')) and (((Sostituisci.Piatto)<>'Colazione 5') AND ((Sostituisci.tipo)='colazione')) and (((Sostituisci.Piatto)<>'Colazione 6') AND ((Sostituisci.tipo)='colazione')) and (((Sostituisci.Piatto)<>'Colazione 7') AND ((Sostituisci.tipo)='colazione')) order by Sostituisci.ordine;
=> writes Sostituisci
SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.rowid AS jet_key From Sostituisci WHERE (((Sostituisci.Piatto)<>'Colazione 1') AND ((Sostituisci.tipo)='colazione')) and (((Sostituisci.Piatto)<>'Colazione 2') AND ((Sostituisci.tipo)='colazione')) and (((Sostituisci.Piatto)<>'Colazione 3') AND ((Sostituisci.tipo)='colazione')) and (((Sostituisci.Piatto)<>'Colazione 4') AND ((Sostituisci.tipo)='colazione')) and (((Sostituisci.Piatto)<>'Colazione 5') AND ((Sostituisci.tipo)='colazione')) and (((Sostituisci.Piatto)<>'Colazione 6') AND ((Sostituisci.tipo)='colazione')) and (((Sostituisci.Piatto)<>'Colazione 7') AND ((Sostituisci.tipo)='colazione')) order by Sostituisci.ordine, Sostituisci.rowid

-- [snacks] snacks but the numbered ones
SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, Sostituisci.tipo From Sostituisci WHERE (((Sostituisci.Piatto)<>'Spuntino 1') AND ((Sostituisci.tipo)='Spuntino')) and (((Sostituisci.Piatto)<>'Spuntino 2') AND ((Sostituisci.tipo)='Spuntino')) and (((Sostituisci.Piatto)<>'Spuntino 3') AND ((Sostituisci.tipo)='Spuntino')) and (((Sostituisci.Piatto)<>'Spuntino 4') AND ((Sostituisci.tipo)='Spuntino')) and (((Sostituisci.Piatto)<>'Spuntino 5') AND ((Sostituisci.tipo)='Spuntino')) and (((Sostituisci.Piatto)<>'Spuntino 6') AND ((Sostituisci.tipo)='Spuntino')) and (((Sostituisci.Piatto)<>'Spuntino 7') AND ((Sostituisci.tipo)='Spuntino')) order by Sostituisci.ordine;
=> writes Sostituisci
SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.rowid AS jet_key From Sostituisci WHERE (((Sostituisci.Piatto)<>'Spuntino 1') AND ((Sostituisci.tipo)='Spuntino')) and (((Sostituisci.Piatto)<>'Spuntino 2') AND ((Sostituisci.tipo)='Spuntino')) and (((Sostituisci.Piatto)<>'Spuntino 3') AND ((Sostituisci.tipo)='Spuntino')) and (((Sostituisci.Piatto)<>'Spuntino 4') AND ((Sostituisci.tipo)='Spuntino')) and (((Sostituisci.Piatto)<>'Spuntino 5') AND ((Sostituisci.tipo)='Spuntino')) and (((Sostituisci.Piatto)<>'Spuntino 6') AND ((Sostituisci.tipo)='Spuntino')) and (((Sostituisci.Piatto)<>'Spuntino 7') AND ((Sostituisci.tipo)='Spuntino')) order by Sostituisci.ordine, Sostituisci.rowid

-- [meat] meat
SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, Sostituisci.Categoria From Sostituisci WHERE (((Sostituisci.Categoria)='Carne')) order by Sostituisci.ordine;
=> writes Sostituisci
SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.rowid AS jet_key From Sostituisci WHERE (((Sostituisci.Categoria)='Carne')) order by Sostituisci.ordine, Sostituisci.rowid

-- [fish] fish
SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, Sostituisci.Categoria From Sostituisci WHERE (((Sostituisci.Categoria)='Pesce')) order by Sostituisci.ordine;
=> writes Sostituisci
SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.rowid AS jet_key From Sostituisci WHERE (((Sostituisci.Categoria)='Pesce')) order by Sostituisci.ordine, Sostituisci.rowid

-- [pizza] sandwiches and pizza
SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, Sostituisci.Categoria From Sostituisci WHERE (((Sostituisci.Categoria)='Panino - Pizza')) order by Sostituisci.ordine;
=> writes Sostituisci
SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.rowid AS jet_key From Sostituisci WHERE (((Sostituisci.Categoria)='Panino - Pizza')) order by Sostituisci.ordine, Sostituisci.rowid

-- [pasta] pasta and soup, in key order
SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, Sostituisci.Categoria From Sostituisci WHERE   Sostituisci.Categoria ='Pasta - Minestra'  ;
=> writes Sostituisci
SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.rowid AS jet_key From Sostituisci WHERE Sostituisci.Categoria ='Pasta - Minestra' ORDER BY Sostituisci.rowid

-- [single] single-dish meals, in key order
SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, Sostituisci.Categoria From Sostituisci WHERE   Sostituisci.Categoria ='Piatto unico'  ;
=> writes Sostituisci
SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.rowid AS jet_key From Sostituisci WHERE Sostituisci.Categoria ='Piatto unico' ORDER BY Sostituisci.rowid

-- [side] side dishes
SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, Sostituisci.Categoria From Sostituisci WHERE (((Sostituisci.Categoria)='Contorno')) order by Sostituisci.ordine;
=> writes Sostituisci
SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.rowid AS jet_key From Sostituisci WHERE (((Sostituisci.Categoria)='Contorno')) order by Sostituisci.ordine, Sostituisci.rowid

-- [main] main dishes; their rotation key is written through this set
SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, Sostituisci.tipo, sostituisci.Categoria FROM Sostituisci WHERE (((Sostituisci.tipo)='menu')) order by Sostituisci.ordine;
=> writes Sostituisci
SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, Sostituisci.tipo, sostituisci.Categoria, Sostituisci.rowid AS jet_key FROM Sostituisci WHERE (((Sostituisci.tipo)='menu')) order by Sostituisci.ordine, Sostituisci.rowid

-- [bread] bread
SELECT Sostituisci.Id, Sostituisci.ordine, Sostituisci.Piatto, Sostituisci.tipo FROM Sostituisci WHERE (((Sostituisci.categoria)='Pane')) order by Sostituisci.ordine;
=> writes Sostituisci
SELECT Sostituisci.Id, Sostituisci.ordine, Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.rowid AS jet_key FROM Sostituisci WHERE (((Sostituisci.categoria)='Pane')) order by Sostituisci.ordine, Sostituisci.rowid

-- [complement] main dishes to complete the days; the key breaks ties of the rotation by name
SELECT  Sostituisci.id, Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Ordine,  sostituisci.Categoria  FROM Sostituisci WHERE (((Sostituisci.tipo)='menu'))  order by Ordine, ID;
=> writes Sostituisci
SELECT Sostituisci.id, Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Ordine, sostituisci.Categoria, Sostituisci.rowid AS jet_key FROM Sostituisci WHERE (((Sostituisci.tipo)='menu')) order by Ordine, ID, Sostituisci.rowid

-- [reset] the rotation begins anew
UPDATE Sostituisci SET Sostituisci.Ordine = 0;
=> acts
UPDATE Sostituisci SET Ordine = 0

-- [favourite-breakfasts] breakfasts in one chain, in rotation and key order
 SELECT Sostituisci.id, Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Preferito, Sostituisci.Ordine From Sostituisci WHERE (((Sostituisci.Piatto)<>'Colazione 1' And (Sostituisci.Piatto)<>'Colazione 2' And (Sostituisci.Piatto)<>'Colazione 3' And (Sostituisci.Piatto)<>'Colazione 4' And (Sostituisci.Piatto)<>'Colazione 5' And (Sostituisci.Piatto)<>'Colazione 6' And (Sostituisci.Piatto)<>'Colazione 7' And (Sostituisci.Piatto)<>'Spuntino 1' And (Sostituisci.Piatto)<>'Spuntino 2' And (Sostituisci.Piatto)<>'Spuntino 3' And (Sostituisci.Piatto)<>'Spuntino 4' And (Sostituisci.Piatto)<>'Spuntino 5' And (Sostituisci.Piatto)<>'Spuntino 6' And (Sostituisci.Piatto)<>'Spuntino 7') AND ((Sostituisci.tipo)='Colazione')) order by Ordine, ID;
=> writes Sostituisci
SELECT Sostituisci.id, Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Preferito, Sostituisci.Ordine, Sostituisci.rowid AS jet_key From Sostituisci WHERE (((Sostituisci.Piatto)<>'Colazione 1' And (Sostituisci.Piatto)<>'Colazione 2' And (Sostituisci.Piatto)<>'Colazione 3' And (Sostituisci.Piatto)<>'Colazione 4' And (Sostituisci.Piatto)<>'Colazione 5' And (Sostituisci.Piatto)<>'Colazione 6' And (Sostituisci.Piatto)<>'Colazione 7' And (Sostituisci.Piatto)<>'Spuntino 1' And (Sostituisci.Piatto)<>'Spuntino 2' And (Sostituisci.Piatto)<>'Spuntino 3' And (Sostituisci.Piatto)<>'Spuntino 4' And (Sostituisci.Piatto)<>'Spuntino 5' And (Sostituisci.Piatto)<>'Spuntino 6' And (Sostituisci.Piatto)<>'Spuntino 7') AND ((Sostituisci.tipo)='Colazione')) order by Ordine, ID, Sostituisci.rowid

-- [favourite-snacks] snacks in one chain
SELECT Sostituisci.id, Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Preferito, Sostituisci.Ordine From Sostituisci WHERE (((Sostituisci.Piatto)<>'Colazione 1' And (Sostituisci.Piatto)<>'Colazione 2' And (Sostituisci.Piatto)<>'Colazione 3' And (Sostituisci.Piatto)<>'Colazione 4' And (Sostituisci.Piatto)<>'Colazione 5' And (Sostituisci.Piatto)<>'Colazione 6' And (Sostituisci.Piatto)<>'Colazione 7' And (Sostituisci.Piatto)<>'Spuntino 1' And (Sostituisci.Piatto)<>'Spuntino 2' And (Sostituisci.Piatto)<>'Spuntino 3' And (Sostituisci.Piatto)<>'Spuntino 4' And (Sostituisci.Piatto)<>'Spuntino 5' And (Sostituisci.Piatto)<>'Spuntino 6' And (Sostituisci.Piatto)<>'Spuntino 7') AND ((Sostituisci.tipo)='Spuntino'))  order by Ordine, ID;
=> writes Sostituisci
SELECT Sostituisci.id, Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Preferito, Sostituisci.Ordine, Sostituisci.rowid AS jet_key From Sostituisci WHERE (((Sostituisci.Piatto)<>'Colazione 1' And (Sostituisci.Piatto)<>'Colazione 2' And (Sostituisci.Piatto)<>'Colazione 3' And (Sostituisci.Piatto)<>'Colazione 4' And (Sostituisci.Piatto)<>'Colazione 5' And (Sostituisci.Piatto)<>'Colazione 6' And (Sostituisci.Piatto)<>'Colazione 7' And (Sostituisci.Piatto)<>'Spuntino 1' And (Sostituisci.Piatto)<>'Spuntino 2' And (Sostituisci.Piatto)<>'Spuntino 3' And (Sostituisci.Piatto)<>'Spuntino 4' And (Sostituisci.Piatto)<>'Spuntino 5' And (Sostituisci.Piatto)<>'Spuntino 6' And (Sostituisci.Piatto)<>'Spuntino 7') AND ((Sostituisci.tipo)='Spuntino')) order by Ordine, ID, Sostituisci.rowid

-- [favourite-meat] favourite meat
SELECT  Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine From Sostituisci WHERE  Preferito = true and   (((Sostituisci.Categoria)='Carne'))  order by Ordine, ID;
=> writes Sostituisci
SELECT Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine, Sostituisci.rowid AS jet_key From Sostituisci WHERE Preferito <> 0 and (((Sostituisci.Categoria)='Carne')) order by Ordine, ID, Sostituisci.rowid

-- [any-meat] meat where none is a favourite
SELECT  Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine From Sostituisci WHERE   (((Sostituisci.Categoria)='Carne'))  order by Ordine, ID;
=> writes Sostituisci
SELECT Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine, Sostituisci.rowid AS jet_key From Sostituisci WHERE (((Sostituisci.Categoria)='Carne')) order by Ordine, ID, Sostituisci.rowid

-- [favourite-fish] favourite fish
SELECT  Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine From Sostituisci WHERE  Preferito = true and   (((Sostituisci.Categoria)='Pesce'))  order by Ordine, ID;
=> writes Sostituisci
SELECT Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine, Sostituisci.rowid AS jet_key From Sostituisci WHERE Preferito <> 0 and (((Sostituisci.Categoria)='Pesce')) order by Ordine, ID, Sostituisci.rowid

-- [any-fish] fish where none is a favourite
SELECT  Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine From Sostituisci WHERE   (((Sostituisci.Categoria)='Pesce')) order by Ordine, ID;
=> writes Sostituisci
SELECT Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine, Sostituisci.rowid AS jet_key From Sostituisci WHERE (((Sostituisci.Categoria)='Pesce')) order by Ordine, ID, Sostituisci.rowid

-- [favourite-pizza] favourite sandwiches and pizza
SELECT  Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine From Sostituisci WHERE   Preferito = true and  (((Sostituisci.Categoria)='Panino - Pizza')) order by Ordine, ID;
=> writes Sostituisci
SELECT Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine, Sostituisci.rowid AS jet_key From Sostituisci WHERE Preferito <> 0 and (((Sostituisci.Categoria)='Panino - Pizza')) order by Ordine, ID, Sostituisci.rowid

-- [any-pizza] the same where none is a favourite
SELECT  Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine From Sostituisci WHERE  (((Sostituisci.Categoria)='Panino - Pizza')) order by Ordine, ID;
=> writes Sostituisci
SELECT Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine, Sostituisci.rowid AS jet_key From Sostituisci WHERE (((Sostituisci.Categoria)='Panino - Pizza')) order by Ordine, ID, Sostituisci.rowid

-- [favourite-pasta] favourite pasta and soup
SELECT  Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine From Sostituisci WHERE   Preferito = true and  Sostituisci.Categoria ='Pasta - Minestra'  order by Ordine ;
=> writes Sostituisci
SELECT Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine, Sostituisci.rowid AS jet_key From Sostituisci WHERE Preferito <> 0 and Sostituisci.Categoria ='Pasta - Minestra' order by Ordine, Sostituisci.rowid

-- [any-pasta] the same where none is a favourite
SELECT  Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine From Sostituisci WHERE Sostituisci.Categoria ='Pasta - Minestra'  order by Ordine ;
=> writes Sostituisci
SELECT Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine, Sostituisci.rowid AS jet_key From Sostituisci WHERE Sostituisci.Categoria ='Pasta - Minestra' order by Ordine, Sostituisci.rowid

-- [favourite-single] favourite single-dish meals
SELECT  Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine From Sostituisci WHERE  Preferito = true and   Sostituisci.Categoria ='Piatto unico'  order by Ordine ;
=> writes Sostituisci
SELECT Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine, Sostituisci.rowid AS jet_key From Sostituisci WHERE Preferito <> 0 and Sostituisci.Categoria ='Piatto unico' order by Ordine, Sostituisci.rowid

-- [any-single] the same where none is a favourite
SELECT  Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine From Sostituisci WHERE Sostituisci.Categoria ='Piatto unico'  order by Ordine ;
=> writes Sostituisci
SELECT Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine, Sostituisci.rowid AS jet_key From Sostituisci WHERE Sostituisci.Categoria ='Piatto unico' order by Ordine, Sostituisci.rowid

-- [favourite-side] favourite side dishes, in key order
SELECT  Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine From Sostituisci WHERE   Preferito = true and  (((Sostituisci.Categoria)='Contorno'));
=> writes Sostituisci
SELECT Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine, Sostituisci.rowid AS jet_key From Sostituisci WHERE Preferito <> 0 and (((Sostituisci.Categoria)='Contorno')) ORDER BY Sostituisci.rowid

-- [any-side] side dishes where none is a favourite
SELECT  Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine From Sostituisci WHERE (((Sostituisci.Categoria)='Contorno')) order by Ordine, ID;
=> writes Sostituisci
SELECT Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine, Sostituisci.rowid AS jet_key From Sostituisci WHERE (((Sostituisci.Categoria)='Contorno')) order by Ordine, ID, Sostituisci.rowid

-- [favourite-main] favourite main dishes
SELECT  Sostituisci.id, Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Ordine,  sostituisci.Categoria  FROM Sostituisci WHERE   Preferito = true and  (((Sostituisci.tipo)='menu')) order by Ordine, ID;
=> writes Sostituisci
SELECT Sostituisci.id, Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Ordine, sostituisci.Categoria, Sostituisci.rowid AS jet_key FROM Sostituisci WHERE Preferito <> 0 and (((Sostituisci.tipo)='menu')) order by Ordine, ID, Sostituisci.rowid
