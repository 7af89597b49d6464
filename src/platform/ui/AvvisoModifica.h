// A thin coloured line over a form, which shows while something typed into its bound boxes is not stored yet. Its place
// stays free while it is hidden.
#pragma once

#include <QFrame>

#include <vector>

class CampoLegato;
class Recordset;

class AvvisoModifica : public QFrame
{
    Q_OBJECT

public:
    explicit AvvisoModifica(QWidget *parent = nullptr);

    void segui(CampoLegato *campo); // which outlives the line or is destroyed with the form
    void segui(Recordset *righe);   // the record set of the boxes

private:
    void aggiorna();

    std::vector<CampoLegato *> m_campi;
};
