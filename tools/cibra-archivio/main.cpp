// cibra-archivio: makes, imports, checks, repairs, protects and restores archives, and runs the maintenance commands on
// them, from the command line.
#include "ChiediPassword.h"
#include "ComandoManutenzione.h"
#include "CreaArchivio.h"
#include "ImportaArchivio.h"
#include "LeggiMdb.h"
#include "platform/Failure.h"
#include "PreparaCartella.h"
#include "ProteggiArchivio.h"
#include "RipristinaArchivio.h"
#include "SproteggiArchivio.h"
#include "VerificaArchivio.h"

#include <QCoreApplication>
#include <QDate>
#include <QDateTime>
#include <QFileInfo>
#include <QStringList>

#include <cstdio>

namespace {

constexpr int kBene = 0;
constexpr int kGuasto = 1; // the command could not be done, or the archive has faults
constexpr int kUsoErrato = 2;
constexpr int kPassword = 3; // the file to be imported has a password that lacks or is another one
constexpr int kInUso = 4;    // another program has the archive that is to be checked open

const QString kLettura = QStringLiteral("leggi-mdb"); // the reading process of importa, nothing for people

constexpr const char *kAiuto = R"(uso: cibra-archivio COMANDO FILE
     cibra-archivio importa VECCHIO.mdb NUOVO
     cibra-archivio verifica --ripara FILE
     cibra-archivio ripristina COPIA ARCHIVIO

  nuovo FILE        crea un archivio vuoto, con tutte le tabelle
  esempio FILE      crea un archivio con il catalogo di esempio
  sistema FILE      crea l'archivio di sistema (NetServer.Mdb), senza messaggi
  prepara CARTELLA  prepara una cartella del programma: l'archivio di esempio,
                    NetServer.Mdb e INI\GestioneRete.INI; quello che c'è resta
  importa VECCHIO.mdb NUOVO
                    fa un archivio nuovo da un vecchio file .mdb, che resta
                    com'è; dice che cosa ha letto e scritto
  verifica FILE     controlla formato, tabelle, colonne e integrità
  verifica --ripara FILE
                    se sono rovinati solo gli indici, li rifà; l'archivio di
                    prima resta nella cartella Copie
  proteggi FILE     dà una password all'archivio (chiesta due volte)
  sproteggi FILE    toglie la password all'archivio
  ripristina COPIA ARCHIVIO
                    rimette una copia di sicurezza al posto dell'archivio;
                    quello di adesso resta nella cartella Copie

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

Nessun comando sovrascrive un file che c'è già; proteggi, sproteggi, ripristina e
verifica --ripara sostituiscono l'archivio solo quando la copia nuova è
controllata. Una password si scrive al terminale, oppure arriva come riga
dell'ingresso.

Stato di uscita: 0 fatto, 1 non riuscito o archivio con difetti, 2 uso errato,
3 il file da importare vuole una password che manca o non è quella giusta,
4 l'archivio da verificare è in uso da un altro programma.
)";

void scrivi(FILE *stream, const QString &text)
{
    std::fputs(qUtf8Printable(text + "\n"), stream);
}

// Does the work, once more with a password where it asks for one; an empty password is none.
template <typename Work, typename WantsPassword>
auto conPassword(const Work &work, const WantsPassword &wantsPassword)
{
    auto result = work(QString());
    if (!wantsPassword(result))
        return result;
    const std::optional<QString> password = chiediPassword("Password: ");
    return password && !password->isEmpty() ? work(*password) : result;
}

int mostra(const QString &path, const Verifica &result)
{
    switch (result.esito) {
    case Verifica::Esito::InOrdine:
        scrivi(stdout, QStringLiteral("L'archivio \"%1\" è in ordine.").arg(path));
        return kBene;
    case Verifica::Esito::PasswordRichiesta:
        scrivi(stdout, "L'archivio è protetto e la password manca o non è quella giusta");
        return kGuasto;
    case Verifica::Esito::InUso:
        scrivi(stdout, result.guasti.first());
        return kInUso;
    default:
        break;
    }
    for (const QString &fault : result.guasti)
        scrivi(stdout, fault);
    if (result.esito == Verifica::Esito::IndiciDaRiparare)
        scrivi(stdout, "Sono rovinati solo gli indici: verifica --ripara li rifà");
    return kGuasto;
}

int verifica(const QString &path)
{
    return mostra(
        path, conPassword([&](const QString &password) { return verificaArchivio(path, password); },
                          [](const Verifica &result) { return result.esito == Verifica::Esito::PasswordRichiesta; }));
}

