#include "LeggiMdb.h"

#include "FlussoMdb.h"
#include "FormaRiga.h"
#include "platform/text/CodePage.h"
#include "TestoMdb.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <utility>

#include <mdbtools.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>

namespace {

constexpr int kCatalogPage = 2; // of the table of all objects
constexpr const char *kCatalogName = "MSysObjects";
constexpr int kOffsetMask = 0x1fff; // the rest of a row's place are flags
constexpr unsigned char kDataPage = 1;
constexpr size_t kLongHead = 12; // what stands in the row of a memo: length and flags, place, 4 bytes more
constexpr quint32 kInline = 0x80000000;
constexpr quint32 kOnePiece = 0x40000000;
constexpr quint32 kLengthMask = 0x3fffffff;
constexpr int kPrimary = 1; // kind of index
constexpr int kCodePageUsual = 1252;
constexpr qsizetype kSector = 512;
constexpr rlim_t kCpuSeconds = 600; // in case that nobody is left to watch
constexpr rlim_t kMemory = rlim_t(512) * 1024 * 1024;
constexpr rlim_t kMemoryPerByte = 16; // of the file: no value is longer than that, and it is copied a few times
// The sanitizer maps terabytes beforehand. Only clang tells of it by __has_feature, which Qt defines for the others.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool kSanitized = true;
#elif defined(__has_feature)
constexpr bool kSanitized = __has_feature(address_sanitizer);
#else
constexpr bool kSanitized = false;
#endif

// A damage of the file, in words that follow "il file è danneggiato: ".
struct Guasto
{
    QString words;
};

struct CloseHandle
{
    void operator()(MdbHandle *handle) const { mdb_close(handle); }
};
struct FreeTable
{
    void operator()(MdbTableDef *table) const { mdb_free_tabledef(table); }
};
using Handle = std::unique_ptr<MdbHandle, CloseHandle>;
using Table = std::unique_ptr<MdbTableDef, FreeTable>;

bool typeOf(int type, TipoMdb &found)
{
    static constexpr std::pair<int, TipoMdb> kTypes[] = {
        {MDB_BOOL, TipoMdb::SiNo},           {MDB_BYTE, TipoMdb::Byte},        {MDB_INT, TipoMdb::Intero},
        {MDB_LONGINT, TipoMdb::InteroLungo}, {MDB_MONEY, TipoMdb::Valuta},     {MDB_FLOAT, TipoMdb::Singola},
        {MDB_DOUBLE, TipoMdb::Doppia},       {MDB_DATETIME, TipoMdb::Data},    {MDB_BINARY, TipoMdb::Binario},
        {MDB_TEXT, TipoMdb::Testo},          {MDB_OLE, TipoMdb::Ole},          {MDB_MEMO, TipoMdb::Memo},
        {MDB_REPID, TipoMdb::Guid},          {MDB_NUMERIC, TipoMdb::Decimale},
    };
    for (const auto &[number, known] : kTypes)
        if (number == type) {
            found = known;
            return true;
        }
    return false;
}

// One field of the row at hand, copied out of the page, which the reading of a memo overwrites.
struct Campo
{
    bool isNull = true;
    int start = 0;
    QByteArray bytes;
};

template <typename Number>
Number numberAt(const QByteArray &bytes)
{
    if (bytes.size() < qsizetype(sizeof(Number)))
        throw Guasto{QStringLiteral("un valore è più corto del suo tipo")};
    return qFromLittleEndian<Number>(bytes.constData());
}

QString valuta(qint64 tenThousandths)
{
    const QString digits = QString::number(tenThousandths < 0 ? 0 - quint64(tenThousandths) : quint64(tenThousandths));
    const QString padded = digits.rightJustified(5, u'0');
    return (tenThousandths < 0 ? QStringLiteral("-") : QString()) + padded.chopped(4) + u'.' + padded.right(4);
}

QString guid(const QByteArray &bytes)
{
    if (bytes.size() != 16)
        throw Guasto{QStringLiteral("un valore è più corto del suo tipo")};
    const QString last = QString::fromLatin1(bytes.sliced(8).toHex());
    return QStringLiteral("{%1-%2-%3-%4-%5}")
        .arg(numberAt<quint32>(bytes), 8, 16, QChar(u'0'))
        .arg(numberAt<quint16>(bytes.sliced(4)), 4, 16, QChar(u'0'))
        .arg(numberAt<quint16>(bytes.sliced(6)), 4, 16, QChar(u'0'))
        .arg(last.left(4), last.mid(4))
        .toUpper();
}

// How many columns the table has ever had, those that were deleted among them: it stands before the number of those
// that it has now.
int colonneDiSempre(MdbHandle *mdb, const MdbCatalogEntry *entry)
{
    constexpr int kBeforeJet3 = 21;
    constexpr int kBeforeJet4 = 41;
    if (mdb_read_pg(mdb, entry->table_pg) != mdb->fmt->pg_size)
        return 0;
    return mdb_get_int16(mdb->pg_buf, IS_JET3(mdb) ? kBeforeJet3 : kBeforeJet4);
}

// Steps through the rows of a table, and trusts none that the engine cannot have written.
class Righe
{
public:
    // The table must stay.
    Righe(MdbHandle *mdb, MdbTableDef *table)
        : m_mdb(mdb), m_table(table),
          m_declared(table->num_rows), m_form{IS_JET3(mdb) ? 3 : 4, colonneDiSempre(mdb, table->entry),
                                              table->num_var_cols > 0}
    {
        if (m_form.colonne < int(table->num_cols))
            throw Guasto{QStringLiteral("le colonne non sono quante ne dichiara")};
        // The library looks for rows in no table that says it has none.
        m_table->num_rows = std::max(1U, m_table->num_rows);
        mdb_rewind_table(m_table);
    }
    ~Righe() { m_table->num_rows = m_declared; }
    Righe(const Righe &) = delete;
    Righe &operator=(const Righe &) = delete;

