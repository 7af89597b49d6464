// The maintenance commands by which the texts of the dishes leave the archive and their foods come back, through the
// file of exchange. A failure leaves what was done so far.
#pragma once

#include "core/ModNetServer.h"

#include <functional>

// Told the dish that is worked at.
using PiattoInCorso = std::function<void(const QString &Piatto)>;

// The file of exchange: \prova\TestiCibra\Piatti.txt of the program folder. Each dish is an empty line, its name, an
// empty line and its text; 99 asterisks part the texts of the first person's portions from those of the second's.
QString FileDiScambio(const ModNetServer &modulo);

// Writes the dishes of Nocorrispondenza to the file of exchange and opens it.
void RapportoSenzaCorrispondenza(ModNetServer &modulo, const PiattoInCorso &inCorso);
// Writes all dishes to the file of exchange and opens it.
void EsportaTesti(ModNetServer &modulo, const PiattoInCorso &inCorso);
// Replaces the rows of Alimenti by the foods of the file of exchange, with the portions of both persons. A file that
// cannot be read to its end leaves Alimenti as it is.
void ImportaTesti(ModNetServer &modulo);
