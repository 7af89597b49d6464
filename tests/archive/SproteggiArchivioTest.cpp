#include "SproteggiArchivio.h"

#include "CreaArchivio.h"
#include "platform/Failure.h"
#include "platform/store/ArchiveFile.h"
#include "ProteggiArchivio.h"
#include "support/OtherProgram.h"
#include "support/Printers.h"
#include "support/TemporaryFolder.h"
#include "support/TestArchive.h"
#include "VerificaArchivio.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <sys/stat.h>

namespace {

class SproteggiArchivioTest : public ::testing::Test
{
protected:
    TemporaryFolder folder;
    QString path = folder.path("famiglia.db");

    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }
    QString refusalWith(const QString &password) const
    {
        try {
            sproteggiArchivio(path, password);
        } catch (const Failure &failure) {
            return failure.words();
        }
        return "(sprotetto)";
    }
};

TEST_F(SproteggiArchivioTest, TheArchiveOpensWithoutAPasswordAndHoldsTheSameRows)
{
    creaArchivioEsempio(path, QDate(2025, 3, 1));
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
    proteggiArchivio(path, "segreta");
    sproteggiArchivio(path, "segreta");

    Connection archive;
    ASSERT_TRUE(archive.Open(path));
    EXPECT_EQ(countOf(archive, "Piatti"), 528);
    EXPECT_EQ(valueOf(archive, "SELECT KCalOndira FROM Sostituisci WHERE Piatto = 'Pasta al pesto'"), "294,2");
    archive.Close();
    EXPECT_EQ(verificaArchivio(path).guasti, QStringList());
    EXPECT_EQ(files(), QStringList("famiglia.db"));
    EXPECT_EQ(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    EXPECT_TRUE(folder.read("famiglia.db").startsWith("SQLite format 3"));
}

TEST_F(SproteggiArchivioTest, NoPasswordAndAWrongOneLeaveTheArchiveAsItIs)
{
    creaArchivioNuovo(path);
    proteggiArchivio(path, "segreta");
    const QByteArray before = folder.read("famiglia.db");
    EXPECT_EQ(refusalWith(""), "L'archivio è protetto da una password");
    EXPECT_EQ(refusalWith("Segreta"), "Password non valida");
    EXPECT_EQ(folder.read("famiglia.db"), before);
    EXPECT_EQ(files(), QStringList("famiglia.db"));
}

TEST_F(SproteggiArchivioTest, AnArchiveWithoutAPasswordIsRefused)
{
    creaArchivioNuovo(path);
    const QByteArray before = folder.read("famiglia.db");
    EXPECT_EQ(refusalWith("segreta"), QString("L'archivio \"%1\" non ha una password").arg(path));
    EXPECT_EQ(refusalWith(""), QString("L'archivio \"%1\" non ha una password").arg(path));
    EXPECT_EQ(folder.read("famiglia.db").size(), before.size());
}

TEST_F(SproteggiArchivioTest, AnArchiveThatAnotherProgramHasOpenIsLeftAlone)
{
    creaArchivioNuovo(path);
    proteggiArchivio(path, "segreta");
    {
        const OtherProgram other(path, "segreta", "INSERT INTO Clienti (Nominativo) VALUES ('Tesmo')");
        EXPECT_EQ(refusalWith("segreta"), QString("L'archivio \"%1\" è aperto da un altro programma").arg(path));
    }
    Connection archive;
    ASSERT_TRUE(archive.Open(path, "segreta"));
    EXPECT_EQ(rowsOf(archive, "SELECT Nominativo FROM Clienti"), QStringList("Tesmo"));
}

TEST_F(SproteggiArchivioTest, NobodyElseReadsThePlainCopyWhileItIsMade)
{
    makeArchive(path, scriptSchema(), "segreta");
    ASSERT_TRUE(QFile::setPermissions(path, QFile::Permissions(0x6644)));
    const QString copy = folder.path("copia.db");
    const mode_t before = umask(0);
    copyEncrypted(path, copy, {}, "segreta");
    umask(before);
    EXPECT_EQ(QFile::permissions(copy) & ~QFile::Permissions(0x0f00), QFile::ReadOwner | QFile::WriteOwner);
    sproteggiArchivio(path, "segreta");
    EXPECT_EQ(QFile::permissions(path) & ~QFile::Permissions(0x0f00),
              QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther)
        << "the rights of the archive are those that it had";
}

TEST_F(SproteggiArchivioTest, AMissingFileAndADamagedOneAreRefused)
{
    EXPECT_EQ(refusalWith("segreta"), QString("Il file \"%1\" non c'è").arg(path));
    creaArchivioNuovo(path);
    proteggiArchivio(path, "segreta");
    QByteArray damaged = folder.read("famiglia.db");
    damaged.replace(4096, 1024, QByteArray(1024, '\x55'));
    folder.write("famiglia.db", damaged);
    EXPECT_NE(refusalWith("segreta"), "(sprotetto)");
    EXPECT_EQ(folder.read("famiglia.db"), damaged);
    EXPECT_EQ(files(), QStringList("famiglia.db"));
}

} // namespace
