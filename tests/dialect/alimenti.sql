-- The food sheet: foods, their groups, and the lists made from them.

-- [new-key] the key of a new food is the highest one plus 1; null over an empty table
SELECT Max(ID) + 1 AS ID FROM Categorie;
=> reads
SELECT Max(ID) + 1 AS ID FROM Categorie

-- [sheet] every food, in key order, to be edited
SELECT * FROM Categorie
=> writes Categorie
SELECT *, Categorie.rowid AS jet_key FROM Categorie ORDER BY Categorie.rowid

-- [groups] the groups of foods for the list beside the sheet
Select * from CategorieMaster
=> writes CategorieMaster
Select *, CategorieMaster.rowid AS jet_key from CategorieMaster ORDER BY CategorieMaster.rowid

-- [names] the foods by name, each once, with its calories; group 999 stays out
SELECT Categorie.Tipo, Trim([categorie.alimento]) AS Alimento, Min(Categorie.Kcal) AS Kcal From Categorie GROUP BY Categorie.Tipo, Trim([categorie.alimento]) Having (((Categorie.Tipo) <> 999)) ORDER BY Trim([categorie.alimento]);
=> reads
SELECT Categorie.Tipo, Trim([categorie].[alimento]) AS Alimento, Min(Categorie.Kcal) AS Kcal From Categorie WHERE (((Categorie.Tipo) <> 999)) GROUP BY Categorie.Tipo, (Trim([categorie].[alimento]) COLLATE NOCASE) ORDER BY (Trim([categorie].[alimento]) COLLATE NOCASE), Categorie.Tipo

-- [delete] a food is deleted by its key
Delete * from Categorie where ID = 99
=> acts
Delete from Categorie where ID = 99

-- [columns] the table whose columns a record form asks for, opened by its name
Amministratori
=> opens Amministratori
SELECT * FROM [Amministratori]
