// One-off commands with which a maintainer built the catalogue from the dish texts of Sostituisci. A line of such a
// text that holds a "-" is a food, "- Pasta (80 gr.)"; another line names a dish that can replace this one. The
// commands that write and read the texts themselves are in TestiDeiPiatti.h.
//
// Three hang on hidden buttons of the main window; cibra-archivio has them all. A failure leaves what was done so far.
#pragma once

#include "shell/TestiDeiPiatti.h"

// Copies the calories of newPiatti to the same foods of the same dishes in Piatti.
void CopiaCalorie(ModNetServer &modulo);
// Adds each substitute that the dish texts name to SostituisciMaster.
void ElencaSostituti(ModNetServer &modulo);
// Adds each substitute that the dish texts name to GruppoPiattiSostituiti.
void RiempiGruppi(ModNetServer &modulo, const PiattoInCorso &inCorso);
// Adds the rows of Alimenti to alimenti2, two by two: the first gives food and first portion, the one behind it the
// second portion. Beeps where one is left over.
void AbbinaAlimenti(ModNetServer &modulo);
