// The program killed while it copies an archive, the tool while it protects, unprotects or puts one back.
#include "core/CopieDiSicurezza.h"
#include "CreaArchivio.h"
#include "faults/Contents.h"
#include "faults/UnluckyDisk.h"
#include "ProteggiArchivio.h"
#include "RipristinaArchivio.h"
#include "SproteggiArchivio.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <random>

namespace {

const QDateTime kNow(QDate(2025, 3, 2), QTime(10, 20, 30));
const QString kPassword = QStringLiteral("segreta");
constexpr int kCopyKills = 60;
constexpr int kPasswordKills = 15; // of each direction; each try derives keys, which takes its time
constexpr int kRestoreKills = 40;

class KilledCopyTest : public ::testing::Test
{
protected:
    QTemporaryDir folder;
    QString prepared = folder.filePath("prima.db");
    QString archive = folder.filePath("famiglia.db");
    quint64 digest = 0;
    std::mt19937_64 moments; // the same in every run

    void SetUp() override
    {
        creaArchivioEsempio(prepared, QDate(2025, 3, 1));
        digest = digestOf(prepared);
    }
    // The bytes that a work writes when nobody stops it.
    static qint64 bytesOf(const std::function<void()> &work)
    {
        EXPECT_TRUE(hasFinished(runOnUnluckyDisk(Misfortune::None, 0, work)));
        return sharedProgress().written;
    }
    void killAtSomeMoment(qint64 bytes, const std::function<void()> &work)
    {
        const qint64 moment = 1 + qint64(moments() % quint64(bytes));
        EXPECT_TRUE(wasKilled(runOnUnluckyDisk(Misfortune::Kill, moment, work))) << "at byte " << moment;
    }
    void forgetCopies() const { QDir(CartellaCopie(archive)).removeRecursively(); }

    // Whole under its old password or under its new one.
    void expectWholeUnderOneOf(const QString &one, const QString &other)
    {
        Connection opened;
        const QString password = opened.Open(archive, one) ? one : other;
        opened.Close();
        EXPECT_EQ(faultsOf(archive, password), "");
        EXPECT_EQ(digestOf(archive, password), digest);
    }
    static void tell(const char *what, int tries)
    {
        std::printf("[  figure  ] %s: %d tries, %s\n", what, tries, HasFailure() ? "see the losses above" : "0 lost");
    }
};

void changeAndCopy(const QString &path)
{
    Connection opened;
    if (const OpenResult result = opened.Open(path); !result)
        throw Failure(FailureNumber(result.number), result.words);
    for (int copy = 0; copy < 3; ++copy) {
        opened.Execute("UPDATE Categorie SET Kcal = Kcal + 1");
        FaiCopia(opened, kNow);
    }
}

TEST_F(KilledCopyTest, WhileCopyingTheArchiveStaysAndEachCopyThatHasItsNameIsWhole)
{
    putArchive(prepared, archive);
    const qint64 bytes = bytesOf([this] { changeAndCopy(archive); });
    int whole = 0;
    for (int i = 0; i < kCopyKills; ++i) {
        putArchive(prepared, archive);
        forgetCopies();
        killAtSomeMoment(bytes, [this] { changeAndCopy(archive); });
        ASSERT_EQ(faultsOf(archive), "") << i;
        ASSERT_EQ(digestOf(archive), digest) << i;
        for (const QString &copy : CopieDi(archive)) {
            ASSERT_EQ(faultsOf(copy), "") << i;
            ASSERT_EQ(digestOf(copy), digest) << i;
            ++whole;
        }
        // The next start cleans up and copies.
        const qsizetype before = CopieDi(archive).size();
        ASSERT_NO_THROW(changeAndCopy(archive)) << i;
        ASSERT_EQ(CopieDi(archive).size(), before + 3);
        ASSERT_EQ(QDir(CartellaCopie(archive)).entryList(QDir::Files | QDir::Hidden).size(), before + 3) << i;
    }
    EXPECT_GT(whole, 0);
    tell("killed while copying", kCopyKills);
}

TEST_F(KilledCopyTest, WhileProtectingTheArchiveIsWholeWithTheOldPasswordOrWithTheNewOne)
{
    const auto work = [this] { proteggiArchivio(archive, kPassword); };
    putArchive(prepared, archive);
    const qint64 bytes = bytesOf(work);
    for (int i = 0; i < kPasswordKills; ++i) {
        putArchive(prepared, archive);
        killAtSomeMoment(bytes, work);
        expectWholeUnderOneOf({}, kPassword);
    }
    tell("killed while protecting", kPasswordKills);
}

TEST_F(KilledCopyTest, WhileUnprotectingTheArchiveIsWholeWithTheOldPasswordOrWithTheNewOne)
{
    const QString closed = folder.filePath("chiuso.db");
    ASSERT_TRUE(QFile::copy(prepared, closed));
    proteggiArchivio(closed, kPassword);
    const auto work = [this] { sproteggiArchivio(archive, kPassword); };
    putArchive(closed, archive);
    const qint64 bytes = bytesOf(work);
    for (int i = 0; i < kPasswordKills; ++i) {
        putArchive(closed, archive);
        killAtSomeMoment(bytes, work);
        expectWholeUnderOneOf(kPassword, {});
    }
    tell("killed while unprotecting", kPasswordKills);
}

TEST_F(KilledCopyTest, WhilePuttingACopyBackTheArchiveIsTheOldOneOrTheCopyAndTheOldOneIsNotLost)
{
    const QString copy = folder.filePath("copia.db");
    creaArchivioNuovo(copy);
    const quint64 restored = digestOf(copy);
    const auto work = [&] { ripristinaArchivio(copy, archive, {}, kNow); };
    putArchive(prepared, archive);
    const qint64 bytes = bytesOf(work);
    for (int i = 0; i < kRestoreKills; ++i) {
        putArchive(prepared, archive);
        forgetCopies();
        killAtSomeMoment(bytes, work);
        ASSERT_EQ(faultsOf(archive), "") << i;
        const quint64 held = digestOf(archive);
        if (held != digest) {
            ASSERT_EQ(held, restored) << i;
            ASSERT_EQ(CopieDi(archive).size(), 1) << i;
            ASSERT_EQ(digestOf(CopieDi(archive).constFirst()), digest) << i;
        }
        ASSERT_EQ(digestOf(copy), restored) << i;
    }
    tell("killed while putting a copy back", kRestoreKills);
}

} // namespace
