#include "planner/Periodo.h"

#include "platform/Failure.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

namespace {

struct Case
{
    TipoPeriodo tipo;
    const char *Text1;
    const char *Text2;
};

TEST(PeriodoTest, TheLastDayFollowsFromTheFirst)
{
    const Case cases[] = {
        {TipoPeriodo::Settimana, "02/03/2025", "09/03/2025"},
        {TipoPeriodo::Settimana, "28/12/2025", "04/01/2026"},
        {TipoPeriodo::Settimana, "2/3/2025", "09/03/2025"},
        {TipoPeriodo::Mensile, "02/03/2025", "02/04/2025"},
        {TipoPeriodo::Mensile, "31/01/2025", "31/03/2025"}, // the 31st day from here falls in March
        {TipoPeriodo::Mensile, "30/04/2025", "30/05/2025"},
        {TipoPeriodo::Mensile, "01/02/2025", "01/03/2025"},
        {TipoPeriodo::Mensile, "15/12/2025", "15/01/2026"},
        {TipoPeriodo::Mensile, "2/3/2025", "2//04/2025"}, // cut out of the texts, so only dd/mm/yyyy comes out right
        {TipoPeriodo::Annuale, "02/03/2025", "02/03/2026"},
        {TipoPeriodo::Annuale, "29/02/2024", "29/02/2025"}, // no such day, and left so
        {TipoPeriodo::Annuale, "2/3/2025", "2/3/202026"},
    };
    for (const Case &c : cases)
        EXPECT_EQ(FineDelPeriodo(c.tipo, c.Text1), QString(c.Text2)) << c.Text1;
}

TEST(PeriodoTest, AFirstDayThatIsNoDateFails)
{
    for (const char *text : {"", "12", "02/03/20", "31/02/2025", "domani", "02/03/"})
        for (const TipoPeriodo tipo : {TipoPeriodo::Settimana, TipoPeriodo::Mensile, TipoPeriodo::Annuale})
            try {
                static_cast<void>(FineDelPeriodo(tipo, text));
                ADD_FAILURE() << text;
            } catch (const Failure &failure) {
                EXPECT_EQ(failure.number(), FailureNumber::TypeMismatch) << text;
            }
}

} // namespace
