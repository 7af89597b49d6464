#include "catalogue/Composizione.h"

#include "catalogue/CatalogueRows.h"

#include <gtest/gtest.h>

namespace {

class ComposizioneTest : public testing::Test
{
protected:
    ComposizioneTest() : dati(world.openArchive()) {}
    void open(const QString &piatto) { righe.Open(IstruzioneComposizione(piatto), dati); }
    QStringList foods() { return rowsOf(dati, "Select Piatto, Alimento from Piatti"); }

    TestWorld world;
    Connection &dati;
    Recordset righe;
};

TEST_F(ComposizioneTest, TheStatementsStandLetterByLetter)
{
    EXPECT_EQ(IstruzioneNomiPiatti(), corpusStatement("piatti", "names"));
    EXPECT_EQ(IstruzioneAlimenti(), corpusStatement("piatti", "foods"));
    EXPECT_EQ(IstruzioneComposizione("PASTA al pomodoro"), corpusStatement("piatti", "dish"));
    EXPECT_EQ(IstruzioneComposizione(""), corpusStatement("piatti", "all"));
}

TEST_F(ComposizioneTest, AnEntryOfTheListOfFoodsTakesNameAndCaloriesApart)
{
    insertFoods(
        dati, {"'X', ' Pasta ', 350.5, 1, 1, 1, 1", "'Y', 'Pasta', 350.5, 1, 1, 1, 1", "'Z', 'Olio', 900, 1, 1, 1, 1"});
    EXPECT_EQ(VociAlimenti(dati), QStringList({"Olio /Kcal 900", "Pasta /Kcal 350,5"}));
    const std::optional<AlimentoScelto> food = ScegliAlimento("Pasta /Kcal 350,5");
    ASSERT_TRUE(food);
    EXPECT_EQ(food->nome, "Pasta ");
    EXPECT_EQ(food->kcal, " 350,5");
}

TEST_F(ComposizioneTest, ATextWithoutABarIsNoFoodAndTheFirstBarCounts)
{
    EXPECT_FALSE(ScegliAlimento("Pasta"));
    EXPECT_FALSE(ScegliAlimento(""));
    EXPECT_EQ(ScegliAlimento("Pane e/o grissini /Kcal 300")->nome, "Pane e");
    EXPECT_EQ(ScegliAlimento("Pane /Kcal 123456789012345678901234")->kcal, " 1234567890123456789");
    EXPECT_EQ(ScegliAlimento("Pane/")->kcal, "");
}

TEST_F(ComposizioneTest, ATargetLosesItsThousandsAndATextStays)
{
    EXPECT_EQ(LivelloNominale("1.500"), "1500");
    EXPECT_EQ(LivelloNominale("1100,5"), "1100,5");
    EXPECT_EQ(LivelloNominale("tanto"), "tanto");
    EXPECT_EQ(LivelloNominale(""), "");
}

TEST_F(ComposizioneTest, TheClassOfADishStandsInOneLine)
{
    insertDishes(dati, {"'Pasta', 0, 0, 'Menu', 'Pasta - Minestra'"});
    EXPECT_EQ(ClassificazionePiatto(dati, "PASTA"), "Tipologia 'Menu' - Categoria 'Pasta - Minestra'");
    EXPECT_EQ(ClassificazionePiatto(dati, "Riso"), std::nullopt);
}

TEST_F(ComposizioneTest, APortionOfBlanksOrZeroIsRefusedWithThePersonsName)
{
    for (const char *bad : {"", "   ", "0", " 0 ", "0.0", "tanto", "-"})
        EXPECT_FALSE(QuantitaValida(world.modulo, bad, "Ondira")) << bad;
    for (const char *good : {"1", " 20 ", "0.5", "0,5", "12,5", "-3", "5 g"})
        EXPECT_TRUE(QuantitaValida(world.modulo, good, "Tesmo")) << good;
    EXPECT_EQ(world.dialoghi.boxes().size(), 7);
    EXPECT_EQ(world.dialoghi.boxes().first(),
              "MsgBox 16 \"Inserisci Quantita\" Quantità per Ondira non puo essere vuota "
              "o essere impostato a ZERO");
}

TEST_F(ComposizioneTest, SavingIsAskedOnlyWhereThatIsWanted)
{
    EXPECT_TRUE(ConfermaSalvataggio(world.modulo, false, "Pasta"));
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
    world.dialoghi.answer(MsgAnswer::No);
    EXPECT_FALSE(ConfermaSalvataggio(world.modulo, true, "Pasta "));
    world.dialoghi.answer(MsgAnswer::Si);
    EXPECT_TRUE(ConfermaSalvataggio(world.modulo, true, "Pasta "));
    EXPECT_EQ(world.dialoghi.boxes().first(),
              "MsgBox 68 \"Salvataggio in corso ...\" Vuoi salvare inserimento di \r\n\r\nPasta   ?");
}

TEST_F(ComposizioneTest, TheDatabaseComputesTheTotalsOfTheSavedRowAlone)
{
    insertFoods(dati, {"'Pasta', 'Olio', 900, 10, 1, 10, 2"});
    open("Pasta");
    righe.AddNew();
    righe.setValue("Piatto", QString("Pasta"));
    righe.setValue("Alimento", QString("Pasta"));
    righe.setValue("KC100gr", 250);
    righe.setValue("quantita", 80);
    righe.setValue("quantita2", 100.5);
    SalvaAlimento(world.modulo, righe);
    EXPECT_EQ(rowsOf(dati, "Select Alimento, Totale1, Totale2 from Piatti"),
              QStringList({"Olio | 1 | 2", "Pasta | 200 | 251,25"}));
}

TEST_F(ComposizioneTest, ADeletedFoodLeavesItsNeighbourCurrent)
{
    insertFoods(dati, {"'Pasta', 'A', 1, 1, 1, 1, 1", "'Pasta', 'B', 1, 1, 1, 1, 1", "'Pasta', 'C', 1, 1, 1, 1, 1"});
    open("Pasta");
    righe.MoveNext();
    world.dialoghi.answer(MsgAnswer::No);
    EXPECT_FALSE(CancellaAlimento(world.modulo, righe, "B", "Pasta"));
    world.dialoghi.answer(MsgAnswer::Si);
    EXPECT_TRUE(CancellaAlimento(world.modulo, righe, "B", "Pasta"));
    EXPECT_EQ(righe.value("Alimento").text(), "C");
    world.dialoghi.answer(MsgAnswer::Si);
    CancellaAlimento(world.modulo, righe, "C", "Pasta");
    EXPECT_EQ(righe.value("Alimento").text(), "A");
    EXPECT_EQ(foods(), QStringList("Pasta | A"));
    EXPECT_EQ(world.dialoghi.boxes().first(),
              "MsgBox 324 \"Cancellazione Record\" Vuoi cancellare l'alimento 'B' relativo al piatto 'Pasta' ??");
}

TEST_F(ComposizioneTest, ADeletedDishGoesWithItsFoodsItsClassAndItsPairsInBothDirections)
{
    insertFoods(dati, {"'Pasta', 'A', 1, 1, 1, 1, 1", "'PASTA', 'B', 1, 1, 1, 1, 1", "'Riso', 'A', 1, 1, 1, 1, 1"});
    insertDishes(dati, {"'Pasta', 0, 0, 'Menu', 'Carne'", "'Riso', 0, 0, 'Menu', 'Carne'"});
    insertPairs(dati, {"'Pasta', 'Riso'", "'Riso', 'pasta'", "'Riso', 'Orzo'"});
    open("Pasta");
    righe.MoveLast();
    world.dialoghi.answer(MsgAnswer::Si);
    EXPECT_TRUE(CancellaPiatto(world.modulo, righe, "Pasta"));
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList("MsgBox 324 \"Cancellazione Record\" Vuoi cancellare l'intero piatto 'Pasta' ??"));
    EXPECT_EQ(foods(), QStringList("Riso | A"));
    EXPECT_EQ(rowsOf(dati, "Select Piatto from Sostituisci"), QStringList("Riso"));
    EXPECT_EQ(pairs(dati), QStringList("Riso | Orzo"));
}

