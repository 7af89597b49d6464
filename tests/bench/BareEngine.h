// The engine through its C interface and nothing else: what our work is measured against.
#pragma once

#include <sqlcipher/sqlite3.h>

#include <QString>

#include <cstdint>
#include <memory>

class BareEngine
{
public:
    explicit BareEngine(const QString &path);

    void run(const char *statement);
    sqlite3_stmt *prepare(const char *statement); // lives until the next one

    // Steps the prepared statement to its end, reads every column, and gives something that depends on each.
    std::uint64_t readAll();

private:
    struct Closer
    {
        void operator()(sqlite3 *handle) const { sqlite3_close_v2(handle); }
        void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
    };
    std::unique_ptr<sqlite3, Closer> m_handle;
    std::unique_ptr<sqlite3_stmt, Closer> m_statement;
};
