// What an archive holds, in one number.
#pragma once

#include "platform/store/Connection.h"

#include <QString>

// Of every row of the tables that planning changes: Sostituisci, Menu, SchedaPranzo.
quint64 digestOf(Connection &archive);
// The same of a file; throws Failure where it does not open.
quint64 digestOf(const QString &path, const QString &password = {});
// What the engine finds wrong, and what does not open; empty for a sound archive.
QString faultsOf(const QString &path, const QString &password = {});
// Puts the file `from` in the place of the archive `to`, without what stood beside it before.
void putArchive(const QString &from, const QString &to);
// Counts the commits of `connection` in sharedProgress, and where `digests` is set what the archive held after each.
void countCommits(Connection &connection, bool digests);
