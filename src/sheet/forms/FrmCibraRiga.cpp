// The daily sheet's commands on the row on show, and on the dish that goes into a day.
#include "sheet/forms/FrmCibra.h"

#include "catalogue/forms/MyBrowse.h"
#include "catalogue/forms/PiattiKCAL.h"
#include "catalogue/forms/Sostituti.h"
#include "platform/ui/FormRegistry.h"
#include "sheet/ElencoPiatti.h"
#include "sheet/GiornoScheda.h"
#include "sheet/InserisciPiatto.h"
#include "sheet/SostituisciAlimento.h"
#include "sheet/SostituisciPiatto.h"
#include "sheet/TotaleRiga.h"
#include "ui_FrmCibra.h"

#include <QLineEdit>
#include <QSignalBlocker>

namespace {

// The boxes of one person's portion: leaving the portion recalculates the total.
struct CasellePersona
{
    int quantita;
    int totale;
};
constexpr CasellePersona kPrima{8, 10};
constexpr CasellePersona kSeconda{9, 4};

} // namespace

QString FrmCibra::testo(int index) const
{
    return campi().at(index)->box()->text();
}

PostoNellaScheda FrmCibra::posto() const
{
    return {testo(Casella::Giorno), testo(Casella::Pasto), testo(Casella::Piatto)};
}

bool FrmCibra::hasRow() const
{
    return Datsecondaryrs->isOpen() && Datsecondaryrs->AbsolutePosition() > 0;
}

void FrmCibra::needRow() const
{
    if (!hasRow())
        throw Failure::usual(FailureNumber::NoCurrentRow);
}

// What could not be written is not tried again with each step of the user: the row shows what the archive holds.
void FrmCibra::writeRow()
{
    try {
        Datsecondaryrs->Update();
    } catch (const Failure &failure) {
        if (failure.number() == FailureNumber::RowChanged)
            restoreRow();
        throw;
    }
}

void FrmCibra::restoreRow()
{
    Datsecondaryrs->Resync();
    Totali();
}

// A box left on a day without rows has nothing to be written to.
void FrmCibra::TxtFields_LostFocus(int index)
{
    if (!hasRow()) {
        campo(index).show();
        return;
    }
    comando("txtFields_LostFocus ", [this, index] { recalculate(index); });
}

void FrmCibra::recalculate(int index)
{
    maiuscolo(index);
    std::optional<QString> total;
    const CasellePersona &boxes = index == kPrima.quantita ? kPrima : kSeconda;
    QLineEdit *const totalBox = campi().at(boxes.totale)->box();
    try {
        if (index == boxes.quantita)
            total = TotaleRiga(testo(Casella::KC100gr), testo(index));
        if (total)
            totalBox->setText(*total);
        writeRow();
    } catch (const Failure &failure) {
        // The row keeps the values that it had, and the boxes show them. A key that cannot be stored must not stay on
        // show either: it would name another row to whoever deletes.
        if (failure.number() == FailureNumber::TypeMismatch || index == Casella::Id)
            Datsecondaryrs->CancelUpdate();
        throw;
    }
    if (total) { // with its point, until the row is shown anew
        const QSignalBlocker quiet(totalBox);
        totalBox->setText(*total);
    }
    Totali();
    m_ui->TDBGrid1->refresh();
}

// A command that leaves the focus in its box (a menu, a key, a resize) stores first what was typed there. False where
// that could not be stored, which the user has been told.
bool FrmCibra::leaveTypedBoxes()
{
    for (const auto &[index, box] : campi()) {
        if (!box->isChanged())
            continue;
        TxtFields_LostFocus(index);
        if (Datsecondaryrs->isPending()) // one message is enough
            return false;
    }
    if (Datsecondaryrs->isPending())
        comando("txtFields_LostFocus ", [this] {
            writeRow();
            Totali();
        });
    return !Datsecondaryrs->isPending();
}

void FrmCibra::Label3_DblClick()
{
    if (!leaveTypedBoxes())
        return;
    const PostoNellaScheda here = posto();
    if (CancellaRecord(modulo(), here, testo(Casella::Alimento), testo(Casella::Id)))
        CercaSchedaPranzo(here.giorno);
}

