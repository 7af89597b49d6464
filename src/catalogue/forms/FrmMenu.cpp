#include "catalogue/forms/FrmMenu.h"

#include "catalogue/Composizione.h"
#include "catalogue/forms/BarraNavigazione.h"
#include "catalogue/forms/ElencoCollegabili.h"
#include "catalogue/forms/Icone.h"
#include "catalogue/forms/Sostituti.h"
#include "catalogue/Navigazione.h"
#include "catalogue/NuovoPiatto.h"
#include "platform/text/Dates.h"
#include "platform/ui/AvvisoUscita.h"
#include "platform/ui/CampoLegato.h"
#include "platform/ui/ControlArray.h"
#include "platform/ui/EtichettaNome.h"
#include "platform/ui/Tema.h"
#include "ui_FrmMenu.h"

#include <QScopedValueRollback>
#include <QSignalBlocker>

namespace {

const QString kInserisci = QStringLiteral("  Inserisci altro Alimento  ");
const QString kSalva = QStringLiteral("Salva");
const QString kVuoto = QStringLiteral("RecordSet Vuoto!!"); // in the place of the position

// The fields of the boxes, by the boxes' indices.
const std::map<int, QString> kFields = {{0, "DataInserimento"}, {1, "ID"},        {2, "piatto"},     {3, "Alimento"},
                                        {4, "totale2"},         {5, "Kc100gr"},   {6, "Kcnominale"}, {7, "Kcnominale2"},
                                        {8, "quantita"},        {9, "quantita2"}, {10, "totale1"}};

// The captions that name a person, by the indices of their boxes.
const std::map<int, QString> kFirstPerson = {{8, "quantità "}, {6, "Kcal "}, {10, "totale "}};
const std::map<int, QString> kSecondPerson = {{9, "quantità "}, {7, "Kcal "}, {4, "totale "}};

} // namespace

FrmMenu::FrmMenu(FormHost &host, FormRegistry &registry, ModNetServer &modulo)
    : Form("FrmMenu", host), m_ui(std::make_unique<Ui::FrmMenu>()), m_registry(registry), m_modulo(modulo)
{
    m_ui->setupUi(this);
    m_ui->TDBGrid1->setColumns({{"Alimento", "Alimento"},
                                {"KC100gr", "KCal per 100 g."},
                                {"quantita", "Quant. "},
                                {"KcNominale", "KCal. "},
                                {"Totale1", "Tot. "},
                                {"quantita2", "Quant. "},
                                {"KcNominale2", "KCal. "},
                                {"Totale2", "Tot. "}});
    m_ui->TDBGrid1->setHost(&host);
    for (const auto &[index, box] : ControlArray<QLineEdit>(this, "TxtFields")) {
        m_TxtFields[index] = new CasellaLegata(box, kFields.at(index)); // a child of its box
        m_ui->LineaModifica->segui(m_TxtFields[index]);
    }
    m_ui->LineaModifica->segui(m_righe.get());
    RiempiClassi(*m_ui->ComboTipo, *m_ui->ComboCategoria);
    dress();
    connectHandlers();
    connectNewDish();
}

FrmMenu::~FrmMenu() = default;

QLineEdit *FrmMenu::TxtFields(int index) const
{
    return m_TxtFields.at(index)->box();
}

void FrmMenu::dress()
{
    setWindowIcon(Icone::icona("piatto"));
    VestiNavigazione(m_ui->cmdFirst, m_ui->cmdPrevious, m_ui->cmdNext, m_ui->cmdLast);
    m_ui->Campi->setBackgroundRole(QPalette::Base);
    m_ui->Campi->setAutoFillBackground(true);
    m_ui->Label1->setMinimumWidth(m_ui->Label1->sizeHint().width()); // its other text is shorter: nothing jumps
    m_ui->Combo1->hide();
    m_ui->Combo2->setCompleter(nullptr);
    m_ui->Combo2->hide();
    m_ui->Frame2->hide();
}

