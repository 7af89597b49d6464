// The rows of a record set for a table view: nothing is copied, each value is read when it is shown.
#pragma once

#include "platform/store/Recordset.h"

#include <QAbstractTableModel>
#include <QColor>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

enum class CellEdit
{
    ReadOnly,
    Text, // typed, or picked from the column's list; a yes/no field is ticked
};

struct GridColumn
{
    QString field;
    QString caption;
    CellEdit edit = CellEdit::ReadOnly;
    // What may be picked. A value that is on the list but for the case of its letters shows as the list spells it; one
    // outside the list shows all the same.
    QStringList list = {};
};

class RecordsetModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using RowColour = std::function<QColor(const Recordset &, int row)>;
    // Puts a value into a field of a row; false where it could not be written.
    using Writer = std::function<bool(int row, int field, const Value &value)>;

    explicit RecordsetModel(QObject *parent = nullptr);

    void setColumns(std::vector<GridColumn> columns);
    void setCaption(int column, const QString &caption);
    const std::vector<GridColumn> &columns() const { return m_columns; }
    void setRecordset(std::shared_ptr<Recordset> recordset);
    const std::shared_ptr<Recordset> &recordset() const { return m_recordset; }
    void setRowColour(RowColour colour);
    // Without a writer no cell can be edited, whatever the columns say.
    void setWriter(Writer writer) { m_writer = std::move(writer); }
    void refresh();
    bool isNumber(int column) const;
    bool isYesNo(int column) const; // shown as a tick

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void reset();
    bool isShown(int row, int column) const;
    QString shownText(int row, int column) const;
    bool isEditable(int column) const;
    const FieldInfo *fieldOf(int column) const; // null where the record set has none of that name

    std::shared_ptr<Recordset> m_recordset;
    std::vector<GridColumn> m_columns;
    std::vector<int> m_fields; // the record set's field of each column, -1 where it has none of that name
    bool m_allFields = true;   // the columns are those of the record set
    int m_rows = 0;
    RowColour m_colour;
    Writer m_writer;
};