    unsigned dichiarate() const { return m_declared; }
    unsigned lette() const { return m_read; }
    int inizio() const { return m_start; }
    size_t lunghezza() const { return m_size; }

    // Stands on the next row, which is in the handle's page then; false behind the last one. Throws Guasto where the
    // rows are not as many as the table declares.
    bool prossima()
    {
        const bool found = mdb_fetch_row(m_table) != 0;
        if (found && m_read == m_declared)
            throw Guasto{QStringLiteral("ci sono più righe di quante ne dichiara (%1)").arg(m_declared)};
        if (!found && m_read != m_declared)
            throw Guasto{QStringLiteral("righe lette: %1, dichiarate: %2").arg(m_read).arg(m_declared)};
        if (!found)
            return false;
        // The library has already stepped on.
        if (m_table->cur_row == 0 || mdb_find_row(m_mdb, int(m_table->cur_row - 1), &m_start, &m_size) != 0)
            throw Guasto{QStringLiteral("una riga non si trova")};
        m_start &= kOffsetMask;
        if (!rigaIntera({m_mdb->pg_buf + m_start, qsizetype(m_size)}, m_form))
            throw Guasto{QStringLiteral("una riga è azzerata o rovinata")};
        ++m_read;
        return true;
    }

private:
    MdbHandle *m_mdb;
    MdbTableDef *m_table;
    unsigned m_declared;
    FormaRiga m_form;
    unsigned m_read = 0;
    int m_start = 0;
    size_t m_size = 0;
};

// Reads one table, row by row.
class LettoreTabella
{
public:
    LettoreTabella(MdbHandle *mdb, qint64 pages, MdbCatalogEntry *entry, std::FILE *out)
        : m_mdb(mdb), m_pages(pages), m_name(QString::fromUtf8(entry->object_name)), m_table(mdb_read_table(entry)),
          m_out(out)
    {
        if (!m_table || !mdb_read_columns(m_table.get()))
            fail(QStringLiteral("non si legge la descrizione"));
    }

    void run()
    {
        put(rigaTabella(m_name, m_table->num_rows));
        columns();
        key();
        rows();
    }

private:
    [[noreturn]] static void fail(const QString &words) { throw Guasto{words}; }
    void put(const QByteArray &line) const { std::fwrite(line.constData(), 1, size_t(line.size()), m_out); }
    MdbColumn *column(unsigned index) const
    {
        return static_cast<MdbColumn *>(g_ptr_array_index(m_table->columns, index));
    }

    void columns()
    {
        if (m_table->num_cols == 0 || m_table->num_cols > MDB_MAX_COLS || m_table->columns->len != m_table->num_cols)
            fail(QStringLiteral("le colonne non sono quante ne dichiara"));
        for (unsigned i = 0; i < m_table->num_cols; ++i) {
            const MdbColumn *told = column(i);
            ColonnaMdb next;
            next.nome = QString::fromUtf8(told->name);
            if (next.nome.isEmpty() || !typeOf(told->col_type, next.tipo))
                fail(QStringLiteral("una colonna non ha nome o è di tipo sconosciuto"));
            next.ampiezza = std::clamp(told->col_size, 0, 0xffff);
            next.contatore = told->is_long_auto != 0;
            m_types.push_back(next.tipo);
            put(rigaColonna(next));
        }
    }

