// The daily sheet: one day's rows and totals, edited, deleted, inserted, replaced, balanced, printed and exported.
//
// Made from the record form template with an odd division of work: the template's record set, RsScheda (here called
// Datprimaryrs), is the list of dishes behind DataCombo1, so navigation, counting, search, add and save work on that
// list; the rows on show are Datsecondaryrs, which the grid and the boxes follow.
#pragma once

#include "catalogue/forms/SchedaRecord.h"

#include <memory>
#include <vector>

class FormRegistry;
struct PostoNellaScheda;
struct TotaliGiorno;
namespace Ui {
class FrmCibra;
}

class FrmCibra : public SchedaRecord
{
    Q_OBJECT

public:
    FrmCibra(FormHost &host, FormRegistry &registry, ModNetServer &modulo);
    ~FrmCibra() override;

    // Shows one day, compared as text: its rows in the grid, its totals in their boxes.
    void CercaSchedaPranzo(const QString &giorno);
    // Sums the day of DataCombo2 again; the rows on show stay as they are.
    void Totali();

protected:
    // What the daily sheet does its own way
    QString istruzione() const override;
    Recordset::Access accesso() const override { return Recordset::Access::ReadOnly; }
    QString richiestaRicerca() const override;
    QString campoRicerca() const override;
    RigaPosizione rigaNavigazione(Arrivo) const override;
    void annunciaNavigazione() override {}            // nothing on the background
    void MnuDisabilita() override;                    // shorter than the template's: the bar keeps its panels
    void annulla() override;                          // drops what waits in the row on show
    bool tastoProprio(const QString &tasto) override; // F6 and F9
    void pannelloGriglia() override { mnuGriglia_Click(); }
    void nascondiGriglia() override;
    void primaDelComando() override { leaveTypedBoxes(); }
    void dopoErrore(const Failure &) override {} // the rows on show are not those of the template's record set

    void Form_Load() override;
    void Form_Resize() override;
    void Form_KeyPress(int character) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    void TxtFields_LostFocus(int index) override; // recalculates the row's total and the day's
    void mnuModifica_Click() override;
    void MnuDelete_Click() override { Label4_DblClick(); }
    void MnuFileTesto_Click() override;
    void mnuGriglia_Click() override;
    void MnuHelp_Click() override;

private:
    enum class Bilanciata
    {
        PrimaPersona,
        SecondaPersona
    };

    // The boxes TxtFields of the row on show, by their index.
    struct Casella
    {
        static constexpr int Giorno = 0;
        static constexpr int Pasto = 1;
        static constexpr int Piatto = 2;
        static constexpr int Alimento = 3;
        static constexpr int KC100gr = 5;
        static constexpr int Id = 11;
    };

    // The day
    void DataCombo2_Click();  // a day was picked from the list: it may balance itself
    void DataCombo2_Change(); // the text changed otherwise
    void Datsecondaryrs_MoveComplete();
    // Balancing
    void Command5_Click(); // the second person
    void Command6_Click(); // the first person
    void Check1_Click();
    // Prints
    void Option1_Click();
    void Command2_Click();
    void Command14_Click();
    // The row on show
    void Label3_DblClick(); // deletes the row
    void Label4_DblClick(); // deletes its dish in its meal
    void Label6_Click();    // opens the substitution of its food
    void Command3_Click();  // confirms it
    void Command4_Click();  // gives it up
    void Label7_Click();    // replaces its dish
    // Insertion
    void Combo1_Change();
    void Command1_Click();
    // Other windows
    void mnuarchivio_Click();
    void mnuPiattiKcal_Click();

    void dress();
    void connectHandlers();
    void connectRowCommands();
    void watchMouse();
    void loadSheet();
    void bindDays();
    void setTargets();
    void setPersonCaptions();
    void loadPictures();
    bool maySetAboutChanging();
    void beginChange();
    void takeBackChange();
    void showTotals(const TotaliGiorno &totali);
    void balanceAndReload(Bilanciata persona);
    void recalculate(int index);
    bool leaveTypedBoxes();
    bool hasRow() const;
    void needRow() const;
    void writeRow();
    PostoNellaScheda posto() const;
    QString testo(int index) const; // of TxtFields
    bool mouseMovedOver(QObject *control);
    void showHint(const QString &hint);
    void restoreRow();

    std::unique_ptr<Ui::FrmCibra> m_ui;
    FormRegistry &m_registry;
    std::shared_ptr<Recordset> &Datprimaryrs = RsScheda;                       // the list of dishes
    std::shared_ptr<Recordset> Datsecondaryrs = std::make_shared<Recordset>(); // the rows of the day on show
    std::shared_ptr<Recordset> RsGriglia = std::make_shared<Recordset>();      // all rows, for the overview
    std::vector<Value> m_salvati;    // the fields of a record before its change
    bool CaricamentoInCorso = false; // from the load to the end of the first resize
};
