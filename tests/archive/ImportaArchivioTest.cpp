#include "ImportaArchivio.h"

#include "CreaArchivio.h"
#include "PianoImportazione.h"
#include "platform/Failure.h"
#include "platform/store/ArchiveFile.h"
#include "platform/store/Connection.h"
#include "support/Printers.h"
#include "support/TemporaryFolder.h"
#include "support/TestArchive.h"
#include "VerificaArchivio.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <random>

#include <sys/wait.h>
#include <unistd.h>

#include <sqlcipher/sqlite3.h>

namespace {

constexpr int kMutations = 30; // of each sample

QString sample(const QString &name)
{
    return QStringLiteral(CIBRA_SOURCE_DIR "/tests/archive/mdb/") + name;
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

QJsonObject atteso()
{
    return QJsonDocument::fromJson(bytesOf(sample("atteso.json"))).object();
}

// Rows of an archive as the engine holds them, without what the program's own reading makes of them.
class RawArchive
{
public:
    RawArchive(const QString &path, const QString &password)
    {
        EXPECT_EQ(sqlite3_open(qPrintable(path), &m_handle), SQLITE_OK);
        if (!password.isEmpty()) {
            const QByteArray key = password.toUtf8();
            sqlite3_key(m_handle, key.constData(), int(key.size()));
        }
    }
    ~RawArchive() { sqlite3_close(m_handle); }
    RawArchive(const RawArchive &) = delete;
    RawArchive &operator=(const RawArchive &) = delete;

    QJsonArray rows(const QString &select) const
    {
        sqlite3_stmt *statement = nullptr;
        const QByteArray text = select.toUtf8();
        EXPECT_EQ(sqlite3_prepare_v2(m_handle, text.constData(), -1, &statement, nullptr), SQLITE_OK)
            << text.constData() << ": " << sqlite3_errmsg(m_handle);
        QJsonArray result;
        while (sqlite3_step(statement) == SQLITE_ROW) {
            QJsonArray row;
            for (int i = 0; i < sqlite3_column_count(statement); ++i)
                row += cell(statement, i);
            result += row;
        }
        sqlite3_finalize(statement);
        return result;
    }

private:
    static QJsonValue cell(sqlite3_stmt *statement, int column)
    {
        switch (sqlite3_column_type(statement, column)) {
        case SQLITE_NULL:
            return QJsonValue::Null;
        case SQLITE_INTEGER:
            return double(sqlite3_column_int64(statement, column));
        case SQLITE_FLOAT:
            return sqlite3_column_double(statement, column);
        case SQLITE_BLOB:
            return QStringLiteral("bytes ") +
                   QString::fromLatin1(QByteArray(static_cast<const char *>(sqlite3_column_blob(statement, column)),
                                                  sqlite3_column_bytes(statement, column))
                                           .toHex());
        default:
            return QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(statement, column)),
                                     sqlite3_column_bytes(statement, column));
        }
    }

    sqlite3 *m_handle = nullptr;
};

QString quoted(const QString &name)
{
    return "\"" + QString(name).replace("\"", "\"\"") + "\"";
}

// What the expected content says, as the archive keeps it.
QJsonValue kept(const QJsonValue &told, const QString &type)
{
    if (type == "date" && told.isString() && told.toString().endsWith(" 00:00:00"))
        return told.toString().left(10);
    if (type == "boolean")
        return told.toBool() ? 1.0 : 0.0;
    return told;
}

void expectTable(const RawArchive &archive, const QJsonObject &table)
{
    const QString name = table["table"].toString();
    QStringList columns;
    QStringList types;
    for (const QJsonValue column : table["columns"].toArray()) {
        columns += quoted(column["name"].toString());
        types += column["type"].toString();
    }
    const QString order = table["key"].isString() ? quoted(table["key"].toString()) : "rowid";
    const QJsonArray found =
        archive.rows("SELECT " + columns.join(", ") + " FROM " + quoted(name) + " ORDER BY " + order);
    const QJsonArray rows = table["rows"].toArray();
    ASSERT_EQ(found.size(), rows.size()) << name.toStdString();
    for (int i = 0; i < rows.size(); ++i)
        for (int c = 0; c < columns.size(); ++c) {
            const QJsonValue expected = kept(rows[i].toArray()[c], types[c]);
            const QJsonValue actual = found[i].toArray()[c];
            EXPECT_TRUE(expected == actual)
                << name.toStdString() << " row " << i << " " << columns[c].toStdString() << ": "
                << QJsonDocument(QJsonArray{expected, actual}).toJson().toStdString();
        }
}

