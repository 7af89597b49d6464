// What the reading of a Jet file hands over: tables with their columns, keys and rows, line by line.
//
// The reader runs in a process of its own and writes this stream to its output; the importer reads it back. A line is
// a word and its fields, divided by tabs:
//
//   CIBRA-MDB 1
//   TABELLA   name  rows declared by the file
//   COLONNA   name  type  size  C where the engine counts it up, else -
//   CHIAVE    column ...
//   RIGA      value ...        as many as there are columns
//   FINETABELLA  rows sent
//   NOTA      words            something odd that is no damage
//   GUASTO    words            the file is damaged; nothing follows
//   FINE      tables sent      the last line of a whole stream
//
// A value is a sign and its content: "-" null, "i" whole number, "n" double and "d" day as the bits in hexadecimal,
// "f" the same of a single, "e" decimal in digits, "v" 0 or 1, "t" text, "x" bytes in hexadecimal. In names and texts
// "\\", "\t", "\n", "\r" and "\0" stand for themselves.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <variant>
#include <vector>

enum class TipoMdb
{
    SiNo,
    Byte,
    Intero,
    InteroLungo,
    Valuta,
    Singola,
    Doppia,
    Data,
    Binario,
    Testo,
    Ole,
    Memo,
    Guid,
    Decimale
};

struct DecimaleMdb
{
    QString cifre; // as the file has them, with a point
    friend bool operator==(const DecimaleMdb &, const DecimaleMdb &) = default;
};

struct DataMdb
{
    double giorni = 0; // since 30/12/1899; the fraction is the time of the day, before that day too
    friend bool operator==(const DataMdb &, const DataMdb &) = default;
};

using ValoreMdb = std::variant<std::monostate, qint64, double, float, DecimaleMdb, DataMdb, bool, QString, QByteArray>;
using RigaMdb = std::vector<ValoreMdb>;

struct ColonnaMdb
{
    QString nome;
    TipoMdb tipo = TipoMdb::Testo;
    int ampiezza = 0; // in bytes, as the file declares it
    bool contatore = false;
};

struct TabellaMdb
{
    QString nome;
    qint64 righeDichiarate = 0;
    QList<ColonnaMdb> colonne;
    QStringList chiave;
    std::vector<RigaMdb> righe;
};

struct ContenutoMdb
{
    std::vector<TabellaMdb> tabelle;
    QStringList note;
    int bytePerLettera = 2; // of the declared size of a text; 1 in Jet 3
};

// Lines of the stream, with their line end.
QByteArray rigaInizio();
QByteArray rigaTabella(const QString &name, qint64 declaredRows);
QByteArray rigaColonna(const ColonnaMdb &column);
QByteArray rigaChiave(const QStringList &columns);
QByteArray rigaValori(const RigaMdb &row);
QByteArray rigaFineTabella(qint64 rows);
QByteArray rigaNota(const QString &words);
QByteArray rigaGuasto(const QString &words);
QByteArray rigaFine(qint64 tables);

// Takes the stream in pieces of any length. Whatever breaks its rules throws Failure(Engine): a line out of place, a
// value that does not fit its column, rows that differ from what was declared, and the damage that the reader tells.
class LettoreFlusso
{
public:
    void aggiungi(const QByteArray &bytes);
    bool finito() const { return m_state == State::Done; }
    // The content of a whole stream; throws Failure(Engine) where it is none.
    ContenutoMdb prendi();

private:
    enum class State
    {
        Start,
        BetweenTables,
        Columns,
        Rows,
        Done
    };
    void line(QByteArrayView text);
    void lineOf(const QByteArray &word, const QList<QByteArrayView> &fields);
    void expect(bool condition) const;
    void table(const QList<QByteArrayView> &fields);
    void column(const QList<QByteArrayView> &fields);
    void key(const QList<QByteArrayView> &fields);
    void row(const QList<QByteArrayView> &fields);
    void endOfTable(const QList<QByteArrayView> &fields);
    void end(const QList<QByteArrayView> &fields);

    State m_state = State::Start;
    QByteArray m_rest; // of the line under way
    ContenutoMdb m_content;
};
