#include "platform/ui/SchermoQt.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>

namespace {

constexpr int kBetweenBreaths = 30; // milliseconds

bool s_breathing = false;

void setBusy(bool busy)
{
    if (busy && !QApplication::overrideCursor())
        QApplication::setOverrideCursor(Qt::WaitCursor);
    if (!busy && QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
}

// Keeps everything of the user from the windows, and notices Esc.
class InputGate : public QObject
{
public:
    InputGate()
    {
        s_breathing = true;
        qApp->installEventFilter(this);
    }
    ~InputGate() override { s_breathing = false; }

    bool sawEscape() const { return m_sawEscape; }

    bool eventFilter(QObject *, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::KeyPress:
            m_sawEscape = m_sawEscape || static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape;
            return true;
        case QEvent::Close:
            event->ignore();
            return true;
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::ShortcutOverride:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::InputMethod:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::Drop:
            return true;
        default:
            return false;
        }
    }

private:
    bool m_sawEscape = false;
};

} // namespace

void SchermoQt::setMousePointer(int pointer)
{
    setBusy(pointer == MousePointer::Hourglass);
}

void SchermoQt::beep()
{
    QApplication::beep();
}

bool SchermoQt::breathe()
{
    static QElapsedTimer sinceLast;
    if (s_breathing || (sinceLast.isValid() && sinceLast.elapsed() < kBetweenBreaths))
        return false;
    InputGate gate;
    QApplication::processEvents();
    sinceLast.start();
    return gate.sawEscape();
}

bool SchermoQt::isBreathing()
{
    return s_breathing;
}

PointerPause::PointerPause() : m_wasBusy(QApplication::overrideCursor() != nullptr)
{
    setBusy(false);
}

PointerPause::~PointerPause()
{
    if (m_wasBusy)
        setBusy(true);
}
