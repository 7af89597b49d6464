// A caption that bears a person's name, which may be of any length: where there is no room it goes on in a second line,
// then it is cut, and the pointer shows it whole. The name's marks are no markup.
#pragma once

#include <QLabel>

class EtichettaNome : public QLabel
{
    Q_OBJECT

public:
    explicit EtichettaNome(QWidget *parent = nullptr);

    // The caption, whatever letters the name holds.
    void setScritta(const QString &text);
    QString scritta() const;
    // The lines on show, of which the last one ends in "…" where the caption is cut.
    QStringList righe() const;

    QSize sizeHint() const override; // of the whole caption in one line
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *) override;

private:
    bool isCut() const;
};
