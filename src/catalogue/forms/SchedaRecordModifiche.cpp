// Records added, saved, given up and deleted.
#include "catalogue/AggiustaCasini.h"
#include "catalogue/forms/SchedaRecord.h"
#include "catalogue/forms/SchedaRecordNumeri.h"
#include "core/ErrorLog.h"
#include "core/Helpers.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/StatusPanels.h"

#include <QLineEdit>

namespace {

constexpr int kLivelloCancella = 6; // the level that may really delete

} // namespace

void SchedaRecord::MnuAdd_Click()
{
    const auto passi = [this] {
        pannelloStato("Procedura " + windowTitle() + " Inserimento Nuovo Record");
        m_modulo.schermate.nascondiErroreSfondo();
        RsScheda->AddNew();
        RsScheda->setValue("Id", NuovoId(m_modulo, tabella()));
        RsScheda->setValue("DataInserimento", m_modulo.DataAvvio);
        Stato = "I";
        Annullato = false;
        MnuDisabilita();
        for (CampoLegato *one : m_legati)
            one->show();
    };
    // A row that got no key must not wait to be stored.
    comandoRecord("MnuAdd_Click ", passi, [this](const Failure &) {
        if (RsScheda->isAdding())
            RsScheda->CancelUpdate();
    });
}

void SchedaRecord::MnuDisabilita()
{
    mostraVoce("MnuView", false);
    mostraVoce("MnuEsci", false);
    for (const int panel : Pannelli::Inserimento)
        m_barra->setPanelVisible(panel, true);
    for (const int panel : Pannelli::Vista)
        m_barra->setPanelVisible(panel, false);
    m_picStatBox->hide();
}

void SchedaRecord::mnuAbilita()
{
    mostraVoce("MnuView", true);
    mostraVoce("MnuEsci", true);
    for (const int panel : Pannelli::Inserimento)
        m_barra->setPanelVisible(panel, false);
    for (const int panel : Pannelli::Vista)
        m_barra->setPanelVisible(panel, true);
    m_picStatBox->show();
}

void SchedaRecord::MnuUpdate_Click()
{
    SalvatoOk = false;
    comandoRecord(
        "MnuUpdate_Click ",
        [this] {
            RsScheda->UpdateBatch();
            scriviPosizioneSalvata();
            SalvatoOk = true;
            Stato = "V";
            mnuAbilita();
        },
        [this](const Failure &errore) { ripara(errore); });
}

// Where somebody else has changed the record, no value of this one is at fault: there is nothing to mend.
void SchedaRecord::ripara(const Failure &errore)
{
    if (errore.number() == FailureNumber::RowChanged)
        dopoErrore(errore);
    else
        AggiustaCasini();
    Stato = "V";
    mnuAbilita();
}

void SchedaRecord::AggiustaCasini()
{
    try {
        for (const auto &[index, casella] : m_campi) {
            if (!aggiustaCampo(*casella))
                return;
        }
        RsScheda->Update();
    } catch (const Failure &errore) {
        ScriviLogErroreForm(m_modulo, name(), "AggiustaCasini ", errore);
        messaggio("Dati Incongruenti! Mi arrendo.",
                  "I Dati inseriti sono talmente Incongruenti da non essere sistemati!", {"OK!"}, Immagine::Arresa);
    }
}

// Gives false where the value cannot be mended and nothing must be stored.
bool SchedaRecord::aggiustaCampo(CasellaLegata &casella)
{
    const ColonnaTabella *colonna = m_campiTabella.colonna(casella.dataField());
    if (!colonna)
        return true;
    const Aggiustamento cosa = DecidiAggiustamento(*colonna, casella.box()->text());
    if (cosa == Aggiustamento::Passa)
        return true;
    if (cosa == Aggiustamento::Taglia) {
        casella.box()->setText(casella.box()->text().left(colonna->dimensione));
        casella.setMaxLength(colonna->dimensione);
        return true;
    }
    messaggio(
        "Dati eccessivi",
        "Controllare il valore immesso, in quanto eccede, sui valori massimi consentiti, per questo tipo di campo",
        {"OK!"}, cosa == Aggiustamento::FermaData ? Immagine::Data : Immagine::Rifiuto);
    return false;
}

void SchedaRecord::MnuSalva_Click()
{
    comandoRecord("mnusalva_Click ", [this] {
        MnuUpdate_Click();
        if (SalvatoOk)
            mnuAbilita();
    });
}

void SchedaRecord::MnuAnnulla_Click()
{
    comando("MnuAnnulla_Click ", [this] {
        const int answer =
            messaggio("Annullo Movimento", "Confermi l'annullameto delle modifiche apportate \ral record corrente?",
                      {"OK", "ANNULLA"}, Immagine::Annullo);
        if (answer != MsgBoxEx::Second)
            annulla();
    });
}

// The state stays as it was, and a pending new row stays in the record set.
void SchedaRecord::annulla()
{
    Annullato = true;
    mnuAbilita();
    scriviPosizione(Posizione::Annullata);
}

void SchedaRecord::MnuDelete_Click()
{
    comandoRecord("MnuDelete_Click ", [this] {
        if (RsScheda->Eof() || RsScheda->RecordCount() == 0) {
            m_modulo.mondo.schermo.beep();
        } else if (m_modulo.LivelloUtente < kLivelloCancella) {
            messaggio("Operazione NON consentita",
                      "Il contenuto del Record è gestito dalla Procedura\r"
                      "Non è possibile apportare alcuna Modifica / Cancellazione\r"
                      "se non con abilitazione dell'Amministratore di Sistema",
                      {"OK!"}, Immagine::Rifiuto);
        } else if (ConfermaCancellazione()) {
            cancellaConfermato();
        }
    });
}

bool SchedaRecord::ConfermaCancellazione()
{
    return messaggio("Cancellazione Record ...",
                     "Questo Record potrebbe essere \rrelazionato ad altri movimenti.\rSei sicuro di voler cancellare?",
                     {"CANCELLA", "ANNULLA"}, Immagine::Conferma) == MsgBoxEx::First;
}

void SchedaRecord::cancellaConfermato()
{
    RsScheda->Delete();
    m_griglia->setDataSource(RsScheda);
    m_griglia->refresh();
    if (RsScheda->Eof())
        cmdLast_Click();
    else
        cmdNext_Click();
    scriviPosizione(Posizione::Record);
}
