// The main window: its menus open every other screen, its page names the two persons and their targets.
#pragma once

#include "core/ModNetServer.h"
#include "platform/ui/Form.h"

#include <memory>

class FormRegistry;
namespace Ui {
class Menu;
}

class Menu : public Form
{
    Q_OBJECT

public:
    Menu(FormHost &host, FormRegistry &registry, ModNetServer &modulo);
    ~Menu() override;

    void setPercorso(const QString &path); // panel 1 of sb

protected:
    void Form_Load() override;
    void Form_Resize() override;
    void Form_KeyPress(int character) override;
    void Form_Unload() override;

private:
    void mnucalcolaCibra_Click();
    void mnumenuPiatti_Click();
    void mnuAlternativi_Click();
    void mnuPreferiti_Click();
    void MnugeneraMenu_Click();
    void MnuAlimenti_Click();
    void mnuDatabase_Click();
    void mnuHTML_Click();
    void mnuVisualizza_Click();
    void mnuesciRete_Click();
    void Command111_Click();
    void Command133_Click();
    void Command10_Click();

    void connectHandlers();
    void dress();
    void aggiornaEtichette();
    void mostraSfondo(bool visible);
    void chiediAnagrafica();

    std::unique_ptr<Ui::Menu> m_ui;
    FormRegistry &m_registry;
    ModNetServer &m_modulo;
};
