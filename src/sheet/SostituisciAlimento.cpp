#include "sheet/SostituisciAlimento.h"

#include "sheet/RigheScheda.h"

namespace {

const QString kSeparatore = QStringLiteral(" / ");

QString statementFor(const QString &alimento)
{
    return "Select * from Piatti where Alimento = '" + alimento + "'";
}

// `kcal` is what stands behind the separator's first two characters: the number with the blank before it.
void addNeverUsed(ModNetServer &modulo, Recordset &piatti, const QString &piatto, const QString &kcal)
{
    piatti.AddNew();
    piatti.setValue("Alimento", SenzaBianchi(modulo.RigaLetta));
    piatti.setValue("Piatto", piatto);
    piatti.setValue("KC100gr", kcal);
    piatti.setValue("Kcnominale", modulo.KcalPrimaPersona);
    piatti.setValue("Kcnominale2", modulo.KcalSecondaPersona);
    for (const char *nothing : {"quantita", "totale1", "quantita2", "totale2"})
        piatti.setValue(nothing, 0);
    piatti.Update();
}

Value orZero(const Value &total)
{
    return total.isNull() ? Value(QStringLiteral("0")) : total;
}

} // namespace

QStringList AlimentiSostitutivi(ModNetServer &modulo)
{
    Recordset alimenti;
    alimenti.Open("SELECT Categorie.Tipo, Trim([categorie.alimento]) AS Alimento, Min(Categorie.Kcal) AS Kcal "
                  "From Categorie GROUP BY Categorie.Tipo, Trim([categorie.alimento]) "
                  "Having (((Categorie.Tipo) <> 999)) ORDER BY Trim([categorie.alimento]);",
                  modulo.dati(), Recordset::Access::ReadOnly);
    const int name = alimenti.fieldIndex("Alimento");
    const int kcal = alimenti.fieldIndex("Kcal");
    QStringList items;
    items.reserve(alimenti.RecordCount());
    for (int row = 0; row < alimenti.RecordCount(); ++row)
        items.append(alimenti.valueAt(row, name).text() + kSeparatore + alimenti.valueAt(row, kcal).text());
    return items;
}

bool NominaUnAlimento(const QString &scelta)
{
    return scelta.contains(kSeparatore);
}

std::optional<AlimentoSostituto> LeggiSostituto(ModNetServer &modulo, const QString &scelta, const QString &piatto)
{
    const qsizetype at = scelta.indexOf(kSeparatore);
    if (at < 0)
        return std::nullopt;
    modulo.RigaLetta = scelta.left(at);
    Recordset used;
    used.Open(statementFor(modulo.RigaLetta), modulo.dati());
    if (used.RecordCount() == 0)
        addNeverUsed(modulo, used, piatto, scelta.mid(at + 2));
    used.Close();

    Recordset found;
    found.Open(statementFor(SenzaBianchi(modulo.RigaLetta).text()), modulo.dati(), Recordset::Access::ReadOnly);
    if (found.RecordCount() == 0)
        return std::nullopt;
    return AlimentoSostituto{found.value("Alimento"),  found.value("KC100gr"),         found.value("Kcnominale"),
                             found.value("quantita"),  orZero(found.value("totale1")), found.value("Kcnominale2"),
                             found.value("quantita2"), orZero(found.value("totale2"))};
}
