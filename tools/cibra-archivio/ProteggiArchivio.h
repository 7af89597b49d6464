// Gives a plain archive a password.
#pragma once

#include <QString>
#include <QStringList>

// Encrypts the archive in place: a copy beside it is encrypted, opened again with the password, compared with the
// original and only then put in its place. Throws Failure, the original being as it was: where it is no sound plain
// archive, where another program has it open, where the copy cannot be written, or where `password` is empty.
void proteggiArchivio(const QString &path, const QString &password);

// The files in Copie that anybody can read still: the safety copies of the archive made before it had a password, and
// what was kept of it as it was.
QStringList copieInChiaro(const QString &path);
