// Archives cut, overwritten with zeros, exchanged for something else: each opens, asks for a password or is refused
// with words, and what opens can be read or says why not.
#include "CreaArchivio.h"
#include "faults/Contents.h"
#include "platform/Failure.h"
#include "platform/store/ArchiveSigns.h"
#include "platform/store/Recordset.h"
#include "ProteggiArchivio.h"
#include "support/Printers.h"
#include "VerificaArchivio.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtEndian>

#include <algorithm>
#include <cstdio>
#include <random>

namespace {

const QString kPassword = QStringLiteral("segreta");
constexpr int kPlaces = 60;
constexpr int kPlacesUnderPassword = 12; // each derives keys

struct Outcomes
{
    int opened = 0;
    int password = 0;
    int refused = 0;
    int unreadable = 0; // of the opened ones, those with a table that says why it cannot be read
    int tries() const { return opened + password + refused; }
};

class DamagedArchiveTest : public ::testing::Test
{
protected:
    QTemporaryDir folder;
    QString path = folder.filePath("famiglia.db");
    QByteArray whole;
    Outcomes outcomes;
    std::mt19937 places; // the same in every run

    void SetUp() override
    {
        creaArchivioEsempio(path, QDate(2025, 3, 1));
        whole = bytesOf(path);
    }
    static QByteArray bytesOf(const QString &file)
    {
        QFile read(file);
        EXPECT_TRUE(read.open(QIODevice::ReadOnly));
        return read.readAll();
    }
    void put(const QByteArray &bytes)
    {
        for (const QString &left : QStringList(path) + companionFiles(path))
            QFile::remove(left);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    // Reads every row of every table that the archive lets us read; whether one says that it cannot be.
    static bool readsWithFailures(Connection &archive)
    {
        bool failed = false;
        for (const char *table : {"Categorie", "CategorieMaster", "Piatti", "Sostituisci", "GruppoPiattiSostituiti",
                                  "Menu", "SchedaPranzo", "Clienti"}) {
            try {
                Recordset rows;
                rows.Open(QStringLiteral("Select * from ") + QLatin1String(table), archive);
            } catch (const Failure &failure) {
                EXPECT_FALSE(failure.words().isEmpty());
                failed = true;
            }
        }
        return failed;
    }
    // Opens what lies there, reads it, and has the tool check it.
    OpenOutcome use(const QString &password = {})
    {
        Connection archive;
        const OpenResult result = archive.Open(path, password);
        switch (result.outcome) {
        case OpenOutcome::Aperto:
            ++outcomes.opened;
            outcomes.unreadable += readsWithFailures(archive) ? 1 : 0;
            break;
        case OpenOutcome::PasswordRichiesta:
            ++outcomes.password;
            break;
        case OpenOutcome::Errore:
            ++outcomes.refused;
            break;
        }
        EXPECT_EQ(bool(result), archive.isOpen());
        if (!result) {
            EXPECT_NE(result.number, 0);
            EXPECT_FALSE(result.words.isEmpty());
        }
        return result.outcome;
    }
    void tell(const char *what) const
    {
        std::printf("[  figure  ] %s: %d tries: %d opened (%d of them with a table that says why it cannot be read), "
                    "%d asked for a password, %d refused\n",
                    what, outcomes.tries(), outcomes.opened, outcomes.unreadable, outcomes.password, outcomes.refused);
    }
};

TEST_F(DamagedArchiveTest, AnArchiveCutAnywhereIsRefusedWithWords)
{
    for (int i = 0; i < kPlaces; ++i) {
        const qsizetype length = qsizetype(places() % quint32(whole.size()));
        put(whole.first(length));
        ASSERT_EQ(use(), OpenOutcome::Errore) << length;
        ASSERT_EQ(verificaArchivio(path).guasti.size(), 1) << length;
        ASSERT_EQ(bytesOf(path), whole.first(length)) << "a file that is refused stays as it is";
    }
    tell("cut short");
}

TEST_F(DamagedArchiveTest, AnArchiveWithZerosInPlacesOpensOrIsRefusedAndTheToolFindsTheDamage)
{
    const int pages = int(whole.size() / 4096);
    int found = 0;
    for (int i = 0; i < kPlaces; ++i) {
        QByteArray damaged = whole;
        const int page = int(places() % quint32(pages));
        damaged.replace(qsizetype(page) * 4096, 4096, QByteArray(4096, '\0'));
        put(damaged);
        use();
        found += verificaArchivio(path).guasti.isEmpty() ? 0 : 1;
    }
    tell("a page of zeros");
    EXPECT_EQ(found, kPlaces);
}

TEST_F(DamagedArchiveTest, AFewBytesOverwrittenAnywhereAreRefusedOrReadOrToldByTheTool)
{
    int found = 0;
    for (int i = 0; i < kPlaces; ++i) {
        QByteArray damaged = whole;
        const qsizetype place = qsizetype(places() % quint32(whole.size() - 16));
        for (int byte = 0; byte < 16; ++byte)
            damaged[place + byte] = char(places());
        put(damaged);
        const OpenOutcome outcome = use();
        EXPECT_NE(outcome, OpenOutcome::PasswordRichiesta) << place;
        const Verifica checked = verificaArchivio(path);
        found += checked.guasti.isEmpty() ? 0 : 1;
        // What does not open the tool finds damaged; values alone may be changed without a trace.
        if (outcome != OpenOutcome::Aperto) {
            EXPECT_EQ(checked.esito, Verifica::Esito::Danneggiato) << place;
        }
    }
    tell("sixteen bytes of noise");
    EXPECT_GT(outcomes.opened, 0);
    EXPECT_GT(found, kPlaces / 10);
    EXPECT_LT(found, kPlaces);
}

TEST_F(DamagedArchiveTest, AnythingElseInItsPlaceIsTold)
{
    QByteArray noise(8192, '\0');
    for (char &byte : noise)
        byte = char(places());
    struct Case
    {
        QByteArray bytes;
        OpenOutcome outcome;
    };
    const Case cases[] = {
        {{}, OpenOutcome::Errore},
        {"una lettera", OpenOutcome::Errore},
        {QByteArray("\x89PNG\r\n\x1a\n") + noise, OpenOutcome::Errore},
        {QByteArray("PK\x03\x04") + noise.first(5000), OpenOutcome::Errore},
        {QByteArray("SQLite format 3\0", 16) + noise, OpenOutcome::Errore},
        {QByteArray("SQLite format 3\0", 16), OpenOutcome::Errore},
        {whole.first(100), OpenOutcome::Errore},
        {QByteArray(4096, '\0'), OpenOutcome::PasswordRichiesta}, // whole pages without a known head may be encrypted
        {noise, OpenOutcome::PasswordRichiesta},
    };
    for (const Case &each : cases) {
        put(each.bytes);
        EXPECT_EQ(use(), each.outcome) << each.bytes.first(qMin<qsizetype>(each.bytes.size(), 20)).toHex().constData();
        EXPECT_EQ(bytesOf(path), each.bytes);
    }
    tell("something else in its place");
}

TEST_F(DamagedArchiveTest, AProtectedArchiveInTroubleAsksForItsPasswordOrIsRefused)
{
    proteggiArchivio(path, kPassword);
    whole = bytesOf(path);
    for (const char *wrong : {"", "Segreta", "segreta "})
        EXPECT_EQ(use(QString::fromLatin1(wrong)), OpenOutcome::PasswordRichiesta) << wrong;
    EXPECT_EQ(use(kPassword), OpenOutcome::Aperto);
    EXPECT_EQ(outcomes.unreadable, 0);
    for (int i = 0; i < kPlacesUnderPassword; ++i) {
        QByteArray damaged = whole;
        if (i % 2 == 0)
            damaged.truncate(qsizetype(places() % quint32(whole.size())));
        else
            damaged.replace(qsizetype(places() % quint32(whole.size() / 1024)) * 1024, 1024, QByteArray(1024, '\0'));
        put(damaged);
        use(kPassword);
        EXPECT_NE(faultsOf(path, kPassword), "") << i;
    }
    tell("under a password");
}

// How many commits stand whole in the first `size` bytes of a write-ahead journal: after its head come frames of a head
// and a page, and that of a commit tells the size of the archive.
int commitsWithin(const QByteArray &journal, qsizetype size)
{
    constexpr qsizetype kHead = 32;
    constexpr qsizetype kFrameHead = 24;
    const auto page = qFromBigEndian<quint32>(journal.constData() + 8);
    const qsizetype frame = kFrameHead + qsizetype(page);
    int commits = 0;
    for (qsizetype at = kHead; at + frame <= size; at += frame)
        commits += qFromBigEndian<quint32>(journal.constData() + at + 4) != 0 ? 1 : 0;
    return commits;
}

TEST_F(DamagedArchiveTest, AJournalCutOrOverwrittenCostsNoMoreThanTheRowsBehindTheDamage)
{
    Connection archive;
    ASSERT_TRUE(archive.Open(path));
    for (int row = 0; row < 60; ++row)
        archive.Execute("INSERT INTO Clienti (Nominativo) VALUES ('" + QString::number(row) + "')");
    const QByteArray journal = bytesOf(path + "-wal");
    const QByteArray main = bytesOf(path);
    archive.Close();
    ASSERT_EQ(commitsWithin(journal, journal.size()), 60);
    for (int i = 0; i < kPlaces; ++i) {
        QByteArray damaged = journal;
        const qsizetype place = qsizetype(places() % quint32(journal.size()));
        if (i % 2 == 0)
            damaged.truncate(place);
        else
            damaged.replace(place, qMin<qsizetype>(512, journal.size() - place), QByteArray(512, '\0'));
        put(main);
        QFile file(path + "-wal");
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(damaged);
        file.close();
        ASSERT_EQ(use(), OpenOutcome::Aperto) << i;
        ASSERT_EQ(faultsOf(path), "") << i;
        Connection left;
        ASSERT_TRUE(left.Open(path));
        Recordset rows;
        rows.Open("Select Nominativo from Clienti order by ID", left, Recordset::Access::ReadOnly);
        const auto sound = std::mismatch(journal.begin(), journal.end(), damaged.begin(), damaged.end()).first;
        ASSERT_EQ(rows.RecordCount(), commitsWithin(journal, sound - journal.begin())) << i;
        for (int row = 0; row < rows.RecordCount(); ++row) // the first so many, without a gap
            ASSERT_EQ(rows.valueAt(row, 0).text(), QString::number(row)) << i;
    }
    EXPECT_EQ(outcomes.unreadable, 0);
    tell("a damaged journal");
}

} // namespace
