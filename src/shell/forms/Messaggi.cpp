#include "shell/forms/Messaggi.h"

#include "ui_Messaggi.h"

Messaggi::Messaggi(FormHost &host, ModNetServer &modulo)
    : Form("Messaggi", host), m_ui(std::make_unique<Ui::Messaggi>()), m_modulo(modulo)
{
    m_ui->setupUi(this);
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint);
    m_ui->Image1->hide();
    QFont font = m_ui->Label1->font();
    font.setPointSize(13);
    font.setWeight(QFont::DemiBold);
    m_ui->Label1->setFont(font);
}

Messaggi::~Messaggi() = default;

void Messaggi::scriviAttesa(const QString &label1, const QString &label2)
{
    m_ui->Label1->setText(label1);
    m_ui->Label2->setText(label2);
    m_ui->Label1->repaint();
    m_ui->Label2->repaint();
}

int Messaggi::valoreBarra() const
{
    return m_ui->ProgressBar1->value();
}

int Messaggi::massimoBarra() const
{
    return m_ui->ProgressBar1->maximum();
}

void Messaggi::impostaBarra(int value)
{
    m_ui->ProgressBar1->setValue(value);
    m_ui->ProgressBar1->repaint();
}

void Messaggi::Form_Resize()
{
    scriviAttesa(m_modulo.TestoAttesa1, m_modulo.TestoAttesa2);
    m_ui->Label3->setText(m_modulo.TestoAttesa3);
    m_ui->Label3->repaint();
    m_ui->Image1->show();
    m_modulo.mondo.schermo.breathe(); // the screen shows before the start goes on
    m_modulo.mondo.schermo.setMousePointer(MousePointer::Default);
}

void Messaggi::Form_DblClick()
{
    m_modulo.mondo.schermo.setMousePointer(MousePointer::Default);
}

void Messaggi::Form_Unload()
{
    m_modulo.TestoAttesa1.clear();
    m_modulo.TestoAttesa2.clear();
    m_modulo.TestoAttesa3.clear();
}
