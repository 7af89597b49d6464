#include "catalogue/Alternative.h"

#include "catalogue/CatalogueRows.h"

#include <gtest/gtest.h>

namespace {

TEST(AlternativeTest, TheStatementsStandLetterByLetter)
{
    EXPECT_EQ(IstruzioneSostituti(), corpusStatement("sostituti", "dishes"));
    EXPECT_EQ(IstruzioneAlternative("pasta al pomodoro"), corpusStatement("sostituti", "alternatives"));
    EXPECT_EQ(IstruzioneIngredienti("pasta al pomodoro"), corpusStatement("piatti", "portions"));
}

TEST(AlternativeTest, TheTotalsComeFromTheFoodsAndNotFromTheStoredCalories)
{
    TestWorld world;
    Connection &dati = world.openArchive();
    insertDishes(dati, {"'Pasta', 999, 888, 'Menu', 'Pasta - Minestra'"});
    insertFoods(dati, {"'Pasta', 'Pasta', 350, 70, 245, 90, 315.5", "'PASTA', 'Olio', 900, 10, 90, 15, 135"});
    const TotaliPiatto totals = SommaPiatto(dati, "pasta");
    EXPECT_EQ(totals.prima, "335");
    EXPECT_EQ(totals.seconda, "450,5");
}

TEST(AlternativeTest, ADishWithoutFoodsHasEmptyTotals)
{
    TestWorld world;
    Connection &dati = world.openArchive();
    const TotaliPiatto totals = SommaPiatto(dati, "Pasta");
    EXPECT_EQ(totals.prima, "");
    EXPECT_EQ(totals.seconda, "");
}

TEST(AlternativeTest, TheChoiceIsHandedOverOnlyWhereItIsConfirmed)
{
    TestWorld world;
    world.dialoghi.answer(MsgAnswer::Si);
    ConfermaSostituzione(world.modulo, "Pasta", "Riso");
    EXPECT_EQ(world.modulo.PiattoSostituto, "Riso");
    world.dialoghi.answer(MsgAnswer::No);
    ConfermaSostituzione(world.modulo, "Pasta", "Riso");
    EXPECT_EQ(world.modulo.PiattoSostituto, "");
    EXPECT_EQ(world.dialoghi.boxes(), QStringList({"MsgBox 68 \"OK\" Sostituisce Pasta con Riso",
                                                   "MsgBox 68 \"OK\" Sostituisce Pasta con Riso"}));
}

TEST(AlternativeTest, NothingChosenIsAskedAllTheSameAndStaysNothing)
{
    TestWorld world;
    world.modulo.PiattoSostituto = "Pasta";
    world.dialoghi.answer(MsgAnswer::Si);
    ConfermaSostituzione(world.modulo, "Pasta", "");
    EXPECT_EQ(world.modulo.PiattoSostituto, "");
    EXPECT_EQ(world.dialoghi.boxes(), QStringList("MsgBox 68 \"OK\" Sostituisce Pasta con "));
}

} // namespace
