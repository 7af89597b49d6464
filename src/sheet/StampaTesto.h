// The text print of a day: a box of two columns, one a person.
#pragma once

#include "core/ModNetServer.h"

// Writes Documenti\<day without "/">.txt, replacing an earlier one, and opens it in the text viewer.
//
// Throws Failure: PathNotFound or PathAccess for the file, NoCurrentRow where the day has one or two snacks,
// InvalidNull for a null total, and whatever the store reports. The file then holds the lines written so far.
void StampaTesto(ModNetServer &modulo, const QString &DataGiorno);
