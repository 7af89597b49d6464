-- The daily sheet.

-- [days] the days of the sheet, in the order of the calendar and not of their texts
SELECT CDate([SchedaPranzo].[datainserimento]) AS dataInserimento From SchedaPranzo GROUP BY CDate([SchedaPranzo].[datainserimento]);
=> reads
SELECT CDate([SchedaPranzo].[datainserimento]) AS dataInserimento From SchedaPranzo GROUP BY CDate([SchedaPranzo].[datainserimento]) ORDER BY CDate([SchedaPranzo].[datainserimento])

-- [day] one day: looked up by text, in the sheet's own order
SELECT *  From SchedaPranzo Where datainserimento = '02/01/2025' ORDER BY SchedaPranzo.dataInserimento DESC , SchedaPranzo.ID;
=> writes SchedaPranzo
SELECT *, SchedaPranzo.rowid AS jet_key From SchedaPranzo Where datainserimento = '02/01/2025' ORDER BY SchedaPranzo.dataInserimento DESC , SchedaPranzo.ID, SchedaPranzo.rowid

-- [all] the whole sheet in its own order
Select * from SchedaPranzo ORDER BY SchedaPranzo.dataInserimento DESC , SchedaPranzo.ID;
=> writes SchedaPranzo
Select *, SchedaPranzo.rowid AS jet_key from SchedaPranzo ORDER BY SchedaPranzo.dataInserimento DESC , SchedaPranzo.ID, SchedaPranzo.rowid

-- [overview] the whole sheet for the overview grid
SELECT  * FROM SchedaPranzo ORDER BY SchedaPranzo.dataInserimento DESC;
=> writes SchedaPranzo
SELECT *, SchedaPranzo.rowid AS jet_key FROM SchedaPranzo ORDER BY SchedaPranzo.dataInserimento DESC, SchedaPranzo.rowid

-- [add] the sheet as the set to which the expansion adds
Select * from SchedaPranzo
=> writes SchedaPranzo
Select *, SchedaPranzo.rowid AS jet_key from SchedaPranzo ORDER BY SchedaPranzo.rowid

-- [clear] the days of a period are deleted; the period is read day first
DELETE SchedaPranzo.*, SchedaPranzo.dataInserimento, CDate([SchedaPranzo].[dataInserimento]) From SchedaPranzo  WHERE (((CDate([SchedaPranzo].[dataInserimento]))>=CDate('02/01/2025') And (CDate([SchedaPranzo].[dataInserimento]))<=CDate('05/01/2025')));
=> acts
DELETE From SchedaPranzo WHERE (((CDate([SchedaPranzo].[dataInserimento]))>=CDate('02/01/2025') And (CDate([SchedaPranzo].[dataInserimento]))<=CDate('05/01/2025')))

-- [totals] what the day gives to each person; one row of nulls for a day without rows
SELECT Sum(SchedaPranzo.Totale1) AS SommaDiTotale1, Sum(SchedaPranzo.Totale2) AS SommaDiTotale2 From SchedaPranzo WHERE (((SchedaPranzo.dataInserimento)='02/01/2025'));
=> reads
SELECT Sum(SchedaPranzo.Totale1) AS SommaDiTotale1, Sum(SchedaPranzo.Totale2) AS SommaDiTotale2 From SchedaPranzo WHERE (((SchedaPranzo.dataInserimento)='02/01/2025'))

-- [portions] the rows of a day whose portions are balanced, in key order
SELECT SchedaPranzo.id, SchedaPranzo.KC100gr, SchedaPranzo.quantita, SchedaPranzo.KcNominale, SchedaPranzo.Totale1, SchedaPranzo.quantita2, SchedaPranzo.KcNominale2, SchedaPranzo.Totale2, SchedaPranzo.dataInserimento From SchedaPranzo WHERE (((SchedaPranzo.dataInserimento)='02/01/2025'));
=> writes SchedaPranzo
SELECT SchedaPranzo.id, SchedaPranzo.KC100gr, SchedaPranzo.quantita, SchedaPranzo.KcNominale, SchedaPranzo.Totale1, SchedaPranzo.quantita2, SchedaPranzo.KcNominale2, SchedaPranzo.Totale2, SchedaPranzo.dataInserimento, SchedaPranzo.rowid AS jet_key From SchedaPranzo WHERE (((SchedaPranzo.dataInserimento)='02/01/2025')) ORDER BY SchedaPranzo.rowid

