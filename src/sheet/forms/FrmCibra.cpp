#include "sheet/forms/FrmCibra.h"

#include "core/ErrorLog.h"
#include "platform/text/Dates.h"
#include "platform/ui/Tema.h"
#include "sheet/GiornoScheda.h"
#include "sheet/SincronizzaKcal.h"
#include "sheet/StampaHtml.h"
#include "sheet/StampaTesto.h"
#include "ui_FrmCibra.h"

#include <QLineEdit>
#include <QMouseEvent>

static void initResources()
{
    Q_INIT_RESOURCE(sheet);
}

namespace {

constexpr int kEscape = 27;
constexpr int kPannelloStato = 4; // of the background's status bar
constexpr int kPannelloSuccessivo = 5;
constexpr int kColonnaPersone = 5; // the first of the six columns that name a person

// The mouse pointer that the balancing leaves busy is set back at the end of its caller, also when that is a failure.
class PuntatoreLibero
{
public:
    explicit PuntatoreLibero(Schermo &screen) : m_screen(screen) {}
    ~PuntatoreLibero() { m_screen.setMousePointer(MousePointer::Default); }
    PuntatoreLibero(const PuntatoreLibero &) = delete;
    PuntatoreLibero &operator=(const PuntatoreLibero &) = delete;

private:
    Schermo &m_screen;
};

QColor rowColour(const Recordset &rows, int row)
{
    return Tema::meal(rows.valueAt(row, rows.fieldIndex("PranzoCenaSpuntino")).text());
}

void colourCaption(QWidget *caption, const QColor &colour)
{
    QPalette palette = caption->palette();
    palette.setColor(QPalette::WindowText, colour);
    caption->setPalette(palette);
}

} // namespace

FrmCibra::FrmCibra(FormHost &host, FormRegistry &, ModNetServer &modulo)
    : Form("FrmCibra", host), m_ui(std::make_unique<Ui::FrmCibra>()), m_modulo(modulo)
{
    initResources();
    m_ui->setupUi(this);
    m_ui->TDBGrid1->setColumns({{"DataInserimento", "Data"},
                                {"PranzoCenaSpuntino", "Pranzo Cena Spuntino"},
                                {"Piatto", "Piatto"},
                                {"Alimento", "Alimento"},
                                {"KC100gr", "KCal per 100 g."},
                                {"quantita", "Quantita "},
                                {"KcNominale", "Kcal "},
                                {"Totale1", "Totale "},
                                {"quantita2", "Quantita "},
                                {"KcNominale2", "Kcal "},
                                {"Totale2", "Totale "}});
    m_ui->TDBGrid1->setHost(&host);
    m_ui->TDBGrid1->setRowColour(rowColour);
    m_ui->DataCombo2->lineEdit()->setFont(m_ui->DataCombo2->font());
    colourCaption(m_ui->Label1, Tema::firstPerson());
    colourCaption(m_ui->Label2, Tema::secondPerson());
    m_ui->Command14->hide();
    reserveHint();
    connectHandlers();
    watchMouse();
}

FrmCibra::~FrmCibra() = default;

// The hint keeps its room while hidden, so that nothing jumps when it shows.
void FrmCibra::reserveHint()
{
    QSizePolicy policy = m_ui->Label5->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_ui->Label5->setSizePolicy(policy);
    m_ui->Label5->hide();
}

void FrmCibra::connectHandlers()
{
    on(m_ui->DataCombo2, &DataCombo::picked, this, &FrmCibra::DataCombo2_Click);
    on(m_ui->DataCombo2, &DataCombo::textChanged, this, &FrmCibra::DataCombo2_Change);
    on(m_ui->Command5, &QPushButton::clicked, this, &FrmCibra::Command5_Click);
    on(m_ui->Command6, &QPushButton::clicked, this, &FrmCibra::Command6_Click);
    on(m_ui->Check1, &QCheckBox::toggled, this, &FrmCibra::Check1_Click);
    on(m_ui->Option1_0, &QRadioButton::toggled, this, &FrmCibra::Option1_Click);
    on(m_ui->Command2, &QPushButton::clicked, this, &FrmCibra::Command2_Click);
    on(m_ui->Command14, &QPushButton::clicked, this, &FrmCibra::Command14_Click);
    on(m_ui->MnuCalcola, &QAction::triggered, this, &FrmCibra::MnuCalcola_Click);
    on(m_ui->MnuClose, &QAction::triggered, this, &FrmCibra::MnuClose_Click);
    on(m_ui->MnuEsci, &QAction::triggered, this, &FrmCibra::MnuEsci_Click);
}

