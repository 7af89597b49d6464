#include "platform/ui/Stile.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

namespace {

constexpr int kCellSide = 6;      // between the edge of a grid's cell and its text
constexpr int kButtonSide = 8;    // what a button has more than its text needs, left and right
constexpr int kButtonHeight = 32; // of every button with a text in one line
constexpr double kRound = 2;

} // namespace

Stile::Stile(const QColor &edge) : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))), m_edge(edge) {}

int Stile::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    if (metric == PM_FocusFrameHMargin)
        return kCellSide - 1; // the style itself adds one
    return QProxyStyle::pixelMetric(metric, option, widget);
}

QSize Stile::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                              const QWidget *widget) const
{
    const QSize usual = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type != CT_PushButton)
        return usual;
    return {usual.width() + 2 * kButtonSide, qMax(usual.height(), kButtonHeight)};
}

void Stile::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                          const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (!m_edge.isValid())
        return;
    if (element == PE_FrameLineEdit || element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck) {
        drawEdge(*option, *painter);
    } else if (element == PE_IndicatorRadioButton) {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(m_edge);
        painter->setBrush(Qt::NoBrush);
        painter->drawEllipse(QRectF(option->rect).adjusted(1.5, 1.5, -1.5, -1.5));
        painter->restore();
    }
}

void Stile::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                               const QWidget *widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox && m_edge.isValid())
        drawEdge(*option, *painter);
}

// What has the focus keeps the style's own edge, which tells so.
void Stile::drawEdge(const QStyleOption &option, QPainter &painter) const
{
    if (option.state & State_HasFocus)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(m_edge);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), kRound, kRound);
    painter.restore();
}
