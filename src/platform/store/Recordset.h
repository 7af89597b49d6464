// A record set: the rows of one statement as they were when it was opened, with a cursor.
//
// Positions, worked through on three rows a, b, c:
//
//   Open            row a current, AbsolutePosition 1, Bof and Eof false
//   MoveNext x2     row c current, AbsolutePosition 3
//   MoveNext        no current row, Eof true, AbsolutePosition -3
//   MoveNext        throws NoCurrentRow
//   MovePrevious    row c again; from row a it goes to Bof (AbsolutePosition -2)
//   Delete on b     no current row, the cursor stands before c: MoveNext goes to c, MovePrevious to a
//   no rows at all  Bof and Eof both true, AbsolutePosition -1; MoveFirst and MoveLast throw NoCurrentRow
//
// The snapshot changes only by this object's own AddNew, Update and Delete; a row keeps its place even where it no
// longer fits the filter, the conditions or the order. Requery and a new Open read the archive anew.
#pragma once

#include "platform/store/Connection.h"
#include "platform/store/FieldInfo.h"
#include "platform/store/Value.h"

#include <QObject>
#include <QString>

#include <memory>
#include <vector>

// Something that shows the current row and keeps what the user types until the row is written: a bound box.
class RowEditor
{
public:
    virtual ~RowEditor() = default;
    virtual void writeTyped() = 0; // what was typed goes into the row, by setValue; may throw
    virtual void dropTyped() = 0;  // what was typed is forgotten
};

class Recordset : public QObject
{
    Q_OBJECT

public:
    enum class Access
    {
        Updatable,  // where the statement allows it: one table, no grouping
        ReadOnly,   // AddNew and writes throw NotPermitted
        AppendOnly, // no row is read: the set is there to be added to, and keeps the row added last alone
    };

    Recordset();
    ~Recordset() override;

    // Runs the statement and stands on the first row. Throws ObjectOpen, ConnectionClosed, Engine.
    void Open(const QString &source, Connection &connection, Access access = Access::Updatable);
    void Close(); // a pending change is dropped; closing a closed set does nothing
    bool isOpen() const;
    const QString &Source() const; // the statement, letter by letter

    // Upper-case EOF is a macro of the C library, hence the spelling.
    bool Bof() const;
    bool Eof() const;
    int RecordCount() const;      // rows that pass the filter, a pending new one included
    int AbsolutePosition() const; // from 1; -1 empty, -2 before the first, -3 past the last

    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();
    void Move(int rows); // relative; past an end it stands at Bof or Eof

    // Forward from the current row, the current row included: "Column op 'value'", op one of = <> < > <= >= like.
    // No match leaves the set at Eof; from Eof there is none. Throws NoSuchField, and Engine for another form.
    void Find(const QString &criterion);
    // One condition of the same form, or "column = true"; "" shows all rows again. The first row that passes becomes
    // current.
    void setFilter(const QString &criterion);
    const QString &filter() const;

    void AddNew(); // a new, empty, pending row becomes current
    // What waits for Update is written first by every move, Find, setFilter and AddNew; Requery and Close drop it. What
    // cannot be written stays waiting. Update throws RowChanged where another program has meanwhile changed one of the
    // fields or deleted the row: its change is kept.
    void Update();       // writes the changed fields of the current row, or the new row with its generated key
    void UpdateBatch();  // Update where something is pending, else nothing
    void CancelUpdate(); // drops what is pending; after AddNew the former row is current again
    void Delete();
    void Requery();
    // After RowChanged: what waits is given up, all rows are read again, and the row of the same key is current once
    // more, or the one in its place where it is gone.
    void Resync();
    bool isPending() const; // a new or changed row waits for Update
    bool isAdding() const;  // the pending row is a new one

    int fieldCount() const;
    const FieldInfo &field(int index) const;
    int fieldIndex(const QString &name) const; // case does not matter, first of a name wins; throws NoSuchField
    bool hasField(const QString &name) const;

    // Of the current row. Throw NoCurrentRow, NoSuchField.
    Value value(int index) const;
    Value value(const QString &name) const;
    void setValue(int index, const Value &value); // texts for number and day columns are converted, or TypeMismatch
    void setValue(const QString &name, const Value &value);

    // Of row `row` (from 0) among those that pass the filter, without moving the cursor: for grids and lists.
    Value valueAt(int row, int column) const;

    // All rows from the current one on: columns by ";", null as "", each row ended by CR. Leaves the set at Eof.
    QString GetString();

    bool isUpdatable() const;

    // Every Update, move, Find, setFilter and AddNew first lets its editors write what was typed; what one of them
    // throws ends the operation, and nothing has moved. CancelUpdate lets them forget it.
    void addEditor(RowEditor &editor);
    void removeEditor(RowEditor &editor);

signals:
    void opened();       // Open, Requery, Close, setFilter: every row may be another
    void moveComplete(); // after every move, also after those that Open, Requery, AddNew and Delete make
    void rowChanged(int row);
    void rowInserted(int row);
    void rowRemoved(int row);

private:
    void letEditorsWrite();
    void writeWhatWaits(); // what was typed, then what is pending

    struct Private;
    std::unique_ptr<Private> m_private;
    std::vector<RowEditor *> m_editors; // they outlive a Close
};
