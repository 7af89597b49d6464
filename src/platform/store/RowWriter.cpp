#include "platform/store/RowWriter.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t kKeptStatements = 16;

void bindCell(Statement &statement, int index, const Cell &cell)
{
    switch (cell.kind) {
    case Cell::Kind::Null:
        statement.bindNull(index);
        break;
    case Cell::Kind::Whole:
        statement.bind(index, cell.whole);
        break;
    case Cell::Kind::Number:
        statement.bind(index, cell.number);
        break;
    case Cell::Kind::Text:
        statement.bind(index, cell.view());
        break;
    }
}

bool sameColumns(const std::vector<int> &columns, const std::vector<CellChange> &cells)
{
    return std::equal(columns.begin(), columns.end(), cells.begin(), cells.end(),
                      [](int column, const CellChange &cell) { return column == cell.column; });
}

} // namespace

RowWriter::RowWriter(sqlite3 *handle, std::shared_ptr<const TableInfo> table)
    : m_handle(handle), m_table(std::move(table))
{
    for (const ColumnInfo &info : m_table->columns)
        m_columnNames.push_back(quotedName(info.name));
}

template <typename Compose>
Statement &RowWriter::prepared(Kept &kept, const std::vector<CellChange> &cells, const QString &told, Compose compose)
{
    for (Prepared &ready : kept)
        if (sameColumns(ready.columns, cells))
            return ready.statement;
    if (kept.size() == kKeptStatements)
        kept.erase(kept.begin());
    std::vector<int> columns;
    for (const CellChange &cell : cells)
        columns.push_back(cell.column);
    kept.push_back({std::move(columns), Statement(m_handle, compose(), told)});
    return kept.back().statement;
}

QByteArray RowWriter::insertText(const std::vector<CellChange> &cells) const
{
    const QByteArray start = "INSERT INTO " + quotedName(m_table->name);
    if (cells.empty())
        return start + " DEFAULT VALUES";
    QByteArrayList names;
    QByteArrayList marks;
    for (const CellChange &cell : cells) {
        names << column(cell.column);
        marks << "?";
    }
    return start + " (" + names.join(", ") + ") VALUES (" + marks.join(", ") + ")";
}

QByteArray RowWriter::updateText(const std::vector<CellChange> &changes) const
{
    QByteArrayList assignments;
    QByteArrayList conditions{"rowid = ?"};
    for (const CellChange &change : changes) {
        assignments << column(change.column) + " = ?";
        // Binary: a change of case by somebody else is a change.
        conditions << column(change.column) + " COLLATE BINARY IS ?";
    }
    return "UPDATE " + quotedName(m_table->name) + " SET " + assignments.join(", ") + " WHERE " +
           conditions.join(" AND ");
}

qint64 RowWriter::insert(const std::vector<CellChange> &cells, const QString &told)
{
    Statement &statement = prepared(m_inserts, cells, told, [&] { return insertText(cells); });
    const StatementRun run(statement);
    for (std::size_t i = 0; i < cells.size(); ++i)
        bindCell(statement, int(i) + 1, cells[i].after);
    statement.step(told);
    return sqlite3_last_insert_rowid(m_handle);
}

bool RowWriter::update(qint64 key, const std::vector<CellChange> &changes, const QString &told)
{
    Statement &statement = prepared(m_updates, changes, told, [&] { return updateText(changes); });
    const StatementRun run(statement);
    const int count = int(changes.size());
    for (int i = 0; i < count; ++i) {
        bindCell(statement, i + 1, changes[std::size_t(i)].after);
        bindCell(statement, count + 2 + i, changes[std::size_t(i)].before);
    }
    statement.bind(count + 1, key);
    statement.step(told);
    return sqlite3_changes(m_handle) > 0;
}

bool RowWriter::remove(qint64 key, const QString &told)
{
    if (!m_remove)
        m_remove = Statement(m_handle, "DELETE FROM " + quotedName(m_table->name) + " WHERE rowid = ?", told);
    const StatementRun run(m_remove);
    m_remove.bind(1, key);
    m_remove.step(told);
    return sqlite3_changes(m_handle) > 0;
}
