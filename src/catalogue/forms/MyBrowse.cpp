#include "catalogue/forms/MyBrowse.h"

#include "catalogue/ArchivioPagine.h"
#include "catalogue/forms/Icone.h"
#include "ui_MyBrowse.h"

#include <QDir>
#include <QShortcut>

namespace {

constexpr int kLogo = 32; // pixels

} // namespace

MyBrowse::MyBrowse(FormHost &host, ModNetServer &modulo)
    : Form("MyBrowse", host), m_ui(std::make_unique<Ui::MyBrowse>()), m_modulo(modulo)
{
    m_ui->setupUi(this);
    setWindowIcon(Icone::icona("archivio"));
    m_ui->ImgMarvo->setPixmap(windowIcon().pixmap(kLogo));
    m_ui->LogoEmail->setPixmap(Icone::icona("elenco").pixmap(kLogo));
    on(m_ui->Drive1, &QComboBox::currentIndexChanged, this, &MyBrowse::Drive1_Change);
    on(m_ui->Dir1, &ElencoCartelle::cartellaCambiata, this, &MyBrowse::Dir1_Change);
    on(m_ui->File1, &QListWidget::itemDoubleClicked, this, &MyBrowse::File1_DblClick);
    for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
        auto *open = new QShortcut(QKeySequence(enter), m_ui->File1, nullptr, nullptr, Qt::WidgetShortcut);
        on(open, &QShortcut::activated, this, &MyBrowse::File1_DblClick);
    }
}

MyBrowse::~MyBrowse() = default;

void MyBrowse::Form_Load()
{
    m_ui->Dir1->setCartella(CartellaDocumenti(m_modulo));
    Dir1_Change();
}

void MyBrowse::Drive1_Change()
{
    m_ui->Dir1->setCartella(m_ui->Drive1->disco());
}

void MyBrowse::Dir1_Change()
{
    m_ui->Drive1->mostraDiscoDi(m_ui->Dir1->cartella());
    m_ui->LbPercorso->setText(QDir::toNativeSeparators(m_ui->Dir1->cartella()));
    m_ui->File1->mostra(m_ui->Dir1->cartella());
}

void MyBrowse::File1_DblClick()
{
    const QString file = m_ui->File1->fileScelto();
    if (!file.isEmpty())
        ApriPagina(m_modulo, m_ui->Dir1->cartella(), file);
}

void MyBrowse::Form_KeyPress(int character)
{
    if (character == kEscape)
        unload();
}
