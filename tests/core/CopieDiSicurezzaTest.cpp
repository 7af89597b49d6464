// The copies that the program keeps of its archive.
#include "core/CopieDiSicurezza.h"

#include "platform/store/ArchiveFile.h"
#include "support/SmallDisk.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>

#include <unistd.h>

namespace {

class CopieDiSicurezzaTest : public ::testing::Test
{
protected:
    TestWorld world;
    Connection &dati = world.openArchive();
    QString archivio = world.cartella.path("Cibra.Mdb");

    QStringList copies() const { return world.cartella.entries("Copie"); }
    // One more client, so that the archive is another one.
    void change(const QString &name) { dati.Execute("INSERT INTO Clienti (Nominativo) VALUES ('" + name + "')"); }
    void copyAt(const QTime &time)
    {
        world.orologio.when.setTime(time);
        CopiaDiSicurezza(world.modulo);
    }
    // The program ends and starts again.
    void restart(const QString &password = {})
    {
        dati.Close();
        ASSERT_TRUE(dati.Open(archivio, password));
    }
    QStringList clientsOf(const QString &copy, const QString &password = {}) const
    {
        Connection opened;
        EXPECT_EQ(opened.Open(copy, password).words, QString());
        return rowsOf(opened, "SELECT Nominativo FROM Clienti");
    }
};

TEST_F(CopieDiSicurezzaTest, ACopyHoldsTheRowsOfTheMomentAlsoThoseStillInTheJournal)
{
    change("Ondira");
    CopiaDiSicurezza(world.modulo);
    change("Tesmo");
    ASSERT_EQ(copies(), QStringList("2025-03-02_10-20-30-000_Cibra.Mdb"));
    const QString copy = CopieDi(archivio).constFirst();
    EXPECT_EQ(integrityCheck(copy), QStringList());
    EXPECT_EQ(clientsOf(copy), QStringList("Ondira"));
    EXPECT_EQ(copies(), QStringList("2025-03-02_10-20-30-000_Cibra.Mdb"));
    EXPECT_EQ(rowsOf(dati, "SELECT Nominativo FROM Clienti"), QStringList({"Ondira", "Tesmo"}));
}

TEST_F(CopieDiSicurezzaTest, AnArchiveThatDidNotChangeIsNotCopiedAgain)
{
    change("Ondira");
    restart();
    copyAt(QTime(11, 0));
    ASSERT_EQ(copies().size(), 1);
    for (int hour = 12; hour < 15; ++hour) {
        restart();
        copyAt(QTime(hour, 0));
    }
    EXPECT_EQ(copies(), QStringList("2025-03-02_11-00-00-000_Cibra.Mdb"));

    change("Tesmo");
    copyAt(QTime(15, 0));
    EXPECT_EQ(copies(), QStringList({"2025-03-02_11-00-00-000_Cibra.Mdb", "2025-03-02_15-00-00-000_Cibra.Mdb"}));
}

TEST_F(CopieDiSicurezzaTest, TheLastTenStay)
{
    for (int minute = 0; minute < 13; ++minute) {
        change(QString::number(minute));
        copyAt(QTime(11, minute));
    }
    const QStringList kept = CopieDi(archivio);
    ASSERT_EQ(kept.size(), 10);
    EXPECT_EQ(QFileInfo(kept.first()).fileName(), "2025-03-02_11-03-00-000_Cibra.Mdb");
    EXPECT_EQ(clientsOf(kept.first()).size(), 4);
    EXPECT_EQ(clientsOf(kept.last()).size(), 13);
}

TEST_F(CopieDiSicurezzaTest, CopiesOfOneMomentFollowEachOtherAlsoPastTheTenth)
{
    for (int i = 0; i < 12; ++i) {
        change(QString::number(i));
        CopiaDiSicurezza(world.modulo);
    }
    const QStringList kept = CopieDi(archivio);
    ASSERT_EQ(kept.size(), 10);
    for (qsizetype i = 0; i < kept.size(); ++i)
        EXPECT_EQ(clientsOf(kept[i]).size(), i + 3) << kept[i].toStdString();
    EXPECT_EQ(QFileInfo(kept.last()).fileName(), "2025-03-02_10-20-30-011_Cibra.Mdb");
}

TEST_F(CopieDiSicurezzaTest, AClockSetBackLosesNotTheCopyJustMade)
{
    for (int minute = 0; minute < 10; ++minute) {
        change(QString::number(minute));
        copyAt(QTime(11, minute));
    }
    change("prima di tutte");
    copyAt(QTime(9, 0));
    ASSERT_EQ(CopieDi(archivio).size(), 10);
    EXPECT_EQ(copies().first(), "2025-03-02_09-00-00-000_Cibra.Mdb");
    EXPECT_EQ(copies().at(1), "2025-03-02_11-01-00-000_Cibra.Mdb");
}

TEST_F(CopieDiSicurezzaTest, TheMarkerSwitchesThemOff)
{
    world.cartella.write("copie.NO", "");
    change("Ondira");
    CopiaDiSicurezza(world.modulo);
    EXPECT_FALSE(world.cartella.has("Copie"));
    EXPECT_EQ(world.schermate.errors, QStringList());

    world.cartella.remove("copie.NO");
    CopiaDiSicurezza(world.modulo);
    EXPECT_EQ(copies().size(), 1);
}

TEST_F(CopieDiSicurezzaTest, WithoutAnOpenArchiveThereIsNothingToCopy)
{
    dati.Close();
    CopiaDiSicurezza(world.modulo);
    world.modulo.ConnessioneDati.reset();
    CopiaDiSicurezza(world.modulo);
    EXPECT_FALSE(world.cartella.has("Copie"));
    EXPECT_EQ(world.schermate.errors, QStringList());
}

TEST_F(CopieDiSicurezzaTest, TheCopyOfAProtectedArchiveOpensWithItsPasswordAlone)
{
    dati.Close();
    QFile::remove(archivio);
    makeProtectedTestArchive(archivio, "perché no?");
    ASSERT_TRUE(dati.Open(archivio, "perché no?"));
    change("Ondira");
    CopiaDiSicurezza(world.modulo);
    ASSERT_EQ(copies().size(), 1);
    const QString copy = CopieDi(archivio).constFirst();
    Connection other;
    EXPECT_EQ(other.Open(copy).outcome, OpenOutcome::PasswordRichiesta);
    EXPECT_EQ(other.Open(copy, "altra").outcome, OpenOutcome::PasswordRichiesta);
    EXPECT_EQ(clientsOf(copy, "perché no?"), QStringList("Ondira"));
    EXPECT_FALSE(world.cartella.read("Copie\\" + copies().constFirst()).contains("Ondira"));

    restart("perché no?");
    CopiaDiSicurezza(world.modulo);
    restart("perché no?");
    CopiaDiSicurezza(world.modulo);
    EXPECT_EQ(copies().size(), 2) << "the journal went into the archive once, and then nothing changed";
}

TEST_F(CopieDiSicurezzaTest, ACopyHasTheRightsOfItsArchive)
{
    ASSERT_TRUE(QFile::setPermissions(archivio, QFile::ReadOwner | QFile::WriteOwner));
    change("Ondira");
    CopiaDiSicurezza(world.modulo);
    EXPECT_EQ(QFile::permissions(CopieDi(archivio).constFirst()), QFile::permissions(archivio));
    EXPECT_EQ(QFile::permissions(archivio) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
}

TEST_F(CopieDiSicurezzaTest, OtherFilesOfTheFolderAndCopiesOfOtherArchivesStay)
{
    const QStringList others{"2020-01-01_00-00-00-000_Altro.Mdb", "2020-01-01_00-00-00-000_Cibra.Mdb.prima",
                             "2020-01-01_Cibra.Mdb", "la mia copia.Mdb"};
    for (const QString &name : others)
        world.cartella.write("copie\\" + name, "di qualcuno");
    for (int minute = 0; minute < 12; ++minute) {
        change(QString::number(minute));
        copyAt(QTime(11, minute));
    }
    EXPECT_EQ(CopieDi(archivio).size(), 10);
    EXPECT_FALSE(QFileInfo::exists(world.cartella.path() + "/Copie")) << "the folder is there in another spelling";
    for (const QString &name : others)
        EXPECT_EQ(world.cartella.read("copie\\" + name), "di qualcuno");
}

TEST_F(CopieDiSicurezzaTest, ANameOfAnArchiveThatOtherSystemsRefuseIsMended)
{
    const QString odd = world.cartella.path() + "/casa: a?b .";
    makeTestArchive(odd);
    ASSERT_TRUE(dati.Open(odd));
    change("Ondira");
    CopiaDiSicurezza(world.modulo);
    EXPECT_EQ(copies(), QStringList("2025-03-02_10-20-30-000_casa_ a_b _"));
    EXPECT_EQ(CopieDi(odd).size(), 1);
}

TEST_F(CopieDiSicurezzaTest, WhatAKilledProgramLeftHalfCopiedGoesAway)
{
    world.cartella.write("Copie\\Cibra.Mdb.parziale", "mezza copia");
    world.cartella.write("Copie\\Cibra.Mdb.parziale-wal", "mezza");
    world.cartella.write("Copie\\Cibra.Mdb.lock", "999999999\ncibra\n\n");
    change("Ondira");
    CopiaDiSicurezza(world.modulo);
    EXPECT_EQ(world.schermate.errors, QStringList());
    EXPECT_EQ(copies(), QStringList("2025-03-02_10-20-30-000_Cibra.Mdb"));
}

TEST_F(CopieDiSicurezzaTest, WhileAnotherProgramCopiesNothingIsDoneAndThatIsSaidOnce)
{
    world.cartella.makeFolder("Copie");
    QLockFile other(world.cartella.path("Copie\\Cibra.Mdb.lock"));
    ASSERT_TRUE(other.tryLock(0));
    change("Ondira");
    CopiaDiSicurezza(world.modulo);
    CopiaDiSicurezza(world.modulo);
    EXPECT_EQ(CopieDi(archivio), QStringList());
    EXPECT_EQ(world.schermate.errors,
              QStringList("Procedura ModNetServer - Errore:75 | La copia di sicurezza dell'archivio non è stata fatta, "
                          "quelle di prima restano: un altro programma ne sta facendo una"));
}

TEST_F(CopieDiSicurezzaTest, TheLockOfAnotherMachineHoldsForTenMinutes)
{
    const auto lockMade = [this](int secondsAgo) {
        world.cartella.write("Copie\\Cibra.Mdb.lock", "4242\ncibra\nun-altro-computer\nid\nboot\n");
        QFile lock(world.cartella.path("Copie\\Cibra.Mdb.lock"));
        ASSERT_TRUE(lock.open(QIODevice::ReadWrite));
        ASSERT_TRUE(
            lock.setFileTime(QDateTime::currentDateTime().addSecs(-secondsAgo), QFileDevice::FileModificationTime));
    };
    change("Ondira");
    lockMade(300);
    CopiaDiSicurezza(world.modulo);
    EXPECT_EQ(CopieDi(archivio), QStringList());
    lockMade(660);
    CopiaDiSicurezza(world.modulo);
    EXPECT_EQ(copies(), QStringList("2025-03-02_10-20-30-000_Cibra.Mdb"));
}

TEST_F(CopieDiSicurezzaTest, CopiesOfAWrongClockGoBeforeThoseMadeAfterIt)
{
    world.orologio.when = QDateTime(QDate(2099, 1, 1), QTime(8, 0));
    for (int minute = 0; minute < 10; ++minute) {
        change(QString::number(minute));
        copyAt(QTime(11, minute));
    }
    world.orologio.when = QDateTime(QDate(2025, 3, 2), QTime(8, 0));
    for (int minute = 0; minute < 5; ++minute) {
        change("giusto " + QString::number(minute));
        copyAt(QTime(9, minute));
    }
    QStringList expected;
    for (int minute = 0; minute < 5; ++minute)
        expected += QString("2025-03-02_09-0%1-00-000_Cibra.Mdb").arg(minute);
    for (int minute = 5; minute < 10; ++minute)
        expected += QString("2099-01-01_11-0%1-00-000_Cibra.Mdb").arg(minute);
    EXPECT_EQ(copies(), expected);
}

TEST_F(CopieDiSicurezzaTest, AnArchiveBehindALinkIsCopiedBesideItselfWithWhatItsJournalHolds)
{
    change("Ondira");
    CopiaDiSicurezza(world.modulo);
    dati.Close();
    const QString link = world.cartella.path("altrove/collegamento.Mdb");
    world.cartella.makeFolder("altrove");
    ASSERT_TRUE(QFile::link(archivio, link));
    ASSERT_TRUE(dati.Open(link));
    // As large and as old as the copy: what is new is in the journal.
    const QFileInfo copied(CopieDi(archivio).constFirst());
    change("Tesmo");
    {
        QFile file(CopieDi(archivio).constFirst());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(QFileInfo(archivio).lastModified(), QFileDevice::FileModificationTime));
    }
    ASSERT_EQ(copied.size(), QFileInfo(archivio).size());
    copyAt(QTime(11, 0));
    EXPECT_EQ(copies(), QStringList({"2025-03-02_10-20-30-000_Cibra.Mdb", "2025-03-02_11-00-00-000_Cibra.Mdb"}));
    EXPECT_EQ(CopieDi(link), CopieDi(archivio));
    EXPECT_EQ(clientsOf(CopieDi(link).constLast()), QStringList({"Ondira", "Tesmo"}));
    EXPECT_FALSE(world.cartella.has("altrove/Copie"));
}

TEST_F(CopieDiSicurezzaTest, TheLastRoomOfTheDiskIsNotTakenForACopy)
{
    world.cartella.makeFolder("Copie");
    const SmallDisk disk(world.cartella.path("Copie"), 65536);
    if (!disk.isThere())
        GTEST_SKIP() << "no small disk can be made here";
    change("Ondira");
    CopiaDiSicurezza(world.modulo);
    EXPECT_EQ(world.schermate.errors,
              QStringList("Procedura ModNetServer - Errore:75 | La copia di sicurezza dell'archivio non è stata fatta, "
                          "quelle di prima restano: sul disco non c'è spazio"));
    EXPECT_EQ(copies(), QStringList());
}

TEST_F(CopieDiSicurezzaTest, AFolderThatMayNotBeWrittenIsSaidAndTheCopiesInItStay)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only the superuser can be two people";
    change("Ondira");
    CopiaDiSicurezza(world.modulo);
    change("Tesmo");
    const QStringList before = copies();
    const QString folder = world.cartella.path("Copie");
    ASSERT_TRUE(QFile::setPermissions(folder, QFile::Permissions(0x5555)));
    ASSERT_TRUE(QFile::setPermissions(world.cartella.path(), QFile::Permissions(0x7777)));
    ASSERT_EQ(seteuid(65534), 0);
    copyAt(QTime(11, 0));
    ASSERT_EQ(seteuid(0), 0);
    ASSERT_TRUE(QFile::setPermissions(folder, QFile::Permissions(0x7755)));
    EXPECT_EQ(copies(), before);
    EXPECT_EQ(world.schermate.errors,
              QStringList("Procedura ModNetServer - Errore:75 | La copia di sicurezza dell'archivio non è stata fatta, "
                          "quelle di prima restano: Non si può scrivere il file o la cartella: " +
                          folder));
}

