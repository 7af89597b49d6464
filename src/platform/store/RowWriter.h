// Writes single rows of one table; its statements stay prepared.
#pragma once

#include "platform/store/Snapshot.h"
#include "platform/store/Statement.h"
#include "platform/store/TableInfo.h"

#include <memory>
#include <vector>

struct CellChange
{
    int column; // of the table
    Cell before;
    Cell after;
};

class RowWriter
{
public:
    RowWriter(sqlite3 *handle, std::shared_ptr<const TableInfo> table);

    // All throw Failure(Engine) with `told` as the statement.
    qint64 insert(const std::vector<CellChange> &cells, const QString &told); // the key of the new row
    // False where the row is gone or its changed cells are no longer as they were.
    bool update(qint64 key, const std::vector<CellChange> &changes, const QString &told);
    bool remove(qint64 key, const QString &told); // false where the row is gone

private:
    struct Prepared
    {
        std::vector<int> columns;
        Statement statement;
    };
    using Kept = std::vector<Prepared>;

    template <typename Compose>
    Statement &prepared(Kept &kept, const std::vector<CellChange> &cells, const QString &told, Compose compose);
    QByteArray insertText(const std::vector<CellChange> &cells) const;
    QByteArray updateText(const std::vector<CellChange> &changes) const;
    QByteArray column(int index) const { return m_columnNames[std::size_t(index)]; }

    sqlite3 *m_handle;
    std::shared_ptr<const TableInfo> m_table;
    std::vector<QByteArray> m_columnNames; // quoted
    Kept m_inserts;
    Kept m_updates;
    Statement m_remove;
};
