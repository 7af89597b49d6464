-- Constructs that no statement of the program shows alone.
@archive none

-- [false] a no is 0
SELECT * FROM Sostituisci WHERE Preferito = False
=> writes Sostituisci
SELECT *, Sostituisci.rowid AS jet_key FROM Sostituisci WHERE Preferito = 0 ORDER BY Sostituisci.rowid

-- [set-true] a yes that is stored is 1, a yes that is asked for is anything but 0
UPDATE Sostituisci SET Sostituisci.Preferito = True, Sostituisci.Ordine = 1 WHERE Preferito = True
=> acts
UPDATE Sostituisci SET Preferito = 1, Ordine = 1 WHERE Preferito <> 0

-- [set-word] a column named like a word of the language gets brackets when it loses its table
UPDATE T SET T.Order = T.Order + 1
=> acts
UPDATE T SET [Order] = T.Order + 1

-- [subselect] a select within brackets has its own list and conditions
SELECT Trim(a) AS x, (SELECT Max(b) FROM U WHERE Trim(c) = Trim(T.c)) AS y, Trim(d) AS z FROM T
=> writes T
SELECT Trim(a) AS x, (SELECT Max(b) FROM U WHERE (Trim(c) COLLATE NOCASE) = (Trim(T.c) COLLATE NOCASE)) AS y, Trim(d) AS z, T.rowid AS jet_key FROM T ORDER BY T.rowid

-- [insert] values are rewritten one by one
INSERT INTO Menu (DataMenu, Colazione) VALUES (#3/2/2025#, Null)
=> acts
INSERT INTO Menu (DataMenu, Colazione) VALUES ('2025-03-02', Null)

-- [true-column] a column named like a word of the language is a column
SELECT T.True FROM T ORDER BY T.First
=> writes T
SELECT T.True, T.rowid AS jet_key FROM T ORDER BY T.First, T.rowid

-- [swap] the first number of a date is the month while it can be
SELECT * FROM Menu WHERE DataMenu = #12/11/2025# Or DataMenu = #13/11/2025#
=> writes Menu
SELECT *, Menu.rowid AS jet_key FROM Menu WHERE DataMenu = '2025-12-11' Or DataMenu = '2025-11-13' ORDER BY Menu.rowid

-- [stored-day] a day in stored form stays
SELECT * FROM Menu WHERE DataMenu = #2025-02-28#
=> writes Menu
SELECT *, Menu.rowid AS jet_key FROM Menu WHERE DataMenu = '2025-02-28' ORDER BY Menu.rowid

-- [division] only whole divisors change
SELECT a / 4 AS x, a/2.5 AS y, a/b AS z FROM T
=> writes T
SELECT a / 4.0 AS x, a/2.5 AS y, a/b AS z, T.rowid AS jet_key FROM T ORDER BY T.rowid

-- [having-mixed] a condition on a sum stays behind the grouping
SELECT Piatto, Sum(Totale1) AS Kcal FROM Piatti GROUP BY Piatto HAVING Piatto <> '' And Sum(Totale1) > 0
=> reads
SELECT Piatto, Sum(Totale1) AS Kcal FROM Piatti GROUP BY Piatto HAVING Piatto <> '' And Sum(Totale1) > 0 ORDER BY Piatto

-- [having-other] so does one on a column that is not grouped
SELECT Piatto FROM Piatti GROUP BY Piatto HAVING Alimento = 'Pasta'
=> reads
SELECT Piatto FROM Piatti GROUP BY Piatto HAVING Alimento = 'Pasta' ORDER BY Piatto

-- [having-where] a condition that moves stands in brackets beside the one that is there
SELECT Piatto FROM Piatti WHERE ID > 1 Or ID < 9 GROUP BY Piatto HAVING Piatto = 'a' Or Piatto = 'b'
=> reads
SELECT Piatto FROM Piatti WHERE (ID > 1 Or ID < 9) AND (Piatto = 'a' Or Piatto = 'b') GROUP BY Piatto ORDER BY Piatto

-- [alias] a table is called by its alias
SELECT p.Piatto FROM Piatti AS p WHERE p.ID > 1
=> writes Piatti
SELECT p.Piatto, p.rowid AS jet_key FROM Piatti AS p WHERE p.ID > 1 ORDER BY p.rowid

-- [join] rows of joined tables come in the order of their keys, first table first
SELECT a.Piatto FROM Piatti AS a INNER JOIN Sostituisci AS b ON Trim(a.Piatto) = b.Piatto
=> reads
SELECT a.Piatto FROM Piatti AS a INNER JOIN Sostituisci AS b ON (Trim(a.Piatto) COLLATE NOCASE) = b.Piatto ORDER BY a.rowid, b.rowid

-- [distinct] rows that stand for several have no key
SELECT DISTINCT Piatto FROM Piatti
=> reads
SELECT DISTINCT Piatto FROM Piatti

-- [union] united selects stay as they are
SELECT Piatto FROM Piatti UNION SELECT Piatto FROM Sostituisci
=> reads
SELECT Piatto FROM Piatti UNION SELECT Piatto FROM Sostituisci

-- [trim-list] a trimmed text in the list keeps its name, elsewhere it keeps its collation
SELECT Trim(Piatto) FROM Piatti WHERE Trim(Piatto) = 'a' ORDER BY Trim(Piatto)
=> writes Piatti
SELECT Trim(Piatto), Piatti.rowid AS jet_key FROM Piatti WHERE (Trim(Piatto) COLLATE NOCASE) = 'a' ORDER BY (Trim(Piatto) COLLATE NOCASE), Piatti.rowid

-- [first] First and Last go by the key
SELECT First(Alimento) AS a, Last(Alimento) AS b FROM Piatti GROUP BY Piatto
=> reads
SELECT jet_first(Alimento, Piatti.rowid) AS a, jet_last(Alimento, Piatti.rowid) AS b FROM Piatti GROUP BY Piatto ORDER BY Piatto

-- [minus] two signs side by side begin no comment
SELECT 1--2 AS x FROM T
=> writes T
SELECT 1- -2 AS x, T.rowid AS jet_key FROM T ORDER BY T.rowid

-- [stored-query] a stored query keeps to the columns it names
CREATE VIEW NuovoQueryDef AS SELECT Piatto FROM Piatti WHERE ID = True
=> acts
CREATE VIEW NuovoQueryDef AS SELECT Piatto FROM Piatti WHERE ID <> 0 ORDER BY Piatti.rowid

-- [drop] what needs no translation stays
DROP VIEW NuovoQueryDef
=> acts
DROP VIEW NuovoQueryDef

-- [lone-direction] a direction that stands alone is taken for a column
SELECT a FROM T GROUP BY Desc
=> reads
SELECT a FROM T GROUP BY Desc ORDER BY Desc

-- [having-of-one-group] where all rows are one group a condition on it stays behind the grouping
SELECT First(a) AS x FROM T HAVING 1 = 1
=> reads
SELECT jet_first(a, T.rowid) AS x FROM T GROUP BY NULL HAVING 1 = 1
