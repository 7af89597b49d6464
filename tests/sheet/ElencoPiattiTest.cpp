#include "sheet/ElencoPiatti.h"

#include "support/TestWorld.h"

#include <gtest/gtest.h>

namespace {

class ElencoPiattiTest : public testing::Test
{
protected:
    ElencoPiattiTest() : dati(world.openArchive())
    {
        insertRows(dati, "Sostituisci", "Piatto, tipo, Categoria",
                   {"'Colazione 1', 'Colazione', 'Cereali'", "'Latte e biscotti', 'colazione', 'Cereali'",
                    "'Spuntino 7', 'Spuntino', 'Frutta'", "'Mela', 'spuntino', 'Frutta'",
                    "'Insalata', 'Menu', 'contorno'", "'Pasta', 'menu', 'Pasta - Minestra'",
                    "'Arrosto', 'Menu', 'Carne'", "'Pane', '', Null", "'Brodo', 'Menu', Null"});
    }

    QStringList piatti(const QString &classe)
    {
        QStringList names;
        for (const QString &row : rowsOf(dati, IstruzionePiatti(classe).value()))
            names.append(row.section(" | ", 0, 0));
        return names;
    }

    TestWorld world;
    Connection &dati;
};

TEST_F(ElencoPiattiTest, BreakfastsLeaveTheNumberedOnesOutAndAreKnownInAnySpelling)
{
    EXPECT_EQ(piatti("Colazione"), QStringList("Latte e biscotti"));
    EXPECT_EQ(piatti("COLAZIONE"), QStringList("Latte e biscotti"));
}

TEST_F(ElencoPiattiTest, SnacksLeaveTheNumberedOnesOut)
{
    EXPECT_EQ(piatti("Spuntino"), QStringList("Mela"));
}

TEST_F(ElencoPiattiTest, SideDishesAndTheOtherDishesOfAMenuStandApart)
{
    EXPECT_EQ(piatti("Contorno"), QStringList("Insalata"));
    EXPECT_EQ(piatti("Menu"), QStringList({"Arrosto", "Pasta"}));
}

TEST_F(ElencoPiattiTest, OnlyTheBreakfastIsReadWithoutRegardToCase)
{
    for (const char *classe : {"menu", "spuntino", "contorno", "MENU", "", "Pranzo"})
        EXPECT_FALSE(IstruzionePiatti(classe)) << classe;
}

TEST_F(ElencoPiattiTest, TheStatementsStandLetterByLetter)
{
    EXPECT_EQ(
        IstruzionePiatti("Colazione").value(),
        " SELECT Sostituisci.Piatto From Sostituisci WHERE (((Sostituisci.tipo)='colazione')) GROUP BY "
        "Sostituisci.Piatto  Having ((Sostituisci.Piatto) <> 'Colazione 1' And (Sostituisci.Piatto) <> 'Colazione 2' "
        "And (Sostituisci.Piatto) <> 'Colazione 3' And (Sostituisci.Piatto) <> 'Colazione 4' And "
        "(Sostituisci.Piatto) <> 'Colazione 5' And (Sostituisci.Piatto) <> 'Colazione 6' And (Sostituisci.Piatto) <> "
        "'Colazione 7') ORDER BY Sostituisci.Piatto;");
    EXPECT_EQ(
        IstruzionePiatti("Spuntino").value(),
        "SELECT Sostituisci.Piatto, Sostituisci.tipo From Sostituisci Where (((Sostituisci.Piatto) <> 'Spuntino 1' And "
        "(Sostituisci.Piatto) <> 'Spuntino 2' And (Sostituisci.Piatto) <> 'Spuntino 3' And (Sostituisci.Piatto) <> "
        "'Spuntino 4' And (Sostituisci.Piatto) <> 'Spuntino 5' And (Sostituisci.Piatto) <> 'Spuntino 6' And "
        "(Sostituisci.Piatto) <> 'Spuntino 7') And ((Sostituisci.tipo) = 'Spuntino')) ORDER BY Sostituisci.Piatto;");
    EXPECT_EQ(IstruzionePiatti("Contorno").value(),
              " SELECT Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.categoria From Sostituisci Where "
              "(((Sostituisci.tipo) = 'menu') And ((Sostituisci.categoria) = 'contorno')) ORDER BY "
              "Sostituisci.Piatto;");
    EXPECT_EQ(IstruzionePiatti("Menu").value(),
              "SELECT Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.categoria From Sostituisci Where "
              "(((Sostituisci.tipo) = 'menu') And ((Sostituisci.categoria) <> 'Contorno')) ORDER BY "
              "Sostituisci.Piatto;");
}

TEST_F(ElencoPiattiTest, TheFirstListHoldsTheNumberedBreakfastsThatHaveFoodsOnceEach)
{
    insertRows(dati, "Piatti", "Piatto, Alimento",
               {"'Colazione 3', 'Latte'", "'COLAZIONE 1', 'Latte'", "'Colazione 3', 'Pane'", "'Spuntino 1', 'Mela'",
                "'Colazione 8', 'Mela'"});
    EXPECT_EQ(rowsOf(dati, IstruzioneColazioniNumerate()), QStringList({"COLAZIONE 1", "Colazione 3"}));
    EXPECT_EQ(IstruzioneColazioniNumerate(),
              " SELECT Piatti.Piatto From Piatti GROUP BY Piatti.Piatto  Having (((Piatti.Piatto) = 'colazione 1')) Or "
              "(((Piatti.Piatto) = 'colazione 2')) Or (((Piatti.Piatto) = 'colazione 3')) Or (((Piatti.Piatto) = "
              "'colazione 4')) Or (((Piatti.Piatto) = 'colazione 5')) Or (((Piatti.Piatto) = 'colazione 6')) Or "
              "(((Piatti.Piatto) = 'colazione 7') )  ORDER BY Piatti.Piatto;");
}

} // namespace
