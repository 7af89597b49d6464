// The rows of a record set for a table view: nothing is copied, each value is read when it is shown.
#pragma once

#include "platform/store/Recordset.h"

#include <QAbstractTableModel>
#include <QColor>

#include <functional>
#include <memory>
#include <vector>

struct GridColumn
{
    QString field;
    QString caption;
};

class RecordsetModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using RowColour = std::function<QColor(const Recordset &, int row)>;

    explicit RecordsetModel(QObject *parent = nullptr);

    void setColumns(std::vector<GridColumn> columns);
    void setCaption(int column, const QString &caption);
    const std::vector<GridColumn> &columns() const { return m_columns; }
    void setRecordset(std::shared_ptr<Recordset> recordset);
    const std::shared_ptr<Recordset> &recordset() const { return m_recordset; }
    void setRowColour(RowColour colour);
    void refresh();
    bool isNumber(int column) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void reset();
    bool isShown(int row, int column) const;

    std::shared_ptr<Recordset> m_recordset;
    std::vector<GridColumn> m_columns;
    std::vector<int> m_fields; // the record set's field of each column, -1 where it has none of that name
    bool m_allFields = true;   // the columns are those of the record set
    int m_rows = 0;
    RowColour m_colour;
};
