// Names with accents and apostrophes on the whole road: planned, expanded, balanced, printed.
#include "core/Helpers.h"
#include "planner/PlannerTest.h"
#include "planner/SenzaPianificatore.h"
#include "sheet/StampaHtml.h"
#include "sheet/StampaTesto.h"

namespace {

class NomiAccentatiTest : public PlannerTest
{
protected:
    NomiAccentatiTest()
    {
        addMeal("Caffe' d'orzo", "Colazione", "Bevanda", "Latte d'avena");
        addMeal("Mela", "Spuntino", "Frutta", "Mela");
        addMeal("Fagiolini all'olio", "", "Contorno", "Fagiolini");
        addMeal("Rosetta", "", "Pane", "Pane");
    }

    // As a person types it, and as the program stores it.
    void addMeal(const QString &Piatto, const QString &tipo, const QString &Categoria, const QString &Alimento)
    {
        addDish(Accenta(Piatto), tipo, Categoria);
        insertRows(dati, "Piatti", "Piatto, Alimento, KC100gr, quantita, Totale1, quantita2, Totale2",
                   {"'" + Accenta(Piatto) + "', '" + Accenta(Alimento) + "', 100, 100, 100, 150, 150"});
    }
    void plan()
    {
        insiemi.Apri(dati);
        GeneraMenuProvvisori(world.modulo, insiemi, choice("02/03/2025", "02/03/2025"));
    }
    void expand()
    {
        world.dialoghi.answer(MsgAnswer::Si);
        SenzaPianificatore form;
        mnuGenera(world.modulo, {"02/03/2025", "02/03/2025", true}, form);
    }
};

TEST_F(NomiAccentatiTest, WhatTheMendingProtectsIsPlannedExpandedAndPrintedInTheCodePage)
{
    addMeal("Penne all'arrabbiata piu' ragu'", "Menu", "Pasta - Minestra", "Pomodoro dell'orto");
    plan();
    EXPECT_EQ(column("Pranzo"), QStringList("Penne all’arrabbiata più ragù"));
    EXPECT_EQ(column("Colazione"), QStringList("Caffè d’orzo"));
    expand();
    EXPECT_EQ(rowsOf(dati, "Select Piatto, Alimento from SchedaPranzo where PranzoCenaSpuntino = 'pranzo' order by ID"),
              QStringList({"Penne all’arrabbiata più ragù | Pomodoro dell’orto", "Rosetta | Pane",
                           "Fagiolini all’olio | Fagiolini"}));
    world.cartella.makeFolder("\\Documenti");
    StampaTesto(world.modulo, "02/03/2025");
    StampaHtml(world.modulo, "02/03/2025");
    for (const char *file : {"\\Documenti\\02032025.txt", "\\Documenti\\02032025.html"}) {
        const QByteArray print = world.cartella.read(file);
        EXPECT_TRUE(print.contains("Pomodoro dell\x92orto")) << file;
        EXPECT_TRUE(print.contains("Latte d\x92"
                                   "avena"))
            << file;
        EXPECT_FALSE(print.contains("\xE2\x80\x99")) << file; // no byte of another encoding
    }
    EXPECT_TRUE(world.cartella.read("\\Documenti\\02032025.html")
                    .contains("Penne all\x92"
                              "arrabbiata pi\xF9 rag\xF9"));
}

TEST_F(NomiAccentatiTest, AStraightApostropheStopsTheExpansionWithAnErrorThatShowsItAndLosesNothing)
{
    addMeal("Riso", "Menu", "Pasta - Minestra", "Riso");
    dati.Execute("UPDATE Sostituisci SET Piatto = 'Riso all''olio' WHERE Piatto = 'Riso'"); // as another tool would
    dati.Execute("UPDATE Piatti SET Piatto = 'Riso all''olio' WHERE Piatto = 'Riso'");
    plan();
    EXPECT_EQ(column("Pranzo"), QStringList("Riso all'olio"));
    const QString words = wordsOf([this] { expand(); });
    EXPECT_TRUE(words.startsWith("Errore di sintassi")) << words.toStdString();
    EXPECT_EQ(column("Pranzo"), QStringList("Riso all'olio"));
    EXPECT_EQ(valueOf(dati, "Select Count(*) from Sostituisci"), "5");
    EXPECT_EQ(valueOf(dati, "Select Count(*) from Piatti"), "5");
    EXPECT_EQ(rowsOf(dati, "Select Piatto from SchedaPranzo order by ID"), QStringList({"Caffè d’orzo", "Mela"}));
}

} // namespace
