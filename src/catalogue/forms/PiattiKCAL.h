// The list of all dishes with their calories for both persons, to be read only.
#pragma once

#include "core/ModNetServer.h"
#include "platform/ui/Form.h"

#include <memory>

namespace Ui {
class PiattiKCAL;
}

class PiattiKCAL : public Form
{
    Q_OBJECT

public:
    PiattiKCAL(FormHost &host, ModNetServer &modulo);
    ~PiattiKCAL() override;

protected:
    void Form_Load() override;
    void Form_KeyPress(int character) override;

private:
    std::unique_ptr<Ui::PiattiKCAL> m_ui;
    ModNetServer &m_modulo;
};
