#include "platform/text/Dates.h"
#include "platform/Failure.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

struct DayText
{
    QString text;
    QDate day;
};

} // namespace

TEST(DatesTest, ADayIsShownWithTwoDigitsEach)
{
    EXPECT_EQ(TestoData(QDate(2025, 3, 2)), "02/03/2025");
    EXPECT_EQ(TestoData(QDate(987, 12, 31)), "31/12/0987");
    EXPECT_EQ(TestoDataOra(QDateTime(QDate(2025, 3, 2), QTime(9, 5, 7))), "02/03/2025 09:05:07");
}

TEST(DatesTest, AStatementHasTheMonthFirstWithoutLeadingZeros)
{
    EXPECT_EQ(DataPerIstruzione(QDate(2025, 3, 2)), "3/2/2025");
    EXPECT_EQ(DataPerIstruzione(QDate(2025, 12, 31), "/ "), "12/ 31/ 2025");
}

TEST(DatesTest, ADayTextIsReadDayFirst)
{
    const std::vector<DayText> cases = {
        {"02/03/2025", {2025, 3, 2}}, {"2/3/2025", {2025, 3, 2}},    {"2-3-2025", {2025, 3, 2}},
        {"2.3.2025", {2025, 3, 2}},   {"29/02/2024", {2024, 2, 29}}, {"31/12/9999", {9999, 12, 31}},
    };
    for (const DayText &known : cases) {
        EXPECT_EQ(CDate(known.text), known.day) << known.text.toStdString();
        EXPECT_EQ(dayFromText(known.text), known.day) << known.text.toStdString();
    }
}

TEST(DatesTest, AHalfTypedOrImpossibleDayIsNone)
{
    for (const char *text : {"",
                             "0",
                             "02",
                             "02/",
                             "02/03",
                             "02/03/",
                             "02/03/2",
                             "02/03/20",
                             "02/03/202",
                             "02/03/20255",
                             "002/03/2025",
                             "02/003/2025",
                             "/03/2025",
                             "02//2025",
                             "29/02/2025",
                             "31/04/2025",
                             "32/01/2025",
                             "00/01/2025",
                             "01/00/2025",
                             "01/13/2025",
                             "01/01/0000",
                             "01/01/-001",
                             "2025/03/02",
                             "2025-03-02",
                             "02/03-2025",
                             "02/03/2025/",
                             "02/03/2025 10:00:00",
                             "a2/03/2025",
                             "domani",
                             "+2/03/2025",
                             "02/03/2025x"}) {
        EXPECT_FALSE(dayFromText(text).isValid()) << text;
        try {
            CDate(text);
            ADD_FAILURE() << text;
        } catch (const Failure &failure) {
            EXPECT_EQ(failure.number(), FailureNumber::TypeMismatch);
        }
    }
}
