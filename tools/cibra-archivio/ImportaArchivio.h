// Makes a new archive from an old Jet file.
#pragma once

#include "ProcessoLettore.h"

#include <QString>
#include <QStringList>

struct RapportoImportazione
{
    struct Tabella
    {
        QString nome;
        qint64 lette = 0;
        qint64 scritte = 0;
        bool nostra = true; // else it was carried along
    };
    int jet = 0; // 3 or 4
    bool protetto = false;
    QList<Tabella> tabelle;
    QStringList mancanti; // tables of the program that the file lacks
    QStringList note;     // what was odd, in Italian
};

// Imports the Jet file `from` into the new archive `to`, which must not be there. A file with a database password is
// imported only with it, and the new archive then opens with the same one. The archive is built under another name and
// kept only if it passes every check. Throws Failure, no archive being left: LoginRefused where the password lacks or
// is wrong, PathAccess for `to`, FileNotFound for `from`, Engine for a foreign, cut or damaged file.
RapportoImportazione importaArchivio(const QString &from, const QString &to, const QString &password,
                                     const Lettore &reader);

// The report in Italian, line by line.
QStringList testoRapporto(const RapportoImportazione &report);
