// The program, driven by a script.
#include "Options.h"
#include "platform/environment/Dado.h"
#include "platform/environment/Orologio.h"
#include "platform/ui/Tema.h"
#include "Player.h"
#include "shell/forms/Program.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTextStream>

#include <cstdio>
#include <memory>

namespace {

constexpr int kBadCall = 2;

QString readScript(const QString &path)
{
    QFile file(path);
    const bool opened = path.isEmpty() ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!opened)
        throw UsageError{QStringLiteral("the script cannot be read: ") + path};
    return QString::fromUtf8(file.readAll());
}

// Standard error is for what is wrong with the script's run, not for what a screen without a display cannot do.
void passMessage(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (message.startsWith(QStringLiteral("This plugin does not support")) ||
        message.startsWith(QStringLiteral("QStandardPaths: XDG_RUNTIME_DIR")))
        return;
    std::fprintf(stderr, "%s\n", qPrintable(message));
}

std::unique_ptr<Orologio> clockOf(const Options &options)
{
    if (!options.today.isValid())
        return std::make_unique<OrologioDiSistema>();
    return std::make_unique<OrologioFermo>(QDateTime(options.today, QTime(12, 0)));
}

int play(const Options &options, std::vector<Command> commands)
{
    const std::unique_ptr<Orologio> clock = clockOf(options);
    RecordedProgrammi programs;
    CountingSchermo screen;
    DadoFisso dice;
    Program program(ProgramFolder(options.folder), programs, *clock, dice, screen);

    Stage stage;
    stage.run = [&program] { program.run(); };
    stage.end = [&program] { program.end(); };
    stage.programs = &programs;
    stage.screen = &screen;
    PlayerSettings settings;
    settings.scriptName = options.scriptName();
    settings.pictureFolder = QDir::currentPath(); // the program goes to its own folder
    settings.waitForHandler = options.timeout * 1000;
    QTextStream out(stdout);
    QTextStream err(stderr);
    return Player(std::move(commands), stage, settings, out, err).play();
}

} // namespace

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    QString script;
    try {
        const bool hasDisplay = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
        const Options options = readOptions(arguments, hasDisplay);
        script = options.scriptName();
        std::vector<Command> commands = parseScript(readScript(options.script));
        if (options.offscreen)
            qputenv("QT_QPA_PLATFORM", "offscreen");
        qInstallMessageHandler(passMessage);
        QApplication application(argc, argv);
        Tema::apply(application);
        return play(options, std::move(commands));
    } catch (const UsageError &error) {
        std::fprintf(stderr, "%s\n%s\n", qPrintable(error.words), qPrintable(usage()));
    } catch (const ScriptError &error) {
        std::fprintf(stderr, "%s:%d: %s\n", qPrintable(script), error.line, qPrintable(error.words));
    }
    return kBadCall;
}
