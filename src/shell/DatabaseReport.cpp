#include "shell/DatabaseReport.h"

#include "core/Locations.h"
#include "platform/text/TextFile.h"

#include <QFileInfo>

namespace {

const QString kReportIni = QStringLiteral("\\INI\\Report.ini");

} // namespace

QString DatabaseReportRegistrato(const ModNetServer &modulo)
{
    if (!modulo.mondo.folder.fileExists(kReportIni))
        return {};
    TextReader reader(modulo.mondo.folder.resolve(kReportIni));
    QStringList lines;
    while (!reader.atEnd())
        lines << reader.line();
    return lines.value(1);
}

bool DaScegliereDatabaseReport(ModNetServer &modulo)
{
    AssicuraCartellaIni(modulo);
    if (modulo.mondo.folder.fileExists(kReportIni))
        modulo.PercorsoDbReport = DatabaseReportRegistrato(modulo);
    const QString &path = modulo.PercorsoDbReport;
    if (path.isEmpty() || !QFileInfo(ProgramFolder::resolveAbsolute(path)).isFile())
        return true;
    return modulo.mondo.dialoghi.MsgBox(QStringLiteral("Vuoi modificare il persorso: ") + path, MsgFlags::YesNoQuestion,
                                        QStringLiteral("Modifica Percorso MDB Report?")) == MsgAnswer::Si;
}

void RegistraDatabaseReport(ModNetServer &modulo, const QString &path)
{
    TextWriter writer(modulo.mondo.folder.resolve(kReportIni));
    writer.line(QStringLiteral("[Report]"));
    writer.line(path);
    writer.close();
    modulo.PercorsoDbReport = path;
    modulo.mondo.dialoghi.MsgBox(QStringLiteral("Database per le stampe registrato: \n") + path, MsgFlags::Plain,
                                 QStringLiteral("OK!!"));
}
