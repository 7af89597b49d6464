#include "platform/ui/EtichettaComando.h"

#include "platform/ui/Scritte.h"
#include "platform/ui/Tema.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QToolTip>

namespace {

constexpr int kSide = 10; // between the border and the text
constexpr int kAbove = 6;
constexpr int kNarrowest = 90;
constexpr int kRound = 4;

} // namespace

EtichettaComando::EtichettaComando(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::NoTextInteraction);
    setAlignment(Qt::AlignCenter);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setBackgroundRole(QPalette::Base);
    setContentsMargins(kSide, kAbove, kSide, kAbove);
}

QSize EtichettaComando::sizeHint() const
{
    const int width = fontMetrics().horizontalAdvance(text().trimmed()) + 2 * kSide + 2;
    return {width, fontMetrics().height() + 2 * kAbove + 2};
}

QSize EtichettaComando::minimumSizeHint() const
{
    return {qMin(kNarrowest, sizeHint().width()), sizeHint().height()};
}

QRect EtichettaComando::textPlace() const
{
    return rect().adjusted(kSide, 0, -kSide, 0);
}

QString EtichettaComando::shownText() const
{
    return fontMetrics().elidedText(text().trimmed(), Qt::ElideRight, textPlace().width());
}

QString EtichettaComando::suggerimento() const
{
    QStringList lines;
    if (shownText() != text().trimmed())
        lines << text().trimmed();
    if (!toolTip().isEmpty())
        lines << toolTip();
    if (m_aDoppioClic)
        lines << QStringLiteral("Si esegue con un doppio clic");
    return lines.join('\n');
}

bool EtichettaComando::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), Scritte::suggerimento(suggerimento()), this);
    return true;
}

void EtichettaComando::enterEvent(QEnterEvent *event)
{
    QLabel::enterEvent(event);
    update();
}

void EtichettaComando::leaveEvent(QEvent *event)
{
    QLabel::leaveEvent(event);
    update();
}

void EtichettaComando::focusInEvent(QFocusEvent *event)
{
    QLabel::focusInEvent(event);
    update();
}

void EtichettaComando::focusOutEvent(QFocusEvent *event)
{
    QLabel::focusOutEvent(event);
    setPressed(false);
    update();
}

void EtichettaComando::setPressed(bool pressed)
{
    if (m_pressed == pressed)
        return;
    m_pressed = pressed;
    update();
}

void EtichettaComando::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    if (event->button() == Qt::LeftButton)
        setPressed(true);
}

void EtichettaComando::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
    if (event->button() != Qt::LeftButton || !m_pressed)
        return;
    setPressed(false);
    if (rect().contains(event->position().toPoint()))
        emit clicked();
}

void EtichettaComando::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->accept();
    if (event->button() == Qt::LeftButton)
        emit doubleClicked();
}

void EtichettaComando::keyPressEvent(QKeyEvent *event)
{
    const bool works = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
    if (!works) {
        QLabel::keyPressEvent(event);
        return;
    }
    event->accept();
    const QPointer<EtichettaComando> alive(this);
    emit clicked();
    if (alive && m_aDoppioClic)
        emit doubleClicked();
}

void EtichettaComando::paintEvent(QPaintEvent *)
{
    const bool lit = isEnabled() && (underMouse() || hasFocus());
    QColor ground = palette().color(backgroundRole());
    if (m_pressed)
        ground = ground.darker(112);
    else if (isEnabled() && underMouse())
        ground = palette().color(QPalette::AlternateBase);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(lit ? Tema::accent() : palette().color(QPalette::Mid), hasFocus() ? 2 : 1));
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kRound, kRound);

    painter.setPen(palette().color(isEnabled() ? QPalette::Normal : QPalette::Disabled, foregroundRole()));
    painter.drawText(textPlace(), int(alignment()) | Qt::TextSingleLine, shownText());
}
