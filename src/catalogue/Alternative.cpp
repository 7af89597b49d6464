#include "catalogue/Alternative.h"

QString IstruzioneSostituti()
{
    return QStringLiteral("SELECT Sostituisci.piatto, Sostituisci.ID, * FROM Sostituisci ORDER BY Sostituisci.piatto;");
}

QString IstruzioneAlternative(const QString &piatto)
{
    return "SELECT GruppoPiattiSostituiti.sostituisci, Sostituisci.KCalOndira, Sostituisci.KCalTesmo, "
           "Sostituisci.Categoria, Sostituisci.Tipo "
           " FROM GruppoPiattiSostituiti INNER JOIN Sostituisci ON GruppoPiattiSostituiti.sostituisci = "
           "Sostituisci.Piatto"
           " WHERE (((GruppoPiattiSostituiti.Alimento)='" +
           piatto +
           "'))"
           " GROUP BY GruppoPiattiSostituiti.sostituisci, GruppoPiattiSostituiti.alimento, "
           "GruppoPiattiSostituiti.sostituisci, Sostituisci.KCalOndira, Sostituisci.KCalTesmo, Sostituisci.Categoria, "
           "Sostituisci.Tipo "
           " ORDER BY GruppoPiattiSostituiti.alimento, GruppoPiattiSostituiti.sostituisci;";
}

QString IstruzioneIngredienti(const QString &piatto)
{
    return "Select Alimento, KC100gr, totale1, totale2  from Piatti where Piatto = '" + piatto + "' order by Alimento";
}

TotaliPiatto SommaPiatto(Connection &dati, const QString &piatto)
{
    Recordset sums;
    sums.Open(" SELECT Piatti.Piatto, Sum(Piatti.Totale1) AS SommaDiTotale1, Sum(Piatti.Totale2) AS SommaDiTotale2 "
              "From Piatti GROUP BY Piatti.Piatto HAVING (((Piatti.Piatto)='" +
                  piatto + "'));",
              dati);
    if (sums.Eof())
        return {};
    return {sums.value("SommaDiTotale1").text(), sums.value("SommaDiTotale2").text()};
}

void ConfermaSostituzione(ModNetServer &modulo, const QString &piatto, const QString &scelto)
{
    const MsgAnswer answer =
        modulo.mondo.dialoghi.MsgBox("Sostituisce " + piatto + " con " + scelto, MsgFlags::YesNoInformation, "OK");
    modulo.PiattoSostituto = answer == MsgAnswer::Si ? scelto : QString();
}
