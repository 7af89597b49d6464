#include "VerificaArchivio.h"

#include "CreaArchivio.h"
#include "platform/store/ArchiveFile.h"
#include "platform/store/Connection.h"
#include "support/Printers.h"
#include "support/TemporaryFolder.h"
#include "support/TestArchive.h"

#include <gmock/gmock.h>

#include <QFile>

namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

class VerificaArchivioTest : public ::testing::Test
{
protected:
    TemporaryFolder folder;
    QString path = folder.path("prova.db");

    // An archive from the usual schema in which `before` reads `after`.
    void makeWith(const QString &before, const QString &after) const
    {
        QString script = scriptSchema();
        ASSERT_TRUE(script.contains(before)) << before.toStdString();
        makeArchive(path, script.replace(before, after));
    }

    Verifica verifica() const { return verificaArchivio(path); }
};

TEST_F(VerificaArchivioTest, ANewArchiveAndTheExampleAreInOrder)
{
    creaArchivioNuovo(path);
    EXPECT_EQ(verifica().guasti, QStringList());
    EXPECT_EQ(verifica().esito, Verifica::Esito::InOrdine);

    const QString example = folder.path("esempio.db");
    creaArchivioEsempio(example, QDate(2025, 3, 1));
    EXPECT_EQ(verificaArchivio(example).guasti, QStringList());
    EXPECT_EQ(verificaArchivio(example).esito, Verifica::Esito::InOrdine);
}

TEST_F(VerificaArchivioTest, ASystemArchiveIsInOrderWithItsOneTable)
{
    creaArchivioSistema(path);
    EXPECT_EQ(verifica().guasti, QStringList());
    EXPECT_EQ(verifica().esito, Verifica::Esito::InOrdine);
}

TEST_F(VerificaArchivioTest, AMissingFileIsTold)
{
    EXPECT_EQ(verifica().esito, Verifica::Esito::Guasto);
    EXPECT_EQ(verifica().guasti, QStringList(QString("Il file \"%1\" non c'è").arg(path)));
}

TEST_F(VerificaArchivioTest, AMissingTableIsTold)
{
    creaArchivioNuovo(path);
    {
        Connection archive;
        ASSERT_TRUE(archive.Open(path));
        archive.Execute("DROP TABLE Piatti");
        archive.Execute("DROP TABLE Clienti");
    }
    EXPECT_EQ(verifica().guasti, QStringList({"Manca la tabella \"Piatti\"", "Manca la tabella \"Clienti\""}));
}

TEST_F(VerificaArchivioTest, AMissingColumnIsTold)
{
    makeWith("    Preferito       BOOLEAN NOT NULL DEFAULT 0,\n", "");
    EXPECT_EQ(verifica().guasti, QStringList("Nella tabella \"Sostituisci\" manca la colonna \"Preferito\""));
}

TEST_F(VerificaArchivioTest, AColumnOfAnotherTypeIsTold)
{
    makeWith("DataMenu        DATE", "DataMenu VARCHAR(10)");
    EXPECT_EQ(verifica().guasti,
              QStringList("Nella tabella \"Menu\" la colonna \"DataMenu\" è di tipo testo invece di data"));
}

TEST_F(VerificaArchivioTest, AKeyThatTheEngineDoesNotGiveIsTold)
{
    makeWith("    ID              INTEGER PRIMARY KEY AUTOINCREMENT,\n    alimento", "    ID INTEGER,\n    alimento");
    EXPECT_EQ(verifica().guasti,
              QStringList("Nella tabella \"GruppoPiattiSostituiti\" la colonna \"ID\" non è la chiave"));
}

TEST_F(VerificaArchivioTest, TablesAndColumnsBesideOursAreNoFault)
{
    makeWith("Nominativo VARCHAR(100) COLLATE NOCASE", "Nominativo VARCHAR(100) COLLATE NOCASE, telefono TEXT");
    {
        Connection archive;
        ASSERT_TRUE(archive.Open(path));
        archive.Execute("CREATE TABLE Appunti (Testo TEXT)");
    }
    EXPECT_EQ(verifica().guasti, QStringList());
}

TEST_F(VerificaArchivioTest, AFileThatIsNoArchiveIsTold)
{
    folder.write("prova.db", QByteArray("Questo non è un archivio. ").repeated(100));
    EXPECT_EQ(verifica().esito, Verifica::Esito::Guasto);
    ASSERT_EQ(verifica().guasti.size(), 1);
    EXPECT_THAT(verifica().guasti.first().toStdString(), HasSubstr("L'archivio non si apre: "));
}

TEST_F(VerificaArchivioTest, AnMdbFileIsNotTakenForAProtectedArchive)
{
    folder.write("prova.db", (QByteArray("\0\1\0\0Standard Jet DB\0", 20) + QByteArray(4096, 'x')).left(4096));
    EXPECT_EQ(verifica().guasti, QStringList("Il file è un archivio .mdb, non un archivio di questo programma"));
}

TEST_F(VerificaArchivioTest, DamagedPagesAreTold)
{
    creaArchivioEsempio(path, QDate(2025, 3, 1));
    QByteArray bytes = folder.read("prova.db");
    constexpr qsizetype kPage = 4096;
    ASSERT_EQ(bytes.size() % kPage, 0);
    // The kind of the last page, which holds rows of the catalogue; the first pages say what the file is.
    bytes[bytes.size() - kPage] = char(0x5A);
    folder.write("prova.db", bytes);
    EXPECT_EQ(verifica().esito, Verifica::Esito::Guasto);
    ASSERT_FALSE(verifica().guasti.isEmpty());
    for (const QString &fault : verifica().guasti)
        EXPECT_THAT(fault.toStdString(), StartsWith("Il file è danneggiato: "));
    EXPECT_EQ(verifica().guasti.filter("***").size(), 0) << "a heading is no fault";
}

TEST_F(VerificaArchivioTest, AProtectedArchiveIsCheckedWithItsPasswordAlone)
{
    makeArchive(path, scriptSchema(), "segreta");
    EXPECT_EQ(verifica().esito, Verifica::Esito::PasswordRichiesta);
    EXPECT_EQ(verificaArchivio(path, "sbagliata").esito, Verifica::Esito::PasswordRichiesta);
    EXPECT_EQ(verificaArchivio(path, "segreta").guasti, QStringList());
    EXPECT_EQ(verificaArchivio(path, "segreta").esito, Verifica::Esito::InOrdine);
}

TEST_F(VerificaArchivioTest, AnArchiveLeftInTheMiddleOfItsJournalIsInOrder)
{
    creaArchivioNuovo(path);
    const QString left = folder.path("lasciato.db");
    {
        Connection archive;
        ASSERT_TRUE(archive.Open(path));
        archive.Execute("INSERT INTO Clienti (Nominativo) VALUES ('Tesmo')");
        ASSERT_TRUE(QFile::exists(path + "-wal")) << "the row is to be in the journal alone";
        // What a program that was killed leaves: the file and its journal, as they are.
        ASSERT_TRUE(QFile::copy(path, left));
        ASSERT_TRUE(QFile::copy(path + "-wal", left + "-wal"));
    }
    EXPECT_EQ(verificaArchivio(left).guasti, QStringList());
    Connection archive;
    ASSERT_TRUE(archive.Open(left));
    EXPECT_EQ(rowsOf(archive, "SELECT Nominativo FROM Clienti"), QStringList("Tesmo"));
}

} // namespace
