#include "FormaRiga.h"

namespace {

int byteAt(QByteArrayView bytes, qsizetype at)
{
    return static_cast<unsigned char>(bytes[at]);
}

int wordAt(QByteArrayView bytes, qsizetype at)
{
    return byteAt(bytes, at) | byteAt(bytes, at + 1) << 8;
}

// What stands behind the data: where each value of varying length begins and where the last one ends, counted from the
// row's start; how many there are; a bit a column.
bool codaJet4(QByteArrayView row, qsizetype mask)
{
    const qsizetype count = row.size() - mask - 2;
    if (count < 4)
        return false;
    const qsizetype ends = count - 2 - 2 * qsizetype(wordAt(row, count));
    if (ends < 2)
        return false;
    const int end = wordAt(row, ends);
    return end >= 2 && end <= ends;
}

// The same in single bytes; a row beyond 256 of them has a byte more for each 256, so there zeros alone are told.
bool codaJet3(QByteArrayView row, qsizetype mask)
{
    const qsizetype count = row.size() - mask - 1;
    if (count < 2)
        return false;
    const qsizetype ends = count - 1 - byteAt(row, count);
    const qsizetype hops = (row.size() - 1) / 256;
    if (ends - hops < 1)
        return false;
    if (hops == 0)
        return byteAt(row, ends) >= 1 && byteAt(row, ends) <= ends;
    const QByteArrayView candidates = row.sliced(ends - hops, hops + 1);
    return candidates.count('\0') < candidates.size();
}

} // namespace

bool rigaIntera(QByteArrayView riga, const FormaRiga &forma)
{
    const qsizetype head = forma.jet == 3 ? 1 : 2;
    if (riga.size() < head)
        return false;
    const int columns = forma.jet == 3 ? byteAt(riga, 0) : wordAt(riga, 0);
    const qsizetype mask = (columns + 7) / 8;
    if (columns == 0 || columns > forma.colonne || riga.size() < head + mask)
        return false;
    if (!forma.lunghezzeVariabili)
        return true;
    return forma.jet == 3 ? codaJet3(riga, mask) : codaJet4(riga, mask);
}
