#include "planner/forms/GeneraMenu.h"

#include "catalogue/forms/InserimentoKCal.h"
#include "core/Household.h"
#include "pages/PaginaHtml.h"
#include "planner/CheckLog.h"
#include "planner/forms/Preferiti.h"
#include "planner/GeneraMenuProvvisori.h"
#include "planner/SettaPreferiti.h"
#include "planner/VisteMenu.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"
#include "platform/ui/ControlArray.h"
#include "platform/ui/FormRegistry.h"
#include "platform/ui/Scritte.h"
#include "platform/ui/Tema.h"
#include "ui_GeneraMenu.h"

#include <QLineEdit>
#include <QRadioButton>

#include <algorithm>

namespace {

constexpr double kTwipsPerPixel = 15;
constexpr double kFirstBarWidth = 200; // twips

// A text set by code is a change only where it differs, and the caret of the box being typed in stays where it is.
void setIfDifferent(QLineEdit *box, const QString &text)
{
    if (box->text() != text)
        box->setText(text);
}

} // namespace

GeneraMenu::GeneraMenu(FormHost &host, FormRegistry &registry, ModNetServer &modulo)
    : Form("GeneraMenu", host), m_ui(std::make_unique<Ui::GeneraMenu>()), m_registry(registry), m_modulo(modulo)
{
    m_ui->setupUi(this);
    for (QAction *line : {m_ui->mnuu, m_ui->mnui, m_ui->mnuy})
        line->setSeparator(true);
    m_ui->TDBGrid1->setHost(&host);
    setLarghezzaLabel5(kFirstBarWidth);
    dress();
    connectHandlers();
}

GeneraMenu::~GeneraMenu() = default;

void GeneraMenu::dress()
{
    for (QLabel *label : {m_ui->Label3_0, m_ui->Label2_1, m_ui->Label2_2}) {
        QFont font = label->font();
        font.setPointSize(13);
        font.setWeight(QFont::DemiBold);
        label->setFont(font);
    }
    for (QLabel *label : {m_ui->PrimaPersona, m_ui->Label3_1})
        Tema::colourCaption(label, Tema::firstPerson());
    for (QLabel *label : {m_ui->SecondaPersona, m_ui->Label3_2})
        Tema::colourCaption(label, Tema::secondPerson());
    for (QFrame *card : {m_ui->RiquadroTipi, m_ui->RiquadroPersone}) {
        card->setBackgroundRole(QPalette::Base);
        card->setAutoFillBackground(true);
    }
    m_ui->LineaPasti->setForegroundRole(QPalette::Mid);
    // A card that lies over the panel: filled to its edge, its title inside.
    m_ui->Frame4->setStyleSheet("#Frame4 { background: palette(base); border: 2px solid palette(highlight);"
                                " margin-top: 0; padding-top: 30px; }"
                                "#Frame4::title { subcontrol-origin: border; left: 16px; top: 12px; padding: 0; }");
    QPalette bar = m_ui->Label5->palette();
    bar.setColor(QPalette::Window, Tema::accent());
    m_ui->Label5->setPalette(bar);
}

