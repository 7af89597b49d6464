// The columns of the template table, as a record form notes them when it starts.
#pragma once

#include "core/ModNetServer.h"

#include <QString>

#include <vector>

// The two-letter code of a field type's number; "ZZ" for numbers that it does not know.
QString TipoCampo(int tipo);
// The size that a field reports: characters of a text, bytes of anything else. A memo has no limit to speak of.
int DimensioneDefinita(const FieldInfo &campo);
constexpr int kDimensioneMemo = 536870910;

struct ColonnaTabella
{
    QString nome; // in capitals
    QString tipo; // of TipoCampo
    bool segnata = false;
    int dimensione = 0;
};

struct CampiTabella
{
    QString tabella; // the table's name
    std::vector<ColonnaTabella> colonne;

    // The column of exactly that name; null where there is none.
    const ColonnaTabella *colonna(const QString &nome) const;
    // A line for each of the three columns that every record form needs and that is missing; else empty.
    QString mancanti() const;
};

// Reads the columns of the table Amministratori, whatever table the form itself is about.
CampiTabella LeggiCampiTabella(ModNetServer &modulo);
// The message for missing columns, `mancanti` being their lines.
MsgBoxEx TabellaNonConforme(const QString &tabella, const QString &mancanti);
