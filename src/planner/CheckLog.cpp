#include "planner/CheckLog.h"

#include "platform/text/Numbers.h"
#include "platform/text/TextFile.h"

#include <initializer_list>

namespace {

const QString kFile = QStringLiteral("\\Check.log");

QString PrimaAccesa(const SceltaMenu &scelta, std::initializer_list<int> numbers)
{
    for (const int number : numbers)
        if (scelta.Check.at(number))
            return QString::number(number);
    return QStringLiteral("0");
}

// The box whose number stands on the line, letter by letter.
int CasellaDellaRiga(const QString &line, std::initializer_list<int> numbers)
{
    for (const int number : numbers)
        if (line == QString::number(number))
            return number;
    return 0;
}

} // namespace

void ScriviCheckLog(const ModNetServer &modulo, const SceltaMenu &scelta)
{
    TextWriter file(modulo.mondo.folder.resolve(kFile));
    file.line(PrimaAccesa(scelta, {8, 1, 2, 3, 7}));
    // Check5 has no place here: a dinner of Pasta \ Minestra is not remembered.
    file.line(PrimaAccesa(scelta, {9, 4, 6, 11}));
    file.line(scelta.Check[12] ? QStringLiteral(" 1 ") : QStringLiteral(" 0 "));
    file.close();
}

std::optional<UltimaScelta> LeggiCheckLog(const ModNetServer &modulo)
{
    if (!modulo.mondo.folder.fileExists(kFile))
        return std::nullopt;
    TextReader file(modulo.mondo.folder.resolve(kFile));
    UltimaScelta scelta;
    scelta.pranzo = CasellaDellaRiga(file.line(), {8, 1, 2, 3, 7});
    scelta.cena = CasellaDellaRiga(file.line(), {9, 4, 5, 6, 11});
    scelta.Check12 = Val(file.line()) == 1;
    return scelta;
}