void GeneraMenu::connectHandlers()
{
    on(m_ui->mnuAnagrafica, &QAction::triggered, this, &GeneraMenu::mnuAnagrafica_Click);
    on(m_ui->mnuCrea, &QAction::triggered, this, &GeneraMenu::mnuCrea_Click);
    on(m_ui->mnuVisualizza, &QAction::triggered, this, &GeneraMenu::mnuVisualizza_Click);
    on(m_ui->mnuGenera, &QAction::triggered, this, &GeneraMenu::mnuGenera_Click);
    on(m_ui->MnukcCalcolo, &QAction::triggered, this, &GeneraMenu::MnukcCalcolo_Click);
    on(m_ui->mnuPreferiti, &QAction::triggered, this, &GeneraMenu::mnuPreferiti_Click);
    on(m_ui->mnuEsci, &QAction::triggered, this, &GeneraMenu::mnuEsci_Click);
    on(m_ui->Command1, &QPushButton::clicked, this, &GeneraMenu::Command1_Click);
    on(m_ui->Command2, &QPushButton::clicked, this, &GeneraMenu::Command2_Click);
    on(m_ui->Command3, &QPushButton::clicked, this, &GeneraMenu::Command3_Click);

    on(m_ui->Command4, &QPushButton::clicked, this, &GeneraMenu::Command4_Click);
    on(m_ui->Command5, &QPushButton::clicked, this, &GeneraMenu::Command5_Click);
    on(m_ui->Command6, &QPushButton::clicked, this, &GeneraMenu::Command6_Click);
    on(m_ui->Command7, &QPushButton::clicked, this, &GeneraMenu::Command7_Click);

    linkGroup({m_ui->Check1, m_ui->Check2, m_ui->Check3, m_ui->Check7, m_ui->Check8});
    linkGroup({m_ui->Check4, m_ui->Check5, m_ui->Check6, m_ui->Check9, m_ui->Check11});
    linkGroup({m_ui->Check13, m_ui->Check14, m_ui->Check15, m_ui->Check16});
    onWith(m_ui->Check10, &QCheckBox::toggled, this, &GeneraMenu::Check10_Click);
    for (const auto &[index, button] : ControlArray<QRadioButton>(this, "Periodo"))
        on(button, &QRadioButton::clicked, this,
           [tipo = TipoPeriodo(index)](GeneraMenu *self) { self->Periodo_Click(tipo); });

    for (QLineEdit *box : {m_ui->Text1, m_ui->Text2})
        on(box, &QLineEdit::textChanged, this, &GeneraMenu::DateGenerazione_Change);
    for (QLineEdit *box : {m_ui->Text3, m_ui->Text4})
        on(box, &QLineEdit::textChanged, this, &GeneraMenu::DateVista_Change);
}

void GeneraMenu::linkGroup(const std::vector<QCheckBox *> &boxes)
{
    for (QCheckBox *box : boxes)
        onWith(box, &QCheckBox::toggled, this, [box, boxes](GeneraMenu *, bool on) {
            if (!on)
                return;
            for (QCheckBox *other : boxes)
                if (other != box)
                    other->setChecked(false);
        });
}

void GeneraMenu::Form_Load()
{
    m_ui->Frame4->ensurePolished();
    m_ui->Frame3->setMinimumHeight(m_ui->Frame4->sizeHint().height()); // the card lies over the panel
    loadHousehold();
    showHousehold();
    m_ui->Text5->setFocus();
    m_insiemi.Apri(m_modulo.dati());
    setIfDifferent(m_ui->Text2, UltimoGiornoPianificato(m_modulo));
    setIfDifferent(m_ui->Text1, TestoData(m_modulo.mondo.orologio.today()));
    m_ui->Periodo_0->setChecked(true);
    Periodo_Click(TipoPeriodo::Settimana);
    m_ContaPreferiti = false;
    SettaPreferiti(m_modulo, m_ContaPreferiti);
    restoreChoice();
}

void GeneraMenu::loadHousehold()
{
    if (!EsisteAnagrafica(m_modulo))
        return; // the boxes are empty and the globals stay as they were
    LeggiAnagrafica(m_modulo);
    m_ui->Text5->setText(m_modulo.NomePrimaPersona);
    m_ui->Text6->setText(m_modulo.NomeSecondaPersona);
    m_ui->Text7->setText(m_modulo.KcalPrimaPersona);
    m_ui->Text8->setText(m_modulo.KcalSecondaPersona);
}

void GeneraMenu::restoreChoice()
{
    const std::optional<UltimaScelta> last = LeggiCheckLog(m_modulo);
    if (!last)
        return;
    for (const int number : {last->pranzo, last->cena})
        if (number != 0)
            findChild<QCheckBox *>("Check" + QString::number(number))->setChecked(true);
    if (last->Check12)
        m_ui->Check12->setChecked(true);
}