void FrmMenu::connectHandlers()
{
    on(m_ui->DataCombo1, &DataCombo::picked, this, &FrmMenu::DataCombo1_Change);
    on(m_ui->DataCombo1, &DataCombo::textChanged, this, &FrmMenu::DataCombo1_Change);
    on(m_righe.get(), &Recordset::moveComplete, this, &FrmMenu::Righe_MoveComplete);
    on(m_ui->Combo2, &QComboBox::activated, this, &FrmMenu::Combo2_Click);
    on(m_ui->Combo2, &QComboBox::editTextChanged, this, &FrmMenu::Combo2_Click);
    on(new AvvisoUscita(m_ui->Combo2), &AvvisoUscita::left, this, &FrmMenu::Combo2_Click);
    on(m_ui->Label1, &EtichettaComando::clicked, this, &FrmMenu::Label1_Click);
    on(m_ui->Label6, &EtichettaComando::clicked, this, &FrmMenu::Label6_Click);
    on(m_ui->Label7, &EtichettaComando::clicked, this, &FrmMenu::Label7_Click);
    on(m_ui->Check1, &QCheckBox::toggled, this, &FrmMenu::Check1_Click);
    on(m_ui->Command1, &QPushButton::clicked, this, &FrmMenu::Command1_Click);
    on(m_ui->cmdFirst, &QToolButton::clicked, this, &FrmMenu::cmdFirst_Click);
    on(m_ui->cmdLast, &QToolButton::clicked, this, &FrmMenu::cmdLast_Click);
    on(m_ui->cmdNext, &QToolButton::clicked, this, &FrmMenu::cmdNext_Click);
    on(m_ui->cmdPrevious, &QToolButton::clicked, this, &FrmMenu::cmdPrevious_Click);
}

void FrmMenu::connectNewDish()
{
    on(m_ui->Command2, &QPushButton::clicked, this, &FrmMenu::Command2_Click);
    on(m_ui->Command3, &QPushButton::clicked, this, &FrmMenu::Command3_Click);
    on(m_ui->Command4, &QPushButton::clicked, this, &FrmMenu::Command4_Click);
    onWith(new AvvisoUscita(m_ui->Text1), &AvvisoUscita::left, this, &FrmMenu::Text1_LostFocus);
    on(m_ui->ComboTipo, &QComboBox::activated, this, &FrmMenu::ComboTipo_Click);
    on(new AvvisoUscita(m_ui->ComboTipo), &AvvisoUscita::left, this, &FrmMenu::ComboTipo_Click);
    on(m_ui->ComboCategoria, &QComboBox::activated, this, &FrmMenu::ComboCategoria_Click);
    on(new AvvisoUscita(m_ui->ComboCategoria), &AvvisoUscita::left, this, &FrmMenu::ComboCategoria_Click);
}

void FrmMenu::Form_Load()
{
    {
        const QSignalBlocker quiet(m_ui->Check1);
        m_ui->Check1->setChecked(ConfermaInserimento(m_modulo));
    }
    m_ui->Combo2->addItems(VociAlimenti(m_modulo.dati()));
    elencaPiatti();
    for (int item = 0; item < m_ui->DataCombo1->count(); ++item)
        m_ui->Combo1->addItem(m_ui->DataCombo1->itemText(item));
    mostraPiatto(m_ui->DataCombo1->itemText(0));
    // A name that breaks the statement is told, and the form opens all the same: another dish can be chosen.
    runHandler([this] {
        Forma();
        scriviPosizione(kVuoto);
    });
}

void FrmMenu::elencaPiatti()
{
    Recordset dishes;
    dishes.Open(IstruzioneNomiPiatti(), m_modulo.dati(), Recordset::Access::ReadOnly);
    m_ui->DataCombo1->setRowSource(dishes, "Piatto");
}

void FrmMenu::mostraPiatto(const QString &piatto)
{
    const QSignalBlocker quiet(m_ui->DataCombo1);
    m_ui->DataCombo1->setText(piatto);
}

void FrmMenu::DataCombo1_Change()
{
    Forma();
    scriviPosizione(kVuoto);
}

// An empty name opens the foods of all dishes, of which the first decides the dish. Where that has no name either, all
// of them stay on show.
void FrmMenu::Forma()
{
    const QScopedValueRollback navigating(m_navigando, true);
    m_righe->Close();
    setInAttesa(false); // a row that was pending has gone with the set
    apriRighe();
    if (m_ui->DataCombo1->text().isEmpty() && !m_righe->Eof()) {
        mostraPiatto(m_righe->value("Piatto").text());
        if (!m_ui->DataCombo1->text().isEmpty())
            apriRighe();
    }
    if (!m_righe->Eof())
        scriviClassificazione();
    setPersonCaptions();
    bindFields();
}

void FrmMenu::apriRighe()
{
    m_righe->Close();
    m_righe->Open(IstruzioneComposizione(m_ui->DataCombo1->text()), m_modulo.dati());
}

void FrmMenu::scriviClassificazione()
{
    const std::optional<QString> line = ClassificazionePiatto(m_modulo.dati(), m_ui->DataCombo1->text());
    if (!line)
        m_modulo.mondo.schermo.beep();
    m_ui->Label5->setText(line.value_or("Elemento non trovato nella tabella Sostituisci"));
}

