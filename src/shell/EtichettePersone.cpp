#include "shell/EtichettePersone.h"

#include "core/Household.h"

EtichettePersone LeggiEtichettePersone(ModNetServer &modulo)
{
    if (!EsisteAnagrafica(modulo)) {
        const QString dashes = QStringLiteral("-----------------------");
        return {dashes + QStringLiteral(" - ") + dashes,
                QStringLiteral("----KCal--------") + QStringLiteral(" - ") + QStringLiteral("--------KCal----------")};
    }
    LeggiAnagrafica(modulo);
    return {modulo.NomePrimaPersona + QStringLiteral(" - ") + modulo.NomeSecondaPersona,
            QStringLiteral("Kcal. ") + modulo.KcalPrimaPersona + QStringLiteral(" -  Kcal. ") +
                modulo.KcalSecondaPersona};
}
