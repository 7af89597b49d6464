#include "ProteggiArchivio.h"

#include "CreaArchivio.h"
#include "platform/Failure.h"
#include "platform/store/ArchiveSigns.h"
#include "platform/store/Connection.h"
#include "support/OtherProgram.h"
#include "support/Printers.h"
#include "support/TemporaryFolder.h"
#include "support/TestArchive.h"
#include "VerificaArchivio.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>

namespace {

class ProteggiArchivioTest : public ::testing::Test
{
protected:
    TemporaryFolder folder;
    QString path = folder.path("famiglia.db");

    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }
    QString refusalWith(const QString &password) const
    {
        try {
            proteggiArchivio(path, password);
        } catch (const Failure &failure) {
            return failure.words();
        }
        return "(protetto)";
    }
};

TEST_F(ProteggiArchivioTest, TheArchiveOpensWithThePasswordAloneAndHoldsTheSameRows)
{
    creaArchivioEsempio(path, QDate(2025, 3, 1));
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
    proteggiArchivio(path, "una parola d'ordine");

    Connection archive;
    EXPECT_EQ(archive.Open(path).outcome, OpenOutcome::PasswordRichiesta);
    EXPECT_EQ(archive.Open(path, "un'altra").outcome, OpenOutcome::PasswordRichiesta);
    ASSERT_TRUE(archive.Open(path, "una parola d'ordine"));
    EXPECT_EQ(countOf(archive, "Piatti"), 528);
    EXPECT_EQ(valueOf(archive, "SELECT KCalOndira FROM Sostituisci WHERE Piatto = 'Pasta al pesto'"), "294,2");
    archive.Close();
    EXPECT_EQ(verificaArchivio(path, "una parola d'ordine").guasti, QStringList());
    EXPECT_EQ(files(), QStringList("famiglia.db"));
    EXPECT_EQ(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    EXPECT_FALSE(folder.read("famiglia.db").contains("Pasta"));
}

TEST_F(ProteggiArchivioTest, AnArchiveThatHasAPasswordStaysAsItIs)
{
    creaArchivioNuovo(path);
    proteggiArchivio(path, "prima");
    const QByteArray before = folder.read("famiglia.db");
    EXPECT_EQ(refusalWith("seconda"), QString("L'archivio \"%1\" ha già una password").arg(path));
    EXPECT_EQ(folder.read("famiglia.db"), before);
    EXPECT_EQ(files(), QStringList("famiglia.db"));
}

TEST_F(ProteggiArchivioTest, AnEmptyPasswordIsNone)
{
    creaArchivioNuovo(path);
    EXPECT_EQ(refusalWith(""), "La password è vuota");
    Connection archive;
    EXPECT_TRUE(archive.Open(path));
}

TEST_F(ProteggiArchivioTest, AnArchiveThatAnotherProgramHasOpenIsLeftAlone)
{
    creaArchivioNuovo(path);
    {
        const OtherProgram other(path, {}, "INSERT INTO Clienti (Nominativo) VALUES ('Tesmo')");
        EXPECT_EQ(refusalWith("segreta"), QString("L'archivio \"%1\" è aperto da un altro programma").arg(path));
    }
    Connection archive;
    ASSERT_TRUE(archive.Open(path));
    EXPECT_EQ(rowsOf(archive, "SELECT Nominativo FROM Clienti"), QStringList("Tesmo"));
    archive.Close();
    EXPECT_EQ(files(), QStringList("famiglia.db"));
}

TEST_F(ProteggiArchivioTest, WhatAKilledProgramLeftInTheJournalGoesAlong)
{
    creaArchivioNuovo(path);
    {
        const OtherProgram killed(path, {}, "INSERT INTO Clienti (Nominativo) VALUES ('Tesmo')");
    }
    ASSERT_TRUE(hasJournal(path));
    EXPECT_EQ(refusalWith("segreta"), "(protetto)");
    Connection archive;
    ASSERT_TRUE(archive.Open(path, "segreta"));
    EXPECT_EQ(rowsOf(archive, "SELECT Nominativo FROM Clienti"), QStringList("Tesmo"));
    archive.Close();
    EXPECT_EQ(files(), QStringList("famiglia.db"));
}

TEST_F(ProteggiArchivioTest, AMissingFileAndADamagedOneAreRefused)
{
    EXPECT_EQ(refusalWith("segreta"), QString("Il file \"%1\" non c'è").arg(path));
    const QByteArray noise = QByteArray("rumore ").repeated(500);
    folder.write("famiglia.db", noise);
    EXPECT_THAT(refusalWith("segreta").toStdString(), ::testing::HasSubstr("non si apre"));
    EXPECT_EQ(folder.read("famiglia.db"), noise);
    EXPECT_EQ(files(), QStringList("famiglia.db"));
}

TEST_F(ProteggiArchivioTest, ALinkStaysALinkToTheArchive)
{
    creaArchivioNuovo(path);
    const QString link = folder.path("collegamento.db");
    ASSERT_TRUE(QFile::link(path, link));
    proteggiArchivio(link, "segreta");
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    Connection archive;
    EXPECT_TRUE(archive.Open(path, "segreta"));
}

} // namespace
