#include "sheet/RigheScheda.h"

#include "sheet/DayRows.h"
#include "sheet/InserisciPiatto.h"
#include "sheet/SostituisciPiatto.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

namespace {

const QString kSheet = QStringLiteral("SELECT dataInserimento, PranzoCenaSpuntino, Piatto, Alimento FROM SchedaPranzo "
                                      "ORDER BY ID");
const QString kNumbers = QStringLiteral("SELECT Alimento, KC100gr, quantita, KcNominale, Totale1, quantita2, "
                                        "KcNominale2, Totale2 FROM SchedaPranzo ORDER BY ID");

class RigheSchedaTest : public testing::Test
{
protected:
    RigheSchedaTest() : dati(world.openArchive())
    {
        insertRows(dati, "Piatti",
                   "Piatto, Alimento, KC100gr, quantita, KcNominale, Totale1, quantita2, KcNominale2, Totale2",
                   {"'Pasta al pomodoro', 'Pomodori', 19, 150, 1100, 28.5, 200, 1500, 38",
                    "'Pasta al pomodoro', '  Pasta ', 353, 80, 1100, 282.4, Null, 1500, Null",
                    "'Riso', 'Riso', 362, 70, 1100, 253.4, 90, 1500, 325.8"});
        insertSheet(dati, {"'01/02/2025', 'Pranzo', 'Riso', 'Riso', 362, 70, 253.4, 90, 325.8",
                           "'01/02/2025', 'Pranzo', 'Riso', 'Burro', 758, 10, 75.8, 10, 75.8",
                           "'01/02/2025', 'Cena', 'Riso', 'Riso', 362, 70, 253.4, 90, 325.8",
                           "'02/02/2025', 'Pranzo', 'Riso', 'Riso', 362, 70, 253.4, 90, 325.8",
                           "'01/02/2025', 'Pranzo', 'Mela', 'Mela', 53, 100, 53, 100, 53"});
    }

    template <class Operation>
    FailureNumber failureOf(Operation operation)
    {
        try {
            operation();
        } catch (const Failure &failure) {
            return failure.number();
        }
        ADD_FAILURE() << "no failure";
        return {};
    }

    TestWorld world;
    Connection &dati;
    const PostoNellaScheda risoAPranzo{"01/02/2025", "Pranzo", "Riso"};
};

TEST_F(RigheSchedaTest, ARowIsDeletedByItsKeyAfterTheQuestion)
{
    world.dialoghi.answer(MsgAnswer::Si);
    EXPECT_TRUE(CancellaRecord(world.modulo, risoAPranzo, "Burro", "2"));
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList("MsgBox 20 \"Cancellazione Record\" Vuoi cancellare presente Record \r\n - Pranzo\r\n"
                          " - Piatto Riso\r\n - Alimento Burro\r\n"));
    EXPECT_EQ(rowsOf(dati, kSheet),
              QStringList({"01/02/2025 | Pranzo | Riso | Riso", "01/02/2025 | Cena | Riso | Riso",
                           "02/02/2025 | Pranzo | Riso | Riso", "01/02/2025 | Pranzo | Mela | Mela"}));
}

TEST_F(RigheSchedaTest, NoDeletesNothing)
{
    world.dialoghi.answer(MsgAnswer::No);
    world.dialoghi.answer(MsgAnswer::No);
    EXPECT_FALSE(CancellaRecord(world.modulo, risoAPranzo, "Burro", "2"));
    EXPECT_FALSE(CancellaGruppo(world.modulo, risoAPranzo));
    EXPECT_EQ(countOf(dati, "SchedaPranzo"), 5);
}

TEST_F(RigheSchedaTest, WithoutARowOnShowTheDeletionFailsAndDeletesNothing)
{
    world.dialoghi.answer(MsgAnswer::Si);
    EXPECT_EQ(failureOf([&] { CancellaRecord(world.modulo, {}, {}, {}); }), FailureNumber::Engine);
    EXPECT_EQ(countOf(dati, "SchedaPranzo"), 5);
}

TEST_F(RigheSchedaTest, AGroupIsTheDishInThatMealOfThatDayAndNothingElse)
{
    world.dialoghi.answer(MsgAnswer::Si);
    EXPECT_TRUE(CancellaGruppo(world.modulo, {"01/02/2025", "PRANZO", "RISO"}));
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList("MsgBox 20 \"Cancellazione gruppo\" Vuoi cancellare tutto il gruppo PRANZO - Piatto RISO"));
    EXPECT_EQ(rowsOf(dati, kSheet), QStringList({"01/02/2025 | Cena | Riso | Riso", "02/02/2025 | Pranzo | Riso | Riso",
                                                 "01/02/2025 | Pranzo | Mela | Mela"}));
}

