// An open archive on the engine's side: its handle, the statements kept ready, and what is known of its tables.
#pragma once

#include "platform/store/EngineHandle.h"
#include "platform/store/ResultShape.h"
#include "platform/store/RowWriter.h"
#include "platform/store/StatementCache.h"
#include "platform/store/TableInfo.h"
#include "platform/store/WriteGroup.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <memory>

class Database
{
public:
    // Owns `handle`. `key` is what an encrypted archive was opened with: its copies get the same.
    explicit Database(sqlite3 *handle, const QByteArray &key = {});
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    sqlite3 *handle() const { return m_handle.get(); }
    const QByteArray &key() const { return m_key; }
    WriteGroup &group() { return m_group; }

    // The Jet statement translated, prepared and with its values bound. Throws Failure(Engine).
    PreparedStatement &prepare(const QString &statement);
    // Runs a Jet statement to its end; gives how many rows it changed, 0 where it only reads. Throws Failure(Engine).
    qint64 execute(const QString &statement);
    // Never null; read anew where a table has meanwhile got more columns. Throws Failure(Engine).
    const std::shared_ptr<const ResultShape> &shapeOf(PreparedStatement &prepared);

    // Null where the archive has no such table or view. Throws Failure(Engine).
    std::shared_ptr<const TableInfo> table(const QString &name);
    // Of a table that table() gave.
    RowWriter &writer(const std::shared_ptr<const TableInfo> &table);

private:
    void forgetTables();

    EngineHandle m_handle;
    QByteArray m_key;
    WriteGroup m_group;
    StatementCache m_statements;
    QHash<QString, std::shared_ptr<const TableInfo>> m_tables; // by lower-case name
    QHash<QString, std::shared_ptr<RowWriter>> m_writers;      // by declared name
};
