// The tool from its command line.
#include "core/CopieDiSicurezza.h"
#include "CreaArchivio.h"
#include "platform/store/Connection.h"
#include "support/DamagedIndex.h"
#include "support/OtherProgram.h"
#include "support/Printers.h"
#include "support/TemporaryFolder.h"
#include "support/TestArchive.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>

#include <csignal>

namespace {

struct Result
{
    int status = -1;
    QString out;
    QString err;
};

Result archivio(const QStringList &arguments, const QByteArray &input = {})
{
    QProcess process;
    process.start(QStringLiteral(CIBRA_ARCHIVIO), arguments);
    process.write(input);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QString sample(const char *name)
{
    return QStringLiteral(CIBRA_SOURCE_DIR "/tests/archive/mdb/") + name;
}

class CibraArchivioTest : public ::testing::Test
{
protected:
    TemporaryFolder folder;
    QString path = folder.path("famiglia.db");

    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }
    // To an import that has begun its unfinished file; the tool has ended then.
    void signalWhileWriting(QProcess &tool, int number) const
    {
        tool.write("segreta\n");
        tool.closeWriteChannel();
        ASSERT_TRUE(tool.waitForStarted());
        while (files().isEmpty() && !tool.waitForFinished(1))
            ;
        ASSERT_EQ(tool.state(), QProcess::Running) << tool.readAllStandardError().toStdString();
        ASSERT_EQ(kill(pid_t(tool.processId()), number), 0);
        ASSERT_TRUE(tool.waitForFinished(60000));
    }
};

TEST_F(CibraArchivioTest, HelpNamesEveryCommand)
{
    const Result help = archivio({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.err, "");
    for (const char *command :
         {"nuovo FILE", "esempio FILE", "sistema FILE", "prepara CARTELLA", "importa VECCHIO.mdb NUOVO",
          "verifica FILE", "verifica --ripara FILE", "proteggi FILE", "sproteggi FILE", "ripristina COPIA ARCHIVIO",
          "manutenzione COMANDO FILE", "    esporta ", "    importa ", "    abbina ", "    gruppi ", "    sostituti ",
          "    rapporto ", "    calorie "})
        EXPECT_TRUE(help.out.contains(command)) << command;
}

TEST_F(CibraArchivioTest, AWrongCommandLineIsStatusTwoAndShowsTheHelp)
{
    const QString help = archivio({"--help"}).out;
    for (const QStringList &arguments :
         {QStringList(), QStringList("nuovo"), QStringList({"nuovo", ""}), QStringList({"nuovo", path, path}),
          QStringList({"cancella", path}), QStringList({"manutenzione", "cancella", path}),
          QStringList({"importa", path}), QStringList({"importa", path, ""}),
          QStringList({"verifica", "--mangia", path})}) {
        const Result wrong = archivio(arguments);
        EXPECT_EQ(wrong.status, 2) << arguments.join(' ').toStdString();
        EXPECT_EQ(wrong.err, help);
        EXPECT_EQ(wrong.out, "");
    }
    EXPECT_EQ(files(), QStringList());
}

TEST_F(CibraArchivioTest, WhatItMakesPassesItsOwnCheck)
{
    for (const char *command : {"nuovo", "esempio", "sistema"}) {
        const QString made = folder.path(command);
        EXPECT_EQ(archivio({command, made}).status, 0) << command;
        const Result check = archivio({"verifica", made});
        EXPECT_EQ(check.status, 0) << command;
        EXPECT_EQ(check.out, QString("L'archivio \"%1\" è in ordine.\n").arg(made));
    }
    EXPECT_EQ(files(), QStringList({"esempio", "nuovo", "sistema"}));
}

TEST_F(CibraArchivioTest, AFileThatIsThereIsNeverOverwritten)
{
    folder.write("famiglia.db", "di qualcuno");
    for (const char *command : {"nuovo", "esempio", "sistema"}) {
        const Result refused = archivio({command, path});
        EXPECT_EQ(refused.status, 1);
        EXPECT_EQ(refused.err, QString("cibra-archivio: Il file \"%1\" esiste già\n").arg(path));
    }
    EXPECT_EQ(folder.read("famiglia.db"), "di qualcuno");
    EXPECT_EQ(files(), QStringList("famiglia.db"));
}

TEST_F(CibraArchivioTest, AFolderThatIsNotThereIsToldAndNothingIsLeft)
{
    const Result refused = archivio({"esempio", folder.path("manca/famiglia.db")});
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err,
              QString("cibra-archivio: La cartella \"%1\" non c'è o non si può scrivere\n").arg(folder.path("manca")));
    EXPECT_EQ(files(), QStringList());
}

TEST_F(CibraArchivioTest, FaultsAreALineEachAndStatusOne)
{
    creaArchivioNuovo(path);
    {
        Connection archive;
        ASSERT_TRUE(archive.Open(path));
        archive.Execute("DROP TABLE Menu");
        archive.Execute("DROP TABLE alimenti2");
    }
    const Result check = archivio({"verifica", path});
    EXPECT_EQ(check.status, 1);
    EXPECT_EQ(check.out, "Manca la tabella \"Menu\"\nManca la tabella \"alimenti2\"\n");
}

TEST_F(CibraArchivioTest, AProtectedArchiveIsCheckedWithThePasswordFromTheInput)
{
    creaArchivioNuovo(path);
    const Result protect = archivio({"proteggi", path}, "perché no?\nperché no?\n");
    EXPECT_EQ(protect.status, 0) << protect.err.toStdString();
    EXPECT_EQ(protect.out, QString("L'archivio \"%1\" è protetto.\n").arg(path));

    EXPECT_EQ(archivio({"verifica", path}, "perché no?\n").status, 0);
    for (const char *input : {"", "\n", "altra\n"}) {
        const Result refused = archivio({"verifica", path}, input);
        EXPECT_EQ(refused.status, 1);
        EXPECT_EQ(refused.out, "L'archivio è protetto e la password manca o non è quella giusta\n");
    }
    Connection archive;
    EXPECT_TRUE(archive.Open(path, "perché no?"));
}

TEST_F(CibraArchivioTest, AnOldFileIsImportedWithAReport)
{
    const Result done = archivio({"importa", sample("netserver.mdb"), path});
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.err, "");
    EXPECT_EQ(done.out, "Formato Jet 4, tabelle 1\nMessaggi: righe lette 3, scritte 3\n");
    EXPECT_EQ(archivio({"verifica", path}).status, 0);
}

