// The archive of the reports.
#include "shell/DatabaseReport.h"

#include "support/TestWorld.h"

#include <gtest/gtest.h>

namespace {

class DatabaseReportTest : public testing::Test
{
protected:
    TestWorld world;

    void registerReport(const QString &path)
    {
        world.cartella.write("INI\\Report.ini", ("[Report]\r\n" + path + "\r\n").toUtf8());
    }
};

TEST_F(DatabaseReportTest, WithoutARegisteredArchiveOneIsToBeChosen)
{
    EXPECT_TRUE(DaScegliereDatabaseReport(world.modulo));
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
    EXPECT_EQ(world.cartella.read("INI\\SDIForm.ini"), "[Stile]\r\nStileMenu = 0\r\n");
    EXPECT_EQ(DatabaseReportRegistrato(world.modulo), "");
}

TEST_F(DatabaseReportTest, ARegisteredArchiveThatIsGoneIsChosenAnewWithoutAQuestion)
{
    registerReport(world.cartella.path("sparito.mdb"));
    EXPECT_TRUE(DaScegliereDatabaseReport(world.modulo));
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
    EXPECT_EQ(world.modulo.PercorsoDbReport, world.cartella.path("sparito.mdb"));
}

TEST_F(DatabaseReportTest, ARegisteredArchiveIsChangedOnlyOnYes)
{
    world.cartella.write("Report.mdb", "");
    const QString path = world.cartella.path("Report.mdb");
    registerReport(path);
    const QStringList question("MsgBox 36 \"Modifica Percorso MDB Report?\" Vuoi modificare il persorso: " + path);
    world.dialoghi.answer(MsgAnswer::No);
    EXPECT_FALSE(DaScegliereDatabaseReport(world.modulo));
    EXPECT_EQ(world.dialoghi.takeBoxes(), question);
    world.dialoghi.answer(MsgAnswer::Si);
    EXPECT_TRUE(DaScegliereDatabaseReport(world.modulo));
    EXPECT_EQ(world.dialoghi.takeBoxes(), question);
}

TEST_F(DatabaseReportTest, TheChosenArchiveIsKeptAndTold)
{
    registerReport("vecchio.mdb");
    RegistraDatabaseReport(world.modulo, "/casa/Report.mdb");
    EXPECT_EQ(world.cartella.read("INI\\Report.ini"), "[Report]\r\n/casa/Report.mdb\r\n");
    EXPECT_EQ(world.modulo.PercorsoDbReport, "/casa/Report.mdb");
    EXPECT_EQ(DatabaseReportRegistrato(world.modulo), "/casa/Report.mdb");
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList("MsgBox 0 \"OK!!\" Database per le stampe registrato: \n/casa/Report.mdb"));
}

TEST_F(DatabaseReportTest, ASettingsFileCutShortCountsAsNone)
{
    world.cartella.write("INI\\Report.ini", "[Report]\r\n");
    EXPECT_TRUE(DaScegliereDatabaseReport(world.modulo));
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
}

} // namespace