    QString columnNumbered(int number) const
    {
        for (unsigned i = 0; i < m_table->num_cols; ++i)
            if (column(i)->col_num == number)
                return QString::fromUtf8(column(i)->name);
        fail(QStringLiteral("la chiave è di una colonna che non c'è"));
    }

    void key()
    {
        if (m_table->num_idxs == 0)
            return;
        mdb_read_indices(m_table.get());
        QStringList names;
        for (unsigned i = 0; m_table->indices && i < m_table->indices->len; ++i) {
            const auto *index = static_cast<MdbIndex *>(g_ptr_array_index(m_table->indices, i));
            if (index->first_pg >= m_pages) // the rows are read without it, but the file has lost its end
                fail(QStringLiteral("un indice è su una pagina che non c'è"));
            if (index->name[0] == '\0') // the description ends in zeros, and they may have taken the key
                fail(QStringLiteral("un indice non ha nome"));
            if (index->index_type != kPrimary || !names.isEmpty())
                continue;
            for (unsigned k = 0; k < index->num_keys && k < MDB_MAX_IDX_COLS; ++k) {
                m_key.insert(index->key_col_num[k] - 1);
                names += columnNumbered(index->key_col_num[k] - 1);
            }
        }
        if (!names.isEmpty())
            put(rigaChiave(names));
    }

    void rows()
    {
        Righe rows(m_mdb, m_table.get());
        while (rows.prossima())
            put(rigaValori(row(rows)));
        put(rigaFineTabella(rows.lette()));
        if (m_lettersLost)
            put(rigaNota(
                QStringLiteral("%1: lettere che la tabella di codici del file non ha, ora \"?\"").arg(m_name)));
    }

    RigaMdb row(const Righe &rows)
    {
        std::array<MdbField, MDB_MAX_COLS> fields{};
        if (mdb_crack_row(m_table.get(), rows.inizio(), rows.lunghezza(), fields.data()) < 0)
            throw Guasto{QStringLiteral("una riga non si legge")};
        std::vector<Campo> copied;
        for (unsigned i = 0; i < m_table->num_cols; ++i) {
            copied.push_back(field(fields[i]));
            if (copied.back().isNull && m_key.contains(column(i)->col_num))
                throw Guasto{QStringLiteral("una riga non ha la sua chiave")};
        }
        RigaMdb values;
        for (unsigned i = 0; i < m_table->num_cols; ++i)
            values.push_back(value(i, copied[i]));
        return values;
    }

    Campo field(const MdbField &told) const
    {
        Campo copy;
        copy.isNull = told.is_null != 0;
        if (copy.isNull)
            return copy;
        if (told.start < 0 || told.siz < 0 || told.start + qint64(told.siz) > m_mdb->fmt->pg_size)
            fail(QStringLiteral("un valore esce dalla sua pagina"));
        copy.start = told.start;
        copy.bytes = QByteArray(reinterpret_cast<const char *>(m_mdb->pg_buf) + told.start, told.siz);
        return copy;
    }

    ValoreMdb value(unsigned index, const Campo &told)
    {
        const TipoMdb type = m_types[index];
        if (type == TipoMdb::SiNo)
            return !told.isNull; // it stands in the mask of nulls
        if (told.isNull)
            return {};
        switch (type) {
        case TipoMdb::Byte:
            return qint64(numberAt<quint8>(told.bytes));
        case TipoMdb::Intero:
            return qint64(numberAt<qint16>(told.bytes));
        case TipoMdb::InteroLungo:
            return qint64(numberAt<qint32>(told.bytes));
        case TipoMdb::Valuta:
            return DecimaleMdb{valuta(numberAt<qint64>(told.bytes))};
        case TipoMdb::Singola:
            return numberAt<float>(told.bytes);
        case TipoMdb::Doppia:
            return numberAt<double>(told.bytes);
        case TipoMdb::Data:
            return DataMdb{numberAt<double>(told.bytes)};
        case TipoMdb::Decimale:
            return decimal(index, told);
        case TipoMdb::Guid:
            return guid(told.bytes);
        case TipoMdb::Testo:
            return text(told.bytes);
        case TipoMdb::Memo:
            return text(memo(told.bytes));
        case TipoMdb::Ole:
            return longValue(told.bytes);
        default:
            return told.bytes;
        }
    }

