#include "catalogue/forms/PiattiKCAL.h"

#include "catalogue/forms/Icone.h"
#include "catalogue/PiattiKcal.h"
#include "ui_PiattiKCAL.h"

namespace {

constexpr int kLogo = 32; // pixels

} // namespace

PiattiKCAL::PiattiKCAL(FormHost &host, ModNetServer &modulo)
    : Form("PiattiKCAL", host), m_ui(std::make_unique<Ui::PiattiKCAL>()), m_modulo(modulo)
{
    m_ui->setupUi(this);
    setWindowIcon(Icone::icona("elenco"));
    m_ui->ImgMarvo->setPixmap(windowIcon().pixmap(kLogo));
    m_ui->TDBGrid1->setHost(&host);
    m_ui->TDBGrid1->setColumns({{"Piatto", "Piatto"},
                                {"KC100grOndira", "KCalGr " + modulo.NomePrimaPersona},
                                {"KC100grTesmo", "KCalGr " + modulo.NomeSecondaPersona}});
}

PiattiKCAL::~PiattiKCAL() = default;

void PiattiKCAL::Form_Load()
{
    auto dishes = std::make_shared<Recordset>();
    dishes->Open(IstruzionePiattiKcal(), m_modulo.dati());
    m_ui->TDBGrid1->setDataSource(std::move(dishes));
}

void PiattiKCAL::Form_KeyPress(int character)
{
    if (character == kEscape)
        unload();
}
