-- The archive of a household: foods, dishes, the calendar of menus and the daily sheets.
--
-- Texts compare without regard to case. The program puts its own NOCASE in place of the built-in one, which also folds
-- accented letters; so no index stands on a column of names, where another tool would order them otherwise.
-- Days are kept as yyyy-mm-dd in DATE columns and as dd/mm/yyyy in SchedaPranzo.dataInserimento. Yes/no is 1 and 0.
-- Numbers are REAL, so that KC100gr/100*quantita never divides whole numbers. A VARIANT takes numbers and texts.

-- One row a dish: its class, its calories for the two persons, whether it is a favourite.
CREATE TABLE Sostituisci (
    ID              INTEGER PRIMARY KEY AUTOINCREMENT,
    Piatto          VARCHAR(100) COLLATE NOCASE, -- the name, by which all other tables know the dish
    KCalOndira      REAL,                        -- calories for the first person
    KCalTesmo       REAL,                        -- calories for the second person
    tipo            VARCHAR(20) COLLATE NOCASE,  -- Colazione, Menu, Spuntino; empty for breads
    Categoria       VARCHAR(50) COLLATE NOCASE,  -- Carne, Pesce, Contorno ...
    Preferito       BOOLEAN NOT NULL DEFAULT 0,
    Ordine          REAL,                        -- rotation key of the planner
    sostituisci1100 TEXT COLLATE NOCASE,         -- the dish in words for the first person, then its substitutes
    sostituisci1500 TEXT COLLATE NOCASE          -- the same for the second person
);

-- What the dishes are made of: one row a food of a dish.
CREATE TABLE Piatti (
    ID              INTEGER PRIMARY KEY AUTOINCREMENT,
    DataInserimento DATE,
    Piatto          VARCHAR(100) COLLATE NOCASE,
    Alimento        VARCHAR(100) COLLATE NOCASE,
    KC100gr         REAL, -- kcal in 100 g
    quantita        REAL, -- grams, first person
    KcNominale      REAL, -- plan level of the first person, such as 1100
    Totale1         REAL, -- kcal of the first person's portion
    quantita2       REAL, -- grams, second person
    KcNominale2     REAL, -- plan level of the second person, such as 1500
    Totale2         REAL  -- kcal of the second person's portion
);

-- The daily sheet: one row a food of a meal of a day, copied from Piatti and then on its own.
CREATE TABLE SchedaPranzo (
    ID                 INTEGER PRIMARY KEY AUTOINCREMENT,
    dataInserimento    VARCHAR(10) COLLATE NOCASE, -- the day of the sheet, dd/mm/yyyy
    PranzoCenaSpuntino VARCHAR(20) COLLATE NOCASE, -- Colazione, Spuntino, Pranzo, Cena, Menu
    Piatto             VARCHAR(100) COLLATE NOCASE,
    Alimento           VARCHAR(100) COLLATE NOCASE,
    KC100gr            REAL,
    quantita           REAL,
    KcNominale         REAL,
    Totale1            REAL,
    quantita2          REAL,
    KcNominale2        REAL,
    Totale2            REAL
);

-- Rows of one day lie in key order behind its day, so the sheet's own order (day downwards, then key) needs no sort.
CREATE INDEX SchedaPranzoGiorno ON SchedaPranzo (dataInserimento DESC);

-- The calendar of the planner: the dishes of each day. An empty slot has no dish.
CREATE TABLE Menu (
    DataMenu        DATE,
    Colazione       VARCHAR(100) COLLATE NOCASE,
    Spuntino1       VARCHAR(100) COLLATE NOCASE,
    Pranzo          VARCHAR(100) COLLATE NOCASE,
    Contorno1       VARCHAR(100) COLLATE NOCASE,
    pane1           VARCHAR(100) COLLATE NOCASE,
    Spuntino2       VARCHAR(100) COLLATE NOCASE,
    Cena            VARCHAR(100) COLLATE NOCASE,
    Contorno2       VARCHAR(100) COLLATE NOCASE,
    pane2           VARCHAR(100) COLLATE NOCASE,
    Spuntino3       VARCHAR(100) COLLATE NOCASE,
    dataInserimento DATE
);

CREATE INDEX MenuGiorno ON Menu (DataMenu);

