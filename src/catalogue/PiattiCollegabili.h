// The dishes to which a new one can be linked. The two lists that ask for them do so by slightly different statements;
// both leave out the numbered breakfasts and snacks.
#pragma once

#include <QString>
#include <QStringList>

// As the list of kinds asks, `tipo` not being empty: the category counts where there is one.
QString IstruzioneCollegabiliDaTipo(const QString &tipo, const QString &categoria);
// As the list of categories asks: without a kind it looks for the empty kind alone.
QString IstruzioneCollegabiliDaCategoria(const QString &tipo, const QString &categoria);
// The categories offered for a new dish.
const QStringList &CategorieNuovoPiatto();
