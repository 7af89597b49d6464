#include "platform/store/TableInfo.h"

#include "platform/store/Statement.h"
#include "platform/text/Dates.h"

#include <utility>

namespace {

ColumnType typeOf(const QString &declaration)
{
    const QString word = declaration.section(u'(', 0, 0).trimmed().toUpper();
    if (word == u"TEXT" || word == u"MEMO" || word == u"CLOB")
        return ColumnType::Memo;
    if (word.startsWith(u"BOOL"))
        return ColumnType::Boolean;
    if (word.startsWith(u"DATE"))
        return ColumnType::Date;
    if (word.contains(u"INT"))
        return ColumnType::Long;
    for (const QStringView number : {u"REAL", u"DOUB", u"FLOA", u"NUM", u"DECIMAL"})
        if (word.startsWith(number))
            return ColumnType::Number;
    return ColumnType::Text;
}

int sizeOf(const QString &declaration)
{
    return declaration.section(u'(', 1, 1).section(u')', 0, 0).trimmed().toInt();
}

Cell resultCell(const Statement &statement, Snapshot &texts)
{
    switch (sqlite3_column_type(statement.handle(), 0)) {
    case SQLITE_INTEGER:
        return Cell::ofWhole(statement.columnInt(0));
    case SQLITE_FLOAT:
        return Cell::ofNumber(sqlite3_column_double(statement.handle(), 0));
    case SQLITE_NULL:
        return Cell{};
    default: {
        const QByteArray text = statement.columnText(0).toUtf8();
        return texts.text(text.constData(), std::size_t(text.size()));
    }
    }
}

// A default is an expression of the engine's; it is worked out once.
Value defaultValue(sqlite3 *handle, const QString &expression, ColumnType type)
{
    if (expression.isEmpty())
        return {};
    Statement statement(handle, ("SELECT " + expression).toUtf8());
    Snapshot texts;
    return statement.step() ? cellValue(resultCell(statement, texts), type) : Value();
}

// The table's kind and its name as declared.
std::shared_ptr<TableInfo> findTable(sqlite3 *handle, const QString &table)
{
    Statement find(handle, "SELECT name, type FROM sqlite_master WHERE type IN ('table', 'view') "
                           "AND name = ?1 COLLATE NOCASE");
    const QByteArray name = table.toUtf8();
    find.bind(1, QByteArrayView(name));
    if (!find.step())
        return nullptr;
    auto info = std::make_shared<TableInfo>();
    info->name = find.columnText(0);
    info->isView = find.columnText(1) == u"view";
    return info;
}

enum TableInfoColumn
{
    NameColumn = 1,
    DeclarationColumn = 2,
    DefaultColumn = 4,
    KeyColumn = 5
};

void readColumns(sqlite3 *handle, TableInfo &info)
{
    Statement list(handle, "PRAGMA table_info(" + quotedName(info.name) + ")");
    int keys = 0;
    while (list.step()) {
        const QString declaration = list.columnText(DeclarationColumn);
        ColumnInfo column = declaredColumn(list.columnText(NameColumn), declaration);
        column.byDefault = defaultValue(handle, list.columnText(DefaultColumn), column.type);
        if (list.columnInt(KeyColumn) > 0) {
            ++keys;
            if (declaration.compare(u"INTEGER", Qt::CaseInsensitive) == 0)
                info.keyColumn = int(info.columns.size());
        }
        info.columns.push_back(std::move(column));
    }
    if (keys != 1)
        info.keyColumn = -1;
}

Value dayValue(const QString &stored)
{
    QDate day = QDate::fromString(stored.left(10), Qt::ISODate);
    if (!day.isValid())
        day = dayFromText(stored);
    return day.isValid() ? Value(day) : Value(stored);
}

Value textValue(const Cell &cell, ColumnType type)
{
    const QString text = QString::fromUtf8(cell.view());
    return type == ColumnType::Date ? dayValue(text) : Value(text);
}

Value numberValue(double number, ColumnType type)
{
    return type == ColumnType::Boolean ? Value(number != 0) : Value(number);
}

Value wholeValue(qint64 whole, ColumnType type)
{
    switch (type) {
    case ColumnType::Boolean:
        return whole != 0;
    case ColumnType::Number:
        return double(whole);
    default:
        return whole;
    }
}

} // namespace

int TableInfo::columnIndex(QStringView column) const
{
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (column.compare(columns[i].name, Qt::CaseInsensitive) == 0)
            return int(i);
    return -1;
}

std::shared_ptr<const TableInfo> readTableInfo(sqlite3 *handle, const QString &table)
{
    std::shared_ptr<TableInfo> info = findTable(handle, table);
    if (info)
        readColumns(handle, *info);
    return info;
}

ColumnInfo declaredColumn(const QString &name, const QString &declaration)
{
    ColumnInfo column;
    column.name = name;
    column.type = typeOf(declaration);
    if (column.type == ColumnType::Text)
        column.definedSize = sizeOf(declaration);
    return column;
}

Value cellValue(const Cell &cell, ColumnType type)
{
    switch (cell.kind) {
    case Cell::Kind::Whole:
        return wholeValue(cell.whole, type);
    case Cell::Kind::Number:
        return numberValue(cell.number, type);
    case Cell::Kind::Text:
        return textValue(cell, type);
    case Cell::Kind::Null:
        break;
    }
    return {};
}
