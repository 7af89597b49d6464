// A grid whose columns may be edited: ticks, lists, typed texts, and what happens when the store refuses.
#include "platform/ui/DataGrid.h"
#include "platform/ui/FormHost.h"
#include "support/TemporaryFolder.h"
#include "support/TestArchive.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QtTest/QTest>

namespace {

class EditableGridTest : public testing::Test
{
protected:
    EditableGridTest()
    {
        makeTestArchive(folder.path("\\prova.db"));
        EXPECT_TRUE(connection.Open(folder.path("\\prova.db")));
        insertRows(connection, "Sostituisci", "Piatto, tipo, Ordine, Preferito",
                   {"'Pasta', 'Menu', 1.5, False", "'Mela', 'Spuntino', 2, True", "'Latte', Null, 3, False"});
        host.report = [this](const Failure &failure) { told << failure.words(); };
        grid.resize(600, 300);
        grid.setHost(&host);
        grid.setColumns({{"Preferito", "Preferito", CellEdit::Text},
                         {"Piatto", "Piatto"},
                         {"tipo", "Tipo", CellEdit::Text, {"Colazione", "Menu"}},
                         {"Ordine", "Ordine", CellEdit::Text}});
        open("Select Piatto, tipo, Ordine, Preferito from Sostituisci order by ID");
        grid.show();
        QApplication::setActiveWindow(&grid);
        grid.setFocus();
    }

    void open(const QString &statement, Recordset::Access access = Recordset::Access::Updatable)
    {
        rows = std::make_shared<Recordset>();
        rows->Open(statement, connection, access);
        grid.setDataSource(rows);
    }
    QModelIndex cell(int row, int column) const { return grid.model()->index(row, column); }
    void click(int row, int column)
    {
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(cell(row, column)).center());
    }
    template <class Editor>
    Editor *edit(int row, int column)
    {
        grid.setCurrentIndex(cell(row, column));
        QTest::keyClick(&grid, Qt::Key_F2);
        return grid.viewport()->findChild<Editor *>();
    }
    // Enter and failures are dealt with once the key itself is done.
    static void waitUntilIdle()
    {
        for (int turn = 0; turn < 3; ++turn)
            QCoreApplication::processEvents();
    }
    // As its own list does it: the item is made current and then activated.
    static void pick(QComboBox &combo, const QString &item)
    {
        combo.showPopup();
        combo.view()->setCurrentIndex(combo.model()->index(combo.findText(item), 0));
        QTest::keyClick(combo.view(), Qt::Key_Return);
    }
    QStringList stored()
    {
        return rowsOf(connection, "Select Piatto, tipo, Ordine, Preferito from Sostituisci order by ID");
    }

    TemporaryFolder folder;
    Connection connection;
    FormHost host;
    QStringList told;
    DataGrid grid;
    std::shared_ptr<Recordset> rows;
};

