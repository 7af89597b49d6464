// The repair of values that made a save fail: what is to be done with the text of one box.
#pragma once

#include "catalogue/CampiTabella.h"

enum class Aggiustamento
{
    Passa,
    Taglia,         // to the column's size
    FermaData,      // a day text that is too long: nothing is stored
    FermaEccessivo, // a value of another kind than the column's: nothing is stored
};

// A text is always of the string type, so that every number column ends in FermaEccessivo.
Aggiustamento DecidiAggiustamento(const ColonnaTabella &colonna, const QString &testo);
