// The lists from which the foods of a meal are picked.
#pragma once

#include <QByteArray>
#include <QHash>

// The lines of each list by its name, "A1" to "D7": a line "// group" and its options, group after group, each with
// `fineRiga` behind it.
QHash<QByteArray, QByteArray> ElenchiPagina(const QByteArray &fineRiga);
