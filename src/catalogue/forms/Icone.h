// The drawings of the catalogue's windows.
#pragma once

#include <QIcon>

namespace Icone {
QIcon icona(const QString &nome); // "piatto", "gruppo", "elenco", "archivio", "bilancia"
} // namespace Icone
