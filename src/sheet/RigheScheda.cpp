#include "sheet/RigheScheda.h"

#include "platform/text/Blanks.h"

#include <array>

namespace {

// The columns that a row of the sheet takes over as they are, in the order in which they are written.
constexpr std::array kColonneCopiate{"KC100gr",   "quantita",    "Kcnominale", "totale1",
                                     "quantita2", "Kcnominale2", "totale2"};

bool confirms(ModNetServer &modulo, const QString &text, const QString &title)
{
    return modulo.mondo.dialoghi.MsgBox(text, MsgFlags::YesNoCritical, title) == MsgAnswer::Si;
}

} // namespace

QString IstruzioneCibiDelPiatto(const QString &piatto)
{
    return "Select * from Piatti where piatto = '" + piatto + "' order by Alimento";
}

Value SenzaBianchi(const Value &testo)
{
    return testo.isNull() ? testo : Value(withoutBlanks(testo.text()));
}

void AggiungiCibi(ModNetServer &modulo, Recordset &cibi, const PostoNellaScheda &posto)
{
    Recordset scheda;
    scheda.Open("Select * from SchedaPranzo", modulo.dati(), Recordset::Access::AppendOnly);
    if (cibi.RecordCount() == 0)
        return;
    GruppoScritture gruppo(modulo.dati());
    for (cibi.MoveFirst(); !cibi.Eof(); cibi.MoveNext()) {
        scheda.AddNew();
        scheda.setValue("DataInserimento", posto.giorno);
        scheda.setValue("pranzocenaspuntino", posto.pasto);
        scheda.setValue("Piatto", posto.piatto);
        scheda.setValue("Alimento", SenzaBianchi(cibi.value("Alimento")));
        for (const char *colonna : kColonneCopiate)
            scheda.setValue(colonna, cibi.value(colonna));
        scheda.Update();
    }
    gruppo.close();
}

bool CancellaRecord(ModNetServer &modulo, const PostoNellaScheda &posto, const QString &alimento, const QString &id)
{
    if (!confirms(modulo,
                  "Vuoi cancellare presente Record \r\n - " + posto.pasto + "\r\n - Piatto " + posto.piatto +
                      "\r\n - Alimento " + alimento + "\r\n",
                  "Cancellazione Record"))
        return false;
    modulo.dati().Execute("DELETE ID, *  FROM SchedaPranzo where SchedaPranzo.ID = " + id);
    return true;
}

bool CancellaGruppo(ModNetServer &modulo, const PostoNellaScheda &posto)
{
    if (!confirms(modulo, "Vuoi cancellare tutto il gruppo " + posto.pasto + " - Piatto " + posto.piatto,
                  "Cancellazione gruppo"))
        return false;
    CancellaGruppoSenzaConferma(modulo, posto);
    return true;
}

void CancellaGruppoSenzaConferma(ModNetServer &modulo, const PostoNellaScheda &posto)
{
    modulo.dati().Execute("DELETE SchedaPranzo.dataInserimento, SchedaPranzo.PranzoCenaSpuntino, SchedaPranzo.Piatto, "
                          "* FROM SchedaPranzo where SchedaPranzo.datainserimento = '" +
                          posto.giorno + "' and SchedaPranzo.piatto = '" + posto.piatto +
                          "' and SchedaPranzo.PranzoCenaSpuntino = '" + posto.pasto + "'");
}
