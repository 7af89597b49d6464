// One day of SchedaPranzo: the statements that show and sum it, and the marker of automatic balancing.
#pragma once

#include "core/ModNetServer.h"

// The rows of a day, compared as text, in key order.
QString IstruzioneCercaSchedaPranzo(const QString &data);
// The list of days: each once, as a date, in date order.
QString IstruzioneGiorni();

// The day's sums in kcal, as their boxes show them: "0" for a person without any total.
struct TotaliGiorno
{
    QString prima;
    QString seconda;
};
// Sums the day through `recordset`, a new one, which is closed again. Throws what the store reports.
TotaliGiorno SommaGiorno(Recordset &recordset, Connection &connection, const QString &data);
// The same through a new RsComune.
TotaliGiorno Totali(ModNetServer &modulo, const QString &data);

// Whether every day looked up is balanced: the presence of Aggiusta.log beside the program.
bool AggiustaAutomaticamente(const ModNetServer &modulo);
// Makes the marker, a file of one empty line, or deletes it where it is there. Throws Failure(PathAccess).
void SalvaAggiusta(const ModNetServer &modulo, bool attivo);
