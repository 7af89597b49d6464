// The favourites: which dishes the grid lists, how many of them are favourites, and whether all three types have one.
#pragma once

#include "core/ModNetServer.h"

// The statement of the grid for the texts of the two lists; blanks alone count as nothing. The placeholders of the days
// ("Colazione 1" and so on) are left out. A text with an apostrophe breaks the statement.
QString QueryPreferiti(const QString &tipo, const QString &categoria);
QString QuerySoloPreferiti();  // every favourite, placeholders included
QString QueryTuttaLaTabella(); // every dish, placeholders included
// The favourites among the rows of `query`.
int ContaPreferiti(ModNetServer &modulo, const QString &query);
// The categories that the dishes of a type have, in the order of their names.
QStringList CategorieDelTipo(ModNetServer &modulo, const QString &tipo);
// Tells which types have a favourite; true where there are three types.
bool VerificaTipi(ModNetServer &modulo);
