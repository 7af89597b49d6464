#include "platform/store/ResultShape.h"

#include "platform/store/SelectItems.h"

#include <algorithm>
#include <utility>

namespace {

QString utf8(const char *text)
{
    return text == nullptr ? QString() : QString::fromUtf8(text);
}

// The declared column that the result's column is, as the engine sees through stored queries too.
struct Origin
{
    std::shared_ptr<const TableInfo> table;
    int column = -1;
};

Origin originOf(const Statement &statement, int column, const TableLookup &tableNamed)
{
    const QString table = utf8(sqlite3_column_table_name(statement.handle(), column));
    if (table.isEmpty())
        return {};
    Origin origin{tableNamed(table), -1};
    if (origin.table)
        origin.column = origin.table->columnIndex(utf8(sqlite3_column_origin_name(statement.handle(), column)));
    return origin;
}

class ShapeReader
{
public:
    ShapeReader(const Statement &statement, const Translation &translation, const TableLookup &tableNamed)
        : m_statement(statement), m_tableNamed(tableNamed), m_heads(selectHeads(translation.statement)),
          m_shape(std::make_shared<ResultShape>())
    {
        m_shape->columns = statement.columnCount();
        if (translation.hasKeyColumn)
            m_shape->table = updatableTable(translation.table);
        m_shown = m_shape->columns - (translation.hasKeyColumn ? 1 : 0);
    }

    std::shared_ptr<const ResultShape> read()
    {
        for (int column = 0; column < m_shown; ++column)
            readColumn(column);
        return m_shape;
    }

private:
    // A stored query has no rows of its own to write.
    std::shared_ptr<const TableInfo> updatableTable(const QString &name) const
    {
        std::shared_ptr<const TableInfo> table = m_tableNamed(name);
        return table && !table->isView ? table : nullptr;
    }

    void readColumn(int column)
    {
        const Origin origin = originOf(m_statement, column, m_tableNamed);
        FieldInfo field;
        field.name = utf8(sqlite3_column_name(m_statement.handle(), column));
        const bool declared = origin.column >= 0;
        if (declared) {
            const ColumnInfo &info = origin.table->columns[std::size_t(origin.column)];
            field.type = info.type;
            field.definedSize = info.definedSize;
        }
        const bool day = !declared && m_heads.isCallOf(column, m_shape->columns, u"CDate");
        if (day)
            field.type = ColumnType::Date;
        m_shape->fields.push_back(std::move(field));
        noteTableColumn(declared && origin.table == m_shape->table ? origin.column : -1);
        m_shape->typeByValues.push_back(!declared && !day);
    }

    void noteTableColumn(int column)
    {
        std::vector<int> &known = m_shape->tableColumns;
        if (column >= 0 && std::find(known.begin(), known.end(), column) != known.end())
            m_shape->repeatsColumns = true;
        known.push_back(column);
    }

    const Statement &m_statement;
    const TableLookup &m_tableNamed;
    SelectHeads m_heads;
    std::shared_ptr<ResultShape> m_shape;
    int m_shown = 0;
};

} // namespace

std::shared_ptr<const ResultShape> readShape(const Statement &statement, const Translation &translation,
                                             const TableLookup &tableNamed)
{
    return ShapeReader(statement, translation, tableNamed).read();
}
