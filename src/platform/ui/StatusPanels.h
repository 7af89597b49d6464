// A status bar of numbered panels (from 1) that can be clicked, hidden and disabled one by one. The widget of panel N
// of the bar NAME has the objectName NAME_N.
#pragma once

#include <QStatusBar>

#include <vector>

class StatusPanels : public QStatusBar
{
    Q_OBJECT

public:
    explicit StatusPanels(QWidget *parent = nullptr);

    int addPanel(const QString &text = {}, const QString &toolTip = {}, int stretch = 0); // its number
    int panelCount() const;
    QString panelText(int panel) const; // whole, also where it is shown elided; empty where there is no such panel
    void setPanelText(int panel, const QString &text); // elided in the middle where it does not fit; whole as tool tip
    void setPanelVisible(int panel, bool visible);
    void setPanelEnabled(int panel, bool enabled);
    bool isPanelEnabled(int panel) const;
    QWidget *panelWidget(int panel) const; // null where there is no such panel

signals:
    void panelClicked(int panel);

private:
    class Panel;
    Panel *panelAt(int panel) const;
    void namePanels();

    std::vector<Panel *> m_panels;
};
