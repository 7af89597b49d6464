// An old .mdb file chosen as data archive: the program offers to import it.
#pragma once

#include "core/ModNetServer.h"

// Whether `path` (native) is a file of the Jet engine, by its beginning.
bool EArchivioJet(const QString &path);

// What a message box has room for of a report: the counts of whole tables go first, then the last lines, with a word on
// them.
QString RapportoInBreve(const QString &rapporto);

// Asks whether the old archive `file` of the native folder `cartella` is to be imported, and on Yes makes the new one
// beside it, under its name with the ending .db, or with a number where that is taken; the old one stays as it is. A
// password is asked for where the file has one. Esc gives the import up, and nothing is left of it. Tells what came of
// it; a report that is too long for the message box is kept whole in a text file beside the archive.
// Returns the name of the new archive, empty where there is none: on No, or after a failure that was told.
QString OffriImportazione(ModNetServer &modulo, const QString &cartella, const QString &file);
