// The daily sheet on a small archive of three rows, with what a test needs to look at it and to work it.
#pragma once

#include "catalogue/forms/MyBrowse.h"
#include "catalogue/forms/PiattiKCAL.h"
#include "catalogue/forms/Sostituti.h"
#include "platform/ui/DataCombo.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/FormRegistry.h"
#include "sheet/DayRows.h"
#include "sheet/forms/FrmCibra.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

class FrmCibraWorld : public testing::Test
{
protected:
    FrmCibraWorld() : dati(world.openArchive())
    {
        world.setHousehold();
        host.report = [this](const Failure &failure) { failures.append(failure.words()); };
        registry.setFactory<FrmCibra>([this] { return std::make_unique<FrmCibra>(host, registry, world.modulo); });
        registry.setFactory<Sostituti>([this] { return std::make_unique<Sostituti>(host, registry, world.modulo); });
        registry.setFactory<MyBrowse>([this] { return std::make_unique<MyBrowse>(host, registry, world.modulo); });
        registry.setFactory<PiattiKCAL>([this] { return std::make_unique<PiattiKCAL>(host, registry, world.modulo); });
        insertSheet(dati, {"'02/03/2025', 'Colazione', 'Colazione 1', 'Latte', 50, 200, 100, 300, 150",
                           "'02/03/2025', 'Pranzo', 'Pasta', 'Pasta', 350, 100, 350, 120, 420",
                           "'11/01/2025', 'Cena', 'Riso', 'Riso', 100, 1200, 1200, 1700, 1700"});
        // What the form looks for when it starts, so that no message stands in its way.
        insertRows(dati, "Amministratori", "ID", {"1"});
    }

    FrmCibra &form() { return registry.get<FrmCibra>(); }
    void show()
    {
        form().showModeless();
        QApplication::processEvents();
    }
    template <class Control>
    Control &control(const char *name)
    {
        return *form().findChild<Control *>(name);
    }
    DataCombo &days() { return control<DataCombo>("DataCombo2"); }
    DataGrid &grid() { return control<DataGrid>("TDBGrid1"); }
    QString caption(const char *label) { return control<QLabel>(label).text(); }
    QStringList totals() { return {control<QLineEdit>("Text2").text(), control<QLineEdit>("Text3").text()}; }
    void click(const char *button) { control<QAbstractButton>(button).click(); }
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
    bool visible(const char *name) { return !control<QWidget>(name).isHidden(); }

    QLineEdit &box(int index) { return control<QLineEdit>(qPrintable(QString("TxtFields_%1").arg(index))); }
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
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(form().focusWidget() ? form().focusWidget() : &form(), key, modifiers);
        QApplication::processEvents();
    }
    void save() { key(Qt::Key_F12); } // which puts the form into the state "V"
    void doubleClick(const char *label)
    {
        QTest::mouseDClick(&control<QWidget>(label), Qt::LeftButton);
        QApplication::processEvents();
    }
    void clickLabel(const char *label)
    {
        QTest::mouseClick(&control<QWidget>(label), Qt::LeftButton);
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

    TestWorld world;
    Connection &dati;
    FormHost host;
    FormRegistry registry;
    QStringList failures;
};
