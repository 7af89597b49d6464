// The literals of a statement made values, so that it is prepared once for all days.
#include "platform/store/LiftedLiterals.h"
#include "platform/StoreTest.h"

namespace {

std::vector<QByteArray> valuesOf(const QString &statement)
{
    return liftLiterals(statement).values;
}

TEST(LiftedLiteralsTest, TheSameStatementForAnotherDayHasTheSameShape)
{
    const LiftedLiterals monday = liftLiterals(u"SELECT * From T Where d = '03/03/2025' And p = ''"_s);
    const LiftedLiterals tuesday = liftLiterals(u"SELECT * From T Where d = '04/03/2025' And p = 'Cena'"_s);
    EXPECT_EQ(monday.shape, tuesday.shape);
    EXPECT_EQ(monday.values, (std::vector<QByteArray>{"03/03/2025", ""}));
    EXPECT_EQ(tuesday.values, (std::vector<QByteArray>{"04/03/2025", "Cena"}));
    EXPECT_NE(monday.shape, liftLiterals(u"SELECT * From T Where e = '03/03/2025' And p = ''"_s).shape);
}

TEST(LiftedLiteralsTest, ADoubledApostropheIsOneInTheValue)
{
    EXPECT_EQ(valuesOf(u"x = 'dell''orto'"_s), std::vector<QByteArray>{"dell'orto"});
    EXPECT_EQ(valuesOf(u"x = ''''"_s), std::vector<QByteArray>{"'"});
}

TEST(LiftedLiteralsTest, NamesDaysAndOtherQuotesStayAsTheyAre)
{
    const QString statement = u"SELECT [d'or] FROM T WHERE a = \"l'una\" And b = #3/2/2025# And c = 5"_s;
    EXPECT_EQ(liftLiterals(statement).shape, statement);
    EXPECT_TRUE(valuesOf(statement).empty());
}

TEST(LiftedLiteralsTest, AStatementThatCannotBeReadToItsEndIsLeftAlone)
{
    for (const QString &statement : {u"x = 'dell'orto'"_s, u"x = 'a' and y = [b"_s, u"x = 'a' and y = #3/2"_s}) {
        EXPECT_EQ(liftLiterals(statement).shape, statement);
        EXPECT_TRUE(valuesOf(statement).empty());
    }
}

TEST(LiftedLiteralsTest, TheMarksBecomeNumberedParameters)
{
    QString many;
    for (int i = 0; i < 12; ++i)
        many += u"x = '%1' "_s.arg(i);
    const QString shape = liftLiterals(many).shape;
    EXPECT_EQ(marksToParameters(shape),
              u"x = ?1 x = ?2 x = ?3 x = ?4 x = ?5 x = ?6 x = ?7 x = ?8 x = ?9 x = ?10 x = ?11 x = ?12 "_s);
}

} // namespace
