#include "sheet/TotaleRiga.h"

#include "platform/Failure.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

namespace {

struct Case
{
    const char *kc100gr;
    const char *quantita;
    const char *total;
};

TEST(TotaleRigaTest, APortionAboveZeroGivesItsCaloriesUnroundedWithAPoint)
{
    const Case cases[] = {{"353", "80", "282.4"},  {"353", "85", "300.05"}, {"12,5", "3", "0.375"},
                          {"12.5", "3", "0.375"},  {"50", "0.5", "0.25"},   {"0", "100", "0"},
                          {"362", "1000", "3620"}, {"100", " 20 ", "20"}};
    for (const Case &each : cases)
        EXPECT_EQ(TotaleRiga(each.kc100gr, each.quantita).value(), each.total)
            << each.kc100gr << " * " << each.quantita;
}

TEST(TotaleRigaTest, APortionOfZeroGivesZeroWhateverTheFood)
{
    EXPECT_EQ(TotaleRiga("353", "0").value(), "0");
    EXPECT_EQ(TotaleRiga("", "0,0").value(), "0");
}

TEST(TotaleRigaTest, ANegativePortionLeavesTheTotalAsItIs)
{
    EXPECT_FALSE(TotaleRiga("353", "-80"));
}

TEST(TotaleRigaTest, ATextThatIsNoNumberFails)
{
    for (const char *portion : {"", "ottanta", "80 g", "1.000,5"})
        EXPECT_THROW((void)TotaleRiga("353", portion), Failure) << portion;
    EXPECT_THROW((void)TotaleRiga("", "80"), Failure);
}

} // namespace
