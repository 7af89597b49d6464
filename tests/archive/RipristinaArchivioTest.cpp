#include "RipristinaArchivio.h"

#include "core/CopieDiSicurezza.h"
#include "CreaArchivio.h"
#include "platform/Failure.h"
#include "platform/store/ArchiveFile.h"
#include "ProteggiArchivio.h"
#include "support/DamagedIndex.h"
#include "support/OtherProgram.h"
#include "support/Printers.h"
#include "support/SmallDisk.h"
#include "support/TemporaryFolder.h"
#include "support/TestArchive.h"
#include "VerificaArchivio.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

namespace {

const QDateTime kNow(QDate(2025, 3, 2), QTime(10, 20, 30));

class RipristinaArchivioTest : public ::testing::Test
{
protected:
    TemporaryFolder folder;
    QString path = folder.path("famiglia.db");
    QString copia = folder.path("copia.db");

    void SetUp() override
    {
        make(path, "di adesso");
        make(copia, "di allora");
    }
    static void make(const QString &file, const QString &name, const QString &password = {})
    {
        QFile::remove(file);
        creaArchivioNuovo(file);
        {
            Connection archive;
            ASSERT_TRUE(archive.Open(file));
            archive.Execute("INSERT INTO Clienti (Nominativo) VALUES ('" + name + "')");
        }
        if (!password.isEmpty())
            proteggiArchivio(file, password);
    }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }
    static QStringList clientsOf(const QString &file, const QString &password = {})
    {
        Connection archive;
        EXPECT_EQ(archive.Open(file, password).words, QString());
        return rowsOf(archive, "SELECT Nominativo FROM Clienti");
    }
    QString refusalWith(const QString &password = {}) const
    {
        try {
            ripristinaArchivio(copia, path, password, kNow);
        } catch (const Failure &failure) {
            return failure.words();
        }
        return "(ripristinato)";
    }
    // The archive is the old one, and nothing half-made lies about.
    void expectUntouched()
    {
        EXPECT_EQ(clientsOf(path), QStringList("di adesso"));
        EXPECT_EQ(files(), QStringList({"copia.db", "famiglia.db"}));
    }
};

TEST_F(RipristinaArchivioTest, TheCopyTakesThePlaceOfTheArchiveWhichIsKeptAsACopyFirst)
{
    const QString kept = ripristinaArchivio(copia, path, {}, kNow).tenuto;
    EXPECT_EQ(clientsOf(path), QStringList("di allora"));
    EXPECT_EQ(verificaArchivio(path).guasti, QStringList());
    EXPECT_EQ(kept, folder.path() + "/Copie/2025-03-02_10-20-30-000_famiglia.db");
    EXPECT_EQ(CopieDi(path), QStringList(kept));
    EXPECT_EQ(clientsOf(kept), QStringList("di adesso"));
    EXPECT_EQ(clientsOf(copia), QStringList("di allora"));
    EXPECT_EQ(files(), QStringList({"copia.db", "famiglia.db"}));
}

TEST_F(RipristinaArchivioTest, AlsoTheOldestOfTenCopiesIsPutBackAndStays)
{
    Connection archive;
    ASSERT_TRUE(archive.Open(path));
    for (int day = 10; day > 0; --day)
        FaiCopia(archive, kNow.addDays(-day));
    archive.Execute("INSERT INTO Clienti (Nominativo) VALUES ('dopo')");
    archive.Close();
    const QString oldest = CopieDi(path).constFirst();
    ripristinaArchivio(oldest, path, {}, kNow);
    EXPECT_EQ(clientsOf(path), QStringList("di adesso"));
    EXPECT_EQ(CopieDi(path).size(), 11);
    EXPECT_EQ(CopieDi(path).constFirst(), oldest);
}

TEST_F(RipristinaArchivioTest, AnArchiveThatIsGoneComesBack)
{
    QFile::remove(path);
    EXPECT_EQ(ripristinaArchivio(copia, path, {}, kNow).tenuto, "");
    EXPECT_EQ(clientsOf(path), QStringList("di allora"));
    EXPECT_FALSE(folder.has("Copie"));
}

