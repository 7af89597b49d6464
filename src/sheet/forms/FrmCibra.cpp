#include "sheet/forms/FrmCibra.h"

#include "catalogue/forms/BarraNavigazione.h"
#include "catalogue/forms/Icone.h"
#include "platform/text/Dates.h"
#include "platform/ui/Disegno.h"
#include "platform/ui/Scritte.h"
#include "platform/ui/StatusPanels.h"
#include "platform/ui/Tema.h"
#include "sheet/ElencoPiatti.h"
#include "sheet/EsportaRecordset.h"
#include "sheet/GiornoScheda.h"
#include "sheet/RigheScheda.h"
#include "sheet/SincronizzaKcal.h"
#include "sheet/StampaHtml.h"
#include "sheet/StampaTesto.h"
#include "ui_FrmCibra.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPixmap>

#include <array>

static void initResources()
{
    Q_INIT_RESOURCE(sheet);
}

namespace {

constexpr int kPannelloSuccessivo = 5; // of the background's status bar
constexpr int kPannelloModifica = 2;   // "F6 Modifica" of the form's own bar
constexpr int kColonnaPersone = 5;     // the first of the six columns that name a person
constexpr QRgb kGrigio = 0xffe0e0e0;   // back colour of the boxes that are filled by the program
constexpr std::array kCaselleGrigie{1, 2, 4, 5, 6, 7, 10};

constexpr QSize kPiuGrande(160, 52); // of a picture beside the prints

std::vector<GridColumn> gridColumns()
{
    return {{"DataInserimento", "Data"},    {"PranzoCenaSpuntino", "Pranzo Cena Spuntino"},
            {"Piatto", "Piatto"},           {"Alimento", "Alimento"},
            {"KC100gr", "KCal per 100 g."}, {"quantita", "Quantita "},
            {"KcNominale", "Kcal "},        {"Totale1", "Totale "},
            {"quantita2", "Quantita "},     {"KcNominale2", "Kcal "},
            {"Totale2", "Totale "}};
}

QColor rowColour(const Recordset &rows, int row)
{
    return Tema::meal(rows.valueAt(row, rows.fieldIndex("PranzoCenaSpuntino")).text());
}

// Readable on a light and on a dark desktop, the grey being the same on both.
void colourGrey(QWidget *box)
{
    QPalette palette = box->palette();
    palette.setColor(QPalette::Base, QColor(kGrigio));
    palette.setColor(QPalette::Text, Qt::black);
    box->setPalette(palette);
}

// The room of a control that comes and goes is kept, so that nothing jumps.
void keepRoom(QWidget *control)
{
    QSizePolicy policy = control->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    control->setSizePolicy(policy);
}

QPixmap picture(const ProgramFolder &folder, const QString &file, const QSize &largest)
{
    const QPixmap drawn(folder.resolve(file));
    return drawn.isNull() ? drawn : drawn.scaled(largest, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace

FrmCibra::FrmCibra(FormHost &host, FormRegistry &registry, ModNetServer &modulo)
    : SchedaRecord("FrmCibra", host, modulo), m_ui(std::make_unique<Ui::FrmCibra>()), m_registry(registry)
{
    initResources();
    m_ui->setupUi(this);
    prepara({{"F5 New", "Aggiunge un Nuovo Record "},
             {"F6 Modifica", "Modifica il Record corrente"},
             {"F4 Ricerca", "Ricerca"},
             {"F7 Ric.Successiva", "Ricerca Successiva"},
             {"F3 Cancella", "Cancella il Record corrente"},
             {"F10 Annulla", "Annulla le modifiche"},
             {"Griglia", "Esce dalla procedura"},
             {"F12 Salva", "Salva le modifiche apportate"},
             {"F11 Esci", "Esce dalla procedura"}});
    dress();
    connectHandlers();
    connectRowCommands();
    watchMouse();
}

FrmCibra::~FrmCibra() = default;

void FrmCibra::dress()
{
    m_ui->TDBGrid1->setHost(&host());
    for (DataGrid *grid : {m_ui->TDBGrid1, m_ui->MyGriglia}) {
        grid->setColumns(gridColumns());
        grid->setRowColour(rowColour);
    }
    m_ui->DataCombo2->lineEdit()->setFont(m_ui->DataCombo2->font());
    for (QWidget *caption :
         std::initializer_list<QWidget *>{m_ui->Label1, m_ui->LbLabel_9, m_ui->LbLabel_11, m_ui->LbLabel_13})
        Tema::colourCaption(caption, Tema::firstPerson());
    for (QWidget *caption :
         std::initializer_list<QWidget *>{m_ui->Label2, m_ui->LbLabel_10, m_ui->LbLabel_12, m_ui->LbLabel_14})
        Tema::colourCaption(caption, Tema::secondPerson());
    VestiNavigazione(m_ui->cmdFirst, m_ui->cmdPrevious, m_ui->cmdNext, m_ui->cmdLast);
    m_ui->ImgMarvo->setIcon(Icone::icona("note"));
    m_ui->Command2->setIcon(Disegno::icon(":/sheet/icons/stampa-html.svg"));
    m_ui->Command14->setIcon(Disegno::icon(":/sheet/icons/stampa-testo.svg"));
    for (const int grey : kCaselleGrigie)
        colourGrey(campi().at(grey)->box());
    m_ui->MnuNascosto->menuAction()->setVisible(false);
    m_ui->Combo1->setCompleter(nullptr);
    m_ui->Command14->hide();
    keepRoom(m_ui->Label5);
    m_ui->Label5->hide();
}

void FrmCibra::connectHandlers()
{
    on(m_ui->DataCombo2, &DataCombo::picked, this, &FrmCibra::DataCombo2_Click);
    on(m_ui->DataCombo2, &DataCombo::textChanged, this, &FrmCibra::DataCombo2_Change);
    on(m_ui->Combo1, &QComboBox::currentTextChanged, this, &FrmCibra::Combo1_Change);
    on(m_ui->Combo1, &QComboBox::activated, this, &FrmCibra::Combo1_Change);
    on(m_ui->Combo1->lineEdit(), &QLineEdit::editingFinished, this, &FrmCibra::Combo1_Change);
    on(m_ui->Command1, &QPushButton::clicked, this, &FrmCibra::Command1_Click);
    on(m_ui->Command5, &QPushButton::clicked, this, &FrmCibra::Command5_Click);
    on(m_ui->Command6, &QPushButton::clicked, this, &FrmCibra::Command6_Click);
    on(m_ui->Check1, &QCheckBox::toggled, this, &FrmCibra::Check1_Click);
    on(m_ui->Option1_0, &QRadioButton::toggled, this, &FrmCibra::Option1_Click);
    on(m_ui->Command2, &QPushButton::clicked, this, &FrmCibra::Command2_Click);
    on(m_ui->Command14, &QPushButton::clicked, this, &FrmCibra::Command14_Click);
    on(m_ui->mnuarchivio, &QAction::triggered, this, &FrmCibra::mnuarchivio_Click);
    on(m_ui->mnuPiattiKcal, &QAction::triggered, this, &FrmCibra::mnuPiattiKcal_Click);
}

void FrmCibra::connectRowCommands()
{
    on(m_ui->Label3, &EtichettaComando::doubleClicked, this, &FrmCibra::Label3_DblClick);
    on(m_ui->Label4, &EtichettaComando::doubleClicked, this, &FrmCibra::Label4_DblClick);
    on(m_ui->Label6, &EtichettaComando::clicked, this, &FrmCibra::Label6_Click);
    on(m_ui->Label7, &EtichettaComando::clicked, this, &FrmCibra::Label7_Click);
    on(m_ui->Command3, &QPushButton::clicked, this, &FrmCibra::Command3_Click);
    on(m_ui->Command4, &QPushButton::clicked, this, &FrmCibra::Command4_Click);
}

void FrmCibra::watchMouse()
{
    for (QWidget *control : std::initializer_list<QWidget *>{
             m_ui->centralwidget, m_ui->Foglio, m_ui->TDBGrid1->viewport(), m_ui->Riga, m_ui->Inserimento, m_ui->Frame1,
             m_ui->Frame2, m_ui->Check1, m_ui->Command1, m_ui->Command5, m_ui->Command6}) {
        control->setMouseTracking(true);
        control->installEventFilter(this);
    }
}

QString FrmCibra::istruzione() const
{
    return IstruzioneColazioniNumerate();
}

QString FrmCibra::richiestaRicerca() const
{
    return "Inserisci IL NOMINATIVO da ricercare";
}

QString FrmCibra::campoRicerca() const
{
    return "Nominativo";
}

RigaPosizione FrmCibra::rigaNavigazione(Arrivo) const
{
    return Posizione::Salvata;
}

void FrmCibra::Form_Load()
{
    proceduraAvvio();
    if (!comando("Form_Load ", [this] { loadSheet(); }))
        modulo().mondo.schermo.setMousePointer(MousePointer::Default);
}

// The rows of all days, which the form would hold for a moment before it looks up its day, are not read: nobody sees
// them, and ten years of them cost more than all the rest of the load.
void FrmCibra::loadSheet()
{
    CaricamentoInCorso = true;
    modulo().mondo.schermo.setMousePointer(MousePointer::Hourglass);
    m_ui->DataCombo2->setText(TestoData(modulo().mondo.orologio.today()));
    apriScheda();
    tappa();
    bindDays();
    tappa();
    CercaSchedaPranzo(m_ui->DataCombo2->text());
    tappa();
    m_ui->DataCombo1->setRowSource(*Datprimaryrs, "piatto");
    legaCampi(Datsecondaryrs);
    on(Datsecondaryrs.get(), &Recordset::moveComplete, this, &FrmCibra::Datsecondaryrs_MoveComplete);
    Datsecondaryrs_MoveComplete();
    pannelloStato("OK!" + windowTitle() + " !");
    modulo().schermate.setPannelloSfondo(kPannelloSuccessivo, inEsecuzione());
    codaTitolo();
    modulo().mondo.schermo.setMousePointer(MousePointer::Default);
    m_ui->Text1->setText(TestoData(modulo().mondo.orologio.today()));
    m_ui->Check1->setChecked(AggiustaAutomaticamente(modulo()));
    setTargets();
}

// The list is copied: RsComune is soon used by others, and a day that is added later does not join it.
void FrmCibra::bindDays()
{
    modulo().RsComune = std::make_shared<Recordset>();
    modulo().RsComune->Open(IstruzioneGiorni(), modulo().dati(), Recordset::Access::ReadOnly);
    m_ui->DataCombo2->setRowSource(*modulo().RsComune, "datainserimento");
    const int unreadable = m_ui->DataCombo2->findText({}, Qt::MatchExactly); // all day texts that are no date
    if (unreadable >= 0)
        m_ui->DataCombo2->removeItem(unreadable);
}

void FrmCibra::setTargets()
{
    m_ui->Command5->setText("Sincronizza  a " + Scritte::senzaTasto(modulo().KcalSecondaPersona));
    m_ui->Command6->setText("Sincronizza  a " + Scritte::senzaTasto(modulo().KcalPrimaPersona));
    m_ui->LbTraguardoPrima->setScritta("su " + modulo().KcalPrimaPersona);
    m_ui->LbTraguardoSeconda->setScritta("su " + modulo().KcalSecondaPersona);
    m_ui->LbLabel_9->setScritta("KCal " + modulo().NomePrimaPersona);
    m_ui->LbLabel_11->setScritta("Quantità " + modulo().NomePrimaPersona);
    m_ui->LbLabel_13->setScritta("Totale " + modulo().NomePrimaPersona);
    m_ui->LbLabel_10->setScritta("KCal " + modulo().NomeSecondaPersona);
    m_ui->LbLabel_12->setScritta("Quantità " + modulo().NomeSecondaPersona);
    m_ui->LbLabel_14->setScritta("Totale " + modulo().NomeSecondaPersona);
}

// Every resize shows the day afresh, from its first row; what was typed into a box is stored before. The position line
// counts the list that was there before the class of dishes was read again.
void FrmCibra::Form_Resize()
{
    leaveTypedBoxes();
    comando("Form_Resize", [this] {
        loadPictures();
        setPersonCaptions();
        scriviPosizione(Posizione::Record);
        if (Datprimaryrs->RecordCount() > 0) {
            cmdFirst_Click();
            scriviPosizione(Posizione::Record);
        }
        modulo().mondo.schermo.setMousePointer(MousePointer::Default);
        CaricamentoInCorso = false;
        Combo1_Change();
    });
}

// The screen works without its pictures.
void FrmCibra::loadPictures()
{
    const ProgramFolder &folder = modulo().mondo.folder;
    if (!folder.fileExists("\\Picture\\MENU.jpg"))
        return;
    const QPixmap email = picture(folder, "\\Picture\\EmailVerticalejpg.jpg", m_ui->LogoEmail->maximumSize());
    m_ui->LogoEmail->setPixmap(email);
    m_ui->LogoEmail->setVisible(!email.isNull());
    const QPixmap menu = picture(folder, "\\Picture\\menu.jpg", kPiuGrande);
    if (!menu.isNull()) {
        m_ui->ImgMarvo->setIcon(menu);
        m_ui->ImgMarvo->setIconSize(menu.size());
    }
}

void FrmCibra::setPersonCaptions()
{
    int column = kColonnaPersone;
    for (const QString &person : {modulo().NomePrimaPersona, modulo().NomeSecondaPersona})
        for (const char *caption : {"Quantita ", "Kcal ", "Totale "}) {
            for (DataGrid *grid : {m_ui->TDBGrid1, m_ui->MyGriglia})
                grid->setCaption(column, caption + person);
            ++column;
        }
    m_ui->Label1->setScritta("Totale Kcal " + modulo().NomePrimaPersona);
    m_ui->Label2->setScritta("Totale Kcal " + modulo().NomeSecondaPersona);
}

void FrmCibra::CercaSchedaPranzo(const QString &giorno)
{
    Datsecondaryrs->Close();
    try {
        Datsecondaryrs->Open(IstruzioneCercaSchedaPranzo(giorno), modulo().dati());
    } catch (const Failure &) { // a text that breaks the statement shows no day, not the totals of the former one
        Datsecondaryrs->Open(IstruzioneCercaSchedaPranzo({}), modulo().dati());
        showTotals({"0", "0"});
        throw;
    }
    if (m_ui->TDBGrid1->dataSource() != Datsecondaryrs) // else it follows the set by itself
        m_ui->TDBGrid1->setDataSource(Datsecondaryrs);
    Recordset sum;
    showTotals(SommaGiorno(sum, modulo().dati(), giorno));
}

void FrmCibra::Totali()
{
    showTotals(::Totali(modulo(), m_ui->DataCombo2->text()));
}

void FrmCibra::showTotals(const TotaliGiorno &totali)
{
    m_ui->Text2->setText(totali.prima);
    m_ui->Text3->setText(totali.seconda);
}

// The labels name what their command will act on.
void FrmCibra::Datsecondaryrs_MoveComplete()
{
    m_ui->Label4->setText("  Cancella Gruppo " + testo(Casella::Pasto));
    m_ui->Label6->setText("  Sostituisci Alimento " + testo(Casella::Alimento));
    m_ui->Label7->setText("Sostituisci Piatto " + testo(Casella::Piatto));
}

void FrmCibra::DataCombo2_Click()
{
    if (CaricamentoInCorso)
        return;
    CercaSchedaPranzo(m_ui->DataCombo2->text());
    if (m_ui->Check1->isChecked()) {
        Command6_Click();
        Command5_Click();
    }
}

void FrmCibra::DataCombo2_Change()
{
    if (!CaricamentoInCorso)
        CercaSchedaPranzo(m_ui->DataCombo2->text());
}

// The second person's balancing ends on the first row, the first person's does not.
void FrmCibra::Command5_Click()
{
    balanceAndReload(Bilanciata::SecondaPersona);
    if (!Datsecondaryrs->Bof() || !Datsecondaryrs->Eof())
        Datsecondaryrs->MoveFirst();
}

void FrmCibra::Command6_Click()
{
    balanceAndReload(Bilanciata::PrimaPersona);
}

void FrmCibra::balanceAndReload(Bilanciata persona)
{
    const PuntatoreLibero afterwards(modulo().mondo.schermo); // the balancing leaves it busy
    SincronizzaKcal(modulo(), m_ui->DataCombo2->text(), persona == Bilanciata::PrimaPersona,
                    persona == Bilanciata::SecondaPersona);
    CercaSchedaPranzo(m_ui->DataCombo2->text());
}

void FrmCibra::Check1_Click()
{
    SalvaAggiusta(modulo(), m_ui->Check1->isChecked());
}

// Both print buttons stand in one place: the format decides which of them shows.
void FrmCibra::Option1_Click()
{
    const bool html = m_ui->Option1_0->isChecked();
    m_ui->Command2->setVisible(html);
    m_ui->Command14->setVisible(!html);
}

void FrmCibra::Command2_Click()
{
    StampaHtml(modulo(), m_ui->DataCombo2->text());
}

void FrmCibra::Command14_Click()
{
    StampaTesto(modulo(), m_ui->DataCombo2->text());
}

void FrmCibra::MnuFileTesto_Click()
{
    comando("mnuFileTesto_Click ", [this] { ::MnuFileTesto(modulo(), *Datprimaryrs, istruzione()); });
}

// The overview takes the place of the day; the day is looked up again behind it.
void FrmCibra::mnuGriglia_Click()
{
    leaveTypedBoxes();
    if (m_ui->MyGriglia->isHidden()) {
        RsGriglia->Close();
        RsGriglia->Open("SELECT  * FROM SchedaPranzo ORDER BY SchedaPranzo.dataInserimento DESC;", modulo().dati());
        m_ui->MyGriglia->setDataSource(RsGriglia);
        m_ui->Foglio->hide();
        m_ui->MyGriglia->show();
        return;
    }
    CercaSchedaPranzo(m_ui->DataCombo2->text());
    nascondiGriglia();
}

void FrmCibra::nascondiGriglia()
{
    m_ui->MyGriglia->hide();
    m_ui->Foglio->show();
}

// Enter goes to the control that has the focus.
void FrmCibra::MnuHelp_Click()
{
    QWidget *const focused = focusWidget() ? focusWidget() : this;
    QCoreApplication::postEvent(focused, new QKeyEvent(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r"));
    QCoreApplication::postEvent(focused, new QKeyEvent(QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier, "\r"));
}

bool FrmCibra::tastoProprio(const QString &tasto)
{
    const bool view = stato() == "V";
    if (tasto == "F6") {
        if (view && barra().isPanelEnabled(kPannelloModifica))
            mnuModifica_Click();
        else
            modulo().mondo.schermo.beep();
        return true;
    }
    if (tasto == "F9") {
        if (view)
            MnuFileTesto_Click();
        else
            modulo().mondo.schermo.beep();
        return true;
    }
    return false;
}

void FrmCibra::Form_KeyPress(int character)
{
    if (character == kEscape)
        modulo().PiattoSostituto.clear();
    SchedaRecord::Form_KeyPress(character);
}

bool FrmCibra::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_ui->Frame2 && event->type() == QEvent::MouseButtonDblClick) {
        runHandler([this] { Command4_Click(); });
        return true; // not of the ground that now lies under the mouse
    }
    if (event->type() != QEvent::MouseMove)
        return SchedaRecord::eventFilter(watched, event);
    const bool hasHint = mouseMovedOver(watched);
    // A move that a button leaves unused would go on to its frame, which hides the hint again.
    return hasHint && static_cast<QMouseEvent *>(event)->buttons() == Qt::NoButton;
}

// Gives whether the control has a hint; the form, its frames and its grid hide it.
bool FrmCibra::mouseMovedOver(QObject *control)
{
    const QString portions = "RICALCOLA LE QUANTITA DI OGNI ELEMENTO RIPORTANDO IL TOTALE CALORIE A ";
    if (control == m_ui->Command1) {
        showHint("Seleziona la Data, il tipo ( pranzo/colazione/spuntino, seleziona ) e il Piatto e premi "
                 "''INSERISCI PIATTO''");
    } else if (control == m_ui->Command5) {
        showHint(portions + modulo().KcalSecondaPersona);
    } else if (control == m_ui->Command6) {
        showHint(portions + modulo().KcalPrimaPersona);
    } else if (control == m_ui->Check1) {
        showHint("Se il check è selezionato, ogni volta che ricerchi un menu giornaliero, provvede in automatico a "
                 "sincronizzare i vari elementi di ogni menu al valore dei KCal giornalieri di default");
    } else {
        m_ui->Label5->hide();
        return false;
    }
    return true;
}

void FrmCibra::showHint(const QString &hint)
{
    m_ui->Label5->setText(hint);
    m_ui->Label5->show();
}
