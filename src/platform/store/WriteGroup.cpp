#include "platform/store/WriteGroup.h"

#include "platform/store/EngineFailure.h"

#include <sqlcipher/sqlite3.h>

namespace {

// A program that is killed loses at most this many writes.
constexpr int kWritesOfOneCommit = 4096;

void execute(sqlite3 *handle, const char *statement, const QString &told)
{
    const int rc = sqlite3_exec(handle, statement, nullptr, nullptr, nullptr);
    if (rc != SQLITE_OK)
        throw engineFailure(handle, rc, told);
}

Failure withLostGroup(const Failure &failure)
{
    return Failure(failure.number(),
                   failure.words() +
                       QStringLiteral(". Anche le ultime righe scritte insieme a questa non sono state salvate"),
                   failure.statement());
}

} // namespace

bool WriteGroup::inTransaction() const
{
    return sqlite3_get_autocommit(m_handle) == 0;
}

void WriteGroup::begin(const QString &told)
{
    // At once for writing: a group that had only read so far could not wait for another program's lock.
    execute(m_handle, "BEGIN IMMEDIATE", told);
    m_writes = 0;
}

void WriteGroup::commit(const QString &told)
{
    if (inTransaction())
        execute(m_handle, "COMMIT", told);
}

void WriteGroup::leave() noexcept
{
    if (--m_depth > 0)
        return;
    try {
        commit({});
    } catch (const Failure &failure) {
        m_late = failure;
    }
}

void WriteGroup::close()
{
    if (--m_depth == 0)
        commit({});
}

void WriteGroup::throwLateFailure()
{
    if (!m_late)
        return;
    const Failure failure = *m_late;
    m_late.reset();
    throw failure;
}

bool WriteGroup::beforeWrite(const QString &told)
{
    throwLateFailure();
    if (m_depth == 0)
        commit(told); // what a failed commit has left open
    else if (!inTransaction())
        begin(told);
    return inTransaction();
}

void WriteGroup::afterWrite(const QString &told, bool grouped)
{
    if (grouped && ++m_writes >= kWritesOfOneCommit)
        commit(told);
}

// On a full disk the engine gives up the whole transaction by itself.
Failure WriteGroup::afterFailure(const Failure &failure, bool grouped) const
{
    return grouped && !inTransaction() && m_writes > 0 ? withLostGroup(failure) : failure;
}
