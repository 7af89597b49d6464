// Check.log, beside the program: the last choice of kinds, three lines.
#pragma once

#include "core/ModNetServer.h"
#include "planner/SceltaMenu.h"

#include <optional>

// What the file says about the boxes; 0 leaves the boxes of a meal alone.
struct UltimaScelta
{
    int pranzo = 0; // number of the lunch box to switch on
    int cena = 0;   // number of the dinner box to switch on
    bool Check12 = false;
};

// Replaces the file. A dinner of Pasta \ Minestra (Check5) is stored as "0", although the reader knows a "5".
void ScriviCheckLog(const ModNetServer &modulo, const SceltaMenu &scelta);
// Nothing where there is no file. Fewer than three lines throw Failure(InputPastEnd).
[[nodiscard]] std::optional<UltimaScelta> LeggiCheckLog(const ModNetServer &modulo);
