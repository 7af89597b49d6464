#include "platform/store/JetDay.h"

#include <QDate>

#include <array>
#include <utility>

namespace {

struct Numbers
{
    std::array<int, 3> value{};
    std::array<int, 3> digits{};
    bool read = false;
};

int skipBlanks(QStringView text, int at)
{
    while (at < text.size() && text[at] == u' ')
        ++at;
    return at;
}

bool isSeparator(QChar sign)
{
    return sign == u'/' || sign == u'-';
}

// Three numbers with "/" or "-" between them, blanks allowed around each.
Numbers readNumbers(QStringView text)
{
    Numbers numbers;
    int at = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        at = skipBlanks(text, at);
        for (; at < text.size() && text[at] >= u'0' && text[at] <= u'9' && numbers.digits[i] < 4; ++at) {
            numbers.value[i] = numbers.value[i] * 10 + (text[at].unicode() - u'0');
            ++numbers.digits[i];
        }
        at = skipBlanks(text, at);
        const bool last = i == 2;
        if (numbers.digits[i] == 0 || (!last && (at == text.size() || !isSeparator(text[at]))))
            return numbers;
        at += last ? 0 : 1;
    }
    numbers.read = at == text.size();
    return numbers;
}

QString stored(int year, int month, int day)
{
    if (!QDate::isValid(year, month, day))
        return {};
    return QString::asprintf("%04d-%02d-%02d", year, month, day);
}

} // namespace

QString storedDay(QStringView literal)
{
    const Numbers numbers = readNumbers(literal);
    if (!numbers.read)
        return {};
    auto [first, second, third] = numbers.value;
    if (numbers.digits[0] == 4)
        return stored(first, second, third);
    if (numbers.digits[2] != 4)
        return {};
    if (first > 12)
        std::swap(first, second);
    return stored(third, first, second);
}