TEST_F(RipristinaArchivioTest, ADamagedArchiveIsKeptAsItIsWithItsJournal)
{
    folder.write("famiglia.db", QByteArray("rovina").repeated(1000));
    folder.write("famiglia.db-wal", "giornale");
    const QString kept = ripristinaArchivio(copia, path, {}, kNow).tenuto;
    EXPECT_EQ(clientsOf(path), QStringList("di allora"));
    EXPECT_EQ(kept, folder.path() + "/Copie/2025-03-02_10-20-30-000_famiglia.db.prima");
    EXPECT_EQ(folder.read("Copie\\2025-03-02_10-20-30-000_famiglia.db.prima"), QByteArray("rovina").repeated(1000));
    EXPECT_EQ(folder.read("Copie\\2025-03-02_10-20-30-000_famiglia.db.prima-wal"), "giornale");
    EXPECT_EQ(CopieDi(path), QStringList()) << "what does not open is no safety copy";
    EXPECT_EQ(files(), QStringList({"copia.db", "famiglia.db"}));
}

TEST_F(RipristinaArchivioTest, AProtectedCopyIsPutBackWithItsPassword)
{
    make(path, "di adesso", "segreta");
    make(copia, "di allora", "segreta");
    EXPECT_EQ(refusalWith(""), "L'archivio è protetto da una password");
    EXPECT_EQ(refusalWith("sbagliata"), "Password non valida");
    EXPECT_EQ(clientsOf(path, "segreta"), QStringList("di adesso"));

    const QString kept = ripristinaArchivio(copia, path, "segreta", kNow).tenuto;
    EXPECT_EQ(clientsOf(path, "segreta"), QStringList("di allora"));
    EXPECT_EQ(clientsOf(kept, "segreta"), QStringList("di adesso"));
    Connection plain;
    EXPECT_EQ(plain.Open(path).outcome, OpenOutcome::PasswordRichiesta);
    EXPECT_EQ(plain.Open(kept).outcome, OpenOutcome::PasswordRichiesta);
}

TEST_F(RipristinaArchivioTest, AnArchiveUnderAnotherPasswordIsKeptAsItIs)
{
    make(path, "di adesso", "un'altra");
    const QString kept = ripristinaArchivio(copia, path, {}, kNow).tenuto;
    EXPECT_TRUE(kept.endsWith("_famiglia.db.prima"));
    EXPECT_EQ(clientsOf(kept, "un'altra"), QStringList("di adesso"));
    EXPECT_EQ(clientsOf(path), QStringList("di allora"));
}

TEST_F(RipristinaArchivioTest, ADamagedCopyIsRefused)
{
    QByteArray bytes = folder.read("copia.db");
    folder.write("copia.db", bytes.first(bytes.size() / 2 / 4096 * 4096));
    EXPECT_TRUE(refusalWith().startsWith("La copia \"" + copia + "\" ")) << refusalWith().toStdString();
    expectUntouched();
}

TEST_F(RipristinaArchivioTest, AForeignFileAndAMissingOneAreRefused)
{
    folder.write("copia.db", "una lettera");
    EXPECT_TRUE(refusalWith().startsWith("La copia \"" + copia + "\" non si apre: Il file non è un archivio ("));
    expectUntouched();
    QFile::remove(copia);
    makeArchive(copia, "CREATE TABLE Dischi (ID INTEGER PRIMARY KEY)");
    EXPECT_EQ(refusalWith(), QString("Il file \"%1\" non è la copia di un archivio di questo programma").arg(copia));
    expectUntouched();
    QFile::remove(copia);
    EXPECT_EQ(refusalWith(), QString("Il file \"%1\" non c'è").arg(copia));
    EXPECT_EQ(clientsOf(path), QStringList("di adesso"));
}

TEST_F(RipristinaArchivioTest, TheArchiveIsNoCopyOfItself)
{
    copia = path;
    EXPECT_EQ(refusalWith(), "La copia e l'archivio sono lo stesso file");
    EXPECT_EQ(clientsOf(path), QStringList("di adesso"));
}

TEST_F(RipristinaArchivioTest, AnArchiveThatAnotherProgramHasOpenIsLeftAlone)
{
    const QString refused = QString("L'archivio \"%1\" è aperto da un altro programma").arg(path);
    {
        const OtherProgram other(path);
        EXPECT_EQ(refusalWith(), refused);
    }
    make(path, "di adesso", "un'altra");
    {
        const OtherProgram other(path, "un'altra");
        EXPECT_EQ(refusalWith(), refused) << "also where its password is not known";
    }
    EXPECT_EQ(refusalWith(), "(ripristinato)") << "what a killed program left is no reason to refuse";
}

