#include "platform/ui/DataCombo.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/FormHost.h"
#include "platform/ui/GridHeader.h"
#include "platform/ui/StatusPanels.h"
#include "platform/ui/Tema.h"
#include "support/TemporaryFolder.h"
#include "support/TestArchive.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QtTest/QTest>

#include <cmath>

namespace {

class DataControlsTest : public testing::Test
{
protected:
    DataControlsTest()
    {
        makeTestArchive(folder.path("\\prova.db"));
        EXPECT_TRUE(connection.Open(folder.path("\\prova.db")));
        insertRows(connection, "Piatti", "Piatto, Alimento, quantita",
                   {"'Pasta', 'Sale', 2.5", "'Pasta', 'Olio', 10", "'Pane', 'Farina', Null"});
    }

    std::shared_ptr<Recordset> open(const QString &statement)
    {
        auto recordset = std::make_shared<Recordset>();
        recordset->Open(statement, connection);
        return recordset;
    }
    static QString cell(const QTableView &grid, int row, int column)
    {
        return grid.model()->index(row, column).data().toString();
    }
    static void clickRow(DataGrid &grid, int row)
    {
        const QRect where = grid.visualRect(grid.model()->index(row, 0));
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, where.center());
    }

    TemporaryFolder folder;
    Connection connection;
};

class DataGridTest : public DataControlsTest
{
protected:
    DataGridTest()
    {
        grid.resize(500, 300);
        grid.setHost(&host);
        grid.setColumns({{"Piatto", "Piatto"}, {"quantita", "Quantità"}, {"nessuno", "Vuota"}});
        rows = open("Select * from Piatti order by ID");
        grid.setDataSource(rows);
        grid.show();
    }

    FormHost host;
    DataGrid grid;
    std::shared_ptr<Recordset> rows;
};

TEST_F(DataGridTest, AGridThatMustScrollAnywayKeepsItsTextsReadable)
{
    const QString food = "Farina di grano tenero integrale";
    insertRows(connection, "Categorie", "ID, Alimento", {"1, '" + food + "'"});
    grid.setColumns({});
    grid.setDataSource(open("Select * from Categorie"));
    EXPECT_GE(grid.columnWidth(3), grid.fontMetrics().horizontalAdvance(food));
}

TEST_F(DataGridTest, LongNamesInTheCaptionsOfNumbersGiveWaySoThatAllColumnsShow)
{
    std::vector<GridColumn> columns{{"Piatto", "Piatto"}, {"Alimento", "Alimento"}};
    for (const char *field : {"quantita", "quantita2", "Totale1", "Totale2"})
        columns.push_back({field, "Quantità Maria Concetta Immacolata"});
    grid.setColumns(columns);
    grid.resize(640, 300);
    grid.setDataSource(open("Select * from Piatti order by ID"));
    EXPECT_LE(grid.horizontalHeader()->length(), grid.viewport()->width());
    const auto &header = static_cast<const GridHeader &>(*grid.horizontalHeader());
    ASSERT_EQ(header.righe(2).size(), 2);
    EXPECT_TRUE(header.righe(2).last().endsWith(u'…'));
    EXPECT_EQ(header.righe(0), QStringList("Piatto"));
}

TEST_F(DataGridTest, MarksInADishAreNoMarkupInItsToolTip)
{
    insertRows(connection, "Piatti", "Piatto, Alimento, quantita", {"'<b>Riso</b>', 'Riso', 50"});
    rows->Requery();
    EXPECT_TRUE(grid.model()->index(3, 0).data(Qt::ToolTipRole).toString().contains("&lt;b&gt;Riso"));
    EXPECT_EQ(grid.model()->index(0, 0).data(Qt::ToolTipRole).toString(), "Pasta");
}

