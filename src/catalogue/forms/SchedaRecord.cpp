#include "catalogue/forms/SchedaRecord.h"

#include "catalogue/ElencoMenu.h"
#include "catalogue/forms/SchedaRecordNumeri.h"
#include "core/ErrorLog.h"
#include "core/Helpers.h"
#include "core/Locations.h"
#include "platform/ui/AvvisoModifica.h"
#include "platform/ui/ControlArray.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/StatusPanels.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

namespace {

constexpr int kPannelloStato = 4; // of the background's status bar
constexpr int kDayLength = 10;    // dd/mm/yyyy

void addEntries(const QList<QAction *> &actions, std::vector<VoceMenu> &entries)
{
    for (const QAction *action : actions) {
        if (const QMenu *menu = action->menu()) {
            entries.emplace_back(menu->objectName(), menu->title());
            addEntries(menu->actions(), entries);
        } else {
            entries.emplace_back(action->objectName(), action->text());
        }
    }
}

bool isNumber(const FieldInfo &campo)
{
    return campo.type == ColumnType::Number || campo.type == ColumnType::Long;
}

} // namespace

// A command on records; one that another command calls begins with no preparation of its own.
class SchedaRecord::InComando
{
public:
    explicit InComando(SchedaRecord &scheda) : m_scheda(scheda)
    {
        if (m_scheda.m_profondita == 0)
            m_scheda.primaDelComando();
        ++m_scheda.m_profondita;
    }
    ~InComando() { --m_scheda.m_profondita; }
    InComando(const InComando &) = delete;
    InComando &operator=(const InComando &) = delete;

private:
    SchedaRecord &m_scheda;
};

SchedaRecord::SchedaRecord(const QString &name, FormHost &host, ModNetServer &modulo)
    : Form(name, host), m_modulo(modulo)
{
}

SchedaRecord::~SchedaRecord() = default;

void SchedaRecord::prepara(const std::vector<Pannello> &pannelli)
{
    findControls();
    for (const Pannello &panel : pannelli)
        m_barra->addPanel(panel.testo, panel.suggerimento);
    connectCommands();
    connectBoxes();
}

void SchedaRecord::findControls()
{
    m_griglia = findChild<DataGrid *>("MyGriglia");
    m_picStatBox = findChild<QWidget *>("picStatBox");
    m_lblStatus = findChild<QLabel *>("lblStatus");
    m_barra = findChild<StatusPanels *>("StatusBar1");
    m_linea = findChild<AvvisoModifica *>();
    m_corpo = findChild<QWidget *>("Corpo");
    Q_ASSERT(m_griglia && m_picStatBox && m_lblStatus && m_barra);
    m_griglia->setHost(&host());
    m_griglia->hide();
}

QAction *SchedaRecord::voce(const char *name) const
{
    if (const auto *menu = findChild<QMenu *>(name))
        return menu->menuAction();
    return findChild<QAction *>(name);
}

void SchedaRecord::mostraVoce(const char *name, bool visible)
{
    if (QAction *action = voce(name))
        action->setVisible(visible);
}

void SchedaRecord::collegaVoce(const char *name, void (SchedaRecord::*handler)())
{
    if (QAction *action = voce(name))
        on(action, &QAction::triggered, this, handler);
}

void SchedaRecord::collegaBottone(const char *name, void (SchedaRecord::*handler)())
{
    if (auto *button = findChild<QAbstractButton *>(name))
        on(button, &QAbstractButton::clicked, this, handler);
}

