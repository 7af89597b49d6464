#include "planner/forms/Preferiti.h"

#include "core/Vocabulary.h"
#include "planner/Preferiti.h"
#include "ui_Preferiti.h"

#include <QKeyEvent>

namespace {

const QString kSoloPreferiti = QStringLiteral("Visualizza tutti i preferiti");
const QString kTuttaLaTabella = QStringLiteral("Visualizza tutta la tabella");

// Snacks are no item of the grid's list: a dish keeps that type, but takes it only where it is created.
QStringList tipiDellaGriglia()
{
    return {Pasto::Colazione, Pasto::Menu};
}

} // namespace

Preferiti::Preferiti(FormHost &host, ModNetServer &modulo)
    : Form("Preferiti", host), m_ui(std::make_unique<Ui::Preferiti>()), m_modulo(modulo)
{
    m_ui->setupUi(this);
    m_ui->Combo1->addItems(Tipi());
    m_ui->Combo2->addItems(Categorie12());
    for (DataCombo *combo : {m_ui->Combo1, m_ui->Combo2})
        combo->setText({});
    m_ui->TDBGrid1->setHost(&host);
    m_ui->TDBGrid1->setColumns({{"Preferito", "Preferito", CellEdit::Text},
                                {"Piatto", "Piatto"},
                                {"Tipo", "Tipo", CellEdit::Text, tipiDellaGriglia()},
                                {"Categoria", "Categoria", CellEdit::Text, CategorieGriglia()}});
    connectHandlers();
}

Preferiti::~Preferiti() = default;

void Preferiti::connectHandlers()
{
    on(m_ui->Command1, &QPushButton::clicked, this, &Preferiti::Command1_Click);
    on(m_ui->Command2, &QPushButton::clicked, this, &Preferiti::Command2_Click);
    on(m_ui->Combo1, &DataCombo::picked, this, &Preferiti::Combo1_Click);
    on(m_ui->Combo1, &DataCombo::textChanged, this, &Preferiti::Combo1_Change);
    on(m_ui->Combo2, &DataCombo::picked, this, &Preferiti::Combo2_Click);
    on(m_ui->mnupreferiti, &QAction::triggered, this, &Preferiti::mnupreferiti_Click);
    on(m_ui->MnuEsci, &QAction::triggered, this, &Preferiti::MnuEsci_Click);
}

void Preferiti::Form_Load()
{
    Command1_Click();
}

void Preferiti::Form_KeyPress(int character)
{
    // An edit under way is given up first: the key is meant for the cell then.
    if (character == kEscape && !m_ui->TDBGrid1->cancelEdit())
        unload();
}

// Enter in the grid is no press of the default button: the rows would be read anew under the cursor.
void Preferiti::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && m_ui->TDBGrid1->hasFocus())
        event->accept();
    else
        Form::keyPressEvent(event);
}

void Preferiti::apri(const QString &query)
{
    if (m_Datprimaryrs)
        m_Datprimaryrs->Close();
    m_Datprimaryrs = std::make_shared<Recordset>();
    m_Datprimaryrs->Open(query, m_modulo.dati());
    m_ui->TDBGrid1->setDataSource(m_Datprimaryrs);
    m_ui->TDBGrid1->refresh();
}

int Preferiti::conta()
{
    const int n = ContaPreferiti(m_modulo, m_UltimaQueryPreferiti);
    m_ui->TDBGrid1->setCaption("Scegli i tuoi menu Preferiti - (selezionati = " + QString::number(n) + ")");
    return n;
}

void Preferiti::Command1_Click()
{
    m_UltimaQueryPreferiti = QueryPreferiti(m_ui->Combo1->text(), m_ui->Combo2->text());
    apri(m_UltimaQueryPreferiti);
    conta();
}

void Preferiti::Command2_Click()
{
    m_modulo.mondo.dialoghi.MsgBox("Preferiti = " + QString::number(conta()), MsgFlags::Information, "OK");
}

void Preferiti::Combo1_Click()
{
    Command1_Click();
    const QString tipo = m_ui->Combo1->text();
    if (tipo.isEmpty()) {
        m_ui->Combo2->setText({});
    } else {
        const QStringList categorie = CategorieDelTipo(m_modulo, tipo);
        m_ui->Combo2->clear();
        m_ui->Combo2->addItems(QStringList(QString()) + categorie);
        m_ui->Combo2->setText({});
    }
    Command1_Click();
}

// A type is typed key by key and asked for by the button; a box that was emptied asks by itself.
void Preferiti::Combo1_Change()
{
    if (m_ui->Combo1->text().isEmpty())
        Combo1_Click();
}

void Preferiti::Combo2_Click()
{
    if (!m_ui->Combo1->text().isEmpty()) {
        Command1_Click();
        return;
    }
    m_ui->Combo1->setFocus();
    m_modulo.mondo.dialoghi.MsgBox("Seleziona la tipologia", MsgFlags::Information, "OK");
}

void Preferiti::mnupreferiti_Click()
{
    const bool soloPreferiti = m_ui->mnupreferiti->text() == kSoloPreferiti;
    m_ui->mnupreferiti->setText(soloPreferiti ? kTuttaLaTabella : kSoloPreferiti);
    apri(soloPreferiti ? QuerySoloPreferiti() : QueryTuttaLaTabella());
    VerificaTipi(m_modulo);
}
