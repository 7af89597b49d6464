// The lines of a dish text, read through a temporary file of the program folder.
#pragma once

#include "core/ModNetServer.h"

#include <functional>

// Rewrites the file `temporaneo` of the program folder with the text and calls `riga` for each line of it, which goes
// through RigaLetta.
void LeggiRigheDelMemo(ModNetServer &modulo, const QString &temporaneo, const QString &memo,
                       const std::function<void(const QString &riga)> &riga);
// Whether a line names a food with its portion.
bool RigaDiAlimento(const QString &riga);