void SchedaRecord::connectCommands()
{
    static const std::pair<const char *, void (SchedaRecord::*)()> entries[] = {
        {"MnuAdd", &SchedaRecord::MnuAdd_Click},
        {"MnuUpdate", &SchedaRecord::MnuUpdate_Click},
        {"MnuDelete", &SchedaRecord::MnuDelete_Click},
        {"MnuRicerca", &SchedaRecord::MnuRicerca_Click},
        {"MnuSuccessivo", &SchedaRecord::MnuSuccessivo_Click},
        {"MnuStampa", &SchedaRecord::MnuStampa_Click},
        {"MnuFileTesto", &SchedaRecord::MnuFileTesto_Click},
        {"mnuImposta", &SchedaRecord::mnuImposta_Click},
        {"MnuMostraTabella", &SchedaRecord::MnuMostraTabella_Click},
        {"MnuRefresh", &SchedaRecord::MnuRefresh_Click},
        {"mnuGriglia", &SchedaRecord::mnuGriglia_Click},
        {"MnuCalcola", &SchedaRecord::MnuCalcola_Click},
        {"MnuContrChar", &SchedaRecord::MnuContrChar_Click},
        {"mnuLog", &SchedaRecord::mnuLog_Click},
        {"MnuHelp", &SchedaRecord::MnuHelp_Click},
        {"MnuClose", &SchedaRecord::MnuClose_Click},
        {"MnuAnnulla", &SchedaRecord::MnuAnnulla_Click},
        {"MnuAnnulla2", &SchedaRecord::MnuAnnulla_Click},
        {"MnuSalva", &SchedaRecord::MnuSalva_Click},
        {"MnuSalva2", &SchedaRecord::MnuSalva_Click},
        {"MnuEsci", &SchedaRecord::MnuEsci_Click},
    };
    for (const auto &[name, handler] : entries)
        collegaVoce(name, handler);
    collegaBottone("cmdFirst", &SchedaRecord::cmdFirst_Click);
    collegaBottone("cmdPrevious", &SchedaRecord::cmdPrevious_Click);
    collegaBottone("cmdNext", &SchedaRecord::cmdNext_Click);
    collegaBottone("cmdLast", &SchedaRecord::cmdLast_Click);
    collegaBottone("ImgMarvo", &SchedaRecord::ImgMarvo_Click);
    onWith(m_barra, &StatusPanels::panelClicked, this, &SchedaRecord::StatusBar1_PanelClick);
    onDo(m_griglia, &DataGrid::DblClick, [this] { nascondiGriglia(); });
}

void SchedaRecord::connectBoxes()
{
    for (const auto &[index, box] : ControlArray<QLineEdit>(this, "TxtFields")) {
        auto *campo = new CasellaLegata(box, box->property("DataField").toString());
        m_campi[index] = campo;
        onDo(campo, &CampoLegato::left, [this, which = index] { TxtFields_LostFocus(which); });
        aggiungiCampo(campo);
    }
}

void SchedaRecord::aggiungiCampo(CampoLegato *altro)
{
    m_legati.push_back(altro);
    if (m_linea)
        m_linea->segui(altro);
}

// Error routine

bool SchedaRecord::comando(const QString &handler, const std::function<void()> &passi, const Rimedio &rimedio)
{
    try {
        passi();
        return true;
    } catch (const Failure &errore) {
        RoutineErrore(m_modulo, name(), handler, errore);
        rimedio ? rimedio(errore) : dopoErrore(errore);
        return false;
    }
}

bool SchedaRecord::comandoRecord(const QString &handler, const std::function<void()> &passi, const Rimedio &rimedio)
{
    const auto prepared = [&] {
        const InComando inside(*this);
        passi();
    };
    return comando(handler, prepared, rimedio);
}

void SchedaRecord::dopoErrore(const Failure &errore)
{
    if (errore.number() == FailureNumber::RowChanged)
        rileggi();
}

// The other program's values come on show; what was typed against them is given up.
void SchedaRecord::rileggi()
{
    RsScheda->Resync();
    scriviPosizioneSalvata();
}

int SchedaRecord::messaggio(const QString &titolo, const QString &corpo, const QStringList &bottoni, int immagine) const
{
    MsgBoxEx box;
    box.title = titolo;
    box.body = corpo;
    box.buttons = bottoni;
    box.defaultFlag = bottoni.size() == 2 ? MsgBoxEx::SecondIsDefault : 0;
    box.buttonCode = bottoni.size() == 2 ? MsgBoxEx::TwoButtons : 0;
    box.picture = immagine;
    return m_modulo.mondo.dialoghi.Msg1(box);
}

// Start, load, resize

void SchedaRecord::pannelloStato(const QString &testo)
{
    m_modulo.schermate.setPannelloSfondo(kPannelloStato, testo);
}

void SchedaRecord::tappa()
{
    pannelloStato(m_modulo.schermate.pannelloSfondo(kPannelloStato) + '.');
}

QString SchedaRecord::inEsecuzione() const
{
    return "Procedura " + windowTitle() + " in esecuzione";
}

void SchedaRecord::proceduraAvvio()
{
    comando("Form_Load ", [this] { passiAvvio(); });
}

void SchedaRecord::passiAvvio()
{
    m_modulo.mondo.schermo.setMousePointer(MousePointer::Hourglass);
    pannelloStato("Lettura Tabelle in corso ");
    tappa();
    if (!m_modulo.ConnessioneDati)
        ApriConnessioni(m_modulo);
    tappa();
    m_campiTabella = LeggiCampiTabella(m_modulo);
    tappa();
    const QString mancanti = m_campiTabella.mancanti();
    tappa();
    if (!mancanti.isEmpty()) {
        m_modulo.mondo.dialoghi.Msg1(TabellaNonConforme(m_campiTabella.tabella, mancanti));
        pannelloStato("Mancanza di campi necessari al buon funzionamento delle procedure!!!!");
    }
    tappa();
    std::vector<VoceMenu> voci;
    addEntries(menuBar()->actions(), voci);
    AssicuraElencoMenu(m_modulo, name(), voci);
    tappa();
}

