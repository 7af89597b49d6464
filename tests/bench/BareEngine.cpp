#include "BareEngine.h"

#include <QFile>

#include <bit>
#include <stdexcept>

namespace {

void check(sqlite3 *handle, int rc)
{
    if (rc != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(handle));
}

std::uint64_t readColumn(sqlite3_stmt *statement, int column)
{
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
        return std::uint64_t(sqlite3_column_int64(statement, column));
    case SQLITE_FLOAT:
        return std::bit_cast<std::uint64_t>(sqlite3_column_double(statement, column));
    case SQLITE_NULL:
        return 0;
    default:
        return sqlite3_column_text(statement, column)[0] + std::uint64_t(sqlite3_column_bytes(statement, column));
    }
}

} // namespace

BareEngine::BareEngine(const QString &path)
{
    sqlite3 *raw = nullptr;
    const int rc = sqlite3_open_v2(QFile::encodeName(path).constData(), &raw,
                                   SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    m_handle.reset(raw);
    check(raw, rc);
    run("PRAGMA journal_mode=WAL");
    run("PRAGMA synchronous=NORMAL");
    run("PRAGMA cache_size=-16000");
}

void BareEngine::run(const char *statement)
{
    check(m_handle.get(), sqlite3_exec(m_handle.get(), statement, nullptr, nullptr, nullptr));
}

sqlite3_stmt *BareEngine::prepare(const char *statement)
{
    sqlite3_stmt *raw = nullptr;
    check(m_handle.get(), sqlite3_prepare_v2(m_handle.get(), statement, -1, &raw, nullptr));
    m_statement.reset(raw);
    return raw;
}

std::uint64_t BareEngine::readAll()
{
    sqlite3_stmt *const statement = m_statement.get();
    const int columns = sqlite3_column_count(statement);
    std::uint64_t sum = 0;
    while (sqlite3_step(statement) == SQLITE_ROW)
        for (int column = 0; column < columns; ++column)
            sum += readColumn(statement, column);
    sqlite3_reset(statement);
    return sum;
}
