// A browser over the saved pages: drives, folders, files. A double click opens a file.
#pragma once

#include "core/ModNetServer.h"
#include "platform/ui/Form.h"

#include <memory>

namespace Ui {
class MyBrowse;
}

class MyBrowse : public Form
{
    Q_OBJECT

public:
    MyBrowse(FormHost &host, ModNetServer &modulo);
    ~MyBrowse() override;

protected:
    void Form_Load() override;
    void Form_KeyPress(int character) override;

private:
    void Drive1_Change();
    void Dir1_Change();
    void File1_DblClick();

    std::unique_ptr<Ui::MyBrowse> m_ui;
    ModNetServer &m_modulo;
};