void SchedaRecord::Form_Load()
{
    proceduraAvvio();
    comando("Form_Load ", [this] {
        RegistraModifica(m_modulo, m_modulo.mondo.folder.path() + "\\" + name() + ".FRM");
        tappa();
        pannelloStato("Apertura Form.");
        Stato = "V";
        m_modulo.schermate.suggerimentoErroreSfondo("Procedura " + windowTitle());
        tappa();
        diritti();
        tappa();
        apriScheda();
        tappa();
        m_griglia->setDataSource(RsScheda);
        tappa();
        legaCampi(RsScheda);
        tappa();
        legaCombo();
        tappa();
        SettaLenTxt();
        pannelloStato(m_modulo.schermate.pannelloSfondo(kPannelloStato) + "OK!" + " !");
        pannelloStato(inEsecuzione());
        codaTitolo();
    });
    m_modulo.mondo.schermo.setMousePointer(MousePointer::Default);
}

void SchedaRecord::diritti()
{
    m_barra->setPanelEnabled(Pannelli::Nuovo, m_modulo.PuoAggiungere());
    mostraVoce("MnuAdd", m_modulo.PuoAggiungere());
    mostraVoce("mnuDuplica", m_modulo.PuoAggiungere());
    m_barra->setPanelEnabled(Pannelli::Cancella, m_modulo.PuoCancellare());
    mostraVoce("MnuDelete", m_modulo.PuoCancellare());
}

void SchedaRecord::apriScheda()
{
    RsScheda->Open(istruzione(), m_modulo.dati(), accesso());
}

void SchedaRecord::legaCampi(const std::shared_ptr<Recordset> &recordset)
{
    if (m_linea)
        m_linea->segui(recordset.get());
    for (const auto &[index, casella] : m_campi) {
        casella->setDataSource(recordset);
        limitaCampo(*casella, recordset->field(recordset->fieldIndex(casella->dataField())));
    }
}

void SchedaRecord::limitaCampo(CasellaLegata &casella, const FieldInfo &campo)
{
    const bool isText = campo.type == ColumnType::Text || campo.type == ColumnType::Memo;
    if (isText && DimensioneDefinita(campo) < kDimensioneMemo)
        casella.setMaxLength(DimensioneDefinita(campo));
    else if (campo.type == ColumnType::Date)
        casella.setMaxLength(kDayLength);
    if (isNumber(campo))
        casella.box()->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void SchedaRecord::SettaLenTxt()
{
    comando("SettaLenTxt ", [this] {
        for (const auto &[index, casella] : m_campi) {
            const ColonnaTabella *colonna = m_campiTabella.colonna(casella->dataField());
            if (colonna && colonna->tipo.at(1) == 'T')
                casella->setMaxLength(colonna->dimensione);
        }
    });
}

void SchedaRecord::codaTitolo()
{
    setWindowTitle(windowTitle() + QString(10, ' ') + '(' + name() + ".frm)");
}

void SchedaRecord::Form_Resize()
{
    comando("Form_Resize", [this] {
        m_modulo.mondo.schermo.setMousePointer(MousePointer::Hourglass);
        if (RsScheda->RecordCount() > 0)
            cmdFirst_Click();
        scriviPosizione(Posizione::Record);
        m_lblStatus->setAlignment(Qt::AlignCenter);
    });
    m_modulo.mondo.schermo.setMousePointer(MousePointer::Default);
}

// Boxes

void SchedaRecord::maiuscolo(int index)
{
    QLineEdit *box = m_campi.at(index)->box();
    const QString capitals = Accenta(box->text().toUpper());
    if (Stato != "V" && box->text() != capitals)
        box->setText(capitals);
}

void SchedaRecord::scriviCampi()
{
    for (CampoLegato *one : m_legati)
        one->write();
}

void SchedaRecord::TxtFields_LostFocus(int index)
{
    lasciato("txtFields_LostFocus ", campo(index), [this, index] {
        maiuscolo(index);
        campo(index).write();
    });
}

// What cannot be written keeps the keyboard, so that it can be mended at once.
void SchedaRecord::lasciato(const QString &handler, CampoLegato &campo, const std::function<void()> &passi)
{
    const bool written = comando(handler, passi);
    if (!written && campo.isChanged())
        QTimer::singleShot(0, &campo, [&campo] { campo.takeFocus(); });
}
