#include "FlussoMdb.h"

#include "platform/Failure.h"

#include <array>
#include <cstring>
#include <utility>

namespace {

constexpr QByteArrayView kInizio("CIBRA-MDB 1");
constexpr qsizetype kMostColumns = 255; // of a Jet table

struct TypeName
{
    TipoMdb type;
    QByteArrayView name;
    char sign; // of its values
};
constexpr std::array kTypes = {
    TypeName{TipoMdb::SiNo, "sino", 'v'},       TypeName{TipoMdb::Byte, "byte", 'i'},
    TypeName{TipoMdb::Intero, "intero", 'i'},   TypeName{TipoMdb::InteroLungo, "lungo", 'i'},
    TypeName{TipoMdb::Valuta, "valuta", 'e'},   TypeName{TipoMdb::Singola, "singola", 'f'},
    TypeName{TipoMdb::Doppia, "doppia", 'n'},   TypeName{TipoMdb::Data, "data", 'd'},
    TypeName{TipoMdb::Binario, "binario", 'x'}, TypeName{TipoMdb::Testo, "testo", 't'},
    TypeName{TipoMdb::Ole, "ole", 'x'},         TypeName{TipoMdb::Memo, "memo", 't'},
    TypeName{TipoMdb::Guid, "guid", 't'},       TypeName{TipoMdb::Decimale, "decimale", 'e'},
};

[[noreturn]] void guasto(const QString &words)
{
    throw Failure(FailureNumber::Engine, words);
}

[[noreturn]] void disordine()
{
    guasto(QStringLiteral("la lettura dà righe senza senso"));
}

const TypeName &typeOf(TipoMdb type)
{
    for (const TypeName &known : kTypes)
        if (known.type == type)
            return known;
    disordine();
}

QByteArray escaped(const QString &text)
{
    QByteArray bytes = text.toUtf8();
    bytes.replace('\\', "\\\\").replace('\t', "\\t").replace('\n', "\\n").replace('\r', "\\r");
    return bytes.replace(QByteArray(1, '\0'), "\\0");
}

char meantBy(char sign)
{
    switch (sign) {
    case '\\':
        return '\\';
    case 't':
        return '\t';
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case '0':
        return '\0';
    default:
        disordine();
    }
}

QString unescaped(QByteArrayView bytes)
{
    QByteArray plain;
    plain.reserve(bytes.size());
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        if (bytes[i] != '\\') {
            plain += bytes[i];
            continue;
        }
        if (++i == bytes.size())
            disordine();
        plain += meantBy(bytes[i]);
    }
    return QString::fromUtf8(plain);
}

// A name that an archive can have.
QString nameIn(QByteArrayView bytes)
{
    const QString name = unescaped(bytes);
    if (name.isEmpty() || name.contains(QChar::Null))
        disordine();
    return name;
}

qint64 wholeIn(QByteArrayView bytes)
{
    bool good = false;
    const qint64 whole = bytes.toByteArray().toLongLong(&good);
    if (!good)
        disordine();
    return whole;
}

qint64 countIn(QByteArrayView bytes)
{
    const qint64 count = wholeIn(bytes);
    if (count < 0)
        disordine();
    return count;
}

// The bits of a number, exactly.
template <typename Bits, typename Number>
QByteArray bitsOf(Number number)
{
    static_assert(sizeof(Bits) == sizeof(Number));
    Bits bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    return QByteArray::number(qulonglong(bits), 16);
}

template <typename Bits, typename Number>
Number numberIn(QByteArrayView hex)
{
    bool good = false;
    const qulonglong wide = hex.toByteArray().toULongLong(&good, 16);
    const Bits bits = static_cast<Bits>(wide);
    if (!good || bits != wide)
        disordine();
    Number number = 0;
    std::memcpy(&number, &bits, sizeof number);
    return number;
}

DecimaleMdb decimalIn(QByteArrayView bytes)
{
    const QString digits = QString::fromLatin1(bytes);
    bool good = false;
    digits.toDouble(&good);
    if (!good)
        disordine();
    return {digits};
}

QByteArray bytesIn(QByteArrayView hex)
{
    const QByteArray bytes = QByteArray::fromHex(hex.toByteArray());
    if (hex.size() % 2 != 0 || bytes.size() * 2 != hex.size())
        disordine();
    return bytes;
}

