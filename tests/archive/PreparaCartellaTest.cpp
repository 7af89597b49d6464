#include "PreparaCartella.h"

#include "CreaArchivio.h"
#include "platform/store/Connection.h"
#include "support/Printers.h"
#include "support/TemporaryFolder.h"
#include "support/TestArchive.h"
#include "VerificaArchivio.h"

#include <gtest/gtest.h>

namespace {

const QDate kDay(2025, 3, 1);

class PreparaCartellaTest : public ::testing::Test
{
protected:
    TemporaryFolder folder;

    QStringList settings() const
    {
        return QString::fromLatin1(folder.read("\\INI\\GestioneRete.INI")).split("\r\n").mid(0, 6);
    }
};

TEST_F(PreparaCartellaTest, AnEmptyFolderGetsArchivesAndTheSettingsThatPointToThem)
{
    preparaCartella(folder.path(), kDay);
    EXPECT_EQ(verificaArchivio(folder.path("\\Archivio\\famiglia.db")).guasti, QStringList());
    EXPECT_EQ(verificaArchivio(folder.path("\\NetServer.Mdb")).guasti, QStringList());
    EXPECT_EQ(settings(), QStringList({"[Gestione database]", "", "[Gestione database Aziendale]",
                                       folder.path() + "/Archivio\\famiglia.db", "famiglia.db", ""}));
    EXPECT_EQ(folder.read("\\INI\\SDIForm.ini"), "[Stile]\r\nStileMenu = 0\r\n");
}

TEST_F(PreparaCartellaTest, AFolderThatIsNotThereIsMade)
{
    preparaCartella(folder.path() + "/casa/cibra", kDay);
    EXPECT_TRUE(folder.has("\\casa\\cibra\\Archivio\\famiglia.db"));
}

TEST_F(PreparaCartellaTest, ASecondTimeChangesNothing)
{
    preparaCartella(folder.path(), kDay);
    const QByteArray archive = folder.read("\\Archivio\\famiglia.db");
    const QByteArray text = folder.read("\\INI\\GestioneRete.INI");
    preparaCartella(folder.path(), kDay.addDays(1));
    EXPECT_EQ(folder.read("\\Archivio\\famiglia.db"), archive);
    EXPECT_EQ(folder.read("\\INI\\GestioneRete.INI"), text);
}

TEST_F(PreparaCartellaTest, SettingsThatPointElsewhereStayAndNoArchiveIsMade)
{
    folder.write("\\ini\\gestionerete.ini", "sue");
    preparaCartella(folder.path(), kDay);
    EXPECT_EQ(folder.read("\\ini\\gestionerete.ini"), "sue");
    EXPECT_FALSE(folder.has("\\Archivio\\famiglia.db"));
    EXPECT_TRUE(folder.has("\\NetServer.Mdb"));
}

TEST_F(PreparaCartellaTest, AnArchiveThatLiesThereIsPointedToAndKept)
{
    folder.write("\\Archivio\\segno", "");
    creaArchivioNuovo(folder.path("\\Archivio\\Famiglia.DB"));
    preparaCartella(folder.path(), kDay);
    Connection archive;
    ASSERT_TRUE(archive.Open(folder.path("\\Archivio\\Famiglia.DB")));
    EXPECT_EQ(countOf(archive, "Piatti"), 0);
    EXPECT_EQ(settings()[4], "Famiglia.DB");
}

} // namespace
