// The calendar in the planner's grid, and the deletion of a block of it.
#pragma once

#include "core/ModNetServer.h"

#include <memory>

// The rows of Menu from Text3 to Text4, without the two breads. Throws Failure(TypeMismatch) on a half-typed day.
std::shared_ptr<Recordset> ApriVistaMenu(ModNetServer &modulo, const QString &Text3, const QString &Text4);
// All rows of Menu in the table's own order, the same columns.
std::shared_ptr<Recordset> ApriTuttiIMenu(ModNetServer &modulo);
// Asks, and on Yes deletes the block; false where the user did not confirm. The two days go into the statement day
// first and are read there month first: of a day up to 12 the deletion takes day and month exchanged.
bool CancellaBlocco(ModNetServer &modulo, const QString &Text3, const QString &Text4);
// The latest day of Menu as text, a week from today where there is none.
QString UltimoGiornoPianificato(ModNetServer &modulo);