int ripara(const QString &path)
{
    const auto repair = [&](const QString &password) {
        const Verifica before = verificaArchivio(path, password);
        if (before.esito != Verifica::Esito::IndiciDaRiparare)
            return before;
        const QString kept = riparaArchivio(path, password, QDateTime::currentDateTime());
        scrivi(stdout, QStringLiteral("Gli indici sono rifatti. Quello di prima è in \"%1\".").arg(kept));
        return verificaArchivio(path, password);
    };
    return mostra(path, conPassword(repair, [](const Verifica &result) {
                      return result.esito == Verifica::Esito::PasswordRichiesta;
                  }));
}

int importa(const QString &from, const QString &to)
{
    const Lettore reader{QCoreApplication::applicationFilePath(), {kLettura}};
    QString refusal;
    const auto attempt = [&](const QString &password) -> std::optional<RapportoImportazione> {
        try {
            return importaArchivio(from, to, password, reader);
        } catch (const Failure &failure) {
            if (failure.number() != FailureNumber::LoginRefused)
                throw;
            refusal = failure.words();
            return std::nullopt;
        }
    };
    const auto report = conPassword(attempt, [](const auto &result) { return !result; });
    if (!report) {
        scrivi(stderr, "cibra-archivio: " + refusal);
        return kPassword;
    }
    for (const QString &line : testoRapporto(*report))
        scrivi(stdout, line);
    return kBene;
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
    if (const QStringList copies = copieInChiaro(path); !copies.isEmpty())
        scrivi(stdout, QStringLiteral("Attenzione: le copie di sicurezza fatte prima non hanno password e si leggono "
                                      "ancora: %1 in \"%2\".")
                           .arg(copies.size())
                           .arg(QFileInfo(copies.first()).path()));
    return kBene;
}

int sproteggi(const QString &path)
{
    const std::optional<QString> password = chiediPassword("Password: ");
    sproteggiArchivio(path, password.value_or(QString()));
    scrivi(stdout, QStringLiteral("L'archivio \"%1\" non ha più una password.").arg(path));
    return kBene;
}

Ripristino rimetti(const QString &copy, const QString &path)
{
    const QDateTime now = QDateTime::currentDateTime();
    try {
        return ripristinaArchivio(copy, path, {}, now);
    } catch (const Failure &failure) {
        const std::optional<QString> password =
            failure.number() == FailureNumber::LoginRefused ? chiediPassword("Password della copia: ") : std::nullopt;
        if (!password || password->isEmpty())
            throw;
        return ripristinaArchivio(copy, path, *password, now);
    }
}

int ripristina(const QString &copy, const QString &path)
{
    const Ripristino done = rimetti(copy, path);
    scrivi(stdout, QStringLiteral("L'archivio \"%1\" è di nuovo quello della copia \"%2\".").arg(path, copy));
    if (!done.tenuto.isEmpty())
        scrivi(stdout, QStringLiteral("Quello di prima è in \"%1\".").arg(done.tenuto));
    if (done.senzaPiuPassword)
        scrivi(stdout, "Attenzione: l'archivio aveva una password, la copia no: adesso chiunque lo può leggere. "
                       "proteggi gliene dà una.");
    return kBene;
}

int eseguiConDue(const QString &command, const QString &first, const QString &second)
{
    if (command == "importa")
        return importa(first, second);
    if (command == "verifica" && first == "--ripara")
        return ripara(second);
    if (command == "manutenzione")
        return manutenzione(first, second) ? kBene : kUsoErrato;
    if (command == "ripristina")
        return ripristina(first, second);
    return kUsoErrato;
}

int esegui(const QString &command, const QString &path)
{
    if (command == kLettura)
        processoLettore(path);
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
    else if (command == "sproteggi")
        return sproteggi(path);
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
    const bool named = !arguments.contains(QString()); // no file has an empty name
    int status = kUsoErrato;
    try {
        if (named && arguments.size() == 2)
            status = esegui(arguments[0], arguments[1]);
        else if (named && arguments.size() == 3)
            status = eseguiConDue(arguments[0], arguments[1], arguments[2]);
    } catch (const Failure &failure) {
        scrivi(stderr, "cibra-archivio: " + failure.words());
        return kGuasto;
    }
    if (status == kUsoErrato)
        std::fputs(kAiuto, stderr);
    return status;
}
