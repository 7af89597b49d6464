// An archive gives its place to a copy of it.
#pragma once

#include "FileProvvisorio.h"

// What another program wrote would be lost with an archive that is replaced. Throws Failure(PathAccess) where one has
// it open; this process must not.
void rifiutaInUso(const QString &path);

// The checked copy takes the place and the permissions of the archive `path`, from which it was made. Throws
// Failure(PathAccess), the archive being as it was, where another program has it open, where a journal beside it still
// holds changes, or where the file cannot be replaced.
void sostituisciArchivio(const FileProvvisorio &copia, const QString &path);
