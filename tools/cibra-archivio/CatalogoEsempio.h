// The example catalogue as a script for the engine: foods, dishes, compositions, substitutes, in the order of the CSVs.
#pragma once

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

// The statements that fill an empty archive. `day` is the day on which foods and dishes are said to be entered.
// Portions are in grams; calories of a portion are kcal per 100 g / 100 * grams, those of a dish their sum.
// Throws Failure where the CSVs do not fit each other, for instance a dish made of an unknown food.
QString scriptCatalogoEsempio(QDate day);

// The composition of a dish in words, as kept in sostituisci1100 and sostituisci1500: a line "- food (grams gr.)" each,
// then the names of the dishes that can replace it. Lines end in CR LF.
struct Porzione
{
    QString alimento;
    double grammi = 0;
};
QString testoComposizione(const QList<Porzione> &foods, const QStringList &sostituti);
