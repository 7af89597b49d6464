// A program killed while it plans, expands and balances a year: the archive it leaves.
#include "road/RoadWorld.h"
#include "VerificaArchivio.h"

#include <QDeadlineTimer>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <csignal>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int kYear = 365;
constexpr int kKills = 12;
constexpr qint64 kFirstGroup = 400000; // bytes of journal

// Plans the year in a child process, for ever anew until it is killed.
pid_t startPlanning(RoadWorld &world)
{
    const pid_t child = fork();
    if (child != 0)
        return child;
    world.open();
    for (;;)
        world.planExpandBalance(kYear);
}

// The child is in the middle of its writing as soon as the journal has grown by a first group of rows.
void waitForWriting(const RoadWorld &world)
{
    QDeadlineTimer patience(60000);
    while (QFileInfo(world.archivePath() + "-wal").size() < kFirstGroup) {
        ASSERT_FALSE(patience.hasExpired()) << "the child writes nothing";
        usleep(2000);
    }
}

void killAfter(pid_t child, int milliseconds)
{
    usleep(useconds_t(milliseconds) * 1000);
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status)) << "the child ended by itself, so nothing was interrupted";
}

int rowsOfSheet(RoadWorld &world)
{
    Recordset rows;
    rows.Open("Select * from SchedaPranzo", world.modulo().dati(), Recordset::Access::ReadOnly);
    return rows.RecordCount();
}

} // namespace

TEST(KilledExpansionTest, LeavesASoundArchiveThatOpensAndCanBePlannedAgain)
{
    std::mt19937 moments; // the same moments in every run
    int interrupted = 0;
    RoadWorld world;
    world.close();
    for (int i = 0; i < kKills; ++i) {
        const pid_t child = startPlanning(world);
        waitForWriting(world);
        killAfter(child, int(moments() % 200));
        const Verifica check = verificaArchivio(world.archivePath());
        ASSERT_EQ(check.guasti, QStringList()) << "after kill " << i;
        ASSERT_NO_THROW(world.open());
        interrupted += rowsOfSheet(world) > 0 ? 1 : 0;
        world.close();
    }
    EXPECT_GT(interrupted, 0) << "no kill came when rows of sheets were there already";

    world.open();
    world.planExpandBalance(7);
    Recordset days;
    days.Open("Select * from Menu", world.modulo().dati());
    EXPECT_GE(days.RecordCount(), 7);
}
