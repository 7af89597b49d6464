-- The system archive, NetServer.Mdb: orders from an administrator, of which the program heeds the last.
CREATE TABLE Messaggi (
    ID         INTEGER PRIMARY KEY,
    Messaggio  VARCHAR(255) COLLATE NOCASE,
    TipoBlocco REAL, -- 0 and 1 are notices for the day `data`, 2 stops the program
    data       DATE
);
