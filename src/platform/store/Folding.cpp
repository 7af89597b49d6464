#include "platform/store/Folding.h"

#include <QChar>
#include <QList>

#include <array>

namespace {

constexpr char32_t kTableEnd = 0x250;
constexpr char32_t kBrokenByte = 0x110000; // a byte that is no UTF-8 counts as a letter of its own, above all others
constexpr char32_t kTypographicApostrophe = 0x2019;

struct Letter
{
    char32_t folded; // without case
    char32_t plain;  // and without accent: what decides first
};

char32_t asciiFolded(char32_t letter)
{
    return letter >= U'A' && letter <= U'Z' ? letter + 0x20 : letter;
}

// Letters with a stroke have no decomposition, yet a dictionary puts them beside the plain ones.
char32_t strokeless(char32_t letter)
{
    switch (letter) {
    case 0x00F8:
        return U'o';
    case 0x0111:
        return U'd';
    case 0x0127:
        return U'h';
    case 0x0142:
        return U'l';
    default:
        return letter;
    }
}

char32_t plainLetter(char32_t folded)
{
    if (folded == kTypographicApostrophe)
        return U'\'';
    if (QChar::decompositionTag(folded) != QChar::Canonical)
        return strokeless(folded);
    const QString parts = QChar::decomposition(folded);
    if (parts.isEmpty() || parts.front().isSurrogate())
        return folded;
    return plainLetter(parts.front().unicode());
}

Letter computedLetter(char32_t letter)
{
    if (letter >= kBrokenByte)
        return {letter, letter};
    if (letter < 0x80)
        return {asciiFolded(letter), asciiFolded(letter)};
    const char32_t folded = QChar::toCaseFolded(letter);
    return {folded, plainLetter(folded)};
}

using LetterTable = std::array<Letter, kTableEnd>;

LetterTable makeTable()
{
    LetterTable table;
    for (char32_t letter = 0; letter < kTableEnd; ++letter)
        table[letter] = computedLetter(letter);
    return table;
}

Letter letterOf(char32_t letter)
{
    static const LetterTable table = makeTable();
    return letter < kTableEnd ? table[letter] : computedLetter(letter);
}

bool isContinuation(uchar byte)
{
    return (byte & 0xC0) == 0x80;
}

// The code point that starts at `at`, which is moved behind it. Whatever is no UTF-8 is taken byte by byte.
char32_t nextLetter(const uchar *&at, const uchar *end)
{
    const uchar first = *at++;
    if (first < 0x80)
        return first;
    const int more = first >= 0xF0 && first < 0xF5 ? 3 : first >= 0xE0 ? 2 : first >= 0xC2 ? 1 : 0;
    if (more == 0 || first >= 0xF5 || end - at < more)
        return kBrokenByte + first;
    char32_t letter = first & (0x3F >> more);
    for (int i = 0; i < more; ++i) {
        if (!isContinuation(at[i]))
            return kBrokenByte + first;
        letter = (letter << 6) | (at[i] & 0x3F);
    }
    constexpr std::array<char32_t, 4> kLeast = {0, 0x80, 0x800, 0x10000};
    if (letter < kLeast[more] || letter > 0x10FFFF)
        return kBrokenByte + first;
    at += more;
    return letter;
}

int sign(char32_t left, char32_t right)
{
    return left < right ? -1 : left > right ? 1 : 0;
}

// Two texts read side by side; `next` gives false at the end of one of them or where the order is decided.
class Comparison
{
public:
    Comparison(QByteArrayView left, QByteArrayView right)
        : m_left(begin(left)), m_leftEnd(m_left + left.size()), m_right(begin(right)),
          m_rightEnd(m_right + right.size())
    {
    }

    int result()
    {
        while (m_left != m_leftEnd && m_right != m_rightEnd) {
            const int first = *m_left < 0x80 && *m_right < 0x80 ? compareAscii() : compareLetters();
            if (first != 0)
                return first;
        }
        if (m_left != m_leftEnd || m_right != m_rightEnd)
            return m_left == m_leftEnd ? -1 : 1;
        return m_accents;
    }

private:
    static const uchar *begin(QByteArrayView text) { return reinterpret_cast<const uchar *>(text.data()); }

    int compareAscii() { return sign(asciiFolded(*m_left++), asciiFolded(*m_right++)); }

    int compareLetters()
    {
        const Letter left = letterOf(nextLetter(m_left, m_leftEnd));
        const Letter right = letterOf(nextLetter(m_right, m_rightEnd));
        if (m_accents == 0)
            m_accents = sign(left.folded, right.folded);
        return sign(left.plain, right.plain);
    }

    const uchar *m_left;
    const uchar *m_leftEnd;
    const uchar *m_right;
    const uchar *m_rightEnd;
    int m_accents = 0;
};

bool isAnyRun(char32_t sign)
{
    return sign == U'%' || sign == U'*';
}

bool isAnyOne(char32_t sign)
{
    return sign == U'_' || sign == U'?';
}

bool matches(const QList<uint> &text, const QList<uint> &pattern)
{
    qsizetype t = 0;
    qsizetype p = 0;
    qsizetype runAt = -1; // the last run met, and up to where of the text it reaches so far
    qsizetype runEnd = 0;
    while (t < text.size()) {
        if (p < pattern.size() && isAnyRun(pattern[p])) {
            runAt = p++;
            runEnd = t;
        } else if (p < pattern.size() && (isAnyOne(pattern[p]) || foldedLetter(pattern[p]) == foldedLetter(text[t]))) {
            ++p;
            ++t;
        } else if (runAt >= 0) {
            p = runAt + 1;
            t = ++runEnd;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && isAnyRun(pattern[p]))
        ++p;
    return p == pattern.size();
}

} // namespace

char32_t foldedLetter(char32_t letter)
{
    return letterOf(letter).folded;
}

int compareFolded(QByteArrayView left, QByteArrayView right)
{
    if (left == right)
        return 0;
    return Comparison(left, right).result();
}

int compareFolded(const QString &left, const QString &right)
{
    return compareFolded(QByteArrayView(left.toUtf8()), QByteArrayView(right.toUtf8()));
}

bool matchesPattern(const QString &text, const QString &pattern)
{
    return matches(text.toUcs4(), pattern.toUcs4());
}