// A text where texts are compared, and else only whether there is one.
QString shown(const ValoreMdb &value, bool text)
{
    if (std::holds_alternative<std::monostate>(value))
        return QStringLiteral("-");
    const auto *letters = std::get_if<QString>(&value);
    return text && letters ? u't' + *letters : QStringLiteral("v");
}
QString shown(const QJsonValue &value, bool text)
{
    if (value.isNull())
        return QStringLiteral("-");
    return text && value.isString() ? u't' + value.toString() : QStringLiteral("v");
}

class ImportaArchivioTest : public ::testing::Test
{
protected:
    TemporaryFolder folder;
    QString to = folder.path("nuovo.db");
    Lettore reader{QStringLiteral(CIBRA_ARCHIVIO), {"leggi-mdb"}};

    void expectContent(const QString &content, const QString &password = {}) const
    {
        const RawArchive archive(to, password);
        const QJsonArray tables = atteso()["contents"][content].toArray();
        ASSERT_FALSE(tables.isEmpty());
        for (const QJsonValue table : tables)
            expectTable(archive, table.toObject());
    }

    // The words of the refusal; "" where the import went well.
    QString refusal(const QString &from, const QString &password = {}) const
    {
        try {
            importaArchivio(from, to, password, reader);
            return {};
        } catch (const Failure &failure) {
            return failure.words();
        }
    }

    // Every text that was read stands in the archive letter by letter, and of all else as many values.
    void expectWhatIsRead(const QString &from) const
    {
        const ContenutoMdb content = leggiInProcesso(reader, from);
        const PianoImportazione plan = pianoImportazione(content);
        const RawArchive archive(to, {});
        for (const TabellaPrevista &planned : plan.tabelle) {
            const TabellaMdb &table = content.tabelle[size_t(planned.sorgente)];
            for (int i = 0; i < planned.colonne.size(); ++i) {
                if (i == planned.chiave)
                    continue; // may have been given anew
                const ColonnaPrevista &column = planned.colonne[i];
                const TipoMdb told = table.colonne[column.sorgente].tipo;
                const bool text = (told == TipoMdb::Testo || told == TipoMdb::Memo) &&
                                  (column.tipo == TipoArchivio::Testo || column.tipo == TipoArchivio::Memo);
                QStringList read;
                for (const RigaMdb &row : table.righe)
                    read += shown(row[size_t(column.sorgente)], text);
                QStringList written;
                for (const QJsonValue row :
                     archive.rows("SELECT " + quoted(column.nome) + " FROM " + quoted(planned.nome)))
                    written += shown(row.toArray().at(0), text);
                std::sort(read.begin(), read.end());
                std::sort(written.begin(), written.end());
                EXPECT_EQ(read, written) << planned.nome.toStdString() << "." << column.nome.toStdString();
            }
        }
    }

    // A reader that sends this stream, whatever the file.
    void readerSends(const QByteArray &stream)
    {
        folder.write("flusso", stream);
        reader = Lettore{"/bin/sh", {"-c", "cat '" + folder.path("flusso") + "'"}};
    }
};

TEST_F(ImportaArchivioTest, EveryTableColumnAndValueOfBothFormatsArrives)
{
    for (const char *name : {"famiglia2000.mdb", "famiglia97.mdb"}) {
        SCOPED_TRACE(name);
        const RapportoImportazione report = importaArchivio(sample(name), to, {}, reader);
        expectContent("famiglia");
        EXPECT_EQ(verificaArchivio(to).guasti, QStringList());
        EXPECT_EQ(report.tabelle.size(), 15);
        folder.remove("nuovo.db");
    }
}

