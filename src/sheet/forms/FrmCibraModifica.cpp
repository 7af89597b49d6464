// The daily sheet's modify command. Its list of dishes has no field "predefinito", so that on this form the command
// ends where it reads that field.
#include "sheet/forms/FrmCibra.h"

#include "core/Helpers.h"

namespace {

const QString kVista = QStringLiteral("V");
const QString kInserimento = QStringLiteral("I");
const QString kModifica = QStringLiteral("M");

std::vector<Value> fieldsOf(const Recordset &rows)
{
    std::vector<Value> values;
    for (int field = 0; field < rows.fieldCount(); ++field)
        values.push_back(rows.value(field));
    return values;
}

void putBack(Recordset &rows, const std::vector<Value> &values)
{
    const int key = rows.fieldIndex("ID");
    for (int field = 0; field < rows.fieldCount(); ++field)
        if (field != key)
            rows.setValue(field, values.at(std::size_t(field)));
}

} // namespace

void FrmCibra::mnuModifica_Click()
{
    comando("mnuModifica_Click ", [this] {
        if (maySetAboutChanging()) {
            if (Stato == kModifica || Stato == kInserimento)
                takeBackChange();
            else
                beginChange();
        }
    });
}

bool FrmCibra::maySetAboutChanging()
{
    Dialoghi &dialoghi = modulo().mondo.dialoghi;
    if (Datprimaryrs->Bof() || Datprimaryrs->Eof()) {
        dialoghi.MsgBox("Modifica non effettuabile in quanto\r\nil database non è posizionato in\r\nalcun record",
                        MsgFlags::Critical, "Recordset non posizionato");
        return false;
    }
    if (Datprimaryrs->value("predefinito").yes()) {
        messaggio("Operazione NON consentita",
                  "Il contenuto del Record è gestito dalla Procedura\r"
                  "Non è possibile apportare alcuna Modifica / Cancellazione",
                  {"OK!"}, Immagine::Rifiuto);
        return false;
    }
    if (Datprimaryrs->RecordCount() == 0) {
        dialoghi.MsgBox("Modifica impossibile su un RecordSet vuoto!!", MsgFlags::Exclamation, "....");
        return false;
    }
    return true;
}

void FrmCibra::beginChange()
{
    m_salvati = fieldsOf(*Datprimaryrs);
    Stato = kModifica;
    MnuDisabilita();
}

void FrmCibra::takeBackChange()
{
    Datprimaryrs->CancelUpdate();
    if (Stato == kInserimento)
        modulo().dati().Execute("Delete * from Categorie where ID = " +
                                QString::number(NuovoId(modulo(), "Categorie") - 1));
    if (Stato == kModifica) {
        putBack(*Datprimaryrs, m_salvati);
        Datprimaryrs->Update();
        modulo().mondo.dialoghi.MsgBox("Record ripristinato allo stato originale", MsgFlags::Information, {});
    }
    Stato = kVista;
    mnuAbilita();
}

void FrmCibra::MnuDisabilita()
{
    mostraVoce("MnuAnnulla", true);
    mostraVoce("MnuSalva", true);
    mostraVoce("MnuView", false);
    mostraVoce("MnuEsci", false);
    findChild<QWidget *>("picStatBox")->hide();
}

void FrmCibra::annulla()
{
    Datsecondaryrs->CancelUpdate();
    Annullato = true;
    Stato = kVista;
    mnuAbilita();
    scriviPosizione(Posizione::Annullata);
}
