// The household file ini\Anagrafica.txt: two names and two daily targets, four lines.
#pragma once

#include "core/ModNetServer.h"

#include <array>

bool EsisteAnagrafica(const ModNetServer &modulo);
// Reads the four lines into the four globals. Throws Failure(FileNotFound or PathAccess) where it cannot be read, and
// Failure(InputPastEnd) where it has fewer lines: those that it has are in the globals then.
void LeggiAnagrafica(ModNetServer &modulo);
// Replaces the file by the four texts as they stand and copies them into the globals. Throws Failure(PathNotFound or
// PathAccess) where it cannot be written; then the globals are as they were.
void ScriviAnagrafica(ModNetServer &modulo, const std::array<QString, 4> &testi);
