#include "platform/store/FieldValues.h"

#include "platform/Failure.h"

#include <cmath>

namespace {

Value wholeWherePossible(double number)
{
    constexpr double kLargest = 9007199254740992.0; // above it a number no longer tells its units
    return std::trunc(number) == number && std::abs(number) <= kLargest ? Value(qint64(number)) : Value(number);
}

Value dayOf(const Value &value)
{
    const QDate day = value.date();
    if (!day.isValid())
        throw Failure::usual(FailureNumber::TypeMismatch);
    return day;
}

struct CellOf
{
    Snapshot &texts;

    Cell operator()(std::monostate) const { return Cell{}; }
    Cell operator()(qint64 whole) const { return Cell::ofWhole(whole); }
    Cell operator()(double number) const { return Cell::ofNumber(number); }
    Cell operator()(bool yes) const { return Cell::ofWhole(yes ? 1 : 0); }
    Cell operator()(const QString &text) const { return texts.text(text); }
    Cell operator()(QDate day) const { return texts.text(day.toString(Qt::ISODate)); }
};

} // namespace

Value convertedFor(ColumnType type, const Value &value)
{
    if (value.isNull() && type != ColumnType::Boolean) // yes or no has no third state
        return value;
    switch (type) {
    case ColumnType::Number:
        return value.number();
    case ColumnType::Long:
        return wholeWherePossible(value.number());
    case ColumnType::Date:
        return dayOf(value);
    case ColumnType::Boolean:
        return value.yes();
    case ColumnType::Text:
    case ColumnType::Memo:
        break;
    }
    return value.text();
}

Cell storedCell(const Value &value, Snapshot &texts)
{
    return std::visit(CellOf{texts}, value.held());
}
