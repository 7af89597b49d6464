// How the files of archives are told from others.
#include "platform/store/ArchiveSigns.h"

#include "support/Printers.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

TEST(ArchiveSignsTest, APlainArchiveIsKnownByItsBeginning)
{
    EXPECT_TRUE(isPlainArchive(QByteArray("SQLite format 3\0\20\0", 18)));
    EXPECT_FALSE(isPlainArchive("SQLite forma"));
    EXPECT_FALSE(isPlainArchive(" SQLite format 3"));
    EXPECT_FALSE(isPlainArchive({}));
}

TEST(ArchiveSignsTest, AnOldMdbFileIsKnownByTheNameBehindItsFirstFourBytes)
{
    const QByteArray jet("\0\1\0\0Standard Jet DB\0\1\0\0\0", 24);
    EXPECT_TRUE(isJetFile(jet));
    EXPECT_EQ(jet.size(), kArchiveSign);
    EXPECT_FALSE(isJetFile(jet.left(18)));
    EXPECT_FALSE(isJetFile(jet.mid(4)));
    EXPECT_FALSE(isJetFile("abc"));
    EXPECT_FALSE(isJetFile({}));
}

TEST(ArchiveSignsTest, AnArchiveHasThreeFilesBesideIt)
{
    EXPECT_EQ(companionFiles("Casa.Mdb"), QStringList({"Casa.Mdb-wal", "Casa.Mdb-journal", "Casa.Mdb-shm"}));
}

TEST(ArchiveSignsTest, OnlyAJournalWithSomethingInItCounts)
{
    const TemporaryFolder folder;
    const QString path = folder.path("Casa.Mdb");
    EXPECT_FALSE(hasJournal(path));
    folder.write("Casa.Mdb-shm", "mappa");
    folder.write("Casa.Mdb-wal", "");
    EXPECT_FALSE(hasJournal(path));
    folder.write("Casa.Mdb-wal", "righe");
    EXPECT_TRUE(hasJournal(path));
    folder.write("Casa.Mdb-wal", "");
    folder.write("Casa.Mdb-journal", "pagine");
    EXPECT_TRUE(hasJournal(path));
}

} // namespace