TEST_F(DataGridTest, ShowsItsColumnsWithNumbersAtTheRight)
{
    EXPECT_EQ(grid.model()->rowCount(), 3);
    EXPECT_EQ(cell(grid, 0, 0) + '|' + cell(grid, 0, 1) + '|' + cell(grid, 2, 1) + '|' + cell(grid, 0, 2),
              "Pasta|2,5||");
    const auto alignment = [this](int column) {
        return grid.model()->index(0, column).data(Qt::TextAlignmentRole).toInt() & Qt::AlignHorizontal_Mask;
    };
    EXPECT_EQ(alignment(0), int(Qt::AlignLeft));
    EXPECT_EQ(alignment(1), int(Qt::AlignRight));
    grid.setCaption(1, "Quantità Ondira");
    EXPECT_EQ(grid.model()->headerData(1, Qt::Horizontal).toString(), "Quantità Ondira");
    EXPECT_EQ(grid.columnField(1), "quantita");
}

TEST_F(DataGridTest, AClickMovesTheRecordSetAndItsMovesAreFollowed)
{
    EXPECT_EQ(grid.currentIndex().row(), 0);
    clickRow(grid, 2);
    EXPECT_EQ(rows->AbsolutePosition(), 3);
    rows->MovePrevious();
    EXPECT_EQ(grid.currentIndex().row(), 1);
    EXPECT_TRUE(grid.selectionModel()->isRowSelected(1));
    rows->MoveLast();
    rows->MoveNext();
    EXPECT_FALSE(grid.currentIndex().isValid());
    EXPECT_FALSE(grid.selectionModel()->hasSelection());
    clickRow(grid, 1);
    EXPECT_EQ(rows->AbsolutePosition(), 2);
}

TEST_F(DataGridTest, AMoveThatFailsIsToldAndTheGridStaysWhereTheRecordSetIs)
{
    QStringList told;
    host.report = [&](const Failure &failure) { told << failure.words(); };
    rows->setValue("Alimento", QStringLiteral("Pepe"));
    connection.Execute("Delete from Piatti where Alimento = 'Sale'"); // as another program would
    clickRow(grid, 2);
    EXPECT_EQ(told.size(), 1);
    EXPECT_EQ(grid.currentIndex().row() + 1, rows->AbsolutePosition());
    QApplication::processEvents();
    EXPECT_EQ(grid.selectionModel()->selectedRows(), QModelIndexList({grid.currentIndex()}));
    EXPECT_EQ(grid.currentIndex().row() + 1, rows->AbsolutePosition());
}

TEST_F(DataGridTest, ARowThatSomebodyElseChangedIsReadAgain)
{
    QStringList told;
    host.report = [&](const Failure &failure) { told << failure.words(); };
    rows->setValue("Alimento", QStringLiteral("Pepe"));
    const QString changed = rows->value("Piatto").text();
    connection.Execute("Update Piatti set Alimento = 'Timo' where Piatto = '" + changed + "'");
    clickRow(grid, 2);
    QApplication::processEvents();
    EXPECT_EQ(told.size(), 1);
    EXPECT_EQ(rows->value("Alimento").text(), "Timo");
    EXPECT_EQ(rows->AbsolutePosition(), 1);
    clickRow(grid, 2);
    EXPECT_EQ(rows->AbsolutePosition(), 3);
    EXPECT_EQ(told.size(), 1);
}

TEST_F(DataGridTest, RowsThatCannotBeReadAgainAreToldToo)
{
    QStringList told;
    host.report = [&](const Failure &failure) {
        told << failure.words();
        connection.Close();
    };
    rows->setValue("Alimento", QStringLiteral("Pepe"));
    connection.Execute("Delete from Piatti where Alimento = 'Sale'");
    clickRow(grid, 2);
    QApplication::processEvents();
    EXPECT_EQ(told.size(), 2);
    EXPECT_EQ(told.last(), "Il collegamento al database non è aperto");
}

TEST_F(DataGridTest, AClickAndADoubleClickBelowTheRowsAreToldToo)
{
    int clicks = 0;
    int doubleClicks = 0;
    QObject::connect(&grid, &DataGrid::Click, [&] { ++clicks; });
    QObject::connect(&grid, &DataGrid::DblClick, [&] { ++doubleClicks; });
    const QPoint below(20, grid.viewport()->height() - 5);
    ASSERT_FALSE(grid.indexAt(below).isValid());
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, below);
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, below);
    clickRow(grid, 1);
    EXPECT_EQ(doubleClicks, 1);
    EXPECT_GE(clicks, 2);
}

