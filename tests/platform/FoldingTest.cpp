// How texts compare.
#include "platform/store/Folding.h"
#include "platform/StoreTest.h"

#include <sqlcipher/sqlite3.h>

#include <algorithm>
#include <memory>
#include <random>

namespace {

// The engine's own NOCASE, without anything of ours.
class BareEngine
{
public:
    BareEngine()
    {
        sqlite3 *raw = nullptr;
        sqlite3_open(":memory:", &raw);
        m_handle.reset(raw);
        sqlite3_stmt *statement = nullptr;
        sqlite3_prepare_v2(raw, "SELECT (?1 > ?2 COLLATE NOCASE) - (?1 < ?2 COLLATE NOCASE)", -1, &statement, nullptr);
        m_statement.reset(statement);
    }

    int compare(const QByteArray &left, const QByteArray &right)
    {
        sqlite3_stmt *const statement = m_statement.get();
        sqlite3_bind_text(statement, 1, left.constData(), int(left.size()), SQLITE_STATIC);
        sqlite3_bind_text(statement, 2, right.constData(), int(right.size()), SQLITE_STATIC);
        EXPECT_EQ(sqlite3_step(statement), SQLITE_ROW);
        const int order = sqlite3_column_int(statement, 0);
        sqlite3_reset(statement);
        return order;
    }

private:
    struct Closer
    {
        void operator()(sqlite3 *handle) const { sqlite3_close_v2(handle); }
        void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
    };
    std::unique_ptr<sqlite3, Closer> m_handle;
    std::unique_ptr<sqlite3_stmt, Closer> m_statement;
};

class RandomTexts
{
public:
    QByteArray ascii(int first, int last, int longest)
    {
        QByteArray text(number(0, longest), ' ');
        std::generate(text.begin(), text.end(), [&] { return char(number(first, last)); });
        return text;
    }

private:
    int number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(m_generator); }

    std::mt19937 m_generator;
};

QStringList sorted(QStringList texts)
{
    std::sort(texts.begin(), texts.end(),
              [](const QString &left, const QString &right) { return compareFolded(left, right) < 0; });
    return texts;
}

TEST(FoldingTest, PlainTextsCompareExactlyAsTheEnginesOwnCollationDoes)
{
    BareEngine bare;
    RandomTexts random;
    for (int i = 0; i < 20000; ++i) {
        // Short texts of few letters meet in common beginnings; the others in every sign.
        const bool few = i % 2 == 0;
        const QByteArray left = few ? random.ascii('X', 'c', 4) : random.ascii(1, 127, 12);
        const QByteArray right = few ? random.ascii('X', 'c', 4) : random.ascii(1, 127, 12);
        ASSERT_EQ(compareFolded(QByteArrayView(left), QByteArrayView(right)), bare.compare(left, right))
            << left.toPercentEncoding().toStdString() << " and " << right.toPercentEncoding().toStdString();
    }
}

TEST(FoldingTest, AccentedLettersAreEqualWithoutTheirCase)
{
    EXPECT_EQ(compareFolded(u"CAFFÈ À PERÙ"_s, u"caffè à perù"_s), 0);
    EXPECT_EQ(compareFolded(u"ŠČŐ Ж Ω"_s, u"ščő ж ω"_s), 0);
}

TEST(FoldingTest, AccentsAndApostrophesStayDistinct)
{
    EXPECT_NE(compareFolded(u"caffè"_s, u"caffe"_s), 0);
    EXPECT_NE(compareFolded(u"caffè"_s, u"caffé"_s), 0);
    EXPECT_NE(compareFolded(u"dell\u2019orto"_s, u"dell'orto"_s), 0);
}

TEST(FoldingTest, TheOrderIsThatOfADictionary)
{
    const QStringList expected = {
        u"Caffe"_s, u"caffè"_s, u"Caffelatte"_s, u"CAFFÈLATTE"_s, u"dell'orto"_s,  u"Dell\u2019orto"_s, u"dell'orzo"_s,
        u"pera"_s,  u"Però"_s,  u"perù"_s,       u"pesce"_s,      u"smørrebrød"_s, u"smorzato"_s,       u"zuppa"_s};
    QStringList shuffled = expected;
    std::shuffle(shuffled.begin(), shuffled.end(), std::mt19937());
    EXPECT_EQ(sorted(shuffled), expected);
}

TEST(FoldingTest, TheOrderIsTotalOnBrokenBytesToo)
{
    RandomTexts random;
    std::vector<QByteArray> texts;
    for (int i = 0; i < 200; ++i)
        texts.push_back(random.ascii(-128, 127, 3));
    const auto compare = [](const QByteArray &left, const QByteArray &right) {
        return compareFolded(QByteArrayView(left), QByteArrayView(right));
    };
    for (const QByteArray &a : texts)
        for (const QByteArray &b : texts) {
            ASSERT_EQ(compare(a, b), -compare(b, a));
            for (const QByteArray &c : texts)
                ASSERT_FALSE(compare(a, b) <= 0 && compare(b, c) <= 0 && compare(a, c) > 0);
        }
}

TEST(FoldingTest, PatternsMatchWithoutRegardToCase)
{
    EXPECT_TRUE(matchesPattern(u"Pasta e fagioli"_s, u"PASTA%"_s));
    EXPECT_TRUE(matchesPattern(u"Pasta e fagioli"_s, u"%e*oli"_s));
    EXPECT_TRUE(matchesPattern(u"Perù"_s, u"per_"_s));
    EXPECT_TRUE(matchesPattern(u""_s, u"%"_s));
    EXPECT_FALSE(matchesPattern(u"Pasta"_s, u"past"_s));
    EXPECT_FALSE(matchesPattern(u"Past"_s, u"past_"_s));
    EXPECT_FALSE(matchesPattern(u"Perù"_s, u"peru"_s));
}

// The same through statements.
class TextComparisonTest : public StoreTest
{
protected:
    void SetUp() override
    {
        open(u"CREATE TABLE T (ID INTEGER PRIMARY KEY, Nome VARCHAR(20) COLLATE NOCASE);"
             u"INSERT INTO T (Nome) VALUES ('Purè'), ('PURÈ'), ('pure'), ('purea'), ('Menu')"_s);
    }
};

TEST_F(TextComparisonTest, ConditionsFindTextsOfAnotherCase)
{
    EXPECT_EQ(column(u"Select ID from T where Nome = 'menu' order by ID"_s), u"5"_s);
    EXPECT_EQ(column(u"Select ID from T where Nome = 'purè' order by ID"_s), u"1 2"_s);
    EXPECT_EQ(column(u"Select ID from T where Trim(Nome) = 'PURE' order by ID"_s), u"3"_s);
}

TEST_F(TextComparisonTest, GroupsAndOrderFollowTheDictionary)
{
    EXPECT_EQ(column(u"SELECT Count(T.ID) AS N FROM T GROUP BY T.Nome ORDER BY T.Nome"_s), u"1 1 2 1"_s);
    EXPECT_EQ(column(u"Select ID from T order by Nome"_s), u"5 3 1 2 4"_s);
}

} // namespace
