#include "Hands.h"

#include "Grids.h"

#include "platform/ui/StatusPanels.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QKeySequence>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRadioButton>
#include <QSpinBox>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionGroupBox>
#include <QTabWidget>
#include <QTextEdit>
#include <QtTest/QTest>
#include <QWindow>

namespace {

// A stretched check box can be pressed only where its box and its text are.
QPoint middleOf(QWidget *widget)
{
    const bool isRadio = qobject_cast<QRadioButton *>(widget);
    if (isRadio || qobject_cast<QCheckBox *>(widget)) {
        QStyleOptionButton option;
        option.initFrom(widget);
        option.text = static_cast<QAbstractButton *>(widget)->text();
        const auto part = isRadio ? QStyle::SE_RadioButtonClickRect : QStyle::SE_CheckBoxClickRect;
        return widget->style()->subElementRect(part, &option, widget).center();
    }
    return widget->rect().center();
}

void toFront(QWidget *window)
{
    if (QApplication::activeWindow() != window)
        QApplication::setActiveWindow(window);
}

void focusOn(QWidget *widget)
{
    toFront(widget->window());
    if (!widget->hasFocus())
        widget->setFocus(Qt::MouseFocusReason);
}

// Selects the whole text of a box; false where nothing can be typed.
bool selectAllOf(QWidget *widget)
{
    if (auto *edit = qobject_cast<QLineEdit *>(widget)) {
        edit->selectAll();
        return !edit->isReadOnly();
    }
    if (auto *combo = qobject_cast<QComboBox *>(widget)) {
        if (combo->lineEdit())
            combo->lineEdit()->selectAll();
        return combo->lineEdit() && !combo->lineEdit()->isReadOnly();
    }
    if (auto *edit = qobject_cast<QPlainTextEdit *>(widget)) {
        edit->selectAll();
        return !edit->isReadOnly();
    }
    if (auto *edit = qobject_cast<QTextEdit *>(widget)) {
        edit->selectAll();
        return !edit->isReadOnly();
    }
    if (auto *spin = qobject_cast<QAbstractSpinBox *>(widget)) {
        spin->selectAll();
        return !spin->isReadOnly();
    }
    return false;
}

Qt::Key keyOf(QChar character)
{
    if (character == '\n')
        return Qt::Key_Return;
    return Qt::Key(character.toUpper().unicode());
}

template <class View>
View *viewAt(const QString &name, const char *kind)
{
    auto *view = qobject_cast<View *>(reachable(name).widget);
    if (!view)
        throw Wrong{name + QStringLiteral(" is no ") + QLatin1String(kind)};
    return view;
}

void clickItem(QAbstractItemView *view, const QModelIndex &index)
{
    view->scrollTo(index);
    focusOn(view);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(index).center());
}

void chooseInCombo(QComboBox *combo, const QString &item, const QString &name)
{
    const int index = combo->findText(item, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0)
        throw Wrong{QStringLiteral("%1 has no item \"%2\"").arg(name, item)};
    focusOn(combo);
    combo->showPopup();
    combo->view()->setCurrentIndex(combo->model()->index(index, combo->modelColumn(), combo->rootModelIndex()));
    QTest::keyClick(combo->view(), Qt::Key_Return);
}

QModelIndex gridCell(QTableView *grid, const QString &name, int row, int column)
{
    if (row < 1 || row > grid->model()->rowCount())
        throw Wrong{QStringLiteral("%1 has no row %2, but %3 rows").arg(name).arg(row).arg(grid->model()->rowCount())};
    return grid->model()->index(row - 1, column);
}

bool isTick(const QModelIndex &cell)
{
    return (cell.flags() & Qt::ItemIsUserCheckable) && cell.data(Qt::CheckStateRole).isValid();
}

void tick(QTableView *grid, const QModelIndex &cell, const QString &text)
{
    if (text != QStringLiteral("on") && text != QStringLiteral("off"))
        throw Wrong{QStringLiteral("a tick is on or off")};
    const bool isOn = cell.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    if (isOn == (text == QStringLiteral("on")))
        return;
    grid->scrollTo(cell);
    focusOn(grid);
    QStyleOptionViewItem option;
    option.initFrom(grid);
    option.rect = grid->visualRect(cell);
    option.features = QStyleOptionViewItem::HasCheckIndicator;
    const QRect box = grid->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, grid);
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, box.center());
}

QWidget *editorIn(QTableView *grid)
{
    QWidget *const focused = QApplication::focusWidget();
    return focused && grid->viewport()->isAncestorOf(focused) ? focused : nullptr;
}

