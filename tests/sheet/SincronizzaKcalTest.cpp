#include "sheet/SincronizzaKcal.h"

#include "sheet/DayRows.h"
#include "support/TestWorld.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

const QString kDay = "01/02/2025";

class SincronizzaKcalTest : public testing::Test
{
protected:
    SincronizzaKcalTest() : dati(world.openArchive())
    {
        world.modulo.KcalPrimaPersona = "1500";
        world.modulo.KcalSecondaPersona = "1500";
    }

    void first(const QStringList &rows) { insertFirstPerson(dati, rows); }
    void second(const QStringList &rows) { insertSecondPerson(dati, rows); }
    void balanceFirst() { SincronizzaKcal(world.modulo, kDay, true, false); }
    void balanceSecond() { SincronizzaKcal(world.modulo, kDay, false, true); }
    void expectFailure(FailureNumber number, bool PrimaPersona, bool SecondaPersona)
    {
        try {
            SincronizzaKcal(world.modulo, kDay, PrimaPersona, SecondaPersona);
            ADD_FAILURE() << "no failure";
        } catch (const Failure &failure) {
            EXPECT_EQ(failure.number(), number);
        }
    }

    TestWorld world;
    Connection &dati;
};

// Direction

TEST_F(SincronizzaKcalTest, ASumOf980IsAboveATargetOf1500AsTextAndStays)
{
    first({"100, 980, 980"});
    balanceFirst();
    EXPECT_EQ(firstPerson(dati), QStringList("980 | 980"));
}

TEST_F(SincronizzaKcalTest, ASumOf12000IsBelowATargetOf1500AsTextAndStays)
{
    first({"100, 12000, 12000"});
    balanceFirst();
    EXPECT_EQ(firstPerson(dati), QStringList("12000 | 12000"));
}

TEST_F(SincronizzaKcalTest, ASumWithDecimalsIsRaisedWhereTextAndNumberAgree)
{
    first({"100, 1380.5, 1380.5"});
    balanceFirst();
    EXPECT_EQ(firstPerson(dati), QStringList("1500,5 | 1500,5"));
}

TEST_F(SincronizzaKcalTest, ASumEqualToTheTargetAsTextStays)
{
    world.modulo.KcalPrimaPersona = "1480,5";
    first({"100, 1480.5, 1480.5"});
    balanceFirst();
    EXPECT_EQ(firstPerson(dati), QStringList("1480,5 | 1480,5"));
}

TEST_F(SincronizzaKcalTest, ASumEqualToTheTargetAsNumberButNotAsTextStaysToo)
{
    world.modulo.KcalPrimaPersona = "1.500";
    first({"100, 1500, 1500"});
    balanceFirst();
    EXPECT_EQ(firstPerson(dati), QStringList("1500 | 1500"));
}

TEST_F(SincronizzaKcalTest, ADayWhoseTotalsAreAllNullStays)
{
    first({"100, 200, Null", "100, 300, Null"});
    balanceFirst();
    EXPECT_EQ(firstPerson(dati), QStringList({"200 | -", "300 | -"}));
}

// The four walks

TEST_F(SincronizzaKcalTest, LoweringTheFirstPersonEndsAtOrUnderTheTargetOnTheRowThatReachesIt)
{
    first({"100, 800, 800", "100, 735, 735"});
    balanceFirst();
    EXPECT_EQ(firstPerson(dati), QStringList({"780 | 780", "715 | 715"}));
}

TEST_F(SincronizzaKcalTest, LoweringTheFirstPersonStopsInTheMiddleOfAPass)
{
    first({"100, 800, 800", "100, 705, 705"});
    balanceFirst();
    EXPECT_EQ(firstPerson(dati), QStringList({"790 | 790", "705 | 705"}));
}

TEST_F(SincronizzaKcalTest, RaisingTheFirstPersonInsideTheBandFallsOnTheFirstRowAlone)
{
    first({"100, 740, 740", "100, 740, 740"});
    balanceFirst();
    EXPECT_EQ(firstPerson(dati), QStringList({"760 | 760", "740 | 740"}));
}

TEST_F(SincronizzaKcalTest, RaisingEndsUnderTheTargetWhereTheFirstRowIsAtTheFloor)
{
    first({"100, 20, 20", "100, 1430, 1430"});
    balanceFirst();
    EXPECT_EQ(firstPerson(dati), QStringList({"20 | 20", "1460 | 1460"}));
}