TEST_F(CibraArchivioTest, AnImportThatFailsLeavesNothing)
{
    const Result refused = archivio({"importa", sample("rotto.mdb"), path});
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.out, "");
    EXPECT_EQ(refused.err, QString("cibra-archivio: Il file \"%1\" è tronco: ne manca la fine. Niente è stato "
                                   "importato\n")
                               .arg(sample("rotto.mdb")));
    EXPECT_EQ(files(), QStringList());
}

TEST_F(CibraArchivioTest, AProtectedOldFileIsImportedWithThePasswordFromTheInput)
{
    const QString old = sample("password.mdb");
    for (const char *input : {"", "\n"}) {
        const Result refused = archivio({"importa", old, path}, input);
        EXPECT_EQ(refused.status, 3);
        EXPECT_EQ(refused.err, QString("cibra-archivio: Il file \"%1\" è protetto da una password\n").arg(old));
    }
    const Result wrong = archivio({"importa", old, path}, "altra\n");
    EXPECT_EQ(wrong.status, 3);
    EXPECT_EQ(wrong.err, QString("cibra-archivio: La password del file \"%1\" non è quella giusta\n").arg(old));
    EXPECT_EQ(files(), QStringList());

    const Result done = archivio({"importa", old, path}, "segreta\n");
    EXPECT_EQ(done.status, 0) << done.err.toStdString();
    EXPECT_TRUE(done.out.endsWith("\nL'archivio nuovo si apre con la stessa password del vecchio\n"));
    EXPECT_EQ(archivio({"verifica", path}, "segreta\n").status, 0);
}

TEST_F(CibraArchivioTest, ARepairOfASoundArchiveSaysThatItIsInOrder)
{
    creaArchivioNuovo(path);
    const QByteArray before = folder.read("famiglia.db");
    const Result done = archivio({"verifica", "--ripara", path});
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.out, QString("L'archivio \"%1\" è in ordine.\n").arg(path));
    EXPECT_TRUE(folder.read("famiglia.db") == before);
}

