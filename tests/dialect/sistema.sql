-- The system archive.
@archive schema-sistema.sql

-- [last-message] the last order of an administrator; no row over an empty table
SELECT Last(Messaggi.ID) AS ID, Last(Messaggi.Messaggio) AS Messaggio, Last([messaggi].[TipoBlocco]) AS TipoBlocco, Last(Messaggi.data) AS data FROM Messaggi;
=> reads
SELECT jet_last(Messaggi.ID, Messaggi.rowid) AS ID, jet_last(Messaggi.Messaggio, Messaggi.rowid) AS Messaggio, jet_last([messaggi].[TipoBlocco], Messaggi.rowid) AS TipoBlocco, jet_last(Messaggi.data, Messaggi.rowid) AS data FROM Messaggi GROUP BY NULL
