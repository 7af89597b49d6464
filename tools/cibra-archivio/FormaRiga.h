// How a row of a Jet file lies in its page.
#pragma once

#include <QByteArrayView>

struct FormaRiga
{
    int jet = 4;                    // 3 or 4
    int colonne = 0;                // that the table has had in all its life: no row holds more
    bool lunghezzeVariabili = true; // whether the table has texts, memos or bytes
};

// Whether `riga`, all its bytes, can be one that the engine wrote. A row of zeros is none, nor is one whose beginning
// or end was overwritten by zeros; without this look both read as rows of nulls.
bool rigaIntera(QByteArrayView riga, const FormaRiga &forma);
