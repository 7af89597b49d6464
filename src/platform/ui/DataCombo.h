// An editable combo whose items are the first column text of every row of a record set, doubles included.
#pragma once

#include "platform/store/Recordset.h"

#include <QComboBox>

class DataCombo : public QComboBox
{
    Q_OBJECT

public:
    explicit DataCombo(QWidget *parent = nullptr);

    // Fills the list from `listField` of every row and keeps the text as it is. Moves nothing.
    void setRowSource(const Recordset &recordset, const QString &listField);
    QString text() const { return currentText(); }
    void setText(const QString &text); // textChanged comes only where the text differs; no item is picked

    void showPopup() override; // opens at the item that the text names

signals:
    void picked();      // an item was picked from the list by the user; textChanged does not come for the same pick
    void textChanged(); // the text changed otherwise: by typing or by setText

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void showText(const QString &text, int index);
    void standOnText();
};
