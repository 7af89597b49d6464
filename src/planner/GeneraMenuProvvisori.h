// The generator: one row of Menu a day, by rotation through the dishes.
#pragma once

#include "planner/InsiemiPiatti.h"
#include "planner/SceltaMenu.h"

// Writes Check.log, shuffles the dishes of tipo menu, replaces the rows of Menu from Text1 to Text2. The cursors of
// `insiemi` carry on from run to run where they are not rewound. A failure (a text that is no day or no frequency, a
// set without dishes) leaves what was done so far: file, numbers, deleted range and the days written.
void GeneraMenuProvvisori(ModNetServer &modulo, InsiemiPiatti &insiemi, const SceltaMenu &scelta);
// The closing question: whether to go on with the daily sheets. The button at hand is No.
[[nodiscard]] bool ChiediCompilazione(ModNetServer &modulo);
