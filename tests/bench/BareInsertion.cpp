#include "BareInsertion.h"

#include "platform/store/Recordset.h"

#include <sqlcipher/sqlite3.h>

#include <stdexcept>

namespace {

void check(sqlite3 *handle, int result)
{
    if (result != SQLITE_OK && result != SQLITE_DONE)
        throw std::runtime_error(sqlite3_errmsg(handle));
}

void bindCell(sqlite3_stmt *statement, int parameter, const BareCell &cell)
{
    if (const auto *number = std::get_if<double>(&cell))
        sqlite3_bind_double(statement, parameter, *number);
    else if (const auto *text = std::get_if<QByteArray>(&cell))
        sqlite3_bind_text(statement, parameter, text->constData(), int(text->size()), SQLITE_STATIC);
    else
        sqlite3_bind_null(statement, parameter);
}

void insertTable(sqlite3 *handle, const BareTable &table)
{
    sqlite3_stmt *statement = nullptr;
    check(handle, sqlite3_prepare_v2(handle, table.insertion.constData(), -1, &statement, nullptr));
    for (std::size_t cell = 0; cell < table.cells.size();) {
        for (int column = 1; column <= table.columns; ++column)
            bindCell(statement, column, table.cells[cell++]);
        check(handle, sqlite3_step(statement));
        sqlite3_reset(statement);
    }
    sqlite3_finalize(statement);
}

BareCell bareCell(const Value &value)
{
    if (value.isNull())
        return {};
    if (const auto *day = std::get_if<QDate>(&value.held()))
        return day->toString(Qt::ISODate).toUtf8();
    if (const auto *text = std::get_if<QString>(&value.held()))
        return text->toUtf8();
    return value.number();
}

} // namespace

BareTable readBare(Connection &connection, const QString &name)
{
    Recordset rows;
    rows.Open("Select * from " + name, connection, Recordset::Access::ReadOnly);
    BareTable table;
    table.columns = rows.fieldCount();
    QByteArrayList marks;
    for (int column = 0; column < table.columns; ++column)
        marks << "?";
    table.insertion = "INSERT INTO " + name.toUtf8() + " VALUES (" + marks.join(",") + ")";
    for (int row = 0; row < rows.RecordCount(); ++row)
        for (int column = 0; column < table.columns; ++column)
            table.cells.push_back(bareCell(rows.valueAt(row, column)));
    return table;
}

void insertBare(const QString &archive, const std::vector<BareTable> &tables)
{
    sqlite3 *handle = nullptr;
    check(handle, sqlite3_open(archive.toUtf8().constData(), &handle));
    check(handle,
          sqlite3_exec(handle, "PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL; BEGIN", nullptr, nullptr, nullptr));
    for (const BareTable &table : tables)
        insertTable(handle, table);
    check(handle, sqlite3_exec(handle, "COMMIT", nullptr, nullptr, nullptr));
    sqlite3_close(handle);
}
