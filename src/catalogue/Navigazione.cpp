#include "catalogue/Navigazione.h"

void VaiAlPrimo(Recordset &righe)
{
    if (righe.RecordCount() > 0)
        righe.MoveFirst();
}

void VaiAllUltimo(Recordset &righe)
{
    if (righe.RecordCount() > 0)
        righe.MoveLast();
}

void VaiAlSuccessivo(Recordset &righe, Schermo &schermo)
{
    if (!righe.Eof())
        righe.MoveNext();
    if (!righe.Eof() || righe.RecordCount() == 0)
        return;
    schermo.beep();
    righe.MoveFirst();
}

void VaiAlPrecedente(Recordset &righe, Schermo &schermo)
{
    if (!righe.Bof())
        righe.MovePrevious();
    if (!righe.Bof() || righe.RecordCount() == 0)
        return;
    schermo.beep();
    righe.MoveLast();
}

QString TestoPosizione(const Recordset &righe, const QString &prima, const QString &vuoto)
{
    if (righe.RecordCount() == 0)
        return vuoto;
    return prima + QString::number(righe.AbsolutePosition()) + '\\' + QString::number(righe.RecordCount());
}
