// What translated statements answer, and how the engine finds the rows.
#include "platform/store/JetTranslator.h"
#include "platform/Failure.h"
#include "platform/store/Connection.h"
#include "platform/store/Recordset.h"
#include "support/Printers.h"
#include "support/TemporaryFolder.h"
#include "support/TestArchive.h"

#include <gtest/gtest.h>

namespace {

QStringList list(std::initializer_list<const char *> texts)
{
    QStringList result;
    for (const char *text : texts)
        result.append(QString::fromUtf8(text));
    return result;
}

class JetTranslatorTest : public testing::Test
{
protected:
    void SetUp() override
    {
        const QString path = m_folder.path(QStringLiteral("Prova.Mdb"));
        makeTestArchive(path);
        ASSERT_TRUE(m_connection.Open(path));
    }

    void addSheet(const QStringList &rows)
    {
        insertRows(m_connection, QStringLiteral("SchedaPranzo"), QStringLiteral("dataInserimento, Piatto, Totale1"),
                   rows);
    }

    void addPiatti(const QStringList &rows)
    {
        insertRows(m_connection, QStringLiteral("Piatti"), QStringLiteral("Piatto, Alimento, KC100gr, quantita"), rows);
    }

    QStringList rows(const char *statement) { return rowsOf(m_connection, QString::fromUtf8(statement)); }

    // The engine's own words on how it goes about a statement.
    QString planOf(const char *statement)
    {
        const QString translated = translateJet(QString::fromUtf8(statement)).statement;
        return rowsOf(m_connection, QStringLiteral("EXPLAIN QUERY PLAN ") + translated).join(u'\n');
    }

