#include "core/Household.h"

#include "platform/Failure.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

namespace {

struct HouseholdTest : testing::Test
{
    TestWorld world;
    ModNetServer &modulo = world.modulo;

    QStringList globals() const
    {
        return {modulo.NomePrimaPersona, modulo.NomeSecondaPersona, modulo.KcalPrimaPersona, modulo.KcalSecondaPersona};
    }
};

} // namespace

TEST_F(HouseholdTest, FourLinesAreTheFourGlobals)
{
    EXPECT_FALSE(EsisteAnagrafica(modulo));
    world.cartella.write("INI\\Anagrafica.txt", "Ondira\r\nTesmo\r\n1100\r\n1500\r\n");
    EXPECT_TRUE(EsisteAnagrafica(modulo));
    LeggiAnagrafica(modulo);
    EXPECT_EQ(globals(), QStringList({"Ondira", "Tesmo", "1100", "1500"}));
}

TEST_F(HouseholdTest, IsWrittenAsItStands)
{
    world.cartella.makeFolder("INI");
    ScriviAnagrafica(modulo, {"Niccolò", "", "mille", " 1.500 "});
    EXPECT_EQ(world.cartella.read("\\ini\\anagrafica.txt"), QByteArray("Niccol\xF2\r\n\r\nmille\r\n 1.500 \r\n"));
    EXPECT_EQ(world.cartella.entries("INI"), QStringList("Anagrafica.txt"));
    EXPECT_EQ(globals(), QStringList({"Niccolò", "", "mille", " 1.500 "}));
    LeggiAnagrafica(modulo);
    EXPECT_EQ(globals(), QStringList({"Niccolò", "", "mille", " 1.500 "}));
}

TEST_F(HouseholdTest, ANameOutsideTheCodePageComesBackWhole)
{
    world.cartella.makeFolder("ini");
    ScriviAnagrafica(modulo, {"Łucja", "Ζωή", "1100", "1500"});
    modulo.NomePrimaPersona.clear();
    LeggiAnagrafica(modulo);
    EXPECT_EQ(globals(), QStringList({"Łucja", "Ζωή", "1100", "1500"}));
}

TEST_F(HouseholdTest, NeedsItsFolder)
{
    world.setHousehold();
    world.cartella.remove("ini");
    try {
        ScriviAnagrafica(modulo, {"a", "b", "c", "d"});
        FAIL();
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number(), FailureNumber::PathNotFound);
    }
    EXPECT_EQ(globals(), QStringList({"Ondira", "Tesmo", "1100", "1500"}));
}

TEST_F(HouseholdTest, AFileCutShortFailsAtTheLineThatIsNotThere)
{
    world.cartella.write("ini\\Anagrafica.txt", "Ondira\r\nTesmo");
    modulo.KcalPrimaPersona = "1100";
    try {
        LeggiAnagrafica(modulo);
        FAIL();
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number(), FailureNumber::InputPastEnd);
    }
    EXPECT_EQ(globals(), QStringList({"Ondira", "Tesmo", "1100", ""}));
}

TEST_F(HouseholdTest, AnEmptyFileAndAMissingOneFail)
{
    world.cartella.write("ini\\Anagrafica.txt", "");
    EXPECT_THROW(LeggiAnagrafica(modulo), Failure);
    world.cartella.remove("ini\\Anagrafica.txt");
    try {
        LeggiAnagrafica(modulo);
        FAIL();
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number(), FailureNumber::FileNotFound);
    }
}

TEST_F(HouseholdTest, NoiseIsReadAsNames)
{
    world.cartella.write("ini\\Anagrafica.txt", QByteArray("\x00\xFF\x81\n\n\x1A\r\n\x7F", 9));
    LeggiAnagrafica(modulo);
    EXPECT_EQ(globals(),
              QStringList({QString(u"\u0000\u00FF\u0081"_qs), "", QString(QChar(0x1A)), QString(QChar(0x7F))}));
}
