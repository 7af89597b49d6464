// Checks an archive: that it opens, that its pages are sound, that every table and column is there with its type.
#pragma once

#include <QString>
#include <QStringList>

struct Verifica
{
    enum class Esito
    {
        InOrdine,
        PasswordRichiesta,
        Incompleto,       // an archive of this program in which tables or columns lack
        IndiciDaRiparare, // nothing but its indexes is damaged: riparaArchivio mends that
        Danneggiato,
        Estraneo // no archive of this program
    };
    Esito esito = Esito::InOrdine;
    QStringList guasti; // in Italian, one line a fault; empty where the archive is in order
};

// A file that holds Messaggi and none of the household's tables is checked as a system archive. Nothing is written but
// what the engine does by itself when it opens a file that a killed program left; the way its journal is kept stays.
[[nodiscard]] Verifica verificaArchivio(const QString &path, const QString &password = {});

// Makes the indexes of a damaged archive anew: in a copy beside it, which takes its place only if it is then sound and
// has all the rows. Throws Failure, the archive being as it was, where more than its indexes is damaged, where another
// program has it open, or where the copy cannot be written.
void riparaArchivio(const QString &path, const QString &password = {});
