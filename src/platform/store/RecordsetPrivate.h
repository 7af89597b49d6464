// The inside of a record set: its rows, its cursor and what is pending. It gives no notices; the record set does.
#pragma once

#include "platform/store/Database.h"
#include "platform/store/PendingRow.h"
#include "platform/store/Recordset.h"
#include "platform/store/ResultShape.h"
#include "platform/store/RowList.h"
#include "platform/store/Snapshot.h"

#include <memory>
#include <optional>
#include <vector>

class Criterion;

struct Recordset::Private
{
    bool open = false;
    QString source;
    Access access = Access::Updatable;
    std::weak_ptr<Database> database;
    std::shared_ptr<const ResultShape> shape;
    Snapshot snapshot;
    RowList rows;
    QString filter;
    PendingRow pending;
    // Each throws the failure of its name.
    void needOpen() const;
    void needRow() const;
    void needUpdatable() const;
    void needField(int index) const;

    void load(); // runs the statement anew, the cursor on the first row
    void applyFilter();
    void reload(); // load and applyFilter, the cursor on the row of the same key or in its place
    void find(const Criterion &criterion);
    int fieldNamed(QStringView name) const; // -1 where there is none
    int needFieldNamed(const QString &name) const;
    Value value(int position, int field) const;

    void startNewRow();
    void assign(int field, const Value &value);
    void writePending(); // nothing where nothing is pending; what fails stays pending
    void dropNewRow();
    void deleteCurrent();

private:
    std::shared_ptr<Database> connected() const; // throws ConnectionClosed
    std::optional<qint64> currentKey() const;    // of a row that the archive has
    void forgetAppended();
    void writeNew(Database &opened, const std::vector<CellChange> &cells);
    void writeEdit(Database &opened, const std::vector<CellChange> &changes);
    Failure rowChanged() const;
    Cell *currentCells() { return snapshot.row(rows.row(rows.position())); }

    int m_positionBeforeNew = 0;
    bool m_gapBeforeNew = false;
};
