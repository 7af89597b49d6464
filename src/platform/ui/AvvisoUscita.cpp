#include "platform/ui/AvvisoUscita.h"

#include <QFocusEvent>
#include <QWidget>

AvvisoUscita::AvvisoUscita(QWidget *control) : QObject(control)
{
    control->installEventFilter(this); // an editable combo has the focus itself, and not the box in it
}

bool AvvisoUscita::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason && reason != Qt::MenuBarFocusReason)
            emit left(reason);
    }
    return QObject::eventFilter(watched, event);
}
