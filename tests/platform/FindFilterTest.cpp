// Find and the filter.
#include "platform/StoreTest.h"

namespace {

class FindFilterTest : public StoreTest
{
protected:
    void SetUp() override
    {
        open(u"CREATE TABLE T (ID INTEGER PRIMARY KEY, Alimento VARCHAR(50) COLLATE NOCASE, Categoria VARCHAR(50),"
             u" Preferito BOOLEAN NOT NULL DEFAULT 0, Ordine REAL, Giorno DATE);"
             u"INSERT INTO T (Alimento, Categoria, Preferito, Ordine, Giorno) VALUES"
             u" ('Burro', 'Piatto Unico', 1, 10, '2025-01-09'), ('Caffè', 'Carne', 0, 9, '2025-02-03'),"
             u" ('latte', NULL, -1, NULL, NULL), ('Latte intero', 'Pesce', 0, 2, '2024-12-31');"_s);
        m_rows.Open(u"Select * from T order by ID"_s, m_connection);
    }

    QString found(const QString &criterion)
    {
        m_rows.MoveFirst();
        m_rows.Find(criterion);
        return m_rows.Eof() ? u"eof"_s : m_rows.value(u"Alimento"_s).text();
    }

    QString filtered(const QString &criterion)
    {
        m_rows.setFilter(criterion);
        QStringList names;
        for (int row = 0; row < m_rows.RecordCount(); ++row)
            names << m_rows.valueAt(row, 1).text();
        return names.join(u", "_s);
    }

