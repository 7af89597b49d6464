#include "shell/forms/Menu.h"

#include "catalogue/forms/CreaGruppo.h"
#include "catalogue/forms/FrmCategorie.h"
#include "catalogue/forms/FrmMenu.h"
#include "core/Household.h"
#include "pages/PaginaHtml.h"
#include "planner/forms/GeneraMenu.h"
#include "planner/forms/Preferiti.h"
#include "platform/ui/FormRegistry.h"
#include "sheet/forms/FrmCibra.h"
#include "shell/ContaVisite.h"
#include "shell/EtichettePersone.h"
#include "shell/forms/Sfondo.h"
#include "shell/Manutenzione.h"
#include "shell/MarcatoreSfondo.h"
#include "ui_Menu.h"

namespace {

void setSize(QLabel *label, int points, QFont::Weight weight)
{
    QFont font = label->font();
    font.setPointSize(points);
    font.setWeight(weight);
    label->setFont(font);
}

} // namespace

Menu::Menu(FormHost &host, FormRegistry &registry, ModNetServer &modulo)
    : Form("Menu", host), m_ui(std::make_unique<Ui::Menu>()), m_registry(registry), m_modulo(modulo)
{
    m_ui->setupUi(this);
    m_ui->sb->addPanel({}, {}, 1);
    m_ui->StatusBar1->addPanel(modulo.DataAvvio);
    dress();
    connectHandlers();
}

Menu::~Menu() = default;

void Menu::dress()
{
    setSize(m_ui->Label1, 13, QFont::DemiBold);
    setSize(m_ui->Label2, 12, QFont::Normal);
    setSize(m_ui->Label3, 22, QFont::DemiBold);
    setSize(m_ui->Label4, 15, QFont::Normal);
    QPalette palette = m_ui->Label1->palette();
    palette.setColor(QPalette::WindowText, palette.color(QPalette::Link));
    m_ui->Label1->setPalette(palette);
}

void Menu::connectHandlers()
{
    on(m_ui->mnucalcolaCibra, &QAction::triggered, this, &Menu::mnucalcolaCibra_Click);
    on(m_ui->mnumenuPiatti, &QAction::triggered, this, &Menu::mnumenuPiatti_Click);
    on(m_ui->mnuAlternativi, &QAction::triggered, this, &Menu::mnuAlternativi_Click);
    on(m_ui->mnuPreferiti, &QAction::triggered, this, &Menu::mnuPreferiti_Click);
    on(m_ui->MnugeneraMenu, &QAction::triggered, this, &Menu::MnugeneraMenu_Click);
    on(m_ui->MnuAlimenti, &QAction::triggered, this, &Menu::MnuAlimenti_Click);
    on(m_ui->mnuDatabase, &QAction::triggered, this, &Menu::mnuDatabase_Click);
    on(m_ui->mnuHTML, &QAction::triggered, this, &Menu::mnuHTML_Click);
    on(m_ui->mnuVisualizza, &QAction::triggered, this, &Menu::mnuVisualizza_Click);
    on(m_ui->mnuesciRete, &QAction::triggered, this, &Menu::mnuesciRete_Click);
    on(m_ui->Command111, &QPushButton::clicked, this, &Menu::Command111_Click);
    on(m_ui->Command133, &QPushButton::clicked, this, &Menu::Command133_Click);
    on(m_ui->Command10, &QPushButton::clicked, this, &Menu::Command10_Click);
}

void Menu::setPercorso(const QString &path)
{
    m_ui->sb->setPanelText(1, path);
}

void Menu::Form_Load()
{
    // A household file that is cut short is shown and logged, and the window opens all the same.
    host().guarded([this] { aggiornaEtichette(); });
}

void Menu::aggiornaEtichette()
{
    const EtichettePersone labels = LeggiEtichettePersone(m_modulo);
    m_ui->Label3->setText(labels.nomi);
    m_ui->Label4->setText(labels.calorie);
}

void Menu::Form_Resize()
{
    const ProgramFolder &folder = m_modulo.mondo.folder;
    mostraSfondo(SfondoVisibile(folder));
    setWindowTitle("Applicazione per la Gestione Cibra  - n. Rev.   :  " + ContaVisita(folder));
    if (!EsisteAnagrafica(m_modulo))
        chiediAnagrafica();
}

void Menu::chiediAnagrafica()
{
    m_registry.get<GeneraMenu>().showHousehold();
    m_modulo.mondo.dialoghi.MsgBox("Devi inserire i dati di default per la cibra", MsgFlags::Information, "OK");
    m_registry.get<GeneraMenu>().showModal();
    aggiornaEtichette();
}

void Menu::mostraSfondo(bool visible)
{
    m_ui->mnuVisualizza->setChecked(visible);
    Sfondo &background = m_registry.get<Sfondo>();
    if (visible)
        background.mostra();
    else
        background.hide();
}

void Menu::Form_KeyPress(int character)
{
    if (character == kEscape)
        TerminaProgramma();
}

void Menu::Form_Unload()
{
    if (m_modulo.ConnessioneDati)
        m_modulo.ConnessioneDati->Close();
    m_modulo.mondo.schermo.setMousePointer(MousePointer::Default);
    TerminaProgramma();
}

void Menu::mnucalcolaCibra_Click()
{
    m_registry.get<FrmCibra>().showModal();
}

void Menu::mnumenuPiatti_Click()
{
    m_registry.get<FrmMenu>().showModal();
    aggiornaEtichette();
}

void Menu::mnuAlternativi_Click()
{
    m_registry.get<CreaGruppo>().showModal();
}

void Menu::mnuPreferiti_Click()
{
    m_registry.get<Preferiti>().showModal();
    aggiornaEtichette();
}

void Menu::MnugeneraMenu_Click()
{
    m_registry.get<GeneraMenu>().showModal();
    aggiornaEtichette();
}

void Menu::MnuAlimenti_Click()
{
    m_registry.get<FrmCategorie>().showModal();
}

void Menu::mnuDatabase_Click()
{
    m_modulo.schermate.mostraGestioneRete();
}

void Menu::mnuHTML_Click()
{
    mnuHTML(m_modulo);
}

void Menu::mnuVisualizza_Click()
{
    const ProgramFolder &folder = m_modulo.mondo.folder;
    if (SfondoVisibile(folder)) {
        mostraSfondo(false);
        TogliSegnoSfondo(folder);
        return;
    }
    mostraSfondo(true); // it comes up behind this window, which stays in reach
    SegnaSfondo(folder);
}

void Menu::mnuesciRete_Click()
{
    TerminaProgramma();
}

void Menu::Command111_Click()
{
    CopiaCalorie(m_modulo);
}

void Menu::Command133_Click()
{
    ElencaSostituti(m_modulo);
}

void Menu::Command10_Click()
{
    RapportoSenzaCorrispondenza(m_modulo, [this](const QString &Piatto) { setWindowTitle(Piatto); });
}
