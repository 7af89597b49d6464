// The favourites: a grid of the dishes by type and category, each with its tick.
#pragma once

#include "core/ModNetServer.h"
#include "platform/ui/Form.h"

#include <memory>

namespace Ui {
class Preferiti;
}

class Preferiti : public Form
{
    Q_OBJECT

public:
    Preferiti(FormHost &host, ModNetServer &modulo);
    ~Preferiti() override;

protected:
    void Form_Load() override;
    void Form_KeyPress(int character) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void Command1_Click();
    void Command2_Click();
    void Combo1_Click();
    void Combo1_Change();
    void Combo2_Click();
    void mnupreferiti_Click();
    void MnuEsci_Click() { unload(); }

    void connectHandlers();
    void apri(const QString &query); // Datprimaryrs, and the grid on it
    int conta();                     // puts the count into the grid's caption

    std::unique_ptr<Ui::Preferiti> m_ui;
    ModNetServer &m_modulo;
    std::shared_ptr<Recordset> m_Datprimaryrs;
    QString m_UltimaQueryPreferiti; // the last one by type and category; the two views of the menu leave it alone
};
