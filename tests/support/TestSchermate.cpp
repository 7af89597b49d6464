#include "support/TestSchermate.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

// No test opens the dialog this often; a loop that never ends would.
constexpr int kTooManyDialogs = 20;

} // namespace

void TestBarra::setLarghezzaLabel5(double twips)
{
    label5 = twips;
    widths.push_back(twips);
}

void TestSchermate::mostraGestioneRete()
{
    if (++gestioneReteShown > kTooManyDialogs) {
        ADD_FAILURE() << "the database dialog is opened again and again";
        throw std::logic_error("an endless round of dialogs");
    }
    if (inGestioneRete)
        inGestioneRete();
}

void TestSchermate::erroreSuSfondo(const QString &panel, const QString &nextPanel)
{
    erroreVisibile = true;
    pannelli[4] = panel;
    pannelli[5] = nextPanel;
    errors.append(panel + QStringLiteral(" | ") + nextPanel);
}

BarraDelPianificatore &TestSchermate::barra()
{
    ++barTouches;
    return bar;
}
