-- Catalogue maintenance: reports and the import of dishes.

-- [no-match] the report of dishes without a match: a table or a stored query, opened by its name
Nocorrispondenza
=> opens Nocorrispondenza
SELECT * FROM [Nocorrispondenza]

-- [new-calories] the calories to be copied into the dishes
Select Piatto, alimento, kc100gr from newPiatti order by Piatto
=> writes newPiatti
Select Piatto, alimento, kc100gr, newPiatti.rowid AS jet_key from newPiatti order by Piatto, newPiatti.rowid

-- [copy-calories] they are copied; names are compared without case and outer blanks
UPDATE Piatti SET Piatti.KC100gr = 250.5 WHERE (((trim(Piatti.Piatto))=Trim('pasta al pomodoro')) AND ((trim(Piatti.alimento))=Trim(' PASTA ')));
=> acts
UPDATE Piatti SET KC100gr = 250.5 WHERE ((((trim(Piatti.Piatto) COLLATE NOCASE))=(Trim('pasta al pomodoro') COLLATE NOCASE)) AND (((trim(Piatti.alimento) COLLATE NOCASE))=(Trim(' PASTA ') COLLATE NOCASE)))

-- [dish-texts] the texts of all dishes, by name
Select * from Sostituisci order by Piatto
=> writes Sostituisci
Select *, Sostituisci.rowid AS jet_key from Sostituisci order by Piatto, Sostituisci.rowid

-- [substitutes] the list of substitutes, to be added to
Select * from SostituisciMaster
=> writes SostituisciMaster
Select *, SostituisciMaster.rowid AS jet_key from SostituisciMaster ORDER BY SostituisciMaster.rowid

-- [fill-groups] the dishes in key order, from which groups are filled
Select * from Sostituisci order by ID
=> writes Sostituisci
Select *, Sostituisci.rowid AS jet_key from Sostituisci order by ID, Sostituisci.rowid

-- [groups] the groups, to be added to
Select * from GruppoPiattiSostituiti
=> writes GruppoPiattiSostituiti
Select *, GruppoPiattiSostituiti.rowid AS jet_key from GruppoPiattiSostituiti ORDER BY GruppoPiattiSostituiti.rowid

-- [export] the dishes by name, for the export
select * from Sostituisci order by piatto
=> writes Sostituisci
select *, Sostituisci.rowid AS jet_key from Sostituisci order by piatto, Sostituisci.rowid

-- [empty] the foods read before are dropped
Delete * from Alimenti
=> acts
Delete from Alimenti

-- [foods] the foods read from texts, to be added to
Select * from Alimenti
=> writes Alimenti
Select *, Alimenti.rowid AS jet_key from Alimenti ORDER BY Alimenti.rowid

-- [second-person] the second person's portion joins the first's row: a text for the portion, a number for the level
UPDATE Alimenti SET Alimenti.quantita2 = '(80 gr.)', Alimenti.KcNominale2 = 1500 WHERE (((trim(Alimenti.Piatto))='pasta al pomodoro') AND ((trim(Alimenti.alimento))='pasta'));
=> acts
UPDATE Alimenti SET quantita2 = '(80 gr.)', KcNominale2 = 1500 WHERE ((((trim(Alimenti.Piatto) COLLATE NOCASE))='pasta al pomodoro') AND (((trim(Alimenti.alimento) COLLATE NOCASE))='pasta'))

-- [pairing] the first person's rows, each once
SELECT Alimenti.Piatto, Alimenti.alimento, Alimenti.quantita, Alimenti.KcNominale From Alimenti GROUP BY Alimenti.Piatto, Alimenti.alimento, Alimenti.quantita, Alimenti.KcNominale ORDER BY Alimenti.Piatto, Alimenti.KcNominale;
=> reads
SELECT Alimenti.Piatto, Alimenti.alimento, Alimenti.quantita, Alimenti.KcNominale From Alimenti GROUP BY Alimenti.Piatto, Alimenti.alimento, Alimenti.quantita, Alimenti.KcNominale ORDER BY Alimenti.Piatto, Alimenti.KcNominale, Alimenti.alimento, Alimenti.quantita

-- [paired] both persons in one row, to be added to
Select * from alimenti2
=> writes alimenti2
Select *, alimenti2.rowid AS jet_key from alimenti2 ORDER BY alimenti2.rowid
