// The commands of the record forms that change no record: search, grid, prints, programs. And the character check.
#include "catalogue/ControllaCaratteri.h"
#include "catalogue/forms/SchedaRecord.h"
#include "catalogue/forms/SchedaRecordNumeri.h"
#include "catalogue/RicercaRecord.h"
#include "core/ErrorLog.h"
#include "platform/ui/DataGrid.h"

#include <QLabel>
#include <QPixmap>

void SchedaRecord::MnuRicerca_Click()
{
    comandoRecord("mnuRicerca_Click ", [this] {
        const int posizione = RsScheda->AbsolutePosition();
        UltimoCriterio = m_modulo.mondo.dialoghi.InputBox(richiestaRicerca(), "RICERCA");
        if (!UltimoCriterio.isEmpty()) {
            UltimoCriterio = CriterioRicerca(campoRicerca(), UltimoCriterio);
            if (RsScheda->RecordCount() > 0)
                RsScheda->MoveFirst();
            cercaOAvvisa(posizione);
        }
        scriviPosizioneSalvata();
    });
}

void SchedaRecord::MnuSuccessivo_Click()
{
    comandoRecord("mnuSuccessivo_Click ", [this] {
        messaggio(
            "Contattare il programmatore della procedura",
            "Il programmatore deve contribuire all'attivazione della modalità di Ricerca, disattivando i commenti "
            "del codice.",
            {"OK!"}, Immagine::Programmatore);
        if (!UltimoCriterio.isEmpty()) {
            const int posizione = RsScheda->AbsolutePosition();
            if (RsScheda->RecordCount() > 0)
                RsScheda->MoveNext();
            cercaOAvvisa(posizione);
        }
        scriviPosizioneSalvata();
    });
}

void SchedaRecord::cercaOAvvisa(int posizione)
{
    if (!CercaDa(*RsScheda, UltimoCriterio, posizione))
        messaggio("RICERCA ...K.O!!", "ELEMENTO non trovato!!", {"OK!"}, Immagine::Rifiuto);
}

void SchedaRecord::mnuGriglia_Click()
{
    comandoRecord("mnuGriglia_Click ", [this] {
        scriviCampi();
        m_griglia->isHidden() ? mostraGriglia() : nascondiGriglia();
    });
}

void SchedaRecord::pannelloGriglia()
{
    if (Stato != "V" && Stato != "M")
        return;
    m_griglia->raise();
    mnuGriglia_Click();
}

void SchedaRecord::nascondiGriglia()
{
    if (m_corpo)
        m_corpo->setEnabled(true);
    m_griglia->hide();
}

void SchedaRecord::mostraGriglia()
{
    m_griglia->setDataSource(RsScheda);
    m_griglia->show();
    m_griglia->raise();
    m_griglia->setFocus();
    if (m_corpo)
        m_corpo->setEnabled(false);
}

void SchedaRecord::MnuRefresh_Click()
{
    comandoRecord("MnuRefresh_Click ", [this] {
        RsScheda->Requery();
        scriviPosizioneSalvata();
    });
}

// The picture of the form goes to the printer by way of a file, which is gone afterwards.
void SchedaRecord::MnuStampa_Click()
{
    try {
        stampaImmagine();
    } catch (const Failure &errore) {
        messaggio("Impossibile stampare il form.", "Stampante non pronta", {"OK!"}, Immagine::Stampante);
        ScriviLogErroreForm(m_modulo, name(), "MnuStampa_Click ", errore);
    }
}

void SchedaRecord::stampaImmagine()
{
    const ProgramFolder &folder = m_modulo.mondo.folder;
    if (!folder.folderExists("\\documenti"))
        folder.makeFolder("documenti");
    const QString told = "\\documenti\\" + name() + ".png";
    if (!grab().save(folder.resolve(told)))
        throw Failure::usual(FailureNumber::PathAccess, folder.resolve(told));
    try {
        m_modulo.mondo.programmi.start(ProgramKind::Printer, folder.resolve(told));
    } catch (const Failure &) {
        folder.deleteFile(told);
        throw;
    }
    folder.deleteFile(told);
}

void SchedaRecord::mnuImposta_Click()
{
    try {
        m_modulo.mondo.programmi.start(ProgramKind::Printer, {});
    } catch (const Failure &errore) {
        messaggio("Avverti Programmatore", "Il programmatore deve inserire controllo COmmondialog", {"OK!"},
                  Immagine::Stampante);
        ScriviLogErroreForm(m_modulo, name(), "mnuImposta_Click ", errore);
    }
}

void SchedaRecord::MnuCalcola_Click()
{
    comando("MnuCalcola_Click ", [this] { m_modulo.mondo.programmi.start(ProgramKind::Calculator, "calc.exe"); });
}

void SchedaRecord::MnuContrChar_Click()
{
    try {
        m_lblStatus->setText("Elaborazione in corso ... Attendere prego ..");
        m_lblStatus->repaint();
        ControllaCaratteri(*RsScheda, m_modulo.dati());
        scriviPosizione(rigaNavigazione(Arrivo::AlPrimo));
    } catch (const Failure &errore) {
        messaggio("Errore generico", errore.words() + " # ", {"#@!?   OK!"}, Immagine::Caratteri);
        ScriviLogErroreForm(m_modulo, name(), "MnuContrChar_Click ", errore);
        dopoErrore(errore);
        scriviPosizione(rigaNavigazione(Arrivo::AlPrimo));
    }
}

void SchedaRecord::mnuLog_Click()
{
    comando("mnuLog_Click ", [this] {
        const ProgramFolder &folder = m_modulo.mondo.folder;
        const QString log = "\\Errori\\Err" + name() + ".txt";
        if (folder.fileExists(log))
            m_modulo.mondo.programmi.start(ProgramKind::TextViewer, folder.resolve(log));
        else
            messaggio("Procedura ancora Esente da Errori", "Non ci sono Errori-Procedura da segnalare!!", {"OK!"},
                      Immagine::LogVuoto);
    });
}

// The archive opens in the desktop's own program for such files, where it has one.
void SchedaRecord::MnuMostraTabella_Click()
{
    try {
        m_modulo.mondo.programmi.start(ProgramKind::Files, ProgramFolder::resolveAbsolute(m_modulo.PercorsoDbDati));
    } catch (const Failure &errore) {
        messaggio("Errore", errore.words(), {"OK!"}, 0);
        ScriviLogErroreForm(m_modulo, name(), "MnuMostraTabella_Click ", errore);
    }
}

void SchedaRecord::MnuClose_Click()
{
    comando("MnuUpdate_Click ", [this] { unload(); });
}

void SchedaRecord::MnuEsci_Click()
{
    comando("mnuesci_Click ", [this] {
        if (Stato != "V")
            MnuSalva_Click();
        MnuClose_Click();
    });
}
