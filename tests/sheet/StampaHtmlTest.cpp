#include "sheet/StampaHtml.h"

#include "sheet/DayRows.h"
#include "sheet/StampaDays.h"

#include <gtest/gtest.h>

namespace {

class StampaHtmlTest : public testing::Test
{
protected:
    StampaHtmlTest() { setPrintDays(world); }

    QByteArray printed(const QString &day)
    {
        StampaHtml(world.modulo, day);
        return world.cartella.read("\\Documenti\\" + QString(day).remove('/') + ".html");
    }
    FailureNumber failure(const QString &day)
    {
        try {
            StampaHtml(world.modulo, day);
        } catch (const Failure &thrown) {
            return thrown.number();
        }
        ADD_FAILURE() << "no failure";
        return {};
    }

    TestWorld world;
};

TEST_F(StampaHtmlTest, AFullDayIsPrintedByteForByte)
{
    EXPECT_EQ(printed("09/03/2004"), goldenFile("giorno-intero.html"));
}

TEST_F(StampaHtmlTest, ADayWithoutSnacksShowsLongNamesWhole)
{
    EXPECT_EQ(printed("10/03/2004"), goldenFile("senza-spuntini-nomi-lunghi.html"));
}

TEST_F(StampaHtmlTest, OfFiveSnacksThreeArePrintedAndNamesGoIntoThePageAsTheyStand)
{
    EXPECT_EQ(printed("11/03/2004"), goldenFile("cinque-spuntini-accenti.html"));
}

TEST_F(StampaHtmlTest, ADayWithoutRowsIsATableOfTwoRows)
{
    const QByteArray page = printed("12/03/2004");
    EXPECT_EQ(page, goldenFile("giorno-vuoto.html"));
    EXPECT_EQ(page.count("<tr>"), 2);
}

TEST_F(StampaHtmlTest, EachLunchDishLeavesOneRowOpen)
{
    const QByteArray three = printed("09/03/2004");
    EXPECT_EQ(three.count("<tr> ") - three.count("</tr> "), 3);
    const QByteArray one = printed("10/03/2004");
    EXPECT_EQ(one.count("<tr> ") - one.count("</tr> "), 1);
    const QByteArray dinnerOnly = printed("11/03/2004");
    EXPECT_EQ(dinnerOnly.count("<tr> "), dinnerOnly.count("</tr> "));
}

TEST_F(StampaHtmlTest, ThePageOpensInTheBrowser)
{
    StampaHtml(world.modulo, "09/03/2004");
    EXPECT_EQ(world.programmi.started, QStringList("Page " + world.cartella.path("\\documenti\\09032004.html")));
}

TEST_F(StampaHtmlTest, ADishAtLunchAndAtDinnerIsPrintedInBothMealsEachWithItsOwnRows)
{
    insertSheet(world.modulo.dati(), {"'13/03/2004', 'Cena', 'Riso', 'Burro', 758, 10, 75.8, 10, 75.8",
                                      "'13/03/2004', 'Pranzo', 'Riso', 'Riso', 362, 70, 253.4, 90, 325.8"});
    const QByteArray page = printed("13/03/2004");
    EXPECT_EQ(page.count("Riso 70 gr./ml."), 1);
    EXPECT_EQ(page.count("Burro 10 gr./ml."), 2); // both persons eat as much of it
    EXPECT_LT(page.indexOf("Riso 70 gr./ml."), page.indexOf("Burro 10 gr./ml."));
    EXPECT_TRUE(page.contains("329,2"));
}

TEST_F(StampaHtmlTest, OneSnackFailsAtTheSecondAndLeavesThePageAsFarAsItCame)
{
    insertSheet(world.modulo.dati(), {"'13/03/2004', 'Spuntino', 'Mela', 'Mela', 45, 100, 45, 100, 45",
                                      "'13/03/2004', 'Pranzo', 'Pane', 'Pane', 270, 50, 135, 50, 135"});
    EXPECT_EQ(failure("13/03/2004"), FailureNumber::NoCurrentRow);
    const QByteArray page = world.cartella.read("\\documenti\\13032004.html");
    EXPECT_TRUE(page.contains("<td align=\"center\"  width=\"50%\">Spuntino delle ore 10 Mela 100 gr./ml.</td> \r\n"));
    EXPECT_FALSE(page.contains("Spuntino delle ore 15"));
    EXPECT_FALSE(page.contains("Pane"));
    EXPECT_FALSE(page.contains("</table>"));
    EXPECT_TRUE(world.programmi.started.isEmpty());
}

TEST_F(StampaHtmlTest, TwoSnacksFailAtTheThirdAndLeaveThePageAsFarAsItCame)
{
    insertSheet(world.modulo.dati(), {"'13/03/2004', 'Spuntino', 'Mela', 'Mela', 45, 100, 45, 100, 45",
                                      "'13/03/2004', 'Spuntino', 'Pera', 'Pera', 35, 200, 70, 200, 70"});
    EXPECT_EQ(failure("13/03/2004"), FailureNumber::NoCurrentRow);
    const QByteArray page = world.cartella.read("\\documenti\\13032004.html");
    EXPECT_TRUE(page.contains("<td align=\"center\"  width=\"50%\">Spuntino delle ore 15 Pera 200 gr./ml.</td> \r\n"));
    EXPECT_FALSE(page.contains("Spuntino delle ore 21"));
    EXPECT_FALSE(page.contains("</table>"));
    EXPECT_TRUE(world.programmi.started.isEmpty());
}

TEST_F(StampaHtmlTest, ANullTotalFails)
{
    insertSheet(world.modulo.dati(), {"'13/03/2004', 'Cena', 'Latte', 'Latte', 45, 100, Null, 100, 45"});
    EXPECT_EQ(failure("13/03/2004"), FailureNumber::InvalidNull);
}

TEST_F(StampaHtmlTest, WithoutTheFolderDocumentiNothingIsPrinted)
{
    world.cartella.remove("\\documenti");
    EXPECT_EQ(failure("09/03/2004"), FailureNumber::PathNotFound);
}

} // namespace
