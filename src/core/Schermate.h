// What core and logic may touch of the forms: the shell connects the real ones, tests their own. Each touch makes the
// form, where it is not there yet, and runs its load.
#pragma once

#include <QString>

// The planner's progress bar: the width of Label5 inside Picture1, in twips (15 a pixel).
class BarraDelPianificatore
{
public:
    virtual ~BarraDelPianificatore() = default;
    virtual double larghezzaPicture1() = 0;
    virtual double larghezzaLabel5() = 0;
    virtual void setLarghezzaLabel5(double twips) = 0;
};

// One step of the bar: 350 twips more while it is shorter than its box, else back to 200.
void AvanzaBarra(BarraDelPianificatore &bar);

class Schermate
{
public:
    virtual ~Schermate() = default;
    virtual void mostraGestioneRete() = 0;                    // modal, released afterwards
    virtual void percorsoNellaBarra(const QString &path) = 0; // panel 1 of sb on Menu
    // The error image of Sfondo and the two panels of its status bar, from panel 4 on.
    virtual void erroreSuSfondo(const QString &panel, const QString &nextPanel) = 0;
    virtual void nascondiErroreSfondo() = 0; // the error image again
    virtual void suggerimentoErroreSfondo(const QString &toolTip) = 0;
    virtual QString pannelloSfondo(int panel) = 0; // status bar of Sfondo
    virtual void setPannelloSfondo(int panel, const QString &text) = 0;
    virtual BarraDelPianificatore &barra() = 0; // GeneraMenu
};
