// Keys and panels of the record forms, and the navigation that they start.
#include "catalogue/forms/SchedaRecord.h"
#include "catalogue/forms/SchedaRecordNumeri.h"
#include "core/Helpers.h"
#include "platform/ui/StatusPanels.h"

#include <QAbstractItemView>
#include <QLabel>

#include <algorithm>

void SchedaRecord::Form_KeyDown(int key, Qt::KeyboardModifiers modifiers)
{
    if (modifiers & Qt::AltModifier) // Alt+Down opens a list, Alt+F4 closes the window
        return;
    if (tastoInvio(key) || tastoNavigazione(key, modifiers) || tastoFunzione(key))
        swallowKey();
}

bool SchedaRecord::tastoInvio(int key)
{
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    const auto isFocused = [this](const CampoLegato *one) { return one->control() == focusWidget(); };
    if (!enter || !std::any_of(m_legati.begin(), m_legati.end(), isFocused))
        return false;
    comando("txtFields_KeyPress ", [this] { focusNextChild(); });
    return true;
}

// A grid moves its own rows.
bool SchedaRecord::tastoNavigazione(int key, Qt::KeyboardModifiers modifiers)
{
    if (m_picStatBox->isHidden() || Stato != "V" || qobject_cast<QAbstractItemView *>(focusWidget()))
        return false;
    const bool toEnd = modifiers & Qt::ControlModifier;
    switch (key) {
    case Qt::Key_Home:
        cmdFirst_Click();
        return true;
    case Qt::Key_End:
        cmdLast_Click();
        return true;
    case Qt::Key_Up:
    case Qt::Key_PageUp:
        toEnd ? cmdFirst_Click() : cmdPrevious_Click();
        return true;
    case Qt::Key_Down:
    case Qt::Key_PageDown:
        toEnd ? cmdLast_Click() : cmdNext_Click();
        return true;
    default:
        return false;
    }
}

bool SchedaRecord::tastoFunzione(int key)
{
    if (key < Qt::Key_F2 || key > Qt::Key_F12)
        return false;
    const QString tasto = 'F' + QString::number(key - Qt::Key_F1 + 1);
    bool known = true;
    comando("Form_KeyDown ", [&] { known = eseguiTastoComune(tasto) || tastoProprio(tasto); });
    return known;
}

void SchedaRecord::eseguiTasto(const QString &tasto)
{
    if (!eseguiTastoComune(tasto))
        tastoProprio(tasto);
}

bool SchedaRecord::eseguiTastoComune(const QString &tasto)
{
    const bool vista = Stato == "V";
    if (tasto == "F2")
        MnuCalcola_Click();
    else if (tasto == "F3")
        soloSe(vista && m_barra->isPanelEnabled(Pannelli::Cancella), [this] { MnuDelete_Click(); });
    else if (tasto == "F4")
        soloSe(vista, [this] { MnuRicerca_Click(); });
    else if (tasto == "F5")
        soloSe(vista && m_barra->isPanelEnabled(Pannelli::Nuovo), [this] { MnuAdd_Click(); });
    else if (tasto == "F7")
        soloSe(vista, [this] { MnuSuccessivo_Click(); });
    else if (tasto == "F8")
        soloSe(vista, [this] { MnuStampa_Click(); });
    else if (tasto == "F10")
        soloSe(!vista, [this] { MnuAnnulla_Click(); });
    else if (tasto == "F11")
        MnuClose_Click();
    else if (tasto == "F12")
        soloSe(!vista, [this] { MnuSalva_Click(); });
    else
        return false;
    return true;
}

void SchedaRecord::soloSe(bool condition, const std::function<void()> &passi)
{
    if (condition)
        passi();
    else
        m_modulo.mondo.schermo.beep();
}

bool SchedaRecord::tastoProprio(const QString &)
{
    return false;
}

void SchedaRecord::StatusBar1_PanelClick(int panel)
{
    comando("StatusBar1_PanelClick ", [this, panel] {
        const QString tasto = m_barra->panelText(panel).left(3).trimmed().toUpper();
        if (tasto == "GRI")
            pannelloGriglia();
        else
            eseguiTasto(tasto);
    });
}

void SchedaRecord::Form_KeyPress(int character)
{
    if (character == kEscape)
        unload();
}

void SchedaRecord::Form_DblClick()
{
    comando("Form_DblClick ", [this] { SegnalaProblemi(m_modulo, name()); });
}

void SchedaRecord::ImgMarvo_Click()
{
    Form_DblClick();
}

void SchedaRecord::scriviPosizione(const RigaPosizione &riga)
{
    m_lblStatus->setText(riga.testo(*RsScheda));
}

void SchedaRecord::scriviPosizioneSalvata()
{
    scriviPosizione(Posizione::Salvata);
}

RigaPosizione SchedaRecord::rigaNavigazione(Arrivo arrivo) const
{
    return arrivo == Arrivo::AlPrimo ? Posizione::AlPrimo : Posizione::Navigazione;
}

void SchedaRecord::annunciaNavigazione()
{
    pannelloStato(inEsecuzione());
}

void SchedaRecord::cmdFirst_Click()
{
    comandoRecord("cmdFirst_Click ", [this] {
        annunciaNavigazione();
        if (RsScheda->RecordCount() > 0)
            RsScheda->MoveFirst();
        scriviPosizione(rigaNavigazione(Arrivo::AlPrimo));
    });
}

void SchedaRecord::cmdLast_Click()
{
    comandoRecord("cmdLast_Click ", [this] {
        annunciaNavigazione();
        if (RsScheda->RecordCount() > 0)
            RsScheda->MoveLast();
        scriviPosizione(rigaNavigazione(Arrivo::Altrove));
    });
}

// Past the last record the sheet wraps round to the first, and back.
void SchedaRecord::cmdNext_Click()
{
    comandoRecord("cmdNext_Click ", [this] {
        m_modulo.schermate.nascondiErroreSfondo();
        if (!RsScheda->Eof())
            RsScheda->MoveNext();
        if (RsScheda->Eof() && RsScheda->RecordCount() > 0) {
            m_modulo.mondo.schermo.beep();
            RsScheda->MoveFirst();
        }
        scriviPosizione(rigaNavigazione(Arrivo::Altrove));
    });
}

void SchedaRecord::cmdPrevious_Click()
{
    comandoRecord("cmdPrevious_Click ", [this] {
        m_modulo.schermate.nascondiErroreSfondo();
        if (!RsScheda->Bof())
            RsScheda->MovePrevious();
        if (RsScheda->Bof() && RsScheda->RecordCount() > 0) {
            m_modulo.mondo.schermo.beep();
            RsScheda->MoveLast();
        }
        scriviPosizione(rigaNavigazione(Arrivo::Altrove));
    });
}
