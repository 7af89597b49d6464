#include "platform/ui/GridHeader.h"

#include "platform/ui/Scritte.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyleOptionHeader>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr int kPadding = 10;         // over and under two lines of caption, and round the title
constexpr int kTitleIndent = 6;      // the title begins where the captions do
constexpr double kTitlePoints = 1.5; // more than the captions
constexpr int kCaptionSide = 6;      // left and right of a caption, as the theme has it

} // namespace

GridHeader::GridHeader(QWidget *parent) : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsClickable(true);
    setHighlightSections(false);
    setMinimumHeight(2 * fontMetrics().height() + kPadding); // captions may take two lines
}

void GridHeader::setTitle(const QString &title)
{
    m_title = title;
    setMinimumHeight(2 * fontMetrics().height() + kPadding + titleHeight());
    viewport()->update();
}

QSize GridHeader::sizeHint() const
{
    return QHeaderView::sizeHint() + QSize(0, titleHeight());
}

QFont GridHeader::titleFont() const
{
    QFont font = this->font();
    font.setPointSizeF(font.pointSizeF() + kTitlePoints);
    font.setWeight(QFont::DemiBold);
    return font;
}

int GridHeader::titleHeight() const
{
    return m_title.isEmpty() ? 0 : QFontMetrics(titleFont()).height() + kPadding;
}

// The theme's captions are bolder than the header's own font.
QFontMetrics GridHeader::captionMetrics() const
{
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    return QFontMetrics(bold);
}

QString GridHeader::captionOf(int column) const
{
    return model()->headerData(column, Qt::Horizontal).toString().simplified();
}

int GridHeader::captionWidth(int column) const
{
    const QString caption = captionOf(column);
    const QFontMetrics metrics = captionMetrics();
    int narrowest = metrics.horizontalAdvance(caption);
    for (int i = 1; i < caption.size() - 1; ++i) {
        if (caption[i] == ' ')
            narrowest = std::min(narrowest, std::max(metrics.horizontalAdvance(caption.left(i)),
                                                     metrics.horizontalAdvance(caption.mid(i + 1))));
    }
    return narrowest + 2 * kCaptionSide + 1;
}

QStringList GridHeader::righe(int column) const
{
    const QString caption = captionOf(column);
    const QFontMetrics metrics = captionMetrics();
    const int room = sectionSize(column) - 2 * kCaptionSide;
    if (metrics.horizontalAdvance(caption) <= room)
        return {caption};
    for (int blank = int(caption.lastIndexOf(' ')); blank > 0; blank = int(caption.lastIndexOf(' ', blank - 1))) {
        if (metrics.horizontalAdvance(caption.left(blank)) <= room)
            return {caption.left(blank), metrics.elidedText(caption.mid(blank + 1), Qt::ElideRight, room)};
    }
    return {metrics.elidedText(caption, Qt::ElideRight, room)};
}

void GridHeader::initStyleOptionForIndex(QStyleOptionHeader *option, int column) const
{
    QHeaderView::initStyleOptionForIndex(option, column);
    option->text = righe(column).join('\n');
    option->textAlignment &= ~Qt::Alignment::fromInt(Qt::TextWordWrap); // they are folded already
}

bool GridHeader::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto &help = static_cast<const QHelpEvent &>(*event);
        const int column = logicalIndexAt(help.pos());
        if (column >= 0 && righe(column).join(' ') != captionOf(column)) {
            QToolTip::showText(help.globalPos(), Scritte::suggerimento(captionOf(column)), this);
            return true;
        }
    }
    return QHeaderView::viewportEvent(event);
}

void GridHeader::paintSection(QPainter *painter, const QRect &rect, int logicalIndex) const
{
    QHeaderView::paintSection(painter, rect.adjusted(0, titleHeight(), 0, 0), logicalIndex);
}

// The title keeps its place while the columns are scrolled.
void GridHeader::paintEvent(QPaintEvent *event)
{
    QHeaderView::paintEvent(event);
    if (m_title.isEmpty())
        return;
    QPainter painter(viewport());
    const QRect strip(0, 0, viewport()->width(), titleHeight());
    painter.fillRect(strip, palette().window());
    painter.setFont(titleFont());
    painter.setPen(palette().color(QPalette::WindowText));
    const QRect room = strip.adjusted(kTitleIndent, 0, -kTitleIndent, 0);
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft,
                     QFontMetrics(titleFont()).elidedText(m_title, Qt::ElideRight, room.width()));
}
