#include "catalogue/forms/InserimentoKCal.h"

#include "catalogue/forms/Icone.h"
#include "platform/ui/Scritte.h"
#include "ui_InserimentoKCal.h"

InserimentoKCal::InserimentoKCal(FormHost &host, ModNetServer &modulo)
    : Form("InserimentoKCal", host), m_ui(std::make_unique<Ui::InserimentoKCal>()), m_modulo(modulo)
{
    m_ui->setupUi(this);
    setWindowIcon(Icone::icona("bilancia"));
    on(m_ui->Command1, &QPushButton::clicked, this, &InserimentoKCal::Command1_Click);
    on(m_ui->Command2, &QPushButton::clicked, this, &InserimentoKCal::Command2_Click);
}

InserimentoKCal::~InserimentoKCal() = default;

void InserimentoKCal::setDomanda(const QString &domanda)
{
    m_ui->Label1->setText(domanda);
}

void InserimentoKCal::Form_Load()
{
    m_modulo.mondo.schermo.beep();
    m_ui->Command1->setText(Scritte::senzaTasto(m_modulo.NomePrimaPersona));
    m_ui->Command2->setText(Scritte::senzaTasto(m_modulo.NomeSecondaPersona));
    m_modulo.NomeScelto.clear();
}

void InserimentoKCal::Command1_Click()
{
    scegli(m_modulo.NomePrimaPersona);
}

void InserimentoKCal::Command2_Click()
{
    scegli(m_modulo.NomeSecondaPersona);
}

void InserimentoKCal::scegli(const QString &person)
{
    m_modulo.NomeScelto = person;
    unload();
}

void InserimentoKCal::Form_KeyPress(int character)
{
    if (character == kEscape)
        unload();
}
