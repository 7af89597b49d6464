// The background screen: a gradient behind the other windows, and the status bar where errors are told.
#pragma once

#include "core/ModNetServer.h"
#include "platform/ui/Form.h"

#include <memory>

namespace Ui {
class Sfondo;
}

class Sfondo : public Form
{
    Q_OBJECT

public:
    Sfondo(FormHost &host, ModNetServer &modulo);
    ~Sfondo() override;

    void mostra(); // behind all other windows, and taking no clicks
    void RefreshSfondo();

    // The error image and the panels of the status bar, from 1.
    void mostraErrore(const QString &panel4, const QString &panel5);
    void nascondiErrore();
    void suggerimentoErrore(const QString &toolTip);
    QString pannello(int panel) const;
    void setPannello(int panel, const QString &text);

protected:
    void Form_Load() override;
    void Form_Resize() override;
    void Form_Unload() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void paintGradient();

    std::unique_ptr<Ui::Sfondo> m_ui;
    ModNetServer &m_modulo;
};