TEST_F(SincronizzaKcalTest, LoweringTheSecondPersonMayEndFiftyOver)
{
    second({"100, 785, 785", "100, 780, 780"}); // 1565; a whole pass gives 1545
    balanceSecond();
    EXPECT_EQ(secondPerson(dati), QStringList({"775 | 775", "770 | 770"}));
}

TEST_F(SincronizzaKcalTest, LoweringTheSecondPersonGoesOnWhereAPassEndsMoreThanFiftyOver)
{
    second({"100, 786, 786", "100, 785, 785"}); // 1571; the first pass gives 1551, the second 1531
    balanceSecond();
    EXPECT_EQ(secondPerson(dati), QStringList({"766 | 766", "765 | 765"}));
}

TEST_F(SincronizzaKcalTest, LoweringTheSecondPersonTakesOnePassEvenFromInsideTheBand)
{
    second({"100, 770, 770", "100, 770, 770"}); // 1540 is inside the band, yet above the target
    balanceSecond();
    EXPECT_EQ(secondPerson(dati), QStringList({"760 | 760", "760 | 760"}));
}

TEST_F(SincronizzaKcalTest, RaisingTheSecondPersonStopsFiftyUnderAndThenClimbsOnTheFirstRow)
{
    second({"100, 710, 710", "100, 710, 710"}); // 1420; 1430, 1440, 1450 stops, then the first row alone
    balanceSecond();
    EXPECT_EQ(secondPerson(dati), QStringList({"780 | 780", "720 | 720"}));
}

TEST_F(SincronizzaKcalTest, RowsAtTwentyOrBelowAreNeverTouchedAndLeaveTheDayAsItIs)
{
    first({"900, 20, 180", "500, 10, 999", "100, 0, 700", "100, -30, 0"});
    balanceFirst();
    EXPECT_EQ(firstPerson(dati), QStringList({"20 | 180", "10 | 999", "0 | 700", "-30 | 0"}));
}

TEST_F(SincronizzaKcalTest, APortionAboveTheFloorComesDownToBetweenElevenAndTwentyAndNoLower)
{
    world.modulo.KcalPrimaPersona = "100";
    first({"100, 45, 45", "100, 120.5, 120.5"});
    balanceFirst();
    EXPECT_EQ(firstPerson(dati), QStringList({"15 | 15", "80,5 | 80,5"}));
}

TEST_F(SincronizzaKcalTest, ATotalIsDividedFirstAndKeptUnrounded)
{
    world.modulo.KcalPrimaPersona = "30";
    first({"33.3, 110, 36.63"});
    balanceFirst();
    Recordset rows;
    rows.Open("Select * from SchedaPranzo", dati);
    EXPECT_EQ(rows.value("quantita").number(), 90);
    EXPECT_EQ(rows.value("Totale1").number(), 33.3 / 100 * 90);
}

TEST_F(SincronizzaKcalTest, TheOtherPersonAndTheNominalLevelsKeepTheirValues)
{
    insertRows(dati, "SchedaPranzo",
               "dataInserimento, KC100gr, quantita, KcNominale, Totale1, quantita2, KcNominale2, Totale2",
               {"'01/02/2025', 100, 1600, 1100, 1600, 1700, 1500, 1700"});
    balanceFirst();
    EXPECT_EQ(rowsOf(dati, "SELECT quantita, KcNominale, Totale1, quantita2, KcNominale2, Totale2 FROM SchedaPranzo"),
              QStringList("1500 | 1100 | 1500 | 1700 | 1500 | 1700"));
}

TEST_F(SincronizzaKcalTest, BothPersonsAreBalancedInOneCallEachToItsOwnTarget)
{
    world.modulo.KcalPrimaPersona = "1100";
    insertSheet(dati, {"'01/02/2025', 'Pranzo', 'Pasta', 'Pasta', 100, 1200, 1200, 1400, 1400"});
    SincronizzaKcal(world.modulo, kDay, true, true);
    EXPECT_EQ(firstPerson(dati), QStringList("1100 | 1100"));
    EXPECT_EQ(secondPerson(dati), QStringList("1500 | 1500"));
}