TEST_F(EditableGridTest, AYesNoFieldIsATickAndNoText)
{
    EXPECT_EQ(cell(0, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
    EXPECT_EQ(cell(1, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    EXPECT_EQ(cell(1, 0).data().toString(), "");
    EXPECT_FALSE(cell(1, 1).data(Qt::CheckStateRole).isValid());
}

TEST_F(EditableGridTest, OnlyTheColumnsThatSaySoCanBeEdited)
{
    const Qt::ItemFlags changes = Qt::ItemIsEditable | Qt::ItemIsUserCheckable;
    EXPECT_EQ(cell(0, 0).flags() & changes, Qt::ItemIsUserCheckable);
    EXPECT_EQ(cell(0, 1).flags() & changes, Qt::NoItemFlags);
    EXPECT_EQ(cell(0, 2).flags() & changes, Qt::ItemIsEditable);
    EXPECT_EQ(edit<QWidget>(0, 1), nullptr);
}

TEST_F(EditableGridTest, NothingCanBeEditedInARecordSetThatIsReadOnly)
{
    open("Select Piatto, tipo, Ordine, Preferito from Sostituisci order by ID", Recordset::Access::ReadOnly);
    click(0, 0);
    EXPECT_EQ(edit<QWidget>(0, 2), nullptr);
    EXPECT_EQ(stored(),
              QStringList({"Pasta | Menu | 1,5 | Falso", "Mela | Spuntino | 2 | Vero", "Latte | - | 3 | Falso"}));
}

TEST_F(EditableGridTest, AClickAnywhereInItsCellTicksAndReachesTheTableAtOnce)
{
    click(2, 0);
    EXPECT_EQ(rows->AbsolutePosition(), 3);
    EXPECT_EQ(valueOf(connection, "Select Count(*) from Sostituisci where Preferito = True and Piatto = 'Latte'"), "1");
    EXPECT_EQ(cell(2, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    click(2, 0);
    EXPECT_EQ(valueOf(connection, "Select Count(*) from Sostituisci where Preferito = True"), "1");
    EXPECT_FALSE(rows->isPending());
    EXPECT_EQ(told, QStringList());
}

TEST_F(EditableGridTest, TheSpaceBarTicksTheCurrentCell)
{
    grid.setCurrentIndex(cell(0, 0));
    QTest::keyClick(&grid, Qt::Key_Space);
    EXPECT_EQ(valueOf(connection, "Select Count(*) from Sostituisci where Preferito = True"), "2");
}

TEST_F(EditableGridTest, AClickInAnotherColumnTicksNothing)
{
    click(0, 1);
    EXPECT_EQ(valueOf(connection, "Select Count(*) from Sostituisci where Preferito = True"), "1");
}

TEST_F(EditableGridTest, APickFromTheListIsWrittenAtOnce)
{
    auto *combo = edit<QComboBox>(2, 2);
    ASSERT_TRUE(combo);
    EXPECT_EQ(combo->currentIndex(), -1); // the cell is empty
    pick(*combo, "Colazione");
    EXPECT_EQ(stored()[2], "Latte | Colazione | 3 | Falso");
    EXPECT_EQ(cell(2, 2).data().toString(), "Colazione");
}

TEST_F(EditableGridTest, AValueOutsideTheListShowsAndStaysUntilAnotherIsPicked)
{
    EXPECT_EQ(cell(1, 2).data().toString(), "Spuntino");
    auto *combo = edit<QComboBox>(1, 2);
    ASSERT_TRUE(combo);
    EXPECT_EQ(combo->currentIndex(), -1);
    QTest::keyClick(combo, Qt::Key_Return);
    EXPECT_EQ(stored()[1], "Mela | Spuntino | 2 | Vero");
}

TEST_F(EditableGridTest, AListShowsTheStoredValueInWhateverSpelling)
{
    connection.Execute("UPDATE Sostituisci SET tipo = 'MENU' WHERE Piatto = 'Pasta'");
    rows->Requery();
    auto *combo = edit<QComboBox>(0, 2);
    ASSERT_TRUE(combo);
    EXPECT_EQ(combo->currentText(), "Menu");
}

TEST_F(EditableGridTest, ATypedNumberIsWrittenAtOnce)
{
    auto *box = edit<QLineEdit>(0, 3);
    ASSERT_TRUE(box);
    EXPECT_EQ(box->text(), "1,5");
    box->selectAll();
    QTest::keyClicks(box, "12,75");
    QTest::keyClick(box, Qt::Key_Return);
    waitUntilIdle();
    EXPECT_EQ(stored()[0], "Pasta | Menu | 12,75 | Falso");
}

TEST_F(EditableGridTest, WhatTheStoreRefusesIsToldOnceAndTheOldValueIsBack)
{
    auto *box = edit<QLineEdit>(0, 3);
    ASSERT_TRUE(box);
    box->selectAll();
    QTest::keyClicks(box, "spesso");
    QTest::keyClick(box, Qt::Key_Return);
    waitUntilIdle();
    ASSERT_EQ(told.size(), 1);
    EXPECT_EQ(told[0].left(23), "Tipo non corrispondente");
    EXPECT_EQ(cell(0, 3).data().toString(), "1,5");
    EXPECT_FALSE(rows->isPending());
    EXPECT_EQ(stored()[0], "Pasta | Menu | 1,5 | Falso");
}

TEST_F(EditableGridTest, ATickOnARowThatIsGoneIsToldAndTheOtherRowsGoOn)
{
    connection.Execute("Delete from Sostituisci where Piatto = 'Pasta'"); // as another program would
    click(0, 0);
    waitUntilIdle();
    EXPECT_EQ(told.size(), 1);
    EXPECT_FALSE(rows->isPending());
    EXPECT_EQ(grid.model()->rowCount(), 2) << "the rows are read again";
    click(1, 0);
    EXPECT_EQ(valueOf(connection, "Select Count(*) from Sostituisci where Preferito = True"), "2");
    EXPECT_EQ(told.size(), 1);
}

TEST_F(EditableGridTest, AnEditGivenUpChangesNothing)
{
    EXPECT_FALSE(grid.cancelEdit());
    auto *box = edit<QLineEdit>(0, 3);
    ASSERT_TRUE(box);
    QTest::keyClicks(box, "7");
    EXPECT_TRUE(grid.cancelEdit());
    EXPECT_FALSE(grid.cancelEdit());
    EXPECT_EQ(stored()[0], "Pasta | Menu | 1,5 | Falso");
}

TEST_F(EditableGridTest, TheTitleTakesItsOwnLineOverTheCaptions)
{
    const int height = grid.horizontalHeader()->height();
    EXPECT_EQ(grid.property("caption").toString(), "");
    grid.setCaption("Scegli i tuoi piatti");
    EXPECT_EQ(grid.property("caption").toString(), "Scegli i tuoi piatti");
    EXPECT_GE(grid.horizontalHeader()->height(), height + grid.fontMetrics().height());
    EXPECT_EQ(grid.model()->headerData(1, Qt::Horizontal).toString(), "Piatto");
    grid.setCaption("");
    EXPECT_EQ(grid.horizontalHeader()->height(), height);
}

} // namespace
