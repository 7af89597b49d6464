#include "planner/CalcoloKCal.h"

#include "core/Indirizzi.h"
#include "platform/text/Numbers.h"

#include <cmath>

namespace {

double numero(const QString &casella, const QString &testo)
{
    try {
        return NumeroDaTesto(testo);
    } catch (const Failure &failure) {
        throw Failure(failure.number(), failure.words() + " (" + casella + ")");
    }
}

} // namespace

double CalcolaKCal(const DatiPersona &dati)
{
    if (dati.sesso == Sesso::Nessuno)
        return 0;
    const double H = numero("Altezza in cm.", dati.altezza);
    const double A = numero("Eta in anni", dati.eta);
    const double W = numero("Peso in Kg", dati.peso);
    // The terms are those of a published equation; the last constant stands with the other sign here, on purpose.
    const double costante = dati.sesso == Sesso::Maschio ? 5 : -161;
    const double K = 6.25 * H + 10 * W - (5 * A + costante);
    if (!std::isfinite(K))
        throw Failure(FailureNumber::TypeMismatch, "Età, altezza e peso danno un numero troppo grande");
    return K;
}

QString DomandaKCal(double K)
{
    return "A chi devo inserire il valore di '" + TestoNumero(K) + "' KCal?";
}

std::optional<Persona> PersonaScelta(const ModNetServer &modulo)
{
    if (modulo.NomeScelto.isEmpty()) // also with a household without names, where it would equal both
        return std::nullopt;
    if (modulo.NomeScelto == modulo.NomePrimaPersona)
        return Persona::Prima;
    if (modulo.NomeScelto == modulo.NomeSecondaPersona)
        return Persona::Seconda;
    return std::nullopt;
}

void ConsultaCalcoloHtml(ModNetServer &modulo)
{
    const ProgramFolder &folder = modulo.mondo.folder;
    const bool propria = folder.fileExists("\\INI\\Calorie.ini");
    modulo.mondo.programmi.start(ProgramKind::Page, propria ? folder.resolve("\\HTML\\Calorie.html") : kPaginaCalorie);
}
