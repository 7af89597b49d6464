// Windows and controls by name, without regard to case.
#pragma once

#include "Trouble.h"

#include <QAction>
#include <QString>
#include <QWidget>

#include <vector>

enum class WindowKind
{
    Form,
    MessageBox,
    InputBox
};

struct ShownWindow
{
    QWidget *widget = nullptr;
    WindowKind kind = WindowKind::Form;
};

// Remembers in which order windows came to the front.
class WindowOrder : public QObject
{
public:
    WindowOrder();

    // The visible windows, front-most first: what takes the user's input, then what stands behind it.
    std::vector<ShownWindow> shown() const;
    // The same as one JSON array of [kind, name, caption].
    QString describe() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    quint64 m_next = 1;
};

// A form, or a control or menu entry in it.
struct Target
{
    QWidget *form = nullptr;
    QWidget *widget = nullptr; // the control, or the form itself; null for a menu entry
    QAction *action = nullptr; // a menu entry
};

// The form of that name, shown or not. Throws NotThere.
QWidget *findForm(const QString &name);
// FORM, FORM.CONTROL or FORM.CONTROL(3). Throws NotThere.
Target findTarget(const QString &name);
// The same, for something that a hand can reach: shown, enabled, in no window that a modal one blocks. Throws Wrong.
Target reachable(const QString &name);
void requireReachable(const QWidget *widget, const QString &name);
// A window behind a modal one takes no input. Throws Wrong.
void requireUnblocked(const QWidget *window);