void GeneraMenu::Form_KeyPress(int character)
{
    if (character == kEscape)
        unload();
}

void GeneraMenu::showPanel(QWidget *panel, QWidget *firstBox)
{
    const bool alreadyShown = !panel->isHidden();
    // One panel goes before the other comes: room for two would make the window grow.
    for (QWidget *other : {m_ui->Frame1, m_ui->Frame2, m_ui->Frame3})
        if (other != panel)
            other->hide();
    panel->show();
    if (!alreadyShown)
        firstBox->setFocus();
}

void GeneraMenu::showHousehold()
{
    showPanel(m_ui->Frame3, m_ui->Text5);
}

void GeneraMenu::mnuCrea_Click()
{
    showPanel(m_ui->Frame1, m_ui->Text1);
}

void GeneraMenu::mnuVisualizza_Click()
{
    showPanel(m_ui->Frame2, m_ui->Text3);
    try {
        showGrid(ApriVistaMenu(m_modulo, m_ui->Text3->text(), m_ui->Text4->text()));
    } catch (const Failure &) {
        // It also runs at every key typed in the two boxes: a day that is not whole yet leaves the grid as it is.
    }
}

void GeneraMenu::showGrid(std::shared_ptr<Recordset> recordset)
{
    m_ui->TDBGrid1->setDataSource(std::move(recordset));
    m_ui->TDBGrid1->refresh();
}

void GeneraMenu::mnuGenera_Click()
{
    mnuGenera(m_modulo, {m_ui->Text3->text(), m_ui->Text4->text(), m_ui->Check12->isChecked()}, *this);
}

void GeneraMenu::MnukcCalcolo_Click()
{
    MnukcCalcolo(m_modulo);
}

void GeneraMenu::mnuPreferiti_Click()
{
    m_registry.get<Preferiti>().showModal();
}

void GeneraMenu::Command1_Click()
{
    GeneraMenuProvvisori(m_modulo, m_insiemi, scelta());
    mnuVisualizza_Click();
    if (ChiediCompilazione(m_modulo))
        mnuGenera_Click();
}

SceltaMenu GeneraMenu::scelta() const
{
    SceltaMenu scelta{m_ui->Text1->text(), m_ui->Text2->text(), {}, {}};
    for (int number = 1; number < int(scelta.Check.size()); ++number)
        scelta.Check.at(number) = findChild<QCheckBox *>("Check" + QString::number(number))->isChecked();
    for (int index = 0; index < int(scelta.Freq.size()); ++index)
        scelta.Freq.at(index) = findChild<QLineEdit *>("Freq_" + QString::number(index))->text();
    return scelta;
}

void GeneraMenu::Command2_Click()
{
    if (!CancellaBlocco(m_modulo, m_ui->Text3->text(), m_ui->Text4->text()))
        return;
    // A half-typed day fails here, before the view moves.
    static_cast<void>(CDate(m_ui->Text1->text()));
    static_cast<void>(CDate(m_ui->Text2->text()));
    const std::shared_ptr<Recordset> all = ApriTuttiIMenu(m_modulo);
    // Each of the two texts runs its change handler, which shows the range as it then stands; the whole table comes
    // last.
    setIfDifferent(m_ui->Text3, all->value("Datamenu").text());
    all->MoveLast();
    setIfDifferent(m_ui->Text4, all->value("Datamenu").text());
    all->MoveFirst();
    showGrid(all);
}

void GeneraMenu::Command3_Click()
{
    ScriviAnagrafica(m_modulo, {m_ui->Text5->text(), m_ui->Text6->text(), m_ui->Text7->text(), m_ui->Text8->text()});
    mnuCrea_Click();
}

