#include "shell/ConfermaDatabase.h"

#include "core/Locations.h"
#include "platform/text/TextFile.h"
#include "shell/OffriImportazione.h"

#include <QDir>

namespace {

enum class Collegamento
{
    Dsn,
    Diretto,
    Annullato
};

Collegamento chiediCollegamento(ModNetServer &modulo)
{
    MsgBoxEx box;
    box.title = QStringLiteral("Attenzione !!");
    box.body = QStringLiteral("La procedura deve attivare il collegamento DSN \n"
                              "oppure la connessione Diretta al Database\n"
                              "appena selezionato?");
    box.buttons = {QStringLiteral("DSN"), QStringLiteral("Diretta"), QStringLiteral("Annulla")};
    box.buttonCode = MsgBoxEx::ThreeButtons;
    box.picture = Immagine::Conferma;
    switch (modulo.mondo.dialoghi.Msg1(box)) {
    case MsgBoxEx::First:
        return Collegamento::Dsn;
    case MsgBoxEx::Third:
        return Collegamento::Annullato;
    default:
        return Collegamento::Diretto;
    }
}

void avvisa(ModNetServer &modulo, const QString &title, const QString &body, int picture)
{
    MsgBoxEx box;
    box.title = title;
    box.body = body;
    box.buttons = {QStringLiteral("OK!")};
    box.picture = picture;
    modulo.mondo.dialoghi.Msg1(box);
}

void dimenticaPercorsi(ModNetServer &modulo)
{
    AssicuraCartellaIni(modulo);
    if (modulo.mondo.folder.fileExists(kGestioneRete))
        modulo.mondo.folder.deleteFile(kGestioneRete);
}

void avvisaNessunaScelta(ModNetServer &modulo)
{
    modulo.mondo.dialoghi.MsgBox(QStringLiteral("L'operatore non ha effettuato scelta \nbye bye"),
                                 MsgFlags::Information, QStringLiteral("Procedura terminata!"));
}

// Single-user: the file says so each time, though nothing reads it.
void scriviNetServerIni(ModNetServer &modulo)
{
    AssicuraCartellaIni(modulo);
    TextWriter writer(modulo.mondo.folder.resolve(QStringLiteral("\\INI\\NetServer.ini")));
    writer.line(QStringLiteral("NetProc = false"));
    writer.close();
    modulo.NetProc = false;
}

DopoConferma registra(ModNetServer &modulo, const QString &cartella, const QString &scelto)
{
    scriviNetServerIni(modulo);
    if (scelto.isEmpty()) {
        avvisa(modulo, QStringLiteral("Nessuna selezione ...."),
               QStringLiteral("Non è stato selezionato nessun Database Aziendale, Riprova..."), Immagine::Rifiuto);
        return DopoConferma::LasciaAperto;
    }
    // An old archive cannot be used as it is; without the new one another choice is due.
    const bool old = EArchivioJet(QDir(cartella).filePath(scelto));
    const QString file = old ? OffriImportazione(modulo, cartella, scelto) : scelto;
    if (file.isEmpty())
        return DopoConferma::LasciaAperto;
    AssicuraCartellaIni(modulo);
    ScriviGestioneRete(modulo, cartella, file);
    LeggiPercorsiDb(modulo);
    if (!modulo.PercorsoDbDati.isEmpty() && !modulo.PercorsoDbSistema.isEmpty()) {
        avvisa(modulo, QStringLiteral("O.K.!!"),
               QStringLiteral("Registrazione effettuata con successo,\nDataSystem     ") + modulo.PercorsoDbSistema +
                   QStringLiteral("\nDataAziendale ") + modulo.PercorsoDbDati,
               Immagine::Programmatore);
    }
    return DopoConferma::ChiudiDialogo;
}

} // namespace

DopoConferma ConfermaDatabase(ModNetServer &modulo, const QString &cartella, const QString &file)
{
    const ProgramFolder &folder = modulo.mondo.folder;
    if (folder.fileExists(QStringLiteral("\\INI\\GestOdbc.ini")) ||
        folder.fileExists(QStringLiteral("\\INI\\GestNetOdbc.ini"))) {
        switch (chiediCollegamento(modulo)) {
        case Collegamento::Dsn:
            dimenticaPercorsi(modulo);
            return DopoConferma::ChiudiDialogo;
        case Collegamento::Annullato:
            avvisaNessunaScelta(modulo);
            return DopoConferma::ChiudiDialogo;
        case Collegamento::Diretto:
            break;
        }
    }
    return registra(modulo, cartella, file);
}
