#include "shell/Main.h"

#include "core/CopieDiSicurezza.h"
#include "core/ErrorLog.h"
#include "core/Locations.h"
#include "platform/text/Dates.h"
#include "platform/text/TextFile.h"

#include <QDir>

namespace {

void avanzaBarra(SchermateDiAvvio &schermate)
{
    schermate.impostaBarra(PassoBarra(schermate.valoreBarra(), schermate.massimoBarra()));
}

void vaiNellaCartella(const ProgramFolder &folder)
{
    if (!QDir::setCurrent(folder.path()))
        throw Failure(FailureNumber::PathNotFound,
                      QStringLiteral("La cartella del programma non esiste o non può essere aperta"));
}

void assicuraDocumenti(const ProgramFolder &folder)
{
    if (folder.folderExists(QStringLiteral("\\Documenti")))
        return;
    folder.makeFolder(QStringLiteral("\\documenti"));
    TextWriter log(folder.resolve(QStringLiteral("\\documenti\\Log.ini")));
    log.line(QStringLiteral("Non Calcellare"));
    log.close();
}

bool sfondoEscluso(ModNetServer &modulo)
{
    const ProgramFolder &folder = modulo.mondo.folder;
    const QString told = QStringLiteral("\\INI\\SfondoVisible.ini");
    if (!folder.fileExists(told))
        return false;
    TextReader reader(folder.resolve(told));
    modulo.RigaLetta = reader.atEnd() ? QString() : reader.line();
    return modulo.RigaLetta.startsWith(QLatin1Char('F'));
}

void preparaCartelle(ModNetServer &modulo, SchermateDiAvvio &schermate)
{
    const ProgramFolder &folder = modulo.mondo.folder;
    vaiNellaCartella(folder);
    AssicuraCartellaIni(modulo);
    avanzaBarra(schermate);
    assicuraDocumenti(folder);
    avanzaBarra(schermate);
}

void apriDatabase(ModNetServer &modulo, SchermateDiAvvio &schermate)
{
    modulo.TestoAttesa1 = QStringLiteral("Apertura Connessione Database,");
    modulo.TestoAttesa2 = QStringLiteral("Attendere prego ....");
    schermate.scriviAttesa(modulo.TestoAttesa1, modulo.TestoAttesa2);
    avanzaBarra(schermate);
    if (!modulo.mondo.folder.fileExists(kGestioneRete))
        modulo.schermate.mostraGestioneRete();
    LeggiPercorsiDb(modulo);
    modulo.ConnessioneDsn = false;
    ApriConnessioni(modulo);
    CopiaDiSicurezza(modulo);
    avanzaBarra(schermate);
}

void avvia(ModNetServer &modulo, SchermateDiAvvio &schermate)
{
    modulo.TestoAttesa1 = QStringLiteral("Attendere prego,");
    modulo.TestoAttesa2 = QStringLiteral("Caricamento procedura in corso");
    schermate.mostraMessaggi();
    modulo.DataAvvio = TestoData(modulo.mondo.orologio.today());
    preparaCartelle(modulo, schermate);
    if (sfondoEscluso(modulo))
        schermate.nascondiSfondo();
    else
        schermate.mostraSfondo();
    apriDatabase(modulo, schermate);
    vaiNellaCartella(modulo.mondo.folder);
    avanzaBarra(schermate);
    schermate.impostaBarra(schermate.massimoBarra());
    schermate.chiudiMessaggi();
    schermate.mostraMenu();
    TerminaProgramma();
}

void mostraAvvioFallito(ModNetServer &modulo, const Failure &failure)
{
    QString text = QStringLiteral("Il programma non può partire.\n\n") + failure.words();
    const FailureNumber number = failure.number();
    if (number == FailureNumber::PathAccess || number == FailureNumber::PathNotFound)
        text += QStringLiteral("\n\nCartella del programma: ") + QDir::toNativeSeparators(modulo.mondo.folder.path()) +
                QStringLiteral("\nControllare che la cartella esista, che vi si possa scrivere e che il disco non sia "
                               "pieno.");
    modulo.mondo.dialoghi.MsgBox(text, MsgFlags::Critical, QString());
}

} // namespace

int PassoBarra(int value, int maximum)
{
    return maximum >= value + 20 ? value + 20 : value;
}

void Main(ModNetServer &modulo, SchermateDiAvvio &schermate)
{
    try {
        avvia(modulo, schermate);
    } catch (const Failure &failure) {
        ScriviLogErrore(modulo, QStringLiteral("Main "), failure);
        mostraAvvioFallito(modulo, failure);
    }
}
