// The alternatives of a dish, for looking through them or for choosing one.
//
// It is loaded once: its two buttons hide it, so that whoever opened it goes on. Before each showing it is told the
// dish:
//
//   Sostituti &window = registry.get<Sostituti>();
//   window.preparaPerGiorno("Pasta al pomodoro", "Pranzo");
//   window.showModal();
//   if (!modulo.PiattoSostituto.isEmpty()) ...            the dish chosen; empty by every other way out
#pragma once

#include "core/ModNetServer.h"
#include "platform/ui/Form.h"

#include <memory>

class DataGrid;
namespace Ui {
class Sostituti;
}

class Sostituti : public Form
{
    Q_OBJECT

public:
    Sostituti(FormHost &host, ModNetServer &modulo);
    ~Sostituti() override;

    // The alternatives of `piatto`, which stands in a meal of a day: no other dish can be chosen.
    void preparaPerGiorno(const QString &piatto, const QString &pasto);
    // The alternatives of `piatto`, and of any other dish of the list.
    void preparaPerPiatto(const QString &piatto);

protected:
    void Form_Load() override;
    void Form_KeyPress(int character) override;
    void Form_Unload() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void DataCombo1_Click();
    void Alternative_MoveComplete();
    void Text2_Change();
    void mostraIngredienti(); // toggles Frame2
    void Command1_Click();
    void Command2_Click();
    void cmdFirst_Click();
    void cmdLast_Click();
    void cmdNext_Click();
    void cmdPrevious_Click();

    void Forma();
    void applica(const QString &piatto);
    void setPersonCaptions();
    void scriviPosizione();
    void connectHandlers();
    void dress();

    std::unique_ptr<Ui::Sostituti> m_ui;
    ModNetServer &m_modulo;
    std::shared_ptr<Recordset> m_piatti = std::make_shared<Recordset>();
    std::shared_ptr<Recordset> m_alternative = std::make_shared<Recordset>();
    std::shared_ptr<Recordset> m_ingredienti = std::make_shared<Recordset>();
};
