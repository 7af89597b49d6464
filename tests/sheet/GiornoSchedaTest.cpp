#include "sheet/GiornoScheda.h"

#include "sheet/DayRows.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

namespace {

class GiornoSchedaTest : public testing::Test
{
protected:
    GiornoSchedaTest() : dati(world.openArchive()) {}

    QStringList totali(const QString &giorno)
    {
        const TotaliGiorno totals = Totali(world.modulo, giorno);
        return {totals.prima, totals.seconda};
    }

    TestWorld world;
    Connection &dati;
};

TEST_F(GiornoSchedaTest, ADayWithoutRowsSumsToZeroForBoth)
{
    EXPECT_EQ(totali("01/02/2025"), QStringList({"0", "0"}));
}

TEST_F(GiornoSchedaTest, ADaySumsItsRowsOfEveryMealUnroundedWithACommaAndPassesOverNulls)
{
    insertSheet(dati, {"'01/02/2025', 'Colazione', 'Colazione 1', 'Latte', 50, 100, 50.25, 200, Null",
                       "'01/02/2025', 'Menu', 'Pasta', 'Pasta', 350, 80, 280.5, 100, Null",
                       "'02/02/2025', 'Pranzo', 'Pasta', 'Pasta', 350, 80, 999, 100, 999"});
    EXPECT_EQ(totali("01/02/2025"), QStringList({"330,75", "0"}));
}

TEST_F(GiornoSchedaTest, TotaliReplacesRsComuneAndClosesIt)
{
    const auto before = std::make_shared<Recordset>();
    world.modulo.RsComune = before;
    totali("01/02/2025");
    EXPECT_NE(world.modulo.RsComune, before);
    EXPECT_FALSE(world.modulo.RsComune->isOpen());
}

TEST_F(GiornoSchedaTest, ADayIsLookedUpAsTextInKeyOrder)
{
    insertSheet(dati, {"'01/02/2004', 'Cena', 'Zuppa', 'Zuppa', 1, 1, 1, 1, 1",
                       "'1/2/2004', 'Cena', 'Riso', 'Riso', 1, 1, 1, 1, 1",
                       "'01/02/2004', 'Cena', 'Agnello', 'Agnello', 1, 1, 1, 1, 1"});
    Recordset rows;
    rows.Open(IstruzioneCercaSchedaPranzo("01/02/2004"), dati);
    ASSERT_EQ(rows.RecordCount(), 2);
    EXPECT_EQ(rows.value("Piatto").text(), "Zuppa");
    rows.MoveNext();
    EXPECT_EQ(rows.value("Piatto").text(), "Agnello");
    EXPECT_EQ(rows.Source(), "SELECT *  From SchedaPranzo Where datainserimento = '01/02/2004' "
                             "ORDER BY SchedaPranzo.dataInserimento DESC , SchedaPranzo.ID;");
}

TEST_F(GiornoSchedaTest, TheListOfDaysHoldsEachDateOnceInDateOrder)
{
    insertSheet(dati, {"'02/03/2025', 'Cena', 'Zuppa', 'Zuppa', 1, 1, 1, 1, 1",
                       "'11/01/2025', 'Cena', 'Zuppa', 'Zuppa', 1, 1, 1, 1, 1",
                       "'2/3/2025', 'Cena', 'Zuppa', 'Zuppa', 1, 1, 1, 1, 1"});
    EXPECT_EQ(rowsOf(dati, IstruzioneGiorni()), QStringList({"11/01/2025", "02/03/2025"}));
}

TEST_F(GiornoSchedaTest, TheMarkerOfAutomaticBalancingIsAFileOfOneEmptyLine)
{
    EXPECT_FALSE(AggiustaAutomaticamente(world.modulo));
    SalvaAggiusta(world.modulo, true);
    EXPECT_EQ(world.cartella.read("\\Aggiusta.log"), "\r\n");
    EXPECT_TRUE(AggiustaAutomaticamente(world.modulo));
    SalvaAggiusta(world.modulo, false);
    EXPECT_FALSE(world.cartella.has("\\Aggiusta.log"));
    SalvaAggiusta(world.modulo, false);
    EXPECT_FALSE(AggiustaAutomaticamente(world.modulo));
}

TEST_F(GiornoSchedaTest, TheContentsOfTheMarkerMeanNothing)
{
    world.cartella.write("\\aggiusta.LOG", "no");
    EXPECT_TRUE(AggiustaAutomaticamente(world.modulo));
}

} // namespace
