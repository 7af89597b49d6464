#include "shell/PrimoAvvio.h"

#include "core/Locations.h"

#include <QProcess>

namespace {

// Empty where the folder is ready, else what went wrong.
QString prepara(const ProgramFolder &folder, const QString &strumento)
{
    QProcess tool;
    tool.start(strumento, {QStringLiteral("prepara"), folder.path()});
    if (!tool.waitForFinished(-1))
        return tool.errorString();
    if (tool.exitStatus() == QProcess::NormalExit && tool.exitCode() == 0)
        return {};
    return QString::fromUtf8(tool.readAllStandardError()).trimmed();
}

} // namespace

void OffriEsempio(const ProgramFolder &folder, Dialoghi &dialoghi, const QString &strumento)
{
    if (folder.fileExists(kGestioneRete))
        return;
    const MsgAnswer answer = dialoghi.MsgBox(
        QStringLiteral("Non c'è ancora un archivio.\n\nVuoi cominciare con quello di esempio, che ha già "
                       "alimenti e piatti?\nCon No si sceglie un archivio che c'è già."),
        MsgFlags::YesNoInformation, QStringLiteral("Primo avvio"));
    if (answer != MsgAnswer::Si)
        return;
    if (const QString trouble = prepara(folder, strumento); !trouble.isEmpty())
        dialoghi.MsgBox(QStringLiteral("L'archivio di esempio non si può preparare:\n") + trouble, MsgFlags::Critical,
                        QStringLiteral("Primo avvio"));
}
