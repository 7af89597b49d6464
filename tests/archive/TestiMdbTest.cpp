// The head and the texts of a Jet file, without the library that reads the rest.
#include "support/Printers.h"
#include "TestataMdb.h"
#include "TestoMdb.h"

#include <gtest/gtest.h>

#include <QFile>

namespace {

TestataMdb headOf(const QString &name)
{
    QFile file(QStringLiteral(CIBRA_SOURCE_DIR "/tests/archive/mdb/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return leggiTestata(file.read(kTestataMdb), file.size());
}

TEST(TestataMdbTest, TheFormatAndThePasswordStandInTheHead)
{
    EXPECT_EQ(headOf("famiglia2000.mdb").jet, 4);
    EXPECT_EQ(headOf("famiglia97.mdb").jet, 3);
    EXPECT_EQ(headOf("famiglia2000.mdb").password, "");
    EXPECT_EQ(headOf("famiglia97.mdb").password, "");
    EXPECT_EQ(headOf("password.mdb").password, "segreta");
    EXPECT_EQ(headOf("password97.mdb").password, "segreta");
    EXPECT_EQ(headOf("rotto.mdb").esito, TestataMdb::Esito::Tronca);
}

TEST(TestataMdbTest, NoBeginningHoweverShortOrOddIsTooMuch)
{
    const QByteArray jet = QByteArray("\0\1\0\0Standard Jet DB\0\1\0\0\0", 24);
    EXPECT_EQ(leggiTestata({}, 0).esito, TestataMdb::Esito::Estranea);
    EXPECT_EQ(leggiTestata(jet.left(18), 18).esito, TestataMdb::Esito::Estranea);
    EXPECT_EQ(leggiTestata(jet, jet.size()).esito, TestataMdb::Esito::Corta);
    for (char filler : {'\0', '\x7f', '\xff'}) {
        QByteArray head = jet + QByteArray(kTestataMdb, filler);
        EXPECT_EQ(leggiTestata(head, 16384).esito, TestataMdb::Esito::Buona);
        EXPECT_EQ(leggiTestata(head, 16383).esito, TestataMdb::Esito::Tronca);
        EXPECT_EQ(leggiTestata(head, 12288).esito, TestataMdb::Esito::Tronca) << "less than an empty file has";
    }
}

TEST(TestoMdbTest, ATextIsTwoBytesACharacterOrPacked)
{
    const auto text = [](QByteArrayView bytes) {
        const TestoMdb result = testoJet4(bytes);
        return result.buono ? result.testo : QStringLiteral("(none)");
    };
    EXPECT_EQ(text({}), "");
    EXPECT_EQ(text(QByteArrayView("P\0\xE8\0", 4)), "Pè");
    EXPECT_EQ(text(QByteArrayView("\x19\x20", 2)), "’");
    EXPECT_EQ(text(QByteArrayView("\xff\xfe", 2)), "");
    EXPECT_EQ(text(QByteArrayView("\xff\xfePur\xE8", 6)), "Purè");
    EXPECT_EQ(text(QByteArrayView("\xff\xfe"
                                  "d\0\x19\x20\0orzo",
                                  11)),
              "d’orzo");
    EXPECT_EQ(text(QByteArrayView("\x34\xd8\x1e\xdd", 4)), "𝄞");
    EXPECT_EQ(text(QByteArrayView("a\0b", 3)), "(none)");
    // zeros in place of the letters' rest are no switches to and fro
    EXPECT_EQ(text(QByteArrayView("\xff\xfePu\0\0\0\0", 8)), "(none)");
    EXPECT_EQ(text(QByteArrayView("\xff\xfe"
                                  "a\0\x19",
                                  5)),
              "(none)")
        << "half a character at the end";
}

} // namespace
