// The food sheet: one food of the catalogue with every nutrient in 100 g on one screen.
#pragma once

#include "catalogue/forms/SchedaRecord.h"

#include <memory>

class ComboLegato;
namespace Ui {
class FrmCategorie;
}

class FrmCategorie : public SchedaRecord
{
    Q_OBJECT

public:
    FrmCategorie(FormHost &host, ModNetServer &modulo);
    ~FrmCategorie() override;

protected:
    QString istruzione() const override { return "SELECT * FROM Categorie"; }
    QString richiestaRicerca() const override { return "Inserisci l'Alimento da ricercare"; }
    QString campoRicerca() const override { return "Alimento"; }
    void legaCombo() override;

private:
    void mnuDuplica_Click();
    void MnuEmail_Click();
    void DataCombo1_LostFocus();

    std::unique_ptr<Ui::FrmCategorie> m_ui;
    ComboLegato *m_gruppo; // index 1 of the sheet
};
