// The database dialog: picks the data archive and the archive of the reports.
#pragma once

#include "core/ModNetServer.h"
#include "platform/ui/Form.h"

#include <memory>

class ElencoCartelle;
class ElencoFile;
class QLineEdit;
namespace Ui {
class GestioneRete;
}

class GestioneRete : public Form
{
    Q_OBJECT

public:
    GestioneRete(FormHost &host, ModNetServer &modulo);
    ~GestioneRete() override;

protected:
    void Form_Load() override;
    void Form_KeyPress(int character) override;
    void Form_DblClick() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void Drive1_Change();
    void Drive2_Change();
    void Dir1_Change();
    void Dir2_Change();
    void Percorso1_Return();
    void Percorso2_Return();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();

    void connectHandlers();
    void posiziona();
    void vaiA(QLineEdit &percorso, ElencoCartelle &cartelle);
    void aggiornaReport();
    QString scegliFile();

    std::unique_ptr<Ui::GestioneRete> m_ui;
    ModNetServer &m_modulo;
};
