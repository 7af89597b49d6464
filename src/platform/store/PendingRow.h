// What has been assigned to the current row and waits for Update.
#pragma once

#include "platform/store/ResultShape.h"
#include "platform/store/RowWriter.h"
#include "platform/store/Snapshot.h"

#include <vector>

class PendingRow
{
public:
    enum class Kind
    {
        None,
        Edit,
        New
    };

    void start(Kind kind, std::size_t fields);
    void drop() { m_kind = Kind::None; }
    Kind kind() const { return m_kind; }
    explicit operator bool() const { return m_kind != Kind::None; }

    void assign(int field, const Cell &cell);
    // The assigned cell, null where the field has none.
    const Cell *assigned(int field) const;

    // What must be written: assigned fields whose cells differ from `row`, or all assigned ones of a new row.
    std::vector<CellChange> changes(const ResultShape &shape, const Cell *row) const;
    // Puts the assigned cells into the row, also into further fields of the same columns.
    void apply(const ResultShape &shape, Cell *row) const;

private:
    Kind m_kind = Kind::None;
    std::vector<Cell> m_cells;
    std::vector<char> m_assigned;
};
