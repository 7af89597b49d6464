#include "Names.h"

#include "platform/ui/Form.h"

#include <QApplication>
#include <QEvent>
#include <QInputDialog>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMenu>
#include <QMessageBox>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr const char *kOrder = "copioneOrder";

bool same(const QString &one, const QString &other)
{
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

// TxtFields(3) is the object TxtFields_3.
QString objectNameOf(const QString &control)
{
    static const QRegularExpression element(QStringLiteral("^(.+)\\((\\d+)\\)$"));
    const QRegularExpressionMatch match = element.match(control);
    return match.hasMatch() ? match.captured(1) + '_' + match.captured(2) : control;
}

bool isWindowOfProgram(const QWidget *widget)
{
    if (const auto *form = qobject_cast<const Form *>(widget))
        return !form->isUnloaded();
    return qobject_cast<const QDialog *>(widget) != nullptr;
}

WindowKind kindOf(const QWidget *widget)
{
    if (qobject_cast<const QMessageBox *>(widget))
        return WindowKind::MessageBox;
    return qobject_cast<const QInputDialog *>(widget) ? WindowKind::InputBox : WindowKind::Form;
}

bool isPinnedToTheBottom(const ShownWindow &window)
{
    return window.widget->windowFlags().testFlag(Qt::WindowStaysOnBottomHint);
}

Target targetOf(QWidget *form, QObject *object)
{
    Target target;
    target.form = form;
    if (auto *menu = qobject_cast<QMenu *>(object))
        target.action = menu->menuAction();
    else if (auto *action = qobject_cast<QAction *>(object))
        target.action = action;
    else
        target.widget = static_cast<QWidget *>(object);
    return target;
}

} // namespace

WindowOrder::WindowOrder()
{
    qApp->installEventFilter(this);
}

bool WindowOrder::eventFilter(QObject *watched, QEvent *event)
{
    const bool comesToFront = event->type() == QEvent::Show || event->type() == QEvent::WindowActivate;
    if (comesToFront && watched->isWidgetType() && static_cast<QWidget *>(watched)->isWindow())
        watched->setProperty(kOrder, m_next++);
    return false;
}

std::vector<ShownWindow> WindowOrder::shown() const
{
    std::vector<ShownWindow> windows;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && isWindowOfProgram(widget))
            windows.push_back({widget, kindOf(widget)});
    }
    std::sort(windows.begin(), windows.end(), [](const ShownWindow &one, const ShownWindow &other) {
        if (one.widget->isModal() != other.widget->isModal())
            return one.widget->isModal();
        if (isPinnedToTheBottom(one) != isPinnedToTheBottom(other))
            return isPinnedToTheBottom(other);
        return one.widget->property(kOrder).toULongLong() > other.widget->property(kOrder).toULongLong();
    });
    return windows;
}

QString WindowOrder::describe() const
{
    QJsonArray all;
    for (const ShownWindow &window : shown()) {
        const QString title = window.widget->windowTitle();
        if (window.kind == WindowKind::Form)
            all.append(QJsonArray{QStringLiteral("form"), window.widget->objectName(), title});
        else
            all.append(
                QJsonArray{window.kind == WindowKind::MessageBox ? QStringLiteral("msg") : QStringLiteral("input"),
                           title, QString()});
    }
    return QString::fromUtf8(QJsonDocument(all).toJson(QJsonDocument::Compact));
}

QWidget *findForm(const QString &name)
{
    QWidget *hidden = nullptr;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (!isWindowOfProgram(widget) || !same(widget->objectName(), name))
            continue;
        if (widget->isVisible())
            return widget;
        hidden = widget;
    }
    if (hidden)
        return hidden;
    throw NotThere{QStringLiteral("there is no form ") + name};
}

Target findTarget(const QString &name)
{
    const qsizetype point = name.indexOf('.');
    QWidget *const form = findForm(name.left(point < 0 ? name.size() : point));
    if (point < 0)
        return {form, form, nullptr};

    const QString wanted = objectNameOf(name.mid(point + 1));
    for (QObject *child : form->findChildren<QObject *>()) {
        const bool isControl = child->isWidgetType() || qobject_cast<QAction *>(child);
        if (isControl && same(child->objectName(), wanted))
            return targetOf(form, child);
    }
    throw NotThere{QStringLiteral("there is no control ") + name};
}

Target reachable(const QString &name)
{
    const Target target = findTarget(name);
    if (!target.widget)
        throw Wrong{name + QStringLiteral(" is a menu entry")};
    if (!target.form->isVisible())
        throw NotThere{target.form->objectName() + QStringLiteral(" is not shown")};
    requireReachable(target.widget, name);
    return target;
}

void requireReachable(const QWidget *widget, const QString &name)
{
    requireUnblocked(widget->window());
    if (!widget->isVisible())
        throw Wrong{name + QStringLiteral(" is hidden")};
    if (!widget->isEnabled())
        throw Wrong{name + QStringLiteral(" is disabled")};
}

void requireUnblocked(const QWidget *window)
{
    const QWidget *const modal = QApplication::activeModalWidget();
    if (!modal || modal == window)
        return;
    for (const QWidget *above = window->parentWidget(); above; above = above->parentWidget()) {
        if (above == modal)
            return; // a window that belongs to the modal one
    }
    const QString name = modal->objectName().isEmpty() ? modal->windowTitle() : modal->objectName();
    throw Wrong{QStringLiteral("%1 is behind the modal window %2").arg(window->objectName(), name)};
}
