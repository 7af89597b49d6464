// What becomes of a file that the user names.
#include "platform/store/ArchiveLock.h"
#include "platform/store/ArchiveSigns.h"
#include "platform/store/ConnectionPrivate.h"
#include "platform/StoreTest.h"

#include <QDir>
#include <QFile>

#include <chrono>
#include <filesystem>
#include <memory>
#include <thread>

#include <unistd.h>

namespace {

const QString kScript = u"CREATE TABLE T (ID INTEGER PRIMARY KEY, Nome VARCHAR(20));"
                        u"INSERT INTO T (Nome) VALUES ('uno'), ('due');"_s;

class OpenArchiveTest : public StoreTest
{
protected:
    OpenResult openWith(const QString &password = {}) { return m_connection.Open(path(), password); }

    QByteArray bytes() const
    {
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    void setBytes(const QByteArray &content)
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }

    QString names() { return column(u"Select Nome from T order by ID"_s); }

    static constexpr int kLoginRefused = int(FailureNumber::LoginRefused);
};

void expectRefused(const OpenResult &result, OpenOutcome outcome, int number, const QString &words)
{
    EXPECT_EQ(result.outcome, outcome);
    EXPECT_EQ(result.number, number);
    EXPECT_EQ(result.words, words);
    EXPECT_FALSE(result);
}

TEST_F(OpenArchiveTest, APlainArchiveOpens)
{
    makeArchive(path(), kScript);
    EXPECT_TRUE(openWith());
    EXPECT_TRUE(m_connection.isOpen());
    EXPECT_EQ(m_connection.path(), path());
    EXPECT_EQ(names(), u"uno due"_s);
}

TEST_F(OpenArchiveTest, APlainArchiveOpensWhateverThePassword)
{
    makeArchive(path(), kScript);
    EXPECT_TRUE(openWith(u"segreto"_s));
    EXPECT_EQ(names(), u"uno due"_s);
}

TEST_F(OpenArchiveTest, AnEncryptedArchiveAsksForItsPassword)
{
    makeArchive(path(), kScript, u"segreto"_s);
    expectRefused(openWith(), OpenOutcome::PasswordRichiesta, kLoginRefused,
                  u"L'archivio è protetto da una password"_s);
    EXPECT_FALSE(m_connection.isOpen());
}

TEST_F(OpenArchiveTest, AWrongPasswordIsRefusedAndTheRightOneOpens)
{
    makeArchive(path(), kScript, u"perché no?"_s);
    expectRefused(openWith(u"perche no?"_s), OpenOutcome::PasswordRichiesta, kLoginRefused, u"Password non valida"_s);
    EXPECT_TRUE(openWith(u"perché no?"_s));
    EXPECT_EQ(names(), u"uno due"_s);
    m_connection.Execute(u"INSERT INTO T (Nome) VALUES ('tre')"_s);
    EXPECT_EQ(names(), u"uno due tre"_s);
}

TEST_F(OpenArchiveTest, AnEncryptedArchiveShowsNothingOfItsTexts)
{
    makeArchive(path(), kScript, u"segreto"_s);
    EXPECT_FALSE(bytes().contains("uno"));
    EXPECT_FALSE(bytes().startsWith("SQLite"));
}

TEST_F(OpenArchiveTest, AMissingFileIsAFailureAndIsNotMade)
{
    expectRefused(openWith(), OpenOutcome::Errore, int(FailureNumber::FileNotFound), u"File non trovato: "_s + path());
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(OpenArchiveTest, AFolderIsNoArchive)
{
    EXPECT_EQ(m_connection.Open(m_folder.path()).number, int(FailureNumber::FileNotFound));
}

TEST_F(OpenArchiveTest, AnEmptyFileIsNoArchive)
{
    setBytes({});
    expectRefused(openWith(), OpenOutcome::Errore, int(FailureNumber::Engine), u"Il file è vuoto, non è un archivio"_s);
    EXPECT_EQ(bytes(), QByteArray());
}

TEST_F(OpenArchiveTest, AForeignFileIsNoArchive)
{
    setBytes(QByteArray(3000, 'x'));
    const OpenResult result = openWith();
    EXPECT_EQ(result.outcome, OpenOutcome::Errore);
    EXPECT_TRUE(result.words.startsWith(u"Il file non è un archivio ("_s)) << result.words.toStdString();
    EXPECT_EQ(bytes(), QByteArray(3000, 'x'));
}

TEST_F(OpenArchiveTest, UnreadableBytesOfWholePagesCountAsEncrypted)
{
    setBytes(QByteArray(4096, 'x'));
    EXPECT_EQ(openWith().outcome, OpenOutcome::PasswordRichiesta);
}

TEST_F(OpenArchiveTest, AnOldMdbFileIsNotTakenForAnEncryptedArchive)
{
    setBytes(QByteArray("\0\1\0\0Standard Jet DB\0", 20) + QByteArray(8192 - 20, 'x'));
    expectRefused(openWith(), OpenOutcome::Errore, int(FailureNumber::Engine),
                  u"Il file è un archivio .mdb, da importare prima di usarlo"_s);
}

TEST_F(OpenArchiveTest, ADamagedTableOfContentsIsAFailure)
{
    makeArchive(path(), kScript);
    setBytes(bytes().replace(100, 400, QByteArray(400, '\x7f')));
    const OpenResult result = openWith();
    EXPECT_EQ(result.outcome, OpenOutcome::Errore);
    EXPECT_TRUE(result.words.startsWith(u"L'archivio è danneggiato ("_s)) << result.words.toStdString();
}

TEST_F(OpenArchiveTest, ADamagedTableIsAFailure)
{
    makeArchive(path(), kScript);
    const QByteArray sound = bytes();
    ASSERT_EQ(sound.size(), 2 * 4096);
    setBytes(sound.first(4096) + QByteArray(4096, '\x7f'));
    EXPECT_EQ(openWith().outcome, OpenOutcome::Errore);
}

TEST_F(OpenArchiveTest, AFileCutShortIsAFailure)
{
    makeArchive(path(), kScript);
    for (const qsizetype size : {15, 100, 512, 4096, 6000}) {
        setBytes(bytes().first(size));
        EXPECT_EQ(openWith().outcome, OpenOutcome::Errore) << size;
        QFile::remove(path());
        makeArchive(path(), kScript);
    }
}

TEST_F(OpenArchiveTest, AnEncryptedFileCutShortIsAFailureUnderItsPassword)
{
    makeArchive(path(), kScript, u"segreto"_s);
    setBytes(bytes().first(1024));
    const OpenResult result = openWith(u"segreto"_s);
    EXPECT_EQ(result.outcome, OpenOutcome::Errore);
    EXPECT_TRUE(result.words.startsWith(u"L'archivio è danneggiato ("_s)) << result.words.toStdString();
}

TEST_F(OpenArchiveTest, AFailedOpeningLeavesTheConnectionClosed)
{
    makeArchive(path(), kScript);
    ASSERT_TRUE(openWith());
    EXPECT_FALSE(m_connection.Open(path(u"Altro.Mdb"_s)));
    EXPECT_FALSE(m_connection.isOpen());
}

TEST_F(OpenArchiveTest, TablesAndStoredQueriesAreKnownByNameWithoutCase)
{
    makeArchive(path(), kScript + u"CREATE VIEW Elenco AS SELECT Nome FROM T;"_s);
    ASSERT_TRUE(openWith());
    EXPECT_TRUE(m_connection.hasTable(u"t"_s));
    EXPECT_TRUE(m_connection.hasTable(u"elenco"_s));
    EXPECT_FALSE(m_connection.hasTable(u"Altra"_s));
}

// The rights of a person who may only read; they would not bind the superuser.
class ReadOnlyArchiveTest : public OpenArchiveTest
{
protected:
    void SetUp() override
    {
        makeArchive(path(), kScript);
        ASSERT_TRUE(openWith()); // which leaves the file in the journal mode of everyday use
        m_connection.Close();
    }

    void protect(bool folderToo)
    {
        using enum QFile::Permission;
        ASSERT_TRUE(QFile::setPermissions(path(), ReadOwner | ReadGroup | ReadOther));
        const auto folder = ReadOwner | ExeOwner | ReadGroup | ExeGroup | ReadOther | ExeOther;
        ASSERT_TRUE(
            QFile::setPermissions(m_folder.path(), folderToo ? folder : folder | WriteOwner | WriteGroup | WriteOther));
        if (geteuid() == 0) {
            ASSERT_EQ(seteuid(kNobody), 0);
        }
    }

    void TearDown() override
    {
        m_connection.Close();
        if (getuid() == 0) {
            ASSERT_EQ(seteuid(0), 0);
        }
        QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void expectReadableAndNotWritable()
    {
        ASSERT_EQ(openWith().words, QString());
        EXPECT_EQ(names(), u"uno due"_s);
        const auto failure = failureOf([&] { m_connection.Execute(u"DELETE FROM T"_s); });
        ASSERT_TRUE(failure);
        EXPECT_TRUE(failure->words().startsWith(u"L'archivio è di sola lettura: la modifica non è stata salvata ("_s))
            << failure->words().toStdString();
        EXPECT_EQ(names(), u"uno due"_s);
    }

private:
    static constexpr uid_t kNobody = 65534;
};

TEST_F(ReadOnlyArchiveTest, AFileThatMayNotBeWrittenOpensForReading)
{
    protect(false);
    expectReadableAndNotWritable();
}

TEST_F(ReadOnlyArchiveTest, AFileInAFolderThatMayNotBeWrittenOpensForReading)
{
    protect(true);
    expectReadableAndNotWritable();
}

TEST_F(OpenArchiveTest, AnArchiveThatIsOpenIsNotHeldAndOneThatIsHeldIsInUse)
{
    makeArchive(path(), kScript);
    ASSERT_TRUE(openWith());
    EXPECT_EQ(names(), u"uno due"_s);
    EXPECT_FALSE(ArchiveHold(path()).isHeld());
    m_connection.Close();

    const ArchiveHold hold(path());
    ASSERT_TRUE(hold.isHeld());
    EXPECT_FALSE(ArchiveHold(path()).isHeld());
    EXPECT_EQ(bytes().size(), 2 * 4096) << "reading the file leaves the lock alone";
    ASSERT_TRUE(openWith()) << "a sound archive in use opens";
    m_connection.setLockWait(0);
    const auto failure = failureOf([&] { m_connection.Execute(u"DELETE FROM T"_s); });
    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->words().startsWith(u"L'archivio è in uso da un altro programma: riprovare tra poco ("_s));
}

TEST_F(OpenArchiveTest, AProtectedArchiveInUseAsksForItsPasswordAndThenOpens)
{
    makeArchive(path(), kScript, u"segreto"_s);
    auto hold = std::make_unique<ArchiveHold>(path());
    ASSERT_TRUE(hold->isHeld());
    expectRefused(openWith(), OpenOutcome::PasswordRichiesta, kLoginRefused,
                  u"L'archivio è protetto da una password"_s);
    ASSERT_TRUE(openWith(u"segreto"_s));
    m_connection.setLockWait(0);
    const auto failure = failureOf([&] { m_connection.Execute(u"DELETE FROM T"_s); });
    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->words().startsWith(u"L'archivio è in uso da un altro programma: riprovare tra poco ("_s));
    hold.reset();
    EXPECT_EQ(names(), u"uno due"_s);
}

// The file is replaced while another program waits for it.
TEST_F(OpenArchiveTest, AnArchiveThatIsReplacedWhileItIsWaitedForIsOpenedUnderItsName)
{
    makeArchive(path(), kScript);
    makeArchive(path(u"Nuovo.Mdb"_s), kScript + u"INSERT INTO T (Nome) VALUES ('tre');"_s);
    auto hold = std::make_unique<ArchiveHold>(path());
    ASSERT_TRUE(hold->isHeld());
    std::thread replacing([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        std::filesystem::rename(path(u"Nuovo.Mdb"_s).toStdString(), path().toStdString());
        hold->retire();
        hold.reset();
    });
    const OpenResult opened = openWith();
    replacing.join();
    ASSERT_TRUE(opened) << opened.words.toStdString();
    EXPECT_EQ(names(), u"uno due tre"_s);
}

TEST_F(OpenArchiveTest, AConnectionToTheReplacedFileFailsInsteadOfWritingWhereNobodyReads)
{
    makeArchive(path(), kScript);
    makeArchive(path(u"Nuovo.Mdb"_s), kScript);
    ASSERT_TRUE(openWith());
    m_connection.Execute(u"PRAGMA journal_mode=DELETE"_s); // in which an idle program holds no lock
    EXPECT_EQ(names(), u"uno due"_s);
    {
        const ArchiveHold hold(path());
        ASSERT_TRUE(hold.isHeld());
        hold.retire();
        EXPECT_EQ(bytes().first(6), "SQLite") << "the file has its name still";
        std::filesystem::rename(path(u"Nuovo.Mdb"_s).toStdString(), path().toStdString());
        hold.retire();
    }
    EXPECT_TRUE(failureOf([&] { m_connection.Execute(u"INSERT INTO T (Nome) VALUES ('perso')"_s); }));
    m_connection.Close();
    ASSERT_TRUE(openWith());
    EXPECT_EQ(names(), u"uno due"_s);
}

TEST_F(OpenArchiveTest, TheJournalOfAnArchiveBehindALinkLiesBesideTheArchive)
{
    makeArchive(path(), kScript);
    const QString link = path(u"altrove/collegamento.Mdb"_s);
    ASSERT_TRUE(QDir().mkpath(path(u"altrove"_s)));
    ASSERT_TRUE(QFile::link(path(), link));
    ASSERT_TRUE(m_connection.Open(link));
    m_connection.Execute(u"INSERT INTO T (Nome) VALUES ('tre')"_s);
    EXPECT_TRUE(hasJournal(link));
    EXPECT_EQ(companionFiles(link), companionFiles(path()));
    EXPECT_EQ(throughLinks(link), path());
}

TEST_F(OpenArchiveTest, ALinkLeadsSomewhereAlsoWhereNothingIs)
{
    const QString link = path(u"collegamento.Mdb"_s);
    ASSERT_TRUE(QFile::link(path(), link));
    EXPECT_EQ(throughLinks(link), path());
    ASSERT_TRUE(QFile::link(link, path(u"altro.Mdb"_s)));
    EXPECT_EQ(throughLinks(path(u"altro.Mdb"_s)), path());
}

} // namespace
