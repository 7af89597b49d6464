#include "ValoriImportati.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using Esito = ValoreImportato::Esito;

void expectValue(const ValoreMdb &told, TipoArchivio target, const StoredValue &value, Esito outcome)
{
    const ValoreImportato result = valoreImportato(told, target);
    EXPECT_TRUE(result.valore == value) << "value of alternative " << result.valore.index();
    EXPECT_EQ(result.esito, outcome);
}

QString dayOf(double days)
{
    return std::get<QString>(valoreImportato(DataMdb{days}, TipoArchivio::Data).valore);
}

TEST(ValoriImportatiTest, ADayHasATimeOnlyWhereTheFileGivesOne)
{
    EXPECT_EQ(dayOf(45668), "2025-01-11");
    EXPECT_EQ(dayOf(38046.771006944444), "2004-02-29 18:30:15");
    EXPECT_EQ(dayOf(0), "1899-12-30");
    EXPECT_EQ(dayOf(0.75), "1899-12-30 18:00:00");
}

TEST(ValoriImportatiTest, BeforeTheFirstDayTheFractionIsStillTheTimeOfTheDay)
{
    EXPECT_EQ(dayOf(-1), "1899-12-29");
    EXPECT_EQ(dayOf(-1.25), "1899-12-29 06:00:00");
    EXPECT_EQ(dayOf(-0.25), "1899-12-30 06:00:00");
}

TEST(ValoriImportatiTest, HalfASecondBeforeMidnightIsTheNextDay)
{
    EXPECT_EQ(dayOf(45668 + 86399.6 / 86400), "2025-01-12");
    EXPECT_EQ(dayOf(45668 + 86399.4 / 86400), "2025-01-11 23:59:59");
}

TEST(ValoriImportatiTest, WhatIsNoDayOrNumberIsLeftNull)
{
    for (double odd : {1e300, -1e300, 2958466.0, -657435.5, std::nan(""), std::numeric_limits<double>::infinity()})
        expectValue(DataMdb{odd}, TipoArchivio::Data, {}, Esito::Perso);
    EXPECT_EQ(dayOf(2958465), "9999-12-31");
    expectValue(std::nan(""), TipoArchivio::Numero, {}, Esito::Perso);
}

TEST(ValoriImportatiTest, NullIsNullButForYesNo)
{
    for (TipoArchivio type : {TipoArchivio::Intero, TipoArchivio::Numero, TipoArchivio::Data, TipoArchivio::Testo,
                              TipoArchivio::Memo, TipoArchivio::Byte})
        expectValue({}, type, {}, Esito::Esatto);
    expectValue({}, TipoArchivio::SiNo, qint64(0), Esito::Esatto);
    expectValue(QString(""), TipoArchivio::Testo, QString(""), Esito::Esatto);
}

TEST(ValoriImportatiTest, ASingleIsTheNumberThatAPersonSees)
{
    expectValue(0.1F, TipoArchivio::Numero, 0.1, Esito::Esatto);
    expectValue(16777217.0F, TipoArchivio::Numero, 16777216.0, Esito::Esatto);
    expectValue(1.0F / 3, TipoArchivio::Numero, 0.33333334, Esito::Esatto);
}

TEST(ValoriImportatiTest, EveryTypeGoesIntoEveryOtherOrStaysWhatItIs)
{
    expectValue(qint64(5), TipoArchivio::Numero, 5.0, Esito::Esatto);
    expectValue(qint64(5), TipoArchivio::Testo, QString("5"), Esito::Convertito);
    expectValue(qint64(-1), TipoArchivio::SiNo, qint64(1), Esito::Convertito);
    expectValue(qint64(5), TipoArchivio::Data, QString("5"), Esito::Rimasto);
    expectValue(5.0, TipoArchivio::Intero, qint64(5), Esito::Convertito);
    expectValue(5.5, TipoArchivio::Intero, QString("5,5"), Esito::Rimasto);
    expectValue(5.5, TipoArchivio::Memo, QString("5,5"), Esito::Convertito);
    expectValue(1e300, TipoArchivio::Intero, QString("1E+300"), Esito::Rimasto);
    expectValue(true, TipoArchivio::Numero, 1.0, Esito::Convertito);
    expectValue(true, TipoArchivio::Testo, QString("Vero"), Esito::Convertito);
    expectValue(DataMdb{45668}, TipoArchivio::Testo, QString("11/01/2025"), Esito::Convertito);
    expectValue(DataMdb{45668.5}, TipoArchivio::Testo, QString("11/01/2025 12:00:00"), Esito::Convertito);
    expectValue(DataMdb{45668}, TipoArchivio::Numero, QString("11/01/2025"), Esito::Rimasto);
    expectValue(QString("11/1/2025"), TipoArchivio::Data, QString("2025-01-11"), Esito::Convertito);
    expectValue(QString("31/02/2025"), TipoArchivio::Data, QString("31/02/2025"), Esito::Rimasto);
    expectValue(QString(" 12,5 "), TipoArchivio::Numero, 12.5, Esito::Convertito);
    expectValue(QString("12"), TipoArchivio::Intero, qint64(12), Esito::Convertito);
    expectValue(QString(""), TipoArchivio::Numero, QString(""), Esito::Rimasto);
    expectValue(QString("sì"), TipoArchivio::SiNo, QString("sì"), Esito::Rimasto);
    expectValue(QByteArray("\0\1", 2), TipoArchivio::Byte, QByteArray("\0\1", 2), Esito::Esatto);
    expectValue(QByteArray("\0\1", 2), TipoArchivio::Testo, QByteArray("\0\1", 2), Esito::Rimasto);
}

TEST(ValoriImportatiTest, ADecimalIsANumberWhileItHasNoMoreThanFifteenDigits)
{
    expectValue(DecimaleMdb{"12.5000"}, TipoArchivio::Numero, 12.5, Esito::Esatto);
    expectValue(DecimaleMdb{"-0.0001"}, TipoArchivio::Numero, -0.0001, Esito::Esatto);
    expectValue(DecimaleMdb{"922337203685477.5807"}, TipoArchivio::Numero, 922337203685477.5807, Esito::Arrotondato);
    expectValue(DecimaleMdb{"922337203685477.5807"}, TipoArchivio::Testo, QString("922337203685477.5807"),
                Esito::Esatto);
    EXPECT_EQ(cifre({"100"}), "100");
    EXPECT_EQ(cifre({"100.00"}), "100");
}

} // namespace
