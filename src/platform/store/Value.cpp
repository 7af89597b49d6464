#include "platform/store/Value.h"

#include "platform/Failure.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"

namespace {

struct TextOf
{
    QString operator()(std::monostate) const { return {}; }
    QString operator()(qint64 whole) const { return QString::number(whole); }
    QString operator()(double number) const { return TestoNumero(number); }
    QString operator()(bool yes) const { return yes ? QStringLiteral("Vero") : QStringLiteral("Falso"); }
    QString operator()(const QString &text) const { return text; }
    QString operator()(QDate day) const { return TestoData(day); }
};

struct NumberOf
{
    double operator()(std::monostate) const { throw Failure::usual(FailureNumber::InvalidNull); }
    double operator()(qint64 whole) const { return double(whole); }
    double operator()(double number) const { return number; }
    double operator()(bool yes) const { return yes ? 1 : 0; }
    double operator()(const QString &text) const { return NumeroDaTesto(text); }
    double operator()(QDate day) const { throw Failure::usual(FailureNumber::TypeMismatch, TestoData(day)); }
};

struct YesOf
{
    bool operator()(std::monostate) const { return false; }
    bool operator()(qint64 whole) const { return whole != 0; }
    bool operator()(double number) const { return number != 0; }
    bool operator()(bool yes) const { return yes; }
    bool operator()(const QString &text) const
    {
        return !text.isEmpty() && text != u"0" && text.compare(u"falso", Qt::CaseInsensitive) != 0 &&
               text.compare(u"false", Qt::CaseInsensitive) != 0;
    }
    bool operator()(QDate day) const { return day.isValid(); }
};

} // namespace

QString Value::text() const
{
    return std::visit(TextOf{}, m_value);
}

double Value::number() const
{
    return std::visit(NumberOf{}, m_value);
}

QDate Value::date() const
{
    if (isNull())
        throw Failure::usual(FailureNumber::InvalidNull);
    if (const auto *day = std::get_if<QDate>(&m_value))
        return *day;
    if (const auto *told = std::get_if<QString>(&m_value))
        return CDate(*told);
    throw Failure::usual(FailureNumber::TypeMismatch, text());
}

bool Value::yes() const
{
    return std::visit(YesOf{}, m_value);
}
