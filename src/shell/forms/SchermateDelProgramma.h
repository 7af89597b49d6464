// The real screens behind the interfaces through which core and Main touch them.
#pragma once

#include "core/Schermate.h"
#include "platform/ui/FormRegistry.h"
#include "shell/Main.h"

class SchermateDelProgramma : public Schermate, public SchermateDiAvvio
{
public:
    explicit SchermateDelProgramma(FormRegistry &registry) : m_registry(registry), m_barra(registry) {}

    void mostraGestioneRete() override;
    void percorsoNellaBarra(const QString &path) override;
    void erroreSuSfondo(const QString &panel, const QString &nextPanel) override;
    void nascondiErroreSfondo() override;
    void suggerimentoErroreSfondo(const QString &toolTip) override;
    QString pannelloSfondo(int panel) override;
    void setPannelloSfondo(int panel, const QString &text) override;
    BarraDelPianificatore &barra() override { return m_barra; }

    void mostraMessaggi() override;
    void scriviAttesa(const QString &label1, const QString &label2) override;
    int valoreBarra() override;
    int massimoBarra() override;
    void impostaBarra(int value) override;
    void chiudiMessaggi() override;
    void mostraSfondo() override;
    void nascondiSfondo() override;
    void mostraMenu() override;

private:
    class Barra : public BarraDelPianificatore
    {
    public:
        explicit Barra(FormRegistry &registry) : m_registry(registry) {}
        double larghezzaPicture1() override;
        double larghezzaLabel5() override;
        void setLarghezzaLabel5(double twips) override;

    private:
        FormRegistry &m_registry;
    };

    FormRegistry &m_registry;
    Barra m_barra;
};
