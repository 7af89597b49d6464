// One food of a row of the sheet replaced by another.
#pragma once

#include "core/ModNetServer.h"

#include <QStringList>

#include <optional>

// The foods to choose from, "Zucchine / 11" each: the name without blanks around it and its kcal in 100 g, the lowest
// where a name stands several times in one group of foods. Read afresh at each call.
QStringList AlimentiSostitutivi(ModNetServer &modulo);

// Whether a text names a food to choose: it holds " / ".
bool NominaUnAlimento(const QString &scelta);

// What the choice brings for the columns of the row: those of the first row of Piatti with that food, whatever its
// dish.
struct AlimentoSostituto
{
    Value Alimento, KC100gr, Kcnominale, quantita, totale1, Kcnominale2, quantita2, totale2;
};

// Reads a food chosen as "name / kcal"; the first " / " parts them. A food that has never stood in a dish is first
// added to Piatti under `piatto`, with the household's targets and no portions. Null totals come as 0. Null where
// `scelta` has no " / ". Throws what the store reports.
std::optional<AlimentoSostituto> LeggiSostituto(ModNetServer &modulo, const QString &scelta, const QString &piatto);
