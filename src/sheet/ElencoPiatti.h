// The dishes offered for insertion into a day, and the list that stands there while the sheet loads.
#pragma once

#include <QString>

#include <optional>

// The numbered breakfasts that have foods: the first list of the sheet, and the one that is exported.
QString IstruzioneColazioniNumerate();
// The dishes of a class: breakfasts, snacks, side dishes or the other dishes of a menu, without the numbered names of
// their kind. Only "colazione" is known in any spelling; null for a text that names no class.
std::optional<QString> IstruzionePiatti(const QString &classe);
