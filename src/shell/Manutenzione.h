// One-off commands with which a maintainer built the catalogue from the dish texts of Sostituisci. A line of such a
// text that holds a "-" is a food, "- Pasta (80 gr.)"; another line names a dish that can replace this one.
//
// Three hang on hidden buttons of the main window; cibra-archivio has them all. A failure leaves what was done so far.
#pragma once

#include "core/ModNetServer.h"

#include <functional>

// Told the dish that is worked at.
using PiattoInCorso = std::function<void(const QString &Piatto)>;

// The file by which texts leave the archive and come back: \prova\TestiCibra\Piatti.txt of the program folder. Each
// dish is an empty line, its name, an empty line and its text; 99 asterisks part the texts of the first person's
// portions from those of the second's.
QString FileDiScambio(const ModNetServer &modulo);

// Writes the dishes of Nocorrispondenza to the file of exchange and opens it.
void RapportoSenzaCorrispondenza(ModNetServer &modulo, const PiattoInCorso &inCorso);
// Copies the calories of newPiatti to the same foods of the same dishes in Piatti.
void CopiaCalorie(ModNetServer &modulo);
// Adds each substitute that the dish texts name to SostituisciMaster.
void ElencaSostituti(ModNetServer &modulo);
// Adds each substitute that the dish texts name to GruppoPiattiSostituiti.
void RiempiGruppi(ModNetServer &modulo, const PiattoInCorso &inCorso);
// Writes all dishes to the file of exchange and opens it.
void EsportaTesti(ModNetServer &modulo, const PiattoInCorso &inCorso);
// Replaces the rows of Alimenti by the foods of the file of exchange, with the portions of both persons. A file that
// cannot be read to its end leaves Alimenti as it is.
void ImportaTesti(ModNetServer &modulo);
// Adds the rows of Alimenti to alimenti2, two by two: the first gives food and first portion, the one behind it the
// second portion. Beeps where one is left over.
void AbbinaAlimenti(ModNetServer &modulo);
