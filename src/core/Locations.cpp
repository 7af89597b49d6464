#include "core/Locations.h"

#include "core/ErrorLog.h"
#include "platform/Failure.h"
#include "platform/text/TextFile.h"

#include <QFileInfo>

namespace {

void clearLocations(ModNetServer &modulo)
{
    modulo.PercorsoDbSistema.clear();
    modulo.PercorsoDbDati.clear();
    modulo.NomeDbDati.clear();
    modulo.CartellaDbDati.clear();
}

// The folder of the data archive: its path less the name and the sign before it; empty where that makes no sense.
QString folderOf(const QString &path, const QString &name)
{
    const qsizetype length = path.size() - name.size() - 1;
    return length > 0 ? path.left(length) : QString();
}

void readLocations(ModNetServer &modulo)
{
    TextReader reader(modulo.mondo.folder.resolve(kGestioneRete));
    for (int number = 1; !reader.atEnd(); ++number) {
        modulo.RigaLetta = reader.line();
        if (number == 2)
            modulo.PercorsoDbSistema = modulo.RigaLetta;
        else if (number == 4)
            modulo.PercorsoDbDati = modulo.RigaLetta;
        else if (number == 5)
            modulo.NomeDbDati = modulo.RigaLetta;
    }
    modulo.CartellaDbDati = folderOf(modulo.PercorsoDbDati, modulo.NomeDbDati);
}

bool isFromRoot(const QString &path)
{
    return path.startsWith(u'/') || path.startsWith(u'\\');
}

bool archiveExists(const ModNetServer &modulo, const QString &path)
{
    return !path.isEmpty() && QFileInfo(PercorsoNativo(modulo, path)).isFile();
}

// One reading of the locations, and the dialog where no data archive comes of it. Tells whether the search is over.
bool findArchives(ModNetServer &modulo)
{
    clearLocations(modulo);
    bool hasSystem = false;
    if (modulo.mondo.folder.fileExists(kGestioneRete)) {
        readLocations(modulo);
        // The empty line that the dialog writes stands for no system archive, and is as good as one.
        hasSystem = modulo.PercorsoDbSistema.isEmpty() || archiveExists(modulo, modulo.PercorsoDbSistema);
        if (hasSystem && archiveExists(modulo, modulo.PercorsoDbDati))
            return true;
    }
    modulo.schermate.mostraGestioneRete();
    if (!hasSystem)
        AssicuraCartellaIni(modulo);
    return false;
}

[[noreturn]] void sayGoodbye(ModNetServer &modulo)
{
    modulo.mondo.dialoghi.MsgBox(
        QStringLiteral("Su conferma dell'utente la procedura non ha creato il files di sistema "
                       "per la gestione rete e non può andare avanti"),
        MsgFlags::Information, QStringLiteral("By by!!"));
    TerminaProgramma();
}

// Opens a new connection in `connection`, which holds it also where that fails.
OpenResult openNew(std::unique_ptr<Connection> &connection, const QString &path, const QString &password = {})
{
    connection = std::make_unique<Connection>();
    return connection->Open(path, password);
}

// The status bar belongs to the main window, whose load this brings about. A failure of that load is no failure of the
// archive, and shows again when the window opens.
void showPath(ModNetServer &modulo, const QString &Percorso)
{
    try {
        modulo.schermate.percorsoNellaBarra(Percorso);
    } catch (const Failure &) {
        return;
    }
}

void openWithPassword(ModNetServer &modulo, const QString &path, const OpenResult &refused)
{
    OpenResult result = refused;
    modulo.RigaLetta = modulo.mondo.dialoghi.InputBox(kDomandaPassword, kDomandaPassword, true);
    if (!modulo.RigaLetta.isEmpty())
        result = openNew(modulo.ConnessioneDati, path, modulo.RigaLetta);
    modulo.RigaLetta.clear(); // it is asked for at each start and kept nowhere
    if (result)
        return;
    modulo.mondo.dialoghi.MsgBox(QStringLiteral("Database protetto con password\n") + result.words, MsgFlags::Critical,
                                 QStringLiteral("Password errata"));
    TerminaProgramma();
}

void deleteLocations(const ProgramFolder &folder)
{
    if (!folder.fileExists(kGestioneRete))
        return;
    try {
        folder.deleteFile(kGestioneRete);
    } catch (const Failure &) {
        return; // the dialog writes it anew all the same
    }
}

// The box says no more than that; the cause is in the log and on the background screen.
void resetLocations(ModNetServer &modulo, const OpenResult &result)
{
    ScriviLogErrore(modulo, QStringLiteral("ApriDbDati "), Failure(FailureNumber(result.number), result.words));
    modulo.mondo.dialoghi.MsgBox(QStringLiteral("Reset della procedura - "), MsgFlags::Critical,
                                 QStringLiteral("Errore di COnnessione al Database"));
    deleteLocations(modulo.mondo.folder);
    modulo.PercorsoDbSistema.clear();
    modulo.PercorsoDbDati.clear();
    modulo.schermate.mostraGestioneRete();
    ApriConnessioni(modulo);
}

} // namespace

