// Makes a new dish as an alternative to the alternatives of an existing one, and removes doubled pairs.
#pragma once

#include "core/ModNetServer.h"
#include "platform/ui/Form.h"

#include <memory>

namespace Ui {
class CreaGruppo;
}

class CreaGruppo : public Form
{
    Q_OBJECT

public:
    CreaGruppo(FormHost &host, ModNetServer &modulo);
    ~CreaGruppo() override;

protected:
    void Form_KeyPress(int character) override;

private:
    void ComboTipo_Click();
    void ComboCategoria_Click();
    void Command3_Click();
    void Command4_Click() { unload(); }
    void mnuCancella_Click();

    std::unique_ptr<Ui::CreaGruppo> m_ui;
    ModNetServer &m_modulo;
};
