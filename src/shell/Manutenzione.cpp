#include "shell/Manutenzione.h"

#include "platform/text/Blanks.h"
#include "platform/text/Numbers.h"
#include "shell/RigheDelMemo.h"

namespace {

// Calls `sostituto` for each dish that the text of the current row names.
void PerOgniSostituto(ModNetServer &modulo, const Recordset &piatti, const QString &temporaneo,
                      const std::function<void(const QString &riga)> &sostituto)
{
    LeggiRigheDelMemo(modulo, temporaneo, piatti.value("sostituisci1100").text(), [&](const QString &riga) {
        if (!riga.isEmpty() && !RigaDiAlimento(riga))
            sostituto(riga);
    });
}

} // namespace

void CopiaCalorie(ModNetServer &modulo)
{
    Recordset nuovi;
    nuovi.Open("Select Piatto, alimento, kc100gr from newPiatti order by Piatto", modulo.dati());
    GruppoScritture gruppo(modulo.dati());
    for (; !nuovi.Eof(); nuovi.MoveNext())
        modulo.dati().Execute(
            "UPDATE Piatti SET Piatti.KC100gr = " + NumeroPerIstruzione(nuovi.value("kc100gr").number()) +
            " WHERE (((trim(Piatti.Piatto))=Trim('" + nuovi.value("Piatto").text() +
            "')) AND ((trim(Piatti.alimento))=Trim('" + nuovi.value("alimento").text() + "')));");
    gruppo.close();
    modulo.mondo.dialoghi.MsgBox("Fattto", MsgFlags::Plain, {});
}

void ElencaSostituti(ModNetServer &modulo)
{
    Recordset piatti;
    piatti.Open("Select * from Sostituisci order by Piatto", modulo.dati());
    Recordset elenco;
    elenco.Open("Select * from SostituisciMaster", modulo.dati(), Recordset::Access::AppendOnly);
    const bool haTipo = piatti.hasField("TipoId"); // older archives have it
    GruppoScritture gruppo(modulo.dati());
    for (; !piatti.Eof(); piatti.MoveNext())
        PerOgniSostituto(modulo, piatti, "TMP", [&](const QString &riga) {
            elenco.AddNew();
            elenco.setValue("Id", piatti.value("Id"));
            if (haTipo)
                elenco.setValue("TipoId", piatti.value("TipoId"));
            elenco.setValue("Piatto", riga);
            elenco.Update();
        });
    gruppo.close();
}

void RiempiGruppi(ModNetServer &modulo, const PiattoInCorso &inCorso)
{
    Recordset piatti;
    piatti.Open("Select * from Sostituisci order by ID", modulo.dati());
    Recordset gruppi;
    gruppi.Open("Select * from GruppoPiattiSostituiti", modulo.dati(), Recordset::Access::AppendOnly);
    GruppoScritture gruppo(modulo.dati());
    for (; !piatti.Eof(); piatti.MoveNext()) {
        const Value Piatto = piatti.value("Piatto");
        inCorso(Piatto.text());
        PerOgniSostituto(modulo, piatti, "TEMP", [&](const QString &riga) {
            const QString sostituto = withoutBlanks(riga);
            if (sostituto.isEmpty())
                return;
            gruppi.AddNew();
            gruppi.setValue("Alimento", Piatto);
            gruppi.setValue("sostituisci", sostituto);
            gruppi.Update();
        });
    }
    gruppo.close();
    modulo.mondo.dialoghi.MsgBox("Fatto", MsgFlags::Plain, {});
}

void AbbinaAlimenti(ModNetServer &modulo)
{
    Recordset alimenti;
    alimenti.Open("SELECT Alimenti.Piatto, Alimenti.alimento, Alimenti.quantita, Alimenti.KcNominale From Alimenti "
                  "GROUP BY Alimenti.Piatto, Alimenti.alimento, Alimenti.quantita, Alimenti.KcNominale ORDER BY "
                  "Alimenti.Piatto, Alimenti.KcNominale;",
                  modulo.dati());
    Recordset coppie;
    coppie.Open("Select * from alimenti2", modulo.dati(), Recordset::Access::AppendOnly);
    GruppoScritture gruppo(modulo.dati());
    for (; !alimenti.Eof(); alimenti.MoveNext()) {
        coppie.AddNew();
        coppie.setValue("Piatto", alimenti.value("Piatto"));
        coppie.setValue("Alimento", alimenti.value("alimento"));
        coppie.setValue("quantita1", alimenti.value("quantita"));
        coppie.setValue("Kcnominale1", alimenti.value("KcNominale"));
        alimenti.MoveNext();
        if (alimenti.Eof()) {
            coppie.CancelUpdate();
            modulo.mondo.schermo.beep();
            break;
        }
        coppie.setValue("quantita2", alimenti.value("quantita"));
        coppie.setValue("Kcnominale2", alimenti.value("KcNominale"));
        coppie.Update();
    }
    gruppo.close();
}