-- [sum] the sums of a day, asked for again and again: the day must be found by its index
SELECT Sum(SchedaPranzo.Totale1) AS Totale1, Sum(SchedaPranzo.Totale2) AS Totale2, SchedaPranzo.dataInserimento From SchedaPranzo GROUP BY SchedaPranzo.dataInserimento HAVING (((SchedaPranzo.dataInserimento)='02/01/2025'));
=> reads
SELECT Sum(SchedaPranzo.Totale1) AS Totale1, Sum(SchedaPranzo.Totale2) AS Totale2, SchedaPranzo.dataInserimento From SchedaPranzo WHERE (((SchedaPranzo.dataInserimento)='02/01/2025')) GROUP BY SchedaPranzo.dataInserimento ORDER BY SchedaPranzo.dataInserimento

-- [meal] one meal of a day for the prints
 SELECT SchedaPranzo.dataInserimento, SchedaPranzo.PranzoCenaSpuntino, SchedaPranzo.Piatto, SchedaPranzo.Alimento, SchedaPranzo.KC100gr, SchedaPranzo.quantita, SchedaPranzo.KcNominale, SchedaPranzo.Totale1, SchedaPranzo.quantita2, SchedaPranzo.KcNominale2, SchedaPranzo.Totale2 From SchedaPranzo Where (((SchedaPranzo.dataInserimento) = '02/01/2025') And ((SchedaPranzo.PranzoCenaSpuntino) = 'pranzo')) ORDER BY SchedaPranzo.PranzoCenaSpuntino, SchedaPranzo.Piatto, SchedaPranzo.alimento;
=> writes SchedaPranzo
SELECT SchedaPranzo.dataInserimento, SchedaPranzo.PranzoCenaSpuntino, SchedaPranzo.Piatto, SchedaPranzo.Alimento, SchedaPranzo.KC100gr, SchedaPranzo.quantita, SchedaPranzo.KcNominale, SchedaPranzo.Totale1, SchedaPranzo.quantita2, SchedaPranzo.KcNominale2, SchedaPranzo.Totale2, SchedaPranzo.rowid AS jet_key From SchedaPranzo Where (((SchedaPranzo.dataInserimento) = '02/01/2025') And ((SchedaPranzo.PranzoCenaSpuntino) = 'pranzo')) ORDER BY SchedaPranzo.PranzoCenaSpuntino, SchedaPranzo.Piatto, SchedaPranzo.alimento, SchedaPranzo.rowid

-- [delete] a row is deleted by its key
DELETE ID, *  FROM SchedaPranzo where SchedaPranzo.ID = 1
=> acts
DELETE FROM SchedaPranzo where SchedaPranzo.ID = 1

-- [delete-dish] a dish is taken out of a meal of a day
DELETE SchedaPranzo.dataInserimento, SchedaPranzo.PranzoCenaSpuntino, SchedaPranzo.Piatto, * FROM SchedaPranzo where SchedaPranzo.datainserimento = '02/01/2025' and SchedaPranzo.piatto = 'PASTA AL POMODORO' and SchedaPranzo.PranzoCenaSpuntino = 'pranzo'
=> acts
DELETE FROM SchedaPranzo where SchedaPranzo.datainserimento = '02/01/2025' and SchedaPranzo.piatto = 'PASTA AL POMODORO' and SchedaPranzo.PranzoCenaSpuntino = 'pranzo'

-- [breakfasts] the numbered breakfasts that have foods
 SELECT Piatti.Piatto From Piatti GROUP BY Piatti.Piatto  Having (((Piatti.Piatto) = 'colazione 1')) Or (((Piatti.Piatto) = 'colazione 2')) Or (((Piatti.Piatto) = 'colazione 3')) Or (((Piatti.Piatto) = 'colazione 4')) Or (((Piatti.Piatto) = 'colazione 5')) Or (((Piatti.Piatto) = 'colazione 6')) Or (((Piatti.Piatto) = 'colazione 7') )  ORDER BY Piatti.Piatto;
