// The maintenance commands, and the round of the dish texts out of the example archive and back.
#include "ComandoManutenzione.h"

#include "CreaArchivio.h"
#include "platform/Failure.h"
#include "platform/store/Recordset.h"
#include "platform/text/TextFile.h"
#include "support/Printers.h"
#include "support/TemporaryFolder.h"
#include "support/TestArchive.h"

#include <gtest/gtest.h>

#include <QDate>

namespace {

// A program folder as it is in use: the archive in a folder of its own below.
class ComandoManutenzioneTest : public testing::Test
{
protected:
    ComandoManutenzioneTest()
    {
        folder.write("\\INI\\GestioneRete.INI", "");
        folder.write("\\ini\\Anagrafica.txt", "Ondira\r\nTesmo\r\n1100\r\n1500\r\n");
        folder.makeFolder("\\Archivio");
    }

    void makeExample() { creaArchivioEsempio(archive, QDate(2025, 3, 3)); }
    Connection &dati()
    {
        if (!connection.isOpen()) {
            EXPECT_TRUE(connection.Open(archive));
        }
        return connection;
    }
    int count(const QString &condition) { return valueOf(dati(), "Select Count(*) from " + condition).toInt(); }

    TemporaryFolder folder;
    QString archive = folder.path("\\Archivio\\famiglia.db");
    Connection connection;
};

TEST_F(ComandoManutenzioneTest, EveryFoodOfTheExampleComesBackWithBothItsPortions)
{
    makeExample();
    ASSERT_TRUE(manutenzione("esporta", archive));
    ASSERT_TRUE(manutenzione("importa", archive));

    const QStringList wanted = rowsOf(dati(), "Select Piatto, Alimento, quantita, quantita2 from Piatti order by "
                                              "Piatto, Alimento, ID");
    QStringList back;
    Recordset rows;
    rows.Open("Select Piatto, Trim(alimento) AS Nome, quantita, quantita2, KcNominale, KcNominale2 from Alimenti "
              "order by Piatto, Trim(alimento)",
              dati(), Recordset::Access::ReadOnly);
    for (; !rows.Eof(); rows.MoveNext()) {
        const auto grams = [&](const char *field) {
            const QString portion = rows.value(field).text();
            EXPECT_EQ(portion.left(1) + portion.right(5), "( gr.)") << portion.toStdString();
            return portion.mid(1).chopped(5);
        };
        back += rows.value("Piatto").text() + " | " + rows.value("Nome").text() + " | " + grams("quantita") + " | " +
                grams("quantita2");
        EXPECT_EQ(rows.value("KcNominale").text() + rows.value("KcNominale2").text(), "11001500");
    }
    EXPECT_GT(wanted.size(), 500);
    EXPECT_EQ(back, wanted);
}

TEST_F(ComandoManutenzioneTest, PairingTakesEveryRowOfTheImport)
{
    makeExample();
    ASSERT_TRUE(manutenzione("esporta", archive));
    ASSERT_TRUE(manutenzione("importa", archive));
    ASSERT_TRUE(manutenzione("abbina", archive));
    EXPECT_EQ(count("alimenti2"), count("Alimenti") / 2);
    EXPECT_EQ(count("alimenti2 where quantita1 is Null or quantita2 is Null"), 0);
}

TEST_F(ComandoManutenzioneTest, TheExportMeetsTheFixedFolderOfTheProgram)
{
    makeExample();
    ASSERT_TRUE(manutenzione("esporta", archive));
    TextReader texts(folder.path("\\prova\\TestiCibra\\Piatti.txt"));
    EXPECT_EQ(texts.line(), QString());
    EXPECT_EQ(texts.line(), "Agnello al forno con patate");
    EXPECT_EQ(texts.line(), "");
    EXPECT_TRUE(texts.line().startsWith("- Agnello"));
}

TEST_F(ComandoManutenzioneTest, WithoutAProgramFolderTheArchivesOwnIsTaken)
{
    folder.remove("\\INI");
    makeExample();
    ASSERT_TRUE(manutenzione("esporta", archive));
    EXPECT_TRUE(folder.has("\\Archivio\\prova\\TestiCibra\\Piatti.txt"));
    EXPECT_THROW(manutenzione("importa", archive), Failure); // no household there
    EXPECT_EQ(count("Alimenti"), 0);
}

TEST_F(ComandoManutenzioneTest, TheExampleTextsNameEverySubstituteOfTheGroups)
{
    makeExample();
    const QStringList groups = rowsOf(dati(), "Select alimento, sostituisci from GruppoPiattiSostituiti");
    dati().Execute("Delete * from GruppoPiattiSostituiti");
    connection.Close();
    ASSERT_TRUE(manutenzione("gruppi", archive));
    EXPECT_EQ(rowsOf(dati(), "Select alimento, sostituisci from GruppoPiattiSostituiti"), groups);
    connection.Close();
    ASSERT_TRUE(manutenzione("sostituti", archive));
    EXPECT_EQ(count("SostituisciMaster"), groups.size());
}

TEST_F(ComandoManutenzioneTest, TheOtherCommandsRunOnAnArchiveWithNothingToDo)
{
    makeExample();
    EXPECT_TRUE(manutenzione("rapporto", archive));
    EXPECT_TRUE(manutenzione("calorie", archive));
    EXPECT_EQ(folder.read("\\prova\\TestiCibra\\Piatti.txt"), QByteArray(99, '*') + "\r\n");
}

TEST_F(ComandoManutenzioneTest, AnUnknownCommandOrNoFileIsRefusedBeforeAnythingIsTouched)
{
    EXPECT_FALSE(manutenzione("cancella", archive));
    EXPECT_FALSE(manutenzione("esporta", ""));
    EXPECT_THROW(manutenzione("esporta", archive), Failure); // no such archive
    EXPECT_FALSE(folder.has("\\prova"));
    EXPECT_FALSE(folder.has("\\Archivio\\famiglia.db"));
}

TEST_F(ComandoManutenzioneTest, AMissingTableStopsTheCommandWithItsName)
{
    makeExample();
    dati().Execute("DROP TABLE Nocorrispondenza");
    connection.Close();
    try {
        manutenzione("rapporto", archive);
        FAIL() << "there is no table to report";
    } catch (const Failure &failure) {
        EXPECT_TRUE(failure.words().contains("Nocorrispondenza")) << failure.words().toStdString();
    }
}

} // namespace
