#include "VerificaArchivio.h"

#include "CreaArchivio.h"
#include "platform/Failure.h"
#include "platform/store/ArchiveFile.h"
#include "platform/store/ArchiveLock.h"
#include "platform/store/Connection.h"
#include "support/DamagedIndex.h"
#include "support/OtherProgram.h"
#include "support/Printers.h"
#include "support/TemporaryFolder.h"
#include "support/TestArchive.h"

#include <gmock/gmock.h>

#include <QFile>

#include <sqlcipher/sqlite3.h>

namespace {

const QDateTime kNow(QDate(2025, 3, 2), QTime(10, 20, 30));

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
    EXPECT_EQ(verifica().esito, Verifica::Esito::Estraneo);
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
    EXPECT_EQ(verifica().esito, Verifica::Esito::Estraneo);
    EXPECT_EQ(verifica().guasti, QStringList("Il file non è un archivio"));
}

TEST_F(VerificaArchivioTest, AForeignFileIsToldWhateverItsSize)
{
    const std::pair<QByteArray, const char *> files[] = {
        {"", "Il file è vuoto, non è un archivio"},
        {QByteArray("abc"), "Il file non è un archivio"},
        {QByteArray("righe di testo\n").repeated(1024), "Il file non è un archivio"},
        {QByteArray(8192, '\0'),
         "Il file comincia con una pagina di zeri: se era un archivio, il suo inizio è perduto"},
    };
    for (const auto &[bytes, words] : files) {
        folder.write("prova.db", bytes);
        EXPECT_EQ(verifica().esito, Verifica::Esito::Estraneo);
        EXPECT_EQ(verifica().guasti, QStringList(words));
    }
}

TEST_F(VerificaArchivioTest, AnArchiveOfAnotherProgramIsForeign)
{
    makeArchive(path, "CREATE TABLE Canzoni (Titolo TEXT);");
    EXPECT_EQ(verifica().esito, Verifica::Esito::Estraneo);
    EXPECT_EQ(verifica().guasti, QStringList("Il file non ha nessuna delle tabelle di questo programma"));
}

TEST_F(VerificaArchivioTest, AnArchiveCutShortIsDamagedAndNotForeign)
{
    creaArchivioEsempio(path, QDate(2025, 3, 1));
    const QByteArray bytes = folder.read("prova.db");
    for (const qsizetype length : {qsizetype(100), qsizetype(5000), bytes.size() / 2, bytes.size() - 4096}) {
        folder.write("prova.db", bytes.left(length));
        EXPECT_EQ(verifica().esito, Verifica::Esito::Danneggiato) << length;
        EXPECT_FALSE(verifica().guasti.isEmpty()) << length;
    }
}

TEST_F(VerificaArchivioTest, TheCheckLeavesTheFileAndItsJournalAsTheyAre)
{
    creaArchivioNuovo(path);
    const QByteArray before = folder.read("prova.db");
    ASSERT_EQ(int(before[18]), 1) << "a fresh archive keeps no write-ahead journal";
    EXPECT_EQ(verifica().esito, Verifica::Esito::InOrdine);
    EXPECT_TRUE(folder.read("prova.db") == before);
    EXPECT_EQ(folder.entries(), QStringList("prova.db"));
}

// An archive whose table Menu has three rows, one of which its index does not know.
class RiparaArchivioTest : public VerificaArchivioTest
{
protected:
    void SetUp() override
    {
        creaArchivioNuovo(path);
        const char *save = "CREATE TEMP TABLE Salvato AS SELECT * FROM sqlite_master WHERE name = 'MenuGiorno'";
        sqlite3 *handle = nullptr;
        ASSERT_EQ(sqlite3_open(qPrintable(path), &handle), SQLITE_OK);
        for (const char *statement :
             {"INSERT INTO Menu (DataMenu) VALUES ('2025-03-01'), ('2025-03-02')", save, "PRAGMA writable_schema = ON",
              "DELETE FROM sqlite_master WHERE name = 'MenuGiorno'"})
            ASSERT_EQ(sqlite3_exec(handle, statement, nullptr, nullptr, nullptr), SQLITE_OK) << statement;
        sqlite3 *other = nullptr; // which knows of no index
        ASSERT_EQ(sqlite3_open(qPrintable(path), &other), SQLITE_OK);
        ASSERT_EQ(sqlite3_exec(other, "INSERT INTO Menu (DataMenu) VALUES ('2025-03-03')", nullptr, nullptr, nullptr),
                  SQLITE_OK);
        sqlite3_close(other);
        ASSERT_EQ(sqlite3_exec(handle, "INSERT INTO sqlite_master SELECT * FROM Salvato", nullptr, nullptr, nullptr),
                  SQLITE_OK);
        sqlite3_close(handle);
    }
};

TEST_F(RiparaArchivioTest, ADamagedIndexIsToldFromOtherDamage)
{
    EXPECT_EQ(verifica().esito, Verifica::Esito::IndiciDaRiparare);
    EXPECT_EQ(verifica().guasti, QStringList({"Il file è danneggiato: row 3 missing from index MenuGiorno",
                                              "Il file è danneggiato: wrong # of entries in index MenuGiorno"}));
}

