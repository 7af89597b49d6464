// The three spans of the generation panel: how the last day follows from the first.
#pragma once

#include <QString>

enum class TipoPeriodo
{
    Settimana,
    Mensile,
    Annuale
}; // Periodo(0) to Periodo(2)

// The text for Text2. Text1 is read as a day, else Failure(TypeMismatch). A month and a year are cut out of the texts,
// so they come out right for dd/mm/yyyy alone: 31/01 gives 31/03, and 29/02 of a leap year a day that does not exist.
QString FineDelPeriodo(TipoPeriodo tipo, const QString &Text1);
