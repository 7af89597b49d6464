// Whatever text comes in, the translator either fails with a Failure or gives a text that translates to itself.
#include "platform/Failure.h"
#include "platform/store/JetTranslator.h"

#include <QString>

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QString statement = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    Translation once;
    try {
        once = translateJet(statement);
    } catch (const Failure &) {
        return 0;
    }
    // Outside the try: a translation that cannot be read is a fault.
    const Translation twice = translateJet(once.statement);
    if (!(twice == once)) {
        std::fprintf(stderr, "once:  %s\ntwice: %s\n", qPrintable(once.statement), qPrintable(twice.statement));
        std::abort();
    }
    return 0;
}
