#include "catalogue/ControllaCaratteri.h"

namespace {

void mendRow(Recordset &recordset)
{
    for (int i = 0; i < recordset.fieldCount(); ++i) {
        const Value value = recordset.value(i);
        const QString *text = std::get_if<QString>(&value.held());
        if (text && text->contains(u'\''))
            recordset.setValue(i, QString(*text).replace(u'\'', u' '));
    }
    recordset.Update();
}

} // namespace

void ControllaCaratteri(Recordset &recordset, Connection &connessione)
{
    if (recordset.RecordCount() == 0)
        return;
    GruppoScritture group(connessione);
    for (recordset.MoveFirst(); !recordset.Eof(); recordset.MoveNext())
        mendRow(recordset);
    recordset.MoveFirst();
    group.close();
}
