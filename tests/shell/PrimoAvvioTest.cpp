// The offer of the example archive at the first start.
#include "shell/PrimoAvvio.h"

#include "support/TestWorld.h"

#include <gtest/gtest.h>

namespace {

const QString kQuestion = "MsgBox 68 \"Primo avvio\" Non c'è ancora un archivio.\n\nVuoi cominciare con quello di "
                          "esempio, che ha già alimenti e piatti?\nCon No si sceglie un archivio che c'è già.";

class PrimoAvvioTest : public testing::Test
{
protected:
    TestWorld world;

    void offer(const QString &tool) { OffriEsempio(world.mondo.folder, world.dialoghi, tool); }
};

TEST_F(PrimoAvvioTest, OnYesTheFolderGetsTheExampleArchiveAndSettingsThatPointToIt)
{
    world.dialoghi.answer(MsgAnswer::Si);
    offer(QStringLiteral(CIBRA_ARCHIVIO));
    EXPECT_EQ(world.dialoghi.boxes(), QStringList(kQuestion));
    EXPECT_EQ(world.cartella.entries(), QStringList({"Archivio/", "INI/", "NetServer.Mdb"}));
    EXPECT_TRUE(world.cartella.read("INI\\GestioneRete.INI").contains("famiglia.db"));
    Connection archive;
    ASSERT_TRUE(archive.Open(world.cartella.path("Archivio\\famiglia.db")));
    EXPECT_GT(countOf(archive, "Piatti"), 0);
}

TEST_F(PrimoAvvioTest, OnNoTheFolderStaysAsItIs)
{
    world.dialoghi.answer(MsgAnswer::No);
    offer(QStringLiteral(CIBRA_ARCHIVIO));
    EXPECT_EQ(world.dialoghi.boxes(), QStringList(kQuestion));
    EXPECT_EQ(world.cartella.entries(), QStringList());
}

TEST_F(PrimoAvvioTest, WhereAnArchiveWasChosenNobodyIsAsked)
{
    world.cartella.write("ini\\gestionerete.ini", "[Gestione database]\r\n");
    offer(QStringLiteral(CIBRA_ARCHIVIO));
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
    EXPECT_FALSE(world.cartella.has("Archivio"));
}

TEST_F(PrimoAvvioTest, AToolThatFailsOrIsMissingIsTold)
{
    world.cartella.write("Archivio", "un file dove va la cartella");
    world.dialoghi.answer(MsgAnswer::Si);
    offer(QStringLiteral(CIBRA_ARCHIVIO));
    ASSERT_EQ(world.dialoghi.boxes().size(), 2);
    EXPECT_TRUE(world.dialoghi.boxes()[1].startsWith(
        "MsgBox 16 \"Primo avvio\" L'archivio di esempio non si può preparare:\ncibra-archivio: "))
        << world.dialoghi.boxes()[1].toStdString();
    EXPECT_FALSE(world.cartella.has("INI\\GestioneRete.INI"));

    world.dialoghi.answer(MsgAnswer::Si);
    offer(world.cartella.path("manca"));
    ASSERT_EQ(world.dialoghi.boxes().size(), 4);
    EXPECT_TRUE(world.dialoghi.boxes()[3].startsWith(
        "MsgBox 16 \"Primo avvio\" L'archivio di esempio non si può preparare:\n"));
}

} // namespace
