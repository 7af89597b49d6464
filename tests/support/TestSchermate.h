// The forms as logic sees them, without windows: every touch is kept.
#pragma once

#include "core/Schermate.h"

#include <QMap>
#include <QStringList>

#include <functional>
#include <vector>

class TestBarra : public BarraDelPianificatore
{
public:
    double picture1 = 4000;     // twips
    double label5 = 200;        // twips
    std::vector<double> widths; // every width that Label5 was given, in order

    double larghezzaPicture1() override { return picture1; }
    double larghezzaLabel5() override { return label5; }
    void setLarghezzaLabel5(double twips) override;
};

class TestSchermate : public Schermate
{
public:
    int gestioneReteShown = 0;
    std::function<void()> inGestioneRete; // what the user does in the dialog
    QStringList paths;                    // each path given to the main window's status bar
    QStringList errors;                   // each error put on the background: "panel 4 | next panel"
    QMap<int, QString> pannelli;          // the background's status bar
    bool erroreVisibile = false;          // its error image
    QString suggerimentoErrore;           // the image's tool tip
    TestBarra bar;
    int barTouches = 0; // how often the planner was reached for its bar

    void mostraGestioneRete() override;
    void percorsoNellaBarra(const QString &path) override { paths.append(path); }
    void erroreSuSfondo(const QString &panel, const QString &nextPanel) override;
    void nascondiErroreSfondo() override { erroreVisibile = false; }
    void suggerimentoErroreSfondo(const QString &toolTip) override { suggerimentoErrore = toolTip; }
    QString pannelloSfondo(int panel) override { return pannelli.value(panel); }
    void setPannelloSfondo(int panel, const QString &text) override { pannelli[panel] = text; }
    BarraDelPianificatore &barra() override;
};
