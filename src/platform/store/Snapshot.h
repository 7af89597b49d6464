// The rows of a record set in memory: cells of 16 bytes, texts as UTF-8 in large blocks, made QStrings only when read.
#pragma once

#include <QByteArrayView>
#include <QStringView>

#include <cstdint>
#include <memory>
#include <vector>

struct Cell
{
    enum class Kind : std::uint32_t
    {
        Null,
        Whole,
        Number,
        Text
    };

    union {
        qint64 whole;
        double number;
        const char *text;
    };
    std::uint32_t length;
    Kind kind; // Cell{} is null

    QByteArrayView view() const { return {text, qsizetype(length)}; }
    bool same(const Cell &other) const;

    static Cell ofWhole(qint64 whole);
    static Cell ofNumber(double number);
    static Cell ofText(const char *text, std::uint32_t length); // the text stays where it is
};

class Snapshot
{
public:
    // Row numbers run from 0 in the order of adding and stay valid; a removed row only goes out of use.
    void start(int columns);
    int columns() const { return m_columns; }
    std::uint32_t rows() const { return m_rows; }

    Cell *addRow();      // all null
    Cell *addUnsetRow(); // every cell must be set by the caller
    void dropLastRow() { --m_rows; }
    Cell *row(std::uint32_t row) { return cells(row); }
    const Cell *row(std::uint32_t row) const { return cells(row); }

    Cell text(const char *bytes, std::size_t size); // a copy that lives as long as the snapshot
    Cell text(QStringView text);
    // Bytes of text taken so far, replaced ones included.
    std::size_t textBytes() const { return m_textBytes; }

private:
    // The first block is small: most sets are a day or a list, and few hold years.
    static constexpr std::uint32_t kFirstRows = 64;
    static constexpr std::uint32_t kRowsInBlock = 512;
    static constexpr std::size_t kTextBlock = std::size_t(256) * 1024;
    static constexpr std::size_t kFirstTextBlock = std::size_t(4) * 1024;

    Cell *cells(std::uint32_t row) const
    {
        const bool first = row < kFirstRows;
        const std::uint32_t later = row - kFirstRows;
        const std::size_t block = first ? 0 : 1 + later / kRowsInBlock;
        const std::size_t inBlock = first ? row : later % kRowsInBlock;
        return m_blocks[block].get() + inBlock * std::size_t(m_columns);
    }
    char *room(std::size_t size);
    void giveBack(std::size_t size); // of the room taken last

    int m_columns = 0;
    std::uint32_t m_rows = 0;
    std::uint32_t m_capacity = 0;
    std::vector<std::unique_ptr<Cell[]>> m_blocks;
    std::vector<std::unique_ptr<char[]>> m_texts;
    char *m_free = nullptr;
    std::size_t m_freeSize = 0;
    std::size_t m_textBytes = 0;
};