    TemporaryFolder m_folder;
    Connection m_connection;
};

TEST_F(JetTranslatorTest, ADishNamedLikeAStatementIsFound)
{
    addPiatti(list({"'Menu True #1 [x] /100', 'Pasta', 350, 80"}));
    EXPECT_EQ(rows("SELECT Alimento FROM Piatti WHERE Piatto = 'menu true #1 [X] /100'"), list({"Pasta"}));
}

TEST_F(JetTranslatorTest, TrimmedTextsThatDifferByCaseAreOneGroup)
{
    addPiatti(list({"'a', 'Latte', 64, 100", "'b', ' latte', 64, 200", "'c', 'LATTE ', 64, 50"}));
    EXPECT_EQ(rows("SELECT Trim([alimento]) AS Piatto, Piatti.KC100gr FROM Piatti GROUP BY Trim([alimento]), "
                   "Piatti.KC100gr ORDER BY Trim([alimento]);")
                  .size(),
              1);
}

TEST_F(JetTranslatorTest, DaysComeInTheOrderOfTheCalendar)
{
    addSheet(list({"'02/03/2025', 'a', 1", "'11/01/2025', 'b', 2", "'02/03/2025', 'c', 3"}));
    EXPECT_EQ(rows("SELECT CDate([SchedaPranzo].[datainserimento]) AS dataInserimento From SchedaPranzo GROUP BY "
                   "CDate([SchedaPranzo].[datainserimento]);"),
              list({"11/01/2025", "02/03/2025"}));
}

TEST_F(JetTranslatorTest, RowsComeInKeyOrderWhereNoneIsNamed)
{
    addSheet(list({"'02/01/2025', 'z', 1", "'01/01/2025', 'm', 2", "'02/01/2025', 'a', 3"}));
    EXPECT_EQ(rows("SELECT SchedaPranzo.Piatto From SchedaPranzo WHERE SchedaPranzo.ID > 0"), list({"z", "m", "a"}));
}

TEST_F(JetTranslatorTest, TiesAreBrokenByKeyAlsoDownwards)
{
    addSheet(list({"'02/01/2025', 'z', 1", "'01/01/2025', 'm', 2", "'02/01/2025', 'a', 3"}));
    EXPECT_EQ(rows("SELECT Piatto FROM SchedaPranzo ORDER BY dataInserimento DESC;"), list({"z", "a", "m"}));
}

TEST_F(JetTranslatorTest, FirstAndLastGoByTheKeyAndGiveNoRowOverAnEmptyTable)
{
    const char *const statement = "SELECT First(Piatto) AS a, Last(Piatto) AS b FROM SchedaPranzo";
    EXPECT_EQ(rows(statement), QStringList());
    addSheet(list({"'02/01/2025', 'z', 1", "'01/01/2025', 'm', 2", "'02/01/2025', Null, 3"}));
    EXPECT_EQ(rows(statement), list({"z | -"}));
}

TEST_F(JetTranslatorTest, ASumOverNoRowsIsOneRowOfNulls)
{
    EXPECT_EQ(rows("SELECT Sum(Totale1) AS a, Sum(Totale2) AS b FROM SchedaPranzo"), list({"- | -"}));
}

TEST_F(JetTranslatorTest, DividingWholeNumbersKeepsTheFraction)
{
    EXPECT_EQ(rows("SELECT 250/100 AS x"), list({"2,5"}));
}

TEST_F(JetTranslatorTest, AYesIsAnythingButNo)
{
    insertRows(m_connection, QStringLiteral("Sostituisci"), QStringLiteral("Piatto, Preferito"),
               list({"'a', True", "'b', False", "'c', -1"}));
    EXPECT_EQ(rows("SELECT Piatto FROM Sostituisci WHERE Preferito = True"), list({"a", "c"}));
    EXPECT_EQ(rows("SELECT Piatto FROM Sostituisci WHERE Preferito = False"), list({"b"}));
}

TEST_F(JetTranslatorTest, ADeletionWithAListOfColumnsDeletesItsRowsAlone)
{
    addSheet(list({"'01/01/2025', 'a', 1", "'02/01/2025', 'b', 2", "'10/01/2025', 'c', 3"}));
    m_connection.Execute(QStringLiteral(
        "DELETE SchedaPranzo.*, SchedaPranzo.dataInserimento, CDate([SchedaPranzo].[dataInserimento]) From "
        "SchedaPranzo  WHERE (((CDate([SchedaPranzo].[dataInserimento]))>=CDate('02/01/2025') And "
        "(CDate([SchedaPranzo].[dataInserimento]))<=CDate('05/01/2025')));"));
    EXPECT_EQ(rows("SELECT Piatto FROM SchedaPranzo"), list({"a", "c"}));
}

TEST_F(JetTranslatorTest, AStoredQueryIsMadeFromAStatementAndOpenedByItsName)
{
    addSheet(list({"'01/01/2025', 'a', 1", "'02/01/2025', 'b', 2"}));
    m_connection.Execute(QStringLiteral(
        "CREATE VIEW NuovoQueryDef AS SELECT Piatto, Totale1 FROM SchedaPranzo ORDER BY SchedaPranzo.Totale1 DESC"));
    EXPECT_EQ(rows("NuovoQueryDef"), list({"b | 2", "a | 1"}));
    m_connection.Execute(QStringLiteral("DROP VIEW NuovoQueryDef"));
    EXPECT_THROW(rows("NuovoQueryDef"), Failure);
}

TEST_F(JetTranslatorTest, TheSumOfADayIsFoundByItsIndex)
{
    const QString plan = planOf("SELECT Sum(SchedaPranzo.Totale1) AS Totale1, SchedaPranzo.dataInserimento From "
                                "SchedaPranzo GROUP BY SchedaPranzo.dataInserimento HAVING "
                                "(((SchedaPranzo.dataInserimento)='02/01/2025'));");
    EXPECT_TRUE(plan.contains(QStringLiteral("SEARCH TABLE SchedaPranzo USING INDEX SchedaPranzoGiorno")))
        << plan.toStdString();
}

TEST_F(JetTranslatorTest, ADayIsFoundByItsIndex)
{
    const QString plan = planOf("SELECT *  From SchedaPranzo Where datainserimento = '02/01/2025' ORDER BY "
                                "SchedaPranzo.dataInserimento DESC , SchedaPranzo.ID;");
    EXPECT_TRUE(plan.contains(QStringLiteral("SEARCH TABLE SchedaPranzo USING INDEX SchedaPranzoGiorno")))
        << plan.toStdString();
}

TEST_F(JetTranslatorTest, WholeTablesAreReadWithoutASort)
{
    for (const char *statement :
         {"Select * from SchedaPranzo ORDER BY SchedaPranzo.dataInserimento DESC , SchedaPranzo.ID;",
          "Select * from SchedaPranzo", "Select * from Sostituisci order by ID"}) {
        const QString plan = planOf(statement);
        EXPECT_TRUE(plan.contains(QStringLiteral("SCAN TABLE"))) << plan.toStdString();
        EXPECT_FALSE(plan.contains(QStringLiteral("TEMP B-TREE"))) << plan.toStdString();
    }
}

TEST(JetTextTest, EndsOfLinesAreBlanks)
{
    EXPECT_EQ(translateJet(QStringLiteral("SELECT ID\r\n\tFROM Piatti ; \n")).statement.toStdString(),
              "SELECT ID, Piatti.rowid AS jet_key FROM Piatti ORDER BY Piatti.rowid");
}

TEST(JetTextTest, AFailureCarriesTheWholeStatement)
{
    const QString statement = QStringLiteral("DELETE * FROM Menu WHERE DataMenu = #31/31/2025#");
    try {
        translateJet(statement);
        FAIL();
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number(), FailureNumber::Engine);
        EXPECT_EQ(failure.words().toStdString(), "Errore di sintassi nella data #31/31/2025#");
        EXPECT_EQ(failure.statement(), statement);
    }
}

TEST(JetTextTest, ANulSignDoesNotHideTheRest)
{
    EXPECT_THROW(translateJet(QStringLiteral("SELECT * FROM Menu") + QChar(0) + QStringLiteral(" WHERE x")), Failure);
}

TEST(JetTextTest, LongStatementsAreReadToTheirEnd)
{
    QString statement = QStringLiteral("SELECT * FROM Piatti WHERE ID = 0");
    for (int i = 1; i < 2000; ++i)
        statement += QStringLiteral(" Or ((ID) = %1/2)").arg(i);
    const QString translated = translateJet(statement).statement;
    EXPECT_EQ(translated.count(QStringLiteral("/2.0")), 1999);
    EXPECT_TRUE(translated.endsWith(QStringLiteral("1999/2.0) ORDER BY Piatti.rowid")));
}

} // namespace
