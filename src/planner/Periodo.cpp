#include "planner/Periodo.h"

#include "platform/text/Dates.h"

namespace {
constexpr int kWeek = 7;
constexpr int kLongMonth = 31;
} // namespace

QString FineDelPeriodo(TipoPeriodo tipo, const QString &Text1)
{
    const QDate day = CDate(Text1);
    switch (tipo) {
    case TipoPeriodo::Settimana:
        return TestoData(day.addDays(kWeek));
    case TipoPeriodo::Mensile: // the same day of the month in which the 31st day from here falls
        return Text1.left(2) + TestoData(day.addDays(kLongMonth)).mid(2, 10);
    case TipoPeriodo::Annuale:
        break;
    }
    return Text1.left(6) + QString::number(day.year() + 1);
}
