#include "catalogue/PiattiKcal.h"

#include "catalogue/CatalogueRows.h"

#include <gtest/gtest.h>

namespace {

TEST(PiattiKcalTest, TheStatementStandsLetterByLetter)
{
    EXPECT_EQ(IstruzionePiattiKcal(), corpusStatement("piatti", "calories"));
}

TEST(PiattiKcalTest, ADishRowWithAnEmptyNameIsNotListed)
{
    TestWorld world;
    Connection &dati = world.openArchive();
    insertFoods(dati, {"'', 'Pane', 250, 100, 0, 100, 0", "'Toast', 'Pane', 250, 50, 0, 80, 0",
                       "Null, 'Burro', 700, 10, 0, 10, 0"});
    EXPECT_EQ(rowsOf(dati, IstruzionePiattiKcal()), QStringList("Toast | 125 | 200"));
}

TEST(PiattiKcalTest, TheStoredTotalsDoNotCount)
{
    TestWorld world;
    Connection &dati = world.openArchive();
    insertFoods(dati, {"'Riso', 'Riso', 330, 50, 9999, 75, 9999", "'Riso', 'Olio', 900, 5, Null, 7, Null"});
    EXPECT_EQ(rowsOf(dati, IstruzionePiattiKcal()), QStringList("Riso | 210 | 310,5"));
}

} // namespace
