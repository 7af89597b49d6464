// An archive copied as it lies there, byte by byte with its journal, to be opened in its stead.
#pragma once

#include "FileProvvisorio.h"

#include <QTemporaryDir>

#include <optional>

// Copies one file into the new file `to`, which its owner alone may read. Throws Failure(PathAccess), and then `to` is
// not there.
void copiaFile(const QString &from, const QString &to);
// Copies the archive and those of the files beside it that hold something; a copied journal goes with the copy.
// The archive must be held. Throws as copiaFile; what was copied before stays.
void copiaConGiornale(const QString &archivio, const QString &to);

// Lies beside the archive, or in the folder for temporary files where that one may not be written or has no room; gone
// with its owner.
class CopiaGrezza
{
public:
    explicit CopiaGrezza(const QString &archivio); // must be held; throws Failure(PathAccess)

    const QString &path() const { return m_file->path(); }

private:
    std::optional<QTemporaryDir> m_folder;
    std::optional<FileProvvisorio> m_file;
};
