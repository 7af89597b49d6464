// Old files whose damage the library that reads them does not tell: what lacks must be missed all the same.
#include "ImportaArchivio.h"
#include "platform/Failure.h"
#include "support/Printers.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QtEndian>
#include <QThread>

#include <functional>

#include <sys/stat.h>

namespace {

constexpr qsizetype kCodePageAt = 0x3c; // in the head of Jet 3, enciphered by exclusive or
constexpr qsizetype kRowsAt = 16;       // in the first page of a table of Jet 4
constexpr qsizetype kFirstRowAt = 14;   // in a page of rows of Jet 4: where the first of them begins

// A sample whose bytes may be changed.
class VecchioFile
{
public:
    VecchioFile(const QString &name, qsizetype pageSize) : m_page(pageSize)
    {
        QFile file(QStringLiteral(CIBRA_SOURCE_DIR "/tests/archive/mdb/") + name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        m_bytes = file.readAll();
    }
    static VecchioFile jet4() { return {"famiglia2000.mdb", 4096}; }
    static VecchioFile jet3() { return {"famiglia97.mdb", 2048}; }

    const QByteArray &bytes() const { return m_bytes; }
    qsizetype pages() const { return m_bytes.size() / m_page; }

    // Zeros from there to the end of the page, as where a sector was never written.
    VecchioFile &azzeraFinePagina(qsizetype page, qsizetype from)
    {
        m_bytes.replace(page * m_page + from, m_page - from, QByteArray(m_page - from, '\0'));
        return *this;
    }
    // Zeros from there to the end of the file, as where the download of a file broke off.
    VecchioFile &azzeraDa(qsizetype page, qsizetype from)
    {
        const qsizetype start = page * m_page + from;
        m_bytes.replace(start, m_bytes.size() - start, QByteArray(m_bytes.size() - start, '\0'));
        return *this;
    }
    VecchioFile &scrivi32(qsizetype at, quint32 value)
    {
        qToLittleEndian(value, m_bytes.data() + at);
        return *this;
    }
    VecchioFile &cambiaCodice(quint16 from, quint16 to)
    {
        m_bytes[kCodePageAt] = char(m_bytes[kCodePageAt] ^ ((from ^ to) & 0xff));
        m_bytes[kCodePageAt + 1] = char(m_bytes[kCodePageAt + 1] ^ ((from ^ to) >> 8));
        return *this;
    }
    VecchioFile &sostituisci(const QByteArray &before, const QByteArray &after)
    {
        EXPECT_TRUE(before.size() == after.size() && m_bytes.contains(before));
        m_bytes.replace(before, after);
        return *this;
    }
    qsizetype inizio(qsizetype page) const { return page * m_page; }
    quint16 parola(qsizetype at) const { return qFromLittleEndian<quint16>(m_bytes.constData() + at); }

private:
    qsizetype m_page;
    QByteArray m_bytes;
};

constexpr int kLong = 60000; // milliseconds, more than any machine takes

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Also a process that nobody has asked yet how it ended.
bool isGone(const QString &process)
{
    const QByteArray state = contentOf(process + "/stat");
    return state.isEmpty() || state.mid(state.lastIndexOf(')')).startsWith(") Z");
}

bool comesTrue(const std::function<bool()> &condition)
{
    for (int waited = 0; waited < kLong; waited += 10) {
        if (condition())
            return true;
        QThread::msleep(10);
    }
    return false;
}

class LeggiMdbTest : public ::testing::Test
{
protected:
    TemporaryFolder folder;
    Lettore reader{QStringLiteral(CIBRA_ARCHIVIO), {"leggi-mdb"}};

