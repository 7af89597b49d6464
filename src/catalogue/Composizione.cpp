#include "catalogue/Composizione.h"

#include "core/Marcatore.h"
#include "platform/text/Numbers.h"

namespace {

const QString kMarker = QStringLiteral("\\conferma");
const QString kTitoloCancellazione = QStringLiteral("Cancellazione Record");
const QString kKcal = QStringLiteral(" /Kcal ");
constexpr int kDaBarraANumero = 5; // from the "/" to the blank before the number
constexpr int kCifre = 20;

bool confirmsDeletion(ModNetServer &modulo, const QString &text)
{
    return modulo.mondo.dialoghi.MsgBox(text, MsgFlags::YesNoInformationDefaultNo, kTitoloCancellazione) ==
           MsgAnswer::Si;
}

// Where an empty name has opened the foods of all dishes, only those of the dish confirmed go.
void deleteFoods(Recordset &righe, const QString &piatto)
{
    righe.CancelUpdate();
    if (righe.RecordCount() > 0)
        righe.MoveFirst();
    for (; !righe.Eof(); righe.MoveNext())
        if (righe.value("Piatto").text().compare(piatto, Qt::CaseInsensitive) == 0)
            righe.Delete();
}

} // namespace

QString IstruzioneNomiPiatti()
{
    return QStringLiteral("SELECT Piatti.Piatto  FROM Piatti GROUP BY Piatti.Piatto ORDER BY Piatti.Piatto;");
}

QString IstruzioneAlimenti()
{
    return QStringLiteral("SELECT Trim([alimento]) AS Piatto, Piatti.KC100gr FROM Piatti GROUP BY Trim([alimento]), "
                          "Piatti.KC100gr ORDER BY Trim([alimento]);");
}

QString IstruzioneComposizione(const QString &piatto)
{
    if (piatto.isEmpty())
        return QStringLiteral("SELECT * From Piatti ORDER BY Piatti.alimento;");
    return "SELECT * From Piatti Where (((Piatti.Piatto) = '" + piatto + "')) ORDER BY Piatti.alimento;";
}

QString VoceAlimento(const QString &alimento, const QString &kcal)
{
    return alimento + kKcal + kcal;
}

QStringList VociAlimenti(Connection &dati)
{
    Recordset foods;
    foods.Open(IstruzioneAlimenti(), dati, Recordset::Access::ReadOnly);
    QStringList entries;
    for (; !foods.Eof(); foods.MoveNext())
        entries.append(VoceAlimento(foods.value("Piatto").text(), foods.value("KC100gr").text()));
    return entries;
}

std::optional<AlimentoScelto> ScegliAlimento(const QString &voce)
{
    const qsizetype bar = voce.indexOf('/');
    if (bar < 0)
        return std::nullopt;
    return AlimentoScelto{voce.left(bar), voce.mid(bar + kDaBarraANumero, kCifre)};
}

QString LivelloNominale(const QString &traguardo)
{
    try {
        return TestoNumero(NumeroDaTesto(traguardo));
    } catch (const Failure &) {
        return traguardo; // the box refuses it when the row is stored, and names the field
    }
}

std::optional<QString> ClassificazionePiatto(Connection &dati, const QString &piatto)
{
    Recordset dish;
    dish.Open("Select * from Sostituisci where Piatto = '" + piatto + "'", dati);
    if (dish.Eof())
        return std::nullopt;
    return "Tipologia '" + dish.value("tipo").text() + "' - Categoria '" + dish.value("categoria").text() + "'";
}

bool QuantitaValida(ModNetServer &modulo, const QString &quantita, const QString &persona)
{
    if (Val(quantita.trimmed().replace(',', '.')) != 0)
        return true;
    modulo.mondo.dialoghi.MsgBox("Quantità per " + persona + " non puo essere vuota o essere impostato a ZERO",
                                 MsgFlags::Critical, "Inserisci Quantita");
    return false;
}

bool ConfermaSalvataggio(ModNetServer &modulo, bool chiedi, const QString &alimento)
{
    return !chiedi ||
           modulo.mondo.dialoghi.MsgBox("Vuoi salvare inserimento di \r\n\r\n" + alimento + "  ?",
                                        MsgFlags::YesNoInformation, "Salvataggio in corso ...") == MsgAnswer::Si;
}

void SalvaAlimento(ModNetServer &modulo, Recordset &righe)
{
    righe.Update();
    modulo.dati().Execute("UPDATE Piatti SET Piatti.Totale1 = [Piatti].[kc100gr]/100*[Piatti].[quantita], "
                          "Piatti.Totale2 = [Piatti].[kc100gr]/100*[Piatti].[quantita2] WHERE (((Piatti.ID)=" +
                          righe.value("Id").text() + "));");
}

bool CancellaAlimento(ModNetServer &modulo, Recordset &righe, const QString &alimento, const QString &piatto)
{
    if (!confirmsDeletion(modulo,
                          "Vuoi cancellare l'alimento '" + alimento + "' relativo al piatto '" + piatto + "' ??"))
        return false;
    const bool wasPending = righe.isAdding(); // then the former row is current again
    righe.Delete();
    if (wasPending)
        return true;
    if (!righe.Eof())
        righe.MoveNext();
    if (righe.Eof() && righe.RecordCount() > 0)
        righe.MoveLast();
    return true;
}

bool CancellaPiatto(ModNetServer &modulo, Recordset &righe, const QString &piatto)
{
    if (!confirmsDeletion(modulo, "Vuoi cancellare l'intero piatto '" + piatto + "' ??"))
        return false;
    if (!piatto.isEmpty())
        deleteFoods(righe, piatto);
    Connection &dati = modulo.dati();
    dati.Execute("DELETE Sostituisci.Piatto FROM Sostituisci WHERE (((Sostituisci.Piatto)='" + piatto + "'));");
    dati.Execute("DELETE GruppoPiattiSostituiti.alimento FROM GruppoPiattiSostituiti WHERE "
                 "(((GruppoPiattiSostituiti.alimento)='" +
                 piatto + "'));");
    dati.Execute("Delete GruppoPiattiSostituiti.sostituisci From GruppoPiattiSostituiti WHERE "
                 "(((GruppoPiattiSostituiti.sostituisci)='" +
                 piatto + "'));");
    return true;
}

bool ConfermaInserimento(const ModNetServer &modulo)
{
    return Marcatore(modulo.mondo.folder, kMarker).presente();
}

void SalvaConfermaInserimento(const ModNetServer &modulo, bool attiva)
{
    Marcatore(modulo.mondo.folder, kMarker).metti(attiva);
}
