#include "platform/ui/GridHeader.h"

#include <QPainter>

namespace {

constexpr int kPadding = 10;         // over and under two lines of caption, and round the title
constexpr int kTitleIndent = 4;      // the title begins where the captions do
constexpr double kTitlePoints = 1.5; // more than the captions

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
