#include "ProteggiArchivio.h"

#include "CreaArchivio.h"
#include "platform/Failure.h"
#include "platform/store/ArchiveSigns.h"
#include "platform/store/Connection.h"
#include "SostituisciArchivio.h"
#include "support/OtherProgram.h"
#include "support/Printers.h"
#include "support/TemporaryFolder.h"
#include "support/TestArchive.h"
#include "VerificaArchivio.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>

#include <sqlcipher/sqlite3.h>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class ProteggiArchivioTest : public ::testing::Test
{
protected:
    TemporaryFolder folder;
    QString path = folder.path("famiglia.db");

    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }
    QString refusalWith(const QString &password) const
    {
        try {
            proteggiArchivio(path, password);
        } catch (const Failure &failure) {
            return failure.words();
        }
        return "(protetto)";
    }
};

TEST_F(ProteggiArchivioTest, TheArchiveOpensWithThePasswordAloneAndHoldsTheSameRows)
{
    creaArchivioEsempio(path, QDate(2025, 3, 1));
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
    proteggiArchivio(path, "una parola d'ordine");

    Connection archive;
    EXPECT_EQ(archive.Open(path).outcome, OpenOutcome::PasswordRichiesta);
    EXPECT_EQ(archive.Open(path, "un'altra").outcome, OpenOutcome::PasswordRichiesta);
    ASSERT_TRUE(archive.Open(path, "una parola d'ordine"));
    EXPECT_EQ(countOf(archive, "Piatti"), 528);
    EXPECT_EQ(valueOf(archive, "SELECT KCalOndira FROM Sostituisci WHERE Piatto = 'Pasta al pesto'"), "294,2");
    archive.Close();
    EXPECT_EQ(verificaArchivio(path, "una parola d'ordine").guasti, QStringList());
    EXPECT_EQ(files(), QStringList("famiglia.db"));
    EXPECT_EQ(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    EXPECT_FALSE(folder.read("famiglia.db").contains("Pasta"));
}

TEST_F(ProteggiArchivioTest, AnArchiveThatHasAPasswordStaysAsItIs)
{
    creaArchivioNuovo(path);
    proteggiArchivio(path, "prima");
    const QByteArray before = folder.read("famiglia.db");
    EXPECT_EQ(refusalWith("seconda"), QString("L'archivio \"%1\" ha già una password").arg(path));
    EXPECT_EQ(folder.read("famiglia.db"), before);
    EXPECT_EQ(files(), QStringList("famiglia.db"));
}

TEST_F(ProteggiArchivioTest, AnEmptyPasswordIsNone)
{
    creaArchivioNuovo(path);
    EXPECT_EQ(refusalWith(""), "La password è vuota");
    Connection archive;
    EXPECT_TRUE(archive.Open(path));
}

TEST_F(ProteggiArchivioTest, AnArchiveThatAnotherProgramHasOpenIsLeftAlone)
{
    creaArchivioNuovo(path);
    {
        const OtherProgram other(path, {}, "INSERT INTO Clienti (Nominativo) VALUES ('Tesmo')");
        EXPECT_EQ(refusalWith("segreta"), QString("L'archivio \"%1\" è aperto da un altro programma").arg(path));
    }
    Connection archive;
    ASSERT_TRUE(archive.Open(path));
    EXPECT_EQ(rowsOf(archive, "SELECT Nominativo FROM Clienti"), QStringList("Tesmo"));
    archive.Close();
    EXPECT_EQ(files(), QStringList("famiglia.db"));
}

TEST_F(ProteggiArchivioTest, WhatAKilledProgramLeftInTheJournalGoesAlong)
{
    creaArchivioNuovo(path);
    {
        const OtherProgram killed(path, {}, "INSERT INTO Clienti (Nominativo) VALUES ('Tesmo')");
    }
    ASSERT_TRUE(hasJournal(path));
    EXPECT_EQ(refusalWith("segreta"), "(protetto)");
    Connection archive;
    ASSERT_TRUE(archive.Open(path, "segreta"));
    EXPECT_EQ(rowsOf(archive, "SELECT Nominativo FROM Clienti"), QStringList("Tesmo"));
    archive.Close();
    EXPECT_EQ(files(), QStringList("famiglia.db"));
}

TEST_F(ProteggiArchivioTest, AMissingFileAndADamagedOneAreRefused)
{
    EXPECT_EQ(refusalWith("segreta"), QString("Il file \"%1\" non c'è").arg(path));
    const QByteArray noise = QByteArray("rumore ").repeated(500);
    folder.write("famiglia.db", noise);
    EXPECT_THAT(refusalWith("segreta").toStdString(), ::testing::HasSubstr("non si apre"));
    EXPECT_EQ(folder.read("famiglia.db"), noise);
    EXPECT_EQ(files(), QStringList("famiglia.db"));
}

// Another program that writes a row again and again until it is told to stop, and says how many it could write.
class Writer
{
public:
    explicit Writer(const QString &path)
    {
        if (pipe(m_stop) != 0 || pipe(m_rows) != 0 || pipe(m_ready) != 0) {
            ADD_FAILURE() << "no pipe";
            return;
        }
        m_child = fork();
        if (m_child == 0)
            writeOn(path);
        char ready = 0;
        EXPECT_EQ(read(m_ready[0], &ready, 1), 1);
    }
    int rows()
    {
        int rows = -1;
        EXPECT_EQ(write(m_stop[1], "x", 1), 1);
        EXPECT_EQ(read(m_rows[0], &rows, sizeof rows), ssize_t(sizeof rows));
        waitpid(m_child, nullptr, 0);
        return rows;
    }

private:
    [[noreturn]] void writeOn(const QString &path) const
    {
        fcntl(m_stop[0], F_SETFL, O_NONBLOCK);
        int rows = 0;
        char stop = 0;
        bool told = false;
        // Each time as a program that starts, writes and ends.
        while (read(m_stop[0], &stop, 1) != 1) {
            sqlite3 *handle = nullptr;
            sqlite3_open(qPrintable(path), &handle);
            sqlite3_busy_timeout(handle, 2000);
            if (sqlite3_exec(handle, "INSERT INTO Clienti (Nominativo) VALUES ('Tesmo')", nullptr, nullptr, nullptr) ==
                SQLITE_OK)
                ++rows;
            sqlite3_close(handle);
            if (!told && write(m_ready[1], "r", 1) == 1)
                told = true;
        }
        _exit(write(m_rows[1], &rows, sizeof rows) == ssize_t(sizeof rows) ? 0 : 1);
    }

    int m_stop[2] = {};
    int m_rows[2] = {};
    int m_ready[2] = {};
    pid_t m_child = -1;
};

TEST_F(ProteggiArchivioTest, WhatAnotherProgramWritesMeanwhileIsRefusedOrInTheResult)
{
    creaArchivioEsempio(path, QDate(2025, 3, 1));
    int done = 0;
    for (int round = 0; round < 6; ++round) {
        const QString plain = folder.path(QString("prima-%1.db").arg(round));
        ASSERT_TRUE(QFile::copy(path, plain));
        Writer writer(plain);
        for (int attempt = 0; attempt < 50; ++attempt) {
            try {
                proteggiArchivio(plain, "segreta");
                ++done;
                break;
            } catch (const Failure &failure) {
                ASSERT_EQ(failure.words(), QString("L'archivio \"%1\" è aperto da un altro programma").arg(plain));
                usleep(2000);
            }
        }
        const int rows = writer.rows();
        Connection archive;
        if (!archive.Open(plain, "segreta")) {
            ASSERT_TRUE(archive.Open(plain));
        }
        EXPECT_EQ(countOf(archive, "Clienti"), rows) << round;
    }
    EXPECT_GT(done, 0);
}

TEST_F(ProteggiArchivioTest, NobodyOpensTheArchiveWhileItIsCopied)
{
    creaArchivioNuovo(path);
    const auto held = tieniFermoIntero(path, {});
    EXPECT_EQ(refusalWith("segreta"), QString("L'archivio \"%1\" è aperto da un altro programma").arg(path));
    sqlite3 *other = nullptr;
    ASSERT_EQ(sqlite3_open(qPrintable(path), &other), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(other, "SELECT * FROM Piatti", nullptr, nullptr, nullptr), SQLITE_BUSY);
    sqlite3_close(other);
}

TEST_F(ProteggiArchivioTest, WhatWasKeptOfADamagedArchiveCountsAmongWhatCanBeRead)
{
    creaArchivioNuovo(path);
    QByteArray noise(3000, '\0');
    for (qsizetype i = 0; i < noise.size(); ++i)
        noise[i] = char(i * 7 + i / 256);
    const QString copies = "Copie\\2025-03-02_10-20-30-00";
    folder.write(copies + "0_famiglia.db.prima", "rovina di un archivio in chiaro");
    folder.write(copies + "0_famiglia.db.prima-wal", "il suo giornale");
    folder.write(copies + "1_famiglia.db.prima", noise);
    folder.write(copies + "1_famiglia.db.prima-wal", "un giornale cifrato");
    folder.write(copies + "2_famiglia.db", folder.read("famiglia.db"));
    folder.write(copies + "3_altro.db.prima", "di un altro");
    const QString prefix = folder.path() + "/Copie/2025-03-02_10-20-30-00";
    EXPECT_EQ(copieInChiaro(path), QStringList({prefix + "2_famiglia.db", prefix + "0_famiglia.db.prima",
                                                prefix + "0_famiglia.db.prima-wal"}));
}

TEST_F(ProteggiArchivioTest, ALinkStaysALinkToTheArchive)
{
    creaArchivioNuovo(path);
    const QString link = folder.path("collegamento.db");
    ASSERT_TRUE(QFile::link(path, link));
    proteggiArchivio(link, "segreta");
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    Connection archive;
    EXPECT_TRUE(archive.Open(path, "segreta"));
}

} // namespace
