-- Dishes and what they are made of.

-- [names] the names of all dishes, each once
SELECT Piatti.Piatto  FROM Piatti GROUP BY Piatti.Piatto ORDER BY Piatti.Piatto;
=> reads
SELECT Piatti.Piatto FROM Piatti GROUP BY Piatti.Piatto ORDER BY Piatti.Piatto

-- [foods] the foods used in dishes: texts that differ only by case or outer blanks are one
SELECT Trim([alimento]) AS Piatto, Piatti.KC100gr FROM Piatti GROUP BY Trim([alimento]), Piatti.KC100gr ORDER BY Trim([alimento]);
=> reads
SELECT Trim([alimento]) AS Piatto, Piatti.KC100gr FROM Piatti GROUP BY (Trim([alimento]) COLLATE NOCASE), Piatti.KC100gr ORDER BY (Trim([alimento]) COLLATE NOCASE), Piatti.KC100gr

-- [dish] the foods of the dish on show, by name
SELECT * From Piatti Where (((Piatti.Piatto) = 'PASTA al pomodoro')) ORDER BY Piatti.alimento;
=> writes Piatti
SELECT *, Piatti.rowid AS jet_key From Piatti Where (((Piatti.Piatto) = 'PASTA al pomodoro')) ORDER BY Piatti.alimento, Piatti.rowid

-- [all] the foods of all dishes where no dish is chosen
SELECT * From Piatti ORDER BY Piatti.alimento;
=> writes Piatti
SELECT *, Piatti.rowid AS jet_key From Piatti ORDER BY Piatti.alimento, Piatti.rowid

-- [by-dish] every row of every dish, by dish
Select * from Piatti order by Piatto
=> writes Piatti
Select *, Piatti.rowid AS jet_key from Piatti order by Piatto, Piatti.rowid

-- [foods-of-dish] the foods of a dish that goes to the daily sheet
Select * from piatti where Piatto = 'PASTA AL POMODORO' order by Alimento
=> writes piatti
Select *, piatti.rowid AS jet_key from piatti where Piatto = 'PASTA AL POMODORO' order by Alimento, piatti.rowid

-- [foods-to-insert] the foods of a dish that is put into the day on show
Select * from Piatti where piatto = 'pasta al pomodoro' order by Alimento
=> writes Piatti
Select *, Piatti.rowid AS jet_key from Piatti where piatto = 'pasta al pomodoro' order by Alimento, Piatti.rowid

-- [food] the rows of one food in all dishes
Select * from Piatti where Alimento = 'PASTA'
=> writes Piatti
Select *, Piatti.rowid AS jet_key from Piatti where Alimento = 'PASTA' ORDER BY Piatti.rowid

-- [portions] name, calories and portions of the foods of a dish
Select Alimento, KC100gr, totale1, totale2  from Piatti where Piatto = 'pasta al pomodoro' order by Alimento
=> writes Piatti
Select Alimento, KC100gr, totale1, totale2, Piatti.rowid AS jet_key from Piatti where Piatto = 'pasta al pomodoro' order by Alimento, Piatti.rowid

-- [sums] what one dish gives to each person
 SELECT Piatti.Piatto, Sum(Piatti.Totale1) AS SommaDiTotale1, Sum(Piatti.Totale2) AS SommaDiTotale2 From Piatti GROUP BY Piatti.Piatto HAVING (((Piatti.Piatto)='pasta al pomodoro'));
=> reads
SELECT Piatti.Piatto, Sum(Piatti.Totale1) AS SommaDiTotale1, Sum(Piatti.Totale2) AS SommaDiTotale2 From Piatti WHERE (((Piatti.Piatto)='pasta al pomodoro')) GROUP BY Piatti.Piatto ORDER BY Piatti.Piatto

