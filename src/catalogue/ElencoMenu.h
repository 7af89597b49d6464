// The list of a form's menu entries, INI\<form>.mnu: one line "name=caption" an entry.
#pragma once

#include "core/ModNetServer.h"

#include <utility>
#include <vector>

using VoceMenu = std::pair<QString, QString>; // name and caption

// Writes the list where there is none yet: of the entries, those whose name begins with "mnu" in any case.
void AssicuraElencoMenu(ModNetServer &modulo, const QString &form, const std::vector<VoceMenu> &voci);
