// The composition of the dishes: one dish at a time, its foods with both persons' portions, and the commands that add
// and delete foods and dishes.
#pragma once

#include "core/ModNetServer.h"
#include "platform/ui/Form.h"
#include "platform/ui/FormRegistry.h"

#include <map>
#include <memory>

class CasellaLegata;
class QLineEdit;
namespace Ui {
class FrmMenu;
}

class FrmMenu : public Form
{
    Q_OBJECT

public:
    FrmMenu(FormHost &host, FormRegistry &registry, ModNetServer &modulo);
    ~FrmMenu() override;

protected:
    void Form_Load() override;
    void Form_KeyPress(int character) override;
    // A row that somebody else has changed meanwhile is read again and comes on show.
    void handlerFailed(const Failure &failure) override;

private:
    void DataCombo1_Change();
    void Righe_MoveComplete();
    void Combo2_Click();
    void Label1_Click();
    void Label6_Click();
    void Label7_Click();
    void Check1_Click();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void Text1_LostFocus(Qt::FocusReason reason);
    void ComboTipo_Click();
    void ComboCategoria_Click();
    void cmdFirst_Click();
    void cmdLast_Click();
    void cmdNext_Click();
    void cmdPrevious_Click();

    void Forma();
    void SalvaNuovo(const QString &) {} // reserved, does nothing

    void apriRighe();
    void scriviClassificazione();
    void mostraPiatto(const QString &piatto); // in DataCombo1, without running Forma
    void elencaPiatti();
    void aggiungiAlimento();
    void salvaAlimento();
    void setInAttesa(bool pending); // the state switch in the caption of Label1, and what goes with it
    void scriviPosizione(const QString &empty);
    void seguiRiga();
    void bindFields();
    void setPersonCaptions();
    void connectHandlers();
    void connectNewDish();
    void dress();
    QLineEdit *TxtFields(int index) const;

    std::unique_ptr<Ui::FrmMenu> m_ui;
    FormRegistry &m_registry;
    ModNetServer &m_modulo;
    std::shared_ptr<Recordset> m_righe = std::make_shared<Recordset>();
    std::map<int, CasellaLegata *> m_TxtFields; // each bound to a field of m_righe
    bool m_navigando = false;                   // the commands write the position themselves
};
