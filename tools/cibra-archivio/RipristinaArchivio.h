// Puts a copy back in the place of an archive.
#pragma once

#include <QDateTime>
#include <QString>

struct Ripristino
{
    QString tenuto;                // the path of what was kept, empty where there was no archive
    bool senzaPiuPassword = false; // the archive had a password, and has none now
};

// Replaces the archive `archivio` by the copy `copia`, which `password` opens; the copy itself stays. A link stays one,
// be the archive there or not. The new archive is made beside the old one and checked before it takes its place. What
// is there already is kept in Copie first, as QuelloDiPrima tells. Throws Failure, the archive being as it was:
// LoginRefused where `password` does not open the copy, PathAccess where another program has the archive open, or where
// the copy is damaged or not of this program, or cannot be written.
Ripristino ripristinaArchivio(const QString &copia, const QString &archivio, const QString &password,
                              const QDateTime &quando);
