// When writes are committed: each one at once, or in groups while a GruppoScritture lives.
#pragma once

#include "platform/Failure.h"

#include <QString>

#include <optional>

struct sqlite3;

class WriteGroup
{
public:
    explicit WriteGroup(sqlite3 *handle) : m_handle(handle) {}

    void enter() noexcept { ++m_depth; }
    // The outermost leaving commits. A commit that fails is reported by the connection's next statement.
    void leave() noexcept;
    // The same, but a commit that fails throws Failure(Engine) at once.
    void close();

    // Runs one write in the group under way, if there is one. Throws what `write` throws, and Failure(Engine).
    template <typename Write>
    void run(const QString &told, Write write)
    {
        const bool grouped = beforeWrite(told);
        try {
            write();
        } catch (const Failure &failure) {
            throw afterFailure(failure, grouped);
        }
        afterWrite(told, grouped);
    }

    // Throws the failure that a commit could not report itself.
    void throwLateFailure();
    void commit(const QString &told); // throws Failure(Engine)

private:
    bool inTransaction() const;
    void begin(const QString &told);
    bool beforeWrite(const QString &told); // whether the write goes into a group
    void afterWrite(const QString &told, bool grouped);
    Failure afterFailure(const Failure &failure, bool grouped) const;

    sqlite3 *m_handle;
    int m_depth = 0;
    int m_writes = 0;
    std::optional<Failure> m_late;
};