TEST_F(ImportaArchivioTest, ASystemFileBecomesASystemArchive)
{
    for (const char *name : {"netserver.mdb", "netserver97.mdb"}) {
        SCOPED_TRACE(name);
        importaArchivio(sample(name), to, {}, reader);
        expectContent("netserver");
        EXPECT_EQ(rowCounts(to).keys(), QStringList("Messaggi"));
        folder.remove("nuovo.db");
    }
}

TEST_F(ImportaArchivioTest, AFileWithNoneOfOurTablesGivesAnArchiveThatSaysSo)
{
    const RapportoImportazione report = importaArchivio(sample("vuoto.mdb"), to, {}, reader);
    expectContent("vuoto");
    EXPECT_EQ(verificaArchivio(to).guasti, QStringList());
    EXPECT_EQ(report.note, QStringList("nel file non c'è nessuna tabella di questo programma"));
    EXPECT_EQ(report.mancanti.size(), 14);
}

TEST_F(ImportaArchivioTest, TheReportNamesEachTableWithItsRowsAndWhatWasOdd)
{
    EXPECT_EQ(testoRapporto(importaArchivio(sample("famiglia97.mdb"), to, {}, reader)),
              QStringList({
                  "Formato Jet 3, tabelle 15",
                  "Categorie: righe lette 20, scritte 20",
                  "CategorieMaster: righe lette 9, scritte 9",
                  "Sostituisci: righe lette 12, scritte 12",
                  "Piatti: righe lette 40, scritte 40",
                  "Menu: righe lette 10, scritte 10",
                  "SchedaPranzo: righe lette 60, scritte 60",
                  "GruppoPiattiSostituiti: righe lette 10, scritte 10",
                  "Amministratori: righe lette 2, scritte 2",
                  "Clienti: righe lette 4, scritte 4",
                  "newPiatti: righe lette 3, scritte 3",
                  "Nocorrispondenza: righe lette 2, scritte 2",
                  "SostituisciMaster: righe lette 3, scritte 3",
                  "Alimenti: righe lette 4, scritte 4",
                  "alimenti2: righe lette 0, scritte 0",
                  "Appunti di casa: righe lette 2, scritte 2",
                  "Tabelle che il programma non usa, portate come sono: Appunti di casa",
                  "Da notare: Amministratori: la colonna \"Nome\" non è del programma ed è portata com'è",
                  "Da notare: Clienti: la colonna \"predefinito\" non è del programma ed è portata com'è",
              }));
}