TEST_F(RipristinaArchivioTest, ALinkStaysALinkToTheArchive)
{
    const QString link = folder.path("collegamento.db");
    ASSERT_TRUE(QFile::link(path, link));
    ripristinaArchivio(copia, link, {}, kNow);
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(clientsOf(path), QStringList("di allora"));
}

TEST_F(RipristinaArchivioTest, ALinkThatLeadsNowhereLeadsToTheArchivePutBack)
{
    QFile::remove(path);
    const QString link = folder.path("collegamento.db");
    ASSERT_TRUE(QFile::link(path, link));
    EXPECT_EQ(ripristinaArchivio(copia, link, {}, kNow).tenuto, "");
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(clientsOf(path), QStringList("di allora"));
}

TEST_F(RipristinaArchivioTest, AProtectedCopyTakesThePlaceOfAPlainArchiveAndAPlainOneThatOfAProtected)
{
    const QString closed = folder.path("chiusa.db");
    make(closed, "di allora", "segreta");
    const Ripristino toClosed = ripristinaArchivio(closed, path, "segreta", kNow);
    EXPECT_FALSE(toClosed.senzaPiuPassword);
    EXPECT_EQ(clientsOf(path, "segreta"), QStringList("di allora"));
    EXPECT_EQ(clientsOf(toClosed.tenuto), QStringList("di adesso"));
    EXPECT_EQ(toClosed.tenuto, folder.path() + "/Copie/2025-03-02_10-20-30-000_famiglia.db");

    const Ripristino back = ripristinaArchivio(toClosed.tenuto, path, {}, kNow);
    EXPECT_TRUE(back.senzaPiuPassword);
    EXPECT_EQ(clientsOf(path), QStringList("di adesso"));
    EXPECT_EQ(back.tenuto, folder.path() + "/Copie/2025-03-02_10-20-30-001_famiglia.db.prima");
    EXPECT_EQ(clientsOf(back.tenuto, "segreta"), QStringList("di allora"));
    EXPECT_FALSE(ripristinaArchivio(copia, path, {}, kNow).senzaPiuPassword);
}

TEST_F(RipristinaArchivioTest, ACopyWithDamagedIndexesNamesTheRepair)
{
    copia = folder.path("esempio.db");
    creaArchivioEsempio(copia, QDate(2025, 3, 1));
    damageIndex(copia, "MenuGiorno");
    const QString words = refusalWith();
    EXPECT_TRUE(words.startsWith("La copia \"" + copia + "\" è danneggiata: ")) << words.toStdString();
    EXPECT_TRUE(words.endsWith(". Sono rovinati solo gli indici: verifica --ripara li rifà")) << words.toStdString();
    riparaArchivio(copia, {}, kNow);
    EXPECT_EQ(refusalWith(), "(ripristinato)");
}

TEST_F(RipristinaArchivioTest, AnAttemptWithoutRoomLeavesNothingBehind)
{
    const qint64 size = QFileInfo(path).size();
    folder.makeFolder("stretto");
    const SmallDisk disk(folder.path("stretto"), size * 5 / 2);
    if (!disk.isThere())
        GTEST_SKIP() << "no small disk can be made here";
    const QString tight = folder.path("stretto") + "/famiglia.db";
    ASSERT_TRUE(QFile::copy(path, tight));
    path = tight;
    const QString refusal = refusalWith();
    EXPECT_TRUE(refusal.endsWith(", o il disco è pieno")) << refusal.toStdString();
    EXPECT_EQ(folder.entries("stretto"), QStringList({"Copie/", "famiglia.db"}));
    EXPECT_EQ(folder.entries("stretto/Copie"), QStringList());
    EXPECT_EQ(clientsOf(path), QStringList("di adesso"));
}

TEST_F(RipristinaArchivioTest, WhatTheJournalHeldIsKeptAlsoWhereTheAttemptFailsBehindIt)
{
    {
        const OtherProgram killed(path, {}, "INSERT INTO Clienti (Nominativo) VALUES ('nel giornale')");
    }
    QFile::remove(path + "-shm");
    folder.write("famiglia.db-shm/piena", ""); // a folder cannot be removed as a file
    EXPECT_EQ(refusalWith(), QString("Il file \"%1-shm\" non si può togliere").arg(path));
    const QStringList kept = CopieDi(path);
    ASSERT_EQ(kept.size(), 1);
    EXPECT_EQ(clientsOf(kept.constFirst()), QStringList({"di adesso", "nel giornale"}));
}

} // namespace