TEST_F(RigheSchedaTest, ADishIsInsertedFoodByFoodInNameOrderWithItsOwnFigures)
{
    dati.Execute("Delete * from SchedaPranzo");
    world.dialoghi.answer(MsgAnswer::Si);
    EXPECT_TRUE(InserisciPiatto(world.modulo, {"05/02/2025", "Menu", "pasta al POMODORO"}));
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList("MsgBox 68 \"Nuovo inserimento del 05/02/2025\" Saranno inseriti n. 2 alimenti e "
                          "condimenti. \r\n\r\n -   Pasta \r\n - Pomodori\r\n\r\n C o n f e r mi  ?"));
    EXPECT_EQ(rowsOf(dati, kSheet), QStringList({"05/02/2025 | Menu | pasta al POMODORO | Pasta",
                                                 "05/02/2025 | Menu | pasta al POMODORO | Pomodori"}));
    EXPECT_EQ(rowsOf(dati, kNumbers), QStringList({"Pasta | 353 | 80 | 1100 | 282,4 | - | 1500 | -",
                                                   "Pomodori | 19 | 150 | 1100 | 28,5 | 200 | 1500 | 38"}));
}

TEST_F(RigheSchedaTest, OnlyNoStopsAnInsertion)
{
    world.dialoghi.answer(MsgAnswer::No);
    EXPECT_FALSE(InserisciPiatto(world.modulo, {"05/02/2025", "Menu", "Riso"}));
    EXPECT_EQ(countOf(dati, "SchedaPranzo"), 5);
    world.dialoghi.answer(MsgAnswer::Annulla);
    EXPECT_TRUE(InserisciPiatto(world.modulo, {"05/02/2025", "Menu", "Riso"}));
    EXPECT_EQ(countOf(dati, "SchedaPranzo"), 6);
}

TEST_F(RigheSchedaTest, ADishWithoutFoodsIsPassedOverWithoutAWord)
{
    EXPECT_FALSE(InserisciPiatto(world.modulo, {"05/02/2025", "Menu", "Sconosciuto"}));
    EXPECT_TRUE(world.dialoghi.boxes().isEmpty());
    EXPECT_EQ(countOf(dati, "SchedaPranzo"), 5);
}

TEST_F(RigheSchedaTest, AnEmptyDayTakesRowsLikeAnyOther)
{
    world.dialoghi.answer(MsgAnswer::Si);
    EXPECT_TRUE(InserisciPiatto(world.modulo, {"", "Menu", "Riso"}));
    EXPECT_EQ(rowsOf(dati, kSheet).last(), " | Menu | Riso | Riso");
}

TEST_F(RigheSchedaTest, ADishInsertedTwiceStandsTwiceAndAGroupDeleteTakesBothCopies)
{
    const PostoNellaScheda posto{"05/02/2025", "Menu", "Pasta al pomodoro"};
    for (int copy = 0; copy < 2; ++copy) {
        world.dialoghi.answer(MsgAnswer::Si);
        InserisciPiatto(world.modulo, posto);
    }
    EXPECT_EQ(countOf(dati, "SchedaPranzo"), 9);
    world.dialoghi.answer(MsgAnswer::Si);
    CancellaGruppo(world.modulo, posto);
    EXPECT_EQ(countOf(dati, "SchedaPranzo"), 5);
}

TEST_F(RigheSchedaTest, ADishWithAnApostropheFailsBeforeAnythingIsAsked)
{
    EXPECT_EQ(failureOf([&] {
                  InserisciPiatto(world.modulo, {"05/02/2025", "Menu", "Pasta all'olio"});
              }),
              FailureNumber::Engine);
    EXPECT_TRUE(world.dialoghi.boxes().isEmpty());
    EXPECT_EQ(countOf(dati, "SchedaPranzo"), 5);
}

TEST_F(RigheSchedaTest, AReplacedDishLeavesItsMealAndTheNewFoodsBearTheNameOfTheDishBox)
{
    SostituisciPiatto(world.modulo, risoAPranzo, "Pasta al pomodoro", "Latte e biscotti");
    EXPECT_TRUE(world.dialoghi.boxes().isEmpty());
    EXPECT_EQ(rowsOf(dati, kSheet),
              QStringList({"01/02/2025 | Cena | Riso | Riso", "02/02/2025 | Pranzo | Riso | Riso",
                           "01/02/2025 | Pranzo | Mela | Mela", "01/02/2025 | Pranzo | Latte e biscotti | Pasta",
                           "01/02/2025 | Pranzo | Latte e biscotti | Pomodori"}));
}

TEST_F(RigheSchedaTest, ASubstituteWithoutFoodsLeavesTheMealWithoutTheDish)
{
    SostituisciPiatto(world.modulo, risoAPranzo, "Sconosciuto", "Pasta");
    EXPECT_EQ(countOf(dati, "SchedaPranzo"), 3);
}

TEST_F(RigheSchedaTest, ASubstituteWithAnApostropheDeletesNothing)
{
    EXPECT_EQ(failureOf([&] { SostituisciPiatto(world.modulo, risoAPranzo, "Pasta all'olio", "Pasta"); }),
              FailureNumber::Engine);
    EXPECT_EQ(countOf(dati, "SchedaPranzo"), 5);
}

TEST_F(RigheSchedaTest, OnlyBlanksAreTakenOffAroundATextAndNullStaysNull)
{
    EXPECT_EQ(SenzaBianchi(QString("  Olio d'oliva  ")).text(), "Olio d'oliva");
    EXPECT_EQ(SenzaBianchi(QString("\tOlio")).text(), "\tOlio");
    EXPECT_EQ(SenzaBianchi(QString("   ")).text(), "");
    EXPECT_TRUE(SenzaBianchi(Value()).isNull());
}

} // namespace
