// What is written, when, and what is kept where it cannot be.
#include "platform/StoreTest.h"

namespace {

class RecordsetEditTest : public StoreTest
{
protected:
    void SetUp() override
    {
        open(kThreeRows);
        m_rows.Open(u"Select * from T order by ID"_s, m_connection);
    }

    QString names() { return column(u"Select Nome from T order by ID"_s); }

    void set(const QString &field, const Value &value) { m_rows.setValue(field, value); }
    QString current() const { return m_rows.value(u"Nome"_s).text(); }

    Recordset m_rows;
};

TEST_F(RecordsetEditTest, AnAssignedValueShowsAtOnceAndIsWrittenByUpdate)
{
    set(u"nome"_s, u"x"_s);
    EXPECT_EQ(current(), u"x"_s);
    EXPECT_TRUE(m_rows.isPending());
    EXPECT_EQ(names(), u"a b c"_s);
    m_rows.Update();
    EXPECT_FALSE(m_rows.isPending());
    EXPECT_EQ(current(), u"x"_s);
    EXPECT_EQ(names(), u"x b c"_s);
}

TEST_F(RecordsetEditTest, UpdateWritesTheChangedFieldsOnly)
{
    m_connection.Execute(u"UPDATE T SET Quanto = 7 WHERE Nome = 'a'"_s); // by somebody else, since the set was opened
    set(u"Nome"_s, u"x"_s);
    m_rows.Update();
    EXPECT_EQ(column(u"Select Quanto from T where Nome = 'x'"_s), u"7"_s);
}

TEST_F(RecordsetEditTest, AMoveWritesThePendingChange)
{
    set(u"Nome"_s, u"x"_s);
    m_rows.MoveNext();
    EXPECT_EQ(current(), u"b"_s);
    EXPECT_EQ(names(), u"x b c"_s);
}

TEST_F(RecordsetEditTest, AFindAndAFilterWriteThePendingChange)
{
    set(u"Nome"_s, u"x"_s);
    m_rows.Find(u"Nome = 'b'"_s);
    set(u"Nome"_s, u"y"_s);
    m_rows.setFilter(u"Nome = 'c'"_s);
    EXPECT_EQ(names(), u"x y c"_s);
}

TEST_F(RecordsetEditTest, RequeryAndCloseDropThePendingChange)
{
    set(u"Nome"_s, u"x"_s);
    m_rows.Requery();
    EXPECT_EQ(current(), u"a"_s);
    set(u"Nome"_s, u"y"_s);
    m_rows.Close();
    EXPECT_EQ(names(), u"a b c"_s);
}

TEST_F(RecordsetEditTest, CancelUpdateDropsThePendingChange)
{
    set(u"Nome"_s, u"x"_s);
    m_rows.CancelUpdate();
    EXPECT_EQ(current(), u"a"_s);
    m_rows.MoveNext();
    EXPECT_EQ(names(), u"a b c"_s);
}

TEST_F(RecordsetEditTest, UpdatingWithNothingPendingDoesNothing)
{
    m_rows.UpdateBatch();
    m_rows.Update();
    m_rows.CancelUpdate();
    EXPECT_EQ(names(), u"a b c"_s);
    set(u"Nome"_s, u"x"_s);
    m_rows.UpdateBatch();
    EXPECT_EQ(names(), u"x b c"_s);
}

TEST_F(RecordsetEditTest, ARowKeepsItsPlaceWhereItNoLongerFitsOrderConditionOrFilter)
{
    Recordset ordered;
    ordered.Open(u"Select * from T where Nome < 'c' order by Nome"_s, m_connection);
    ordered.setFilter(u"Nome <> 'z'"_s);
    ordered.setValue(u"Nome"_s, u"z"_s);
    ordered.Update();
    EXPECT_EQ(ordered.RecordCount(), 2);
    EXPECT_EQ(ordered.AbsolutePosition(), 1);
    EXPECT_EQ(ordered.value(u"Nome"_s), Value(u"z"_s));
}

TEST_F(RecordsetEditTest, ANewRowIsEmptyAndCurrentBehindTheOthers)
{
    m_rows.AddNew();
    EXPECT_TRUE(m_rows.isAdding());
    EXPECT_EQ(m_rows.RecordCount(), 4);
    EXPECT_EQ(m_rows.AbsolutePosition(), 4);
    EXPECT_TRUE(m_rows.value(u"Nome"_s).isNull());
    EXPECT_EQ(names(), u"a b c"_s);
}

TEST_F(RecordsetEditTest, ANewRowShowsItsGeneratedKeyAndTheDefaultsAfterUpdate)
{
    m_rows.AddNew();
    set(u"Nome"_s, u"d"_s);
    m_rows.Update();
    EXPECT_FALSE(m_rows.isAdding());
    EXPECT_EQ(m_rows.value(u"ID"_s), Value(4));
    EXPECT_EQ(m_rows.value(u"Si"_s), Value(false));
    EXPECT_EQ(m_rows.AbsolutePosition(), 4);
    EXPECT_EQ(names(), u"a b c d"_s);
}

TEST_F(RecordsetEditTest, AKeyThatWasAssignedIsKept)
{
    m_rows.AddNew();
    set(u"ID"_s, 70);
    m_rows.Update();
    EXPECT_EQ(m_rows.value(u"ID"_s), Value(70));
    EXPECT_EQ(column(u"Select ID from T order by ID"_s), u"1 2 3 70"_s);
}

TEST_F(RecordsetEditTest, ANewRowCanBeChangedAndDeletedAfterwards)
{
    m_rows.AddNew();
    set(u"Nome"_s, u"d"_s);
    m_rows.Update();
    set(u"Nome"_s, u"e"_s);
    m_rows.Update();
    EXPECT_EQ(names(), u"a b c e"_s);
    m_rows.Delete();
    EXPECT_EQ(names(), u"a b c"_s);
}

TEST_F(RecordsetEditTest, ANewRowWithoutAnyValueIsARowAllTheSame)
{
    m_rows.AddNew();
    m_rows.Update();
    EXPECT_EQ(names(), u"a b c -"_s);
}

TEST_F(RecordsetEditTest, CancellingANewRowBringsTheFormerRowBack)
{
    m_rows.MoveNext();
    m_rows.AddNew();
    set(u"Nome"_s, u"d"_s);
    m_rows.CancelUpdate();
    EXPECT_EQ(current(), u"b"_s);
    EXPECT_EQ(m_rows.RecordCount(), 3);
    EXPECT_EQ(names(), u"a b c"_s);
}

TEST_F(RecordsetEditTest, DeletingANewRowCancelsIt)
{
    m_rows.AddNew();
    m_rows.Delete();
    EXPECT_EQ(current(), u"a"_s);
    EXPECT_EQ(names(), u"a b c"_s);
}

TEST_F(RecordsetEditTest, AddingWhileAChangeIsPendingWritesItFirst)
{
    set(u"Nome"_s, u"x"_s);
    m_rows.AddNew();
    set(u"Nome"_s, u"d"_s);
    m_rows.AddNew();
    m_rows.CancelUpdate();
    EXPECT_EQ(names(), u"x b c d"_s);
    EXPECT_EQ(current(), u"d"_s);
}

TEST_F(RecordsetEditTest, ANewRowOfAFilteredSetCountsAndStays)
{
    m_rows.setFilter(u"Nome = 'b'"_s);
    m_rows.AddNew();
    set(u"Nome"_s, u"d"_s);
    m_rows.Update();
    EXPECT_EQ(m_rows.RecordCount(), 2);
    m_rows.setFilter(QString());
    EXPECT_EQ(m_rows.RecordCount(), 4);
}

TEST_F(RecordsetEditTest, ASetWithoutTheKeyAmongItsColumnsCanBeWritten)
{
    Recordset names;
    names.Open(u"Select Nome, Si from T order by Nome"_s, m_connection);
    EXPECT_EQ(names.fieldCount(), 2);
    names.MoveNext();
    names.setValue(u"Si"_s, true);
    names.Update();
    EXPECT_EQ(column(u"Select Nome from T where Si = True"_s), u"b"_s);
}

TEST_F(RecordsetEditTest, AColumnNamedTwiceIsTheFirstOneAndBothFollowAChange)
{
    Recordset twice;
    twice.Open(u"SELECT T.Nome, T.ID, * FROM T ORDER BY T.Nome;"_s, m_connection);
    EXPECT_EQ(twice.fieldIndex(u"Nome"_s), 0);
    twice.setValue(u"Nome"_s, u"x"_s);
    twice.Update();
    EXPECT_EQ(twice.value(0), Value(u"x"_s));
    EXPECT_EQ(twice.value(3), Value(u"x"_s));
    twice.AddNew();
    twice.setValue(u"Nome"_s, u"y"_s);
    twice.Update();
    EXPECT_EQ(twice.value(1), twice.value(2));
    EXPECT_EQ(twice.value(3), Value(u"y"_s));
}

TEST_F(RecordsetEditTest, GroupedAndReadOnlySetsRefuseEveryWrite)
{
    constexpr int kNotPermitted = int(FailureNumber::NotPermitted);
    Recordset grouped;
    grouped.Open(u"SELECT T.Nome, Sum(T.Quanto) AS Totale FROM T GROUP BY T.Nome"_s, m_connection);
    Recordset readOnly;
    readOnly.Open(u"T"_s, m_connection, Recordset::Access::ReadOnly);
    for (Recordset *rows : {&grouped, &readOnly}) {
        EXPECT_FALSE(rows->isUpdatable());
        EXPECT_EQ(failureNumber([&] { rows->AddNew(); }), kNotPermitted);
        EXPECT_EQ(failureNumber([&] { rows->setValue(u"Nome"_s, u"x"_s); }), kNotPermitted);
        EXPECT_EQ(failureNumber([&] { rows->Delete(); }), kNotPermitted);
    }
    EXPECT_TRUE(m_rows.isUpdatable());
}

TEST_F(RecordsetEditTest, AnExpressionCannotBeAssigned)
{
    Recordset trimmed;
    trimmed.Open(u"Select Nome, Trim(Nome) AS Corto from T"_s, m_connection);
    EXPECT_EQ(failureNumber([&] { trimmed.setValue(u"Corto"_s, u"x"_s); }), int(FailureNumber::NotPermitted));
}

TEST_F(RecordsetEditTest, AStoredQueryIsReadByItsNameAndNotWritten)
{
    m_connection.Execute(u"CREATE VIEW Nocorrispondenza AS SELECT Nome FROM T"_s);
    Recordset query;
    query.Open(u"Nocorrispondenza"_s, m_connection);
    EXPECT_EQ(query.RecordCount(), 3);
    EXPECT_EQ(query.fieldCount(), 1);
    EXPECT_FALSE(query.isUpdatable());
}

TEST_F(RecordsetEditTest, AnAppendOnlySetReadsNoRowAndTakesNewOnes)
{
    Recordset added;
    added.Open(u"Select * from T order by Nome;"_s, m_connection, Recordset::Access::AppendOnly);
    EXPECT_EQ(added.RecordCount(), 0);
    EXPECT_TRUE(added.Eof());
    for (const QString &name : {u"d"_s, u"e"_s, u"f"_s}) {
        added.AddNew();
        added.setValue(u"Nome"_s, name);
        added.Update();
    }
    EXPECT_EQ(added.value(u"ID"_s), Value(6));
    EXPECT_EQ(added.RecordCount(), 1);
    EXPECT_EQ(names(), u"a b c d e f"_s);
}

TEST_F(RecordsetEditTest, ANewRowThatTheTableRefusesStaysPending)
{
    m_rows.AddNew();
    set(u"ID"_s, 1);
    const auto failure = failureOf([&] { m_rows.Update(); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->words(), u"Esiste già un record con la stessa chiave (UNIQUE constraint failed: T.ID)"_s);
    EXPECT_EQ(failure->statement(), m_rows.Source());
    EXPECT_TRUE(m_rows.isAdding());
    m_rows.CancelUpdate();
    EXPECT_EQ(current(), u"a"_s);
}

// Another program at work on the same archive.
class RecordsetConflictTest : public RecordsetEditTest
{
protected:
    void SetUp() override
    {
        RecordsetEditTest::SetUp();
        ASSERT_TRUE(m_other.Open(path()));
    }

    Connection m_other;
};

TEST_F(RecordsetConflictTest, AChangeMadeMeanwhileByAnotherProgramIsKeptAndOursWaits)
{
    m_other.Execute(u"UPDATE T SET Nome = 'theirs' WHERE ID = 1"_s);
    set(u"Nome"_s, u"ours"_s);
    EXPECT_EQ(failureNumber([&] { m_rows.Update(); }), int(FailureNumber::RowChanged));
    EXPECT_EQ(names(), u"theirs b c"_s);
    EXPECT_TRUE(m_rows.isPending());
    EXPECT_EQ(current(), u"ours"_s);
    EXPECT_EQ(failureNumber([&] { m_rows.MoveNext(); }), int(FailureNumber::RowChanged));
    EXPECT_EQ(m_rows.AbsolutePosition(), 1);
    m_rows.CancelUpdate();
    m_rows.Requery();
    EXPECT_EQ(current(), u"theirs"_s);
}

TEST_F(RecordsetConflictTest, ResyncGivesUpWhatWaitsAndStandsOnTheSameRowAgain)
{
    m_rows.MoveNext();
    m_other.Execute(u"UPDATE T SET Nome = 'theirs' WHERE ID = 2"_s);
    m_other.Execute(u"DELETE FROM T WHERE ID = 1"_s);
    set(u"Nome"_s, u"ours"_s);
    m_rows.Resync();
    EXPECT_FALSE(m_rows.isPending());
    EXPECT_EQ(current(), u"theirs"_s);
    EXPECT_EQ(m_rows.AbsolutePosition(), 1);
    EXPECT_EQ(m_rows.RecordCount(), 2);
}

TEST_F(RecordsetConflictTest, ResyncStandsOnTheRowInThePlaceOfOneThatIsGone)
{
    m_rows.MoveLast();
    m_other.Execute(u"DELETE FROM T WHERE ID = 3"_s);
    m_rows.Resync();
    EXPECT_EQ(current(), u"b"_s);
    m_other.Execute(u"DELETE FROM T"_s);
    m_rows.Resync();
    EXPECT_EQ(m_rows.AbsolutePosition(), -1);
}

TEST_F(RecordsetConflictTest, AChangeOfCaseAloneIsAChangeToo)
{
    m_other.Execute(u"UPDATE T SET Nome = 'A' WHERE ID = 1"_s);
    set(u"Nome"_s, u"ours"_s);
    EXPECT_EQ(failureNumber([&] { m_rows.Update(); }), int(FailureNumber::RowChanged));
}

TEST_F(RecordsetConflictTest, AChangeOfAnotherFieldIsNoConflict)
{
    m_other.Execute(u"UPDATE T SET Quanto = 5 WHERE ID = 1"_s);
    set(u"Nome"_s, u"ours"_s);
    m_rows.Update();
    EXPECT_EQ(names(), u"ours b c"_s);
    EXPECT_EQ(column(u"Select Quanto from T where ID = 1"_s), u"5"_s);
}

TEST_F(RecordsetConflictTest, ARowThatAnotherProgramDeletedCanBeNeitherChangedNorDeleted)
{
    m_other.Execute(u"DELETE FROM T WHERE ID = 1"_s);
    set(u"Nome"_s, u"ours"_s);
    EXPECT_EQ(failureNumber([&] { m_rows.Update(); }), int(FailureNumber::RowChanged));
    m_rows.CancelUpdate();
    EXPECT_EQ(failureNumber([&] { m_rows.Delete(); }), int(FailureNumber::RowChanged));
    EXPECT_EQ(names(), u"b c"_s);
}

TEST_F(RecordsetConflictTest, AnEmptyFieldIsComparedAsEmpty)
{
    set(u"Nota"_s, u"one"_s);
    m_rows.Update();
    EXPECT_EQ(column(u"Select Nota from T where ID = 1"_s), u"one"_s);
    m_other.Execute(u"UPDATE T SET Nota = Null WHERE ID = 1"_s);
    set(u"Nota"_s, u"two"_s);
    EXPECT_EQ(failureNumber([&] { m_rows.Update(); }), int(FailureNumber::RowChanged));
}

} // namespace
