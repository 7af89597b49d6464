// A drive list: the places where file systems are mounted. It hides itself where there is nothing to choose.
#pragma once

#include <QComboBox>

class ElencoDischi : public QComboBox
{
    Q_OBJECT

public:
    explicit ElencoDischi(QWidget *parent = nullptr);

    QString disco() const { return currentText(); } // native path
    void mostraDiscoDi(const QString &folder);      // the drive that holds `folder`; no notice
};
