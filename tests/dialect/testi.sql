-- What a text may hold: it passes untouched, and so do names between brackets.
@archive none

-- [words] a dish whose name looks like a statement
Select * from Piatti where Piatto = 'Menu True #1 [x] /100'
=> writes Piatti
Select *, Piatti.rowid AS jet_key from Piatti where Piatto = 'Menu True #1 [x] /100' ORDER BY Piatti.rowid

-- [apostrophe] a doubled apostrophe is the sign itself
Select * from Piatti where Piatto = 'Pesce all''acqua pazza; FROM'
=> writes Piatti
Select *, Piatti.rowid AS jet_key from Piatti where Piatto = 'Pesce all''acqua pazza; FROM' ORDER BY Piatti.rowid

-- [quotes] double quotes hold a text too
SELECT * FROM Piatti WHERE Piatto = "L'arrosto ""buono"""
=> writes Piatti
SELECT *, Piatti.rowid AS jet_key FROM Piatti WHERE Piatto = 'L''arrosto "buono"' ORDER BY Piatti.rowid

-- [accents] accents stay as they are
Select * from Piatti where Piatto = 'Purè di città' order by Alimento
=> writes Piatti
Select *, Piatti.rowid AS jet_key from Piatti where Piatto = 'Purè di città' order by Alimento, Piatti.rowid

-- [brackets] a bracketed name is a name, whatever it holds
SELECT [True], [x /100] FROM [Tabella True] ORDER BY [x /100]
=> writes Tabella True
SELECT [True], [x /100], [Tabella True].rowid AS jet_key FROM [Tabella True] ORDER BY [x /100], [Tabella True].rowid

-- [one-name] a bracketed name alone is opened, blanks and all
[Tabella mia]
=> opens Tabella mia
SELECT * FROM [Tabella mia]