QWidget *openEditor(QTableView *grid, const QModelIndex &cell)
{
    const QPersistentModelIndex wanted(cell);
    clickItem(grid, cell);
    QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, grid->visualRect(wanted).center());
    if (!editorIn(grid))
        QTest::keyClick(grid, Qt::Key_F2);
    return editorIn(grid);
}

// A menu entry can be triggered where it and every menu above it are shown and enabled.
void requireOpen(const QAction *action, const QString &name)
{
    if (!action->isVisible())
        throw Wrong{name + QStringLiteral(" is hidden")};
    if (!action->isEnabled())
        throw Wrong{name + QStringLiteral(" is disabled")};
    for (QObject *holder : action->associatedObjects()) {
        if (const auto *menu = qobject_cast<QMenu *>(holder))
            requireOpen(menu->menuAction(), name + QStringLiteral(" (or a menu above it)"));
    }
}

QWidget *shownForm(const QString &name)
{
    QWidget *const form = findForm(name);
    if (!form->isVisible())
        throw NotThere{form->objectName() + QStringLiteral(" is not shown")};
    return form;
}

} // namespace

int keyNamed(const QString &name)
{
    const QKeySequence sequence = QKeySequence::fromString(name, QKeySequence::PortableText);
    if (sequence.count() != 1 || sequence[0].key() == Qt::Key_unknown)
        throw Wrong{QStringLiteral("there is no key ") + name};
    return sequence[0].toCombined();
}

void sendKey(QWidget *window, int key)
{
    QWidget *const popup = QApplication::activePopupWidget();
    QWidget *const place = popup ? popup : window;
    QWidget *const target = place->focusWidget() ? place->focusWidget() : place;
    const QKeyCombination combination = QKeyCombination::fromCombined(key);
    QTest::keyClick(target, combination.key(), combination.keyboardModifiers());
}

// Where the mouse meets a control: a grid or list takes it inside its frame.
QWidget *groundOf(QWidget *widget)
{
    auto *const area = qobject_cast<QAbstractScrollArea *>(widget);
    return area ? area->viewport() : widget;
}

void clickWidget(QWidget *widget)
{
    toFront(widget->window());
    QTest::mouseClick(groundOf(widget), Qt::LeftButton, {}, middleOf(groundOf(widget)));
}

void typeText(QWidget *widget, const QString &text)
{
    const QPointer<QWidget> alive(widget);
    if (text.isEmpty())
        QTest::keyClick(widget, Qt::Key_Delete);
    for (const QChar character : text) {
        if (!alive)
            return;
        QTest::sendKeyEvent(QTest::Click, widget, keyOf(character),
                            character == '\n' ? QStringLiteral("\r") : QString(character), {});
    }
}

void clickOn(const QString &name)
{
    clickWidget(reachable(name).widget);
}

void doubleClickOn(const QString &name)
{
    QWidget *const widget = groundOf(reachable(name).widget);
    toFront(widget->window());
    const QPointer<QWidget> alive(widget);
    const QPoint middle = middleOf(widget);
    QTest::mouseClick(widget, Qt::LeftButton, {}, middle);
    if (alive)
        QTest::mouseDClick(widget, Qt::LeftButton, {}, middle);
    if (alive)
        QTest::mouseRelease(widget, Qt::LeftButton, {}, middle);
}

