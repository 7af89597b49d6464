// The program killed while it generates, expands and balances, and a disk that runs full meanwhile.
#include "faults/RoadTest.h"
#include "VerificaArchivio.h"

#include <cstdio>
#include <random>

namespace {

constexpr int kKills = 200;
constexpr int kFullDisks = 60;
constexpr int kWholeCheckEvery = 20;

class KilledRoadTest : public RoadTest
{
protected:
    std::mt19937_64 moments; // the same in every run

    qint64 someMoment() { return 1 + qint64(moments() % quint64(shared().bytes)); }

    // The archive opens, is sound, and holds what it held after as many commits as the child made. The one that was
    // under way when the child was killed may have come through.
    void expectTheCommittedGroups(const std::string &told)
    {
        ASSERT_EQ(faultsOf(archive()), "") << told;
        const std::size_t commits = std::size_t(sharedProgress().commits);
        ASSERT_LT(commits, shared().afterward.size()) << told;
        const quint64 held = digestOf(archive());
        const bool isLast = held == shared().afterward[commits];
        const bool isNext = commits + 1 < shared().afterward.size() && held == shared().afterward[commits + 1];
        if (!isLast && !isNext)
            ++m_lost;
        EXPECT_TRUE(isLast || isNext) << told << ", after " << commits << " groups";
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
    int m_lost = 0;
    int m_groups = 0;
    int m_withGroups = 0;
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
        expectTheCommittedGroups(told);
    }
    tell("full disk while planning", kFullDisks);
}
