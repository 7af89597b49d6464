// A file list: the regular files of one folder that are not hidden, in name order.
#pragma once

#include <QListWidget>

class ElencoFile : public QListWidget
{
    Q_OBJECT

public:
    explicit ElencoFile(QWidget *parent = nullptr);

    void setFiltro(const QString &pattern) { m_pattern = pattern; } // one name or pattern, case does not matter
    void mostra(const QString &folder);                             // nothing is selected afterwards
    void seleziona(const QString &file);                            // where there is such an entry
    QString fileScelto() const; // the first selected entry, empty where there is none

private:
    QString m_pattern;
};