-- [calories] what every dish gives to each person, computed from portions; the division comes first
SELECT Piatti.Piatto, Sum([piatti.kc100gr]/100*[piatti.quantita]) AS KC100grOndira, Sum([piatti.kc100gr]/100*[piatti.quantita2]) AS KC100grTesmo From Piatti  where piatti.piatto <> '' GROUP BY Piatti.Piatto ORDER BY Piatti.Piatto;
=> reads
SELECT Piatti.Piatto, Sum([piatti].[kc100gr]/100.0*[piatti].[quantita]) AS KC100grOndira, Sum([piatti].[kc100gr]/100.0*[piatti].[quantita2]) AS KC100grTesmo From Piatti where piatti.piatto <> '' GROUP BY Piatti.Piatto ORDER BY Piatti.Piatto

-- [totals] the totals of a changed row; 250/100 must be 2.5
UPDATE Piatti SET Piatti.Totale1 = [Piatti].[kc100gr]/100*[Piatti].[quantita], Piatti.Totale2 = [Piatti].[kc100gr]/100*[Piatti].[quantita2] WHERE (((Piatti.ID)=1));
=> acts
UPDATE Piatti SET Totale1 = [Piatti].[kc100gr]/100.0*[Piatti].[quantita], Totale2 = [Piatti].[kc100gr]/100.0*[Piatti].[quantita2] WHERE (((Piatti.ID)=1))

-- [class] the class of a dish: its kind, its category
Select * from Sostituisci where Piatto = 'pasta al POMODORO'
=> writes Sostituisci
Select *, Sostituisci.rowid AS jet_key from Sostituisci where Piatto = 'pasta al POMODORO' ORDER BY Sostituisci.rowid

-- [new-dish] a dish gets its class
INSERT INTO Sostituisci ( Piatto, KCalOndira, KCalTesmo, tipo, Categoria, Preferito ) SELECT 'Zuppa nuova' AS piatto, 0 AS KCalOndira, 0 AS KCalTesmo, 'Menu' AS tipo, 'Carne' AS Categoria, False AS Preferito;
=> acts
INSERT INTO Sostituisci (Piatto, KCalOndira, KCalTesmo, tipo, Categoria, Preferito ) SELECT 'Zuppa nuova' AS piatto, 0 AS KCalOndira, 0 AS KCalTesmo, 'Menu' AS tipo, 'Carne' AS Categoria, 0 AS Preferito

-- [forget-dish] the class of a dish goes with its last food
DELETE Sostituisci.Piatto FROM Sostituisci WHERE (((Sostituisci.Piatto)='Insalata'));
=> acts
DELETE FROM Sostituisci WHERE (((Sostituisci.Piatto)='Insalata'))

-- [forget-replaced] so do the pairs in which it is replaced
DELETE GruppoPiattiSostituiti.alimento FROM GruppoPiattiSostituiti WHERE (((GruppoPiattiSostituiti.alimento)='Insalata'));
=> acts
DELETE FROM GruppoPiattiSostituiti WHERE (((GruppoPiattiSostituiti.alimento)='Insalata'))

-- [forget-replacing] and those in which it replaces
Delete GruppoPiattiSostituiti.sostituisci From GruppoPiattiSostituiti WHERE (((GruppoPiattiSostituiti.sostituisci)='Insalata'));
=> acts
Delete From GruppoPiattiSostituiti WHERE (((GruppoPiattiSostituiti.sostituisci)='Insalata'))

