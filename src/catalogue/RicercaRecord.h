// The search of the record forms.
#pragma once

#include "platform/store/Recordset.h"

#include <QString>

// "Alimento like 'RISO%'": the answer in capitals and with its accents.
QString CriterioRicerca(const QString &campo, const QString &risposta);
// From the current row on. Where nothing is found the set stands again on row `posizione` (from 1), and it gives false.
bool CercaDa(Recordset &recordset, const QString &criterio, int posizione);
