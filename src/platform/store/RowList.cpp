#include "platform/store/RowList.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

void RowList::start(std::uint32_t rows)
{
    m_all.resize(rows);
    std::iota(m_all.begin(), m_all.end(), 0U);
    dropFilter();
}

void RowList::filter(const std::function<bool(std::uint32_t)> &passes)
{
    Rows passing;
    std::copy_if(m_all.begin(), m_all.end(), std::back_inserter(passing), passes);
    m_filtered = std::move(passing);
    restore(0, false);
}

void RowList::dropFilter()
{
    m_filtered.reset();
    restore(0, false);
}

void RowList::moveTo(int position)
{
    restore(std::clamp(position, -1, count()), false);
}

void RowList::moveBy(int rows)
{
    if (rows == 0)
        return;
    // The row after the gap is one step away, although the cursor has its number already.
    const std::int64_t target = std::int64_t(m_position) + rows - (m_gap && rows > 0 ? 1 : 0);
    moveTo(int(std::clamp<std::int64_t>(target, -1, count())));
}

void RowList::append(std::uint32_t row)
{
    m_all.push_back(row);
    if (m_filtered)
        m_filtered->push_back(row);
    restore(count() - 1, false);
}

void RowList::removeCurrent()
{
    const std::uint32_t gone = row(m_position);
    if (m_filtered)
        m_filtered->erase(m_filtered->begin() + m_position);
    m_all.erase(std::lower_bound(m_all.begin(), m_all.end(), gone));
    m_gap = true;
}

void RowList::removeLast()
{
    m_all.pop_back();
    if (m_filtered)
        m_filtered->pop_back();
}

void RowList::restore(int position, bool gap)
{
    m_position = position;
    m_gap = gap;
}
