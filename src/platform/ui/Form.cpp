#include "platform/ui/Form.h"

#include "platform/ui/SchermoQt.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QWindow>

#include <optional>

namespace {

constexpr int kResizeRest = 80; // milliseconds without a further change of size

// What stands on top for the user, so that a modal window opens over it.
QWindow *windowInFront(const QWidget *except)
{
    for (const QWidget *front : {QApplication::activeModalWidget(), QApplication::activeWindow()}) {
        if (front && front != except && front->isVisible())
            return front->windowHandle();
    }
    return nullptr;
}

bool isGround(const QWidget *widget)
{
    return !widget || qobject_cast<const QGroupBox *>(widget) || widget->metaObject() == &QWidget::staticMetaObject ||
           widget->metaObject() == &QFrame::staticMetaObject;
}

} // namespace

// As long as one lives, the form is not deleted.
class Form::Busy
{
public:
    explicit Busy(Form &form) : m_form(form) { ++m_form.m_busy; }
    ~Busy()
    {
        --m_form.m_busy;
        m_form.deleteIfIdle();
    }
    Busy(const Busy &) = delete;
    Busy &operator=(const Busy &) = delete;

private:
    Form &m_form;
};

// Sees the keys of all controls of the form before they do. It is an object of its own, so that a form's own event
// filter sees nothing twice.
class Form::KeyPreview : public QObject
{
public:
    explicit KeyPreview(Form &form) : QObject(&form), m_form(form) { qApp->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress || !watched->isWidgetType() || QApplication::activePopupWidget())
            return false;
        const auto *widget = static_cast<QWidget *>(watched);
        // A key that a control leaves alone comes again for each of its parents; only the first time counts.
        QWidget *const focused = m_form.focusWidget();
        const bool isTarget = widget->window() == &m_form && widget == (focused ? focused : &m_form);
        return isTarget && m_form.previewKey(static_cast<QKeyEvent *>(event));
    }

private:
    Form &m_form;
};

Form::Form(const QString &name, FormHost &host) : m_host(host)
{
    setObjectName(name);
    // When the program ends is its own decision: it goes on between two windows.
    QApplication::setQuitOnLastWindowClosed(false);
    m_resizeTimer.setSingleShot(true);
    m_resizeTimer.setInterval(kResizeRest);
    connect(&m_resizeTimer, &QTimer::timeout, this, [this] { runResize(); });
    new KeyPreview(*this); // a child of the form
}

Form::~Form()
{
    m_unloading = true;
    // Controls that signal something on their way out must still find a form that can refuse it.
    qDeleteAll(findChildren<QWidget *>(Qt::FindDirectChildrenOnly));
}

void Form::load()
{
    if (m_loaded)
        return;
    m_loaded = true;
    const Busy busy(*this);
    Form_Load();
}

void Form::showModal()
{
    if (isVisible() || m_unloading)
        return;
    const Busy busy(*this);
    load();
    setWindowModality(Qt::ApplicationModal);
    if (QWindow *front = windowInFront(this)) {
        winId(); // makes the window handle
        windowHandle()->setTransientParent(front);
    }
    show();
    if (!isVisible() && !m_host.ending())
        return; // a handler has hidden it already

    QEventLoop loop;
    m_modalLoop = &loop;
    try {
        m_host.runLoop(loop);
    } catch (const ProgramEnd &) {
        m_modalLoop = nullptr;
        hide();
        throw;
    }
    m_modalLoop = nullptr;
    if (isVisible()) { // the desktop closes the program
        m_host.end();
        throw ProgramEnd();
    }
}

void Form::showModeless()
{
    if (m_unloading)
        return;
    const Busy busy(*this);
    load();
    setWindowModality(Qt::NonModal);
    show();
}

void Form::unload()
{
    if (m_unloading)
        return;
    const Busy busy(*this);
    m_unloading = true;
    m_host.guarded([this] { Form_Unload(); });
    hide();
    emit unloaded();
}

void Form::setVisible(bool visible)
{
    if (visible && m_unloading)
        return;
    const Busy busy(*this);
    if (visible && !m_shown)
        takeMarksAsText();
    QMainWindow::setVisible(visible);
    if (visible && !m_shown) {
        m_shown = true;
        runResize();
    }
}

// Names, dishes and paths are shown letter by letter: a "<b>" in them is no markup.
void Form::takeMarksAsText()
{
    for (QLabel *label : findChildren<QLabel *>())
        label->setTextFormat(Qt::PlainText);
}

void Form::deleteWhenIdle()
{
    m_unloading = true;
    m_dropped = true;
    hide();
    deleteIfIdle();
}

void Form::deleteIfIdle()
{
    if (m_dropped && m_busy == 0)
        deleteLater();
}

void Form::runHandler(const std::function<void()> &handler)
{
    if (m_unloading)
        return;
    const Busy busy(*this);
    std::optional<Failure> failed;
    m_host.guarded([&] {
        try {
            handler();
        } catch (const Failure &failure) {
            failed = failure;
            throw;
        }
    });
    if (failed && !m_unloading)
        m_host.guarded([&] { handlerFailed(*failed); });
}

void Form::runResize()
{
    if (m_unloading || !isVisible())
        return;
    if (m_inResize || SchermoQt::isBreathing()) { // later, once the handler at work is done
        m_resizeTimer.start();
        return;
    }
    m_inResize = true;
    runHandler([this] { Form_Resize(); });
    m_inResize = false;
}

bool Form::event(QEvent *event)
{
    if (event->type() == QEvent::Hide && !event->spontaneous() && m_modalLoop)
        m_modalLoop->quit();
    return QMainWindow::event(event);
}

bool Form::previewKey(QKeyEvent *key)
{
    if (key->key() == Qt::Key_Escape) {
        key->accept();
        runHandler([this] { Form_KeyPress(kEscape); });
        return true;
    }
    m_keySwallowed = false;
    runHandler([this, key] { Form_KeyDown(key->key(), key->modifiers()); });
    return m_keySwallowed || m_unloading; // an unloaded form's control is on its way out
}

void Form::closeEvent(QCloseEvent *event)
{
    event->accept();
    unload();
}

// Enter presses the button that has the focus, else the default one.
void Form::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QMainWindow::keyPressEvent(event);
        return;
    }
    if (auto *focused = qobject_cast<QPushButton *>(focusWidget())) {
        focused->click();
        return;
    }
    for (QPushButton *button : findChildren<QPushButton *>()) {
        if (button->isDefault() && button->isVisible()) {
            button->click();
            return;
        }
    }
}

void Form::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    // Only the user and the window system send spontaneous ones; layout changes made by code do not count.
    if (event->spontaneous() && m_shown)
        m_resizeTimer.start();
}

void Form::mouseDoubleClickEvent(QMouseEvent *event)
{
    QMainWindow::mouseDoubleClickEvent(event);
    if (isGround(childAt(event->position().toPoint())))
        runHandler([this] { Form_DblClick(); });
}
