// An old .mdb file chosen as data archive: the program offers to import it.
#pragma once

#include "core/ModNetServer.h"

// Whether `path` (native) is a file of the Jet engine, by its beginning.
bool EArchivioJet(const QString &path);

// The lines of a report that a message box has room for, with a word on those that it has not.
QString RapportoInBreve(const QString &rapporto);

// Asks whether the old archive `file` of the native folder `cartella` is to be imported, and on Yes makes the new one
// beside it, under its name with the ending .db, or with a number where that is taken; the old one stays as it is. A
// password is asked for where the file has one. Tells what came of it.
// Returns the name of the new archive, empty where there is none: on No, or after a failure that was told.
QString OffriImportazione(ModNetServer &modulo, const QString &cartella, const QString &file);
