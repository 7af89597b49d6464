#include "Csv.h"

#include "platform/Failure.h"

#include <QFile>

#include <utility>

namespace {

// Cuts the text into rows of cells; a cell in double quotes may hold commas, line ends and doubled quotes.
std::vector<QStringList> rowsOf(const QString &text)
{
    std::vector<QStringList> rows;
    QStringList row;
    QString cell;
    bool quoted = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar sign = text[i];
        if (quoted && sign == '"' && i + 1 < text.size() && text[i + 1] == '"') {
            cell += sign;
            ++i;
        } else if (sign == '"') {
            quoted = !quoted;
        } else if (!quoted && (sign == ',' || sign == '\n')) {
            row += cell;
            cell.clear();
            if (sign == '\n')
                rows.push_back(std::exchange(row, {}));
        } else if (quoted || sign != '\r') {
            cell += sign;
        }
    }
    if (!row.isEmpty() || !cell.isEmpty())
        rows.push_back(row << cell);
    return rows;
}

} // namespace

CsvTable CsvTable::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw Failure::usual(FailureNumber::FileNotFound, path);
    return fromText(QString::fromUtf8(file.readAll()), path);
}

CsvTable CsvTable::fromText(const QString &text, const QString &name)
{
    CsvTable table;
    table.m_name = name;
    table.m_rows = rowsOf(text);
    if (table.m_rows.empty())
        throw Failure(FailureNumber::Engine, QStringLiteral("%1: manca la riga dei nomi").arg(name));
    table.m_columns = table.m_rows.front();
    table.m_rows.erase(table.m_rows.begin());
    for (size_t i = 0; i < table.m_rows.size(); ++i)
        if (table.m_rows[i].size() != table.m_columns.size())
            throw Failure(FailureNumber::Engine, QStringLiteral("%1: la riga %2 ha %3 campi invece di %4")
                                                     .arg(name)
                                                     .arg(i + 2)
                                                     .arg(table.m_rows[i].size())
                                                     .arg(table.m_columns.size()));
    return table;
}

const QString &CsvTable::cell(int row, const QString &column) const
{
    const qsizetype index = m_columns.indexOf(column);
    if (index < 0)
        throw Failure::usual(FailureNumber::NoSuchField, m_name + ": " + column);
    return m_rows[size_t(row)][index];
}