TEST_F(CibraArchivioTest, TwoPasswordsThatDifferProtectNothing)
{
    creaArchivioNuovo(path);
    const QByteArray before = folder.read("famiglia.db");
    const Result refused = archivio({"proteggi", path}, "una\naltra\n");
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err, "cibra-archivio: Le due password sono diverse\n");
    EXPECT_EQ(archivio({"proteggi", path}, "una\n").status, 1);
    EXPECT_EQ(folder.read("famiglia.db"), before);
}

TEST_F(CibraArchivioTest, ThePasswordIsTakenOffWithThePasswordFromTheInput)
{
    creaArchivioNuovo(path);
    ASSERT_EQ(archivio({"proteggi", path}, "segreta\nsegreta\n").status, 0);
    for (const char *input : {"", "\n", "altra\n"}) {
        const Result refused = archivio({"sproteggi", path}, input);
        EXPECT_EQ(refused.status, 1);
        EXPECT_EQ(refused.err, QByteArray(input).trimmed().isEmpty()
                                   ? "cibra-archivio: L'archivio è protetto da una password\n"
                                   : "cibra-archivio: Password non valida\n");
    }
    const Result done = archivio({"sproteggi", path}, "segreta\n");
    EXPECT_EQ(done.status, 0) << done.err.toStdString();
    EXPECT_EQ(done.out, QString("L'archivio \"%1\" non ha più una password.\n").arg(path));
    EXPECT_EQ(archivio({"verifica", path}).status, 0);
}

TEST_F(CibraArchivioTest, CopiesThatAnybodyCanReadAreNamedWhenTheArchiveIsProtected)
{
    creaArchivioNuovo(path);
    {
        Connection archive;
        ASSERT_TRUE(archive.Open(path));
        FaiCopia(archive, QDateTime(QDate(2025, 3, 2), QTime(10, 20)));
        FaiCopia(archive, QDateTime(QDate(2025, 3, 3), QTime(10, 20)));
    }
    const Result done = archivio({"proteggi", path}, "segreta\nsegreta\n");
    EXPECT_EQ(done.out,
              QString("L'archivio \"%1\" è protetto.\nAttenzione: le copie di sicurezza fatte prima non hanno "
                      "password e si leggono ancora: 2 in \"%2/Copie\".\n")
                  .arg(path, folder.path()));
}

TEST_F(CibraArchivioTest, AnArchiveInUseIsStatusFour)
{
    creaArchivioNuovo(path);
    const OtherProgram other(path);
    const QStringList checks[] = {{"verifica", path}, {"verifica", "--ripara", path}};
    for (const QStringList &command : checks) {
        const Result refused = archivio(command);
        EXPECT_EQ(refused.status, 4);
        EXPECT_EQ(refused.out,
                  QString("L'archivio \"%1\" è in uso da un altro programma: riprovare quando è chiuso\n").arg(path));
    }
    EXPECT_TRUE(archivio({"--help"}).out.endsWith("\n4 l'archivio da verificare è in uso da un altro programma.\n"));
}

TEST_F(CibraArchivioTest, ARepairSaysWhereTheDamagedArchiveIs)
{
    creaArchivioEsempio(path, QDate(2025, 3, 1));
    damageIndex(path, "MenuGiorno");
    EXPECT_TRUE(archivio({"verifica", path})
                    .out.endsWith("\nSono rovinati solo gli indici: verifica --ripara li "
                                  "rifà\n"));
    const Result done = archivio({"verifica", "--ripara", path});
    EXPECT_EQ(done.status, 0);
    const QStringList kept = TenutiComErano(path);
    ASSERT_EQ(kept.size(), 1);
    EXPECT_EQ(done.out, QString("Gli indici sono rifatti. Quello di prima è in \"%1\".\nL'archivio \"%2\" è in "
                                "ordine.\n")
                            .arg(kept.constFirst(), path));
}

