// The lists from which the foods of a meal are picked.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

// The lines of each list by its name, "A1" to "D7": a line "// group" and its options, group after group.
QHash<QString, QStringList> ElenchiPagina();
