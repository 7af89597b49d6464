// Controls bound to one field of the current row of a record set (data source and data field): they show its value,
// follow its moves, and keep what the user types until the row is written.
//
// A form with the boxes TxtFields_2 (a text) and TxtFields_4 (a number), and a record set of foods:
//
//   m_name = new CasellaLegata(ui.TxtFields_2, "Alimento"); // a child of its box
//   m_kcal = new CasellaLegata(ui.TxtFields_4, "Kcal");
//   m_name->setDataSource(foods);                           // shows the current row, "" for null or no row
//   m_kcal->setDataSource(foods);
//   onDo(m_kcal, &CampoLegato::left, [this] { m_kcal->write(); }); // a text that is no number is told at once
//
//   the user types 12,5 into Kcal    isChanged() is true, the row still has its old value
//   ... and goes to the next box     left() comes; write() puts 12.5 into the row, which now waits for Update
//   foods->MoveNext()                first lets every changed box write, then writes the row, then shows the next one
//   foods->CancelUpdate()            boxes and row are what they were
//
// A text set by code counts as typed. A box emptied gives "" to a text field and null to a number or a day; a box that
// is as it was writes nothing, so a null stays null. What cannot be written (TypeMismatch, a row changed by somebody
// else) stays in the box, and nothing has moved.
#pragma once

#include "platform/store/Recordset.h"

#include <QObject>
#include <QString>

#include <memory>

class QLineEdit;
class DataCombo;

class CampoLegato : public QObject, private RowEditor
{
    Q_OBJECT

public:
    ~CampoLegato() override;

    // Null unbinds: the control is emptied.
    void setDataSource(std::shared_ptr<Recordset> recordset);
    const std::shared_ptr<Recordset> &dataSource() const { return m_recordset; }
    const QString &dataField() const { return m_field; }

    Value value() const; // of the row on show, without what is typed; null where there is no row
    bool isChanged() const { return m_changed; }
    // What was typed goes into the row. Throws TypeMismatch, naming the field, and NoCurrentRow, after which the
    // control is empty again. Where nothing was typed it does nothing.
    void write();
    void show(); // the row's value again; what was typed is forgotten

    QWidget *control() const { return m_control; }
    void takeFocus(); // the keyboard goes to the control, its text selected

signals:
    void left();    // the user went on to another control (not: a message box came up, a menu was opened)
    void changed(); // isChanged has become true or false

protected:
    CampoLegato(QWidget *control, const QString &dataField);

    void controlChanged(); // for the control's own notice of a change
    bool eventFilter(QObject *watched, QEvent *event) override;
    virtual void showValue(const Value &value) = 0;
    virtual QString shownText() const = 0;                // what the control shows now
    virtual Value typedValue(ColumnType type) const = 0;  // what it means; throws TypeMismatch
    virtual QString textOf(const Value &value) const = 0; // what it would show for the value
    void showAgain();                                     // unless something was typed

private:
    void writeTyped() override { write(); }
    void dropTyped() override { show(); }
    int row() const; // on show, from 0; -1 none
    void setChanged(bool changed);
    void follow();
    void unfollow();

    QWidget *m_control;
    std::shared_ptr<Recordset> m_recordset;
    QString m_field;
    bool m_changed = false;
    bool m_showing = false;
};

// A text box. Numbers are read with comma or point as the decimal sign and without thousands, days as d/m/yyyy.
class CasellaLegata : public CampoLegato
{
    Q_OBJECT

public:
    CasellaLegata(QLineEdit *box, const QString &dataField);

    QLineEdit *box() const { return m_box; }
    // How many characters the user may type, 0 for no limit. A longer text of the row is shown whole.
    void setMaxLength(int characters);

protected:
    void showValue(const Value &value) override;
    QString shownText() const override;
    Value typedValue(ColumnType type) const override;
    QString textOf(const Value &value) const override { return value.text(); }

private:
    QLineEdit *m_box;
    int m_maxLength = 0;
};

// A combo whose list names keys: it shows the name for the key in the field, nothing where there is none, and a name
// that is picked or typed gives its key.
class ComboLegato : public CampoLegato
{
    Q_OBJECT

public:
    // `listField` and `boundColumn` are the name and the key in the list's record set.
    ComboLegato(DataCombo *combo, const QString &dataField, const QString &listField, const QString &boundColumn);

    // Reads the list; names may come twice, the first of a name wins.
    void setRowSource(std::shared_ptr<Recordset> list);

protected:
    void showValue(const Value &value) override;
    QString shownText() const override;
    Value typedValue(ColumnType type) const override;
    QString textOf(const Value &value) const override;

private:
    DataCombo *m_combo;
    QString m_listField;
    QString m_boundColumn;
    std::shared_ptr<Recordset> m_list;
};
