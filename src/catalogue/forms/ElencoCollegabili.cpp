#include "catalogue/forms/ElencoCollegabili.h"

#include "catalogue/PiattiCollegabili.h"
#include "core/Vocabulary.h"
#include "platform/ui/DataCombo.h"

namespace {

void setItems(QComboBox &list, const QStringList &items)
{
    list.addItems(items);
    list.setCompleter(nullptr); // what is typed stays as it is typed
    list.setCurrentIndex(-1);
}

void rebuild(DataCombo &list, const QString &statement, Connection &dati)
{
    Recordset dishes;
    dishes.Open(statement, dati, Recordset::Access::ReadOnly);
    list.setRowSource(dishes, "Piatto");
    if (!dishes.Eof())
        list.setText(dishes.value("Piatto").text());
}

} // namespace

void RiempiClassi(QComboBox &ComboTipo, QComboBox &ComboCategoria)
{
    setItems(ComboTipo, Tipi());
    setItems(ComboCategoria, CategorieNuovoPiatto());
}

void ElencaPerTipo(const QComboBox &ComboTipo, const QComboBox &ComboCategoria, DataCombo &DataCombo2, Connection &dati)
{
    const QString kind = ComboTipo.currentText();
    if (!kind.trimmed().isEmpty())
        rebuild(DataCombo2, IstruzioneCollegabiliDaTipo(kind, ComboCategoria.currentText()), dati);
}

void ElencaPerCategoria(const QComboBox &ComboTipo, const QComboBox &ComboCategoria, DataCombo &DataCombo2,
                        Connection &dati)
{
    rebuild(DataCombo2, IstruzioneCollegabiliDaCategoria(ComboTipo.currentText(), ComboCategoria.currentText()), dati);
}
