#include "platform/ui/StatusPanels.h"

#include "platform/ui/Scritte.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace {

constexpr int kMargin = 8; // pixels left and right of a panel's text
constexpr int kShortest = 24;

} // namespace

// A label that shows as much of its text as fits, cut in the middle, and can be clicked.
class StatusPanels::Panel : public QLabel
{
public:
    Panel(StatusPanels *bar, int number) : QLabel(bar), m_bar(bar), m_number(number)
    {
        setTextFormat(Qt::PlainText);
        setContentsMargins(kMargin, 2, kMargin, 2);
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    }

    void setWholeText(const QString &text)
    {
        setText(text);
        setAccessibleName(text);
        updateToolTip();
        updateGeometry();
    }
    void setOwnToolTip(const QString &text)
    {
        m_ownToolTip = text;
        updateToolTip();
    }

    QSize minimumSizeHint() const override { return {kShortest, QLabel::minimumSizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const QRect inside = contentsRect();
        const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, inside.width());
        style()->drawItemText(&painter, inside, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, palette(),
                              isEnabled(), shown, foregroundRole());
    }

    void resizeEvent(QResizeEvent *event) override
    {
        QLabel::resizeEvent(event);
        updateToolTip();
    }

    void mousePressEvent(QMouseEvent *event) override { event->accept(); }

    void mouseReleaseEvent(QMouseEvent *event) override
    {
        if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
            emit m_bar->panelClicked(m_number);
    }

private:
    void updateToolTip()
    {
        const bool cut = fontMetrics().horizontalAdvance(text()) > contentsRect().width();
        setToolTip(!m_ownToolTip.isEmpty() ? m_ownToolTip : cut ? Scritte::suggerimento(text()) : QString());
    }

    StatusPanels *m_bar;
    int m_number;
    QString m_ownToolTip;
};

StatusPanels::StatusPanels(QWidget *parent) : QStatusBar(parent)
{
    setSizeGripEnabled(false);
    connect(this, &QObject::objectNameChanged, this, &StatusPanels::namePanels);
}

int StatusPanels::addPanel(const QString &text, const QString &toolTip, int stretch)
{
    auto *panel = new Panel(this, panelCount() + 1);
    m_panels.push_back(panel);
    namePanels();
    panel->setWholeText(text);
    panel->setOwnToolTip(toolTip);
    addWidget(panel, stretch);
    return panelCount();
}

int StatusPanels::panelCount() const
{
    return int(m_panels.size());
}

QString StatusPanels::panelText(int panel) const
{
    const Panel *found = panelAt(panel);
    return found ? found->text() : QString();
}

void StatusPanels::setPanelText(int panel, const QString &text)
{
    if (Panel *found = panelAt(panel))
        found->setWholeText(text);
}

void StatusPanels::setPanelVisible(int panel, bool visible)
{
    if (Panel *found = panelAt(panel))
        found->setVisible(visible);
}

void StatusPanels::setPanelEnabled(int panel, bool enabled)
{
    if (Panel *found = panelAt(panel))
        found->setEnabled(enabled);
}

bool StatusPanels::isPanelEnabled(int panel) const
{
    const Panel *found = panelAt(panel);
    return found && found->isEnabled();
}

QWidget *StatusPanels::panelWidget(int panel) const
{
    return panelAt(panel);
}

StatusPanels::Panel *StatusPanels::panelAt(int panel) const
{
    return panel >= 1 && panel <= panelCount() ? m_panels[std::size_t(panel - 1)] : nullptr;
}

void StatusPanels::namePanels()
{
    for (int i = 0; i < panelCount(); ++i)
        m_panels[std::size_t(i)]->setObjectName(QStringLiteral("%1_%2").arg(objectName()).arg(i + 1));
}