    Recordset m_rows;
};

TEST_F(FindFilterTest, FindLikeIgnoresCaseAndTakesPercentForAnyEnd)
{
    EXPECT_EQ(found(u"Alimento like 'LAT%'"_s), u"latte"_s);
    EXPECT_EQ(found(u"Alimento like 'CAFFÈ%'"_s), u"Caffè"_s);
    EXPECT_EQ(found(u"Alimento like 'CAFFE%'"_s), u"eof"_s);
    EXPECT_EQ(found(u"alimento LIKE '*intero'"_s), u"Latte intero"_s);
    EXPECT_EQ(found(u"Alimento like 'b_rr?'"_s), u"Burro"_s);
    EXPECT_EQ(found(u"Alimento like 'lat'"_s), u"eof"_s);
    EXPECT_EQ(found(u"Alimento like '%'"_s), u"Burro"_s);
}

TEST_F(FindFilterTest, FindStartsAtTheCurrentRowAndGoesForward)
{
    m_rows.MoveLast();
    m_rows.Find(u"Alimento like 'latte%'"_s);
    EXPECT_EQ(m_rows.value(u"Alimento"_s), Value(u"Latte intero"_s));
    m_rows.Find(u"Alimento = 'Burro'"_s);
    EXPECT_TRUE(m_rows.Eof());
    m_rows.Find(u"Alimento = 'Burro'"_s);
    EXPECT_TRUE(m_rows.Eof());
}

TEST_F(FindFilterTest, EachOperatorComparesTextsWithoutCase)
{
    EXPECT_EQ(filtered(u"Alimento = 'LATTE'"_s), u"latte"_s);
    EXPECT_EQ(filtered(u"Alimento <> 'LATTE'"_s), u"Burro, Caffè, Latte intero"_s);
    EXPECT_EQ(filtered(u"Alimento < 'latte'"_s), u"Burro, Caffè"_s);
    EXPECT_EQ(filtered(u"Alimento <= 'latte'"_s), u"Burro, Caffè, latte"_s);
    EXPECT_EQ(filtered(u"Alimento > 'latte'"_s), u"Latte intero"_s);
    EXPECT_EQ(filtered(u"Alimento >= 'LATTE'"_s), u"latte, Latte intero"_s);
}

TEST_F(FindFilterTest, AFilterOnDifferenceAlsoShutsOutNull)
{
    EXPECT_EQ(filtered(u"Categoria <> 'Piatto unico'"_s), u"Caffè, Latte intero"_s);
}

TEST_F(FindFilterTest, AYesNoColumnIsTrueWhereItIsNotZero)
{
    EXPECT_EQ(filtered(u"preferito = true"_s), u"Burro, latte"_s);
    EXPECT_EQ(filtered(u"Preferito = False"_s), u"Caffè, Latte intero"_s);
}

TEST_F(FindFilterTest, NumbersAndDaysCompareAsSuch)
{
    EXPECT_EQ(filtered(u"Ordine > 2"_s), u"Burro, Caffè"_s);
    EXPECT_EQ(filtered(u"Ordine >= '9'"_s), u"Burro, Caffè"_s);
    EXPECT_EQ(filtered(u"Giorno < '09/01/2025'"_s), u"Latte intero"_s);
}

TEST_F(FindFilterTest, AFilterStandsOnTheFirstRowThatPassesAndCountsThose)
{
    m_rows.MoveLast();
    m_rows.setFilter(u"Alimento like 'latte%'"_s);
    EXPECT_EQ(m_rows.RecordCount(), 2);
    EXPECT_EQ(m_rows.AbsolutePosition(), 1);
    EXPECT_EQ(m_rows.value(u"Alimento"_s), Value(u"latte"_s));
    EXPECT_EQ(m_rows.filter(), u"Alimento like 'latte%'"_s);
    m_rows.setFilter(QString());
    EXPECT_EQ(m_rows.RecordCount(), 4);
    EXPECT_EQ(m_rows.value(u"Alimento"_s), Value(u"Burro"_s));
}

TEST_F(FindFilterTest, AFilterThatNoRowPassesLeavesAnEmptySet)
{
    m_rows.setFilter(u"Alimento = 'nessuno'"_s);
    EXPECT_TRUE(m_rows.Bof() && m_rows.Eof());
    EXPECT_EQ(failureNumber([&] { m_rows.MoveFirst(); }), int(FailureNumber::NoCurrentRow));
}

TEST_F(FindFilterTest, RequeryKeepsTheFilter)
{
    m_rows.setFilter(u"Preferito = true"_s);
    m_connection.Execute(u"UPDATE T SET Preferito = 1 WHERE ID = 2"_s);
    m_rows.Requery();
    EXPECT_EQ(m_rows.RecordCount(), 3);
}

TEST_F(FindFilterTest, DeletingInAFilteredSetTakesTheRowOutOfBoth)
{
    m_rows.setFilter(u"Alimento like 'latte%'"_s);
    m_rows.Delete();
    EXPECT_EQ(m_rows.RecordCount(), 1);
    m_rows.setFilter(QString());
    EXPECT_EQ(m_rows.RecordCount(), 3);
}

TEST_F(FindFilterTest, AnUnknownColumnAndAnUnreadableConditionAreFailures)
{
    EXPECT_EQ(failureNumber([&] { m_rows.Find(u"Nominativo like 'A%'"_s); }), int(FailureNumber::NoSuchField));
    EXPECT_EQ(failureNumber([&] { m_rows.setFilter(u"Nominativo = 'A'"_s); }), int(FailureNumber::NoSuchField));
    EXPECT_EQ(failureNumber([&] { m_rows.Find(u"Alimento like 'DELL'ORTO%'"_s); }), int(FailureNumber::Engine));
    EXPECT_EQ(failureNumber([&] { m_rows.Find(u"Alimento"_s); }), int(FailureNumber::Engine));
    EXPECT_EQ(m_rows.filter(), QString());
    EXPECT_EQ(m_rows.RecordCount(), 4);
}

TEST_F(FindFilterTest, ADoubledApostropheIsOne)
{
    m_connection.Execute(u"UPDATE T SET Alimento = 'Pane dell''orto' WHERE ID = 2"_s);
    m_rows.Requery();
    EXPECT_EQ(found(u"Alimento = 'pane dell''orto'"_s), u"Pane dell'orto"_s);
}

} // namespace
