// The program killed while it copies an archive, the tool while it protects, unprotects or puts one back.
#include "core/CopieDiSicurezza.h"
#include "CreaArchivio.h"
#include "faults/Contents.h"
#include "faults/UnluckyDisk.h"
#include "platform/store/ArchiveSigns.h"
#include "ProteggiArchivio.h"
#include "RipristinaArchivio.h"
#include "SproteggiArchivio.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <random>
#include <stdexcept>
#include <vector>

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
    // The moments at which the work gives or takes names of files.
    static qint64 namesOf(const std::function<void()> &work)
    {
        EXPECT_TRUE(hasFinished(runOnUnluckyDisk(Misfortune::None, 0, work)));
        return sharedProgress().names;
    }
    static void killAtName(qint64 moment, const std::function<void()> &work)
    {
        EXPECT_TRUE(wasKilled(runOnUnluckyDisk(Misfortune::KillAtName, moment, work))) << "at name " << moment;
    }
    // The archive `from` in its place, and nothing of an earlier try.
    void putFresh(const QString &from) const
    {
        putArchive(from, archive);
        forgetCopies();
        QDir left(folder.path());
        for (const QString &name : left.entryList({"famiglia.db.provvisorio-*"}, QDir::Files))
            left.remove(name);
    }
    void forgetCopies() const { QDir(CartellaCopie(archive)).removeRecursively(); }

    // Whole under its old password or under its new one; true for the new one.
    bool expectWholeUnderOneOf(const QString &before, const QString &after)
    {
        const bool isNew = isPlain(archive) == after.isEmpty(); // a plain one opens with any password
        const QString password = isNew ? after : before;
        count(faultsOf(archive, password).isEmpty() && digestOf(archive, password) == digest);
        return isNew;
    }
    static bool isPlain(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) && isPlainArchive(file.read(kArchiveSign));
    }
    void count(bool whole)
    {
        ++m_tries;
        m_lost += whole ? 0 : 1;
        EXPECT_TRUE(whole);
    }
    void tell(const char *what) const { std::printf("[  figure  ] %s: %d tries, %d lost\n", what, m_tries, m_lost); }

    // Kills the change of a password anywhere, and at each moment at which names change.
    void killChangeOfPassword(const QString &from, const QString &before, const QString &after,
                              const std::function<void()> &work)
    {
        putFresh(from);
        const qint64 bytes = bytesOf(work);
        for (int i = 0; i < kPasswordKills; ++i) {
            putFresh(from);
            killAtSomeMoment(bytes, work);
            expectWholeUnderOneOf(before, after);
        }
        putFresh(from);
        const qint64 names = namesOf(work);
        int changed = 0;
        for (qint64 moment = 1; moment <= names; ++moment) {
            putFresh(from);
            killAtName(moment, work);
            changed += expectWholeUnderOneOf(before, after) ? 1 : 0;
        }
        EXPECT_GT(changed, 0) << "also behind the last step the program was killed";
        EXPECT_LT(changed, names);
    }

private:
    int m_tries = 0;
    int m_lost = 0;
};

constexpr int kCopies = 3;

void change(Connection &opened, int copy)
{
    opened.Execute(QStringLiteral("UPDATE Sostituisci SET Ordine = %1").arg(copy));
}

void changeAndCopy(const QString &path)
{
    Connection opened;
    if (const OpenResult result = opened.Open(path); !result)
        throw Failure(FailureNumber(result.number), result.words);
    for (int copy = 1; copy <= kCopies; ++copy) {
        change(opened, copy);
        FaiCopia(opened, kNow);
    }
}

TEST_F(KilledCopyTest, WhileCopyingTheArchiveStaysAndEachCopyThatHasItsNameIsWhole)
{
    putArchive(prepared, archive);
    std::vector<quint64> digests{digest};
    {
        Connection opened;
        ASSERT_TRUE(opened.Open(archive));
        for (int copy = 1; copy <= kCopies; ++copy) {
            change(opened, copy);
            digests.push_back(digestOf(opened));
        }
    }
    ASSERT_NE(digests[0], digests[1]);
    putArchive(prepared, archive);
    const qint64 bytes = bytesOf([this] { changeAndCopy(archive); });
    int copies = 0;
    for (int i = 0; i < kCopyKills; ++i) {
        putArchive(prepared, archive);
        forgetCopies();
        killAtSomeMoment(bytes, [this] { changeAndCopy(archive); });
        const QStringList made = CopieDi(archive);
        const auto state = std::find(digests.begin(), digests.end(), digestOf(archive)) - digests.begin();
        bool whole = faultsOf(archive).isEmpty() && state < std::ssize(digests) && state >= made.size();
        for (qsizetype copy = 0; copy < made.size(); ++copy)
            whole = whole && faultsOf(made[copy]).isEmpty() && digestOf(made[copy]) == digests[std::size_t(copy) + 1];
        count(whole);
        copies += int(made.size());
        // The next start cleans up and copies.
        ASSERT_NO_THROW(changeAndCopy(archive)) << i;
        ASSERT_EQ(CopieDi(archive).size(), made.size() + kCopies);
        ASSERT_EQ(QDir(CartellaCopie(archive)).entryList(QDir::Files | QDir::Hidden).size(), made.size() + kCopies);
    }
    EXPECT_GT(copies, 0);
    tell("killed while copying");
}

