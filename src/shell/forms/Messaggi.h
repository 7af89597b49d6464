// The wait screen of the start.
#pragma once

#include "core/ModNetServer.h"
#include "platform/ui/Form.h"

#include <memory>

namespace Ui {
class Messaggi;
}

class Messaggi : public Form
{
    Q_OBJECT

public:
    Messaggi(FormHost &host, ModNetServer &modulo);
    ~Messaggi() override;

    void scriviAttesa(const QString &label1, const QString &label2); // on the screen when it returns
    int valoreBarra() const;
    int massimoBarra() const;
    void impostaBarra(int value); // the same

protected:
    void Form_Resize() override;
    void Form_DblClick() override;
    void Form_Unload() override;

private:
    std::unique_ptr<Ui::Messaggi> m_ui;
    ModNetServer &m_modulo;
};
