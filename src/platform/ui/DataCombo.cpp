#include "platform/ui/DataCombo.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QSignalBlocker>
#include <QWheelEvent>

namespace {

constexpr int kUsualLength = 14; // characters, so that a long list is not measured
constexpr int kVisibleItems = 16;

} // namespace

DataCombo::DataCombo(QWidget *parent) : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(kUsualLength);
    setMaxVisibleItems(kVisibleItems);
    if (auto *list = qobject_cast<QListView *>(view()))
        list->setUniformItemSizes(true);

    // Leaving the box or pressing Enter is no pick, even where an item of that text exists.
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
    disconnect(lineEdit(), &QLineEdit::returnPressed, this, nullptr);
    connect(lineEdit(), &QLineEdit::textEdited, this, &DataCombo::textChanged);
    connect(this, &QComboBox::activated, this, &DataCombo::picked);
}

void DataCombo::setRowSource(const Recordset &recordset, const QString &listField)
{
    QStringList items;
    if (recordset.isOpen()) {
        const int column = recordset.fieldIndex(listField);
        const int rows = recordset.RecordCount();
        items.reserve(rows);
        for (int row = 0; row < rows; ++row)
            items << recordset.valueAt(row, column).text();
    }
    const QSignalBlocker quiet(this);
    const QString kept = text();
    clear();
    addItems(items);
    showText(kept, -1);
}

void DataCombo::setText(const QString &text)
{
    if (text == this->text())
        return;
    {
        const QSignalBlocker quiet(this);
        showText(text, -1);
    }
    emit textChanged();
}

void DataCombo::showPopup()
{
    standOnText();
    QComboBox::showPopup();
}

// These keys go on from the day that is shown, not from the last one picked.
void DataCombo::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown)
        standOnText();
    QComboBox::keyPressEvent(event);
}

void DataCombo::standOnText()
{
    const QSignalBlocker quiet(this);
    const QString kept = text();
    showText(kept, findText(kept, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

// The wheel scrolls what is around the box: a day turned to by chance would be shown and balanced.
void DataCombo::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

void DataCombo::showText(const QString &text, int index)
{
    setCurrentIndex(index);
    setEditText(text);
    lineEdit()->setCursorPosition(0); // a name longer than the box shows its beginning
}