    RapportoImportazione importa(const VecchioFile &old) const
    {
        folder.write("vecchio.mdb", old.bytes());
        return importaArchivio(folder.path("vecchio.mdb"), folder.path("nuovo.db"), {}, reader);
    }
    // Of the damage, as the refusal tells it; "" where the file was imported.
    QString guasto(const VecchioFile &old) const
    {
        try {
            importa(old);
        } catch (const Failure &failure) {
            EXPECT_EQ(folder.entries(), QStringList("vecchio.mdb"));
            const QString before = "Il file \"" + folder.path("vecchio.mdb") + "\" è danneggiato: ";
            const QString behind = ". Niente è stato importato";
            EXPECT_TRUE(failure.words().startsWith(before) && failure.words().endsWith(behind))
                << failure.words().toStdString();
            return failure.words().mid(before.size()).chopped(behind.size());
        }
        folder.remove("nuovo.db");
        return {};
    }
    QStringList noteDi(const VecchioFile &old) const
    {
        const QStringList usual = importa(VecchioFile::jet3()).note;
        folder.remove("nuovo.db");
        QStringList notes = importa(old).note;
        notes.removeIf([&](const QString &note) { return usual.contains(note); });
        folder.remove("nuovo.db");
        return notes;
    }
};

TEST_F(LeggiMdbTest, AListOfTablesThatIsZeroIsNoEmptyList)
{
    const QString zeros = "elenco delle tabelle: una riga è azzerata o rovinata";
    EXPECT_EQ(guasto(VecchioFile::jet4().azzeraDa(4, 1024)), zeros);
    EXPECT_EQ(guasto(VecchioFile::jet4().azzeraFinePagina(4, 1024)), zeros);
    EXPECT_EQ(guasto(VecchioFile::jet3().azzeraDa(5, 512)), zeros);
    EXPECT_EQ(guasto(VecchioFile::jet3().azzeraFinePagina(5, 512)), zeros);
    EXPECT_EQ(guasto(VecchioFile::jet4().azzeraFinePagina(4, 0)),
              "elenco delle tabelle: righe lette: 0, dichiarate: 20");
}

TEST_F(LeggiMdbTest, AListOfTablesNamesEachAndItself)
{
    EXPECT_EQ(guasto(VecchioFile::jet3().sostituisci("MSysObjects", "MSysObjectz")),
              "nell'elenco delle tabelle manca l'elenco stesso");
    EXPECT_EQ(guasto(VecchioFile::jet3().sostituisci("Appunti di casa", QByteArray(15, '\0'))),
              "nell'elenco delle tabelle un oggetto non ha nome");
}

TEST_F(LeggiMdbTest, RowsThatAreZeroAreNoRowsOfNulls)
{
    const QString zeros = "tabella \"Menu\": una riga è azzerata o rovinata";
    for (qsizetype from : {512, 1024, 2048, 3584})
        EXPECT_EQ(guasto(VecchioFile::jet4().azzeraFinePagina(32, from)), zeros) << from;
    for (qsizetype from : {512, 1024, 1536})
        EXPECT_EQ(guasto(VecchioFile::jet3().azzeraFinePagina(36, from)), zeros) << from;
}

TEST_F(LeggiMdbTest, ATableThatSaysItIsEmptyMustBe)
{
    VecchioFile old = VecchioFile::jet4();
    EXPECT_EQ(guasto(old.scrivi32(old.inizio(31) + kRowsAt, 0)),
              "tabella \"Menu\": ci sono più righe di quante ne dichiara (0)");
    EXPECT_EQ(guasto(old.scrivi32(old.inizio(31) + kRowsAt, 9)),
              "tabella \"Menu\": ci sono più righe di quante ne dichiara (9)");
    EXPECT_EQ(guasto(old.scrivi32(old.inizio(31) + kRowsAt, 11)), "tabella \"Menu\": righe lette: 10, dichiarate: 11");
    EXPECT_EQ(guasto(old.scrivi32(old.inizio(31) + kRowsAt, 10)), "");
}

// Page 21 lies in the chain of a long memo.
TEST_F(LeggiMdbTest, AMemoOfWhichASectorIsZeroIsRefused)
{
    EXPECT_EQ(guasto(VecchioFile::jet4().azzeraFinePagina(21, 1024)),
              "tabella \"Sostituisci\": un memo è in parte azzerato");
    EXPECT_EQ(guasto(VecchioFile::jet4().azzeraFinePagina(21, 3584)),
              "tabella \"Sostituisci\": un memo è in parte azzerato");
}

TEST_F(LeggiMdbTest, SingleZerosInATextAreKeptAndTold)
{
    EXPECT_EQ(
        noteDi(VecchioFile::jet3().sostituisci("d'altri", QByteArray("d\0altri", 7))),
        QStringList("Nocorrispondenza.Piatto: testi con dei caratteri nulli, forse rovinati, lasciati come sono: 1"));
}

// A piece that names itself as the next one would be read until the memory is full.
TEST_F(LeggiMdbTest, AMemoLongerThanTheFileIsRefusedUnread)
{
    constexpr qsizetype kHeadOfMemo = 47766; // in the row of a memo that is a chain
    constexpr qsizetype kPiece = 27;
    VecchioFile old = VecchioFile::jet4();
    old.scrivi32(old.inizio(kPiece) + old.parola(old.inizio(kPiece) + kFirstRowAt), quint32(kPiece << 8));
    for (quint32 length : {quint32(old.bytes().size() + 1), quint32(100'000'000), quint32(0x3fffffff)})
        EXPECT_EQ(guasto(VecchioFile(old).scrivi32(kHeadOfMemo, length)),
                  QString("tabella \"Sostituisci\": un memo di %1 byte non sta nel file").arg(length));
}

TEST_F(LeggiMdbTest, ADescriptionThatEndsInZerosIsRefused)
{
    EXPECT_EQ(guasto(VecchioFile::jet4().azzeraFinePagina(10, 512)), "tabella \"Sostituisci\": un indice non ha nome");
}

// What the code page leaves undefined is kept as the control character of the same number.
TEST_F(LeggiMdbTest, NoByteOfTheUsualCodePageBecomesAQuestionMark)
{
    const QByteArray before = "Pur\xE8 di patate";
    const QByteArray after = "Pur\x81 di patate";
    EXPECT_EQ(noteDi(VecchioFile::jet3().sostituisci(before, after)), QStringList());
    folder.write("vecchio.mdb", VecchioFile::jet3().sostituisci(before, after).bytes());
    const ContenutoMdb content = leggiInProcesso(reader, folder.path("vecchio.mdb"));
    int found = 0;
    for (const TabellaMdb &table : content.tabelle)
        for (const RigaMdb &row : table.righe)
            for (const ValoreMdb &value : row)
                if (const auto *text = std::get_if<QString>(&value)) {
                    found += int(text->count(QString::fromUtf8("Pur\xC2\x81 di patate")));
                    EXPECT_FALSE(text->contains("Pur?"));
                }
    EXPECT_GT(found, 0);
}

TEST_F(LeggiMdbTest, ALetterThatAnotherCodePageLacksIsTold)
{
    VecchioFile old = VecchioFile::jet3();
    old.cambiaCodice(1252, 1253)
        .sostituisci("d'altri", "d\xD2"
                                "altri");
    EXPECT_EQ(noteDi(old),
              QStringList({"i testi sono della tabella di codici 1253",
                           "Nocorrispondenza: lettere che la tabella di codici del file non ha, ora \"?\""}));
}

// The reading is of no use to anybody once whoever asked for it was killed. It hangs here, in the opening of a pipe.
TEST_F(LeggiMdbTest, TheReadingEndsWithWhoeverAskedForIt)
{
    const QString pipe = folder.path("vecchio.mdb");
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QProcess shell;
    shell.start("/bin/sh", {"-c", "\"$0\" leggi-mdb \"$1\" & echo $!; wait", CIBRA_ARCHIVIO, pipe});
    ASSERT_TRUE(shell.waitForReadyRead(kLong));
    const QString process = "/proc/" + QString::fromLatin1(shell.readLine()).trimmed();
    // It has taken its limits, so it has said before with whom it ends.
    ASSERT_TRUE(comesTrue([&] { return contentOf(process + "/limits").contains("Max cpu time              600"); }));
    EXPECT_FALSE(isGone(process));
    shell.kill();
    EXPECT_TRUE(shell.waitForFinished(kLong));
    EXPECT_TRUE(comesTrue([&] { return isGone(process); }));
}

// Wherever a file that was cut is filled up with zeros, it is refused, or nothing of it lacks.
TEST_F(LeggiMdbTest, AFileWhoseEndIsZerosIsRefusedOrWhole)
{
    constexpr qsizetype kStep = 2560; // meets each sector of a page in turn
    for (const VecchioFile &whole : {VecchioFile::jet4(), VecchioFile::jet3()}) {
        folder.write("vecchio.mdb", whole.bytes());
        const ContenutoMdb expected = leggiInProcesso(reader, folder.path("vecchio.mdb"));
        int refused = 0;
        for (qsizetype from = 8192; from < whole.bytes().size(); from += kStep) {
            folder.write("vecchio.mdb", VecchioFile(whole).azzeraDa(0, from).bytes());
            try {
                const ContenutoMdb found = leggiInProcesso(reader, folder.path("vecchio.mdb"));
                ASSERT_EQ(found.tabelle.size(), expected.tabelle.size()) << from;
                for (size_t i = 0; i < found.tabelle.size(); ++i)
                    ASSERT_TRUE(found.tabelle[i].righe == expected.tabelle[i].righe) << from;
            } catch (const Failure &) {
                ++refused;
            }
        }
        EXPECT_GT(refused, whole.bytes().size() / kStep / 2);
    }
}

} // namespace