TEST_F(CopieDiSicurezzaTest, AFailureIsSaidOnceAndTheProgramGoesOn)
{
    world.cartella.write("Copie", "un file dove va la cartella");
    change("Ondira");
    CopiaDiSicurezza(world.modulo);
    CopiaDiSicurezza(world.modulo);
    const QString words = "La copia di sicurezza dell'archivio non è stata fatta, quelle di prima restano: Non si "
                          "può scrivere il file o la cartella: " +
                          world.cartella.path("Copie");
    EXPECT_EQ(world.schermate.errors, QStringList("Procedura ModNetServer - Errore:75 | " + words));
    const QString log = QString::fromUtf8(world.cartella.read("Errori\\ErrModNetServer.txt"));
    EXPECT_EQ(log.count("Procedura : CopiaDiSicurezza "), 1);
    EXPECT_EQ(world.cartella.read("Copie"), "un file dove va la cartella");
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
}

TEST_F(CopieDiSicurezzaTest, AnArchiveThatAnotherProgramHasLockedIsNotWaitedFor)
{
    dati.Execute("PRAGMA journal_mode=DELETE");
    Connection other;
    ASSERT_TRUE(other.Open(archivio));
    other.Execute("PRAGMA journal_mode=DELETE");
    other.Execute("BEGIN EXCLUSIVE");
    CopiaDiSicurezza(world.modulo);
    other.Close();
    ASSERT_EQ(world.schermate.errors.size(), 1);
    EXPECT_EQ(world.schermate.errors.constFirst(),
              "Procedura ModNetServer - Errore:-2147217900 | La copia di sicurezza dell'archivio non è stata fatta, "
              "quelle di prima restano: L'archivio è in uso da un altro programma: riprovare tra poco (database is "
              "locked)");
    EXPECT_EQ(copies(), QStringList());
}

TEST_F(CopieDiSicurezzaTest, ADamagedArchivePushesNoSoundCopyOut)
{
    for (int i = 0; i < 400; ++i)
        change("Cliente numero " + QString::number(i));
    CopiaDiSicurezza(world.modulo);
    const QStringList before = copies();
    dati.Close();
    QFile file(archivio);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const QByteArray bytes = file.readAll();
    const qsizetype client = bytes.lastIndexOf("Cliente numero 200");
    ASSERT_GT(client, 0);
    ASSERT_TRUE(file.seek(client / 4096 * 4096));
    file.write(QByteArray(4096, '\0'));
    file.close();

    ASSERT_TRUE(dati.Open(archivio)) << "the damage lies where the opening does not look";
    CopiaDiSicurezza(world.modulo);
    EXPECT_EQ(copies(), before);
    ASSERT_EQ(world.schermate.errors.size(), 1);
    EXPECT_TRUE(world.schermate.errors.constFirst().contains("L'archivio è danneggiato (")) << "what is wrong is said";
}

} // namespace
