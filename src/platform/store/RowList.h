// Which rows of a snapshot a record set shows, in which order, and where its cursor stands among them.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

class RowList
{
public:
    using Rows = std::vector<std::uint32_t>;

    void start(std::uint32_t rows); // all rows, no filter, the cursor on the first
    void filter(const std::function<bool(std::uint32_t)> &passes);
    void dropFilter();

    int count() const { return int(shown().size()); }
    bool empty() const { return shown().empty(); }
    std::uint32_t row(int position) const { return shown()[std::size_t(position)]; }

    // From 0; -1 before the first row, count() behind the last one. After a removal the cursor stands in the gap before
    // the row at this position.
    int position() const { return m_position; }
    bool inGap() const { return m_gap; }
    bool onRow() const { return !m_gap && m_position >= 0 && m_position < count(); }
    void moveTo(int position); // past an end: before the first or behind the last
    void moveBy(int rows);

    void append(std::uint32_t row); // and the cursor on it
    void removeCurrent();           // and the cursor in the gap
    void removeLast();
    void restore(int position, bool gap);

private:
    const Rows &shown() const { return m_filtered ? *m_filtered : m_all; }

    Rows m_all;
    std::optional<Rows> m_filtered;
    int m_position = 0;
    bool m_gap = false;
};