-- Which dish may stand in for which; a pair is kept in both directions.
CREATE TABLE GruppoPiattiSostituiti (
    ID              INTEGER PRIMARY KEY AUTOINCREMENT,
    alimento        VARCHAR(100) COLLATE NOCASE, -- the dish that can be replaced
    sostituisci     VARCHAR(100) COLLATE NOCASE, -- the dish that can replace it
    dataInserimento DATE
);

-- The food sheet: one row a food, values in 100 g. Its key is given by the program, the highest one plus 1.
CREATE TABLE Categorie (
    ID               INTEGER PRIMARY KEY,
    DataInserimento  DATE,
    TIPO             INTEGER, -- key of the food's group in CategorieMaster; 999 keeps it out of the lists
    Alimento         VARCHAR(100) COLLATE NOCASE,
    ParteEdibile     REAL, -- per cent
    Kcal             REAL,
    KJ               REAL,
    Acqua_G          REAL,
    Prot_tot_G       REAL,
    Prot_anim        REAL,
    Prot_Veg         REAL,
    Glucidi_tot      REAL,
    Amido            REAL,
    Glucidi_solub    REAL,
    Lipidi_tot       REAL,
    Saturi_tot       REAL,
    Monoins_tot      REAL,
    Polins_tot       REAL,
    Ac_oleico        REAL,
    Ac_linoleico     REAL,
    Ac_linolenico    REAL,
    altri_Polins     REAL,
    alcool           REAL,
    Colest           REAL,
    Fibre_alim       REAL,
    Ferro            REAL,
    Ca               REAL,
    Na               REAL,
    K                REAL,
    P                REAL,
    Zn               REAL,
    Vit_B1           REAL,
    Vit_B2           REAL,
    Vit_B3           REAL,
    Vit_B6           REAL,
    Vi_C             REAL,
    Vit_D            REAL,
    Vit_E            REAL,
    Retinolo_eq      REAL,
    Beta_carotene_eq REAL,
    Folico           REAL
);

-- The groups of foods.
CREATE TABLE CategorieMaster (
    ID        INTEGER PRIMARY KEY,
    categorie VARCHAR(50) COLLATE NOCASE
);

-- The columns that a record form asks of its table; opened whole to see that they are there.
CREATE TABLE Amministratori (
    ID              INTEGER PRIMARY KEY,
    DATAINSERIMENTO DATE,
    PREDEFINITO     BOOLEAN NOT NULL DEFAULT 0
);

-- Persons that the search by name of the record forms looks through.
CREATE TABLE Clienti (
    Id         INTEGER PRIMARY KEY,
    Nominativo VARCHAR(100) COLLATE NOCASE
);

-- Catalogue maintenance: calories to be copied into Piatti.
CREATE TABLE newPiatti (
    Piatto   VARCHAR(100) COLLATE NOCASE,
    alimento VARCHAR(100) COLLATE NOCASE,
    kc100gr  REAL
);

-- Catalogue maintenance: dishes for the report of those without a match.
CREATE TABLE Nocorrispondenza (
    Piatto          VARCHAR(100) COLLATE NOCASE,
    sostituisci1100 TEXT COLLATE NOCASE,
    sostituisci1500 TEXT COLLATE NOCASE
);

-- Catalogue maintenance: the substitutes named in the dish texts, several rows a dish, so Id is no key.
CREATE TABLE SostituisciMaster (
    Id     INTEGER, -- key of the dish in Sostituisci
    TipoId INTEGER,
    Piatto VARCHAR(100) COLLATE NOCASE
);

-- Catalogue maintenance: the foods read back from the dish texts.
CREATE TABLE Alimenti (
    Piatto      VARCHAR(100) COLLATE NOCASE,
    alimento    VARCHAR(100) COLLATE NOCASE,
    quantita    VARIANT(50) COLLATE NOCASE, -- a number, or as the dish text has it, "(80 gr.)"
    KcNominale  REAL,
    quantita2   VARCHAR(50) COLLATE NOCASE,
    KcNominale2 REAL
);

-- Catalogue maintenance: the same foods, both persons in one row.
CREATE TABLE alimenti2 (
    Piatto      VARCHAR(100) COLLATE NOCASE,
    Alimento    VARCHAR(100) COLLATE NOCASE,
    quantita1   VARIANT(50) COLLATE NOCASE,
    Kcnominale1 REAL,
    quantita2   VARIANT(50) COLLATE NOCASE,
    Kcnominale2 REAL
);
