// A small catalogue for the planner: two dishes of each kind, two breakfasts, two snacks, two sides, two breads.
#pragma once

#include "planner/GeneraMenuProvvisori.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

#include <functional>

class PlannerTest : public testing::Test
{
protected:
    PlannerTest();

    // Two dishes each: Carne "Manzo" (favourite) and "Pollo"; Pesce "Orata", "Sogliola"; Panino - Pizza "Toast",
    // "Pizza"; Pasta - Minestra "Ravioli", "Zuppa"; Piatto unico "Paella", "Cuscus". Ordine is 0 everywhere.
    void fillCatalogue();
    void addDish(const QString &Piatto, const QString &tipo, const QString &Categoria, bool Preferito = false);
    // A range, and the frequencies as the screen first shows them.
    SceltaMenu choice(const QString &from, const QString &to) const;
    // Numbers for one shuffle of the ten dishes of tipo menu that turn their order round.
    void scriptReversedShuffle();
    QStringList column(const QString &name); // one column of Menu, in table order
    // The words of the failure that `operation` ends with, "" where it ends well.
    static QString wordsOf(const std::function<void()> &operation);

    TestWorld world;
    Connection &dati;
    InsiemiPiatti insiemi;
};
