#include "sheet/InserisciPiatto.h"

namespace {

QString listOf(const Recordset &cibi)
{
    const int alimento = cibi.fieldIndex("Alimento");
    QString list = "\r\n";
    for (int row = 0; row < cibi.RecordCount(); ++row)
        list += " - " + cibi.valueAt(row, alimento).text() + "\r\n";
    return list;
}

} // namespace

bool InserisciPiatto(ModNetServer &modulo, const PostoNellaScheda &posto)
{
    Recordset cibi;
    cibi.Open(IstruzioneCibiDelPiatto(posto.piatto), modulo.dati(), Recordset::Access::ReadOnly);
    if (cibi.RecordCount() == 0)
        return false;
    modulo.RigaLetta = listOf(cibi);
    const QString text = "Saranno inseriti n. " + QString::number(cibi.RecordCount()) + " alimenti e condimenti. \r\n" +
                         modulo.RigaLetta + "\r\n C o n f e r mi  ?";
    if (modulo.mondo.dialoghi.MsgBox(text, MsgFlags::YesNoInformation, "Nuovo inserimento del " + posto.giorno) ==
        MsgAnswer::No)
        return false;
    AggiungiCibi(modulo, cibi, posto);
    return true;
}
