#include "faults/RoadTest.h"

#include <QDir>
#include <QFile>

RoadTest::Shared *RoadTest::s_shared = nullptr;

void RoadTest::SetUpTestSuite()
{
    prepareWork({12, 20, 28});
}

void RoadTest::prepareWork(const std::vector<int> &days)
{
    s_shared = new Shared;
    shared().days = days;
    shared().prepared = shared().folder.filePath("prima.db");
    // Copies have tests of their own.
    QFile marker(shared().world.modulo().mondo.folder.resolve("Copie.no"));
    ASSERT_TRUE(marker.open(QIODevice::WriteOnly));
    shared().world.planExpandBalance(20);
    shared().world.close();
    ASSERT_TRUE(QFile::copy(archive(), shared().prepared));

    ASSERT_TRUE(hasFinished(runOnUnluckyDisk(Misfortune::None, 0, [] { work(true); })));
    shared().bytes = sharedProgress().written;
    shared().afterward.push_back(digestOf(shared().prepared));
    for (int commit = 1; commit <= sharedProgress().commits; ++commit)
        shared().afterward.push_back(sharedProgress().digests[commit]);
    ASSERT_EQ(shared().afterward.back(), digestOf(archive()));
    ASSERT_GT(shared().afterward.size(), 4U) << "the work is committed in too few groups to tell anything";
}

void RoadTest::TearDownTestSuite()
{
    delete s_shared;
    s_shared = nullptr;
}

void RoadTest::work(bool digests)
{
    shared().world.open();
    countCommits(shared().world.modulo().dati(), digests);
    for (const int days : shared().days)
        shared().world.planExpandBalance(days);
    shared().world.close();
}

void RoadTest::prepare()
{
    putArchive(shared().prepared, archive());
}

QString RoadTest::archive()
{
    return shared().world.archivePath();
}
