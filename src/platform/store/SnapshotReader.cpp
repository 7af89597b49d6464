#include "platform/store/SnapshotReader.h"

namespace {

Cell readCell(sqlite3_stmt *statement, int column, Snapshot &snapshot)
{
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
        return Cell::ofWhole(sqlite3_column_int64(statement, column));
    case SQLITE_FLOAT:
        return Cell::ofNumber(sqlite3_column_double(statement, column));
    case SQLITE_NULL:
        return Cell{};
    default: {
        const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(statement, column));
        return snapshot.text(text, std::size_t(sqlite3_column_bytes(statement, column)));
    }
    }
}

} // namespace

void readRows(Statement &statement, bool anyRow, int columns, Snapshot &snapshot, const QString &told)
{
    for (bool row = anyRow; row; row = statement.step(told)) {
        Cell *const cells = snapshot.addRow();
        for (int column = 0; column < columns; ++column)
            cells[column] = readCell(statement.handle(), column, snapshot);
    }
}