QString PercorsoNativo(const ModNetServer &modulo, const QString &percorso)
{
    return isFromRoot(percorso) ? ProgramFolder::resolveAbsolute(percorso) : modulo.mondo.folder.resolve(percorso);
}

void LeggiPercorsiDb(ModNetServer &modulo)
{
    while (!findArchives(modulo)) {
        if (!modulo.mondo.folder.fileExists(kGestioneRete))
            sayGoodbye(modulo);
    }
}

void ApriConnessioni(ModNetServer &modulo)
{
    AssicuraCartellaIni(modulo);
    const QString system = QStringLiteral("\\NetServer.Mdb");
    const ProgramFolder &folder = modulo.mondo.folder;
    if (!modulo.PercorsoDbSistema.isEmpty())
        ApriDbSistema(modulo, modulo.PercorsoDbSistema);
    else if (folder.fileExists(system))
        ApriDbSistema(modulo, folder.resolve(system));

    if (modulo.PercorsoDbDati.isEmpty() && !modulo.NomeDbDati.isEmpty() && folder.fileExists(modulo.NomeDbDati))
        ApriDbDati(modulo, folder.resolve(modulo.NomeDbDati));
    else
        ApriDbDati(modulo, modulo.PercorsoDbDati);
}

void ApriDbSistema(ModNetServer &modulo, const QString &Percorso)
{
    if (openNew(modulo.ConnessioneSistema, PercorsoNativo(modulo, Percorso)))
        return;
    const QString mended = QString(Percorso).replace(QStringLiteral("\\\\"), QStringLiteral("\\"));
    if (mended == Percorso)
        return;
    // Nothing is reported: the program runs without a system archive as well.
    openNew(modulo.ConnessioneSistema, PercorsoNativo(modulo, mended));
}

void ApriDbDati(ModNetServer &modulo, const QString &Percorso)
{
    if (modulo.ConnessioneDati)
        return;
    const QString path = PercorsoNativo(modulo, Percorso);
    const OpenResult result = openNew(modulo.ConnessioneDati, path);
    showPath(modulo, Percorso);
    switch (result.outcome) {
    case OpenOutcome::Aperto:
        return;
    case OpenOutcome::PasswordRichiesta:
        return openWithPassword(modulo, path, result);
    case OpenOutcome::Errore:
        return resetLocations(modulo, result);
    }
}

void AssicuraCartellaIni(ModNetServer &modulo)
{
    AssicuraCartellaIni(modulo.mondo.folder);
}

void AssicuraCartellaIni(const ProgramFolder &folder)
{
    if (folder.folderExists(QStringLiteral("\\INI")))
        return;
    folder.makeFolder(QStringLiteral("\\INI"));
    TextWriter writer(folder.resolve(QStringLiteral("\\INI\\SDIForm.ini")));
    writer.line(QStringLiteral("[Stile]"));
    writer.line(QStringLiteral("StileMenu = 0"));
    writer.close();
}

void ScriviGestioneRete(ModNetServer &modulo, const QString &folder, const QString &file)
{
    ScriviGestioneRete(modulo.mondo.folder, modulo.NetProc ? modulo.PercorsoDbSistema : QString(), folder, file);
}

void ScriviGestioneRete(const ProgramFolder &programma, const QString &sistema, const QString &folder,
                        const QString &file)
{
    const QString rule(53, u'#');
    TextWriter writer(programma.resolve(kGestioneRete));
    writer.line(QStringLiteral("[Gestione database]"));
    writer.line(sistema);
    writer.line(QStringLiteral("[Gestione database Aziendale]"));
    writer.line(folder + u'\\' + file);
    writer.line(file);
    writer.line({});
    writer.line(rule);
    writer.line(QStringLiteral("Se non si riesce ad avere la connessione con il database selezionato"));
    writer.line(QStringLiteral("1) Eseguire Mdac_Typ.exe"));
    writer.line(QStringLiteral("2) Provare a togliere uno dei due slasc che appaiono nell'indirizzo.."));
    writer.line(QStringLiteral("   esempio: da e:\\\\Collegato\\Rete correggi in e:\\Collegato\\Rete "));
    writer.line(QStringLiteral("   e salva il file GestioneRete.ini"));
    writer.line(QStringLiteral("3) Installare l'ultimo service pack del sistema operativo"));
    writer.line(rule);
    writer.close();
}
