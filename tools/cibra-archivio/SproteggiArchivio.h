// Takes the password off an archive.
#pragma once

#include <QString>

// Decrypts the archive in place, through a copy that is compared with it before it takes its place. Throws Failure, the
// archive being as it was: LoginRefused where `password` is not the right one, PathAccess where the archive has none,
// and whatever proteggiArchivio throws.
void sproteggiArchivio(const QString &path, const QString &password);
