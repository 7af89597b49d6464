#include "platform/store/Snapshot.h"

#include <QStringConverter>

#include <algorithm>
#include <cstring>

bool Cell::same(const Cell &other) const
{
    if (kind != other.kind)
        return false;
    switch (kind) {
    case Kind::Null:
        return true;
    case Kind::Whole:
        return whole == other.whole;
    case Kind::Number:
        return number == other.number;
    case Kind::Text:
        return view() == other.view();
    }
    return false;
}

Cell Cell::ofWhole(qint64 whole)
{
    Cell cell{};
    cell.whole = whole;
    cell.kind = Kind::Whole;
    return cell;
}

Cell Cell::ofNumber(double number)
{
    Cell cell{};
    cell.number = number;
    cell.kind = Kind::Number;
    return cell;
}

Cell Cell::ofText(const char *text, std::uint32_t length)
{
    Cell cell{};
    cell.text = text;
    cell.length = length;
    cell.kind = Kind::Text;
    return cell;
}

void Snapshot::start(int columns)
{
    *this = Snapshot();
    m_columns = columns;
}

Cell *Snapshot::addUnsetRow()
{
    if (m_rows == m_capacity) {
        const std::uint32_t more = m_blocks.empty() ? kFirstRows : kRowsInBlock;
        m_blocks.push_back(std::make_unique_for_overwrite<Cell[]>(more * std::size_t(m_columns)));
        m_capacity += more;
    }
    return row(m_rows++);
}

Cell *Snapshot::addRow()
{
    Cell *const first = addUnsetRow();
    std::fill_n(first, m_columns, Cell{});
    return first;
}

char *Snapshot::room(std::size_t size)
{
    if (size > m_freeSize) {
        const std::size_t block = std::max(size, m_texts.empty() ? kFirstTextBlock : kTextBlock);
        m_texts.push_back(std::make_unique_for_overwrite<char[]>(block));
        m_free = m_texts.back().get();
        m_freeSize = block;
    }
    char *const taken = m_free;
    m_free += size;
    m_freeSize -= size;
    m_textBytes += size;
    return taken;
}

void Snapshot::giveBack(std::size_t size)
{
    m_free -= size;
    m_freeSize += size;
    m_textBytes -= size;
}

Cell Snapshot::text(const char *bytes, std::size_t size)
{
    if (size == 0) // where `bytes` may be null
        return Cell::ofText("", 0);
    char *const copy = room(size);
    std::memcpy(copy, bytes, size);
    return Cell::ofText(copy, std::uint32_t(size));
}

Cell Snapshot::text(QStringView text)
{
    // A character takes three bytes at most; what is left over serves the next text.
    const std::size_t most = std::size_t(text.size()) * 3;
    char *const start = room(most);
    const char *const end = QStringEncoder(QStringConverter::Utf8).appendToBuffer(start, text);
    const auto size = std::size_t(end - start);
    giveBack(most - size);
    return Cell::ofText(start, std::uint32_t(size));
}
