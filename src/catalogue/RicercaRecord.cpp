#include "catalogue/RicercaRecord.h"

#include "core/Helpers.h"

QString CriterioRicerca(const QString &campo, const QString &risposta)
{
    return campo + QStringLiteral(" like '") + Accenta(risposta.toUpper()) + QStringLiteral("%'");
}

bool CercaDa(Recordset &recordset, const QString &criterio, int posizione)
{
    recordset.Find(criterio);
    if (!recordset.Eof())
        return true;
    if (recordset.RecordCount() > 0) {
        recordset.MoveFirst();
        if (posizione > 1)
            recordset.Move(posizione - 1);
    }
    return false;
}
