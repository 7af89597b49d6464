// A dish put into a meal of a day.
#pragma once

#include "sheet/RigheScheda.h"

// Lists the dish's foods, asks, and adds a row for each unless the answer is no. Gives whether it did; a dish without
// foods is passed over without a word. Neither the day's form nor a dish that is there already is checked.
// Throws what the store reports, for instance of a name with an apostrophe.
bool InserisciPiatto(ModNetServer &modulo, const PostoNellaScheda &posto);
