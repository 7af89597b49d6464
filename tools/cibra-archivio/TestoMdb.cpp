#include "TestoMdb.h"

namespace {

QChar unitAt(QByteArrayView bytes, qsizetype at)
{
    return QChar(static_cast<unsigned char>(bytes[at]), static_cast<unsigned char>(bytes[at + 1]));
}

TestoMdb unpacked(QByteArrayView bytes)
{
    TestoMdb result{true, {}};
    bool packed = true;
    qsizetype wideFrom = 0;
    for (qsizetype i = 0; i < bytes.size();) {
        if (bytes[i] == 0 && packed) {
            packed = false;
            wideFrom = ++i;
        } else if (packed) {
            result.testo += QChar(static_cast<unsigned char>(bytes[i++]), 0);
        } else if (bytes[i] == 0) {
            if (i == wideFrom)
                return {}; // no writer switches for nothing: these are zeros that stand where letters stood
            packed = true;
            ++i;
        } else if (i + 1 < bytes.size()) {
            result.testo += unitAt(bytes, i);
            i += 2;
        } else {
            return {};
        }
    }
    return result;
}

} // namespace

TestoMdb testoJet4(QByteArrayView bytes)
{
    if (bytes.startsWith("\xff\xfe"))
        return unpacked(bytes.sliced(2));
    if (bytes.size() % 2 != 0)
        return {};
    TestoMdb result{true, {}};
    result.testo.reserve(bytes.size() / 2);
    for (qsizetype i = 0; i < bytes.size(); i += 2)
        result.testo += unitAt(bytes, i);
    return result;
}
