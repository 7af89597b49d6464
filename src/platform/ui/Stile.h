// The desktop-independent style of the program's windows, with the measures and outlines that are ours: room round the
// texts of buttons and grid cells, and edges that can be seen on a dark desktop.
#pragma once

#include <QColor>
#include <QProxyStyle>

class Stile : public QProxyStyle
{
    Q_OBJECT

public:
    // `edge`: of text boxes and tick boxes; an invalid colour leaves them as the style draws them.
    explicit Stile(const QColor &edge);

    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;

private:
    void drawEdge(const QStyleOption &option, QPainter &painter) const;

    QColor m_edge;
};
