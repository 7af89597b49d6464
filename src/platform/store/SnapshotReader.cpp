#include "platform/store/SnapshotReader.h"

#include <cstring>

namespace {

// Neighbouring rows have many texts in common: the day, the meal, the dish. They are kept once.
Cell textCell(const char *text, std::uint32_t size, const Cell *above, Snapshot &snapshot)
{
    const bool repeated = size > 0 && above != nullptr && above->kind == Cell::Kind::Text && above->length == size &&
                          std::memcmp(above->text, text, size) == 0;
    return repeated ? *above : snapshot.text(text, size);
}

// `above` is the cell of the row before, null for the first.
Cell readCell(sqlite3_stmt *statement, int column, const Cell *above, Snapshot &snapshot)
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
        return textCell(text, std::uint32_t(sqlite3_column_bytes(statement, column)), above, snapshot);
    }
    }
}

} // namespace

void readRows(Statement &statement, bool anyRow, int columns, Snapshot &snapshot, const QString &told)
{
    const Cell *above = nullptr;
    for (bool row = anyRow; row; row = statement.step(told)) {
        Cell *const cells = snapshot.addUnsetRow();
        for (int column = 0; column < columns; ++column)
            cells[column] = readCell(statement.handle(), column, above == nullptr ? nullptr : above + column, snapshot);
        above = cells;
    }
}
