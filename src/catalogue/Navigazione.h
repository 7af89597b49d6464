// The four buttons of a navigation bar over a record set that may be empty. Next and previous go round with a beep.
#pragma once

#include "platform/environment/Schermo.h"
#include "platform/store/Recordset.h"

void VaiAlPrimo(Recordset &righe);
void VaiAllUltimo(Recordset &righe);
void VaiAlSuccessivo(Recordset &righe, Schermo &schermo);
void VaiAlPrecedente(Recordset &righe, Schermo &schermo);
// Position and count as 2\5, behind `prima`; `vuoto` where there are no rows.
QString TestoPosizione(const Recordset &righe, const QString &prima, const QString &vuoto);
