#include "catalogue/forms/Sostituti.h"

#include "catalogue/Alternative.h"
#include "catalogue/forms/BarraNavigazione.h"
#include "catalogue/forms/Icone.h"
#include "catalogue/Navigazione.h"
#include "core/Vocabulary.h"
#include "platform/ui/Tema.h"
#include "ui_Sostituti.h"

#include <QKeyEvent>
#include <QSignalBlocker>

namespace {

const QString kTitolo = QStringLiteral("Sostituisci Menu");

// A key that types something; the arrows go from row to row and are none.
bool isCharacter(const QKeyEvent &key)
{
    const bool isCommand = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !isCommand && !key.text().isEmpty() && key.key() != Qt::Key_Tab && key.key() != Qt::Key_Backtab &&
           key.key() != Qt::Key_Escape;
}

} // namespace

Sostituti::Sostituti(FormHost &host, ModNetServer &modulo)
    : Form("Sostituti", host), m_ui(std::make_unique<Ui::Sostituti>()), m_modulo(modulo)
{
    m_ui->setupUi(this);
    m_ui->TDBGrid1->setColumns({{"sostituisci", "Sostituisci con piatto "},
                                {"KCalOndira", "KCal "},
                                {"KCalTesmo", "KCal "},
                                {"Categoria", "Categoria", CellEdit::ReadOnly, CategorieGriglia()},
                                {"Tipo", "Tipo"}});
    m_ui->TDBGrid2->setColumns(
        {{"Alimento", "Alimento"}, {"KC100gr", "KCal per 100 g."}, {"totale1", "Totale "}, {"totale2", "Totale "}});
    dress();
    connectHandlers();
}

Sostituti::~Sostituti() = default;

void Sostituti::dress()
{
    setWindowIcon(Icone::icona("gruppo"));
    VestiNavigazione(m_ui->cmdFirst, m_ui->cmdPrevious, m_ui->cmdNext, m_ui->cmdLast);
    for (QLabel *label : std::initializer_list<QLabel *>{m_ui->LbTotale1, m_ui->Label5})
        Tema::colourCaption(label, Tema::firstPerson());
    for (QLabel *label : std::initializer_list<QLabel *>{m_ui->LbTotale2, m_ui->Label7})
        Tema::colourCaption(label, Tema::secondPerson());
    m_ui->Label6->hide();
    m_ui->Frame2->hide();
}

void Sostituti::connectHandlers()
{
    on(m_ui->DataCombo1, &DataCombo::picked, this, &Sostituti::DataCombo1_Click);
    on(m_ui->DataCombo1, &DataCombo::textChanged, this, &Sostituti::DataCombo1_Click);
    on(m_alternative.get(), &Recordset::moveComplete, this, &Sostituti::Alternative_MoveComplete);
    on(m_ui->Text2, &QLineEdit::textChanged, this, &Sostituti::Text2_Change);
    on(m_ui->Label1, &EtichettaComando::clicked, this, &Sostituti::mostraIngredienti);
    on(m_ui->Command1, &QPushButton::clicked, this, &Sostituti::Command1_Click);
    on(m_ui->Command2, &QPushButton::clicked, this, &Sostituti::Command2_Click);
    on(m_ui->cmdFirst, &QToolButton::clicked, this, &Sostituti::cmdFirst_Click);
    on(m_ui->cmdLast, &QToolButton::clicked, this, &Sostituti::cmdLast_Click);
    on(m_ui->cmdNext, &QToolButton::clicked, this, &Sostituti::cmdNext_Click);
    on(m_ui->cmdPrevious, &QToolButton::clicked, this, &Sostituti::cmdPrevious_Click);
    for (DataGrid *grid : {m_ui->TDBGrid1, m_ui->TDBGrid2}) {
        grid->setHost(&host());
        grid->installEventFilter(this);
        on(grid, &DataGrid::Click, this, &Sostituti::mostraIngredienti);
    }
}

void Sostituti::Form_Load()
{
    m_piatti->Open(IstruzioneSostituti(), m_modulo.dati());
    m_ui->DataCombo1->setRowSource(*m_piatti, "Piatto");
    QString dish = m_modulo.PiattoSostituto;
    if (dish.isEmpty() && !m_piatti->Eof())
        dish = m_piatti->value("Piatto").text();
    runHandler([&] { applica(dish); }); // a name that breaks a statement is told, and the window opens all the same
}

void Sostituti::preparaPerGiorno(const QString &piatto, const QString &pasto)
{
    m_ui->LbPiatto->hide();
    m_ui->DataCombo1->hide();
    m_ui->Label6->setText("Sostituisci Menu " + piatto + " di cui ");
    m_ui->Label6->show();
    setWindowTitle("Sostituisci Menu " + piatto + " di cui " + pasto);
    applica(piatto);
}