TEST_F(KilledCopyTest, ADiskThatRunsFullWhileCopyingIsSaidAndLeavesNoHalfCopy)
{
    putArchive(prepared, archive);
    const auto work = [this] {
        Connection opened;
        if (!opened.Open(archive))
            throw std::runtime_error("it does not open");
        try {
            FaiCopia(opened, kNow);
        } catch (const Failure &failure) {
            if (failure.words() == "Il disco è pieno")
                throw;
            throw std::logic_error(failure.words().toStdString());
        }
    };
    const qint64 bytes = bytesOf(work);
    forgetCopies();
    for (const qint64 at : {bytes / 4, bytes / 2, bytes * 3 / 4}) {
        EXPECT_TRUE(hasFailed(runOnUnluckyDisk(Misfortune::Full, at, work))) << at;
        EXPECT_EQ(QDir(CartellaCopie(archive)).entryList(QDir::Files | QDir::Hidden), QStringList()) << at;
        count(faultsOf(archive).isEmpty() && digestOf(archive) == digest);
    }
    tell("full disk while copying");
}

TEST_F(KilledCopyTest, WhileProtectingTheArchiveIsWholeWithTheOldPasswordOrWithTheNewOne)
{
    killChangeOfPassword(prepared, {}, kPassword, [this] { proteggiArchivio(archive, kPassword); });
    tell("killed while protecting");
}

TEST_F(KilledCopyTest, WhileUnprotectingTheArchiveIsWholeWithTheOldPasswordOrWithTheNewOne)
{
    const QString closed = folder.filePath("chiuso.db");
    ASSERT_TRUE(QFile::copy(prepared, closed));
    proteggiArchivio(closed, kPassword);
    killChangeOfPassword(closed, kPassword, {}, [this] { sproteggiArchivio(archive, kPassword); });
    tell("killed while unprotecting");
}

TEST_F(KilledCopyTest, WhatAKilledToolLeftIsClearedByTheNext)
{
    putArchive(prepared, archive);
    const auto work = [this] { proteggiArchivio(archive, kPassword); };
    killAtName(1, work);
    const auto left = [this] { return QDir(folder.path()).entryList({"famiglia.db.provvisorio-*"}, QDir::Files); };
    ASSERT_GT(left().size(), 0);
    work();
    EXPECT_EQ(left(), QStringList());
}

TEST_F(KilledCopyTest, WhilePuttingACopyBackTheArchiveIsTheOldOneOrTheCopyAndTheOldOneIsNotLost)
{
    const QString copy = folder.filePath("copia.db");
    creaArchivioNuovo(copy);
    const quint64 restored = digestOf(copy);
    const auto work = [&] { ripristinaArchivio(copy, archive, {}, kNow); };
    const auto put = [&] { putFresh(prepared); };
    int changed = 0;
    const auto look = [&] {
        const bool isNew = digestOf(archive) != digest;
        changed += isNew ? 1 : 0;
        const QStringList kept = CopieDi(archive);
        count(faultsOf(archive).isEmpty() && digestOf(copy) == restored &&
              (!isNew || (digestOf(archive) == restored && kept.size() == 1 && digestOf(kept.constFirst()) == digest)));
    };
    put();
    const qint64 bytes = bytesOf(work);
    for (int i = 0; i < kRestoreKills; ++i) {
        put();
        killAtSomeMoment(bytes, work);
        look();
    }
    put();
    const qint64 names = namesOf(work);
    for (qint64 moment = 1; moment <= names; ++moment) {
        put();
        killAtName(moment, work);
        look();
    }
    EXPECT_GT(changed, 0);
    EXPECT_LT(changed, names);
    tell("killed while putting a copy back");
}

} // namespace
