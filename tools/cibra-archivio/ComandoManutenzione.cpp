#include "ComandoManutenzione.h"

#include "ChiediPassword.h"
#include "core/Household.h"
#include "core/Locations.h"
#include "core/SenzaFinestre.h"
#include "shell/Manutenzione.h"

#include <QDir>
#include <QFileInfo>

#include <cstdio>
#include <map>

namespace {

void scrivi(const QString &text)
{
    std::fputs(qUtf8Printable(text + "\n"), stdout);
}

// What the commands tell in message boxes goes to the terminal; none of them asks.
class DialoghiDelTerminale : public Dialoghi
{
public:
    MsgAnswer MsgBox(const QString &text, int, const QString &) override
    {
        scrivi(text);
        return MsgAnswer::Ok;
    }
    int Msg1(const MsgBoxEx &fields) override
    {
        scrivi(fields.body);
        return int(MsgAnswer::Si);
    }
    QString InputBox(const QString &, const QString &, bool) override { return {}; }
};

class ProgrammiDelTerminale : public Programmi
{
public:
    void start(ProgramKind, const QString &target) override { scrivi("File: " + target); }
};

class SchermoDelTerminale : public SenzaSchermo
{
public:
    void beep() override { std::fputs("\a", stderr); }
};

ProgramFolder cartellaDelProgramma(const QString &archivio)
{
    const QString own = QFileInfo(archivio).absolutePath();
    QDir folder(own);
    do {
        if (ProgramFolder candidate(folder.path()); candidate.fileExists(kGestioneRete))
            return candidate;
    } while (folder.cdUp());
    return ProgramFolder(own);
}

// The program's state around one archive.
struct Terminale
{
    explicit Terminale(const QString &archivio)
        : mondo{cartellaDelProgramma(archivio), dialoghi, programmi, orologio, dado, schermo}, modulo(mondo, schermate)
    {
    }

    void apri(const QString &archivio)
    {
        modulo.ConnessioneDati = std::make_unique<Connection>();
        OpenResult opened = modulo.dati().Open(archivio);
        if (opened.outcome == OpenOutcome::PasswordRichiesta)
            opened = modulo.dati().Open(archivio, chiediPassword("Password: ").value_or(QString()));
        if (opened.outcome == OpenOutcome::PasswordRichiesta)
            throw Failure(FailureNumber::LoginRefused,
                          "L'archivio è protetto e la password manca o non è quella giusta");
        if (!opened)
            throw Failure(FailureNumber::Engine,
                          QStringLiteral("L'archivio \"%1\" non si apre: %2").arg(archivio, opened.words));
        if (EsisteAnagrafica(modulo))
            LeggiAnagrafica(modulo);
    }

    DialoghiDelTerminale dialoghi;
    ProgrammiDelTerminale programmi;
    OrologioDiSistema orologio;
    DadoFisso dado;
    SchermoDelTerminale schermo;
    SenzaSchermate schermate;
    Environment mondo;
    ModNetServer modulo;
};

void niente(const QString & /*Piatto*/) {}

using Comando = void (*)(ModNetServer &);

const std::map<QString, Comando> &comandi()
{
    static const std::map<QString, Comando> kTutti = {
        {"esporta", [](ModNetServer &modulo) { EsportaTesti(modulo, niente); }},
        {"importa", ImportaTesti},
        {"abbina", AbbinaAlimenti},
        {"gruppi", [](ModNetServer &modulo) { RiempiGruppi(modulo, niente); }},
        {"sostituti", ElencaSostituti},
        {"rapporto", [](ModNetServer &modulo) { RapportoSenzaCorrispondenza(modulo, niente); }},
        {"calorie", CopiaCalorie},
    };
    return kTutti;
}

} // namespace

bool manutenzione(const QString &comando, const QString &archivio)
{
    const auto trovato = comandi().find(comando);
    if (trovato == comandi().end() || archivio.isEmpty())
        return false;
    Terminale terminale(archivio);
    terminale.apri(archivio);
    trovato->second(terminale.modulo);
    scrivi(QStringLiteral("Comando \"%1\" eseguito.").arg(comando));
    return true;
}
