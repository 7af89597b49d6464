// Reads the favourites of four kinds of dish. The counts go nowhere; what it does is fail where the table cannot be
// read.
#pragma once

#include "core/ModNetServer.h"

void SettaPreferiti(ModNetServer &modulo, bool ContaPreferiti);