TEST_F(ComposizioneTest, ARefusedDeletionLeavesTheDishWhole)
{
    insertFoods(dati, {"'Pasta', 'A', 1, 1, 1, 1, 1"});
    insertDishes(dati, {"'Pasta', 0, 0, 'Menu', 'Carne'"});
    insertPairs(dati, {"'Pasta', 'Riso'"});
    open("Pasta");
    world.dialoghi.answer(MsgAnswer::No);
    EXPECT_FALSE(CancellaPiatto(world.modulo, righe, "Pasta"));
    EXPECT_EQ(countOf(dati, "Piatti") + countOf(dati, "Sostituisci") + countOf(dati, "GruppoPiattiSostituiti"), 3);
}

TEST_F(ComposizioneTest, WhereAllDishesAreOpenOnlyTheOneConfirmedIsDeleted)
{
    insertFoods(dati, {"'', 'A', 1, 1, 1, 1, 1", "'Pasta', 'B', 1, 1, 1, 1, 1", "'Riso', 'C', 1, 1, 1, 1, 1"});
    open("");
    world.dialoghi.answer(MsgAnswer::Si);
    CancellaPiatto(world.modulo, righe, "Pasta");
    EXPECT_EQ(foods(), QStringList({" | A", "Riso | C"}));
}

TEST_F(ComposizioneTest, ADishWithoutANameTakesNoFoodsWithIt)
{
    insertFoods(dati, {"'', 'A', 1, 1, 1, 1, 1", "'Pasta', 'B', 1, 1, 1, 1, 1"});
    open("");
    world.dialoghi.answer(MsgAnswer::Si);
    CancellaPiatto(world.modulo, righe, "");
    EXPECT_EQ(countOf(dati, "Piatti"), 2);
}

TEST_F(ComposizioneTest, TheMarkerIsAFileOfOneEmptyLineThatOutlivesTheProgram)
{
    EXPECT_FALSE(ConfermaInserimento(world.modulo));
    SalvaConfermaInserimento(world.modulo, false); // nothing to delete
    SalvaConfermaInserimento(world.modulo, true);
    EXPECT_EQ(world.cartella.read("conferma"), QByteArray("\r\n"));
    EXPECT_TRUE(ConfermaInserimento(world.modulo));
    SalvaConfermaInserimento(world.modulo, false);
    EXPECT_FALSE(world.cartella.has("conferma"));
}

} // namespace
