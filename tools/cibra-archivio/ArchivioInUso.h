// Whether another program has an archive open.
#pragma once

#include <QString>

// Another program that has the archive open keeps its journal; what it wrote there would be lost with a file that is
// replaced. Throws Failure(PathAccess).
void rifiutaInUso(const QString &path);