void hoverOver(const QString &name)
{
    QWidget *const widget = groundOf(reachable(name).widget);
    static QPointer<QWidget> before;
    if (before && before != widget) {
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(before, &leave);
    }
    before = widget;
    const QPointF local = middleOf(widget);
    const QPointF scene = widget->mapTo(widget->window(), local);
    const QPointF global = widget->mapToGlobal(local);
    QEnterEvent enter(local, scene, global);
    QApplication::sendEvent(widget, &enter);
    QMouseEvent move(QEvent::MouseMove, local, scene, global, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
}

void typeInto(const QString &name, const QString &text)
{
    QWidget *const widget = reachable(name).widget;
    focusOn(widget);
    if (!selectAllOf(widget))
        throw Wrong{name + QStringLiteral(" cannot be typed into")};
    typeText(widget, text);
}

void leaveControl(const QString &name)
{
    QWidget *const widget = reachable(name).widget;
    focusOn(widget);
    const QPointer<QWidget> alive(widget);
    QTest::keyClick(widget, Qt::Key_Tab);
    if (!alive || !alive->hasFocus())
        return;
    // A box that keeps the tab to itself is left by the mouse.
    for (QWidget *next = widget->nextInFocusChain(); next != widget; next = next->nextInFocusChain()) {
        if ((next->focusPolicy() & Qt::TabFocus) && next->isVisible() && next->isEnabled()) {
            next->setFocus(Qt::MouseFocusReason);
            return;
        }
    }
}

void chooseItem(const QString &name, const QString &item)
{
    QWidget *const widget = reachable(name).widget;
    if (auto *combo = qobject_cast<QComboBox *>(widget)) {
        chooseInCombo(combo, item, name);
        return;
    }
    auto *view = qobject_cast<QAbstractItemView *>(widget);
    if (!view)
        throw Wrong{name + QStringLiteral(" is no combo box or list")};
    const QModelIndex index = itemNamed(*view, item);
    if (!index.isValid())
        throw Wrong{QStringLiteral("%1 has no item \"%2\"").arg(name, item)};
    clickItem(view, index);
}

void setCheck(const QString &name, bool on)
{
    QWidget *const widget = reachable(name).widget;
    auto *button = qobject_cast<QAbstractButton *>(widget);
    if (!button || !button->isCheckable())
        throw Wrong{name + QStringLiteral(" is no check box or option button")};
    if (button->isChecked() == on)
        return;
    if (!on && button->autoExclusive())
        throw Wrong{name + QStringLiteral(" goes off only by another option")};
    clickWidget(button);
}

void goToRow(const QString &name, int row)
{
    auto *grid = viewAt<QTableView>(name, "grid");
    const std::vector<int> columns = shownColumns(*grid);
    if (columns.empty())
        throw Wrong{name + QStringLiteral(" has no columns")};
    QModelIndex cell = gridCell(grid, name, row, columns.front());
    for (std::size_t i = 1; isTick(cell) && i < columns.size(); ++i) // a click on a tick would tick
        cell = gridCell(grid, name, row, columns[i]);
    clickItem(grid, cell);
}

void editCell(const QString &name, int row, const QString &column, const QString &text)
{
    auto *grid = viewAt<QTableView>(name, "grid");
    const int number = columnNamed(*grid, column);
    if (number < 0)
        throw Wrong{QStringLiteral("%1 has no column \"%2\"").arg(name, column)};
    const QModelIndex cell = gridCell(grid, name, row, number);
    if (isTick(cell)) {
        tick(grid, cell, text);
        return;
    }
    QWidget *const editor = openEditor(grid, cell);
    if (!editor)
        throw Wrong{QStringLiteral("column \"%1\" of %2 cannot be edited").arg(column, name)};
    const QPointer<QWidget> alive(editor);
    auto *combo = qobject_cast<QComboBox *>(editor);
    if (combo && !combo->lineEdit())
        chooseInCombo(combo, text, name);
    else if (selectAllOf(editor))
        typeText(editor, text);
    if (alive && alive->isVisible()) // a pick from a list has closed it already
        QTest::keyClick(alive.data(), Qt::Key_Return);
}

void pressKey(const QString &form, const QString &key)
{
    const int code = keyNamed(key);
    QWidget *const window = shownForm(form);
    requireUnblocked(window);
    toFront(window);
    sendKey(window, code);
}

void triggerEntry(const QString &name)
{
    const Target target = findTarget(name);
    if (!target.action)
        throw Wrong{name + QStringLiteral(" is no menu entry")};
    if (!target.form->isVisible())
        throw NotThere{target.form->objectName() + QStringLiteral(" is not shown")};
    requireUnblocked(target.form);
    requireOpen(target.action, name);
    toFront(target.form);
    target.action->trigger();
}

void clickPanel(const QString &name, int panel)
{
    auto *bar = viewAt<StatusPanels>(name, "status bar with panels");
    QWidget *const widget = bar->panelWidget(panel);
    if (!widget)
        throw Wrong{QStringLiteral("%1 has no panel %2").arg(name).arg(panel)};
    requireReachable(widget, QStringLiteral("panel %1 of %2").arg(panel).arg(name));
    clickWidget(widget);
}

void clickTab(const QString &name, int tab)
{
    auto *tabs = viewAt<QTabWidget>(name, "tab control");
    if (tab < 1 || tab > tabs->count() || !tabs->isTabVisible(tab - 1))
        throw Wrong{QStringLiteral("%1 has no tab %2").arg(name).arg(tab)};
    if (!tabs->isTabEnabled(tab - 1))
        throw Wrong{QStringLiteral("tab %1 of %2 is disabled").arg(tab).arg(name)};
    toFront(tabs->window());
    QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(tab - 1).center());
}

void resizeWindow(const QString &form, int width, int height)
{
    QWidget *const window = shownForm(form);
    const QSize least = window->minimumSize().expandedTo(window->minimumSizeHint());
    window->windowHandle()->resize(QSize(width, height).expandedTo(least).boundedTo(window->maximumSize()));
}

void closeWindow(const QString &form)
{
    QWidget *const window = shownForm(form);
    requireUnblocked(window);
    window->windowHandle()->close();
}
