#include "platform/text/Numbers.h"

#include "platform/Failure.h"

#include <QList>
#include <QStringView>

#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <string>

namespace {

// The number's characters in `buffer`, up to 15 significant digits; gives their count.
int format(double number, std::array<char, 40> &buffer)
{
    constexpr double kWholeBelow = 1e15;
    char *const begin = buffer.data();
    char *const end = begin + buffer.size();
    // Most numbers on show are whole; the comparison also turns -0 into 0.
    if (std::abs(number) < kWholeBelow && number == std::trunc(number))
        return int(std::to_chars(begin, end, qint64(number)).ptr - begin);
    return int(std::to_chars(begin, end, number, std::chars_format::general, 15).ptr - begin);
}

QString withDecimalSign(double number, char sign)
{
    std::array<char, 40> buffer;
    const int length = format(number, buffer);
    for (int index = 0; index < length; ++index) {
        if (buffer[index] == '.')
            buffer[index] = sign;
        else if (buffer[index] == 'e')
            buffer[index] = 'E';
    }
    return QString::fromLatin1(buffer.data(), length);
}

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

int countDigits(QStringView text)
{
    int count = 0;
    while (count < text.size() && isDigit(text[count]))
        ++count;
    return count;
}

// A text of plain ASCII in the language's own form ("-12.5E+3") as a number; nothing where it is too large for one.
std::optional<double> readPlain(const std::string &text)
{
    double number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec == std::errc::result_out_of_range)
        return std::nullopt;
    return number;
}

// A typed number taken apart: sign, mantissa, exponent.
struct Parts
{
    QStringView typed; // the whole text
    bool negative = false;
    QStringView mantissa;
    QStringView exponent; // with its sign, empty where there is none
};

[[noreturn]] void mismatch(QStringView typed)
{
    throw Failure::usual(FailureNumber::TypeMismatch, typed.trimmed().isEmpty()
                                                          ? QStringLiteral("il numero manca")
                                                          : QStringLiteral("\"%1\" non è un numero").arg(typed));
}

Parts split(QStringView text)
{
    Parts parts;
    parts.typed = text;
    text = text.trimmed();
    if (text.startsWith(u'-') || text.startsWith(u'+')) {
        parts.negative = text.startsWith(u'-');
        text = text.mid(1);
    }
    const qsizetype at = text.indexOf(u'E', 0, Qt::CaseInsensitive);
    parts.mantissa = at < 0 ? text : text.left(at);
    if (at >= 0) {
        parts.exponent = text.mid(at + 1);
        const qsizetype sign = parts.exponent.startsWith(u'-') || parts.exponent.startsWith(u'+') ? 1 : 0;
        const QStringView digits = parts.exponent.mid(sign);
        if (digits.isEmpty() || countDigits(digits) != digits.size())
            mismatch(parts.typed);
        if (parts.exponent.startsWith(u'+'))
            parts.exponent = digits;
    }
    return parts;
}

// The number made of these digits before and behind the decimal sign, with the sign and exponent of `parts`.
double compose(const Parts &parts, QStringView whole, QStringView fraction)
{
    if (whole.isEmpty() && fraction.isEmpty())
        mismatch(parts.typed);
    if (countDigits(whole) != whole.size() || countDigits(fraction) != fraction.size())
        mismatch(parts.typed);
    std::string plain = parts.negative ? "-" : "";
    plain += whole.isEmpty() ? std::string("0") : whole.toLatin1().toStdString();
    if (!fraction.isEmpty())
        plain.append(".").append(fraction.toLatin1().toStdString());
    if (!parts.exponent.isEmpty())
        plain.append("E").append(parts.exponent.toLatin1().toStdString());
    const std::optional<double> number = readPlain(plain);
    if (!number)
        mismatch(parts.typed);
    return *number;
}

// Whether points part `text` into thousands: 1.100, 12.345.678. A leading zero makes none of them: 0.500 is a half.
bool isGrouped(QStringView text)
{
    const QList<QStringView> groups = text.split(u'.');
    const QStringView first = groups.first();
    if (groups.size() < 2 || first.isEmpty() || first.size() > 3 || first.startsWith(u'0'))
        return false;
    for (qsizetype index = 0; index < groups.size(); ++index) {
        if (countDigits(groups[index]) != groups[index].size() || (index > 0 && groups[index].size() != 3))
            return false;
    }
    return true;
}

// The whole and the fraction on either side of the one sign at `at`.
double composeAt(const Parts &parts, qsizetype at)
{
    if (at < 0)
        return compose(parts, parts.mantissa, {});
    return compose(parts, parts.mantissa.left(at), parts.mantissa.mid(at + 1));
}

} // namespace

QString TestoNumero(double number)
{
    return withDecimalSign(number, ',');
}

QString NumeroPerIstruzione(double number)
{
    return withDecimalSign(number, '.');
}

double NumeroDaTesto(const QString &text)
{
    const Parts parts = split(text);
    const qsizetype comma = parts.mantissa.indexOf(u',');
    const QStringView whole = comma < 0 ? parts.mantissa : parts.mantissa.left(comma);
    if (isGrouped(whole) && parts.exponent.isEmpty()) {
        const QString joined = whole.toString().remove(u'.');
        return compose(parts, joined, comma < 0 ? QStringView() : parts.mantissa.mid(comma + 1));
    }
    return composeAt(parts, comma < 0 ? parts.mantissa.indexOf(u'.') : comma);
}

double NumeroCampo(const QString &text)
{
    const Parts parts = split(text);
    const qsizetype comma = parts.mantissa.indexOf(u',');
    return composeAt(parts, comma < 0 ? parts.mantissa.indexOf(u'.') : comma);
}

double Val(const QString &text)
{
    QStringView rest = QStringView(text).trimmed();
    std::string plain;
    if (rest.startsWith(u'-') || rest.startsWith(u'+')) {
        plain = rest.startsWith(u'-') ? "-" : "";
        rest = rest.mid(1);
    }
    const int whole = countDigits(rest);
    const bool hasPoint = rest.mid(whole).startsWith(u'.');
    const int fraction = hasPoint ? countDigits(rest.mid(whole + 1)) : 0;
    if (whole == 0 && fraction == 0)
        return 0;
    plain.append("0").append(rest.left(whole).toLatin1().toStdString());
    if (fraction > 0)
        plain.append(".").append(rest.mid(whole + 1, fraction).toLatin1().toStdString());
    return readPlain(plain).value_or(0);
}
