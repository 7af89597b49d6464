// Values of a Jet file as the archive keeps them.
#pragma once

#include "FlussoMdb.h"
#include "platform/store/ArchiveBuilder.h"
#include "platform/store/Value.h"

// The types of columns that the archive has, and bytes, for what it carries along.
enum class TipoArchivio
{
    Intero,
    Numero,
    Data,
    SiNo,
    Testo,
    Memo,
    Byte
};
TipoArchivio tipoArchivio(ColumnType type);
// The type that holds the values of a column of the file as they are.
TipoArchivio tipoArchivio(TipoMdb type);

struct ValoreImportato
{
    enum class Esito
    {
        Esatto,
        Convertito,  // from another type, nothing lost
        Arrotondato, // more digits than a number holds
        Rimasto,     // no value of the column's type: kept as the text that it is
        Perso        // a number or day that is none: left null
    };
    StoredValue valore;
    Esito esito = Esito::Esatto;
};

// The value for a column of type `target`. A day becomes yyyy-mm-dd, with hh:mm:ss behind where it has a time; a null
// yes/no is no.
ValoreImportato valoreImportato(const ValoreMdb &value, TipoArchivio target);

// The decimal without zeros at its end.
QString cifre(const DecimaleMdb &decimal);
// Whether a number of the archive holds all its digits.
bool staInUnNumero(const DecimaleMdb &decimal);
