// What the record forms share: one record set, bound boxes, navigation, a status bar of function keys, and the commands
// add, save, cancel, delete, search, print, grid, close.
//
// A form made from it has in its .ui file the text boxes TxtFields_<n>, each with a dynamic property DataField, the
// grid MyGriglia, picStatBox with cmdFirst, cmdPrevious, cmdNext, cmdLast and lblStatus, the bar StatusBar1, and those
// of the menu entries below that it offers. It calls prepara() behind setupUi and says in the hooks what it does its
// own way. The .ui file may also have an AvvisoModifica, which shows while something typed is not stored yet.
//
//   FrmCategorie::FrmCategorie(FormHost &host, ModNetServer &modulo) : SchedaRecord("FrmCategorie", host, modulo)
//   {
//       m_ui->setupUi(this);
//       prepara({{"F5 New", "Aggiunge un Nuovo Record "}, {"F4 Ricerca", "Ricerca"}, ...});
//   }
//   QString istruzione() const override { return "SELECT * FROM Categorie"; }
//
// Every handler runs inside comando(), the error routine: what fails in it is shown and logged under the handler's own
// name, and the form stays open in its state.
#pragma once

#include "catalogue/CampiTabella.h"
#include "catalogue/RigaPosizione.h"
#include "core/ModNetServer.h"
#include "platform/ui/CampoLegato.h"
#include "platform/ui/Form.h"

#include <functional>
#include <map>
#include <memory>
#include <vector>

class DataGrid;
class AvvisoModifica;
class QAction;
class QLabel;
class QMenu;
class StatusPanels;

class SchedaRecord : public Form
{
    Q_OBJECT

public:
    // The state in one letter: "V" view, "I" inserting, "M" modifying; empty until a form has set it.
    QString stato() const { return Stato; }

protected:
    struct Pannello
    {
        QString testo, suggerimento;
    };

    SchedaRecord(const QString &name, FormHost &host, ModNetServer &modulo);
    ~SchedaRecord() override;
    // Finds the template's controls, makes the panels of StatusBar1 (seven or nine) and connects the handlers.
    void prepara(const std::vector<Pannello> &pannelli);

    // What a form says of itself
    virtual QString istruzione() const = 0;                                 // of RsScheda
    virtual QString tabella() const { return QStringLiteral("Categorie"); } // whose next key a new record gets
    virtual Recordset::Access accesso() const { return Recordset::Access::Updatable; }
    virtual QString richiestaRicerca() const = 0; // prompt of the search
    virtual QString campoRicerca() const = 0;     // the column that the search looks through
    // Position line of the four navigation commands, and what they tell on the background beforehand.
    enum class Arrivo
    {
        AlPrimo,
        Altrove
    };
    virtual RigaPosizione rigaNavigazione(Arrivo arrivo) const;
    virtual void annunciaNavigazione();
    // First thing in every command on records (navigation, add, save, delete, search, refresh, grid), before its own
    // steps; what it throws ends the command.
    virtual void primaDelComando() {}
    // The form's own combos, once RsScheda is open.
    virtual void legaCombo() {}
    // Locks boxes by Stato; a form that needs it calls it.
    virtual void BloccaControlli() {}
    virtual void MnuDisabilita();
    // The cancel, once the user has confirmed it.
    virtual void annulla();
    // A function key or panel ("F6") that the template does not know; true where the form has dealt with it.
    virtual bool tastoProprio(const QString &tasto);
    // The panel "Griglia".
    virtual void pannelloGriglia();
    // A double click on MyGriglia.
    virtual void nascondiGriglia();
    // After a failure was shown. A row that somebody else has changed meanwhile is read again and comes on show.
    virtual void dopoErrore(const Failure &errore);

