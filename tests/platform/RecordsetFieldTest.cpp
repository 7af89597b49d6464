// Names, types and values of fields.
#include "platform/StoreTest.h"

namespace {

constexpr int kTypeMismatch = int(FailureNumber::TypeMismatch);

class RecordsetFieldTest : public StoreTest
{
protected:
    void SetUp() override
    {
        open(kThreeRows);
        m_rows.Open(u"Select * from T order by ID"_s, m_connection);
    }

    QString describe(const QString &statement)
    {
        Recordset rows;
        rows.Open(statement, m_connection);
        QStringList fields;
        for (int i = 0; i < rows.fieldCount(); ++i) {
            const FieldInfo &field = rows.field(i);
            fields << u"%1 %2 %3"_s.arg(field.name).arg(int(field.type)).arg(field.definedSize);
        }
        return fields.join(u", "_s);
    }

    Value stored(const QString &field, const Value &value)
    {
        m_rows.setValue(field, value);
        m_rows.Update();
        const Value shown = m_rows.value(field);
        m_rows.Requery();
        EXPECT_EQ(m_rows.value(field), shown);
        return shown;
    }

    int refused(const QString &field, const Value &value)
    {
        return failureNumber([&] { m_rows.setValue(field, value); });
    }

    Recordset m_rows;
};

TEST_F(RecordsetFieldTest, FieldsHaveTheNamesTypesAndSizesThatTheTableDeclares)
{
    EXPECT_EQ(describe(u"select id, NOME, quanto, pezzi, giorno, si, nota from t"_s),
              u"ID 3 0, Nome 202 20, Quanto 5 0, Pezzi 3 0, Giorno 7 0, Si 11 0, Nota 203 0"_s);
}

TEST_F(RecordsetFieldTest, AnAliasIsTheName)
{
    EXPECT_EQ(describe(u"Select Nome AS Chi from T"_s), u"Chi 202 20"_s);
}

TEST_F(RecordsetFieldTest, AnExpressionHasTheTypeOfItsValues)
{
    m_connection.Execute(u"UPDATE T SET Quanto = 2 WHERE ID > 1"_s);
    EXPECT_EQ(describe(u"SELECT Max(ID) + 1 AS ID FROM T;"_s), u"ID 5 0"_s);
    EXPECT_EQ(describe(u"SELECT Trim([Nome]) AS N, Sum(T.Quanto) AS S FROM T GROUP BY Trim([Nome])"_s),
              u"N 202 0, S 5 0"_s);
    EXPECT_EQ(describe(u"SELECT Sum(T.Quanto) AS S FROM T where T.ID = 99"_s), u"S 202 0"_s);
}

TEST_F(RecordsetFieldTest, ACallOfCDateIsADay)
{
    m_connection.Execute(u"UPDATE T SET Nome = '02/03/2025' WHERE ID = 1"_s);
    m_connection.Execute(u"UPDATE T SET Nome = '11/01/2025' WHERE ID = 2"_s);
    Recordset days;
    days.Open(u"SELECT CDate([T].[nome]) AS dataInserimento From T GROUP BY CDate([T].[nome]);"_s, m_connection);
    EXPECT_EQ(days.field(0).type, ColumnType::Date);
    ASSERT_EQ(days.RecordCount(), 3);
    EXPECT_TRUE(days.valueAt(0, 0).isNull()); // "c" is no day
    EXPECT_EQ(days.valueAt(1, 0), Value(QDate(2025, 1, 11)));
    EXPECT_EQ(days.valueAt(2, 0), Value(QDate(2025, 3, 2)));
}

TEST_F(RecordsetFieldTest, FieldsAreFoundWithoutRegardToCase)
{
    EXPECT_EQ(m_rows.fieldIndex(u"QUANTO"_s), 2);
    EXPECT_TRUE(m_rows.hasField(u"quanto"_s));
    EXPECT_FALSE(m_rows.hasField(u"quant"_s));
    EXPECT_EQ(failureNumber([&] { m_rows.value(u"Nominativo"_s); }), int(FailureNumber::NoSuchField));
    EXPECT_EQ(failureNumber([&] { m_rows.setValue(u"Nominativo"_s, 1); }), int(FailureNumber::NoSuchField));
    EXPECT_EQ(failureNumber([&] { m_rows.value(7); }), int(FailureNumber::NoSuchField));
}

TEST_F(RecordsetFieldTest, ANumberFieldTakesNumbersAndTextsThatAreNumbers)
{
    EXPECT_EQ(stored(u"Quanto"_s, 1480.5), Value(1480.5));
    EXPECT_EQ(stored(u"Quanto"_s, u"12,25"_s), Value(12.25));
    EXPECT_EQ(stored(u"Quanto"_s, u"1.100"_s), Value(1100.0));
    EXPECT_EQ(stored(u"Quanto"_s, 3), Value(3.0));
    EXPECT_EQ(stored(u"Quanto"_s, Value()), Value());
    EXPECT_EQ(refused(u"Quanto"_s, u""_s), kTypeMismatch);
    EXPECT_EQ(refused(u"Quanto"_s, u"molto"_s), kTypeMismatch);
    EXPECT_FALSE(m_rows.isPending());
}

TEST_F(RecordsetFieldTest, AWholeNumberFieldKeepsWholeNumbersWhole)
{
    EXPECT_EQ(stored(u"Pezzi"_s, 3.0), Value(3));
    EXPECT_EQ(stored(u"Pezzi"_s, u"12"_s), Value(12));
    EXPECT_EQ(stored(u"Pezzi"_s, 2.5), Value(2.5));
    EXPECT_EQ(refused(u"Pezzi"_s, u"due"_s), kTypeMismatch);
}

TEST_F(RecordsetFieldTest, ADayFieldTakesDaysAndDayTexts)
{
    EXPECT_EQ(stored(u"Giorno"_s, QDate(2025, 3, 2)), Value(QDate(2025, 3, 2)));
    EXPECT_EQ(stored(u"Giorno"_s, u"05/06/2025"_s), Value(QDate(2025, 6, 5)));
    EXPECT_EQ(column(u"Select Giorno || '' AS G from T where ID = 1"_s), u"2025-06-05"_s);
    EXPECT_EQ(stored(u"Giorno"_s, Value()), Value());
    EXPECT_EQ(refused(u"Giorno"_s, u"31/02/2025"_s), kTypeMismatch);
    EXPECT_EQ(refused(u"Giorno"_s, u""_s), kTypeMismatch);
    EXPECT_EQ(refused(u"Giorno"_s, 45000.0), kTypeMismatch);
}

TEST_F(RecordsetFieldTest, ATextFieldTakesEverythingInItsTextForm)
{
    EXPECT_EQ(stored(u"Nome"_s, QDate(2025, 3, 2)), Value(u"02/03/2025"_s));
    EXPECT_EQ(stored(u"Nome"_s, 1480.5), Value(u"1480,5"_s));
    EXPECT_EQ(stored(u"Nome"_s, 7), Value(u"7"_s));
    EXPECT_EQ(stored(u"Nome"_s, u""_s), Value(u""_s));
    EXPECT_EQ(stored(u"Nome"_s, u"Purè d'à"_s), Value(u"Purè d'à"_s));
    EXPECT_EQ(stored(u"Nome"_s, Value()), Value());
}

TEST_F(RecordsetFieldTest, AYesNoFieldIsYesForWhateverIsNotZero)
{
    EXPECT_EQ(stored(u"Si"_s, true), Value(true));
    EXPECT_EQ(stored(u"Si"_s, Value()), Value(false));
    m_connection.Execute(u"UPDATE T SET Si = -1"_s); // as older archives have it
    m_rows.Requery();
    EXPECT_EQ(m_rows.value(u"Si"_s), Value(true));
}

TEST_F(RecordsetFieldTest, FirstAndLastGiveTheValuesOfTheLowestAndHighestKey)
{
    m_connection.Execute(u"UPDATE T SET Nota = 'prima' WHERE ID = 1"_s);
    Recordset ends;
    ends.Open(u"SELECT First(T.Nome) AS F, Last(T.Nome) AS L, Last(T.Nota) AS N FROM T"_s, m_connection);
    EXPECT_EQ(ends.value(u"F"_s), Value(u"a"_s));
    EXPECT_EQ(ends.value(u"L"_s), Value(u"c"_s));
    EXPECT_TRUE(ends.value(u"N"_s).isNull());
    m_connection.Execute(u"DELETE FROM T"_s);
    ends.Requery();
    EXPECT_TRUE(ends.Eof());
}

TEST_F(RecordsetFieldTest, ASumOverNoRowIsOneRowWithoutAValue)
{
    Recordset sum;
    sum.Open(u"SELECT Sum(T.Quanto) AS S FROM T WHERE T.Nome = 'nessuno'"_s, m_connection);
    ASSERT_EQ(sum.RecordCount(), 1);
    EXPECT_TRUE(sum.value(u"S"_s).isNull());
}

TEST_F(RecordsetFieldTest, OneStatementIsReadForOneDayAfterAnother)
{
    // The statement is prepared once and its value exchanged; each reading must give its own rows.
    for (const QString &name : {u"a"_s, u"b"_s, u"nessuno"_s, u"c"_s})
        EXPECT_EQ(column(u"Select Nome from T where Nome = '%1'"_s.arg(name)), name == u"nessuno" ? QString() : name);
}

} // namespace