void FrmCibra::watchMouse()
{
    for (QWidget *control : {m_ui->centralwidget, m_ui->TDBGrid1->viewport(), static_cast<QWidget *>(m_ui->Frame1),
                             static_cast<QWidget *>(m_ui->Check1), static_cast<QWidget *>(m_ui->Command5),
                             static_cast<QWidget *>(m_ui->Command6)}) {
        control->setMouseTracking(true);
        control->installEventFilter(this);
    }
}

void FrmCibra::Form_Load()
{
    try {
        loadSheet();
    } catch (const Failure &failure) {
        m_modulo.mondo.schermo.setMousePointer(MousePointer::Default);
        RoutineErrore(m_modulo, name(), "Form_Load ", failure);
    }
}

// The rows of all days, which the form would hold for a moment before it looks up its day, are not read: nobody sees
// them, and ten years of them cost more than all the rest of the load.
void FrmCibra::loadSheet()
{
    CaricamentoInCorso = true;
    m_modulo.mondo.schermo.setMousePointer(MousePointer::Hourglass);
    m_ui->DataCombo2->setText(TestoData(m_modulo.mondo.orologio.today()));
    stageDone();
    bindDays();
    stageDone();
    CercaSchedaPranzo(m_ui->DataCombo2->text());
    stageDone();
    m_modulo.schermate.setPannelloSfondo(kPannelloStato, "OK!" + windowTitle() + " !");
    m_modulo.schermate.setPannelloSfondo(kPannelloSuccessivo, "Procedura " + windowTitle() + " in esecuzione");
    setWindowTitle(windowTitle() + QString(10, ' ') + '(' + name() + ".frm)");
    m_modulo.mondo.schermo.setMousePointer(MousePointer::Default);
    m_ui->Check1->setChecked(AggiustaAutomaticamente(m_modulo));
    setTargets();
}

// Each stage of the load puts a point behind the text of the background's status panel.
void FrmCibra::stageDone()
{
    m_modulo.schermate.setPannelloSfondo(kPannelloStato, m_modulo.schermate.pannelloSfondo(kPannelloStato) + '.');
}

// The list is copied: RsComune is soon used by others, and a day that is added later does not join it.
void FrmCibra::bindDays()
{
    m_modulo.RsComune = std::make_shared<Recordset>();
    m_modulo.RsComune->Open(IstruzioneGiorni(), m_modulo.dati(), Recordset::Access::ReadOnly);
    m_ui->DataCombo2->setRowSource(*m_modulo.RsComune, "datainserimento");
    const int unreadable = m_ui->DataCombo2->findText({}, Qt::MatchExactly); // all day texts that are no date
    if (unreadable >= 0)
        m_ui->DataCombo2->removeItem(unreadable);
}

void FrmCibra::setTargets()
{
    m_ui->Command5->setText("Sincronizza  a " + m_modulo.KcalSecondaPersona);
    m_ui->Command6->setText("Sincronizza  a " + m_modulo.KcalPrimaPersona);
    m_ui->LbTraguardoPrima->setText("su " + m_modulo.KcalPrimaPersona);
    m_ui->LbTraguardoSeconda->setText("su " + m_modulo.KcalSecondaPersona);
}

// Every resize shows the day afresh, from its first row.
void FrmCibra::Form_Resize()
{
    try {
        setPersonCaptions();
        m_modulo.mondo.schermo.setMousePointer(MousePointer::Default);
        CaricamentoInCorso = false;
        if (!m_ui->DataCombo2->text().isEmpty())
            CercaSchedaPranzo(m_ui->DataCombo2->text());
    } catch (const Failure &failure) {
        RoutineErrore(m_modulo, name(), "Form_Resize", failure);
    }
}

