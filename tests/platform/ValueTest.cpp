// One value of a field, read as another kind.
#include "platform/StoreTest.h"

namespace {

TEST(ValueTest, EveryKindHasItsTextForm)
{
    EXPECT_EQ(Value().text(), QString());
    EXPECT_EQ(Value(12).text(), u"12"_s);
    EXPECT_EQ(Value(1480.5).text(), u"1480,5"_s);
    EXPECT_EQ(Value(112.00000000000001).text(), u"112"_s);
    EXPECT_EQ(Value(u"Purè"_s).text(), u"Purè"_s);
    EXPECT_EQ(Value(QDate(2025, 3, 2)).text(), u"02/03/2025"_s);
}

TEST(ValueTest, NumbersAreReadFromNumbersAndTexts)
{
    EXPECT_EQ(Value(12).number(), 12);
    EXPECT_EQ(Value(2.5).number(), 2.5);
    EXPECT_EQ(Value(u"1.100"_s).number(), 1100);
    EXPECT_EQ(Value(true).number(), 1);
    EXPECT_EQ(failureNumber([] { (void)Value().number(); }), int(FailureNumber::InvalidNull));
    EXPECT_EQ(failureNumber([] { (void)Value(u"x"_s).number(); }), int(FailureNumber::TypeMismatch));
    EXPECT_EQ(failureNumber([] { (void)Value(QDate(2025, 3, 2)).number(); }), int(FailureNumber::TypeMismatch));
}

TEST(ValueTest, DaysAreReadFromDaysAndTexts)
{
    EXPECT_EQ(Value(QDate(2025, 3, 2)).date(), QDate(2025, 3, 2));
    EXPECT_EQ(Value(u"2/3/2025"_s).date(), QDate(2025, 3, 2));
    EXPECT_EQ(failureNumber([] { (void)Value().date(); }), int(FailureNumber::InvalidNull));
    EXPECT_EQ(failureNumber([] { (void)Value(u"02/03"_s).date(); }), int(FailureNumber::TypeMismatch));
    EXPECT_EQ(failureNumber([] { (void)Value(45000.0).date(); }), int(FailureNumber::TypeMismatch));
}

TEST(ValueTest, YesIsWhateverIsNeitherNullNorZero)
{
    EXPECT_FALSE(Value().yes());
    EXPECT_FALSE(Value(0).yes());
    EXPECT_FALSE(Value(0.0).yes());
    EXPECT_FALSE(Value(false).yes());
    EXPECT_FALSE(Value(u"0"_s).yes());
    EXPECT_TRUE(Value(-1).yes());
    EXPECT_TRUE(Value(true).yes());
    EXPECT_TRUE(Value(u"1"_s).yes());
}

} // namespace
