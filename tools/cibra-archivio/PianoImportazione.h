// What becomes of each table of a Jet file in the new archive.
#pragma once

#include "FlussoMdb.h"
#include "SchemaArchivio.h"
#include "ValoriImportati.h"

#include <QList>
#include <QString>
#include <QStringList>

struct ColonnaPrevista
{
    int sorgente = 0; // index of the column in the file
    QString nome;
    TipoArchivio tipo = TipoArchivio::Testo;
    bool nostra = true; // else it is carried along
    int ampiezza = 0;   // characters of a text that is carried along
};

struct TabellaPrevista
{
    int sorgente = 0; // index of the table in the file
    QString nome;
    bool nostra = true;
    QList<ColonnaPrevista> colonne;
    int chiave = -1; // index in colonne of the column that is the rows' whole-number key
    bool contatore = false;
};

struct PianoImportazione
{
    QString script; // the statements that make every table, those carried along too
    QList<TabellaPrevista> tabelle;
    QStringList mancanti; // tables of ours that the file lacks
    QStringList note;     // in Italian
};

// A file that holds Messaggi and none of the household's tables becomes a system archive. What
// the file lacks or cannot bring along is told in the plan; nothing is thrown.
PianoImportazione pianoImportazione(const ContenutoMdb &content);
