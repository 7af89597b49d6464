#include "platform/ui/CellDelegate.h"

#include "platform/ui/RecordsetModel.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

namespace {

constexpr int kVisibleItems = 16;

bool isTick(const QModelIndex &index)
{
    return index.data(Qt::CheckStateRole).isValid();
}

// A click anywhere in the cell counts: the box itself is small.
bool togglesTick(const QEvent &event, const QRect &cell)
{
    if (event.type() == QEvent::MouseButtonRelease) {
        const auto &mouse = static_cast<const QMouseEvent &>(event);
        return mouse.button() == Qt::LeftButton && cell.contains(mouse.position().toPoint());
    }
    if (event.type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent &>(event).key();
    return key == Qt::Key_Space || key == Qt::Key_Select;
}

} // namespace

CellDelegate::CellDelegate(const RecordsetModel &model, QObject *parent) : QStyledItemDelegate(parent), m_model(model)
{
}

void CellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if (!isTick(index)) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const bool isOn = cell.checkState == Qt::Checked;
    cell.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    const QStyle &style = cell.widget ? *cell.widget->style() : *QApplication::style();
    style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);

    const QSize box(style.pixelMetric(QStyle::PM_IndicatorWidth, &cell, cell.widget),
                    style.pixelMetric(QStyle::PM_IndicatorHeight, &cell, cell.widget));
    cell.rect = QStyle::alignedRect(cell.direction, Qt::AlignCenter, box, option.rect);
    cell.state &= ~QStyle::State_HasFocus;
    cell.state |= isOn ? QStyle::State_On : QStyle::State_Off;
    style.drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &cell, painter, cell.widget);
}

QWidget *CellDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QStringList &items = m_model.columns()[std::size_t(index.column())].list;
    return items.isEmpty() ? QStyledItemDelegate::createEditor(parent, option, index) : createList(parent, items);
}

// The list drops down at once, and what is picked in it is written without another key.
QComboBox *CellDelegate::createList(QWidget *parent, const QStringList &items) const
{
    auto *combo = new QComboBox(parent);
    combo->addItems(items);
    combo->setMaxVisibleItems(kVisibleItems);
    auto *self = const_cast<CellDelegate *>(this); // the signals of a delegate are not const
    connect(combo, &QComboBox::activated, self, [self, combo] {
        emit self->commitData(combo);
        emit self->closeEditor(combo);
    });
    QTimer::singleShot(0, combo, [combo] {
        if (combo->isVisible())
            combo->showPopup();
    });
    return combo;
}

void CellDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    auto *combo = qobject_cast<QComboBox *>(editor);
    if (combo)
        combo->setCurrentIndex(combo->findText(index.data(Qt::EditRole).toString(), Qt::MatchFixedString));
    else
        QStyledItemDelegate::setEditorData(editor, index);
}

// A value that stands in no list, or in another spelling there, stays as it is until another one is picked.
void CellDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    const auto *combo = qobject_cast<QComboBox *>(editor);
    if (!combo) {
        QStyledItemDelegate::setModelData(editor, model, index);
        return;
    }
    const QString stored = index.data(Qt::EditRole).toString();
    if (combo->currentIndex() >= 0 && combo->currentText().compare(stored, Qt::CaseInsensitive) != 0)
        model->setData(index, combo->currentText(), Qt::EditRole);
}

bool CellDelegate::editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                               const QModelIndex &index)
{
    if (!isTick(index) || !(index.flags() & Qt::ItemIsUserCheckable))
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    if (!togglesTick(*event, option.rect))
        return false;
    const bool isOn = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    model->setData(index, isOn ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    return true;
}
