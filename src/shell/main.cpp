// cibra [[--folder] PROGRAM FOLDER]
#include "platform/ui/ProgrammiQt.h"
#include "platform/ui/SchermoQt.h"
#include "platform/ui/Tema.h"
#include "shell/forms/Program.h"

#include <QApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

// The folder named on the command line, else the usual one, which is made where it is missing.
ProgramFolder programFolder(QStringList arguments)
{
    arguments.removeFirst();
    arguments.removeAll(QStringLiteral("--folder"));
    if (!arguments.isEmpty())
        return ProgramFolder(arguments.first());
    const QString usual = ProgramFolder::usual(QCoreApplication::applicationDirPath());
    QDir().mkpath(usual);
    return ProgramFolder(usual);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("cibra"));
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
