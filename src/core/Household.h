// The household file ini\Anagrafica.txt: two names and two daily targets, four lines.
#pragma once

#include "core/ModNetServer.h"

#include <array>

bool EsisteAnagrafica(const ModNetServer &modulo);
// Reads the four lines into the four globals; fewer lines throw Failure(InputPastEnd).
void LeggiAnagrafica(ModNetServer &modulo);
// Replaces the file by the four texts as they stand and copies them into the globals.
void ScriviAnagrafica(ModNetServer &modulo, const std::array<QString, 4> &testi);
