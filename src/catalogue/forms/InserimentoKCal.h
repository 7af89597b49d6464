// The question for which of the two persons a value is meant. The answer is the global NomeScelto, empty where nobody
// was chosen.
#pragma once

#include "core/ModNetServer.h"
#include "platform/ui/Form.h"

#include <memory>

namespace Ui {
class InserimentoKCal;
}

class InserimentoKCal : public Form
{
    Q_OBJECT

public:
    InserimentoKCal(FormHost &host, ModNetServer &modulo);
    ~InserimentoKCal() override;

    void setDomanda(const QString &domanda); // the caption of its label

protected:
    void Form_Load() override;
    void Form_KeyPress(int character) override;

private:
    void Command1_Click();
    void Command2_Click();
    void scegli(const QString &person);

    std::unique_ptr<Ui::InserimentoKCal> m_ui;
    ModNetServer &m_modulo;
};