TEST_F(SincronizzaKcalTest, OnlyTheDayWithExactlyThisTextIsBalanced)
{
    first({"100, 1600, 1600"});
    insertRows(dati, "SchedaPranzo", "dataInserimento, KC100gr, quantita, Totale1", {"'1/2/2025', 100, 1600, 1600"});
    balanceFirst();
    EXPECT_EQ(firstPerson(dati), QStringList({"1500 | 1500", "1600 | 1600"}));
}

// Nulls

TEST_F(SincronizzaKcalTest, ANullPortionIsLeftAlone)
{
    first({"100, Null, 100", "100, 1450, 1450"});
    balanceFirst();
    EXPECT_EQ(firstPerson(dati), QStringList({"- | 100", "1400 | 1400"}));
}

TEST_F(SincronizzaKcalTest, ANullTotalCountsAsNothingUntilItsRowMoves)
{
    first({"100, 100, Null", "100, 1400, 1400"});
    balanceFirst();
    EXPECT_EQ(firstPerson(dati), QStringList({"110 | 110", "1400 | 1400"}));
}

TEST_F(SincronizzaKcalTest, ARowToMoveWithoutCaloriesFailsAndKeepsTheRowsMovedBefore)
{
    first({"100, 1000, 1000", "Null, 200, 600", "100, 500, 500"});
    expectFailure(FailureNumber::InvalidNull, true, false);
    EXPECT_EQ(firstPerson(dati), QStringList({"990 | 990", "200 | 600", "500 | 500"}));
}

// The end of a walk

TEST_F(SincronizzaKcalTest, RaisingARowWithoutCaloriesEndsAfterThePassThatLeavesTheSumWhereItWas)
{
    first({"0, 100, 0", "100, 1480, 1480"});
    balanceFirst();
    EXPECT_EQ(firstPerson(dati), QStringList({"110 | 0", "1480 | 1480"}));
}

TEST_F(SincronizzaKcalTest, RaisingADayWithoutAnyCaloriesEndsAfterOnePassForTheSecondPersonToo)
{
    second({"0, 100, 0", "0, 30, 0"});
    balanceSecond();
    EXPECT_EQ(secondPerson(dati), QStringList({"110 | 0", "40 | 0"}));
}

TEST_F(SincronizzaKcalTest, LoweringARowWithoutCaloriesGoesOnToTheFloor)
{
    first({"0, 100, 0", "100, 20, 1600"});
    balanceFirst();
    EXPECT_EQ(firstPerson(dati), QStringList({"20 | 0", "20 | 1600"}));
}

TEST_F(SincronizzaKcalTest, EscStopsAWalkWithoutEndAndKeepsWhatWasReached)
{
    world.schermo.escAtBreath = 1;
    insertSheet(dati, {"'01/02/2025', 'Pranzo', 'Sconto', 'Sconto', -100, 100, -100, 1600, 1600"});
    SincronizzaKcal(world.modulo, kDay, true, true);
    EXPECT_EQ(firstPerson(dati), QStringList("50100 | -50100"));
    EXPECT_EQ(secondPerson(dati), QStringList("1600 | 1600"));
    EXPECT_EQ(world.dialoghi.boxes(), QStringList("MsgBox 48 \"Sincronizzazione interrotta\" "
                                                  "La sincronizzazione del 01/02/2025 è stata interrotta con Esc.\r\n"
                                                  "Le quantità raggiunte fin qui sono state salvate."));
}

TEST_F(SincronizzaKcalTest, AnOrdinaryDayIsBalancedInOneBreath)
{
    world.schermo.escAtBreath = 1;
    first({"100, 300, 300", "350, 100, 350", "52, 400, 208"});
    world.modulo.KcalPrimaPersona = "600";
    balanceFirst();
    EXPECT_EQ(world.schermo.breaths, 0);
}

// Targets

TEST_F(SincronizzaKcalTest, ATargetThatIsNoNumberFailsOnceADirectionIsChosen)
{
    first({"100, 1600, 1600"});
    for (const QString &target : {QString(), QString("mille"), QString("1500 kcal")}) {
        world.modulo.KcalPrimaPersona = target;
        expectFailure(FailureNumber::TypeMismatch, true, false);
    }
    EXPECT_EQ(firstPerson(dati), QStringList("1600 | 1600"));
}

TEST_F(SincronizzaKcalTest, ATargetThatIsNoNumberDoesNotMatterWithoutADirection)
{
    world.modulo.KcalPrimaPersona.clear();
    first({"100, 1600, Null"});
    balanceFirst();
    EXPECT_EQ(firstPerson(dati), QStringList("1600 | -"));
}