void GeneraMenu::Command4_Click()
{
    const double K = CalcolaKCal(datiPersona());
    auto &dialog = m_registry.get<InserimentoKCal>();
    dialog.setDomanda(DomandaKCal(K));
    dialog.showModal();
    if (const std::optional<Persona> scelta = PersonaScelta(m_modulo))
        (*scelta == Persona::Prima ? m_ui->Text7 : m_ui->Text8)->setText(TestoNumero(K));
    showCalculator(false);
}

void GeneraMenu::Command5_Click()
{
    showCalculator(m_ui->Frame4->isHidden());
}

void GeneraMenu::Command6_Click()
{
    ConsultaCalcoloHtml(m_modulo);
}

void GeneraMenu::Command7_Click()
{
    showCalculator(false);
}

// How hard somebody works is asked for and changes nothing.
DatiPersona GeneraMenu::datiPersona() const
{
    const Sesso sesso = m_ui->Option1_0->isChecked()   ? Sesso::Maschio
                        : m_ui->Option1_1->isChecked() ? Sesso::Femmina
                                                       : Sesso::Nessuno;
    return {sesso, m_ui->Text9->text(), m_ui->Text10->text(), m_ui->Text11->text()};
}

void GeneraMenu::showCalculator(bool visible)
{
    centreCalculator();
    m_ui->Frame4->setVisible(visible);
    // Enter is meant for the card as long as it lies over the panel.
    m_ui->Command3->setDefault(!visible);
    m_ui->Command4->setDefault(visible);
    if (visible)
        m_ui->Option1_0->setFocus();
    else
        m_ui->Command5->setFocus();
}

void GeneraMenu::centreCalculator()
{
    QGroupBox *const card = m_ui->Frame4;
    card->adjustSize();
    const int lowest = m_ui->Frame3->height() - card->height(); // the menu bar takes its share of the form
    card->move((width() - card->width()) / 2, std::max(0, std::min((height() - card->height()) / 2, lowest)));
    card->raise();
}

void GeneraMenu::Form_Resize()
{
    if (!m_ui->Frame4->isHidden())
        centreCalculator();
}

void GeneraMenu::Check10_Click(bool on)
{
    if (!on)
        return;
    m_ContaPreferiti = true;
    SettaPreferiti(m_modulo, m_ContaPreferiti);
}

void GeneraMenu::Periodo_Click(TipoPeriodo tipo)
{
    setIfDifferent(m_ui->Text2, FineDelPeriodo(tipo, m_ui->Text1->text()));
}

void GeneraMenu::DateGenerazione_Change()
{
    m_CopiaDate = true;
    setIfDifferent(m_ui->Text3, m_ui->Text1->text());
    setIfDifferent(m_ui->Text4, m_ui->Text2->text());
    m_ui->Command2->setText(
        Scritte::senzaTasto("Cancella Blocco " + m_ui->Text1->text() + " al " + m_ui->Text2->text()));
    m_CopiaDate = false;
}

void GeneraMenu::DateVista_Change()
{
    if (m_CopiaDate)
        return;
    setIfDifferent(m_ui->Text1, m_ui->Text3->text());
    setIfDifferent(m_ui->Text2, m_ui->Text4->text());
    mnuVisualizza_Click();
}

void GeneraMenu::setBarraVisibile(bool visible)
{
    m_ui->Label5->setVisible(visible);
    m_ui->Picture1->setVisible(visible);
}

double GeneraMenu::larghezzaPicture1() const
{
    return m_ui->Picture1->minimumWidth() * kTwipsPerPixel;
}

void GeneraMenu::setLarghezzaLabel5(double twips)
{
    m_larghezzaLabel5 = twips;
    m_ui->Label5->setGeometry(0, 0, int(twips / kTwipsPerPixel), m_ui->Picture1->minimumHeight());
}

void GeneraMenu::ridisegna()
{
    m_modulo.mondo.schermo.breathe(); // Esc stops nothing here
}
