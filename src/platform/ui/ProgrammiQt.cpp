#include "platform/ui/ProgrammiQt.h"

#include "platform/Failure.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <QUrl>

namespace {

// Programs to try by name, best first, where the desktop itself has no answer.
QStringList candidates(ProgramKind kind)
{
    switch (kind) {
    case ProgramKind::Calculator:
        return {QStringLiteral("gnome-calculator"), QStringLiteral("kcalc"),         QStringLiteral("galculator"),
                QStringLiteral("mate-calc"),        QStringLiteral("qalculate-gtk"), QStringLiteral("xcalc")};
    case ProgramKind::TextViewer:
        return {QStringLiteral("gnome-text-editor"),
                QStringLiteral("gedit"),
                QStringLiteral("kate"),
                QStringLiteral("kwrite"),
                QStringLiteral("mousepad"),
                QStringLiteral("xed"),
                QStringLiteral("pluma"),
                QStringLiteral("featherpad")};
    case ProgramKind::Page:
        return {QStringLiteral("x-www-browser"), QStringLiteral("firefox"), QStringLiteral("firefox-esr"),
                QStringLiteral("chromium")};
    case ProgramKind::Mail:
        return {QStringLiteral("thunderbird"), QStringLiteral("evolution"), QStringLiteral("kmail")};
    case ProgramKind::Files:
        return {QStringLiteral("nautilus"), QStringLiteral("dolphin"), QStringLiteral("thunar"),
                QStringLiteral("nemo"),     QStringLiteral("caja"),    QStringLiteral("pcmanfm")};
    case ProgramKind::Printer:
        break; // no program: the toolkit's dialog
    }
    return {};
}

bool startFirst(const QStringList &names, const QStringList &arguments)
{
    for (const QString &name : names) {
        const QString program = QStandardPaths::findExecutable(name);
        if (!program.isEmpty() && QProcess::startDetached(program, arguments))
            return true;
    }
    return false;
}

// A file or folder of this machine, or an address.
QUrl addressOf(ProgramKind kind, const QString &target)
{
    const QFileInfo file(target);
    if (file.exists())
        return QUrl::fromLocalFile(file.absoluteFilePath());
    const QUrl url(target);
    if (url.scheme().size() > 1) // one letter is a drive
        return url;
    if (kind == ProgramKind::Mail)
        return QUrl(QStringLiteral("mailto:") + target);
    throw Failure::usual(FailureNumber::FileNotFound, target);
}

} // namespace

void ProgrammiQt::start(ProgramKind kind, const QString &target)
{
    bool started = false;
    if (kind == ProgramKind::Printer) {
        target.isEmpty() ? m_stampante.imposta() : m_stampante.stampa(target);
        return;
    }
    if (kind == ProgramKind::Calculator) {
        started = startFirst(candidates(kind), {});
    } else {
        const QUrl url = addressOf(kind, target);
        started = QDesktopServices::openUrl(url) ||
                  startFirst(candidates(kind), {url.isLocalFile() ? url.toLocalFile() : url.toString()});
    }
    if (!started) {
        const QString what = kind == ProgramKind::Calculator ? QStringLiteral("la calcolatrice") : target;
        throw Failure(FailureNumber::FileNotFound,
                      QStringLiteral("Non è stato trovato nessun programma per aprire: ") + what);
    }
}
