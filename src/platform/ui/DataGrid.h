// A grid bound to a record set: its current row is the record set's, and both follow each other.
//
// It is read-only but for the columns that say otherwise. An edited cell is written at once, by setValue and Update of
// the record set; where that fails the failure is told and the cell shows the stored value again. A yes/no field is a
// box that a click anywhere in its cell, or the space bar, ticks. A row that somebody else has changed meanwhile is
// told, and all rows are read again.
#pragma once

#include "platform/store/Recordset.h"
#include "platform/ui/RecordsetModel.h"

#include <QTableView>

#include <map>
#include <memory>
#include <vector>

class FormHost;

class DataGrid : public QTableView
{
    Q_OBJECT
    Q_PROPERTY(QString caption READ caption WRITE setCaption)

public:
    explicit DataGrid(QWidget *parent = nullptr);
    ~DataGrid() override;

    // No columns: all fields of the record set, each under its own name.
    void setColumns(std::vector<GridColumn> columns);
    void setCaption(int column, const QString &caption);
    // A title over the captions of the columns; without a text there is no room for one.
    void setCaption(const QString &caption);
    QString caption() const;
    // The grid keeps the record set for as long as it shows it; null empties the grid.
    void setDataSource(std::shared_ptr<Recordset> recordset);
    std::shared_ptr<Recordset> dataSource() const;
    void refresh();
    // A faint background for some rows, for instance by meal; an invalid colour leaves the row as it is.
    void setRowColour(std::function<QColor(const Recordset &, int row)> colour);
    // Moves of the record set made by the user run inside this host's guard; without it, in that of the form around.
    void setHost(FormHost *host);
    // Gives up the edit under way, the cell keeping its value; false where there is none.
    bool cancelEdit();
    // The data field of a column, for whoever reads the grid by program.
    QString columnField(int column) const;

signals:
    // A click and a double click anywhere in the grid, below its rows too.
    void Click();
    void DblClick();

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void followRecordset();
    void moveRecordset(int row);
    void moveOrTell(int row);
    bool write(int row, int field, const Value &value);
    void tell(const Failure &failure);
    void afterFailure(FormHost &guard, const Failure &failure);
    void fitColumns();
    void fillWidth();
    void makeRoom(int excess);
    int spareOf(const std::map<int, int> &narrowest) const;
    int squeeze(const std::map<int, int> &narrowest, int excess);
    std::vector<int> textColumns() const;
    FormHost *host() const;

    struct Private;
    std::unique_ptr<Private> m_private;
};
