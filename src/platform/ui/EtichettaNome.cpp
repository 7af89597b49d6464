#include "platform/ui/EtichettaNome.h"

#include "platform/ui/Scritte.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace {

constexpr int kNarrowest = 60; // pixels

} // namespace

EtichettaNome::EtichettaNome(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

void EtichettaNome::setScritta(const QString &text)
{
    setText(Scritte::senzaTasto(text)); // it may lead to a box
}

QString EtichettaNome::scritta() const
{
    return Scritte::comeSiLegge(text());
}

QSize EtichettaNome::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(scritta()) + 2 * margin() + 1, QLabel::minimumSizeHint().height()};
}

QSize EtichettaNome::minimumSizeHint() const
{
    return {qMin(kNarrowest, sizeHint().width()), sizeHint().height()};
}

QStringList EtichettaNome::righe() const
{
    const QString whole = scritta();
    const QFontMetrics metrics = fontMetrics();
    const int width = contentsRect().width();
    if (metrics.horizontalAdvance(whole) <= width)
        return {whole};
    for (int blank = int(whole.lastIndexOf(' ')); blank > 0; blank = int(whole.lastIndexOf(' ', blank - 1))) {
        if (contentsRect().height() >= metrics.height() + metrics.lineSpacing() &&
            metrics.horizontalAdvance(whole.left(blank)) <= width)
            return {whole.left(blank), metrics.elidedText(whole.mid(blank + 1), Qt::ElideRight, width)};
    }
    return {metrics.elidedText(whole, Qt::ElideRight, width)};
}

bool EtichettaNome::isCut() const
{
    return righe().join(' ') != scritta();
}

bool EtichettaNome::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !isCut())
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), Scritte::suggerimento(scritta()), this);
    return true;
}

void EtichettaNome::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), int(alignment()), palette(), isEnabled(), righe().join('\n'),
                          foregroundRole());
}