void FrmMenu::setPersonCaptions()
{
    const struct
    {
        const QString &name;
        const std::map<int, QString> &captions;
        int column;
        QColor colour;
    } persons[] = {{m_modulo.NomePrimaPersona, kFirstPerson, 2, Tema::firstPerson()},
                   {m_modulo.NomeSecondaPersona, kSecondPerson, 5, Tema::secondPerson()}};
    for (const auto &person : persons) {
        int column = person.column;
        for (const char *caption : {"Quant. ", "KCal. ", "Tot. "})
            m_ui->TDBGrid1->setCaption(column++, caption + person.name);
        for (const auto &[index, caption] : person.captions) {
            auto *label = findChild<EtichettaNome *>("LbCampo_" + QString::number(index));
            Tema::colourCaption(label, person.colour);
            if (!person.name.isEmpty())
                label->setScritta(caption + person.name);
        }
    }
}

void FrmMenu::bindFields()
{
    if (m_ui->TDBGrid1->dataSource() != m_righe)
        m_ui->TDBGrid1->setDataSource(m_righe);
    for (const auto &[index, box] : m_TxtFields) {
        box->setDataSource(m_righe);
        const FieldInfo &field = m_righe->field(m_righe->fieldIndex(box->dataField()));
        if (field.type == ColumnType::Text)
            box->setMaxLength(field.definedSize);
    }
}

// Whoever goes to another row in the grid sees where he is; the commands write the position at their own moment. A
// pending row is written by the move, so that there is none to save any more.
void FrmMenu::Righe_MoveComplete()
{
    if (m_navigando || !m_righe->isOpen())
        return;
    scriviPosizione(kVuoto);
    if (!m_righe->isAdding())
        setInAttesa(false);
}

void FrmMenu::handlerFailed(const Failure &failure)
{
    if (failure.number() != FailureNumber::RowChanged || !m_righe->isOpen())
        return;
    m_righe->Resync();
    scriviPosizione(kVuoto);
}

void FrmMenu::scriviPosizione(const QString &empty)
{
    m_ui->lblStatus->setText(TestoPosizione(*m_righe, {}, empty));
}

// After a command of the bar the dish of the row comes on show, from its first row.
void FrmMenu::seguiRiga()
{
    if (m_righe->AbsolutePosition() < 1)
        return;
    mostraPiatto(m_righe->value("Piatto").text());
    Forma();
}

void FrmMenu::cmdFirst_Click()
{
    const QScopedValueRollback navigating(m_navigando, true);
    VaiAlPrimo(*m_righe);
    scriviPosizione(" RecordSet Vuoto!!");
    seguiRiga();
}

void FrmMenu::cmdLast_Click()
{
    const QScopedValueRollback navigating(m_navigando, true);
    VaiAllUltimo(*m_righe);
    scriviPosizione(kVuoto);
    seguiRiga();
}

void FrmMenu::cmdNext_Click()
{
    const QScopedValueRollback navigating(m_navigando, true);
    VaiAlSuccessivo(*m_righe, m_modulo.mondo.schermo);
    scriviPosizione(kVuoto);
    seguiRiga();
}

void FrmMenu::cmdPrevious_Click()
{
    const QScopedValueRollback navigating(m_navigando, true);
    VaiAlPrecedente(*m_righe, m_modulo.mondo.schermo);
    scriviPosizione(kVuoto);
    seguiRiga();
}

// Only a pending row takes a food from the list: leaving it for good must not rename another row.
void FrmMenu::Combo2_Click()
{
    if (!m_righe->isOpen() || !m_righe->isAdding())
        return;
    const std::optional<AlimentoScelto> food = ScegliAlimento(m_ui->Combo2->currentText());
    if (!food) {
        m_ui->lblStatus->setText("Scegli dall'elenco: l'alimento resta \"" + TxtFields(3)->text().trimmed() + "\"");
        return;
    }
    TxtFields(3)->setText(food->nome);
    TxtFields(5)->setText(food->kcal);
}

void FrmMenu::Label1_Click()
{
    if (m_ui->Label1->text() == kSalva)
        salvaAlimento();
    else
        aggiungiAlimento();
}

void FrmMenu::aggiungiAlimento()
{
    const QScopedValueRollback navigating(m_navigando, true);
    m_righe->AddNew();
    setInAttesa(true);
    TxtFields(0)->setText(TestoData(m_modulo.mondo.orologio.today()));
    TxtFields(2)->setText(m_ui->DataCombo1->text());
    TxtFields(6)->setText(LivelloNominale(m_modulo.KcalPrimaPersona));
    TxtFields(7)->setText(LivelloNominale(m_modulo.KcalSecondaPersona));
    Combo2_Click();
    scriviPosizione({});
}

