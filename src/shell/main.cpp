// cibra [--help | --version | [--folder] PROGRAM FOLDER]
#include "platform/ui/DialoghiQt.h"
#include "platform/ui/ProgrammiQt.h"
#include "platform/ui/SchermoQt.h"
#include "platform/ui/Tema.h"
#include "shell/forms/Program.h"
#include "shell/PrimoAvvio.h"

#include <QApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <cstdio>

namespace {

constexpr const char *kAiuto = R"(uso: cibra [CARTELLA]

Apre il programma sulla cartella del programma CARTELLA. Senza di essa, la
cartella è quella dell'eseguibile se si può scrivere, altrimenti Cibra nella
cartella dei dati dell'utente.

  --help     mostra questo aiuto
  --version  mostra la versione
)";

// Answers what needs no window; false where the program is to start.
bool answered(int count, char **arguments)
{
    const QByteArray only = count == 2 ? arguments[1] : "";
    if (only == "--help" || only == "-h")
        std::fputs(kAiuto, stdout);
    else if (only == "--version")
        std::puts("cibra " CIBRA_VERSION);
    else
        return false;
    return true;
}

// An installed program begins in a folder that nobody made ready.
void offerExample(const ProgramFolder &folder)
{
    QApplication::setQuitOnLastWindowClosed(false); // the box is no last window: the start goes on
    FormHost host;
    DialoghiQt dialoghi(host, Program::name());
    OffriEsempio(folder, dialoghi, QCoreApplication::applicationDirPath() + QStringLiteral("/cibra-archivio"));
}

// The folder named on the command line, else the usual one, which is made where it is missing.
ProgramFolder programFolder(QStringList arguments)
{
    arguments.removeFirst();
    arguments.removeAll(QStringLiteral("--folder"));
    if (!arguments.isEmpty())
        return ProgramFolder(arguments.first());
    const QString own = QCoreApplication::applicationDirPath();
    const ProgramFolder usual(ProgramFolder::usual(own));
    QDir().mkpath(usual.path());
    if (usual.path() != ProgramFolder(own).path())
        offerExample(usual);
    return usual;
}

} // namespace

int main(int argc, char **argv)
{
    if (answered(argc, argv))
        return 0;
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("cibra"));
    QApplication::setDesktopFileName(QStringLiteral("cibra"));
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    QTranslator translator; // the toolkit's own words, where its Italian texts are installed
    if (translator.load(QLocale(), QStringLiteral("qtbase"), QStringLiteral("_"),
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&translator);
    Tema::apply(application);

    ProgrammiQt programmi;
    OrologioDiSistema orologio;
    DadoFisso dado;
    SchermoQt schermo;
    Program program(programFolder(QApplication::arguments()), programmi, orologio, dado, schermo);
    program.run();
    return 0;
}
