// A whole dish of a meal replaced by another.
#pragma once

#include "sheet/RigheScheda.h"

// Takes the dish of `posto` out of its meal and puts the foods of `sostituto` there, under the name `nome`, which is
// whatever the sheet's dish box shows and not the name of the dish they make up. Nothing is asked. The new dish is
// looked up first, so that a name that cannot be looked up deletes nothing. Throws what the store reports.
void SostituisciPiatto(ModNetServer &modulo, const PostoNellaScheda &posto, const QString &sostituto,
                       const QString &nome);
