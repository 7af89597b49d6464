// Whether another program has an archive open.
#pragma once

#include <QString>

// True where another process holds one of the engine's locks on the file, be it only to read: it does for as long as
// it has the archive open with a journal beside it. Does not open the archive, so it serves for one that is damaged or
// has a password. Not for an archive that this process has open itself: its own locks would go.
bool isLockedByAnother(const QString &path);