    DecimaleMdb decimal(unsigned index, const Campo &told) const
    {
        if (told.bytes.size() < 17)
            fail(QStringLiteral("un valore è più corto del suo tipo"));
        // The library reads it from the page; a memo of the same row may have replaced that meanwhile.
        std::memcpy(m_mdb->pg_buf + told.start, told.bytes.constData(), size_t(told.bytes.size()));
        const MdbColumn *owner = column(index);
        char *digits = mdb_numeric_to_string(m_mdb, told.start, owner->col_scale, owner->col_prec);
        const DecimaleMdb result{QString::fromLatin1(digits)};
        std::free(digits);
        return result;
    }

    QString text(const QByteArray &bytes)
    {
        if (!IS_JET3(m_mdb)) {
            const TestoMdb result = testoJet4(bytes);
            if (!result.buono)
                fail(QStringLiteral("un testo è rovinato"));
            return result.testo;
        }
        if (m_mdb->f->code_page == 0 || m_mdb->f->code_page == kCodePageUsual)
            return fromWindows1252(bytes);
        QByteArray wide(bytes.size() * 4 + 8, '\0');
        const int length =
            mdb_unicode2ascii(m_mdb, bytes.constData(), size_t(bytes.size()), wide.data(), size_t(wide.size() - 1));
        const QString result = QString::fromUtf8(wide.constData(), length);
        m_lettersLost = m_lettersLost || result.count(u'?') > bytes.count('?');
        return result;
    }

    // Letters in which a whole sector is zero were overwritten.
    QByteArray memo(const QByteArray &told)
    {
        QByteArray whole = longValue(told);
        if (whole.contains(QByteArray(kSector, '\0')))
            fail(QStringLiteral("un memo è in parte azzerato"));
        return whole;
    }

    QByteArray longValue(const QByteArray &told)
    {
        if (told.size() < qsizetype(kLongHead))
            fail(QStringLiteral("un memo non ha la sua testata"));
        const auto head = numberAt<quint32>(told);
        const qsizetype length = head & kLengthMask;
        if (length > m_pages * m_mdb->fmt->pg_size)
            fail(QStringLiteral("un memo di %1 byte non sta nel file").arg(length));
        QByteArray whole;
        if (head & kInline) {
            whole = told.sliced(qsizetype(kLongHead));
        } else if (length > 0) {
            auto place = numberAt<quint32>(told.sliced(4));
            if (head & kOnePiece)
                whole = piece(place);
            else
                whole = pieces(place, length);
        }
        if (whole.size() < length)
            fail(QStringLiteral("di un memo di %1 byte se ne leggono %2").arg(length).arg(whole.size()));
        return whole.left(length);
    }

    // A chain: each piece begins with the place of the next one.
    QByteArray pieces(quint32 place, qsizetype length)
    {
        QByteArray whole;
        while (place != 0 && whole.size() < length) {
            const QByteArray next = piece(place);
            if (next.size() <= 4)
                fail(QStringLiteral("un pezzo di un memo è vuoto"));
            place = numberAt<quint32>(next);
            whole += next.sliced(4);
        }
        return whole;
    }

    QByteArray piece(quint32 place)
    {
        void *page = nullptr;
        int start = 0;
        size_t size = 0;
        if (mdb_find_pg_row(m_mdb, int(place), &page, &start, &size) != 0 ||
            static_cast<unsigned char *>(page)[0] != kDataPage ||
            (place & 0xff) >= unsigned(mdb_get_int16(page, m_mdb->fmt->row_count_offset)))
            fail(QStringLiteral("un memo è su una pagina che non c'è"));
        return {static_cast<const char *>(page) + (start & kOffsetMask), qsizetype(size)};
    }

    MdbHandle *m_mdb;
    qint64 m_pages; // of the whole file
    QString m_name;
    Table m_table;
    std::FILE *m_out;
    std::vector<TipoMdb> m_types;
    QSet<int> m_key; // numbers of the columns that no row may leave empty
    bool m_lettersLost = false;
};

class LettoreArchivio
{
public:
    LettoreArchivio(const QString &path, std::FILE *out)
        : m_mdb(mdb_open(QFile::encodeName(path).constData(), MDB_NOFLAGS)), m_out(out)
    {
        if (!m_mdb)
            throw Guasto{QStringLiteral("la testata non si legge")};
        m_pages = QFileInfo(path).size() / m_mdb->fmt->pg_size;
    }

    void run()
    {
        put(rigaInizio());
        if (IS_JET3(m_mdb.get()) && m_mdb->f->code_page != 0 && m_mdb->f->code_page != kCodePageUsual)
            put(rigaNota(QStringLiteral("i testi sono della tabella di codici %1").arg(m_mdb->f->code_page)));
        readCatalog();
        int tables = 0;
        for (unsigned i = 0; i < m_mdb->catalog->len; ++i)
            tables += object(static_cast<MdbCatalogEntry *>(g_ptr_array_index(m_mdb->catalog, i)));
        put(rigaFine(tables));
    }

private:
    void put(const QByteArray &line) const { std::fwrite(line.constData(), 1, size_t(line.size()), m_out); }