TEST_F(SincronizzaKcalTest, ABadTargetOfTheSecondPersonKeepsTheFirstPersonsRows)
{
    world.modulo.KcalSecondaPersona = "tanto";
    insertSheet(dati, {"'01/02/2025', 'Pranzo', 'Pasta', 'Pasta', 100, 1600, 1600, 1600, 1600"});
    expectFailure(FailureNumber::TypeMismatch, true, true);
    EXPECT_EQ(firstPerson(dati), QStringList("1500 | 1500"));
    EXPECT_EQ(secondPerson(dati), QStringList("1600 | 1600"));
}

TEST_F(SincronizzaKcalTest, ATargetIsReadAsAPersonTypesIt)
{
    world.modulo.KcalPrimaPersona = "1.100";
    first({"100, 1250, 1250"});
    balanceFirst();
    EXPECT_EQ(firstPerson(dati), QStringList("1100 | 1100"));
}

// What is around

TEST_F(SincronizzaKcalTest, ADayWithoutRowsMovesNeitherRowsNorBar)
{
    SincronizzaKcal(world.modulo, kDay, true, true);
    EXPECT_EQ(world.schermate.barTouches, 0);
    EXPECT_TRUE(world.modulo.RsComune->isOpen());
}

TEST_F(SincronizzaKcalTest, TheBarAdvancesOnceWhicheverPersonsAreAskedFor)
{
    first({"100, 1500, 1500"});
    SincronizzaKcal(world.modulo, kDay, true, false);
    SincronizzaKcal(world.modulo, kDay, false, true);
    SincronizzaKcal(world.modulo, kDay, false, false);
    SincronizzaKcal(world.modulo, kDay, true, true);
    EXPECT_THAT(world.schermate.bar.widths, testing::ElementsAre(550, 900, 1250, 1600));
}

TEST_F(SincronizzaKcalTest, AFailingBalanceLeavesTheBarWhereItCameToAndTheNextOneGoesOnFromThere)
{
    first({"100, 1600, 1600"});
    second({"100, 1600, 1600"});
    world.modulo.KcalPrimaPersona = "tanto";
    expectFailure(FailureNumber::TypeMismatch, true, true);
    EXPECT_TRUE(world.schermate.bar.widths.empty());
    world.modulo.KcalPrimaPersona = "1500";
    world.modulo.KcalSecondaPersona = "tanto";
    expectFailure(FailureNumber::TypeMismatch, true, true);
    world.modulo.KcalSecondaPersona = "1500";
    SincronizzaKcal(world.modulo, kDay, true, true);
    EXPECT_THAT(world.schermate.bar.widths, testing::ElementsAre(550, 900));
}

TEST_F(SincronizzaKcalTest, ThePointerIsLeftBusyAndRsComuneOpenOnTheDay)
{
    first({"100, 1600, 1600"});
    balanceFirst();
    EXPECT_THAT(world.schermo.pointers, testing::ElementsAre(MousePointer::Hourglass));
    ASSERT_TRUE(world.modulo.RsComune->isOpen());
    EXPECT_EQ(world.modulo.RsComune->Source(),
              "SELECT SchedaPranzo.id, SchedaPranzo.KC100gr, SchedaPranzo.quantita, SchedaPranzo.KcNominale, "
              "SchedaPranzo.Totale1, SchedaPranzo.quantita2, SchedaPranzo.KcNominale2, SchedaPranzo.Totale2, "
              "SchedaPranzo.dataInserimento From SchedaPranzo WHERE (((SchedaPranzo.dataInserimento)='01/02/2025'));");
    EXPECT_EQ(world.modulo.RsComune->valueAt(0, 2), Value(1500.0));
}

TEST_F(SincronizzaKcalTest, ADayTextWithAnApostropheFailsAtTheArchive)
{
    try {
        SincronizzaKcal(world.modulo, "l'altro ieri", true, true);
        ADD_FAILURE() << "no failure";
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number(), FailureNumber::Engine);
    }
}

TEST_F(SincronizzaKcalTest, WithoutAConnectionItFails)
{
    world.modulo.ConnessioneDati->Close();
    expectFailure(FailureNumber::ConnectionClosed, true, true);
}

} // namespace
