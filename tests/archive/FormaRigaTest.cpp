// Whether the bytes of a row can be what the engine wrote.
#include "FormaRiga.h"

#include <gtest/gtest.h>

#include <QByteArray>

namespace {

const FormaRiga kJet4{4, 3, true};
const FormaRiga kJet3{3, 3, true};

// Three columns: a whole number, two texts "Riso" and "blu".
QByteArray jet4()
{
    return QByteArray("\x03\0\x07\0\0\0Risoblu\x0d\0\x0a\0\x06\0\x02\0\x07", 22);
}
QByteArray jet3()
{
    return QByteArray("\x03\x07\0\0\0Risoblu\x0c\x09\x05\x02\x07", 17);
}

QByteArray zeroedFrom(QByteArray row, qsizetype from)
{
    return row.replace(from, row.size() - from, QByteArray(row.size() - from, '\0'));
}

TEST(FormaRigaTest, ARowOfTheEngineIsWhole)
{
    EXPECT_TRUE(rigaIntera(jet4(), kJet4));
    EXPECT_TRUE(rigaIntera(jet3(), kJet3));
}

TEST(FormaRigaTest, ARowMayBeOlderThanItsTablesLastColumnsButNeverHasMore)
{
    EXPECT_TRUE(rigaIntera(jet4(), (FormaRiga{4, 9, true})));
    EXPECT_TRUE(rigaIntera(jet3(), (FormaRiga{3, 9, true})));
    EXPECT_FALSE(rigaIntera(jet4(), (FormaRiga{4, 2, true})));
    EXPECT_FALSE(rigaIntera(jet3(), (FormaRiga{3, 2, true})));
}

TEST(FormaRigaTest, ARowThatEndsInZerosIsNone)
{
    for (qsizetype from = 0; from < jet4().size() - 4; ++from)
        EXPECT_FALSE(rigaIntera(zeroedFrom(jet4(), from), kJet4)) << from;
    for (qsizetype from = 0; from < jet3().size() - 4; ++from)
        EXPECT_FALSE(rigaIntera(zeroedFrom(jet3(), from), kJet3)) << from;
}

TEST(FormaRigaTest, ALongRowOfJet3HasABytesMoreForEach256)
{
    QByteArray row =
        "\x03" + QByteArray("\x07\0\0\0", 4) + QByteArray(300, 'x') + QByteArray("\x31\x05\x05\x02\x02\x07");
    EXPECT_TRUE(rigaIntera(row, kJet3));
    EXPECT_FALSE(rigaIntera(zeroedFrom(row, 200), kJet3));
}

TEST(FormaRigaTest, WithoutTextsTheHeadAloneCounts)
{
    const QByteArray row("\x01\0\x07\0\0\0\x01", 7);
    EXPECT_TRUE(rigaIntera(row, (FormaRiga{4, 1, false})));
    EXPECT_FALSE(rigaIntera(zeroedFrom(row, 0), (FormaRiga{4, 1, false})));
    EXPECT_FALSE(rigaIntera(row.left(2), (FormaRiga{4, 1, false})));
}

TEST(FormaRigaTest, BytesThatAreNoRowAreRefusedHoweverFew)
{
    for (char filler : {'\0', '\x7f', '\xff'})
        for (int length = 0; length < 40; ++length)
            for (int jet : {3, 4})
                EXPECT_FALSE(rigaIntera(QByteArray(length, filler), (FormaRiga{jet, 3, true}))) << length;
}

} // namespace
