#include "shell/forms/SchermateDelProgramma.h"

#include "planner/forms/GeneraMenu.h"
#include "shell/forms/GestioneRete.h"
#include "shell/forms/Menu.h"
#include "shell/forms/Messaggi.h"
#include "shell/forms/Sfondo.h"

void SchermateDelProgramma::mostraGestioneRete()
{
    m_registry.get<GestioneRete>().showModal();
    if (m_registry.isLoaded<GestioneRete>())
        m_registry.get<GestioneRete>().unload();
}

void SchermateDelProgramma::percorsoNellaBarra(const QString &path)
{
    m_registry.get<Menu>().setPercorso(path);
}

void SchermateDelProgramma::erroreSuSfondo(const QString &panel, const QString &nextPanel)
{
    m_registry.get<Sfondo>().mostraErrore(panel, nextPanel);
}

void SchermateDelProgramma::nascondiErroreSfondo()
{
    m_registry.get<Sfondo>().nascondiErrore();
}

void SchermateDelProgramma::suggerimentoErroreSfondo(const QString &toolTip)
{
    m_registry.get<Sfondo>().suggerimentoErrore(toolTip);
}

QString SchermateDelProgramma::pannelloSfondo(int panel)
{
    return m_registry.get<Sfondo>().pannello(panel);
}

void SchermateDelProgramma::setPannelloSfondo(int panel, const QString &text)
{
    m_registry.get<Sfondo>().setPannello(panel, text);
}

void SchermateDelProgramma::mostraMessaggi()
{
    m_registry.get<Messaggi>().showModeless();
}

void SchermateDelProgramma::scriviAttesa(const QString &label1, const QString &label2)
{
    m_registry.get<Messaggi>().scriviAttesa(label1, label2);
}

int SchermateDelProgramma::valoreBarra()
{
    return m_registry.get<Messaggi>().valoreBarra();
}

int SchermateDelProgramma::massimoBarra()
{
    return m_registry.get<Messaggi>().massimoBarra();
}

void SchermateDelProgramma::impostaBarra(int value)
{
    m_registry.get<Messaggi>().impostaBarra(value);
}

void SchermateDelProgramma::chiudiMessaggi()
{
    Messaggi &waiting = m_registry.get<Messaggi>();
    waiting.hide();
    waiting.unload();
}

void SchermateDelProgramma::mostraSfondo()
{
    Sfondo &background = m_registry.get<Sfondo>();
    background.setEnabled(false); // it takes no clicks
    background.mostra();
}

void SchermateDelProgramma::nascondiSfondo()
{
    m_registry.get<Sfondo>().hide();
}

void SchermateDelProgramma::mostraMenu()
{
    m_registry.get<Menu>().showModal();
}

double SchermateDelProgramma::Barra::larghezzaPicture1()
{
    return m_registry.get<GeneraMenu>().larghezzaPicture1();
}

double SchermateDelProgramma::Barra::larghezzaLabel5()
{
    return m_registry.get<GeneraMenu>().larghezzaLabel5();
}

void SchermateDelProgramma::Barra::setLarghezzaLabel5(double twips)
{
    m_registry.get<GeneraMenu>().setLarghezzaLabel5(twips);
}
