// The texts of a Jet 4 file.
#pragma once

#include <QByteArrayView>
#include <QString>

// Two bytes a character, or, behind the mark FF FE, packed: one byte a character, a byte 0 switching between both ways.
// Nothing where the bytes are no such text.
struct TestoMdb
{
    bool buono = false;
    QString testo;
};
TestoMdb testoJet4(QByteArrayView bytes);
