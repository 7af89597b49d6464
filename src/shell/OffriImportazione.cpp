#include "shell/OffriImportazione.h"

#include "core/Locations.h"
#include "platform/Failure.h"
#include "platform/store/ArchiveSigns.h"
#include "platform/text/TextFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>

#include <algorithm>

namespace {

const QString kTitle = QStringLiteral("Importazione archivio");
constexpr int kDone = 0;
constexpr int kPasswordAsked = 3; // what the tool ends with where the password lacks or is wrong
constexpr int kMostLines = 22;    // of a report, on a screen of 720 points
constexpr int kLetters = 60;      // of a line, before the box breaks it
constexpr int kBreath = 30;       // milliseconds between two signs of life
constexpr int kPatience = 5000;   // milliseconds that the tool has to clear up in

struct Esito
{
    int status = 1;
    QString rapporto; // what was read and written
    QString motivo;   // why it failed
};

// A name with this ending after that of `file`, or with a number where it is taken.
QString nomeLibero(const QDir &folder, const QString &file, const QString &ending)
{
    const QString base = QFileInfo(file).completeBaseName();
    QString name = base + ending;
    for (int number = 2; QFileInfo::exists(folder.filePath(name)); ++number)
        name = QStringLiteral("%1-%2%3").arg(base).arg(number).arg(ending);
    return name;
}

QString strumento()
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("cibra-archivio"));
}

// The tool says who it is before each of its words.
QString motivoDi(const QByteArray &told)
{
    const QString words = QString::fromUtf8(told).trimmed();
    const QString name = QStringLiteral("cibra-archivio: ");
    return words.startsWith(name) ? words.mid(name.size()) : words;
}

Esito esitoDi(QProcess &tool)
{
    return {tool.exitCode(), QString::fromUtf8(tool.readAllStandardOutput()).trimmed(),
            motivoDi(tool.readAllStandardError())};
}

// The tool takes its unfinished file away with it; one that was done already stays done.
Esito lascia(QProcess &tool)
{
    tool.terminate();
    if (!tool.waitForFinished(kPatience))
        tool.kill();
    tool.waitForFinished();
    if (tool.exitStatus() == QProcess::NormalExit)
        return esitoDi(tool);
    return {1, {}, QStringLiteral("L'importazione è stata interrotta con Esc. Niente è stato importato")};
}

Esito importa(ModNetServer &modulo, const QString &from, const QString &to, const QString &password)
{
    modulo.mondo.schermo.setMousePointer(MousePointer::Hourglass);
    const PuntatoreLibero afterwards(modulo.mondo.schermo);
    QProcess tool;
    tool.start(strumento(), {QStringLiteral("importa"), from, to});
    if (!tool.waitForStarted())
        return {1, {}, QStringLiteral("Il programma \"%1\" non si può avviare").arg(strumento())};
    // The tool reads its input only where the file has a password; a line that nobody reads is no failure.
    if (!password.isEmpty())
        tool.write(password.toLocal8Bit() + '\n');
    tool.closeWriteChannel();
    while (!tool.waitForFinished(kBreath) && tool.state() != QProcess::NotRunning)
        if (modulo.mondo.schermo.breathe())
            return lascia(tool);
    if (tool.exitStatus() != QProcess::NormalExit)
        return {1, {}, QStringLiteral("L'importazione si è interrotta. Niente è stato importato")};
    return esitoDi(tool);
}

bool vuoleImportare(ModNetServer &modulo, const QString &file, const QString &nuovo)
{
    return modulo.mondo.dialoghi.MsgBox(
               QStringLiteral(
                   "Il file \"%1\" è un archivio del vecchio formato .mdb.\nVuoi importarlo nel nuovo archivio "
                   "\"%2\"?\nIl vecchio file resta com'è.")
                   .arg(file, nuovo),
               MsgFlags::YesNoInformation, kTitle) == MsgAnswer::Si;
}

Esito importaConPassword(ModNetServer &modulo, const QString &from, const QString &to)
{
    const Esito first = importa(modulo, from, to, {});
    if (first.status != kPasswordAsked)
        return first;
    const QString password = modulo.mondo.dialoghi.InputBox(kDomandaPassword, kDomandaPassword, true);
    return password.isEmpty() ? first : importa(modulo, from, to, password);
}

// Of a table nothing of which lacks, the counts say nothing that one sentence does not.
bool tabellaIntera(const QString &line)
{
    static const QRegularExpression counts(QStringLiteral(": righe lette (\\d+), scritte \\1$"));
    return counts.match(line).hasMatch();
}

// Lines of the box, which breaks those that are too long for it.
int alte(const QStringList &lines)
{
    int height = 0;
    for (const QString &line : lines)
        height += 1 + int(std::max<qsizetype>(0, line.size() - 1)) / kLetters;
    return height;
}

// The report as far as the box has room for it, and where the whole of it is.
QString daMostrare(const QDir &folder, const QString &name, const QString &report)
{
    const QString brief = RapportoInBreve(report);
    if (brief == report)
        return report;
    const QString told = nomeLibero(folder, name, QStringLiteral("-importazione.txt"));
    try {
        TextWriter file(folder.filePath(told));
        for (const QString &line : report.split(u'\n'))
            file.line(line);
        file.close();
    } catch (const Failure &failure) {
        return brief + QStringLiteral("\n\nIl resoconto intero non si può scrivere: %1").arg(failure.words());
    }
    return brief + QStringLiteral("\n\nIl resoconto intero è in \"%1\".").arg(told);
}

} // namespace

bool EArchivioJet(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && isJetFile(file.read(kArchiveSign));
}

QString RapportoInBreve(const QString &rapporto)
{
    QStringList lines = rapporto.split(u'\n');
    if (alte(lines) <= kMostLines)
        return rapporto;
    lines.removeIf(tabellaIntera);
    lines.insert(std::min<qsizetype>(1, lines.size()),
                 QStringLiteral("Di ogni tabella sono scritte tutte le righe lette"));
    qsizetype dropped = 0;
    for (; lines.size() > 1 && alte(lines) > kMostLines - 1; ++dropped)
        lines.removeLast();
    if (dropped > 0)
        lines += QStringLiteral("... e altre righe: %1").arg(dropped);
    return lines.join(u'\n');
}

QString OffriImportazione(ModNetServer &modulo, const QString &cartella, const QString &file)
{
    const QDir folder(cartella);
    const QString name = nomeLibero(folder, file, QStringLiteral(".db"));
    if (!vuoleImportare(modulo, file, name))
        return {};
    const Esito result = importaConPassword(modulo, folder.filePath(file), folder.filePath(name));
    if (result.status != kDone) {
        modulo.mondo.dialoghi.MsgBox(result.motivo, MsgFlags::Critical, kTitle);
        return {};
    }
    modulo.mondo.dialoghi.MsgBox(
        QStringLiteral("Il nuovo archivio è \"%1\".\n\n%2").arg(name, daMostrare(folder, name, result.rapporto)),
        MsgFlags::Information, kTitle);
    return name;
}
