// Tells when the user goes on from a control to another one; a list that drops down, a menu or a message box is none.
#pragma once

#include <QObject>

class AvvisoUscita : public QObject
{
    Q_OBJECT

public:
    explicit AvvisoUscita(QWidget *control); // a child of the control; an editable combo is watched as a whole

signals:
    void left(Qt::FocusReason reason);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
