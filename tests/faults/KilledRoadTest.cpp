// The program killed while it generates, expands and balances, and a disk that runs full meanwhile.
#include "faults/RoadTest.h"
#include "support/TestArchive.h"
#include "VerificaArchivio.h"

#include <cstdio>
#include <random>

namespace {

constexpr int kKills = 200;
constexpr int kFullDisks = 60;
constexpr int kWholeCheckEvery = 20;
constexpr int kDaysBefore = 20; // that have sheets before the work
constexpr int kLongDays = 400;
constexpr int kLongKills = 30;

class KilledRoadTest : public RoadTest
{
protected:
    std::mt19937_64 moments; // the same in every run

    qint64 someMoment() { return 1 + qint64(moments() % quint64(shared().bytes)); }

    // The archive opens, is sound, and holds what it held after as many commits as the child made. The one that was
    // under way when the child was killed may have come through.
    void expectTheCommittedGroups(const std::string &told)
    {
        const std::size_t commits = std::size_t(sharedProgress().commits);
        const bool isThere = isSound() && commits < shared().afterward.size() && isAfter(commits);
        m_lost += isThere ? 0 : 1;
        EXPECT_TRUE(isThere) << told << ", after " << commits << " groups: " << faultsOf(archive()).toStdString();
        m_groups += int(commits);
        m_withGroups += commits > 0 ? 1 : 0;
    }
    void tell(const char *what, int tries) const
    {
        std::printf("[  figure  ] %s: %d tries, %d of them after at least one group, %d groups in all, %d archives or "
                    "groups lost\n",
                    what, tries, m_withGroups, m_groups, m_lost);
    }
    int withGroups() const { return m_withGroups; }

private:
    static bool isSound() { return faultsOf(archive()).isEmpty(); }
    static bool isAfter(std::size_t commits)
    {
        const quint64 held = digestOf(archive());
        return held == shared().afterward[commits] ||
               (commits + 1 < shared().afterward.size() && held == shared().afterward[commits + 1]);
    }

    int m_lost = 0;
    int m_groups = 0;
    int m_withGroups = 0;
};

// One expansion so long that it is committed in several groups.
class KilledLongRoadTest : public KilledRoadTest
{
protected:
    static void SetUpTestSuite() { prepareWork({kLongDays}); }

    // The days that have a sheet.
    static int daysExpanded()
    {
        Connection opened;
        EXPECT_TRUE(opened.Open(archive()));
        return valueOf(opened, "SELECT Count(*) FROM (SELECT DISTINCT dataInserimento FROM SchedaPranzo)").toInt();
    }
};

} // namespace

TEST_F(KilledRoadTest, AKilledProgramLeavesASoundArchiveWithTheGroupsThatWereCommitted)
{
    for (int i = 0; i < kKills; ++i) {
        const qint64 moment = someMoment();
        const std::string told = "kill " + std::to_string(i) + " at byte " + std::to_string(moment);
        prepare();
        ASSERT_TRUE(wasKilled(runOnUnluckyDisk(Misfortune::Kill, moment, [] { work(); }))) << told;
        if (i % kWholeCheckEvery == 0) {
            ASSERT_EQ(verificaArchivio(archive()).guasti, QStringList()) << told;
        }
        expectTheCommittedGroups(told);
    }
    tell("killed while planning", kKills);
    EXPECT_GT(withGroups(), kKills / 3);
}

TEST_F(KilledRoadTest, TheArchiveOfAKilledProgramCanBePlannedAgain)
{
    prepare();
    ASSERT_TRUE(wasKilled(runOnUnluckyDisk(Misfortune::Kill, shared().bytes / 2, [] { work(); })));
    ASSERT_TRUE(hasFinished(runOnUnluckyDisk(Misfortune::None, 0, [] { work(); })));
    EXPECT_EQ(faultsOf(archive()), "");
    shared().world.open();
    Recordset days;
    days.Open("Select * from Menu", shared().world.modulo().dati(), Recordset::Access::ReadOnly);
    EXPECT_GE(days.RecordCount(), 28);
    shared().world.close();
}

TEST_F(KilledRoadTest, ADiskThatRunsFullIsAFailureAndLeavesTheGroupsThatWereCommitted)
{
    for (int i = 0; i < kFullDisks; ++i) {
        const qint64 moment = someMoment();
        const std::string told = "full disk " + std::to_string(i) + " at byte " + std::to_string(moment);
        prepare();
        const int status = runOnUnluckyDisk(Misfortune::Full, moment, [] { work(); });
        // A checkpoint that finds no room is no failure: what it would have moved stays in the journal.
        ASSERT_TRUE(hasFailed(status) || hasFinished(status)) << told;
        if (hasFinished(status)) {
            EXPECT_EQ(std::size_t(sharedProgress().commits) + 1, shared().afterward.size()) << told;
        }
        expectTheCommittedGroups(told);
    }
    tell("full disk while planning", kFullDisks);
}

TEST_F(KilledLongRoadTest, AnExpansionKilledHalfwayKeepsTheGroupsThatWereCommitted)
{
    int halfway = 0;
    for (int i = 0; i < kLongKills; ++i) {
        const qint64 moment = someMoment();
        const std::string told = "kill " + std::to_string(i) + " at byte " + std::to_string(moment);
        prepare();
        ASSERT_TRUE(wasKilled(runOnUnluckyDisk(Misfortune::Kill, moment, [] { work(); }))) << told;
        expectTheCommittedGroups(told);
        const int days = daysExpanded();
        halfway += days > kDaysBefore && days < kLongDays ? 1 : 0;
    }
    tell("killed in a long expansion", kLongKills);
    std::printf("[  figure  ] killed in a long expansion: %d of them with a part of its days\n", halfway);
    EXPECT_GT(halfway, 3);
}
