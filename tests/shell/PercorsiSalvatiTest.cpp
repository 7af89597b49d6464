// Where the database dialog stands when it opens.
#include "shell/PercorsiSalvati.h"

#include "support/TestWorld.h"

#include <gtest/gtest.h>

namespace {

class PercorsiSalvatiTest : public testing::Test
{
protected:
    TestWorld world;

    void locations(const QString &system, const QString &data)
    {
        world.cartella.write("INI\\GestioneRete.INI",
                             ("[Gestione database]\r\n" + system + "\r\n[Gestione database Aziendale]\r\n" + data +
                              "\r\nqualcosa.db\r\n")
                                 .toUtf8());
    }
};

TEST_F(PercorsiSalvatiTest, WithoutSettingsNothingIsSavedAndTheFolderIniIsMade)
{
    const PercorsiSalvati saved = LeggiPercorsiSalvati(world.modulo);
    EXPECT_EQ(saved.dati.cartella, "");
    EXPECT_EQ(saved.dati.file, "");
    EXPECT_EQ(world.cartella.read("INI\\SDIForm.ini"), "[Stile]\r\nStileMenu = 0\r\n");
}

TEST_F(PercorsiSalvatiTest, AFolderAndAFileAreCutAtTheLastSign)
{
    world.cartella.makeFolder("archivi di casa");
    const QString folder = world.cartella.path("archivi di casa");
    locations(folder + "\\NetServer.Mdb", folder + "\\famiglia.db");
    const PercorsiSalvati saved = LeggiPercorsiSalvati(world.modulo);
    EXPECT_EQ(saved.sistema.cartella, folder);
    EXPECT_EQ(saved.sistema.file, "NetServer.Mdb");
    EXPECT_EQ(saved.dati.cartella, folder);
    EXPECT_EQ(saved.dati.file, "famiglia.db");
}

TEST_F(PercorsiSalvatiTest, ANativePathServesAsWell)
{
    locations({}, world.cartella.path() + "/famiglia.db");
    const PercorsiSalvati saved = LeggiPercorsiSalvati(world.modulo);
    EXPECT_EQ(saved.sistema.cartella, "");
    EXPECT_EQ(saved.dati.cartella, world.cartella.path());
    EXPECT_EQ(saved.dati.file, "famiglia.db");
}

TEST_F(PercorsiSalvatiTest, AFolderThatIsGoneIsLeftOut)
{
    locations({}, world.cartella.path() + "/sparita\\famiglia.db");
    const PercorsiSalvati saved = LeggiPercorsiSalvati(world.modulo);
    EXPECT_EQ(saved.dati.cartella, "");
    EXPECT_EQ(saved.dati.file, "famiglia.db");
}

TEST_F(PercorsiSalvatiTest, SettingsCutShortCountAsEmpty)
{
    world.cartella.write("INI\\GestioneRete.INI", "[Gestione database]\r\n");
    const PercorsiSalvati saved = LeggiPercorsiSalvati(world.modulo);
    EXPECT_EQ(saved.dati.cartella, "");
    EXPECT_EQ(saved.dati.file, "");
}

} // namespace
