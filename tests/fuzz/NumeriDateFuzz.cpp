// Whatever a person types: it is a number or a day, or it is refused; what is one reads back as the same.
#include "platform/Failure.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"

#include <QString>

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void fault(const char *rule, const QString &text)
{
    std::fprintf(stderr, "%s: \"%s\"\n", rule, qPrintable(text));
    std::abort();
}

// A number on show, typed as it stands, is that number on show.
void checkNumber(double number, const QString &typed)
{
    if (!std::isfinite(number))
        fault("a number without end", typed);
    const QString shown = TestoNumero(number);
    if (TestoNumero(NumeroCampo(shown)) != shown)
        fault("a box reads another number than it shows", shown);
    if (TestoNumero(NumeroDaTesto(shown)) != shown)
        fault("a typed number is another than the one shown", shown);
    // The leading number of a free text has no exponent.
    if (!shown.contains(u'E') && TestoNumero(Val(NumeroPerIstruzione(number))) != shown)
        fault("a statement holds another number", shown);
}

template <typename Read>
void readNumber(const Read &read, const QString &typed)
{
    double number = 0;
    try {
        number = read(typed);
    } catch (const Failure &) {
        return;
    }
    checkNumber(number, typed);
}

void readDay(const QString &typed)
{
    const QDate lenient = dayFromText(typed);
    QDate day;
    try {
        day = CDate(typed);
    } catch (const Failure &) {
        if (lenient.isValid())
            fault("a day that is refused", typed);
        return;
    }
    if (!day.isValid() || day != lenient || CDate(TestoData(day)) != day)
        fault("a day that reads back as another", typed);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QString typed = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    readNumber(NumeroDaTesto, typed);
    readNumber(NumeroCampo, typed);
    readNumber(Val, typed);
    readDay(typed);
    return 0;
}
