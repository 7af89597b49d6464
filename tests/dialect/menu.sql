-- The calendar of menus.

-- [latest] the calendar, latest day first
Select * from Menu order by Datamenu DESC
=> writes Menu
Select *, Menu.rowid AS jet_key from Menu order by Datamenu DESC, Menu.rowid

-- [favourites-main] whether meat or fish is among the favourites: And binds before Or
SELECT Sostituisci.Preferito, Sostituisci.Categoria From Sostituisci GROUP BY Sostituisci.Preferito, Sostituisci.Categoria HAVING  Sostituisci.Preferito =True  AND  Sostituisci.Categoria = 'Carne' or   Sostituisci.Preferito =True  AND  Sostituisci.Categoria = 'Pesce'
=> reads
SELECT Sostituisci.Preferito, Sostituisci.Categoria From Sostituisci WHERE Sostituisci.Preferito <>0 AND Sostituisci.Categoria = 'Carne' or Sostituisci.Preferito <>0 AND Sostituisci.Categoria = 'Pesce' GROUP BY Sostituisci.Preferito, Sostituisci.Categoria ORDER BY Sostituisci.Preferito, Sostituisci.Categoria

-- [favourites-single] the same for single-dish meals
SELECT Sostituisci.Preferito, Sostituisci.Categoria From Sostituisci GROUP BY Sostituisci.Preferito, Sostituisci.Categoria HAVING  Sostituisci.Preferito =True  AND  Sostituisci.Categoria = 'Piatto unico'  
=> reads
SELECT Sostituisci.Preferito, Sostituisci.Categoria From Sostituisci WHERE Sostituisci.Preferito <>0 AND Sostituisci.Categoria = 'Piatto unico' GROUP BY Sostituisci.Preferito, Sostituisci.Categoria ORDER BY Sostituisci.Preferito, Sostituisci.Categoria

-- [favourites-pizza] the same for sandwiches and pizza
SELECT Sostituisci.Preferito, Sostituisci.Categoria From Sostituisci GROUP BY Sostituisci.Preferito, Sostituisci.Categoria HAVING  Sostituisci.Preferito =True  AND  Sostituisci.Categoria = 'Panino - Pizza'  
=> reads
SELECT Sostituisci.Preferito, Sostituisci.Categoria From Sostituisci WHERE Sostituisci.Preferito <>0 AND Sostituisci.Categoria = 'Panino - Pizza' GROUP BY Sostituisci.Preferito, Sostituisci.Categoria ORDER BY Sostituisci.Preferito, Sostituisci.Categoria

-- [favourites-pasta] the same for pasta and soup
SELECT Sostituisci.Preferito, Sostituisci.Categoria From Sostituisci GROUP BY Sostituisci.Preferito, Sostituisci.Categoria HAVING  Sostituisci.Preferito =True  AND  Sostituisci.Categoria = 'Pasta - Minestra'  
=> reads
SELECT Sostituisci.Preferito, Sostituisci.Categoria From Sostituisci WHERE Sostituisci.Preferito <>0 AND Sostituisci.Categoria = 'Pasta - Minestra' GROUP BY Sostituisci.Preferito, Sostituisci.Categoria ORDER BY Sostituisci.Preferito, Sostituisci.Categoria

-- [clear] the days to be planned anew are deleted; blanks stand in the second date
DELETE Menu.DataMenu From Menu WHERE (([menu].[DataMenu]>= #1/2/2025# And [menu].[DataMenu]<=#1/ 8/ 2025#));
=> acts
DELETE From Menu WHERE (([menu].[DataMenu]>= '2025-01-02' And [menu].[DataMenu]<='2025-01-08'))

-- [add] the calendar as the set to which days are added; a blank ends the text
Select * from Menu 
=> writes Menu
Select *, Menu.rowid AS jet_key from Menu ORDER BY Menu.rowid

-- [expand] the days that go to the daily sheets
SELECT Menu.DataMenu, Menu.Colazione, Menu.pane1, Menu.pane2, Menu.Spuntino1, Menu.Pranzo, Menu.Contorno1, Menu.Spuntino2, Menu.Cena, Menu.Contorno2, Menu.Spuntino3, Menu.dataInserimento From Menu  WHERE (((Menu.DataMenu)>=#1/1/2025# And (Menu.DataMenu)<=#1/31/2025#));
=> writes Menu
SELECT Menu.DataMenu, Menu.Colazione, Menu.pane1, Menu.pane2, Menu.Spuntino1, Menu.Pranzo, Menu.Contorno1, Menu.Spuntino2, Menu.Cena, Menu.Contorno2, Menu.Spuntino3, Menu.dataInserimento, Menu.rowid AS jet_key From Menu WHERE (((Menu.DataMenu)>='2025-01-01' And (Menu.DataMenu)<='2025-01-31')) ORDER BY Menu.rowid

-- [view] the days of a period for the grid
SELECT Menu.DataMenu, Menu.Colazione, Menu.Spuntino1, Menu.Pranzo, Menu.Contorno1, Menu.Spuntino2, Menu.Cena, Menu.Contorno2, Menu.Spuntino3, Menu.dataInserimento From Menu  WHERE (((Menu.DataMenu)>=#1/1/2025# And (Menu.DataMenu)<=#1/31/2025#));
=> writes Menu
SELECT Menu.DataMenu, Menu.Colazione, Menu.Spuntino1, Menu.Pranzo, Menu.Contorno1, Menu.Spuntino2, Menu.Cena, Menu.Contorno2, Menu.Spuntino3, Menu.dataInserimento, Menu.rowid AS jet_key From Menu WHERE (((Menu.DataMenu)>='2025-01-01' And (Menu.DataMenu)<='2025-01-31')) ORDER BY Menu.rowid

-- [delete] a period is deleted; its days are written day first, and change places where the first number is no month above 12
DELETE Menu.DataMenu From Menu WHERE (([menu].[DataMenu]>= #05/01/2025# And [menu].[DataMenu]<=#20/01/2025#));
=> acts
DELETE From Menu WHERE (([menu].[DataMenu]>= '2025-05-01' And [menu].[DataMenu]<='2025-01-20'))

-- [view-all] the whole calendar for the grid
SELECT Menu.DataMenu, Menu.Colazione, Menu.Spuntino1, Menu.Pranzo, Menu.Contorno1, Menu.Spuntino2, Menu.Cena, Menu.Contorno2, Menu.Spuntino3, Menu.dataInserimento From Menu 
=> writes Menu
SELECT Menu.DataMenu, Menu.Colazione, Menu.Spuntino1, Menu.Pranzo, Menu.Contorno1, Menu.Spuntino2, Menu.Cena, Menu.Contorno2, Menu.Spuntino3, Menu.dataInserimento, Menu.rowid AS jet_key From Menu ORDER BY Menu.rowid
