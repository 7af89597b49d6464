// A label that is worked like a button: with the mouse, and with Enter or Space once the focus stands on it. The
// pointer shows the text where it is cut, and tells where a double click is wanted.
#pragma once

#include <QLabel>

class EtichettaComando : public QLabel
{
    Q_OBJECT
    // Whether the double click is what starts the command; Enter and Space then give that signal too.
    Q_PROPERTY(bool aDoppioClic MEMBER m_aDoppioClic)

public:
    explicit EtichettaComando(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override; // narrower than a long text, which is then shown elided
    QString suggerimento() const;           // what the pointer shows; empty where there is nothing to say

signals:
    void clicked();       // once for a double click, as for its first half
    void doubleClicked(); // after the click that begins it

protected:
    bool event(QEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void setPressed(bool pressed);
    QString shownText() const;
    QRect textPlace() const;

    bool m_aDoppioClic = false;
    bool m_pressed = false;
};
