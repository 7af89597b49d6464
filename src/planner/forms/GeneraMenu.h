// The planner: household, generation of the menus, and the grid of the calendar, one panel at a time.
#pragma once

#include "planner/CalcoloKCal.h"
#include "planner/EspandiCalendario.h"
#include "planner/InsiemiPiatti.h"
#include "planner/Periodo.h"
#include "planner/SceltaMenu.h"
#include "platform/ui/Form.h"

#include <vector>

class FormRegistry;
class QCheckBox;

namespace Ui {
class GeneraMenu;
}

class GeneraMenu : public Form, private FormPianificatore
{
    Q_OBJECT

public:
    GeneraMenu(FormHost &host, FormRegistry &registry, ModNetServer &modulo);
    ~GeneraMenu() override;

    void showHousehold(); // the household panel, the two others hidden

    // The progress bar, in twips (15 a pixel).
    double larghezzaPicture1() const;
    double larghezzaLabel5() const { return m_larghezzaLabel5; }
    void setLarghezzaLabel5(double twips);

protected:
    void Form_Load() override;
    void Form_Resize() override;
    void Form_KeyPress(int character) override;

private:
    void mnuAnagrafica_Click() { showHousehold(); }
    void mnuCrea_Click();
    void mnuVisualizza_Click();
    void mnuGenera_Click();
    void MnukcCalcolo_Click();
    void mnuPreferiti_Click();
    void mnuEsci_Click() { unload(); }
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void Command5_Click();
    void Command6_Click();
    void Command7_Click();
    void Check10_Click(bool on);
    void Periodo_Click(TipoPeriodo tipo);
    void DateGenerazione_Change(); // Text1 and Text2
    void DateVista_Change();       // Text3 and Text4

    void setCaption(const QString &caption) override { setWindowTitle(caption); }
    void setBarraVisibile(bool visible) override;
    void mnuCrea() override { mnuCrea_Click(); }
    void ridisegna() override;

    void connectHandlers();
    void dress();
    void linkGroup(const std::vector<QCheckBox *> &boxes); // at most one of them is on
    void showPanel(QWidget *panel, QWidget *firstBox);
    void showGrid(std::shared_ptr<Recordset> recordset);
    void loadHousehold();
    void showCalculator(bool visible); // Frame4
    void centreCalculator();
    DatiPersona datiPersona() const;
    void restoreChoice();
    SceltaMenu scelta() const;

    std::unique_ptr<Ui::GeneraMenu> m_ui;
    FormRegistry &m_registry;
    ModNetServer &m_modulo;
    InsiemiPiatti m_insiemi;
    bool m_CopiaDate = false; // Text1 or Text2 are copying themselves to Text3 and Text4
    bool m_ContaPreferiti = false;
    double m_larghezzaLabel5;
};
