#include "SostituisciArchivio.h"

#include "platform/Failure.h"
#include "support/Printers.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>

#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr uid_t kNobody = 65534;

class SostituisciArchivioTest : public ::testing::Test
{
protected:
    TemporaryFolder folder;
    QString path = folder.path("famiglia.db");

    void SetUp() override { folder.write("famiglia.db", "quello di adesso"); }
    QString refusal() const
    {
        const FileProvvisorio copy(path);
        QFile file(copy.path());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write("la copia") > 0);
        file.close();
        try {
            sostituisciArchivio(copy, path, *tieniFermo(path));
        } catch (const Failure &failure) {
            return failure.words();
        }
        return "(sostituito)";
    }
};

TEST_F(SostituisciArchivioTest, TheCopyTakesThePlaceAndThePermissions)
{
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
    EXPECT_EQ(refusal(), "(sostituito)");
    EXPECT_EQ(folder.read("famiglia.db"), "la copia");
    EXPECT_EQ(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    EXPECT_EQ(folder.entries(), QStringList("famiglia.db"));
}

TEST_F(SostituisciArchivioTest, AJournalThatHoldsChangesStillIsNotLeftToTheCopy)
{
    folder.write("famiglia.db-wal", "modifiche");
    EXPECT_EQ(refusal(), QString("Accanto all'archivio \"%1\" resta un giornale con delle modifiche: aprirlo una volta "
                                 "con il programma e riprovare")
                             .arg(path));
    EXPECT_EQ(folder.read("famiglia.db"), "quello di adesso");
    EXPECT_EQ(folder.entries(), QStringList({"famiglia.db", "famiglia.db-wal"}));
}

TEST_F(SostituisciArchivioTest, TheCopyIsGivenToTheOwnerAndTheGroupOfTheArchive)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only the superuser gives files away";
    const QByteArray name = QFile::encodeName(path);
    ASSERT_EQ(chown(name.constData(), kNobody, kNobody), 0);
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup));
    EXPECT_EQ(refusal(), "(sostituito)");
    EXPECT_EQ(folder.read("famiglia.db"), "la copia");
    EXPECT_EQ(QFileInfo(path).ownerId(), kNobody);
    EXPECT_EQ(QFileInfo(path).groupId(), kNobody);
    EXPECT_EQ(QFile::permissions(path) & (QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther),
              QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
}

TEST_F(SostituisciArchivioTest, AnArchiveOfSomebodyElseIsNotTakenFromHim)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only the superuser can be two people";
    ASSERT_TRUE(QFile::setPermissions(folder.path(), QFile::Permissions(0x7777)));
    ASSERT_TRUE(QFile::setPermissions(path, QFile::Permissions(0x6666)));
    ASSERT_EQ(seteuid(kNobody), 0);
    const QString words = refusal();
    ASSERT_EQ(seteuid(0), 0);
    EXPECT_EQ(words, QString("L'archivio \"%1\" è di un altro utente o di un altro gruppo: il comando va dato da "
                             "quell'utente")
                         .arg(path));
    EXPECT_EQ(folder.read("famiglia.db"), "quello di adesso");
    EXPECT_EQ(QFileInfo(path).ownerId(), 0U);
}

TEST_F(SostituisciArchivioTest, EmptyFilesBesideTheArchiveGoWithIt)
{
    folder.write("famiglia.db-wal", "");
    folder.write("famiglia.db-shm", "vecchia mappa");
    EXPECT_EQ(refusal(), "(sostituito)");
    EXPECT_EQ(folder.entries(), QStringList("famiglia.db"));
}

TEST_F(SostituisciArchivioTest, TemporaryFilesOfKilledToolsGoAndOthersStay)
{
    const pid_t dead = fork();
    if (dead == 0)
        _exit(0);
    waitpid(dead, nullptr, 0);
    const QString left = QString("famiglia.db.provvisorio-%1-").arg(dead);
    const QStringList others{QString("famiglia.db.provvisorio-%1-1").arg(getppid()), "famiglia.db.2024-12",
                             "altro.db.provvisorio-1-1", left + "1.bak"};
    for (const QString &name : others)
        folder.write(name, "di qualcuno");
    for (const char *tail : {"1", "1-wal", "1-shm", "2", "2-journal"})
        folder.write(left + tail, "i piatti della famiglia");
    {
        const FileProvvisorio next(path);
    }
    QStringList expected = QStringList("famiglia.db") + others;
    expected.sort();
    QStringList found = folder.entries();
    found.sort();
    EXPECT_EQ(found, expected);
}

} // namespace
