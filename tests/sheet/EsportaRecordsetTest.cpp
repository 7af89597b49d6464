#include "sheet/EsportaRecordset.h"

#include "sheet/ElencoPiatti.h"
#include "sheet/StampaDays.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

namespace {

constexpr int kTesto = 6;
constexpr int kExcell = 7;
const QString kQuestion =
    QStringLiteral("Msg1 \"Esportazione Tabella in Files Testo...\" Vuoi Esportare la tabella in un formato\r"
                   "Testo o in formato Excell? [Testo|Excell] 256 102 picture 0");

class EsportaRecordsetTest : public testing::Test
{
protected:
    EsportaRecordsetTest() : dati(world.openArchive())
    {
        insertRows(
            dati, "Piatti", "Piatto, Alimento, KC100gr",
            {"'Colazione 2', 'Latte', 64", "'Colazione 1', 'Caffè; zucchero', 12.5", "'Colazione 1', Null, Null"});
    }

    void exported(const QString &statement, int answer)
    {
        Recordset list;
        list.Open(statement, dati, Recordset::Access::ReadOnly);
        world.dialoghi.answerButton(answer);
        MnuFileTesto(world.modulo, list, statement);
    }
    QString report(const QString &file, const QString &hint = {})
    {
        return "Msg1 \"File creato con successo\" Creazione file di Testo \r" + world.cartella.path() + file + hint +
               " [OK!] 0 0 picture 0";
    }

    TestWorld world;
    Connection &dati;
};

TEST_F(EsportaRecordsetTest, TheTextHoldsItsHeadTheFieldNamesAndALineForEachRow)
{
    exported("SELECT Piatto, Alimento, KC100gr FROM Piatti ORDER BY Piatto, ID", kTesto);
    EXPECT_EQ(world.cartella.read("\\InteroRecordSet.txt"), goldenFile("esportazione.txt"));
}

TEST_F(EsportaRecordsetTest, TheListOfTheSheetIsTheNumberedBreakfasts)
{
    exported(IstruzioneColazioniNumerate(), kTesto);
    const QStringList lines = QString::fromLatin1(world.cartella.read("\\InteroRecordSet.txt")).split("\r\n");
    EXPECT_EQ(lines.mid(4), QStringList({"Piatto; ", " ", "Colazione 1", "Colazione 2", ""}));
}

TEST_F(EsportaRecordsetTest, TheIntermediateTextIsDeletedAndViewerAndReportNameOtherFiles)
{
    exported(IstruzioneColazioniNumerate(), kTesto);
    EXPECT_FALSE(world.cartella.has("\\Testo.txt"));
    EXPECT_EQ(world.programmi.started, QStringList("TextViewer " + world.cartella.path("\\InteroRecordSet.xls")));
    EXPECT_EQ(world.dialoghi.boxes(), QStringList({kQuestion, report("\\Soci.xls")}));
    EXPECT_FALSE(world.cartella.has("\\InteroRecordSet.xls"));
    EXPECT_FALSE(world.cartella.has("\\Soci.xls"));
}

TEST_F(EsportaRecordsetTest, AViewerThatCannotShowTheMissingFileEndsNothing)
{
    world.programmi.nothingIsInstalled = true;
    exported(IstruzioneColazioniNumerate(), kTesto);
    EXPECT_EQ(world.dialoghi.boxes().size(), 2);
}

TEST_F(EsportaRecordsetTest, AnEarlierExportIsReplaced)
{
    world.cartella.write("\\InteroRecordSet.txt", "old\r\nold\r\nold\r\nold\r\nold\r\nold\r\nold\r\nold\r\nold\r\n");
    exported(IstruzioneColazioniNumerate(), kTesto);
    EXPECT_FALSE(world.cartella.read("\\InteroRecordSet.txt").contains("old"));
}

TEST_F(EsportaRecordsetTest, TheSpreadsheetIsReportedAndNothingIsLeftBehind)
{
    const QStringList before = world.cartella.entries();
    exported(IstruzioneColazioniNumerate(), kExcell);
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList({kQuestion, report("\\Altro.xls", "\rPer visualizzare il file apri Excell")}));
    EXPECT_EQ(world.cartella.entries(), before);
    EXPECT_FALSE(dati.hasTable("NuovoQueryDef"));
    EXPECT_TRUE(world.programmi.started.isEmpty());
}

TEST_F(EsportaRecordsetTest, TheStatementIsNamedInTheArchiveAndAStatementThatCannotBeNamedIsReportedAllTheSame)
{
    dati.Execute("CREATE VIEW NuovoQueryDef AS SELECT 1 AS Uno");
    exported(IstruzioneColazioniNumerate(), kExcell);
    EXPECT_EQ(world.dialoghi.boxes().size(), 2);
    EXPECT_FALSE(dati.hasTable("NuovoQueryDef"));
}

TEST_F(EsportaRecordsetTest, TheArchiveIsOpenedAgainAlsoWhereItsPathIsWrittenWithTheSettingsSign)
{
    world.modulo.PercorsoDbDati = world.cartella.path() + "\\Cibra.Mdb";
    exported(IstruzioneColazioniNumerate(), kExcell);
    EXPECT_EQ(world.dialoghi.boxes().size(), 2);
}

TEST_F(EsportaRecordsetTest, AnArchiveThatCannotBeOpenedAgainFailsWithoutAReport)
{
    world.modulo.PercorsoDbDati = world.cartella.path("\\Altrove.Mdb");
    EXPECT_THROW(exported(IstruzioneColazioniNumerate(), kExcell), Failure);
    EXPECT_EQ(world.dialoghi.boxes(), QStringList(kQuestion));
}

TEST_F(EsportaRecordsetTest, AnEmptyListIsToldAndNothingIsWritten)
{
    const QStringList before = world.cartella.entries();
    Recordset list;
    list.Open("Select Piatto From Piatti Where Piatto = 'x'", dati, Recordset::Access::ReadOnly);
    MnuFileTesto(world.modulo, list, IstruzioneColazioniNumerate());
    EXPECT_EQ(world.dialoghi.boxes(), QStringList("MsgBox 64 \"Nessun Record presente\" Non ci sono record da "
                                                  "visualizzare e stampare"));
    EXPECT_EQ(world.cartella.entries(), before);
}

TEST_F(EsportaRecordsetTest, AFileThatCannotBeWrittenFails)
{
    world.cartella.makeFolder("\\InteroRecordSet.txt");
    EXPECT_THROW(exported(IstruzioneColazioniNumerate(), kTesto), Failure);
    EXPECT_EQ(world.dialoghi.boxes(), QStringList(kQuestion));
}

} // namespace
