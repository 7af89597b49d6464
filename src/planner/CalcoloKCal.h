// The calorie needs calculator of the household panel.
#pragma once

#include "core/ModNetServer.h"

#include <optional>

enum class Sesso
{
    Nessuno,
    Maschio,
    Femmina
};

// The boxes as they stand.
struct DatiPersona
{
    Sesso sesso = Sesso::Nessuno;
    QString eta;     // years
    QString altezza; // centimetres
    QString peso;    // kilograms
};

enum class Persona
{
    Prima,
    Seconda
};

// Calories a day, by a formula of the program's own; 0 without a sex, the boxes being unread then. A box that holds no
// number throws Failure(TypeMismatch), whose words name the box; so do figures beyond every number.
double CalcolaKCal(const DatiPersona &dati);
// What the dialog asks: for whom the value is meant.
QString DomandaKCal(double K);
// The person that NomeScelto names; with two equal names the first one. Nobody where it is empty.
std::optional<Persona> PersonaScelta(const ModNetServer &modulo);
// Opens \HTML\Calorie.html where the marker \INI\Calorie.ini stands, else a public page. Throws
// Failure(FileNotFound) where there is no browser.
void ConsultaCalcoloHtml(ModNetServer &modulo);