void FrmCibra::Label4_DblClick()
{
    if (!leaveTypedBoxes())
        return;
    const PostoNellaScheda here = posto();
    if (CancellaGruppo(modulo(), here))
        CercaSchedaPranzo(here.giorno);
}

// The list of foods is read afresh at each opening.
void FrmCibra::Label6_Click()
{
    if (m_ui->Frame2->isHidden()) {
        const QStringList foods = AlimentiSostitutivi(modulo());
        m_ui->Combo2->clear();
        m_ui->Combo2->addItems(foods);
        m_ui->Combo2->setCurrentIndex(foods.isEmpty() ? -1 : 0);
    }
    m_ui->Frame2->show();
    m_ui->Combo2->setFocus();
    m_ui->Combo2->lineEdit()->selectAll();
}

void FrmCibra::Command3_Click()
{
    leaveTypedBoxes();
    if (!NominaUnAlimento(m_ui->Combo2->currentText()))
        return;
    needRow();
    const std::optional<AlimentoSostituto> food =
        LeggiSostituto(modulo(), m_ui->Combo2->currentText(), testo(Casella::Piatto));
    m_ui->Frame2->hide();
    if (food) {
        const std::pair<const char *, const Value &> fields[] = {
            {"Alimento", food->Alimento},   {"KC100gr", food->KC100gr}, {"KcNominale", food->Kcnominale},
            {"quantita", food->quantita},   {"Totale1", food->totale1}, {"KcNominale2", food->Kcnominale2},
            {"quantita2", food->quantita2}, {"Totale2", food->totale2}};
        for (const auto &[field, value] : fields)
            Datsecondaryrs->setValue(field, value);
    }
    writeRow();
    Recordset sum;
    showTotals(SommaGiorno(sum, modulo().dati(), m_ui->DataCombo2->text()));
    Datsecondaryrs->Requery();
    m_ui->TDBGrid1->refresh();
}

void FrmCibra::Command4_Click()
{
    m_ui->Frame2->hide();
}

// The new rows bear the name that the dish box shows at the time, and the day's totals are not summed again here.
void FrmCibra::Label7_Click()
{
    if (!leaveTypedBoxes())
        return;
    needRow();
    const PostoNellaScheda here = posto();
    modulo().PiattoSostituto = here.piatto;
    Sostituti &window = m_registry.get<Sostituti>();
    window.preparaPerGiorno(here.piatto, here.pasto);
    window.showModal();
    if (modulo().PiattoSostituto.isEmpty())
        return;
    try {
        SostituisciPiatto(modulo(), here, modulo().PiattoSostituto, m_ui->DataCombo1->text());
    } catch (const Failure &) {
        Datsecondaryrs->Requery();
        throw;
    }
    Datsecondaryrs->Requery();
}

// A text that names no class of dishes leaves the list as it is.
void FrmCibra::Combo1_Change()
{
    if (const std::optional<QString> statement = IstruzionePiatti(m_ui->Combo1->currentText())) {
        Datprimaryrs->Close();
        Datprimaryrs->Open(*statement, modulo().dati(), accesso());
        m_ui->DataCombo1->setRowSource(*Datprimaryrs, "Piatto");
    }
    if (!m_ui->DataCombo2->text().isEmpty())
        CercaSchedaPranzo(m_ui->DataCombo2->text());
}

// A day that is on show already is looked up again all the same: its totals have grown.
void FrmCibra::Command1_Click()
{
    const QString day = m_ui->Text1->text();
    if (!InserisciPiatto(modulo(), {day, m_ui->Combo1->currentText(), m_ui->DataCombo1->text()}))
        return;
    Datsecondaryrs->Requery();
    if (m_ui->DataCombo2->text() == day)
        CercaSchedaPranzo(day);
    else
        m_ui->DataCombo2->setText(day);
    cmdFirst_Click();
}

void FrmCibra::mnuarchivio_Click()
{
    m_registry.get<MyBrowse>().showModal();
}

void FrmCibra::mnuPiattiKcal_Click()
{
    m_registry.get<PiattiKCAL>().showModal();
}