TEST_F(DataGridTest, FollowsNewChangedAndDeletedRows)
{
    rows->setValue("quantita", 30.0);
    rows->Update();
    EXPECT_EQ(cell(grid, 0, 1), "30");
    rows->AddNew();
    rows->setValue("Piatto", QStringLiteral("Riso"));
    rows->Update();
    EXPECT_EQ(grid.model()->rowCount(), 4);
    EXPECT_EQ(cell(grid, 3, 0), "Riso");
    EXPECT_EQ(grid.currentIndex().row(), 3);
    rows->MoveFirst();
    rows->Delete();
    EXPECT_EQ(grid.model()->rowCount(), 3);
    EXPECT_EQ(cell(grid, 0, 1), "10");
}

TEST_F(DataGridTest, RowsDeletedOneAfterTheOtherAreAllDeletedUnderTheGrid)
{
    for (rows->MoveFirst(); !rows->Eof(); rows->MoveNext())
        rows->Delete();
    EXPECT_EQ(grid.model()->rowCount(), 0);
    EXPECT_EQ(countOf(connection, "Piatti"), 0);
}

TEST_F(DataGridTest, FollowsRequeryAndClose)
{
    insertRows(connection, "Piatti", "Piatto", {"'Zuppa'"});
    rows->Requery();
    EXPECT_EQ(grid.model()->rowCount(), 4);
    rows->Close();
    EXPECT_EQ(grid.model()->rowCount(), 0);
    grid.setDataSource(nullptr);
    EXPECT_EQ(grid.model()->rowCount(), 0);
}

TEST_F(DataGridTest, WithoutColumnsShowsAllFieldsOfTheRecordSet)
{
    grid.setColumns({});
    grid.setDataSource(open("Select Piatto, Alimento from Piatti"));
    EXPECT_EQ(grid.model()->columnCount(), 2);
    EXPECT_EQ(grid.model()->headerData(1, Qt::Horizontal).toString(), "Alimento");
}

TEST_F(DataGridTest, IsReadOnlyAndColoursRowsAsTold)
{
    EXPECT_FALSE(grid.model()->flags(grid.model()->index(0, 0)) & Qt::ItemIsEditable);
    grid.setRowColour([](const Recordset &, int row) { return row == 1 ? QColor(Qt::yellow) : QColor(); });
    EXPECT_FALSE(grid.model()->index(0, 0).data(Qt::BackgroundRole).isValid());
    EXPECT_EQ(grid.model()->index(1, 0).data(Qt::BackgroundRole).value<QColor>(), QColor(Qt::yellow));
}

TEST_F(DataGridTest, KeepsTheWidthsThatTheUserGaveUntilTheColumnsChange)
{
    grid.horizontalHeader()->resizeSection(0, 77);
    rows->Requery();
    EXPECT_EQ(grid.columnWidth(0), 77);
    grid.setColumns({{"Alimento", "Alimento"}});
    EXPECT_GT(grid.columnWidth(0), 300); // alone, it takes the whole width
}

class DataComboTest : public DataControlsTest
{
protected:
    DataComboTest()
    {
        combo.setRowSource(*open("Select Piatto from Piatti order by ID"), "piatto");
        combo.show();
    }
    QStringList items() const
    {
        QStringList all;
        for (int i = 0; i < combo.count(); ++i)
            all << combo.itemText(i);
        return all;
    }
    void pick(int item)
    {
        combo.showPopup();
        combo.view()->setCurrentIndex(combo.model()->index(item, 0));
        QTest::keyClick(combo.view(), Qt::Key_Return);
    }

    DataCombo combo;
    QSignalSpy picked{&combo, &DataCombo::picked};
    QSignalSpy changed{&combo, &DataCombo::textChanged};
};

