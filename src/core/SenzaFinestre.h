// The surroundings of operations that run without windows: nothing is shown, and nobody is there to press a key.
#pragma once

#include "core/Schermate.h"
#include "platform/environment/Schermo.h"

class SenzaSchermo : public Schermo
{
public:
    void setMousePointer(int) override {}
    void beep() override {}
    bool breathe() override { return false; }
};

class SenzaSchermate : public Schermate, public BarraDelPianificatore
{
public:
    void mostraGestioneRete() override {}
    void percorsoNellaBarra(const QString &) override {}
    void erroreSuSfondo(const QString &, const QString &) override {}
    void nascondiErroreSfondo() override {}
    void suggerimentoErroreSfondo(const QString &) override {}
    QString pannelloSfondo(int) override { return {}; }
    void setPannelloSfondo(int, const QString &) override {}
    BarraDelPianificatore &barra() override { return *this; }
    double larghezzaPicture1() override { return 9000; }
    double larghezzaLabel5() override { return m_label5; }
    void setLarghezzaLabel5(double twips) override { m_label5 = twips; }

private:
    double m_label5 = 200;
};
