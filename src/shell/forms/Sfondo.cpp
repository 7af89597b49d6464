#include "shell/forms/Sfondo.h"

#include "core/Helpers.h"
#include "ui_Sfondo.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPaintEvent>

namespace {
constexpr int kPanels = 5;
}

Sfondo::Sfondo(FormHost &host, ModNetServer &modulo)
    : Form("Sfondo", host), m_ui(std::make_unique<Ui::Sfondo>()), m_modulo(modulo)
{
    m_ui->setupUi(this);
    // Whatever opens later stands in front, and the first show leaves the keyboard where it is.
    setWindowFlags(windowFlags() | Qt::WindowStaysOnBottomHint | Qt::WindowDoesNotAcceptFocus);
    setAttribute(Qt::WA_ShowWithoutActivating);
    m_ui->StatusBar1->addPanel(windowTitle());
    for (int panel = 2; panel <= kPanels; ++panel)
        m_ui->StatusBar1->addPanel({}, {}, panel >= 4 ? 1 : 0);
    m_ui->ImgErrore->hide();
    m_ui->Superficie->installEventFilter(this);
}

Sfondo::~Sfondo() = default;

void Sfondo::mostra()
{
    setWindowState(windowState() | Qt::WindowMaximized);
    showModeless();
}

void Sfondo::RefreshSfondo()
{
    Form_Resize();
}

void Sfondo::mostraErrore(const QString &panel4, const QString &panel5)
{
    m_ui->ImgErrore->show();
    setPannello(4, panel4);
    setPannello(5, panel5);
}

void Sfondo::nascondiErrore()
{
    m_ui->ImgErrore->hide();
}

void Sfondo::suggerimentoErrore(const QString &toolTip)
{
    m_ui->ImgErrore->setToolTip(toolTip);
}

QString Sfondo::pannello(int panel) const
{
    return m_ui->StatusBar1->panelText(panel);
}

void Sfondo::setPannello(int panel, const QString &text)
{
    m_ui->StatusBar1->setPanelText(panel, text);
}

void Sfondo::Form_Load()
{
    try {
        RegistraModifica(m_modulo, m_modulo.mondo.folder.path() + "\\" + name() + ".FRM");
    } catch (const Failure &) {
        // A list for the makers of the program: its failure concerns nobody else.
    }
}

void Sfondo::Form_Resize()
{
    m_modulo.mondo.schermo.setMousePointer(MousePointer::Default);
    m_ui->Superficie->update();
}

void Sfondo::Form_Unload()
{
    TerminaProgramma();
}

bool Sfondo::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_ui->Superficie && event->type() == QEvent::Paint) {
        paintGradient();
        return true;
    }
    return Form::eventFilter(watched, event);
}

void Sfondo::paintGradient()
{
    QLinearGradient gradient(0, 0, 0, m_ui->Superficie->height());
    gradient.setColorAt(0, QColor(255, 175, 0));
    gradient.setColorAt(1, QColor(255, 175, 255));
    QPainter painter(m_ui->Superficie);
    painter.fillRect(m_ui->Superficie->rect(), gradient);
}
