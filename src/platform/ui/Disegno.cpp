#include "platform/ui/Disegno.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

// The drawings are part of a static library, which nobody initialises by itself. Outside any namespace, as Qt asks.
static void initResources()
{
    Q_INIT_RESOURCE(platform);
}

namespace {

constexpr char kLine[] = "#6b5c4d";       // of the small drawings
constexpr char kLineOnDark[] = "#c4b6a6"; // where the desktop is dark

QByteArray smallDrawing(const QString &file)
{
    QFile svg(file);
    if (!svg.open(QIODevice::ReadOnly))
        return {};
    QByteArray text = svg.readAll();
    const QPalette palette = QApplication::palette();
    if (palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness())
        text.replace(kLine, kLineOnDark);
    return text;
}

} // namespace

Disegno::Disegno(QWidget *parent) : QWidget(parent), m_renderer(new QSvgRenderer(this)) {}

void Disegno::setFile(const QString &file)
{
    m_file = file;
    m_renderer->load(file);
    updateGeometry();
    update();
}

QSize Disegno::sizeHint() const
{
    return m_renderer->defaultSize();
}

QIcon Disegno::icon(const QString &file)
{
    initResources();
    QSvgRenderer renderer(smallDrawing(file));
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        renderer.render(&painter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

void Disegno::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF place(QPointF(), QSizeF(m_renderer->defaultSize()).scaled(size(), Qt::KeepAspectRatio));
    place.moveCenter(QRectF(rect()).center());
    m_renderer->render(&painter, place);
}