struct ValueWriter
{
    QByteArray operator()(std::monostate) const { return "-"; }
    QByteArray operator()(qint64 whole) const { return "i" + QByteArray::number(whole); }
    QByteArray operator()(double number) const { return "n" + bitsOf<quint64>(number); }
    QByteArray operator()(float number) const { return "f" + bitsOf<quint32>(number); }
    QByteArray operator()(const DecimaleMdb &decimal) const { return "e" + decimal.cifre.toLatin1(); }
    QByteArray operator()(DataMdb day) const { return "d" + bitsOf<quint64>(day.giorni); }
    QByteArray operator()(bool yes) const { return yes ? "v1" : "v0"; }
    QByteArray operator()(const QString &text) const { return "t" + escaped(text); }
    QByteArray operator()(const QByteArray &bytes) const { return "x" + bytes.toHex(); }
};

ValoreMdb valueIn(QByteArrayView field, TipoMdb type)
{
    if (field == QByteArrayView("-"))
        return {};
    if (field.isEmpty() || field[0] != typeOf(type).sign)
        disordine();
    const QByteArrayView content = field.sliced(1);
    switch (field[0]) {
    case 'i':
        return wholeIn(content);
    case 'n':
        return numberIn<quint64, double>(content);
    case 'f':
        return numberIn<quint32, float>(content);
    case 'e':
        return decimalIn(content);
    case 'd':
        return DataMdb{numberIn<quint64, double>(content)};
    case 'v':
        if (content != QByteArrayView("0") && content != QByteArrayView("1"))
            disordine();
        return content == QByteArrayView("1");
    case 't':
        return unescaped(content);
    default:
        return bytesIn(content);
    }
}

QList<QByteArrayView> fieldsOf(QByteArrayView line)
{
    QList<QByteArrayView> fields;
    for (qsizetype from = 0; from <= line.size();) {
        const qsizetype tab = line.indexOf('\t', from);
        const qsizetype to = tab < 0 ? line.size() : tab;
        fields += line.sliced(from, to - from);
        from = to + 1;
    }
    return fields;
}

QByteArray joined(const QByteArrayList &fields)
{
    return fields.join('\t') + '\n';
}

} // namespace

QByteArray rigaInizio()
{
    return kInizio.toByteArray() + '\n';
}

QByteArray rigaTabella(const QString &name, qint64 declaredRows)
{
    return joined({"TABELLA", escaped(name), QByteArray::number(declaredRows)});
}

QByteArray rigaColonna(const ColonnaMdb &column)
{
    return joined({"COLONNA", escaped(column.nome), typeOf(column.tipo).name.toByteArray(),
                   QByteArray::number(column.ampiezza), column.contatore ? "C" : "-"});
}

QByteArray rigaChiave(const QStringList &columns)
{
    QByteArrayList fields = {"CHIAVE"};
    for (const QString &column : columns)
        fields += escaped(column);
    return joined(fields);
}

QByteArray rigaValori(const RigaMdb &row)
{
    QByteArrayList fields = {"RIGA"};
    for (const ValoreMdb &value : row)
        fields += std::visit(ValueWriter(), value);
    return joined(fields);
}

QByteArray rigaFineTabella(qint64 rows)
{
    return joined({"FINETABELLA", QByteArray::number(rows)});
}

QByteArray rigaNota(const QString &words)
{
    return joined({"NOTA", escaped(words)});
}

QByteArray rigaGuasto(const QString &words)
{
    return joined({"GUASTO", escaped(words)});
}

QByteArray rigaFine(qint64 tables)
{
    return joined({"FINE", QByteArray::number(tables)});
}

void LettoreFlusso::aggiungi(const QByteArray &bytes)
{
    qsizetype searched = m_rest.size();
    m_rest += bytes;
    qsizetype from = 0;
    for (qsizetype end = 0; (end = m_rest.indexOf('\n', searched)) >= 0; searched = from = end + 1)
        line(QByteArrayView(m_rest).sliced(from, end - from));
    m_rest.remove(0, from);
}

ContenutoMdb LettoreFlusso::prendi()
{
    expect(finito() && m_rest.isEmpty());
    return std::exchange(m_content, {});
}