void FrmCibra::setPersonCaptions()
{
    int column = kColonnaPersone;
    for (const QString &person : {m_modulo.NomePrimaPersona, m_modulo.NomeSecondaPersona})
        for (const char *caption : {"Quantita ", "Kcal ", "Totale "})
            m_ui->TDBGrid1->setCaption(column++, caption + person);
    m_ui->Label1->setText("Totale Kcal " + m_modulo.NomePrimaPersona);
    m_ui->Label2->setText("Totale Kcal " + m_modulo.NomeSecondaPersona);
}

void FrmCibra::CercaSchedaPranzo(const QString &giorno)
{
    Datsecondaryrs->Close();
    Datsecondaryrs->Open(IstruzioneCercaSchedaPranzo(giorno), m_modulo.dati());
    if (m_ui->TDBGrid1->dataSource() != Datsecondaryrs) // else it follows the set by itself
        m_ui->TDBGrid1->setDataSource(Datsecondaryrs);
    Recordset sum;
    const TotaliGiorno totali = SommaGiorno(sum, m_modulo.dati(), giorno);
    m_ui->Text2->setText(totali.prima);
    m_ui->Text3->setText(totali.seconda);
}

void FrmCibra::Totali()
{
    const TotaliGiorno totali = ::Totali(m_modulo, m_ui->DataCombo2->text());
    m_ui->Text2->setText(totali.prima);
    m_ui->Text3->setText(totali.seconda);
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
    balanceAndReload(false, true);
    if (!Datsecondaryrs->Bof() || !Datsecondaryrs->Eof())
        Datsecondaryrs->MoveFirst();
}

void FrmCibra::Command6_Click()
{
    balanceAndReload(true, false);
}

void FrmCibra::balanceAndReload(bool PrimaPersona, bool SecondaPersona)
{
    const PuntatoreLibero pointer(m_modulo.mondo.schermo);
    SincronizzaKcal(m_modulo, m_ui->DataCombo2->text(), PrimaPersona, SecondaPersona);
    CercaSchedaPranzo(m_ui->DataCombo2->text());
}

void FrmCibra::Check1_Click()
{
    SalvaAggiusta(m_modulo, m_ui->Check1->isChecked());
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
    StampaHtml(m_modulo, m_ui->DataCombo2->text());
}

void FrmCibra::Command14_Click()
{
    StampaTesto(m_modulo, m_ui->DataCombo2->text());
}

void FrmCibra::MnuCalcola_Click()
{
    m_modulo.mondo.programmi.start(ProgramKind::Calculator, "calc.exe");
}

void FrmCibra::MnuClose_Click()
{
    unload();
}

void FrmCibra::MnuEsci_Click()
{
    MnuClose_Click();
}

void FrmCibra::Form_KeyPress(int character)
{
    if (character != kEscape)
        return;
    m_modulo.PiattoSostituto.clear();
    unload();
}

bool FrmCibra::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::MouseMove)
        return Form::eventFilter(watched, event);
    const bool hasHint = mouseMovedOver(watched);
    // A move that a button leaves unused would go on to its frame, which hides the hint again.
    return hasHint && static_cast<QMouseEvent *>(event)->buttons() == Qt::NoButton;
}

// Gives whether the control has a hint; the form, its frame and its grid hide it.
bool FrmCibra::mouseMovedOver(QObject *control)
{
    const QString portions = "RICALCOLA LE QUANTITA DI OGNI ELEMENTO RIPORTANDO IL TOTALE CALORIE A ";
    if (control == m_ui->Command5) {
        showHint(portions + m_modulo.KcalSecondaPersona);
    } else if (control == m_ui->Command6) {
        showHint(portions + m_modulo.KcalPrimaPersona);
    } else if (control == m_ui->Check1) {
        showHint("Se il check è selezionato, ogni volta che ricerchi un menu giornaliero, provvede in automatico a "
                 "sincronizzare i vari elementi di ogni menu al valore dei KCal giornalieri di default");
    } else {
        if (control == m_ui->centralwidget || control == m_ui->Frame1 || control == m_ui->TDBGrid1->viewport())
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
