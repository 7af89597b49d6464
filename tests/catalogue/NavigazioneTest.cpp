#include "catalogue/Navigazione.h"

#include "catalogue/CatalogueRows.h"

#include <gtest/gtest.h>

namespace {

class NavigazioneTest : public testing::Test
{
protected:
    NavigazioneTest() : dati(world.openArchive()) {}
    void open(const QStringList &foods)
    {
        insertFoods(dati, foods);
        righe.Open("Select * from Piatti", dati);
    }
    QString position() { return TestoPosizione(righe, "Record: ", "Vuoto"); }

    TestWorld world;
    Connection &dati;
    Recordset righe;
};

const QStringList kThree = {"'A', 'a', 1, 1, 1, 1, 1", "'B', 'b', 1, 1, 1, 1, 1", "'C', 'c', 1, 1, 1, 1, 1"};

TEST_F(NavigazioneTest, NextOnTheLastRowBeepsAndShowsTheFirst)
{
    open(kThree);
    VaiAllUltimo(righe);
    EXPECT_EQ(position(), "Record: 3\\3");
    VaiAlSuccessivo(righe, world.schermo);
    EXPECT_EQ(position(), "Record: 1\\3");
    EXPECT_EQ(world.schermo.beeps, 1);
    VaiAlSuccessivo(righe, world.schermo);
    EXPECT_EQ(position(), "Record: 2\\3");
    EXPECT_EQ(world.schermo.beeps, 1);
}

TEST_F(NavigazioneTest, PreviousOnTheFirstRowBeepsAndShowsTheLast)
{
    open(kThree);
    VaiAlPrecedente(righe, world.schermo);
    EXPECT_EQ(position(), "Record: 3\\3");
    EXPECT_EQ(world.schermo.beeps, 1);
    VaiAlPrecedente(righe, world.schermo);
    EXPECT_EQ(position(), "Record: 2\\3");
    VaiAlPrimo(righe);
    EXPECT_EQ(position(), "Record: 1\\3");
}

TEST_F(NavigazioneTest, ASetWithoutRowsNeitherMovesNorBeeps)
{
    open({});
    VaiAlPrimo(righe);
    VaiAllUltimo(righe);
    VaiAlSuccessivo(righe, world.schermo);
    VaiAlPrecedente(righe, world.schermo);
    EXPECT_EQ(position(), "Vuoto");
    EXPECT_EQ(world.schermo.beeps, 0);
}

} // namespace