    // How many rows the table of all objects has, each of them looked at.
    unsigned objects() const
    {
        MdbCatalogEntry entry{};
        entry.mdb = m_mdb.get();
        entry.object_type = MDB_TABLE;
        entry.table_pg = kCatalogPage;
        qstrcpy(entry.object_name, kCatalogName);
        const Table table(mdb_read_table(&entry));
        if (!table || !mdb_read_columns(table.get()))
            throw Guasto{QStringLiteral("l'elenco delle tabelle non si legge")};
        try {
            Righe rows(m_mdb.get(), table.get());
            while (rows.prossima())
                ;
            return rows.lette();
        } catch (const Guasto &damage) {
            throw Guasto{QStringLiteral("elenco delle tabelle: %1").arg(damage.words)};
        }
    }

    void readCatalog() const
    {
        const unsigned there = objects();
        if (!mdb_read_catalog(m_mdb.get(), MDB_ANY) || !m_mdb->catalog)
            throw Guasto{QStringLiteral("l'elenco delle tabelle non si legge")};
        if (m_mdb->catalog->len != there)
            throw Guasto{QStringLiteral("nell'elenco delle tabelle si leggono %1 oggetti invece di %2")
                             .arg(m_mdb->catalog->len)
                             .arg(there)};
        bool listsItself = false;
        for (unsigned i = 0; i < there; ++i) {
            const auto *entry = static_cast<MdbCatalogEntry *>(g_ptr_array_index(m_mdb->catalog, i));
            if (entry->object_name[0] == '\0')
                throw Guasto{QStringLiteral("nell'elenco delle tabelle un oggetto non ha nome")};
            listsItself =
                listsItself || (entry->table_pg == kCatalogPage && qstricmp(entry->object_name, kCatalogName) == 0);
        }
        if (!listsItself)
            throw Guasto{QStringLiteral("nell'elenco delle tabelle manca l'elenco stesso")};
    }

    // The number of tables that came of it.
    int object(MdbCatalogEntry *entry) const
    {
        const QString name = QString::fromUtf8(entry->object_name);
        if (name.startsWith(u'~'))
            return 0; // what the engine itself keeps aside
        if (entry->object_type == MDB_LINKED_TABLE)
            put(rigaNota(QStringLiteral("la tabella \"%1\" sta in un altro file e non è portata").arg(name)));
        if (entry->object_type == MDB_QUERY)
            put(rigaNota(QStringLiteral("la query \"%1\" non è portata").arg(name)));
        if (!mdb_is_user_table(entry))
            return 0;
        try {
            LettoreTabella(m_mdb.get(), m_pages, entry, m_out).run();
        } catch (const Guasto &damage) {
            throw Guasto{QStringLiteral("tabella \"%1\": %2").arg(name, damage.words)};
        }
        return 1;
    }

    Handle m_mdb;
    qint64 m_pages = 0;
    std::FILE *m_out;
};

} // namespace

void leggiMdb(const QString &path, std::FILE *out)
{
    try {
        LettoreArchivio(path, out).run();
    } catch (const Guasto &damage) {
        const QByteArray line = rigaGuasto(damage.words);
        std::fwrite(line.constData(), 1, size_t(line.size()), out);
    }
    std::fflush(out);
}

void processoLettore(const QString &path)
{
    for (const char *name : {"MDBOPTS", "MDBICONV", "MDB_JET3_CHARSET"})
        qunsetenv(name);
    prctl(PR_SET_PDEATHSIG, SIGKILL); // without whoever asked there is nobody to read for
    const rlimit noCore{0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    const rlimit cpu{kCpuSeconds, kCpuSeconds};
    setrlimit(RLIMIT_CPU, &cpu);

    const rlim_t most = kMemory + kMemoryPerByte * rlim_t(QFileInfo(path).size());
    const rlimit memory{most, most};
    if (!kSanitized)
        setrlimit(RLIMIT_AS, &memory);

    std::FILE *out = fdopen(dup(STDOUT_FILENO), "wb");
    if (!out || !std::freopen("/dev/null", "w", stdout) || !std::freopen("/dev/null", "w", stderr))
        std::_Exit(1);
    leggiMdb(path, out);
    // At once: what the library keeps goes with the process.
    std::_Exit(std::ferror(out) ? 1 : 0);
}
