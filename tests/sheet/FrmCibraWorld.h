// The daily sheet on a small archive of three rows, with what a test needs to look at it and to work it.
#pragma once

#include "catalogue/forms/MyBrowse.h"
#include "catalogue/forms/PiattiKCAL.h"
#include "catalogue/forms/Sostituti.h"
#include "platform/ui/DataCombo.h"
#include "platform/ui/DataGrid.h"
#include "sheet/DayRows.h"
#include "sheet/forms/FrmCibra.h"
#include "support/FormWorld.h"

#include <gtest/gtest.h>

#include <QPushButton>

class FrmCibraWorld : public testing::Test, protected FormWorld<FrmCibra>
{
protected:
    FrmCibraWorld()
    {
        addForm<Sostituti>();
        addForm<MyBrowse>();
        addForm<PiattiKCAL>();
        insertSheet(dati, {"'02/03/2025', 'Colazione', 'Colazione 1', 'Latte', 50, 200, 100, 300, 150",
                           "'02/03/2025', 'Pranzo', 'Pasta', 'Pasta', 350, 100, 350, 120, 420",
                           "'11/01/2025', 'Cena', 'Riso', 'Riso', 100, 1200, 1200, 1700, 1700"});
        // What the form looks for when it starts, so that no message stands in its way.
        insertRows(dati, "Amministratori", "ID", {"1"});
    }

    DataCombo &days() { return control<DataCombo>("DataCombo2"); }
    DataGrid &grid() { return control<DataGrid>("TDBGrid1"); }
    QString caption(const char *label) { return control<QLabel>(label).text(); }
    QStringList totals() { return {control<QLineEdit>("Text2").text(), control<QLineEdit>("Text3").text()}; }
    void pick(const QString &day) // from the list, as the user does
    {
        days().setCurrentIndex(days().findText(day));
        emit days().activated(days().currentIndex());
    }
    int currentRow() { return grid().currentIndex().row(); }
    void goToRow(int row) { grid().setCurrentIndex(grid().model()->index(row, 0)); }
    QStringList foods()
    {
        QStringList names;
        for (int row = 0; row < grid().model()->rowCount(); ++row)
            names.append(grid().model()->index(row, 3).data().toString());
        return names;
    }

    QLineEdit &box(int index) { return control<QLineEdit>(QString("TxtFields_%1").arg(index)); }
    QString text(int index) { return box(index).text(); }
    // Types over a box and goes on to the next control, as the user does.
    void enter(int index, const QString &typed)
    {
        QApplication::setActiveWindow(&form());
        box(index).setFocus(Qt::TabFocusReason);
        box(index).selectAll();
        if (typed.isEmpty())
            QTest::keyClick(&box(index), Qt::Key_Delete);
        else
            QTest::keyClicks(&box(index), typed);
        QTest::keyClick(&box(index), Qt::Key_Tab);
        QApplication::processEvents();
    }
    void save() { key(Qt::Key_F12); } // which puts the form into the state "V"
    void doubleClick(const char *label)
    {
        QTest::mouseDClick(&control<QWidget>(label), Qt::LeftButton);
        QApplication::processEvents();
    }
    QString log() { return QString::fromLatin1(world.cartella.read("\\Errori\\ErrFrmCibra.txt")); }
    // The rows of a day: day, meal, dish, food, portions and totals of both persons.
    QStringList sheet(const QString &day)
    {
        return rowsOf(dati, "SELECT PranzoCenaSpuntino, Piatto, Alimento, quantita, Totale1, quantita2, Totale2 FROM "
                            "SchedaPranzo WHERE dataInserimento = '" +
                                day + "' ORDER BY ID");
    }
};
