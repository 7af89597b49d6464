// An archive gives its place to a copy of it.
#pragma once

#include "FileProvvisorio.h"
#include "platform/store/ArchiveLock.h"

#include <memory>

// The file that `told` names, so that a link to it stays a link. Throws Failure(PathAccess) where there is none.
QString fileDellArchivio(const QString &told);

// Keeps everybody away from the archive `path` until the result goes: what another program wrote meanwhile would be
// lost with an archive that is replaced. Throws Failure(PathAccess) where one has it open; this process must not.
[[nodiscard]] std::unique_ptr<ArchiveHold> tieniFermo(const QString &path);
// The same, what a killed program left in the journal being taken into the archive first; `password` opens it. Throws
// Failure besides where that is not possible.
[[nodiscard]] std::unique_ptr<ArchiveHold> tieniFermoIntero(const QString &path, const QString &password);

// The files of the engine beside an archive go, empty or not. Throws Failure(PathAccess).
void togliFileAccanto(const QString &path);
// Gives the file the owner and the permissions of the archive `original`. Throws Failure(PathAccess) where the owner or
// the group is another one and may not be changed.
void prendiDiritti(const QString &file, const QString &original);

// The checked copy takes the place, the owner and the permissions of the archive `path`, which is held. Throws
// Failure(PathAccess), the archive being as it was, where a journal beside it still holds changes, where the copy
// cannot be given to the owner, or where the file cannot be replaced.
void sostituisciArchivio(const FileProvvisorio &copia, const QString &path, const ArchiveHold &fermo);