TEST_F(CibraArchivioTest, APlainCopyInThePlaceOfAProtectedArchiveIsWarnedOf)
{
    creaArchivioNuovo(path);
    const QString copy = folder.path("copia.db");
    ASSERT_TRUE(QFile::copy(path, copy));
    ASSERT_EQ(archivio({"proteggi", path}, "segreta\nsegreta\n").status, 0);
    const Result done = archivio({"ripristina", copy, path});
    EXPECT_EQ(done.status, 0) << done.err.toStdString();
    EXPECT_TRUE(done.out.endsWith("\nAttenzione: l'archivio aveva una password, la copia no: adesso chiunque lo può "
                                  "leggere. proteggi gliene dà una.\n"))
        << done.out.toStdString();
}

TEST_F(CibraArchivioTest, ACopyIsPutBackWithThePasswordFromTheInput)
{
    creaArchivioNuovo(path);
    const QString copy = folder.path("copia.db");
    ASSERT_TRUE(QFile::copy(path, copy));
    ASSERT_EQ(archivio({"proteggi", copy}, "segreta\nsegreta\n").status, 0);
    for (const char *input : {"", "\n", "altra\n"}) {
        const Result refused = archivio({"ripristina", copy, path}, input);
        EXPECT_EQ(refused.status, 1);
        EXPECT_EQ(refused.err, QByteArray(input).trimmed().isEmpty()
                                   ? "cibra-archivio: L'archivio è protetto da una password\n"
                                   : "cibra-archivio: Password non valida\n");
    }
    const Result done = archivio({"ripristina", copy, path}, "segreta\n");
    EXPECT_EQ(done.status, 0) << done.err.toStdString();
    const QStringList kept = CopieDi(path);
    ASSERT_EQ(kept.size(), 1);
    EXPECT_EQ(done.out, QString("L'archivio \"%1\" è di nuovo quello della copia \"%2\".\nQuello di prima è in "
                                "\"%3\".\n")
                            .arg(path, copy, kept.constFirst()));
    Connection archive;
    EXPECT_TRUE(archive.Open(path, "segreta"));
}

// The keys of a password take their time, in which the unfinished file lies beside its place.
TEST_F(CibraArchivioTest, AnImportThatIsInterruptedLeavesNothingBehind)
{
    for (int number : {SIGINT, SIGTERM, SIGHUP}) {
        QProcess tool;
        tool.start(QStringLiteral(CIBRA_ARCHIVIO), {"importa", sample("password97.mdb"), path});
        ASSERT_NO_FATAL_FAILURE(signalWhileWriting(tool, number));
        EXPECT_EQ(tool.exitStatus(), QProcess::CrashExit) << number;
        EXPECT_EQ(files(), QStringList()) << number;
    }
}

TEST_F(CibraArchivioTest, ASignalThatIsIgnoredStopsNoImport)
{
    QProcess tool;
    tool.start("/bin/sh", {"-c", "trap '' HUP; exec \"$0\" importa \"$1\" \"$2\"", CIBRA_ARCHIVIO,
                           sample("password97.mdb"), path});
    ASSERT_NO_FATAL_FAILURE(signalWhileWriting(tool, SIGHUP));
    EXPECT_EQ(tool.exitCode(), 0);
    EXPECT_EQ(files(), QStringList("famiglia.db"));
}

// A file may grow to 50 kB here, as where the disk has no more room.
TEST_F(CibraArchivioTest, AnImportThatFindsNoRoomSaysWhereAndThatNothingWasImported)
{
    QProcess tool;
    tool.start("/bin/sh", {"-c", "trap '' XFSZ; ulimit -f 100; exec \"$0\" importa \"$1\" \"$2\"", CIBRA_ARCHIVIO,
                           sample("famiglia2000.mdb"), path});
    ASSERT_TRUE(tool.waitForFinished(60000));
    EXPECT_EQ(tool.exitCode(), 1);
    EXPECT_EQ(QString::fromUtf8(tool.readAllStandardError()),
              "cibra-archivio: L'archivio nuovo non si può scrivere nella cartella \"" + folder.path() +
                  "\": Errore di lettura o scrittura del disco (disk I/O error). Niente è stato importato\n");
    EXPECT_EQ(files(), QStringList());
}

} // namespace
