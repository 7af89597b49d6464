// What the archive declares of one table.
#pragma once

#include "platform/store/Snapshot.h"
#include "platform/store/Value.h"

#include <sqlcipher/sqlite3.h>

#include <QByteArray>
#include <QString>

#include <memory>
#include <vector>

struct ColumnInfo
{
    QString name; // as declared
    ColumnType type = ColumnType::Text;
    int definedSize = 0;
    Value byDefault; // what a new row holds where nothing is assigned
};

struct TableInfo
{
    QString name;
    bool isView = false;
    int keyColumn = -1; // the column that is the generated key, if there is one
    std::vector<ColumnInfo> columns;

    int columnIndex(QStringView column) const; // -1 where there is none
};

// Null where the archive has no such table or view.
std::shared_ptr<const TableInfo> readTableInfo(sqlite3 *handle, const QString &table);
// The type and the size that a declaration such as VARCHAR(50) means.
ColumnInfo declaredColumn(const QString &name, const QString &declaration);
// What a column holds for the record set: the cell read as the column's type.
Value cellValue(const Cell &cell, ColumnType type);
