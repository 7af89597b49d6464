#include "platform/store/PendingRow.h"

void PendingRow::start(Kind kind, std::size_t fields)
{
    m_kind = kind;
    m_cells.resize(fields);
    m_assigned.assign(fields, 0);
}

void PendingRow::assign(int field, const Cell &cell)
{
    m_cells[std::size_t(field)] = cell;
    m_assigned[std::size_t(field)] = 1;
}

const Cell *PendingRow::assigned(int field) const
{
    if (m_kind == Kind::None || m_assigned[std::size_t(field)] == 0)
        return nullptr;
    return &m_cells[std::size_t(field)];
}

std::vector<CellChange> PendingRow::changes(const ResultShape &shape, const Cell *row) const
{
    std::vector<CellChange> found;
    found.reserve(m_cells.size());
    for (std::size_t field = 0; field < m_cells.size(); ++field) {
        if (m_assigned[field] == 0 || (m_kind == Kind::Edit && m_cells[field].same(row[field])))
            continue;
        found.push_back({shape.tableColumns[field], row[field], m_cells[field]});
    }
    return found;
}

void PendingRow::apply(const ResultShape &shape, Cell *row) const
{
    for (std::size_t field = 0; field < m_cells.size(); ++field) {
        if (m_assigned[field] == 0)
            continue;
        row[field] = m_cells[field];
        if (!shape.repeatsColumns)
            continue;
        for (std::size_t other = 0; other < m_cells.size(); ++other)
            if (shape.tableColumns[other] == shape.tableColumns[field])
                row[other] = m_cells[field];
    }
}
