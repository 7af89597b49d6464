// Statements that fail, groups of writes, and other programs on the same archive.
#include "platform/store/ConnectionPrivate.h"
#include "platform/StoreTest.h"

#include <sqlcipher/sqlite3.h>

namespace {

class ConnectionTest : public StoreTest
{
protected:
    void SetUp() override { open(kThreeRows); }

    QString names() { return column(u"Select Nome from T order by ID"_s); }

    qint64 insert(const QString &name)
    {
        return m_connection.Execute(u"INSERT INTO T (Nome) VALUES ('%1')"_s.arg(name));
    }

    Failure failureOfStatement(const QString &statement)
    {
        const auto failure = failureOf([&] { m_connection.Execute(statement); });
        EXPECT_TRUE(failure) << statement.toStdString();
        return failure.value_or(Failure(FailureNumber::Engine, QString()));
    }

    static void raw(Connection &connection, const char *statement)
    {
        ASSERT_EQ(sqlite3_exec(connection.engine().opened().handle(), statement, nullptr, nullptr, nullptr), SQLITE_OK);
    }

    // What another program finds in the archive.
    int rowsSeenFromOutside()
    {
        Connection other;
        EXPECT_TRUE(other.Open(path()));
        Recordset rows;
        rows.Open(u"T"_s, other);
        return rows.RecordCount();
    }
};

TEST_F(ConnectionTest, ExecuteGivesTheRowsThatItChanged)
{
    EXPECT_EQ(m_connection.Execute(u"UPDATE T SET T.Quanto = 1 WHERE Nome <> 'a'"_s), 2);
    EXPECT_EQ(m_connection.Execute(u"UPDATE T SET Quanto = 1 WHERE Nome = 'nessuno'"_s), 0);
    EXPECT_EQ(insert(u"d"_s), 1);
    EXPECT_EQ(m_connection.Execute(u"CREATE TABLE Altra (ID INTEGER)"_s), 0);
    EXPECT_EQ(m_connection.Execute(u"DELETE FROM T"_s), 4);
}

TEST_F(ConnectionTest, EachFailureNamesItsCauseAndItsStatement)
{
    struct Case
    {
        QString statement;
        QString words;
    };
    const std::vector<Case> cases = {
        {u"DELETE FROM Manca"_s, u"Manca la tabella Manca nell'archivio (no such table: Manca)"_s},
        {u"UPDATE T SET Quanto = Peso"_s, u"Manca la colonna Peso nell'archivio (no such column: Peso)"_s},
        {u"UPDATE T SET Quanto = Radice(4)"_s, u"La funzione Radice non esiste (no such function: Radice)"_s},
        {u"DELETE FROM T WHERE"_s, u"Errore di sintassi nell'istruzione (near \"WHERE\": syntax error)"_s},
        {u"INSERT INTO T (ID) VALUES (1)"_s,
         u"Esiste già un record con la stessa chiave (UNIQUE constraint failed: T.ID)"_s},
        {u"INSERT INTO T (Si) VALUES (NULL)"_s, u"Un campo obbligatorio è vuoto (NOT NULL constraint failed: T.Si)"_s},
    };
    for (const Case &failing : cases) {
        const Failure failure = failureOfStatement(failing.statement);
        EXPECT_EQ(failure.words(), failing.words);
        EXPECT_EQ(failure.statement(), failing.statement);
        EXPECT_EQ(failure.number(), FailureNumber::Engine);
    }
}

TEST_F(ConnectionTest, ABrokenLiteralIsReportedInTheStatementsOwnWords)
{
    const QString statement = u"DELETE FROM T WHERE Nome = 'a' 'b'"_s;
    EXPECT_EQ(failureOfStatement(statement).words(),
              u"Errore di sintassi nell'istruzione (near \"'b'\": syntax error)"_s);
    EXPECT_EQ(failureOfStatement(u"DELETE FROM T WHERE Nome = 'dell'orto'"_s).number(), FailureNumber::Engine);
    EXPECT_EQ(names(), u"a b c"_s);
}

TEST_F(ConnectionTest, ASecondStatementBehindTheFirstIsRefusedAndNeitherRuns)
{
    EXPECT_EQ(failureOfStatement(u"DELETE FROM T; DELETE FROM T"_s).number(), FailureNumber::Engine);
    EXPECT_EQ(names(), u"a b c"_s);
}

TEST_F(ConnectionTest, AStatementWithoutRowsOpensNoSet)
{
    Recordset rows;
    EXPECT_EQ(failureNumber([&] { rows.Open(u"DELETE FROM T"_s, m_connection); }), int(FailureNumber::Engine));
    EXPECT_FALSE(rows.isOpen());
    EXPECT_EQ(names(), u"a b c"_s);
}

TEST_F(ConnectionTest, ATableThatChangesIsReadAnew)
{
    EXPECT_EQ(names(), u"a b c"_s);
    m_connection.Execute(u"ALTER TABLE T ADD COLUMN Peso REAL"_s);
    Recordset rows;
    rows.Open(u"Select * from T"_s, m_connection);
    EXPECT_TRUE(rows.hasField(u"Peso"_s));
}

TEST_F(ConnectionTest, ATableThatAnotherProgramChangesIsReadAnew)
{
    Recordset rows;
    rows.Open(u"Select * from T"_s, m_connection);
    rows.Close();
    Connection other;
    ASSERT_TRUE(other.Open(path()));
    other.Execute(u"ALTER TABLE T ADD COLUMN Peso REAL"_s);
    rows.Open(u"Select * from T"_s, m_connection);
    rows.setValue(u"Peso"_s, 2.5);
    rows.Update();
    EXPECT_EQ(column(u"Select Peso from T where ID = 1"_s), u"2,5"_s);
}

TEST_F(ConnectionTest, AnotherProgramsLockIsAClearFailure)
{
    Connection other;
    ASSERT_TRUE(other.Open(path()));
    raw(other, "BEGIN IMMEDIATE");
    m_connection.setLockWait(20);
    EXPECT_EQ(failureOfStatement(u"DELETE FROM T"_s).words(),
              u"L'archivio è in uso da un altro programma: riprovare tra poco (database is locked)"_s);
    {
        const GruppoScritture group(m_connection);
        EXPECT_EQ(failureOfStatement(u"DELETE FROM T"_s).words(),
                  u"L'archivio è in uso da un altro programma: riprovare tra poco (database is locked)"_s);
        raw(other, "COMMIT");
        insert(u"d"_s);
    }
    EXPECT_EQ(names(), u"a b c d"_s);
}

TEST_F(ConnectionTest, AnArchiveThatAnotherProgramHasLockedOpensAndItsStatementsSaySo)
{
    m_connection.Close();
    Connection other;
    ASSERT_TRUE(other.Open(path()));
    raw(other, "PRAGMA journal_mode = DELETE");
    raw(other, "BEGIN EXCLUSIVE");
    EXPECT_TRUE(m_connection.Open(path()));
    m_connection.setLockWait(20);
    EXPECT_EQ(failureOfStatement(u"DELETE FROM T"_s).words(),
              u"L'archivio è in uso da un altro programma: riprovare tra poco (database is locked)"_s);
    raw(other, "COMMIT");
    EXPECT_EQ(names(), u"a b c"_s);
}

TEST_F(ConnectionTest, AFullDiskIsAClearFailureAndKeepsWhatWasWritten)
{
    raw(m_connection, "PRAGMA max_page_count = 3");
    const QString page = QString(8000, u'x');
    EXPECT_TRUE(failureOfStatement(u"UPDATE T SET Nota = '%1'"_s.arg(page))
                    .words()
                    .startsWith(u"Il disco è pieno: la modifica non è stata salvata ("_s));
    EXPECT_EQ(names(), u"a b c"_s);
    raw(m_connection, "PRAGMA max_page_count = 1000");
    m_connection.Execute(u"UPDATE T SET Nota = '%1'"_s.arg(page));
    EXPECT_TRUE(integrityCheck(path()).isEmpty());
}

TEST_F(ConnectionTest, AFullDiskInTheMiddleOfAGroupLeavesTheConnectionUsable)
{
    {
        const GruppoScritture group(m_connection);
        insert(u"d"_s);
        raw(m_connection, "PRAGMA max_page_count = 3");
        EXPECT_THAT(
            failureOfStatement(u"INSERT INTO T (Nota) VALUES ('%1')"_s.arg(QString(16000, u'x'))).words().toStdString(),
            testing::StartsWith("Il disco è pieno: la modifica non è stata salvata ("));
        raw(m_connection, "PRAGMA max_page_count = 1000");
        insert(u"e"_s);
    }
    insert(u"f"_s);
    EXPECT_TRUE(names().endsWith(u"e f"_s)) << names().toStdString();
    EXPECT_TRUE(integrityCheck(path()).isEmpty());
}

TEST_F(ConnectionTest, AGroupIsSeenInsideAtOnceAndOutsideAtItsEnd)
{
    {
        const GruppoScritture group(m_connection);
        insert(u"d"_s);
        EXPECT_EQ(names(), u"a b c d"_s);
        EXPECT_EQ(rowsSeenFromOutside(), 3);
    }
    EXPECT_EQ(rowsSeenFromOutside(), 4);
}

TEST_F(ConnectionTest, AGroupThatAnExceptionLeavesIsCommitted)
{
    EXPECT_EQ(failureNumber([&] {
                  const GruppoScritture group(m_connection);
                  insert(u"d"_s);
                  throw Failure::usual(FailureNumber::TypeMismatch);
              }),
              int(FailureNumber::TypeMismatch));
    EXPECT_EQ(rowsSeenFromOutside(), 4);
}

TEST_F(ConnectionTest, AFailingStatementInAGroupLeavesTheEarlierRows)
{
    {
        const GruppoScritture group(m_connection);
        insert(u"d"_s);
        failureOfStatement(u"INSERT INTO T (ID, Nome) SELECT ID - 1, 'x' FROM T WHERE ID = 1 OR ID = 3"_s);
        insert(u"e"_s);
    }
    EXPECT_EQ(names(), u"a b c d e"_s);
}

TEST_F(ConnectionTest, TheOutermostOfNestedGroupsDecides)
{
    {
        const GruppoScritture outer(m_connection);
        {
            const GruppoScritture inner(m_connection);
            insert(u"d"_s);
        }
        insert(u"e"_s);
        EXPECT_EQ(rowsSeenFromOutside(), 3);
    }
    EXPECT_EQ(rowsSeenFromOutside(), 5);
}

TEST_F(ConnectionTest, ALongGroupIsCommittedFromTimeToTime)
{
    const GruppoScritture group(m_connection);
    for (int i = 0; i < 5000; ++i)
        insert(u"x"_s);
    EXPECT_EQ(rowsSeenFromOutside(), 3 + 4096);
}

TEST_F(ConnectionTest, AGroupOnAConnectionThatClosesMeanwhileKeepsItsRows)
{
    {
        const GruppoScritture group(m_connection);
        insert(u"d"_s);
        m_connection.Close();
    }
    EXPECT_EQ(rowsSeenFromOutside(), 4);
    EXPECT_EQ(failureNumber([&] { const GruppoScritture closed(m_connection); }), 0);
}

TEST_F(ConnectionTest, AnOperationThatClosesItsGroupHearsOfAFailedCommitItself)
{
    m_connection.Execute(u"CREATE TABLE Figli (Padre INTEGER REFERENCES T (ID) DEFERRABLE INITIALLY DEFERRED)"_s);
    raw(m_connection, "PRAGMA foreign_keys = ON");
    GruppoScritture group(m_connection);
    m_connection.Execute(u"INSERT INTO Figli (Padre) VALUES (99)"_s);
    const auto failure = failureOf([&] { group.close(); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->words(), u"Il valore non è ammesso dalla tabella (FOREIGN KEY constraint failed)"_s);
}

TEST_F(ConnectionTest, ACommitInTheMiddleOfAGroupShowsItsRowsToOthers)
{
    GruppoScritture group(m_connection);
    insert(u"d"_s);
    EXPECT_EQ(rowsSeenFromOutside(), 3);
    group.commit();
    EXPECT_EQ(rowsSeenFromOutside(), 4);
    insert(u"e"_s);
    group.close();
    EXPECT_EQ(rowsSeenFromOutside(), 5);
}

TEST_F(ConnectionTest, ACommitThatFailsIsReportedByTheNextStatement)
{
    {
        const GruppoScritture group(m_connection);
        m_connection.Execute(u"CREATE TABLE Figli (Padre INTEGER REFERENCES T (ID) DEFERRABLE INITIALLY DEFERRED)"_s);
    }
    raw(m_connection, "PRAGMA foreign_keys = ON");
    {
        const GruppoScritture group(m_connection);
        m_connection.Execute(u"INSERT INTO Figli (Padre) VALUES (99)"_s);
    }
    const QString words = u"Il valore non è ammesso dalla tabella (FOREIGN KEY constraint failed)"_s;
    const auto failure = failureOf([&] { names(); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->words(), words);
    EXPECT_EQ(names(), u"a b c"_s);
    // The group is still open: a write must not slip into it unsaved.
    EXPECT_EQ(failureOfStatement(u"DELETE FROM T WHERE ID = 3"_s).words(), words);
    EXPECT_EQ(names(), u"a b c"_s);
}

} // namespace
