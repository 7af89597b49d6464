// Puts a copy back in the place of an archive.
#pragma once

#include <QDateTime>
#include <QString>

// Replaces the archive `archivio` by the copy `copia`, which `password` opens; the copy itself stays. The new archive
// is made beside the old one and checked before it takes its place. What is there already is kept in Copie first, as of
// the moment `quando`: as one more safety copy where it opens with `password` or without one and is sound, else as it
// is, its name ending in ".prima". Gives the path of what was kept, empty where there was no archive. Throws Failure,
// the archive being as it was: LoginRefused where `password` does not open the copy, PathAccess where another program
// has the archive open, or where the copy is damaged or not of this program, or cannot be written.
QString ripristinaArchivio(const QString &copia, const QString &archivio, const QString &password,
                           const QDateTime &quando);