-- [list-kind] the names of the dishes of one kind, the numbered placeholders left out
SELECT Sostituisci.Piatto, Sostituisci.tipo From Sostituisci GROUP BY Sostituisci.Piatto, Sostituisci.tipo HAVING (((Sostituisci.Piatto)<>'Spuntino 1' And (Sostituisci.Piatto)<>'Spuntino 2' And (Sostituisci.Piatto)<>'Spuntino 3' And (Sostituisci.Piatto)<>'Spuntino 4' And (Sostituisci.Piatto)<>'Spuntino 5' And (Sostituisci.Piatto)<>'Spuntino 6' And (Sostituisci.Piatto)<>'Spuntino 7' And (Sostituisci.Piatto)<>'Colazione 1' And (Sostituisci.Piatto)<>'Colazione 2' And (Sostituisci.Piatto)<>'Colazione 3' And (Sostituisci.Piatto)<>'Colazione 4' And (Sostituisci.Piatto)<>'Colazione 5' And (Sostituisci.Piatto)<>'Colazione 6' And (Sostituisci.Piatto)<>'Colazione 7') AND ((Sostituisci.tipo)='menu')) ORDER BY Sostituisci.Piatto;
=> reads
SELECT Sostituisci.Piatto, Sostituisci.tipo From Sostituisci WHERE (((Sostituisci.Piatto)<>'Spuntino 1' And (Sostituisci.Piatto)<>'Spuntino 2' And (Sostituisci.Piatto)<>'Spuntino 3' And (Sostituisci.Piatto)<>'Spuntino 4' And (Sostituisci.Piatto)<>'Spuntino 5' And (Sostituisci.Piatto)<>'Spuntino 6' And (Sostituisci.Piatto)<>'Spuntino 7' And (Sostituisci.Piatto)<>'Colazione 1' And (Sostituisci.Piatto)<>'Colazione 2' And (Sostituisci.Piatto)<>'Colazione 3' And (Sostituisci.Piatto)<>'Colazione 4' And (Sostituisci.Piatto)<>'Colazione 5' And (Sostituisci.Piatto)<>'Colazione 6' And (Sostituisci.Piatto)<>'Colazione 7') AND ((Sostituisci.tipo)='menu')) GROUP BY Sostituisci.Piatto, Sostituisci.tipo ORDER BY Sostituisci.Piatto, Sostituisci.tipo

-- [list-kind-category] the names of the dishes of one kind and category
 SELECT Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Categoria From Sostituisci GROUP BY Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Categoria HAVING (((Sostituisci.Piatto)<>'Spuntino 1' And (Sostituisci.Piatto)<>'Spuntino 2' And (Sostituisci.Piatto)<>'Spuntino 3' And (Sostituisci.Piatto)<>'Spuntino 4' And (Sostituisci.Piatto)<>'Spuntino 5' And (Sostituisci.Piatto)<>'Spuntino 6' And (Sostituisci.Piatto)<>'Spuntino 7' And (Sostituisci.Piatto)<>'Colazione 1' And (Sostituisci.Piatto)<>'Colazione 2' And (Sostituisci.Piatto)<>'Colazione 3' And (Sostituisci.Piatto)<>'Colazione 4' And (Sostituisci.Piatto)<>'Colazione 5' And (Sostituisci.Piatto)<>'Colazione 6' And (Sostituisci.Piatto)<>'Colazione 7') AND ((Sostituisci.tipo)='Menu') AND ((Sostituisci.Categoria)='Carne')) ORDER BY Sostituisci.Piatto;
=> reads
SELECT Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Categoria From Sostituisci WHERE (((Sostituisci.Piatto)<>'Spuntino 1' And (Sostituisci.Piatto)<>'Spuntino 2' And (Sostituisci.Piatto)<>'Spuntino 3' And (Sostituisci.Piatto)<>'Spuntino 4' And (Sostituisci.Piatto)<>'Spuntino 5' And (Sostituisci.Piatto)<>'Spuntino 6' And (Sostituisci.Piatto)<>'Spuntino 7' And (Sostituisci.Piatto)<>'Colazione 1' And (Sostituisci.Piatto)<>'Colazione 2' And (Sostituisci.Piatto)<>'Colazione 3' And (Sostituisci.Piatto)<>'Colazione 4' And (Sostituisci.Piatto)<>'Colazione 5' And (Sostituisci.Piatto)<>'Colazione 6' And (Sostituisci.Piatto)<>'Colazione 7') AND ((Sostituisci.tipo)='Menu') AND ((Sostituisci.Categoria)='Carne')) GROUP BY Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Categoria ORDER BY Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Categoria

