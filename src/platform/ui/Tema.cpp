#include "platform/ui/Tema.h"

#include "platform/ui/Stile.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QString>
#include <QWidget>

namespace {

struct Colours
{
    QColor ground, paper, stripe, text, faint, line, accent, accentText, link, first, second, edge;
};

const Colours &light()
{
    static const Colours colours{QColor(0xF6F1EA), QColor(0xFFFDFA), QColor(0xFAF4EC), QColor(0x33302C),
                                 QColor(0x6B655D), QColor(0xD9CFC2), QColor(0xE8852B), QColor(0x140A00),
                                 QColor(0x7A3A00), QColor(0x0F5A54), QColor(0x6A3478), QColor()};
    return colours;
}

const Colours &dark()
{
    static const Colours colours{QColor(0x26221E), QColor(0x322D28), QColor(0x3A352F), QColor(0xF0EAE2),
                                 QColor(0xA79F95), QColor(0x544C43), QColor(0xE8852B), QColor(0x120900),
                                 QColor(0xF4AE6C), QColor(0x7FD3CB), QColor(0xD9A8E6), QColor(0x857A6D)};
    return colours;
}

const Colours *s_current = nullptr;

const Colours &current()
{
    return s_current ? *s_current : light();
}

QPalette paletteOf(const Colours &c)
{
    QPalette palette;
    palette.setColor(QPalette::Window, c.ground);
    palette.setColor(QPalette::WindowText, c.text);
    palette.setColor(QPalette::Base, c.paper);
    palette.setColor(QPalette::AlternateBase, c.stripe);
    palette.setColor(QPalette::Text, c.text);
    palette.setColor(QPalette::PlaceholderText, c.faint);
    palette.setColor(QPalette::Button, c.ground);
    palette.setColor(QPalette::ButtonText, c.text);
    palette.setColor(QPalette::BrightText, c.paper);
    palette.setColor(QPalette::ToolTipBase, c.paper);
    palette.setColor(QPalette::ToolTipText, c.text);
    palette.setColor(QPalette::Highlight, c.accent);
    palette.setColor(QPalette::HighlightedText, c.accentText);
    palette.setColor(QPalette::Link, c.link);
    palette.setColor(QPalette::LinkVisited, c.link);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, c.faint);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, c.line);
    return palette;
}

QString sheetOf(const Colours &c)
{
    return QStringLiteral(R"(
QDialogButtonBox, QMessageBox { button-layout: 0; }
QToolTip { color: %2; background: %3; border: 1px solid %4; padding: 4px; }
QStatusBar { border-top: 1px solid %4; }
QStatusBar::item { border: none; }
QHeaderView::section { background: %1; color: %2; border: none; border-bottom: 2px solid %5; padding: 5px 6px;
                       font-weight: 600; }
QTableView { border: 1px solid %4; gridline-color: %4; }
QGroupBox { border: 1px solid %4; border-radius: 6px; margin-top: 12px; padding-top: 8px; }
QGroupBox::title { subcontrol-origin: margin; left: 12px; padding: 0 4px; font-weight: 600; }
QProgressBar { border: 1px solid %4; border-radius: 4px; text-align: center; background: %3; }
QProgressBar::chunk { background: %5; border-radius: 3px; }
)")
        .arg(c.ground.name(), c.text.name(), c.paper.name(), c.line.name(), c.accent.name());
}

// The desktop's own colours, as they were before ours took their place.
bool desktopIsDark()
{
    const QPalette desktop = QApplication::palette();
    return desktop.color(QPalette::Window).lightness() < desktop.color(QPalette::WindowText).lightness();
}

} // namespace

void Tema::apply(QApplication &application)
{
    s_current = desktopIsDark() ? &dark() : &light();
    QApplication::setStyle(new Stile(s_current->edge)); // the application takes it
    QApplication::setPalette(paletteOf(*s_current));
    QFont font = QApplication::font();
    font.setPointSizeF(11);
    QApplication::setFont(font);
    application.setStyleSheet(sheetOf(*s_current));
}

QColor Tema::accent()
{
    return current().accent;
}

QColor Tema::firstPerson()
{
    return current().first;
}

QColor Tema::secondPerson()
{
    return current().second;
}

void Tema::colourCaption(QWidget *caption, const QColor &colour)
{
    QPalette palette = caption->palette();
    palette.setColor(QPalette::WindowText, colour);
    caption->setPalette(palette);
    caption->setForegroundRole(QPalette::WindowText); // on a card it would be that of a text box
}

QColor Tema::meal(const QString &meal)
{
    static const struct
    {
        const char *name;
        QColor light, dark;
    } meals[] = {
        {"Colazione", QColor(0xFFF3D6), QColor(0x3D3422)}, {"Spuntino", QColor(0xEAF3DE), QColor(0x2C3626)},
        {"Pranzo", QColor(0xFDE7DA), QColor(0x41302A)},    {"Cena", QColor(0xE4ECF5), QColor(0x28313B)},
        {"Menu", QColor(0xF0E6F3), QColor(0x372E3B)},
    };
    for (const auto &one : meals) {
        if (meal.compare(QLatin1String(one.name), Qt::CaseInsensitive) == 0)
            return s_current == &dark() ? one.dark : one.light;
    }
    return {};
}
