// One prepared statement of the engine.
#pragma once

#include "platform/store/Value.h"

#include <sqlcipher/sqlite3.h>

#include <QByteArrayView>
#include <QString>

#include <memory>

class Statement
{
public:
    Statement() = default;
    // Throws Failure(Engine), which names `told` as the statement; the text must hold one statement and no more.
    Statement(sqlite3 *handle, QByteArrayView sql, const QString &told = {});

    explicit operator bool() const { return m_handle != nullptr; }
    sqlite3_stmt *handle() const { return m_handle.get(); }

    void bind(int index, qint64 whole);
    void bind(int index, double number);
    void bind(int index, QByteArrayView utf8); // must outlive the stepping
    void bindNull(int index);

    // Whether there is a row; throws Failure(Engine).
    bool step(const QString &told = {});
    void reset() noexcept;

    int columnCount() const { return sqlite3_column_count(m_handle.get()); }
    QString columnText(int column) const;
    qint64 columnInt(int column) const { return sqlite3_column_int64(m_handle.get(), column); }

private:
    struct Finalizer
    {
        void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
    };
    std::unique_ptr<sqlite3_stmt, Finalizer> m_handle;
};

// Ends the run of a statement, also when it is left by an exception, so that no lock stays behind.
class StatementRun
{
public:
    explicit StatementRun(Statement &statement) : m_statement(statement) {}
    ~StatementRun() { m_statement.reset(); }
    StatementRun(const StatementRun &) = delete;
    StatementRun &operator=(const StatementRun &) = delete;

private:
    Statement &m_statement;
};

QByteArray quotedName(const QString &name); // for use in a statement
