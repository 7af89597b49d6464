// A status bar of numbered panels (from 1) that can be clicked, hidden and disabled one by one.
#pragma once

#include <QStatusBar>

class QLabel;

class StatusPanels : public QStatusBar
{
    Q_OBJECT

public:
    explicit StatusPanels(QWidget *parent = nullptr);

    int addPanel(const QString &text = {}, const QString &toolTip = {}, int stretch = 0); // its number
    int panelCount() const;
    QString panelText(int panel) const;
    void setPanelText(int panel, const QString &text); // elided in the middle where it does not fit; whole as tool tip
    void setPanelVisible(int panel, bool visible);
    void setPanelEnabled(int panel, bool enabled);
    bool isPanelEnabled(int panel) const;
    QWidget *panelWidget(int panel) const; // null where there is no such panel

signals:
    void panelClicked(int panel);
};
