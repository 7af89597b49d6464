// The daily sheet: one day's rows, its totals, its prints, and the buttons that balance it.
#pragma once

#include "core/ModNetServer.h"
#include "platform/ui/Form.h"

#include <memory>

class FormRegistry;
namespace Ui {
class FrmCibra;
}

class FrmCibra : public Form
{
    Q_OBJECT

public:
    FrmCibra(FormHost &host, FormRegistry &registry, ModNetServer &modulo);
    ~FrmCibra() override;

    // Shows one day, compared as text: its rows in the grid, its totals in their boxes.
    void CercaSchedaPranzo(const QString &giorno);
    // Sums the day of DataCombo2 again; the rows on show stay as they are.
    void Totali();

protected:
    void Form_Load() override;
    void Form_Resize() override;
    void Form_KeyPress(int character) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void DataCombo2_Click();  // a day was picked from the list: it may balance itself
    void DataCombo2_Change(); // the text changed otherwise
    void Command5_Click();    // balances the second person
    void Command6_Click();    // balances the first person
    void Check1_Click();
    void Option1_Click();
    void Command2_Click();
    void Command14_Click();
    void MnuCalcola_Click();
    void MnuClose_Click();
    void MnuEsci_Click();

    void reserveHint();
    void connectHandlers();
    void watchMouse();
    void loadSheet();
    void stageDone();
    void bindDays();
    void setTargets();
    void setPersonCaptions();
    void balanceAndReload(bool PrimaPersona, bool SecondaPersona);
    bool mouseMovedOver(QObject *control);
    void showHint(const QString &hint);

    std::unique_ptr<Ui::FrmCibra> m_ui;
    ModNetServer &m_modulo;
    std::shared_ptr<Recordset> Datsecondaryrs = std::make_shared<Recordset>(); // the rows of the day on show
    bool CaricamentoInCorso = false; // from the load to the end of the first resize
};
