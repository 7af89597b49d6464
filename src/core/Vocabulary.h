// The words of the archive: meal kinds, classes of dishes, the reserved dish names.
#pragma once

#include <QString>
#include <QStringList>

inline const QString kNomeProgramma = QStringLiteral("Cibra");
inline const QString kIndirizzoAutore = QStringLiteral("cibra@example.org"); // where troubles are told

namespace Pasto { // SchedaPranzo.PranzoCenaSpuntino
inline const QString Colazione = QStringLiteral("Colazione");
inline const QString Spuntino = QStringLiteral("Spuntino");
inline const QString Pranzo = QStringLiteral("Pranzo");
inline const QString Cena = QStringLiteral("Cena");
inline const QString Menu = QStringLiteral("Menu");
} // namespace Pasto

const QStringList &Tipi();             // Sostituisci.tipo, in the order of the combo boxes
const QStringList &Categorie12();      // Sostituisci.Categoria as the favourites' combo lists them
const QStringList &CategorieGriglia(); // the same with the one form "Piatto unico", for grid columns
const QStringList &NomiRiservati();    // "Colazione 1" to "Colazione 7", "Spuntino 1" to "Spuntino 7"
