#include "sheet/GiornoScheda.h"

#include "core/Marcatore.h"

namespace {

const QString kMarker = QStringLiteral("\\Aggiusta.log");

QString textOrZero(const Value &sum)
{
    return sum.isNull() ? QStringLiteral("0") : sum.text();
}

} // namespace

QString IstruzioneCercaSchedaPranzo(const QString &data)
{
    return "SELECT *  From SchedaPranzo Where datainserimento = '" + data +
           "' ORDER BY SchedaPranzo.dataInserimento DESC , SchedaPranzo.ID;";
}

QString IstruzioneGiorni()
{
    return QStringLiteral("SELECT CDate([SchedaPranzo].[datainserimento]) AS dataInserimento From SchedaPranzo "
                          "GROUP BY CDate([SchedaPranzo].[datainserimento]);");
}

TotaliGiorno SommaGiorno(Recordset &recordset, Connection &connection, const QString &data)
{
    recordset.Open("SELECT Sum(SchedaPranzo.Totale1) AS SommaDiTotale1, Sum(SchedaPranzo.Totale2) AS SommaDiTotale2 "
                   "From SchedaPranzo WHERE (((SchedaPranzo.dataInserimento)='" +
                       data + "'));",
                   connection);
    TotaliGiorno totali{textOrZero(recordset.value("SommaDiTotale1")), textOrZero(recordset.value("SommaDiTotale2"))};
    recordset.Close();
    return totali;
}

TotaliGiorno Totali(ModNetServer &modulo, const QString &data)
{
    modulo.RsComune = std::make_shared<Recordset>();
    return SommaGiorno(*modulo.RsComune, modulo.dati(), data);
}

bool AggiustaAutomaticamente(const ModNetServer &modulo)
{
    return Marcatore(modulo.mondo.folder, kMarker).presente();
}

void SalvaAggiusta(const ModNetServer &modulo, bool attivo)
{
    Marcatore(modulo.mondo.folder, kMarker).metti(attivo);
}
