// Where the cursor stands.
#include "platform/StoreTest.h"

namespace {

constexpr int kNoCurrentRow = int(FailureNumber::NoCurrentRow);

class RecordsetPositionTest : public StoreTest
{
protected:
    void SetUp() override
    {
        open(kThreeRows);
        m_rows.Open(u"Select * from T order by ID"_s, m_connection);
    }

    // The current name, or where the cursor stands instead.
    QString place() const
    {
        if (m_rows.Bof() && m_rows.Eof())
            return u"empty"_s;
        if (m_rows.Bof())
            return u"bof"_s;
        if (m_rows.Eof())
            return u"eof"_s;
        return failureNumber([&] { m_rows.value(0); }) == kNoCurrentRow ? u"gap"_s : m_rows.value(u"Nome"_s).text();
    }

    void empty() { m_connection.Execute(u"DELETE FROM T"_s); }

    Recordset m_rows;
};

TEST_F(RecordsetPositionTest, OpeningStandsOnTheFirstRow)
{
    EXPECT_EQ(place(), u"a"_s);
    EXPECT_EQ(m_rows.AbsolutePosition(), 1);
    EXPECT_EQ(m_rows.RecordCount(), 3);
    EXPECT_FALSE(m_rows.Bof());
    EXPECT_FALSE(m_rows.Eof());
}

TEST_F(RecordsetPositionTest, MovingNextReachesTheEndAndThenFails)
{
    m_rows.MoveNext();
    m_rows.MoveNext();
    EXPECT_EQ(place(), u"c"_s);
    EXPECT_EQ(m_rows.AbsolutePosition(), 3);
    m_rows.MoveNext();
    EXPECT_EQ(place(), u"eof"_s);
    EXPECT_EQ(m_rows.AbsolutePosition(), -3);
    EXPECT_EQ(failureNumber([&] { m_rows.MoveNext(); }), kNoCurrentRow);
    m_rows.MovePrevious();
    EXPECT_EQ(place(), u"c"_s);
}

TEST_F(RecordsetPositionTest, MovingPreviousReachesTheStartAndThenFails)
{
    m_rows.MovePrevious();
    EXPECT_EQ(place(), u"bof"_s);
    EXPECT_EQ(m_rows.AbsolutePosition(), -2);
    EXPECT_EQ(failureNumber([&] { m_rows.MovePrevious(); }), kNoCurrentRow);
    m_rows.MoveNext();
    EXPECT_EQ(place(), u"a"_s);
}

TEST_F(RecordsetPositionTest, MovingByRowsStopsAtTheEnds)
{
    m_rows.Move(2);
    EXPECT_EQ(place(), u"c"_s);
    m_rows.Move(-1);
    EXPECT_EQ(place(), u"b"_s);
    m_rows.Move(0);
    EXPECT_EQ(place(), u"b"_s);
    m_rows.Move(2147483647);
    EXPECT_EQ(place(), u"eof"_s);
    m_rows.Move(-1000);
    EXPECT_EQ(place(), u"bof"_s);
}

TEST_F(RecordsetPositionTest, FirstAndLastStandOnTheEnds)
{
    m_rows.MoveLast();
    EXPECT_EQ(place(), u"c"_s);
    m_rows.MoveFirst();
    EXPECT_EQ(place(), u"a"_s);
}

TEST_F(RecordsetPositionTest, ASetWithoutRowsIsAtBothEndsAndCannotMove)
{
    empty();
    m_rows.Requery();
    EXPECT_EQ(place(), u"empty"_s);
    EXPECT_EQ(m_rows.AbsolutePosition(), -1);
    EXPECT_EQ(m_rows.RecordCount(), 0);
    EXPECT_EQ(failureNumber([&] { m_rows.MoveFirst(); }), kNoCurrentRow);
    EXPECT_EQ(failureNumber([&] { m_rows.MoveLast(); }), kNoCurrentRow);
    EXPECT_EQ(failureNumber([&] { m_rows.MoveNext(); }), kNoCurrentRow);
    EXPECT_EQ(failureNumber([&] { m_rows.MovePrevious(); }), kNoCurrentRow);
}

TEST_F(RecordsetPositionTest, AFieldWithoutACurrentRowCanNeitherBeReadNorWritten)
{
    m_rows.MovePrevious();
    EXPECT_EQ(failureNumber([&] { m_rows.value(u"Nome"_s); }), kNoCurrentRow);
    EXPECT_EQ(failureNumber([&] { m_rows.setValue(u"Nome"_s, u"x"_s); }), kNoCurrentRow);
    EXPECT_EQ(failureNumber([&] { m_rows.Delete(); }), kNoCurrentRow);
}

TEST_F(RecordsetPositionTest, AfterADeleteTheCursorStandsBeforeTheNextRow)
{
    m_rows.MoveNext();
    m_rows.Delete();
    EXPECT_EQ(place(), u"gap"_s);
    EXPECT_EQ(m_rows.RecordCount(), 2);
    m_rows.MoveNext();
    EXPECT_EQ(place(), u"c"_s);
    EXPECT_EQ(m_rows.AbsolutePosition(), 2);
}

TEST_F(RecordsetPositionTest, AfterADeleteMovingPreviousGoesToTheRowBefore)
{
    m_rows.MoveNext();
    m_rows.Delete();
    m_rows.MovePrevious();
    EXPECT_EQ(place(), u"a"_s);
}

TEST_F(RecordsetPositionTest, AfterADeleteOfTheFirstRowMovingPreviousGoesBeforeTheFirst)
{
    m_rows.Delete();
    m_rows.MovePrevious();
    EXPECT_EQ(place(), u"bof"_s);
}

TEST_F(RecordsetPositionTest, AWalkThatDeletesEachRowReachesTheEnd)
{
    int deleted = 0;
    for (; !m_rows.Eof(); m_rows.MoveNext()) {
        m_rows.Delete();
        ++deleted;
    }
    EXPECT_EQ(deleted, 3);
    EXPECT_EQ(place(), u"empty"_s);
    EXPECT_EQ(column(u"Select Nome from T"_s), QString());
}

TEST_F(RecordsetPositionTest, ADeletedRowCannotBeRead)
{
    m_rows.Delete();
    EXPECT_EQ(failureNumber([&] { m_rows.value(u"Nome"_s); }), kNoCurrentRow);
    EXPECT_EQ(failureNumber([&] { m_rows.Delete(); }), kNoCurrentRow);
}

TEST_F(RecordsetPositionTest, EveryMoveIsAnnounced)
{
    int moves = 0;
    QObject::connect(&m_rows, &Recordset::moveComplete, &m_rows, [&] { ++moves; });
    m_rows.MoveNext();
    m_rows.MoveLast();
    m_rows.MoveFirst();
    m_rows.Move(1);
    m_rows.MovePrevious();
    m_rows.Find(u"Nome = 'b'"_s);
    m_rows.setFilter(QString());
    m_rows.Requery();
    m_rows.AddNew();
    m_rows.CancelUpdate();
    m_rows.Delete();
    EXPECT_EQ(moves, 11);
}

TEST_F(RecordsetPositionTest, ChangesOfTheRowsAreAnnouncedWithTheirPlace)
{
    QStringList notices;
    QObject::connect(&m_rows, &Recordset::opened, &m_rows, [&] { notices << u"opened"_s; });
    QObject::connect(&m_rows, &Recordset::rowChanged, &m_rows, [&](int row) { notices << u"changed %1"_s.arg(row); });
    QObject::connect(&m_rows, &Recordset::rowInserted, &m_rows, [&](int row) { notices << u"inserted %1"_s.arg(row); });
    QObject::connect(&m_rows, &Recordset::rowRemoved, &m_rows, [&](int row) { notices << u"removed %1"_s.arg(row); });
    m_rows.MoveNext();
    m_rows.setValue(u"Nome"_s, u"B"_s);
    m_rows.Update();
    m_rows.AddNew();
    m_rows.Update();
    m_rows.MoveFirst();
    m_rows.Delete();
    m_rows.Requery();
    m_rows.Close();
    EXPECT_EQ(notices.join(u", "_s), u"changed 1, inserted 3, changed 3, removed 0, opened, opened"_s);
}

TEST_F(RecordsetPositionTest, AClosedSetRefusesWhatNeedsRows)
{
    constexpr int kClosed = int(FailureNumber::ObjectClosed);
    m_rows.Close();
    EXPECT_FALSE(m_rows.isOpen());
    EXPECT_EQ(failureNumber([&] { m_rows.MoveFirst(); }), kClosed);
    EXPECT_EQ(failureNumber([&] { m_rows.value(0); }), kClosed);
    EXPECT_EQ(failureNumber([&] { (void)m_rows.Eof(); }), kClosed);
    EXPECT_EQ(failureNumber([&] { (void)m_rows.RecordCount(); }), kClosed);
    EXPECT_EQ(failureNumber([&] { m_rows.AddNew(); }), kClosed);
    EXPECT_EQ(failureNumber([&] { m_rows.Requery(); }), kClosed);
    EXPECT_EQ(failureNumber([&] { m_rows.Close(); }), 0);
}

TEST_F(RecordsetPositionTest, AnOpenSetCannotBeOpenedAgain)
{
    EXPECT_EQ(failureNumber([&] { m_rows.Open(u"T"_s, m_connection); }), int(FailureNumber::ObjectOpen));
    EXPECT_EQ(place(), u"a"_s);
}

TEST_F(RecordsetPositionTest, AClosedConnectionRefusesToOpenRequeryAndWrite)
{
    constexpr int kConnectionClosed = int(FailureNumber::ConnectionClosed);
    m_connection.Close();
    Recordset other;
    EXPECT_EQ(failureNumber([&] { other.Open(u"T"_s, m_connection); }), kConnectionClosed);
    EXPECT_EQ(failureNumber([&] { m_connection.Execute(u"DELETE FROM T"_s); }), kConnectionClosed);
    EXPECT_EQ(failureNumber([&] { m_rows.Requery(); }), kConnectionClosed);
    EXPECT_EQ(place(), u"a"_s); // the snapshot is still there to be read
    m_rows.setValue(u"Nome"_s, u"x"_s);
    EXPECT_EQ(failureNumber([&] { m_rows.Update(); }), kConnectionClosed);
}

TEST_F(RecordsetPositionTest, RowsStayAsTheyWereWhenOpened)
{
    m_connection.Execute(u"UPDATE T SET Nome = 'z'"_s);
    m_connection.Execute(u"INSERT INTO T (Nome) VALUES ('d')"_s);
    EXPECT_EQ(m_rows.RecordCount(), 3);
    EXPECT_EQ(place(), u"a"_s);
    m_rows.Requery();
    EXPECT_EQ(m_rows.RecordCount(), 4);
    EXPECT_EQ(place(), u"z"_s);
}

TEST_F(RecordsetPositionTest, RequeryStandsOnTheFirstRow)
{
    m_rows.MoveLast();
    m_rows.Requery();
    EXPECT_EQ(place(), u"a"_s);
}

TEST_F(RecordsetPositionTest, TheSourceIsKeptLetterByLetter)
{
    Recordset other;
    other.Open(u" Select  * from t  "_s, m_connection);
    EXPECT_EQ(other.Source(), u" Select  * from t  "_s);
}

TEST_F(RecordsetPositionTest, GetStringJoinsTheRowsFromTheCurrentOneOn)
{
    m_connection.Execute(u"UPDATE T SET Quanto = 12.5, Giorno = '2025-03-02', Pezzi = 3 WHERE Nome = 'b'"_s);
    Recordset other;
    other.Open(u"Select Nome, Quanto, Pezzi, Giorno, Nota from T order by ID"_s, m_connection);
    other.MoveNext();
    EXPECT_EQ(other.GetString(), u"b;12,5;3;02/03/2025;\rc;;;;\r"_s);
    EXPECT_TRUE(other.Eof());
}

TEST_F(RecordsetPositionTest, RowsAreReadByTheirPlaceWithoutMovingTheCursor)
{
    EXPECT_EQ(m_rows.valueAt(2, m_rows.fieldIndex(u"nome"_s)), Value(u"c"_s));
    EXPECT_EQ(place(), u"a"_s);
    EXPECT_EQ(failureNumber([&] { m_rows.valueAt(3, 0); }), kNoCurrentRow);
}

} // namespace
