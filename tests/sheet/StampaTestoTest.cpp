#include "sheet/StampaTesto.h"

#include "sheet/DayRows.h"
#include "sheet/StampaDays.h"

#include <gtest/gtest.h>

namespace {

class StampaTestoTest : public testing::Test
{
protected:
    StampaTestoTest() { setPrintDays(world); }

    QByteArray printed(const QString &day)
    {
        StampaTesto(world.modulo, day);
        return world.cartella.read("\\Documenti\\" + QString(day).remove('/') + ".txt");
    }
    FailureNumber failure(const QString &day)
    {
        try {
            StampaTesto(world.modulo, day);
        } catch (const Failure &thrown) {
            return thrown.number();
        }
        ADD_FAILURE() << "no failure";
        return {};
    }

    TestWorld world;
};

TEST_F(StampaTestoTest, AFullDayIsPrintedByteForByte)
{
    EXPECT_EQ(printed("09/03/2004"), goldenFile("giorno-intero.txt"));
}

TEST_F(StampaTestoTest, ADayWithoutSnacksCutsLongNamesAtTheWidthSoThatTheQuantityIsLostFirst)
{
    EXPECT_EQ(printed("10/03/2004"), goldenFile("senza-spuntini-nomi-lunghi.txt"));
}

TEST_F(StampaTestoTest, OfFiveSnacksThreeArePrintedAndDishesThatDifferInCapitalsStandApart)
{
    EXPECT_EQ(printed("11/03/2004"), goldenFile("cinque-spuntini-accenti.txt"));
}

TEST_F(StampaTestoTest, ADayWithoutRowsIsHeadTotalsOfZeroAndTheTwoLastLines)
{
    EXPECT_EQ(printed("12/03/2004"), goldenFile("giorno-vuoto.txt"));
}

TEST_F(StampaTestoTest, TheFileOpensInTheTextViewer)
{
    StampaTesto(world.modulo, "09/03/2004");
    EXPECT_EQ(world.programmi.started, QStringList("TextViewer " + world.cartella.path("\\documenti\\09032004.txt")));
}

TEST_F(StampaTestoTest, AnEarlierPrintOfTheDayIsReplaced)
{
    world.cartella.write("\\documenti\\12032004.txt", QByteArray(9000, 'x'));
    EXPECT_EQ(printed("12/03/2004"), goldenFile("giorno-vuoto.txt"));
}

TEST_F(StampaTestoTest, OneSnackFailsAtTheSecondAndLeavesTheFileAsFarAsItCame)
{
    insertSheet(world.modulo.dati(), {"'13/03/2004', 'Spuntino', 'Mela', 'Mela', 45, 100, 45, 100, 45",
                                      "'13/03/2004', 'Pranzo', 'Pane', 'Pane', 270, 50, 135, 50, 135"});
    EXPECT_EQ(failure("13/03/2004"), FailureNumber::NoCurrentRow);
    const QByteArray file = world.cartella.read("\\documenti\\13032004.txt");
    EXPECT_TRUE(file.endsWith("     |   Spuntino delle ore 10 Mela 100 gr./ml.                |  "
                              "Spuntino delle ore 10 Mela 100 gr./ml.                 | \r\n"))
        << file.toStdString();
    EXPECT_TRUE(world.programmi.started.isEmpty());
}

TEST_F(StampaTestoTest, TwoSnacksFailAtTheThird)
{
    insertSheet(world.modulo.dati(), {"'13/03/2004', 'Spuntino', 'Mela', 'Mela', 45, 100, 45, 100, 45",
                                      "'13/03/2004', 'Spuntino', 'Pera', 'Pera', 35, 200, 70, 200, 70"});
    EXPECT_EQ(failure("13/03/2004"), FailureNumber::NoCurrentRow);
    EXPECT_TRUE(world.cartella.read("\\documenti\\13032004.txt")
                    .endsWith("     |   Spuntino delle ore 15 Pera 200 gr./ml.                |  "
                              "Spuntino delle ore 10 Pera 200 gr./ml.                 | \r\n"));
}

TEST_F(StampaTestoTest, ANullTotalOfEitherPersonFailsBehindItsLine)
{
    insertSheet(world.modulo.dati(), {"'13/03/2004', 'Colazione', 'Latte', 'Latte', 45, 100, Null, 100, 45",
                                      "'14/03/2004', 'Colazione', 'Latte', 'Latte', 45, 100, 45, 100, Null"});
    EXPECT_EQ(failure("13/03/2004"), FailureNumber::InvalidNull);
    EXPECT_EQ(failure("14/03/2004"), FailureNumber::InvalidNull);
    EXPECT_TRUE(world.cartella.read("\\documenti\\14032004.txt").contains("Latte 100 gr./ml."));
}

TEST_F(StampaTestoTest, WithoutTheFolderDocumentiNothingIsPrinted)
{
    world.cartella.remove("\\documenti");
    EXPECT_EQ(failure("09/03/2004"), FailureNumber::PathNotFound);
    EXPECT_FALSE(world.cartella.has("\\documenti"));
    EXPECT_TRUE(world.programmi.started.isEmpty());
}

TEST_F(StampaTestoTest, ADayTextThatBreaksTheStatementLeavesTheHead)
{
    EXPECT_EQ(failure("l'altro"), FailureNumber::Engine);
    EXPECT_EQ(world.cartella.read("\\documenti\\l'altro.txt").count("\r\n"), 4);
}

TEST_F(StampaTestoTest, ADishAtLunchAndAtDinnerIsPrintedInBothMealsEachWithItsOwnRows)
{
    insertSheet(world.modulo.dati(), {"'13/03/2004', 'Cena', 'Riso', 'Burro', 758, 10, 75.8, 10, 75.8",
                                      "'13/03/2004', 'Pranzo', 'Riso', 'Riso', 362, 70, 253.4, 90, 325.8"});
    const QStringList lines = QString::fromLatin1(printed("13/03/2004")).split("\r\n");
    QStringList told; // what stands in the first person's column, from the dishes on
    for (const QString &line : lines.mid(4))
        if (line.startsWith("     | ") && !line.mid(6, 50).trimmed().isEmpty())
            told.append(line.mid(6, 50).simplified());
    EXPECT_EQ(told, QStringList({"Pranzo", "Riso", "Riso 70 gr./ml.", "Cena", "Riso", "Burro 10 gr./ml.",
                                 "totale giornaliero KCal.329,2"}));
}

TEST_F(StampaTestoTest, AViewerThatIsMissingFailsWithTheFileComplete)
{
    world.programmi.nothingIsInstalled = true;
    EXPECT_EQ(failure("12/03/2004"), FailureNumber::FileNotFound);
    EXPECT_EQ(world.cartella.read("\\documenti\\12032004.txt"), goldenFile("giorno-vuoto.txt"));
}

TEST_F(StampaTestoTest, EveryFixedLineIs118CharactersLongBehindItsFiveBlanks)
{
    for (const QByteArray &line : printed("09/03/2004").split('\n'))
        if (line.startsWith("     *--")) {
            EXPECT_EQ(line.size(), 5 + 118 + 1);
        }
}

} // namespace
