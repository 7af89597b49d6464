// The alternatives of a dish: which dishes may stand in for it, and what it and they are made of.
#pragma once

#include "core/ModNetServer.h"

// All dishes by name, for the list from which one is chosen.
QString IstruzioneSostituti();
// The dishes that may replace `piatto`, with their stored calories, category and kind.
QString IstruzioneAlternative(const QString &piatto);
// The foods of a dish with calories and totals, by name.
QString IstruzioneIngredienti(const QString &piatto);

// The sums of a dish's foods in kcal, as the two labels show them; both empty for a dish without foods.
struct TotaliPiatto
{
    QString prima;
    QString seconda;
};
TotaliPiatto SommaPiatto(Connection &dati, const QString &piatto);

// Asks whether `scelto` takes the place of `piatto` and hands the answer over: PiattoSostituto is the dish chosen, or
// empty where it was refused.
void ConfermaSostituzione(ModNetServer &modulo, const QString &piatto, const QString &scelto);
