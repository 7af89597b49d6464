#include "SostituisciArchivio.h"

#include "platform/Failure.h"
#include "support/Printers.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QFile>

namespace {

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
            sostituisciArchivio(copy, path);
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

} // namespace
