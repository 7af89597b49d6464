#include "shell/PercorsiSalvati.h"

#include "core/Locations.h"
#include "platform/text/TextFile.h"

#include <QDir>

namespace {

PercorsoSalvato diviso(const QString &path)
{
    const qsizetype end = qMax(path.lastIndexOf(QLatin1Char('\\')), path.lastIndexOf(QLatin1Char('/')));
    if (end < 0)
        return {QString(), path};
    const QString folder = ProgramFolder::resolveAbsolute(end == 0 ? path.left(1) : path.left(end));
    return {QDir(folder).exists() ? folder : QString(), path.mid(end + 1)};
}

} // namespace

PercorsiSalvati LeggiPercorsiSalvati(ModNetServer &modulo)
{
    AssicuraCartellaIni(modulo);
    const ProgramFolder &folder = modulo.mondo.folder;
    if (!folder.fileExists(kGestioneRete))
        return {};
    TextReader reader(folder.resolve(kGestioneRete));
    QStringList lines;
    while (!reader.atEnd())
        lines << reader.line();
    return {diviso(lines.value(1)), diviso(lines.value(3))};
}