    // Load, resize, keys: a form with a load of its own calls the steps it shares
    void Form_Load() override;
    void Form_Resize() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) override;
    void Form_KeyPress(int character) override;
    void Form_DblClick() override;

    void proceduraAvvio(); // the start routine: column check, .mnu file; its failure is shown and logged
    void pannelloStato(const QString &testo); // panel 4 of the background
    void tappa();                             // one more "." on it
    QString inEsecuzione() const;             // what it says once the form is there
    void diritti();                           // what the user's level offers
    void apriScheda();                        // RsScheda
    // Binds every TxtFields to its field, and limits what may be typed into it to what the column holds.
    void legaCampi(const std::shared_ptr<Recordset> &recordset);
    void SettaLenTxt();
    void codaTitolo(); // the caption gains its tail

    // Commands: menu entry, key and panel alike
    virtual void MnuAdd_Click();
    virtual void mnuModifica_Click() {} // no modify step in the template
    virtual void MnuDelete_Click();
    virtual void MnuRicerca_Click();
    virtual void MnuSuccessivo_Click();
    virtual void MnuStampa_Click();
    virtual void MnuFileTesto_Click() {}
    virtual void mnuImposta_Click();
    virtual void mnuGriglia_Click();
    virtual void MnuHelp_Click() {}
    virtual void TxtFields_LostFocus(int index);
    void MnuUpdate_Click();
    void MnuSalva_Click();
    void MnuAnnulla_Click();
    void MnuRefresh_Click();
    void MnuCalcola_Click();
    void MnuContrChar_Click();
    void mnuLog_Click();
    void MnuMostraTabella_Click();
    void MnuClose_Click();
    void MnuEsci_Click();
    void cmdFirst_Click();
    void cmdLast_Click();
    void cmdNext_Click();
    void cmdPrevious_Click();
    void StatusBar1_PanelClick(int panel);
    void ImgMarvo_Click();

    // Parts

    using Rimedio = std::function<void(const Failure &)>;
    // Runs a handler with the error routine behind it, then `rimedio` or dopoErrore; gives whether it went through.
    bool comando(const QString &handler, const std::function<void()> &passi, const Rimedio &rimedio = {});
    // The same with primaDelComando first.
    bool comandoRecord(const QString &handler, const std::function<void()> &passi, const Rimedio &rimedio = {});
    void eseguiTasto(const QString &tasto); // "F2" to "F12"
    void mnuAbilita();
    void scriviPosizione(const RigaPosizione &riga);
    void scriviPosizioneSalvata(); // "F1 Help     *    Record: ...", the line of save, refresh, search
    void maiuscolo(int index);     // capitals and accented letters, where Stato is not "V" and the field is not null
    // A bound control that is no TxtFields: a change of it shows as unsaved, too.
    void aggiungiCampo(CampoLegato *altro);
    // A bound control was left: runs `passi`, and brings the keyboard back to it where they fail.
    void lasciato(const QString &handler, CampoLegato &campo, const std::function<void()> &passi);
    void scriviCampi(); // what was typed into the boxes goes into the row
    CampoLegato &campo(int index) { return *m_campi.at(index); }
    const std::map<int, CasellaLegata *> &campi() const { return m_campi; }
    QAction *voce(const char *name) const; // null where the form has no such entry
    void mostraVoce(const char *name, bool visible);
    QLabel &lblStatus() { return *m_lblStatus; }
    StatusPanels &barra() { return *m_barra; }
    ModNetServer &modulo() const { return m_modulo; }
    int messaggio(const QString &titolo, const QString &corpo, const QStringList &bottoni, int immagine) const;

    QString Stato;
    std::shared_ptr<Recordset> RsScheda = std::make_shared<Recordset>();
    CampiTabella m_campiTabella;
    QString UltimoCriterio; // what search next looks for
    bool SalvatoOk = false; // the last save ran through
    bool Annullato = false; // a cancel was confirmed

private:
    class InComando;

    void findControls();
    void connectCommands();
    void connectBoxes();
    void collegaVoce(const char *name, void (SchedaRecord::*handler)());
    void collegaBottone(const char *name, void (SchedaRecord::*handler)());
    bool tastoNavigazione(int key, Qt::KeyboardModifiers modifiers);
    bool tastoFunzione(int key);
    bool tastoInvio(int key);
    bool eseguiTastoComune(const QString &tasto);
    void soloSe(bool condition, const std::function<void()> &passi); // else a beep
    void limitaCampo(CasellaLegata &casella, const FieldInfo &campo);
    void stampaImmagine();
    void ripara(const Failure &errore);
    void AggiustaCasini();
    bool aggiustaCampo(CasellaLegata &casella);
    bool ConfermaCancellazione();
    void cancellaConfermato();
    void cercaOAvvisa(int posizione);
    void mostraGriglia();
    void rileggi();
    void passiAvvio();

    ModNetServer &m_modulo;
    std::map<int, CasellaLegata *> m_campi;
    std::vector<CampoLegato *> m_legati; // all bound controls, m_campi among them
    AvvisoModifica *m_linea = nullptr;   // null where the form has none
    QWidget *m_corpo = nullptr;          // what MyGriglia covers, out of the keyboard's reach meanwhile; or null
    DataGrid *m_griglia = nullptr;
    QWidget *m_picStatBox = nullptr;
    QLabel *m_lblStatus = nullptr;
    StatusPanels *m_barra = nullptr;
    int m_profondita = 0; // commands on records on the stack
};