void FrmMenu::salvaAlimento()
{
    if (!QuantitaValida(m_modulo, TxtFields(8)->text(), m_modulo.NomePrimaPersona)) {
        TxtFields(8)->setFocus();
        return;
    }
    if (!QuantitaValida(m_modulo, TxtFields(9)->text(), m_modulo.NomeSecondaPersona)) {
        TxtFields(9)->setFocus();
        return;
    }
    const QScopedValueRollback navigating(m_navigando, true);
    if (ConfermaSalvataggio(m_modulo, m_ui->Check1->isChecked(), TxtFields(3)->text())) {
        SalvaAlimento(m_modulo, *m_righe);
        elencaPiatti();
    } else {
        m_righe->CancelUpdate();
    }
    scriviPosizione(kVuoto);
    setInAttesa(false);
}

void FrmMenu::setInAttesa(bool pending)
{
    m_ui->Label1->setText(pending ? kSalva : kInserisci);
    m_ui->Label1->setBackgroundRole(pending ? QPalette::Highlight : QPalette::Base);
    m_ui->Label1->setForegroundRole(pending ? QPalette::HighlightedText : QPalette::Text);
    const bool hadFocus = m_ui->Combo2->hasFocus();
    TxtFields(3)->setVisible(!pending);
    m_ui->Combo2->setVisible(pending);
    findChild<QLabel *>("LbCampo_3")->setBuddy(pending ? static_cast<QWidget *>(m_ui->Combo2) : TxtFields(3));
    if (pending)
        m_ui->Combo2->setFocus();
    else if (hadFocus)
        TxtFields(3)->setFocus();
}

void FrmMenu::Label6_Click()
{
    const QScopedValueRollback navigating(m_navigando, true);
    if (!CancellaAlimento(m_modulo, *m_righe, TxtFields(3)->text(), TxtFields(2)->text()))
        return;
    scriviPosizione(kVuoto);
    if (!m_righe->isAdding())
        setInAttesa(false);
}

// A dish name that was typed over and never stored would delete another dish's links.
void FrmMenu::Label7_Click()
{
    const QScopedValueRollback navigating(m_navigando, true);
    if (!m_righe->isAdding())
        m_righe->CancelUpdate();
    if (!CancellaPiatto(m_modulo, *m_righe, TxtFields(2)->text()))
        return;
    elencaPiatti();
    mostraPiatto({});
    Forma();
    scriviPosizione(kVuoto);
}

void FrmMenu::Check1_Click()
{
    SalvaConfermaInserimento(m_modulo, m_ui->Check1->isChecked());
}

void FrmMenu::Command1_Click()
{
    Sostituti &window = m_registry.get<Sostituti>();
    window.preparaPerPiatto(m_ui->DataCombo1->text());
    window.showModal();
}

void FrmMenu::Command2_Click()
{
    m_ui->Frame2->show();
    m_ui->ComboTipo->setFocus();
}

void FrmMenu::Command3_Click()
{
    const DatiNuovoPiatto dish{m_ui->Text1->text(), m_ui->ComboTipo->currentText(), m_ui->ComboCategoria->currentText(),
                               m_ui->DataCombo2->text()};
    if (!ConfermaNuovoPiatto(m_modulo, dish)) {
        m_ui->Frame2->hide();
        return;
    }
    InserisciNuovoPiatto(m_modulo, dish);
    CollegaAlGruppo(m_modulo, dish);
    mostraPiatto(dish.titolo);
    Forma();
    scriviPosizione(kVuoto);
    m_ui->Frame2->hide();
}

void FrmMenu::Command4_Click()
{
    m_ui->Frame2->hide();
    m_ui->ComboTipo->setCurrentIndex(-1);
    m_ui->ComboTipo->clearEditText();
    m_ui->ComboCategoria->setCurrentIndex(-1);
    m_ui->ComboCategoria->clearEditText();
}

// The name is what is asked last: from it the keyboard goes on to the insertion. The mouse goes where it clicks.
void FrmMenu::Text1_LostFocus(Qt::FocusReason reason)
{
    if (reason == Qt::TabFocusReason)
        m_ui->Command3->setFocus();
}

void FrmMenu::ComboTipo_Click()
{
    ElencaPerTipo(*m_ui->ComboTipo, *m_ui->ComboCategoria, *m_ui->DataCombo2, m_modulo.dati());
}

void FrmMenu::ComboCategoria_Click()
{
    ElencaPerCategoria(*m_ui->ComboTipo, *m_ui->ComboCategoria, *m_ui->DataCombo2, m_modulo.dati());
}

void FrmMenu::Form_KeyPress(int character)
{
    if (character == kEscape)
        unload();
}
