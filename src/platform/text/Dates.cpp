#include "platform/text/Dates.h"

#include "platform/Failure.h"

#include <QList>
#include <QStringView>

namespace {

// The digits of `text` as a number; -1 where it is not made of `least` to `most` digits.
int readDigits(QStringView text, int least, int most)
{
    if (text.size() < least || text.size() > most)
        return -1;
    int number = 0;
    for (const QChar character : text) {
        if (character < u'0' || character > u'9')
            return -1;
        number = number * 10 + (character.unicode() - u'0');
    }
    return number;
}

QDate dayBetween(QStringView text, QChar separator)
{
    const QList<QStringView> parts = text.split(separator);
    if (parts.size() != 3)
        return {};
    const int day = readDigits(parts[0], 1, 2);
    const int month = readDigits(parts[1], 1, 2);
    const int year = readDigits(parts[2], 4, 4);
    return year > 0 ? QDate(year, month, day) : QDate(); // QDate would take year -1 for 2 b.C.
}

} // namespace

QString TestoData(QDate day)
{
    return day.toString(QStringLiteral("dd/MM/yyyy"));
}

QString TestoDataOra(const QDateTime &when)
{
    return when.toString(QStringLiteral("dd/MM/yyyy HH:mm:ss"));
}

QDate dayFromText(const QString &text)
{
    for (const QChar separator : {u'/', u'-', u'.'}) {
        const QDate day = dayBetween(text, separator);
        if (day.isValid())
            return day;
    }
    return {};
}

QDate CDate(const QString &text)
{
    const QDate day = dayFromText(text);
    if (!day.isValid())
        throw Failure::usual(FailureNumber::TypeMismatch,
                             QStringLiteral("\"%1\" non è una data (gg/mm/aaaa)").arg(text));
    return day;
}

QString DataPerIstruzione(QDate day, const QString &separator)
{
    return QString::number(day.month()) + separator + QString::number(day.day()) + separator +
           QString::number(day.year());
}
