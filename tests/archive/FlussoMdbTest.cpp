#include "FlussoMdb.h"

#include "platform/Failure.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

namespace {

const QByteArray kSmall = "CIBRA-MDB 1\nTABELLA\tA\t1\nCOLONNA\ta\tlungo\t4\t-\nRIGA\ti5\nFINETABELLA\t1\nFINE\t1\n";

ContenutoMdb read(const QByteArray &stream, qsizetype piece = 7)
{
    LettoreFlusso reader;
    for (qsizetype from = 0; from < stream.size(); from += piece)
        reader.aggiungi(stream.mid(from, piece));
    return reader.prendi();
}

QString refusal(const QByteArray &stream)
{
    try {
        read(stream);
        return {};
    } catch (const Failure &failure) {
        return failure.words();
    }
}

TEST(FlussoMdbTest, WhatIsWrittenIsReadWhateverThePieces)
{
    const QList<ColonnaMdb> columns = {
        {"sì\t", TipoMdb::SiNo, 1, false},       {"byte", TipoMdb::Byte, 1, false},
        {"intero", TipoMdb::Intero, 2, false},   {"lungo", TipoMdb::InteroLungo, 4, true},
        {"valuta", TipoMdb::Valuta, 8, false},   {"singola", TipoMdb::Singola, 4, false},
        {"doppia", TipoMdb::Doppia, 8, false},   {"data", TipoMdb::Data, 8, false},
        {"binario", TipoMdb::Binario, 9, false}, {"testo", TipoMdb::Testo, 510, false},
        {"ole", TipoMdb::Ole, 0, false},         {"memo", TipoMdb::Memo, 0, false},
        {"guid", TipoMdb::Guid, 16, false},      {"decimale", TipoMdb::Decimale, 17, false}};
    const RigaMdb full = {true,
                          qint64(255),
                          qint64(-32768),
                          qint64(-2147483647),
                          DecimaleMdb{"-0.0001"},
                          0.1F,
                          0.1 + 0.2,
                          DataMdb{-1.25},
                          QByteArray("\0\xff", 2),
                          QString("a\tb\\c\r\nd" + QString(QChar(0)) + "è’€𝄞"),
                          QByteArray(),
                          QString(""),
                          QString("{X}"),
                          DecimaleMdb{"12345678901234567890.5"}};
    const RigaMdb nulls(14);
    QByteArray stream = rigaInizio() + rigaNota("nota\nsu due righe") + rigaTabella("Prova\t1", 2);
    for (const ColonnaMdb &column : columns)
        stream += rigaColonna(column);
    stream += rigaChiave({"lungo", "sì\t"}) + rigaValori(full) + rigaValori(nulls) + rigaFineTabella(2) + rigaFine(1);

    for (qsizetype piece : {qsizetype(1), qsizetype(5), stream.size()}) {
        const ContenutoMdb content = read(stream, piece);
        EXPECT_EQ(content.note, QStringList("nota\nsu due righe"));
        ASSERT_EQ(content.tabelle.size(), 1U);
        const TabellaMdb &table = content.tabelle[0];
        EXPECT_EQ(table.nome, "Prova\t1");
        EXPECT_EQ(table.chiave, QStringList({"lungo", "sì\t"}));
        ASSERT_EQ(table.colonne.size(), columns.size());
        for (int i = 0; i < columns.size(); ++i) {
            EXPECT_EQ(table.colonne[i].nome, columns[i].nome);
            EXPECT_EQ(table.colonne[i].tipo, columns[i].tipo);
            EXPECT_EQ(table.colonne[i].ampiezza, columns[i].ampiezza);
            EXPECT_EQ(table.colonne[i].contatore, columns[i].contatore);
        }
        ASSERT_EQ(table.righe.size(), 2U);
        EXPECT_TRUE(table.righe[0] == full);
        EXPECT_TRUE(table.righe[1] == nulls);
    }
}

TEST(FlussoMdbTest, TheDamageThatTheReaderTellsIsThrown)
{
    EXPECT_EQ(refusal("CIBRA-MDB 1\n" + rigaGuasto("si è \"rotto\"")), "si è \"rotto\"");
}

TEST(FlussoMdbTest, FewerRowsThanDeclaredAreADamage)
{
    EXPECT_EQ(refusal(QByteArray(kSmall).replace("TABELLA\tA\t1", "TABELLA\tA\t2")),
              "tabella \"A\": righe lette: 1, dichiarate: 2");
}

TEST(FlussoMdbTest, AStreamThatBreaksTheRulesIsRefused)
{
    const QString nonsense = "la lettura dà righe senza senso";
    EXPECT_EQ(refusal(kSmall), "");
    const std::pair<const char *, const char *> changes[] = {
        {"CIBRA-MDB 1", "CIBRA-MDB 2"},
        {"TABELLA\tA\t1", "TABELLA\tA\t0"},
        {"TABELLA\tA\t1", "TABELLA\tA\t-1"},
        {"TABELLA\tA\t1", "TABELLA\t\t1"},
        {"TABELLA\tA\t1", "TABELLA\tA"},
        {"TABELLA\tA\t1", "TABELLA\tA\\\t1"},
        {"TABELLA\tA\t1", "TABELLA\tA\\x\t1"},
        {"TABELLA\tA\t1\n", ""},
        {"lungo\t4", "corto\t4"},
        {"lungo\t4", "lungo\t65536"},
        {"lungo\t4", "lungo\tquattro"},
        {"COLONNA\ta\t", "COLONNA\t\t"},
        {"RIGA\ti5", "RIGA"},
        {"RIGA\ti5", "RIGA\ti5\ti6"},
        {"RIGA\ti5", "RIGA\ti"},
        {"RIGA\ti5", "RIGA\t"},
        {"RIGA\ti5", "RIGA\tt5"},
        {"RIGA\ti5", "RIGA\ti5x"},
        {"RIGA\ti5", "RIGA\ti99999999999999999999"},
        {"FINETABELLA\t1", "FINETABELLA\t2"},
        {"FINE\t1", "FINE\t2"},
        {"FINE\t1\n", "FINE\t1"},
        {"FINE\t1\n", "FINE\t1\nNOTA\tancora\n"},
        {"FINE\t1\n", ""},
        {"RIGA\ti5\n", "RIGA\ti5\nCOLONNA\tb\tlungo\t4\t-\n"},
        {"RIGA\ti5\n", "RIGA\ti5\nCHIAVE\ta\n"},
        {"RIGA\ti5\n", "TABELLA\tB\t0\n"},
        {"COLONNA\ta\tlungo\t4\t-\n", "COLONNA\ta\tlungo\t4\t-\nCOLONNA\tA\tlungo\t4\t-\n"},
        {"FINE\t1", "TABELLA\ta\t0\nCOLONNA\ta\tlungo\t4\t-\nFINETABELLA\t0\nFINE\t2"},
    };
    for (const auto &[before, after] : changes) {
        ASSERT_TRUE(kSmall.contains(before)) << before;
        EXPECT_EQ(refusal(QByteArray(kSmall).replace(before, after)), nonsense) << before << " -> " << after;
    }
}

TEST(FlussoMdbTest, AValueMustFitItsType)
{
    const std::pair<const char *, QByteArrayList> wrong[] = {
        {"sino", {"v2", "v", "i1"}},
        {"singola", {"f1ffffffff", "f", "fxyz", "n0"}},
        {"doppia", {"n10000000000000000", "n"}},
        {"decimale", {"e", "e1,5", "edodici"}},
        {"binario", {"x0", "xzz", "t00"}},
    };
    for (const auto &[type, values] : wrong)
        for (const QByteArray &value : values)
            EXPECT_NE(refusal(QByteArray(kSmall).replace("lungo", type).replace("i5", value)), "")
                << type << " " << value.constData();
}

} // namespace
