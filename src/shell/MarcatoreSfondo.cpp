#include "shell/MarcatoreSfondo.h"

#include "core/Marcatore.h"

namespace {
const QString kMarcatore = QStringLiteral("\\Sfondo");
}

bool SfondoVisibile(const ProgramFolder &folder)
{
    return Marcatore(folder, kMarcatore).presente();
}

void SegnaSfondo(const ProgramFolder &folder)
{
    Marcatore(folder, kMarcatore).metti(true);
}

void TogliSegnoSfondo(const ProgramFolder &folder)
{
    Marcatore(folder, kMarcatore).metti(false);
}
