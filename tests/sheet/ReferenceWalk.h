// Balancing as plainly as it can be told: every row is written as soon as it moves, and the day's sum is asked afresh
// after every row. Slow, and the measure that the program's own balancing is compared with.
#pragma once

#include "core/ModNetServer.h"

void referenceWalk(ModNetServer &modulo, const QString &DataGiorno, bool PrimaPersona, bool SecondaPersona);