-- [list-no-kind] the names for a category before a kind is chosen: the kind is then the empty text
SELECT Sostituisci.Piatto From Sostituisci GROUP BY Sostituisci.Piatto, Sostituisci.tipo  Having (((Sostituisci.Piatto) <> 'Spuntino 1' And (Sostituisci.Piatto) <> 'Spuntino 2' And (Sostituisci.Piatto) <> 'Spuntino 3' And (Sostituisci.Piatto) <> 'Spuntino 4' And (Sostituisci.Piatto) <> 'Spuntino 5' And (Sostituisci.Piatto) <> 'Spuntino 6' And (Sostituisci.Piatto) <> 'Spuntino 7') And ((Sostituisci.tipo) = '')) ORDER BY Sostituisci.Piatto;
=> reads
SELECT Sostituisci.Piatto From Sostituisci WHERE (((Sostituisci.Piatto) <> 'Spuntino 1' And (Sostituisci.Piatto) <> 'Spuntino 2' And (Sostituisci.Piatto) <> 'Spuntino 3' And (Sostituisci.Piatto) <> 'Spuntino 4' And (Sostituisci.Piatto) <> 'Spuntino 5' And (Sostituisci.Piatto) <> 'Spuntino 6' And (Sostituisci.Piatto) <> 'Spuntino 7') And ((Sostituisci.tipo) = '')) GROUP BY Sostituisci.Piatto, Sostituisci.tipo ORDER BY Sostituisci.Piatto, Sostituisci.tipo

-- [list-category] the names for a category and a kind; the conditions come in two chains
 SELECT Sostituisci.Piatto, Sostituisci.Categoria From Sostituisci GROUP BY Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Categoria HAVING (((Sostituisci.Piatto)<>'Spuntino 1' And (Sostituisci.Piatto)<>'Spuntino 2' And (Sostituisci.Piatto)<>'Spuntino 3' And (Sostituisci.Piatto)<>'Spuntino 4' And (Sostituisci.Piatto)<>'Spuntino 5' And (Sostituisci.Piatto)<>'Spuntino 6' And (Sostituisci.Piatto)<>'Spuntino 7') AND ((Sostituisci.tipo)='Menu') AND ((Sostituisci.Categoria)='Carne'))  and ((Sostituisci.Piatto) <> 'Colazione 1' And (Sostituisci.Piatto) <> 'Colazione 2' And (Sostituisci.Piatto) <> 'Colazione 3' And (Sostituisci.Piatto) <> 'Colazione 4' And (Sostituisci.Piatto) <> 'Colazione 5' And (Sostituisci.Piatto) <> 'Colazione 6' And (Sostituisci.Piatto) <> 'Colazione 7') ORDER BY Sostituisci.Piatto;
=> reads
SELECT Sostituisci.Piatto, Sostituisci.Categoria From Sostituisci WHERE (((Sostituisci.Piatto)<>'Spuntino 1' And (Sostituisci.Piatto)<>'Spuntino 2' And (Sostituisci.Piatto)<>'Spuntino 3' And (Sostituisci.Piatto)<>'Spuntino 4' And (Sostituisci.Piatto)<>'Spuntino 5' And (Sostituisci.Piatto)<>'Spuntino 6' And (Sostituisci.Piatto)<>'Spuntino 7') AND ((Sostituisci.tipo)='Menu') AND ((Sostituisci.Categoria)='Carne')) and ((Sostituisci.Piatto) <> 'Colazione 1' And (Sostituisci.Piatto) <> 'Colazione 2' And (Sostituisci.Piatto) <> 'Colazione 3' And (Sostituisci.Piatto) <> 'Colazione 4' And (Sostituisci.Piatto) <> 'Colazione 5' And (Sostituisci.Piatto) <> 'Colazione 6' And (Sostituisci.Piatto) <> 'Colazione 7') GROUP BY Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Categoria ORDER BY Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Categoria