TEST_F(ImportaArchivioTest, AProtectedFileIsImportedWithItsPasswordAloneAndStaysProtected)
{
    for (const char *name : {"password.mdb", "password97.mdb"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(refusal(sample(name)), QString("Il file \"%1\" è protetto da una password").arg(sample(name)));
        for (const char *wrong : {"Segreta", "segreta ", "s", "sbagliata"})
            EXPECT_EQ(refusal(sample(name), wrong),
                      QString("La password del file \"%1\" non è quella giusta").arg(sample(name)));
        EXPECT_EQ(folder.entries(), QStringList());
        EXPECT_TRUE(importaArchivio(sample(name), to, "segreta", reader).protetto);
        expectContent("famiglia", "segreta");
        EXPECT_EQ(verificaArchivio(to).esito, Verifica::Esito::PasswordRichiesta);
        folder.remove("nuovo.db");
    }
}

TEST_F(ImportaArchivioTest, APasswordForAFileWithoutOneIsOfNoConsequence)
{
    importaArchivio(sample("netserver.mdb"), to, "superflua", reader);
    EXPECT_EQ(verificaArchivio(to).esito, Verifica::Esito::InOrdine);
}

TEST_F(ImportaArchivioTest, TheOldFileStaysAsItIs)
{
    folder.write("vecchio.mdb", bytesOf(sample("famiglia2000.mdb")));
    importaArchivio(folder.path("vecchio.mdb"), to, {}, reader);
    EXPECT_TRUE(folder.read("vecchio.mdb") == bytesOf(sample("famiglia2000.mdb")));
    EXPECT_EQ(folder.entries(), QStringList({"nuovo.db", "vecchio.mdb"}));
}

TEST_F(ImportaArchivioTest, AFileThatIsCutIsRefusedAtWhateverPage)
{
    const std::pair<const char *, qsizetype> files[] = {{"famiglia2000.mdb", 4096}, {"famiglia97.mdb", 2048}};
    for (const auto &[name, page] : files) {
        const QByteArray whole = bytesOf(sample(name));
        for (qsizetype length = page; length < whole.size(); length += page) {
            folder.write("tronco.mdb", whole.left(length));
            const QString words = refusal(folder.path("tronco.mdb"));
            EXPECT_TRUE(words.startsWith("Il file \"" + folder.path("tronco.mdb") + "\" è "))
                << name << " " << length << ": " << words.toStdString();
            EXPECT_TRUE(words.endsWith(". Niente è stato importato")) << words.toStdString();
            ASSERT_EQ(folder.entries(), QStringList("tronco.mdb")) << name << " " << length;
        }
    }
}

TEST_F(ImportaArchivioTest, AFileThatEndsWithinAPageIsRefusedUnread)
{
    reader.programma = "/nessun/lettore";
    const QByteArray whole = bytesOf(sample("famiglia2000.mdb"));
    for (qsizetype length : {qsizetype(20), qsizetype(255), qsizetype(4095), qsizetype(16385), whole.size() - 1}) {
        folder.write("tronco.mdb", whole.left(length));
        EXPECT_EQ(refusal(folder.path("tronco.mdb")),
                  QString("Il file \"%1\" è tronco: ne manca la fine. Niente è stato importato")
                      .arg(folder.path("tronco.mdb")));
    }
    EXPECT_EQ(refusal(sample("rotto.mdb")),
              QString("Il file \"%1\" è tronco: ne manca la fine. Niente è stato importato").arg(sample("rotto.mdb")));
    EXPECT_EQ(folder.entries(), QStringList("tronco.mdb"));
}

TEST_F(ImportaArchivioTest, AForeignFileIsToldFromOneOfALaterVersion)
{
    reader.programma = "/nessun/lettore";
    const QString path = folder.path("altro.mdb");
    for (const QByteArray &bytes : {QByteArray(), QByteArray("x"), QByteArray(65536, '\0'),
                                    QByteArray("Questo non è un archivio. ").repeated(1000)}) {
        folder.write("altro.mdb", bytes);
        EXPECT_EQ(refusal(path), QString("Il file \"%1\" non è un archivio .mdb").arg(path));
    }
    QByteArray later = bytesOf(sample("vuoto.mdb"));
    folder.write("altro.mdb", later.replace(4, 15, "Standard ACE DB"));
    const QString tooNew = QString("Il file \"%1\" è di una versione più recente: si importano solo archivi .mdb dei "
                                   "formati Jet 3 e Jet 4")
                               .arg(path);
    EXPECT_EQ(refusal(path), tooNew);
    later = bytesOf(sample("vuoto.mdb"));
    later[0x14] = 2;
    folder.write("altro.mdb", later);
    EXPECT_EQ(refusal(path), tooNew);
    EXPECT_EQ(refusal(folder.path("manca.mdb")), QString("Il file \"%1\" non c'è").arg(folder.path("manca.mdb")));
    EXPECT_EQ(folder.entries(), QStringList("altro.mdb"));
}

TEST_F(ImportaArchivioTest, NothingIsEverOverwritten)
{
    folder.write("nuovo.db", "di qualcuno");
    EXPECT_EQ(refusal(sample("vuoto.mdb")), QString("Il file \"%1\" esiste già").arg(to));
    EXPECT_EQ(refusal(sample("password.mdb")), QString("Il file \"%1\" esiste già").arg(to)) << "asked no password";
    EXPECT_EQ(folder.read("nuovo.db"), "di qualcuno");
    EXPECT_EQ(refusal(to), QString("Il file \"%1\" non è un archivio .mdb").arg(to));
    folder.write("vecchio.mdb", bytesOf(sample("vuoto.mdb")));
    to = folder.path("vecchio.mdb");
    EXPECT_EQ(refusal(to), QString("Il file \"%1\" esiste già").arg(to)) << "onto itself";
    EXPECT_TRUE(folder.read("vecchio.mdb") == bytesOf(sample("vuoto.mdb")));
    to = folder.path("legame.db");
    ASSERT_TRUE(QFile::link(folder.path("manca.db"), to));
    EXPECT_EQ(refusal(sample("vuoto.mdb")), QString("Il file \"%1\" esiste già").arg(to)) << "a link to nothing";
    EXPECT_EQ(QFileInfo(to).symLinkTarget(), folder.path("manca.db"));
    to = folder.path("manca/nuovo.db");
    EXPECT_EQ(refusal(sample("vuoto.mdb")),
              QString("La cartella \"%1\" non c'è o non si può scrivere").arg(folder.path("manca")));
}

TEST_F(ImportaArchivioTest, AFolderThatMayOnlyBeReadIsToldBeforeAnythingIsRead)
{
    using enum QFileDevice::Permission;
    constexpr uid_t kNobody = 65534; // root may write everywhere
    folder.makeFolder("dischetto");
    const QString path = folder.path("dischetto");
    constexpr QFile::Permissions kToRead = ReadOwner | ExeOwner | ReadGroup | ExeGroup | ReadOther | ExeOther;
    ASSERT_TRUE(QFile::setPermissions(folder.path(), kToRead | WriteOwner));
    ASSERT_TRUE(QFile::setPermissions(path, kToRead));
    folder.write("vecchio.mdb", bytesOf(sample("vuoto.mdb")));
    to = path + "/nuovo.db";
    reader.programma = "/nessun/lettore";
    const pid_t child = fork();
    if (child == 0) {
        const bool isNobody = geteuid() != 0 || setuid(kNobody) == 0;
        const QString words = refusal(folder.path("vecchio.mdb"));
        std::_Exit(isNobody && words == QString("La cartella \"%1\" non c'è o non si può scrivere").arg(path) ? 0 : 1);
    }
    int status = -1;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    QFile::setPermissions(path, ReadOwner | WriteOwner | ExeOwner);
}

TEST_F(ImportaArchivioTest, NamesMayHaveAccentsBlanksAndSigns)
{
    const QString names = "Archivio di città \"più\" - 100 % d'oro";
    folder.write(names + "/vecchio è.mdb", bytesOf(sample("netserver97.mdb")));
    to = folder.path(names) + "/nuovo €.db";
    importaArchivio(folder.path(names) + "/vecchio è.mdb", to, {}, reader);
    EXPECT_EQ(rowCounts(to).value("Messaggi"), 3);
    EXPECT_EQ(folder.entries(names), QStringList({"nuovo €.db", "vecchio è.mdb"}));
}

TEST_F(ImportaArchivioTest, TheNewArchiveMayBeReadByWhoeverMightReadTheOldFile)
{
    using enum QFileDevice::Permission;
    const std::pair<QFile::Permissions, QFile::Permissions> modes[] = {
        {ReadOwner | WriteOwner, ReadOwner | WriteOwner},
        {ReadOwner, ReadOwner | WriteOwner},
        {ReadOwner | WriteOwner | ReadGroup | WriteGroup, ReadOwner | WriteOwner | ReadGroup | WriteGroup},
        {ReadOwner | WriteOwner | ExeOwner | ReadGroup | ExeGroup | ReadOther | ExeOther,
         ReadOwner | WriteOwner | ReadGroup | ReadOther},
    };
    for (const auto &[old, expected] : modes) {
        folder.write("vecchio.mdb", bytesOf(sample("netserver97.mdb")));
        ASSERT_TRUE(QFile::setPermissions(folder.path("vecchio.mdb"), old));
        importaArchivio(folder.path("vecchio.mdb"), to, {}, reader);
        constexpr QFile::Permissions kOfTheUser = ReadUser | WriteUser | ExeUser;
        EXPECT_EQ(int(QFileInfo(to).permissions() & ~kOfTheUser), int(expected));
        folder.remove("nuovo.db");
        folder.remove("vecchio.mdb");
    }
}

TEST_F(ImportaArchivioTest, ATemporaryFolderWithoutRoomIsTold)
{
    qputenv("TMPDIR", "/proc"); // where nobody may make a file
    const QString words = refusal(sample("netserver97.mdb"));
    qunsetenv("TMPDIR");
    EXPECT_TRUE(words.startsWith("L'archivio nuovo non si può controllare nella cartella \"/proc\": ") &&
                words.endsWith(". Niente è stato importato"))
        << words.toStdString();
    EXPECT_EQ(folder.entries(), QStringList());
}

// Bytes changed by chance, the same at each run: the library may crash, loop or read nonsense.
TEST_F(ImportaArchivioTest, ADamagedFileGivesEitherAWordOrASoundArchiveWithWhatTheReaderRead)
{
    reader.attesa = std::chrono::seconds(5);
    std::mt19937 chance(20250302);
    int refused = 0;
    int accepted = 0;
    for (const char *name : {"famiglia97.mdb", "famiglia2000.mdb"}) {
        const QByteArray whole = bytesOf(sample(name));
        for (int i = 0; i < kMutations; ++i) {
            QByteArray damaged = whole;
            for (int bytes = 0; bytes < 1 << i % 6; ++bytes)
                damaged[qsizetype(chance() % unsigned(damaged.size() - 256)) + 256] = char(chance());
            folder.write("guasto.mdb", damaged);
            const QString words = refusal(folder.path("guasto.mdb"));
            if (words.isEmpty()) {
                ++accepted;
                EXPECT_EQ(verificaArchivio(to).guasti, QStringList()) << i;
                expectWhatIsRead(folder.path("guasto.mdb"));
                folder.remove("nuovo.db");
            } else {
                EXPECT_TRUE(words.startsWith("Il file \"" + folder.path("guasto.mdb") + "\" è danneggiato: ") &&
                            words.endsWith(". Niente è stato importato"))
                    << words.toStdString();
                ++refused;
            }
            ASSERT_EQ(folder.entries(), QStringList("guasto.mdb")) << i;
        }
    }
    std::printf("[  figure  ] damaged files: %d refused, %d imported as they were read\n", refused, accepted);
    EXPECT_GT(refused, 0);
    EXPECT_GT(accepted, 0);
}

// Twice the time would be as long as a second wait for the end.
TEST_F(ImportaArchivioTest, AReadingThatStaysSilentIsEndedAfterTheTimeThatItIsGiven)
{
    reader = Lettore{"/bin/sh", {"-c", "echo CIBRA-MDB 1; exec sleep 600"}, std::chrono::seconds(4)};
    QElapsedTimer time;
    time.start();
    EXPECT_EQ(refusal(sample("vuoto.mdb")),
              QString("Il file \"%1\" è danneggiato: la lettura non finisce. Niente è stato importato")
                  .arg(sample("vuoto.mdb")));
    EXPECT_LT(time.elapsed(), 7500);
    EXPECT_EQ(folder.entries(), QStringList());
}

TEST_F(ImportaArchivioTest, AReadingThatNeverStopsTalkingIsEnded)
{
    reader = Lettore{"/bin/sh", {"-c", "echo CIBRA-MDB 1; while :; do printf 'NOTA\\t%01000d\\n' 1; done"}};
    EXPECT_EQ(refusal(sample("netserver97.mdb")),
              QString("Il file \"%1\" è danneggiato: la lettura non finisce. Niente è stato importato")
                  .arg(sample("netserver97.mdb")));
    EXPECT_EQ(folder.entries(), QStringList());
}

TEST_F(ImportaArchivioTest, AReadingThatBreaksOffIsNoWholeReading)
{
    const QString broken = QString("Il file \"%1\" è danneggiato: la lettura si interrompe. Niente è stato importato")
                               .arg(sample("vuoto.mdb"));
    for (const char *end : {"echo CIBRA-MDB 1; kill -SEGV $$", "echo CIBRA-MDB 1; exit 1", "echo CIBRA-MDB 1", "true",
                            "printf 'CIBRA-MDB 1\\nFINE\\t0\\n'; exit 3"}) {
        reader = Lettore{"/bin/sh", {"-c", end}};
        EXPECT_EQ(refusal(sample("vuoto.mdb")), broken) << end;
    }
    reader = Lettore{"/nessun/lettore", {}};
    EXPECT_NE(refusal(sample("vuoto.mdb")), "");
    EXPECT_EQ(folder.entries(), QStringList());
}

TEST_F(ImportaArchivioTest, EmptyAndDoubleKeysAreGivenAnewAndToldAndNoRowIsLost)
{
    readerSends("CIBRA-MDB 1\nTABELLA\tcategorieMASTER\t4\nCOLONNA\tid\tdoppia\t8\t-\nCOLONNA\tCATEGORIE\ttesto\t100\t-"
                "\nRIGA\tn4014000000000000\ttCinque\nRIGA\t-\ttSenza\nRIGA\tn4014000000000000\ttAncora cinque\n"
                "RIGA\tn3ff8000000000000\ttUno e mezzo\nFINETABELLA\t4\nFINE\t1\n");
    const RapportoImportazione report = importaArchivio(sample("vuoto.mdb"), to, {}, reader);
    EXPECT_EQ(report.note,
              QStringList("CategorieMaster: righe con una chiave vuota o doppia, che ora ne hanno una nuova: 3"));
    Connection archive;
    ASSERT_TRUE(archive.Open(to));
    EXPECT_EQ(rowsOf(archive, "SELECT ID, categorie FROM CategorieMaster ORDER BY ID"),
              QStringList({"5 | Cinque", "6 | Senza", "7 | Ancora cinque", "8 | Uno e mezzo"}));
}

TEST_F(ImportaArchivioTest, ValuesOfAnotherTypeAreConvertedOrKeptAndTold)
{
    readerSends(
        "CIBRA-MDB 1\nTABELLA\tPiatti\t2\nCOLONNA\tID\tlungo\t4\tC\nCOLONNA\tDataInserimento\ttesto\t20\t-\n"
        "COLONNA\tPiatto\tmemo\t0\t-\nCOLONNA\tquantita\ttesto\t20\t-\nCOLONNA\tKC100gr\tvaluta\t8\t-\n"
        "RIGA\ti7\tt3/2/2025\ttPane\tt12,5\te1.5000\nRIGA\ti9\ttieri\ttRiso\ttuna tazza\te922337203685477.5807\n"
        "FINETABELLA\t2\nFINE\t1\n");
    const RapportoImportazione report = importaArchivio(sample("vuoto.mdb"), to, {}, reader);
    const QStringList odd = {"Piatti.DataInserimento: valori di un altro tipo, convertiti: 1",
                             "Piatti.DataInserimento: valori di un altro tipo, lasciati come sono: 1",
                             "Piatti.quantita: valori di un altro tipo, convertiti: 1",
                             "Piatti.quantita: valori di un altro tipo, lasciati come sono: 1",
                             "Piatti.KC100gr: valori con più di 15 cifre, arrotondati: 1"};
    EXPECT_EQ(report.note.mid(report.note.size() - odd.size()), odd);
    const RawArchive archive(to, {});
    EXPECT_EQ(archive.rows("SELECT ID, DataInserimento, Piatto, quantita, KC100gr FROM Piatti ORDER BY ID"),
              (QJsonArray{QJsonArray{7, "2025-02-03", "Pane", 12.5, 1.5},
                          QJsonArray{9, "ieri", "Riso", "una tazza", 922337203685477.5807}}));
}

TEST_F(ImportaArchivioTest, WhatTheProgramDoesNotKnowKeepsItsTypesAndKey)
{
    readerSends("CIBRA-MDB 1\nTABELLA\tTutto \"d'altri\"\t2\nCOLONNA\tN°\tlungo\t4\tC\nCOLONNA\tsì\tsino\t1\t-\n"
                "COLONNA\tsoldi\tvaluta\t8\t-\nCOLONNA\ttanti soldi\tvaluta\t8\t-\nCOLONNA\tsingola\tsingola\t4\t-\n"
                "COLONNA\tfoto\tole\t0\t-\nCOLONNA\tguid\tguid\t16\t-\nCOLONNA\tquando\tdata\t8\t-\nCHIAVE\tN°\n"
                "RIGA\ti3\tv1\te12.5000\te922337203685477.5807\tf3dcccccd\tx00ff\tt{A}\td40e65d0000000000\n"
                "RIGA\ti1\tv0\t-\t-\t-\t-\t-\t-\nFINETABELLA\t2\n"
                "TABELLA\tMenuGiorno\t0\nCOLONNA\ta\tlungo\t4\t-\nCOLONNA\tb\ttesto\t20\t-\nCHIAVE\ta\tb\n"
                "FINETABELLA\t0\nFINE\t2\n");
    const RapportoImportazione report = importaArchivio(sample("vuoto.mdb"), to, {}, reader);
    EXPECT_EQ(report.note,
              QStringList({"nel file non c'è nessuna tabella di questo programma",
                           "la tabella \"MenuGiorno\" si chiama ora \"importata_MenuGiorno\"",
                           "MenuGiorno: la chiave \"a, b\" non è un numero intero e non è portata come chiave"}));
    const RawArchive archive(to, {});
    EXPECT_EQ(archive.rows("SELECT * FROM \"Tutto \"\"d'altri\"\"\""),
              (QJsonArray{QJsonArray{1, 0, {}, {}, {}, {}, {}, {}},
                          QJsonArray{3, 1, 12.5, "922337203685477.5807", 0.1, "bytes 00ff", "{A}", "2025-05-23"}}));
    EXPECT_EQ(
        archive.rows("SELECT sql FROM sqlite_master WHERE name LIKE 'Tutto%'").at(0).toArray().at(0).toString(),
        "CREATE TABLE \"Tutto \"\"d'altri\"\"\" (\"N°\" INTEGER PRIMARY KEY AUTOINCREMENT, \"sì\" BOOLEAN NOT NULL "
        "DEFAULT 0, \"soldi\" REAL, \"tanti soldi\" VARCHAR(40) COLLATE NOCASE, \"singola\" REAL, \"foto\" BLOB, "
        "\"guid\" VARCHAR(38) COLLATE NOCASE, \"quando\" DATE)");
}

// The forms let a person type as many characters as the column is wide.
TEST_F(ImportaArchivioTest, AColumnOfOursIsAsWideAsTheFilesAndNeverNarrower)
{
    readerSends("CIBRA-MDB 1\nTABELLA\tPiatti\t0\nCOLONNA\tID\tlungo\t4\tC\nCOLONNA\tPiatto\ttesto\t510\t-\n"
                "COLONNA\tAlimento\ttesto\t20\t-\nFINETABELLA\t0\nFINE\t1\n");
    importaArchivio(sample("vuoto.mdb"), to, {}, reader);
    const RawArchive archive(to, {});
    const QString sql =
        archive.rows("SELECT sql FROM sqlite_master WHERE name = 'Piatti'").at(0).toArray().at(0).toString();
    EXPECT_TRUE(sql.contains("Piatto          VARCHAR(255) COLLATE NOCASE")) << sql.toStdString();
    EXPECT_TRUE(sql.contains("Alimento        VARCHAR(100) COLLATE NOCASE")) << sql.toStdString();
    EXPECT_EQ(archive.rows("SELECT name FROM sqlite_master WHERE sql LIKE '%VARCHAR(255)%'"),
              (QJsonArray{QJsonArray{"Piatti"}}));
}

TEST_F(ImportaArchivioTest, ATableThatGetsAnotherNameTakesThatOfNoOther)
{
    const QByteArray column = "COLONNA\ta\tlungo\t4\t-\nFINETABELLA\t0\n";
    readerSends("CIBRA-MDB 1\nTABELLA\timportata_menugiorno\t0\n" + column + "TABELLA\tMenuGiorno\t0\n" + column +
                "FINE\t2\n");
    EXPECT_EQ(importaArchivio(sample("vuoto.mdb"), to, {}, reader).note,
              QStringList({"nel file non c'è nessuna tabella di questo programma",
                           "la tabella \"MenuGiorno\" si chiama ora \"importata_importata_MenuGiorno\""}));
}

} // namespace