TEST_F(DataComboTest, ListsEveryRowDoublesIncludedAndKeepsItsText)
{
    EXPECT_EQ(items(), QStringList({"Pasta", "Pasta", "Pane"}));
    EXPECT_EQ(combo.text(), "");
    combo.setText("altro");
    changed.clear();
    combo.setRowSource(*open("Select Alimento from Piatti order by ID"), "Alimento");
    EXPECT_EQ(items(), QStringList({"Sale", "Olio", "Farina"}));
    EXPECT_EQ(combo.text(), "altro");
    EXPECT_EQ(picked.count() + changed.count(), 0);
}

TEST_F(DataComboTest, APickIsToldOnceAndIsNoChangeOfText)
{
    pick(2);
    EXPECT_EQ(combo.text(), "Pane");
    EXPECT_EQ(picked.count(), 1);
    EXPECT_EQ(changed.count(), 0);
}

TEST_F(DataComboTest, TypingChangesTheTextKeyByKeyWithoutCompletingIt)
{
    combo.setFocus();
    QTest::keyClicks(&combo, "Pa");
    EXPECT_EQ(combo.text(), "Pa");
    EXPECT_EQ(changed.count(), 2);
    QTest::keyClicks(&combo, "ne");
    QTest::keyClick(&combo, Qt::Key_Return);
    combo.clearFocus();
    EXPECT_EQ(picked.count(), 0);
    EXPECT_EQ(changed.count(), 4);
}

TEST_F(DataComboTest, ATextSetByCodeIsToldOnlyWhereItDiffersAndPicksNothing)
{
    combo.setText("Pane");
    combo.setText("Pane");
    EXPECT_EQ(changed.count(), 1);
    combo.setText("pane");
    EXPECT_EQ(changed.count(), 2);
    EXPECT_EQ(combo.text(), "pane");
    EXPECT_EQ(combo.currentIndex(), -1);
    EXPECT_EQ(picked.count(), 0);
}

TEST_F(DataComboTest, TheKeysGoOnFromTheItemThatTheTextNames)
{
    combo.setRowSource(*open("Select Alimento from Piatti order by ID"), "Alimento"); // Sale, Olio, Farina
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_PageDown}) {
        combo.setText("Olio");
        QTest::keyClick(&combo, key);
        EXPECT_EQ(combo.text(), "Farina");
    }
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_PageUp}) {
        combo.setText("Farina");
        QTest::keyClick(&combo, key);
        EXPECT_EQ(combo.text(), "Olio");
    }
}

TEST_F(DataComboTest, TheListOpensAtTheItemThatTheTextNames)
{
    combo.setText("Pane");
    combo.showPopup();
    EXPECT_EQ(combo.view()->currentIndex().row(), 2);
    EXPECT_EQ(combo.text(), "Pane");
    combo.hidePopup();
    combo.setText("nessuno");
    combo.showPopup();
    EXPECT_EQ(combo.text(), "nessuno");
    combo.hidePopup();
}

class StatusPanelsTest : public testing::Test
{
protected:
    StatusPanelsTest()
    {
        bar.setObjectName("StatusBar1");
        bar.addPanel("F2", "Aiuto");
        bar.addPanel({}, {}, 1);
        bar.resize(300, 30);
        bar.show();
    }

    StatusPanels bar;
};

TEST_F(StatusPanelsTest, APanelIsClickedByItsNumberUnlessItIsDisabled)
{
    QSignalSpy clicked(&bar, &StatusPanels::panelClicked);
    QTest::mouseClick(bar.panelWidget(2), Qt::LeftButton);
    ASSERT_EQ(clicked.count(), 1);
    EXPECT_EQ(clicked[0][0].toInt(), 2);
    bar.setPanelEnabled(2, false);
    EXPECT_FALSE(bar.isPanelEnabled(2));
    QTest::mouseClick(bar.panelWidget(2), Qt::LeftButton);
    EXPECT_EQ(clicked.count(), 1);
}

