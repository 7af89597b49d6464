// Safety copies of the data archive: the last ten of each archive, in the folder Copie beside it. A copy's name begins
// with the moment it was made, so that the names sort by time: 2025-03-02_10-20-30-000_famiglia.db.
#pragma once

#include "core/ModNetServer.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

// The folder Copie beside the archive file `archivio`, whether it is there or not. Where `archivio` is a link, here and
// below the file that it leads to is meant.
QString CartellaCopie(const QString &archivio);
// The paths of the copies of `archivio`, oldest first.
QStringList CopieDi(const QString &archivio);
// The paths of what was kept of `archivio` as it was, before another file took its place: archives and their journals.
QStringList TenutiComErano(const QString &archivio);
// The path of a new file in Copie, which is made where it is not there, for something of `archivio` kept at `quando`.
// It is later than every other of the same second. Throws Failure(PathAccess).
QString NomeDiCopia(const QString &archivio, const QDateTime &quando);
// Copies the open archive into Copie under its password and gives the path of the copy; an empty one where another
// program is just copying it. The copy has its name only when it is whole and checked. It takes over the archive's
// time and rights. Throws Failure, the other copies being as they were.
QString FaiCopia(Connection &archivio, const QDateTime &quando);

// What the program does at each start and before sheets are deleted. Nothing where the marker Copie.no stands in the
// program folder, where no archive is open, or where a copy of the archive as it is now is there already. Of more than
// ten copies the oldest go; those named later than the new one were made by a wrong clock and count as older than all.
// Where another program is copying, or has left its lock within ten minutes, the log says so once. A failure is no
// failure of the caller: it goes to the log and to the background screen, once a run.
void CopiaDiSicurezza(ModNetServer &modulo);
