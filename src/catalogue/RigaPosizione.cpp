#include "catalogue/RigaPosizione.h"

QString RigaPosizione::testo(const Recordset &recordset) const
{
    const int count = recordset.RecordCount();
    if (count == 0)
        return senzaRecord;
    return conRecord + QString::number(recordset.AbsolutePosition()) + u'\\' + QString::number(count);
}