TEST_F(RiparaArchivioTest, TheIndexIsMadeAnewAndNoRowIsLost)
{
    const QByteArray before = folder.read("prova.db");
    const QString kept = riparaArchivio(path, {}, kNow);
    EXPECT_EQ(verifica().esito, Verifica::Esito::InOrdine);
    EXPECT_EQ(folder.entries(), QStringList({"Copie/", "prova.db"}));
    EXPECT_EQ(kept, folder.path() + "/Copie/2025-03-02_10-20-30-000_prova.db.prima");
    EXPECT_TRUE(folder.read("Copie\\2025-03-02_10-20-30-000_prova.db.prima") == before);
    Connection archive;
    ASSERT_TRUE(archive.Open(path));
    EXPECT_EQ(rowsOf(archive, "SELECT DataMenu FROM Menu WHERE DataMenu >= #3/1/2025# ORDER BY DataMenu"),
              QStringList({"01/03/2025", "02/03/2025", "03/03/2025"}));
    EXPECT_EQ(valueOf(archive, "SELECT Count(*) FROM sqlite_master WHERE type = 'index'"), "2");
}

TEST_F(RiparaArchivioTest, AnArchiveInUseIsLeftAlone)
{
    const OtherProgram other(path);
    const QByteArray before = folder.read("prova.db");
    try {
        riparaArchivio(path, {}, kNow);
        ADD_FAILURE() << "it was replaced";
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.words(), QString("L'archivio \"%1\" è aperto da un altro programma").arg(path));
    }
    EXPECT_TRUE(folder.read("prova.db") == before);
}

TEST_F(RiparaArchivioTest, MoreThanAnIndexIsNotMended)
{
    QByteArray bytes = folder.read("prova.db");
    bytes = bytes.left(bytes.size() - 4096);
    folder.write("prova.db", bytes);
    EXPECT_THROW(riparaArchivio(path, {}, kNow), Failure);
    EXPECT_TRUE(folder.read("prova.db") == bytes);
    EXPECT_EQ(folder.entries(), QStringList("prova.db"));
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
    EXPECT_EQ(verifica().esito, Verifica::Esito::Danneggiato);
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

TEST_F(VerificaArchivioTest, AnIndexPageOfZerosOrOfNoiseIsMadeAnewAndEveryRowIsThere)
{
    for (const QString &password : {QString(), QString("segreta")})
        for (const QByteArray &piece : {QByteArray(1, '\0'), QByteArray("rumore")}) {
            QFile::remove(path);
            if (folder.has("Copie"))
                folder.remove("Copie");
            makeArchive(path, scriptSchema(), password);
            {
                Connection archive;
                ASSERT_TRUE(archive.Open(path, password));
                for (int day = 1; day <= 28; ++day)
                    archive.Execute(QString("INSERT INTO Menu (DataMenu) VALUES (#3/%1/2025#)").arg(day));
            }
            damageIndex(path, "MenuGiorno", password, piece);
            ASSERT_EQ(verificaArchivio(path, password).esito, Verifica::Esito::IndiciDaRiparare);
            riparaArchivio(path, password, kNow);
            EXPECT_EQ(verificaArchivio(path, password).guasti, QStringList());
            Connection archive;
            ASSERT_TRUE(archive.Open(path, password));
            EXPECT_EQ(countOf(archive, "Menu"), 28);
            EXPECT_EQ(valueOf(archive, "SELECT Count(*) FROM Menu WHERE DataMenu >= #3/10/2025#"), "19");
            EXPECT_EQ(valueOf(archive, "SELECT Count(*) FROM sqlite_master WHERE type = 'index'"), "2");
        }
}

TEST_F(VerificaArchivioTest, ADamagedTableIsNotMended)
{
    creaArchivioEsempio(path, QDate(2025, 3, 1));
    damageIndex(path, "Piatti"); // the root of the table
    const QByteArray before = folder.read("prova.db");
    EXPECT_EQ(verifica().esito, Verifica::Esito::Danneggiato);
    EXPECT_THROW(riparaArchivio(path, {}, kNow), Failure);
    EXPECT_TRUE(folder.read("prova.db") == before);
    EXPECT_EQ(folder.entries(), QStringList("prova.db"));
}

TEST_F(VerificaArchivioTest, TheCheckLeavesTheJournalOfAKilledProgramAsItIs)
{
    creaArchivioNuovo(path);
    {
        const OtherProgram killed(path, {}, "INSERT INTO Clienti (Nominativo) VALUES ('Tesmo')");
    }
    const QStringList names = folder.entries();
    ASSERT_TRUE(names.contains("prova.db-wal"));
    QList<QByteArray> before;
    for (const QString &name : names)
        before += folder.read(name);
    EXPECT_EQ(verifica().guasti, QStringList());
    EXPECT_EQ(folder.entries(), names);
    for (qsizetype i = 0; i < names.size(); ++i)
        EXPECT_TRUE(folder.read(names[i]) == before[i]) << names[i].toStdString();
}

TEST_F(VerificaArchivioTest, AnArchiveThatAnotherProgramHasOpenIsInUseAndNotDamaged)
{
    creaArchivioNuovo(path);
    const QStringList words(
        QString("L'archivio \"%1\" è in uso da un altro programma: riprovare quando è chiuso").arg(path));
    {
        const OtherProgram other(path);
        EXPECT_EQ(verifica().esito, Verifica::Esito::InUso);
        EXPECT_EQ(verifica().guasti, words);
    }
    {
        const ArchiveHold locked(path);
        ASSERT_TRUE(locked.isHeld());
        EXPECT_EQ(verifica().guasti, words);
    }
    EXPECT_EQ(verifica().esito, Verifica::Esito::InOrdine);
}

TEST_F(VerificaArchivioTest, AProtectedArchiveWithoutItsEndIsToldAsWhatItMayBe)
{
    makeArchive(path, scriptSchema(), "segreta");
    folder.write("prova.db", folder.read("prova.db").chopped(300));
    EXPECT_EQ(verificaArchivio(path, "segreta").esito, Verifica::Esito::Estraneo);
    EXPECT_EQ(verificaArchivio(path, "segreta").guasti,
              QStringList("Il file non è un archivio, oppure è un archivio protetto a cui manca la fine"));
}

} // namespace
