#include "catalogue/forms/CreaGruppo.h"

#include "catalogue/forms/ElencoCollegabili.h"
#include "catalogue/forms/Icone.h"
#include "catalogue/NuovoPiatto.h"
#include "platform/ui/AvvisoUscita.h"
#include "ui_CreaGruppo.h"

CreaGruppo::CreaGruppo(FormHost &host, ModNetServer &modulo)
    : Form("CreaGruppo", host), m_ui(std::make_unique<Ui::CreaGruppo>()), m_modulo(modulo)
{
    m_ui->setupUi(this);
    setWindowIcon(Icone::icona("gruppo"));
    RiempiClassi(*m_ui->ComboTipo, *m_ui->ComboCategoria);
    on(m_ui->ComboTipo, &QComboBox::activated, this, &CreaGruppo::ComboTipo_Click);
    on(new AvvisoUscita(m_ui->ComboTipo), &AvvisoUscita::left, this, &CreaGruppo::ComboTipo_Click);
    on(m_ui->ComboCategoria, &QComboBox::activated, this, &CreaGruppo::ComboCategoria_Click);
    on(new AvvisoUscita(m_ui->ComboCategoria), &AvvisoUscita::left, this, &CreaGruppo::ComboCategoria_Click);
    on(m_ui->Command3, &QPushButton::clicked, this, &CreaGruppo::Command3_Click);
    on(m_ui->Command4, &QPushButton::clicked, this, &CreaGruppo::Command4_Click);
    on(m_ui->mnuCancella, &QAction::triggered, this, &CreaGruppo::mnuCancella_Click);
}

CreaGruppo::~CreaGruppo() = default;

void CreaGruppo::ComboTipo_Click()
{
    ElencaPerTipo(*m_ui->ComboTipo, *m_ui->ComboCategoria, *m_ui->DataCombo2, m_modulo.dati());
}

void CreaGruppo::ComboCategoria_Click()
{
    ElencaPerCategoria(*m_ui->ComboTipo, *m_ui->ComboCategoria, *m_ui->DataCombo2, m_modulo.dati());
}

void CreaGruppo::Command3_Click()
{
    const DatiNuovoPiatto dish{m_ui->Text1->text(), m_ui->ComboTipo->currentText(), m_ui->ComboCategoria->currentText(),
                               m_ui->DataCombo2->text()};
    if (!ConfermaNuovoPiatto(m_modulo, dish))
        return;
    InserisciNuovoPiatto(m_modulo, dish);
    CollegaAlleAlternative(m_modulo, dish);
}

void CreaGruppo::mnuCancella_Click()
{
    CancellaDoppione(m_modulo);
}

void CreaGruppo::Form_KeyPress(int character)
{
    if (character == kEscape)
        unload();
}