=> reads
SELECT Piatti.Piatto From Piatti WHERE (((Piatti.Piatto) = 'colazione 1')) Or (((Piatti.Piatto) = 'colazione 2')) Or (((Piatti.Piatto) = 'colazione 3')) Or (((Piatti.Piatto) = 'colazione 4')) Or (((Piatti.Piatto) = 'colazione 5')) Or (((Piatti.Piatto) = 'colazione 6')) Or (((Piatti.Piatto) = 'colazione 7') ) GROUP BY Piatti.Piatto ORDER BY Piatti.Piatto

-- [list-breakfast] the breakfasts offered for insertion
 SELECT Sostituisci.Piatto From Sostituisci WHERE (((Sostituisci.tipo)='colazione')) GROUP BY Sostituisci.Piatto  Having ((Sostituisci.Piatto) <> 'Colazione 1' And (Sostituisci.Piatto) <> 'Colazione 2' And (Sostituisci.Piatto) <> 'Colazione 3' And (Sostituisci.Piatto) <> 'Colazione 4' And (Sostituisci.Piatto) <> 'Colazione 5' And (Sostituisci.Piatto) <> 'Colazione 6' And (Sostituisci.Piatto) <> 'Colazione 7') ORDER BY Sostituisci.Piatto;
=> reads
SELECT Sostituisci.Piatto From Sostituisci WHERE (((Sostituisci.tipo)='colazione')) AND ((Sostituisci.Piatto) <> 'Colazione 1' And (Sostituisci.Piatto) <> 'Colazione 2' And (Sostituisci.Piatto) <> 'Colazione 3' And (Sostituisci.Piatto) <> 'Colazione 4' And (Sostituisci.Piatto) <> 'Colazione 5' And (Sostituisci.Piatto) <> 'Colazione 6' And (Sostituisci.Piatto) <> 'Colazione 7') GROUP BY Sostituisci.Piatto ORDER BY Sostituisci.Piatto

-- [list-snack] the snacks offered for insertion
SELECT Sostituisci.Piatto, Sostituisci.tipo From Sostituisci Where (((Sostituisci.Piatto) <> 'Spuntino 1' And (Sostituisci.Piatto) <> 'Spuntino 2' And (Sostituisci.Piatto) <> 'Spuntino 3' And (Sostituisci.Piatto) <> 'Spuntino 4' And (Sostituisci.Piatto) <> 'Spuntino 5' And (Sostituisci.Piatto) <> 'Spuntino 6' And (Sostituisci.Piatto) <> 'Spuntino 7') And ((Sostituisci.tipo) = 'Spuntino')) ORDER BY Sostituisci.Piatto;
=> writes Sostituisci
SELECT Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.rowid AS jet_key From Sostituisci Where (((Sostituisci.Piatto) <> 'Spuntino 1' And (Sostituisci.Piatto) <> 'Spuntino 2' And (Sostituisci.Piatto) <> 'Spuntino 3' And (Sostituisci.Piatto) <> 'Spuntino 4' And (Sostituisci.Piatto) <> 'Spuntino 5' And (Sostituisci.Piatto) <> 'Spuntino 6' And (Sostituisci.Piatto) <> 'Spuntino 7') And ((Sostituisci.tipo) = 'Spuntino')) ORDER BY Sostituisci.Piatto, Sostituisci.rowid

-- [list-side] the side dishes offered for insertion
 SELECT Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.categoria From Sostituisci Where (((Sostituisci.tipo) = 'menu') And ((Sostituisci.categoria) = 'contorno')) ORDER BY Sostituisci.Piatto;
=> writes Sostituisci
SELECT Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.categoria, Sostituisci.rowid AS jet_key From Sostituisci Where (((Sostituisci.tipo) = 'menu') And ((Sostituisci.categoria) = 'contorno')) ORDER BY Sostituisci.Piatto, Sostituisci.rowid

-- [list-main] the main dishes offered for insertion
SELECT Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.categoria From Sostituisci Where (((Sostituisci.tipo) = 'menu') And ((Sostituisci.categoria) <> 'Contorno')) ORDER BY Sostituisci.Piatto;
=> writes Sostituisci
SELECT Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.categoria, Sostituisci.rowid AS jet_key From Sostituisci Where (((Sostituisci.tipo) = 'menu') And ((Sostituisci.categoria) <> 'Contorno')) ORDER BY Sostituisci.Piatto, Sostituisci.rowid
