#include "planner/CheckLog.h"

#include "support/TestWorld.h"

#include <gtest/gtest.h>

namespace {

class CheckLogTest : public testing::Test
{
protected:
    QByteArray written(std::initializer_list<int> on)
    {
        SceltaMenu scelta;
        for (const int number : on)
            scelta.Check.at(number) = true;
        ScriviCheckLog(world.modulo, scelta);
        return world.cartella.read("\\Check.log");
    }

    TestWorld world;
};

TEST_F(CheckLogTest, TheFileHoldsTheCodeOfEachMealAndTheBalancing)
{
    EXPECT_EQ(written({}), "0\r\n0\r\n 0 \r\n");
    EXPECT_EQ(written({8, 9}), "8\r\n9\r\n 0 \r\n");
    EXPECT_EQ(written({1, 4, 12}), "1\r\n4\r\n 1 \r\n");
    EXPECT_EQ(written({2, 6}), "2\r\n6\r\n 0 \r\n");
    EXPECT_EQ(written({3, 11}), "3\r\n11\r\n 0 \r\n");
    EXPECT_EQ(written({7, 10}), "7\r\n0\r\n 0 \r\n");
}

TEST_F(CheckLogTest, ADinnerOfPastaIsStoredAsNothing)
{
    EXPECT_EQ(written({5}), "0\r\n0\r\n 0 \r\n");
}

TEST_F(CheckLogTest, WithSeveralBoxesOnTheSingleDishComesFirst)
{
    EXPECT_EQ(written({1, 2, 3, 7, 8, 4, 5, 6, 9, 11}), "8\r\n9\r\n 0 \r\n");
    EXPECT_EQ(written({1, 2, 3, 7, 4, 5, 6, 11}), "1\r\n4\r\n 0 \r\n");
    EXPECT_EQ(written({2, 3, 7, 5, 6, 11}), "2\r\n6\r\n 0 \r\n");
    EXPECT_EQ(written({3, 7, 5, 11}), "3\r\n11\r\n 0 \r\n");
}

TEST_F(CheckLogTest, EachRunReplacesTheFile)
{
    world.cartella.write("\\Check.log", "much\r\nlonger\r\nthan\r\nthe\r\nnew\r\none\r\n");
    EXPECT_EQ(written({7}), "7\r\n0\r\n 0 \r\n");
}

TEST_F(CheckLogTest, NoFileSaysNothing)
{
    EXPECT_FALSE(LeggiCheckLog(world.modulo).has_value());
}

TEST_F(CheckLogTest, TheReaderKnowsTheFiveThatNobodyWrites)
{
    world.cartella.write("\\Check.log", "3\r\n5\r\n 1 \r\n");
    const UltimaScelta scelta = LeggiCheckLog(world.modulo).value();
    EXPECT_EQ(scelta.pranzo, 3);
    EXPECT_EQ(scelta.cena, 5);
    EXPECT_TRUE(scelta.Check12);
}

TEST_F(CheckLogTest, CodesAreComparedAsTextAndTheBalancingAsANumber)
{
    struct Case
    {
        const char *bytes;
        int pranzo, cena;
        bool Check12;
    };
    const Case cases[] = {
        {"8\r\n9\r\n 0 \r\n", 8, 9, false}, {"1\r\n4\r\n1\r\n", 1, 4, true},
        {"2\n6\n1.0", 2, 6, true},          {"7\r\n11\r\n1 x\r\n", 7, 11, true},
        {"3\r\n0\r\n10\r\n", 3, 0, false},  {" 8\r\n09\r\n\r\n", 0, 0, false},
        {"4\r\n3\r\n-1\r\n", 0, 0, false},  {"8 \r\n9.0\r\nsi\r\n", 0, 0, false},
        {"\r\n\r\n1\r\n", 0, 0, true},      {"\xff\xfe\r\n\x01\r\n1\r\n", 0, 0, true},
    };
    for (const Case &c : cases) {
        world.cartella.write("\\Check.log", c.bytes);
        const UltimaScelta scelta = LeggiCheckLog(world.modulo).value();
        EXPECT_EQ(scelta.pranzo, c.pranzo) << c.bytes;
        EXPECT_EQ(scelta.cena, c.cena) << c.bytes;
        EXPECT_EQ(scelta.Check12, c.Check12) << c.bytes;
    }
}

TEST_F(CheckLogTest, AFileCutShortFails)
{
    for (const char *bytes : {"", "8\r\n", "8\r\n9\r\n"}) {
        world.cartella.write("\\Check.log", bytes);
        try {
            static_cast<void>(LeggiCheckLog(world.modulo));
            ADD_FAILURE() << bytes;
        } catch (const Failure &failure) {
            EXPECT_EQ(failure.number(), FailureNumber::InputPastEnd) << bytes;
        }
    }
}

} // namespace
