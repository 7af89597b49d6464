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
        Guasto
    };
    Esito esito = Esito::InOrdine;
    QStringList guasti; // in Italian, one line a fault; empty where the archive is in order
};

// A file that holds Messaggi and none of the household's tables is checked as a system archive. Nothing is written but
// what the engine does by itself when it opens a file that a killed program left.
[[nodiscard]] Verifica verificaArchivio(const QString &path, const QString &password = {});
