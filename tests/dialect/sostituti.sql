-- Substitute groups: which dish may stand in for which.

-- [pairs] the pairs in which a dish is replaced
Select * from gruppopiattisostituiti where Alimento = 'pasta al pomodoro'
=> writes gruppopiattisostituiti
Select *, gruppopiattisostituiti.rowid AS jet_key from gruppopiattisostituiti where Alimento = 'pasta al pomodoro' ORDER BY gruppopiattisostituiti.rowid

-- [new-pair] a pair is added; no blank stands before the second AS
INSERT INTO GruppoPiattiSostituiti ( alimento, sostituisci ) SELECT 'Zuppa nuova' AS alimento, 'Pollo'AS sostituisci;
=> acts
INSERT INTO GruppoPiattiSostituiti (alimento, sostituisci ) SELECT 'Zuppa nuova' AS alimento, 'Pollo'AS sostituisci

-- [dishes] all dishes by name: two columns and then all of them, so that two names come twice
SELECT Sostituisci.piatto, Sostituisci.ID, * FROM Sostituisci ORDER BY Sostituisci.piatto;
=> writes Sostituisci
SELECT Sostituisci.piatto, Sostituisci.ID, *, Sostituisci.rowid AS jet_key FROM Sostituisci ORDER BY Sostituisci.piatto, Sostituisci.rowid

-- [alternatives] the alternatives to a dish with their class and calories; one column is grouped twice
SELECT GruppoPiattiSostituiti.sostituisci, Sostituisci.KCalOndira, Sostituisci.KCalTesmo, Sostituisci.Categoria, Sostituisci.Tipo  FROM GruppoPiattiSostituiti INNER JOIN Sostituisci ON GruppoPiattiSostituiti.sostituisci = Sostituisci.Piatto WHERE (((GruppoPiattiSostituiti.Alimento)='pasta al pomodoro')) GROUP BY GruppoPiattiSostituiti.sostituisci, GruppoPiattiSostituiti.alimento, GruppoPiattiSostituiti.sostituisci, Sostituisci.KCalOndira, Sostituisci.KCalTesmo, Sostituisci.Categoria, Sostituisci.Tipo  ORDER BY GruppoPiattiSostituiti.alimento, GruppoPiattiSostituiti.sostituisci;
=> reads
SELECT GruppoPiattiSostituiti.sostituisci, Sostituisci.KCalOndira, Sostituisci.KCalTesmo, Sostituisci.Categoria, Sostituisci.Tipo FROM GruppoPiattiSostituiti INNER JOIN Sostituisci ON GruppoPiattiSostituiti.sostituisci = Sostituisci.Piatto WHERE (((GruppoPiattiSostituiti.Alimento)='pasta al pomodoro')) GROUP BY GruppoPiattiSostituiti.sostituisci, GruppoPiattiSostituiti.alimento, GruppoPiattiSostituiti.sostituisci, Sostituisci.KCalOndira, Sostituisci.KCalTesmo, Sostituisci.Categoria, Sostituisci.Tipo ORDER BY GruppoPiattiSostituiti.alimento, GruppoPiattiSostituiti.sostituisci, Sostituisci.KCalOndira, Sostituisci.KCalTesmo, Sostituisci.Categoria, Sostituisci.Tipo

-- [doubles] pairs that are there more than once, with the first key of each
SELECT First(GruppoPiattiSostituiti.[sostituisci]) AS sostituisciCampo, First(GruppoPiattiSostituiti.[alimento]) AS alimentoCampo, Count(GruppoPiattiSostituiti.[sostituisci]) AS NumDuplicati, GruppoPiattiSostituiti.dataInserimento, First(GruppoPiattiSostituiti.ID) AS PrimoDiID From GruppoPiattiSostituiti GROUP BY GruppoPiattiSostituiti.[sostituisci], GruppoPiattiSostituiti.[alimento], GruppoPiattiSostituiti.dataInserimento HAVING (((Count(GruppoPiattiSostituiti.[sostituisci]))>1) AND ((Count(GruppoPiattiSostituiti.[alimento]))>1));
=> reads
SELECT jet_first(GruppoPiattiSostituiti.[sostituisci], GruppoPiattiSostituiti.rowid) AS sostituisciCampo, jet_first(GruppoPiattiSostituiti.[alimento], GruppoPiattiSostituiti.rowid) AS alimentoCampo, Count(GruppoPiattiSostituiti.[sostituisci]) AS NumDuplicati, GruppoPiattiSostituiti.dataInserimento, jet_first(GruppoPiattiSostituiti.ID, GruppoPiattiSostituiti.rowid) AS PrimoDiID From GruppoPiattiSostituiti GROUP BY GruppoPiattiSostituiti.[sostituisci], GruppoPiattiSostituiti.[alimento], GruppoPiattiSostituiti.dataInserimento HAVING (((Count(GruppoPiattiSostituiti.[sostituisci]))>1) AND ((Count(GruppoPiattiSostituiti.[alimento]))>1)) ORDER BY GruppoPiattiSostituiti.[sostituisci], GruppoPiattiSostituiti.[alimento], GruppoPiattiSostituiti.dataInserimento

-- [delete] a pair is deleted by its key
DELETE GruppoPiattiSostituiti.ID FROM GruppoPiattiSostituiti WHERE (((GruppoPiattiSostituiti.ID)=1));
=> acts
DELETE FROM GruppoPiattiSostituiti WHERE (((GruppoPiattiSostituiti.ID)=1))