void Sostituti::preparaPerPiatto(const QString &piatto)
{
    m_ui->Label6->hide();
    m_ui->LbPiatto->show();
    m_ui->DataCombo1->show();
    setWindowTitle(kTitolo);
    applica(piatto);
}

void Sostituti::applica(const QString &piatto)
{
    {
        const QSignalBlocker quiet(m_ui->DataCombo1); // it is no choice of the user's
        m_ui->DataCombo1->setText(piatto);
    }
    DataCombo1_Click();
    cmdFirst_Click();
}

void Sostituti::DataCombo1_Click()
{
    m_ui->Label3->setText("Piatto o pietanza che sostituirà " + m_ui->DataCombo1->text());
    Forma();
}

void Sostituti::Forma()
{
    const QString dish = m_ui->DataCombo1->text();
    m_alternative->Close();
    setPersonCaptions();
    m_modulo.RigaLetta = IstruzioneAlternative(dish);
    m_alternative->Open(m_modulo.RigaLetta, m_modulo.dati());
    m_ui->TDBGrid1->setDataSource(m_alternative);
    m_ui->TDBGrid1->refresh();
    m_ui->Text2->clear();
    m_ui->Text1->setText(dish);
    m_ui->Text1->setCursorPosition(0);
    const TotaliPiatto totals = SommaPiatto(m_modulo.dati(), dish);
    m_ui->Label5->setText(totals.prima);
    m_ui->Label7->setText(totals.seconda);
    cmdFirst_Click();
}

void Sostituti::setPersonCaptions()
{
    const QString &first = m_modulo.NomePrimaPersona;
    const QString &second = m_modulo.NomeSecondaPersona;
    m_ui->TDBGrid1->setCaption(1, "KCal " + first);
    m_ui->TDBGrid1->setCaption(2, "KCal " + second);
    m_ui->TDBGrid2->setCaption(2, "Totale " + first);
    m_ui->TDBGrid2->setCaption(3, "Totale " + second);
    m_ui->LbTotale1->setScritta("Totale KCal " + first);
    m_ui->LbTotale2->setScritta("Totale KCal " + second);
}

// Every move copies the alternative; a passage by the ends, where there is no row, is none.
void Sostituti::Alternative_MoveComplete()
{
    if (m_alternative->AbsolutePosition() < 1)
        return;
    m_ui->Text2->setText(m_alternative->value("sostituisci").text());
    scriviPosizione();
}

void Sostituti::Text2_Change()
{
    const QString dish = m_ui->Text2->text();
    m_ingredienti->Close();
    m_ingredienti->Open(IstruzioneIngredienti(dish), m_modulo.dati(), Recordset::Access::ReadOnly);
    m_ui->TDBGrid2->setDataSource(m_ingredienti);
    m_ui->TDBGrid2->refresh();
    m_ui->Text3->setText(dish);
}

void Sostituti::mostraIngredienti()
{
    m_ui->Frame2->setVisible(m_ui->Frame2->isHidden());
}

bool Sostituti::eventFilter(QObject *watched, QEvent *event)
{
    const bool isGrid = watched == m_ui->TDBGrid1 || watched == m_ui->TDBGrid2;
    if (!isGrid || event->type() != QEvent::KeyPress || !isCharacter(*static_cast<QKeyEvent *>(event)))
        return Form::eventFilter(watched, event);
    runHandler([this] { mostraIngredienti(); });
    return true;
}

void Sostituti::Command1_Click()
{
    ConfermaSostituzione(m_modulo, m_ui->Text1->text(), m_ui->Text2->text());
    hide();
}

void Sostituti::Command2_Click()
{
    m_modulo.PiattoSostituto.clear();
    hide();
}

void Sostituti::cmdFirst_Click()
{
    VaiAlPrimo(*m_alternative);
    scriviPosizione();
}

void Sostituti::cmdLast_Click()
{
    VaiAllUltimo(*m_alternative);
    scriviPosizione();
}

void Sostituti::cmdNext_Click()
{
    VaiAlSuccessivo(*m_alternative, m_modulo.mondo.schermo);
    scriviPosizione();
}

void Sostituti::cmdPrevious_Click()
{
    VaiAlPrecedente(*m_alternative, m_modulo.mondo.schermo);
    scriviPosizione();
}

void Sostituti::scriviPosizione()
{
    m_ui->lblStatus->setText(
        TestoPosizione(*m_alternative, "F1 Help     *    Record: ", "F1 Help     *    RecordSet Vuoto!!"));
}

void Sostituti::Form_KeyPress(int character)
{
    if (character == kEscape)
        unload();
}

// Whoever leaves by Esc or by closing the window has chosen nothing.
void Sostituti::Form_Unload()
{
    m_modulo.PiattoSostituto.clear();
}
