// What the main window's handlers read and write.
#include "shell/ContaVisite.h"
#include "shell/EtichettePersone.h"
#include "shell/MarcatoreSfondo.h"

#include "support/TestWorld.h"

#include <gtest/gtest.h>

#include <QFile>

namespace {

class MenuTest : public testing::Test
{
protected:
    TestWorld world;
};

TEST_F(MenuTest, TheLabelsShowDashesWithoutAHousehold)
{
    const EtichettePersone labels = LeggiEtichettePersone(world.modulo);
    EXPECT_EQ(labels.nomi, "----------------------- - -----------------------");
    EXPECT_EQ(labels.calorie, "----KCal-------- - --------KCal----------");
}

TEST_F(MenuTest, TheLabelsNameTheHouseholdAndFillTheGlobals)
{
    world.cartella.write("ini\\Anagrafica.txt", "Ondira\r\nTesmo\r\n1100\r\n1500\r\n");
    const EtichettePersone labels = LeggiEtichettePersone(world.modulo);
    EXPECT_EQ(labels.nomi, "Ondira - Tesmo");
    EXPECT_EQ(labels.calorie, "Kcal. 1100 -  Kcal. 1500");
    EXPECT_EQ(world.modulo.NomePrimaPersona, "Ondira");
    EXPECT_EQ(world.modulo.KcalSecondaPersona, "1500");
}

TEST_F(MenuTest, AHouseholdFileCutShortFailsAtItsRead)
{
    world.cartella.write("ini\\Anagrafica.txt", "Ondira\r\nTesmo\r\n");
    try {
        LeggiEtichettePersone(world.modulo);
        FAIL() << "two lines are no household";
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number(), FailureNumber::InputPastEnd);
    }
}

TEST_F(MenuTest, TheFirstVisitWritesOne)
{
    EXPECT_EQ(ContaVisita(world.mondo.folder), "1");
    EXPECT_EQ(world.cartella.read("Cont.log"), "1\r\n");
}

TEST_F(MenuTest, EachVisitCountsOneMore)
{
    world.cartella.write("Cont.log", "41\r\nand a line that nobody reads\r\n");
    EXPECT_EQ(ContaVisita(world.mondo.folder), "42");
    EXPECT_EQ(ContaVisita(world.mondo.folder), "43");
    EXPECT_EQ(world.cartella.read("Cont.log"), "43\r\n");
}

TEST_F(MenuTest, TheCountIsTheNumericValueOfTheFirstLineRounded)
{
    struct Case
    {
        QByteArray line;
        QString count;
    };
    const Case cases[] = {{"nessun numero\r\n", "1"}, {"", "1"},          {"\r\n99\r\n", "1"}, {"  7  \r\n", "8"},
                          {"12 visite\r\n", "13"},    {"41.5\r\n", "42"}, {"42.5\r\n", "44"},  {"-1\r\n", "0"}};
    for (const Case &each : cases) {
        world.cartella.write("Cont.log", each.line);
        EXPECT_EQ(ContaVisita(world.mondo.folder), each.count) << each.line.constData();
    }
}

TEST_F(MenuTest, TheMarkerOfTheBackgroundIsAFileWithOneEmptyLine)
{
    EXPECT_FALSE(SfondoVisibile(world.mondo.folder));
    SegnaSfondo(world.mondo.folder);
    EXPECT_TRUE(SfondoVisibile(world.mondo.folder));
    EXPECT_EQ(world.cartella.read("Sfondo"), "\r\n");
    TogliSegnoSfondo(world.mondo.folder);
    EXPECT_FALSE(world.cartella.has("Sfondo"));
}

TEST_F(MenuTest, AFolderNamedSfondoIsNoMarker)
{
    world.cartella.makeFolder("Sfondo");
    EXPECT_FALSE(SfondoVisibile(world.mondo.folder));
}

} // namespace
