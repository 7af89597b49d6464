// What GestioneRete.INI says, for the dialog to start from.
#pragma once

#include "core/ModNetServer.h"

struct PercorsoSalvato
{
    QString cartella; // native folder that exists, or empty
    QString file;     // file name alone, or empty
};

struct PercorsiSalvati
{
    PercorsoSalvato sistema; // line 2
    PercorsoSalvato dati;    // line 4
};

// Makes the folder INI where it is missing. Lines that are not there count as empty.
PercorsiSalvati LeggiPercorsiSalvati(ModNetServer &modulo);
