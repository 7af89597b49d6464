#include "planner/VisteMenu.h"

#include "planner/PlannerTest.h"

namespace {

class VisteMenuTest : public PlannerTest
{
protected:
    void addDays(const QStringList &days) // month/day/year
    {
        QStringList rows;
        for (const QString &day : days)
            rows.append("#" + day + "#, 'Cuscus', 'Rosetta'");
        insertRows(dati, "Menu", "DataMenu, Pranzo, pane1", rows);
    }

    static QStringList days(const Recordset &rs)
    {
        QStringList texts;
        for (int row = 0; row < rs.RecordCount(); ++row)
            texts.append(rs.valueAt(row, 0).text());
        return texts;
    }
};

TEST_F(VisteMenuTest, TheViewShowsTheRangeWithBothItsEndsInTableOrderAndWithoutTheBreads)
{
    addDays({"3/5/2025", "3/1/2025", "3/4/2025", "3/2/2025", "4/3/2025"});
    const auto rs = ApriVistaMenu(world.modulo, "02/03/2025", "05/03/2025");
    EXPECT_EQ(rs->Source(), "SELECT Menu.DataMenu, Menu.Colazione, Menu.Spuntino1, Menu.Pranzo, Menu.Contorno1, "
                            "Menu.Spuntino2, Menu.Cena, Menu.Contorno2, Menu.Spuntino3, Menu.dataInserimento From Menu "
                            " WHERE (((Menu.DataMenu)>=#3/2/2025# And (Menu.DataMenu)<=#3/5/2025#));");
    EXPECT_EQ(days(*rs), QStringList({"05/03/2025", "04/03/2025", "02/03/2025"}));
    QStringList fields;
    for (int column = 0; column < rs->fieldCount(); ++column)
        fields.append(rs->field(column).name);
    EXPECT_EQ(fields, QStringList({"DataMenu", "Colazione", "Spuntino1", "Pranzo", "Contorno1", "Spuntino2", "Cena",
                                   "Contorno2", "Spuntino3", "dataInserimento"}));
}

TEST_F(VisteMenuTest, AHalfTypedDayFails)
{
    addDays({"3/2/2025"});
    for (const char *text : {"", "0", "02/", "02/03/20", "02/13/2025", "30/02/2025", "x"}) {
        EXPECT_THROW(ApriVistaMenu(world.modulo, text, "05/03/2025"), Failure) << text;
        EXPECT_THROW(ApriVistaMenu(world.modulo, "02/03/2025", text), Failure) << text;
    }
}

TEST_F(VisteMenuTest, TheWholeTableComesInItsOwnOrder)
{
    addDays({"3/5/2025", "3/1/2025", "3/4/2024"});
    EXPECT_EQ(days(*ApriTuttiIMenu(world.modulo)), QStringList({"05/03/2025", "01/03/2025", "04/03/2024"}));
}

TEST_F(VisteMenuTest, TheDeletionAsksWithTheTextsOfTheBoxes)
{
    addDays({"3/20/2025"});
    world.dialoghi.answer(MsgAnswer::No);
    EXPECT_FALSE(CancellaBlocco(world.modulo, "1/3/2025", "31-03-2025"));
    EXPECT_EQ(world.dialoghi.boxes(), QStringList("MsgBox 68 \"Cancellazione Record\" Confermi la cancellazione dei "
                                                  "record compresi \nle date1/3/2025 e 31-03-2025 ??"));
    EXPECT_EQ(countOf(dati, "Menu"), 1);
}

TEST_F(VisteMenuTest, TheDeletionTakesDaysAboveTwelveAsTheyAre)
{
    addDays({"6/13/2025", "6/14/2025", "6/20/2025", "6/21/2025"});
    world.dialoghi.answer(MsgAnswer::Si);
    EXPECT_TRUE(CancellaBlocco(world.modulo, "14/06/2025", "20/06/2025"));
    EXPECT_EQ(column("DataMenu"), QStringList({"13/06/2025", "21/06/2025"}));
}

TEST_F(VisteMenuTest, TheDeletionTakesDaysUpToTwelveWithDayAndMonthExchanged)
{
    addDays({"5/5/2025", "5/6/2025", "6/5/2025", "6/11/2025", "10/6/2025", "10/7/2025"});
    world.dialoghi.answer(MsgAnswer::Si);
    EXPECT_TRUE(CancellaBlocco(world.modulo, "05/06/2025", "10/06/2025")); // 6 May to 6 October
    EXPECT_EQ(column("DataMenu"), QStringList({"05/05/2025", "07/10/2025"}));
}

TEST_F(VisteMenuTest, ADeletionWithoutRowsRemovesNothing)
{
    addDays({"3/20/2025"});
    world.dialoghi.answer(MsgAnswer::Si);
    EXPECT_TRUE(CancellaBlocco(world.modulo, "21/03/2025", "25/03/2025"));
    EXPECT_EQ(countOf(dati, "Menu"), 1);
}

TEST_F(VisteMenuTest, ADeletionWithAHalfTypedDayFailsBeforeItAsks)
{
    addDays({"3/20/2025"});
    EXPECT_EQ(wordsOf([&] { CancellaBlocco(world.modulo, "20/03/", "25/03/2025"); }).left(23),
              "Tipo non corrispondente");
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
    EXPECT_EQ(countOf(dati, "Menu"), 1);
}

TEST_F(VisteMenuTest, TheLatestPlannedDayIsAWeekFromTodayWhereNothingIsPlanned)
{
    EXPECT_EQ(UltimoGiornoPianificato(world.modulo), "09/03/2025");
    addDays({"3/5/2025", "11/1/2026", "12/30/2025"});
    EXPECT_EQ(UltimoGiornoPianificato(world.modulo), "01/11/2026");
}

} // namespace
