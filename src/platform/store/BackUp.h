// A copy of an open archive, made through the engine's own backup.
#pragma once

#include "platform/store/Connection.h"

#include <QString>

// Copies the archive that `from` has open, as it is at this moment, into the new file `to`, which opens with the same
// password. The copy is checked. Nobody is waited for: an archive that another program has locked is a failure. Never
// overwrites. Throws Failure, and then no copy is left.
void backUp(Connection &from, const QString &to);
