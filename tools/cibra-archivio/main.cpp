// cibra-archivio: makes, checks and protects archives from the command line.
#include "ChiediPassword.h"
#include "ComandoManutenzione.h"
#include "CreaArchivio.h"
#include "platform/Failure.h"
#include "PreparaCartella.h"
#include "ProteggiArchivio.h"
#include "VerificaArchivio.h"

#include <QCoreApplication>
#include <QDate>
#include <QStringList>

#include <cstdio>

namespace {

constexpr int kBene = 0;
constexpr int kGuasto = 1; // the command could not be done, or the archive has faults
constexpr int kUsoErrato = 2;

constexpr const char *kAiuto = R"(uso: cibra-archivio COMANDO FILE

  nuovo FILE        crea un archivio vuoto, con tutte le tabelle
  esempio FILE      crea un archivio con il catalogo di esempio
  sistema FILE      crea l'archivio di sistema (NetServer.Mdb), senza messaggi
  prepara CARTELLA  prepara una cartella del programma: l'archivio di esempio,
                    NetServer.Mdb e INI\GestioneRete.INI; quello che c'è resta
  verifica FILE     controlla formato, tabelle, colonne e integrità
  proteggi FILE     dà una password all'archivio (chiesta due volte)

  manutenzione COMANDO FILE
                    esegue su un archivio uno dei comandi per i testi dei piatti:
    esporta         scrive in Piatti.txt i testi di tutti i piatti
    importa         riempie Alimenti con gli alimenti letti da Piatti.txt
    abbina          aggiunge ad alimenti2 le righe di Alimenti, a due a due
    gruppi          aggiunge a GruppoPiattiSostituiti i sostituti dei testi
    sostituti       aggiunge a SostituisciMaster i sostituti dei testi
    rapporto        scrive in Piatti.txt i piatti di Nocorrispondenza
    calorie         copia in Piatti le calorie di newPiatti
Piatti.txt sta in prova/TestiCibra della cartella del programma.

Nessun comando sovrascrive un file che c'è già; proteggi sostituisce l'archivio
solo quando la copia protetta è controllata. Una password si scrive al
terminale, oppure arriva come riga dell'ingresso.

Stato di uscita: 0 fatto, 1 non riuscito o archivio con difetti, 2 uso errato.
)";

void scrivi(FILE *stream, const QString &text)
{
    std::fputs(qUtf8Printable(text + "\n"), stream);
}

int verifica(const QString &path)
{
    Verifica result = verificaArchivio(path);
    if (result.esito == Verifica::Esito::PasswordRichiesta) {
        const std::optional<QString> password = chiediPassword("Password: ");
        if (password && !password->isEmpty())
            result = verificaArchivio(path, *password);
    }
    switch (result.esito) {
    case Verifica::Esito::InOrdine:
        scrivi(stdout, QStringLiteral("L'archivio \"%1\" è in ordine.").arg(path));
        return kBene;
    case Verifica::Esito::PasswordRichiesta:
        scrivi(stdout, "L'archivio è protetto e la password manca o non è quella giusta");
        return kGuasto;
    case Verifica::Esito::Guasto:
        break;
    }
    for (const QString &fault : std::as_const(result.guasti))
        scrivi(stdout, fault);
    return kGuasto;
}

int proteggi(const QString &path)
{
    const std::optional<QString> first = chiediPassword("Nuova password: ");
    const std::optional<QString> second = chiediPassword("Ancora la stessa: ");
    if (!first || !second)
        throw Failure(FailureNumber::InputPastEnd, "La password va data due volte");
    if (*first != *second)
        throw Failure(FailureNumber::NotPermitted, "Le due password sono diverse");
    proteggiArchivio(path, *first);
    scrivi(stdout, QStringLiteral("L'archivio \"%1\" è protetto.").arg(path));
    return kBene;
}

int esegui(const QString &command, const QString &path)
{
    if (command == "nuovo")
        creaArchivioNuovo(path);
    else if (command == "esempio")
        creaArchivioEsempio(path, QDate::currentDate());
    else if (command == "sistema")
        creaArchivioSistema(path);
    else if (command == "prepara")
        preparaCartella(path, QDate::currentDate());
    else if (command == "verifica")
        return verifica(path);
    else if (command == "proteggi")
        return proteggi(path);
    else
        return kUsoErrato;
    return kBene;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.size() == 1 && (arguments[0] == "--help" || arguments[0] == "-h")) {
        std::fputs(kAiuto, stdout);
        return kBene;
    }
    int status = kUsoErrato;
    try {
        if (arguments.size() == 2 && !arguments[1].isEmpty())
            status = esegui(arguments[0], arguments[1]);
        else if (arguments.size() == 3 && arguments[0] == "manutenzione")
            status = manutenzione(arguments[1], arguments[2]) ? kBene : kUsoErrato;
    } catch (const Failure &failure) {
        scrivi(stderr, "cibra-archivio: " + failure.words());
        return kGuasto;
    }
    if (status == kUsoErrato)
        std::fputs(kAiuto, stderr);
    return status;
}