void LettoreFlusso::expect(bool condition) const
{
    if (!condition)
        disordine();
}

void LettoreFlusso::line(QByteArrayView text)
{
    if (m_state == State::Start) {
        expect(text == kInizio);
        m_state = State::BetweenTables;
        return;
    }
    const QList<QByteArrayView> fields = fieldsOf(text);
    lineOf(fields[0].toByteArray(), fields.sliced(1));
}

void LettoreFlusso::lineOf(const QByteArray &word, const QList<QByteArrayView> &fields)
{
    expect(m_state != State::Done);
    if (word == "RIGA")
        row(fields);
    else if (word == "TABELLA")
        table(fields);
    else if (word == "COLONNA")
        column(fields);
    else if (word == "CHIAVE")
        key(fields);
    else if (word == "FINETABELLA")
        endOfTable(fields);
    else if (word == "FINE")
        end(fields);
    else if (word == "NOTA" && fields.size() == 1)
        m_content.note += unescaped(fields[0]);
    else if (word == "GUASTO" && fields.size() == 1)
        guasto(unescaped(fields[0]));
    else
        disordine();
}

void LettoreFlusso::table(const QList<QByteArrayView> &fields)
{
    expect(m_state == State::BetweenTables && fields.size() == 2);
    TabellaMdb next;
    next.nome = nameIn(fields[0]);
    next.righeDichiarate = countIn(fields[1]);
    for (const TabellaMdb &other : m_content.tabelle)
        expect(other.nome.compare(next.nome, Qt::CaseInsensitive) != 0);
    m_content.tabelle.push_back(std::move(next));
    m_state = State::Columns;
}

void LettoreFlusso::column(const QList<QByteArrayView> &fields)
{
    expect(m_state == State::Columns && fields.size() == 4);
    QList<ColonnaMdb> &columns = m_content.tabelle.back().colonne;
    ColonnaMdb next;
    next.nome = nameIn(fields[0]);
    expect(columns.size() < kMostColumns);
    for (const ColonnaMdb &other : std::as_const(columns))
        expect(other.nome.compare(next.nome, Qt::CaseInsensitive) != 0);
    bool known = false;
    for (const TypeName &type : kTypes)
        if (type.name == fields[1]) {
            next.tipo = type.type;
            known = true;
        }
    const qint64 size = countIn(fields[2]);
    expect(known && size <= 0xffff);
    next.ampiezza = int(size);
    next.contatore = fields[3] == QByteArrayView("C");
    columns += next;
}

void LettoreFlusso::key(const QList<QByteArrayView> &fields)
{
    expect(m_state == State::Columns && m_content.tabelle.back().chiave.isEmpty());
    for (const QByteArrayView field : fields)
        m_content.tabelle.back().chiave += unescaped(field);
}

void LettoreFlusso::row(const QList<QByteArrayView> &fields)
{
    expect(m_state == State::Columns || m_state == State::Rows);
    m_state = State::Rows;
    TabellaMdb &owner = m_content.tabelle.back();
    expect(fields.size() == owner.colonne.size() && qint64(owner.righe.size()) < owner.righeDichiarate);
    RigaMdb values;
    values.reserve(size_t(fields.size()));
    for (qsizetype i = 0; i < fields.size(); ++i)
        values.push_back(valueIn(fields[i], owner.colonne[i].tipo));
    owner.righe.push_back(std::move(values));
}

void LettoreFlusso::endOfTable(const QList<QByteArrayView> &fields)
{
    expect((m_state == State::Columns || m_state == State::Rows) && fields.size() == 1);
    const TabellaMdb &owner = m_content.tabelle.back();
    const qint64 sent = countIn(fields[0]);
    expect(sent == qint64(owner.righe.size()) && !owner.colonne.isEmpty());
    if (sent != owner.righeDichiarate)
        guasto(QStringLiteral("tabella \"%1\": righe lette: %2, dichiarate: %3")
                   .arg(owner.nome)
                   .arg(sent)
                   .arg(owner.righeDichiarate));
    m_state = State::BetweenTables;
}

void LettoreFlusso::end(const QList<QByteArrayView> &fields)
{
    expect(m_state == State::BetweenTables && fields.size() == 1);
    expect(countIn(fields[0]) == qint64(m_content.tabelle.size()));
    m_state = State::Done;
}