TEST_F(StatusPanelsTest, ALongTextIsCutOnTheScreenButKeptWholeAndShownAsToolTip)
{
    const QString path = QString("/casa/").repeated(40) + "Cibra.Mdb";
    bar.setPanelText(2, path);
    QTest::qWait(1);
    EXPECT_LE(bar.panelWidget(2)->width(), 300);
    EXPECT_EQ(bar.panelText(2), path);
    EXPECT_EQ(bar.panelWidget(2)->toolTip(), path);
    bar.setPanelText(2, "corto");
    EXPECT_EQ(bar.panelWidget(2)->toolTip(), "");
    EXPECT_EQ(bar.panelWidget(1)->toolTip(), "Aiuto");
}

TEST_F(StatusPanelsTest, PanelsAreNamedByBarAndNumberAndThoseThatAreNotThereAreLeftAlone)
{
    EXPECT_EQ(bar.panelWidget(2)->objectName(), "StatusBar1_2");
    bar.setPanelText(3, "x");
    EXPECT_EQ(bar.panelCount(), 2);
    EXPECT_EQ(bar.panelText(0), "");
    EXPECT_EQ(bar.panelWidget(3), nullptr);
    bar.setPanelVisible(1, false);
    EXPECT_FALSE(bar.panelWidget(1)->isVisible());
}

// Relative luminance and contrast, as the guidelines for readable pages define them.
double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor &one, const QColor &other)
{
    const double lighter = std::max(luminance(one), luminance(other));
    const double darker = std::min(luminance(one), luminance(other));
    return (lighter + 0.05) / (darker + 0.05);
}

class TemaTest : public testing::TestWithParam<bool>
{
protected:
    TemaTest() : before(QApplication::palette())
    {
        if (GetParam())
            QApplication::setPalette(QPalette(QColor(0x202020)));
        Tema::apply(*qApp);
    }
    ~TemaTest() override { QApplication::setPalette(before); }

    QPalette before;
};

TEST_P(TemaTest, FollowsTheDesktopAndKeepsTextReadable)
{
    const QPalette palette = QApplication::palette();
    EXPECT_EQ(palette.color(QPalette::Window).lightness() < 128, GetParam());
    EXPECT_GE(contrast(palette.color(QPalette::WindowText), palette.color(QPalette::Window)), 7);
    EXPECT_GE(contrast(palette.color(QPalette::Text), palette.color(QPalette::Base)), 7);
    EXPECT_GE(contrast(palette.color(QPalette::Text), palette.color(QPalette::AlternateBase)), 7);
    EXPECT_GE(contrast(palette.color(QPalette::ButtonText), palette.color(QPalette::Button)), 7);
    EXPECT_GE(contrast(palette.color(QPalette::Link), palette.color(QPalette::Window)), 7);
    EXPECT_GE(contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)), 7);
    EXPECT_GE(contrast(Tema::firstPerson(), palette.color(QPalette::Window)), 7);
    EXPECT_GE(contrast(Tema::secondPerson(), palette.color(QPalette::Window)), 7);
    for (const char *meal : {"Colazione", "Spuntino", "Pranzo", "cena", "Menu"})
        EXPECT_GE(contrast(palette.color(QPalette::Text), Tema::meal(meal)), 7) << meal;
    EXPECT_FALSE(Tema::meal("Merenda").isValid());
}

INSTANTIATE_TEST_SUITE_P(Desktops, TemaTest, testing::Bool(),
                         [](const auto &dark) { return dark.param ? "Dark" : "Light"; });

TEST_F(DataControlsTest, TenYearsOfRowsOpenWithoutBeingCopied)
{
    connection.Execute("INSERT INTO Piatti (Piatto) WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
                       "WHERE i < 20000) SELECT 'p' || i FROM n");
    DataGrid grid;
    grid.resize(500, 300);
    const auto rows = open("Select * from Piatti order by ID");
    grid.setDataSource(rows);
    grid.show();
    EXPECT_EQ(grid.model()->rowCount(), 20003);
    rows->MoveLast();
    EXPECT_EQ(grid.currentIndex().row(), 20002);
    EXPECT_TRUE(grid.viewport()->rect().intersects(grid.visualRect(grid.currentIndex())));
}

} // namespace
