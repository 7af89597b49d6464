// A folder list: the folder on show with its sub-folders; a double click or Enter goes into one, ".." goes up.
#pragma once

#include <QListWidget>

class ElencoCartelle : public QListWidget
{
    Q_OBJECT

public:
    explicit ElencoCartelle(QWidget *parent = nullptr);

    QString cartella() const { return m_cartella; } // native, absolute
    void setCartella(const QString &path);          // a path that is no folder changes nothing

signals:
    void cartellaCambiata();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void enter(const QListWidgetItem *item);
    void fill();

    QString m_cartella;
};
