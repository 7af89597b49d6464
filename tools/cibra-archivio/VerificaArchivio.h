// Checks an archive: that it opens, that its pages are sound, that every table and column is there with its type.
#pragma once

#include <QDateTime>
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
        InUso,   // by another program, so that nothing can be said
        Estraneo // no archive of this program
    };
    Esito esito = Esito::InOrdine;
    QStringList guasti; // in Italian, one line a fault; empty where the archive is in order
};

// A file that holds Messaggi and none of the household's tables is checked as a system archive. It is a copy that is
// opened and checked, its journal included: the archive and what stands beside it stay as they are, byte by byte.
// Throws Failure(PathAccess) where the file cannot be read or there is no room for the copy.
[[nodiscard]] Verifica verificaArchivio(const QString &path, const QString &password = {});

// Makes the indexes of a damaged archive anew: in a copy beside it, which takes its place only if it is then sound and
// has all that the tables hold. The damaged one is kept in Copie, as of the moment `quando`, as QuelloDiPrima tells;
// gives its path, an empty one where the archive was in order. Throws Failure, the archive being as it was, where more
// than its indexes is damaged, where another program has it open, or where the copy cannot be written.
QString riparaArchivio(const QString &path, const QString &password, const QDateTime &quando);
