#include "planner/forms/Preferiti.h"

#include "planner/PlannerTest.h"
#include "platform/ui/DataCombo.h"
#include "platform/ui/DataGrid.h"
#include "support/FormWorld.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {

class PreferitiFormTest : public PlannerTest, protected FormHands<Preferiti>
{
protected:
    PreferitiFormTest() : FormHands(world.modulo) { fillCatalogue(); }

    DataGrid &grid() { return control<DataGrid>("TDBGrid1"); }
    DataCombo &combo(const char *name) { return control<DataCombo>(name); }
    void pick(const char *name, int item)
    {
        combo(name).setCurrentIndex(item);
        emit combo(name).picked();
    }
    void pick(const char *name, const QString &item) { pick(name, combo(name).findText(item)); }
    void toggle() { menu("mnupreferiti"); }
    QStringList items(const char *name)
    {
        QStringList all;
        for (int i = 0; i < combo(name).count(); ++i)
            all << combo(name).itemText(i);
        return all;
    }
    QStringList column(int number)
    {
        QStringList texts;
        for (int row = 0; row < grid().model()->rowCount(); ++row)
            texts << grid().model()->index(row, number).data().toString();
        return texts;
    }
    QStringList dishes() { return column(1); }
    void clickCell(int row, int number)
    {
        form().show();
        const QModelIndex cell = grid().model()->index(row, number);
        QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, grid().visualRect(cell).center());
    }
    QString currentDish() { return grid().currentIndex().siblingAtColumn(1).data().toString(); }
    QStringList favourites()
    {
        return rowsOf(dati, "Select Piatto from Sostituisci where Preferito = True order by ID");
    }
};

const QStringList kAllDishes = {"Caffelatte", "Cuscus",   "Fagiolini", "Grissini", "Manzo",          "Mela",
                                "Orata",      "Paella",   "Pera",      "Pizza",    "Pollo",          "Ravioli",
                                "Rosetta",    "Sogliola", "Spinaci",   "Toast",    "Yogurt e miele", "Zuppa"};

TEST_F(PreferitiFormTest, ItOpensOnAllDishesButThePlaceholdersWithTheirCount)
{
    EXPECT_EQ(form().windowTitle(), "Piatti preferiti");
    EXPECT_EQ(dishes(), kAllDishes);
    EXPECT_EQ(grid().caption(), "Scegli i tuoi menu Preferiti - (selezionati = 1)");
    EXPECT_EQ(combo("Combo1").text() + combo("Combo2").text(), "");
    EXPECT_EQ(items("Combo1"), QStringList({"Colazione", "Menu", "Spuntino"}));
    EXPECT_EQ(items("Combo2"),
              QStringList({"Bevanda", "Bistecca Vegetale", "Carne", "Cereali", "Contorno", "Formaggio", "Frutta",
                           "Piatto Unico", "Panino - Pizza", "Pasta - Minestra", "Pesce", "Piatto unico"}));
    QStringList captions;
    for (int i = 0; i < grid().model()->columnCount(); ++i)
        captions << grid().model()->headerData(i, Qt::Horizontal).toString();
    EXPECT_EQ(captions, QStringList({"Preferito", "Piatto", "Tipo", "Categoria"}));
}

TEST_F(PreferitiFormTest, EveryCaptionAndToolTipStandsLetterByLetter)
{
    EXPECT_EQ(control<QPushButton>("Command1").text(), "Scegli  piatti");
    EXPECT_EQ(control<QPushButton>("Command2").text(), "Conta Piatti preferiti");
    for (const char *name : {"Command1", "Command2"})
        EXPECT_EQ(control<QPushButton>(name).toolTip(), "Tabella SOSTITUISCI ");
    EXPECT_EQ(control<QLabel>("Label1_0").text(), "Tipo");
    EXPECT_EQ(control<QLabel>("Label1_1").text(), "Categoria");
    EXPECT_EQ(control<QAction>("mnupreferiti").text(), "Visualizza tutti i preferiti");
    EXPECT_EQ(control<QAction>("MnuEsci").text(), "Esci");
}

TEST_F(PreferitiFormTest, ATypeShowsItsDishesAndShortensTheCategoriesForAsLongAsTheFormLives)
{
    pick("Combo1", "Menu");
    EXPECT_EQ(dishes(), QStringList({"Manzo", "Pollo", "Orata", "Sogliola", "Toast", "Pizza", "Ravioli", "Zuppa",
                                     "Paella", "Cuscus"}));
    const QStringList shortened = items("Combo2");
    EXPECT_EQ(shortened.join('|').toLower(), "|carne|panino - pizza|pasta - minestra|pesce|piatto unico");
    EXPECT_EQ(grid().caption(), "Scegli i tuoi menu Preferiti - (selezionati = 1)");
    pick("Combo2", "Pesce");
    EXPECT_EQ(dishes(), QStringList({"Orata", "Sogliola"}));
    EXPECT_EQ(grid().caption(), "Scegli i tuoi menu Preferiti - (selezionati = 0)");

    // The type is cleared: its category goes, the short list stays.
    form().show();
    combo("Combo1").setFocus();
    combo("Combo1").lineEdit()->selectAll();
    QTest::keyClick(&combo("Combo1"), Qt::Key_Delete);
    EXPECT_EQ(combo("Combo2").text(), "");
    EXPECT_EQ(items("Combo2"), shortened);
    EXPECT_EQ(dishes(), kAllDishes);
}

TEST_F(PreferitiFormTest, AnotherTypeEmptiesTheCategory)
{
    pick("Combo1", "Menu");
    pick("Combo2", "Pesce");
    pick("Combo1", "Spuntino");
    EXPECT_EQ(combo("Combo2").text(), "");
    EXPECT_EQ(items("Combo2"), QStringList({"", "Frutta"}));
    EXPECT_EQ(dishes(), QStringList({"Mela", "Pera"}));
}

TEST_F(PreferitiFormTest, TheEmptyCategoryShowsTheWholeTypeAgain)
{
    pick("Combo1", "Menu");
    pick("Combo2", "Pesce");
    pick("Combo2", 0);
    EXPECT_EQ(dishes().size(), 10);
}

TEST_F(PreferitiFormTest, ACategoryWithoutATypeAsksForTheTypeAndLeavesTheGrid)
{
    form().show();
    QApplication::setActiveWindow(&form());
    pick("Combo2", "Pesce");
    EXPECT_EQ(world.dialoghi.boxes(), QStringList("MsgBox 64 \"OK\" Seleziona la tipologia"));
    EXPECT_EQ(dishes(), kAllDishes);
    EXPECT_EQ(combo("Combo2").text(), "Pesce");
    EXPECT_TRUE(combo("Combo1").hasFocus());
    click("Command1"); // and there it is, all the same
    EXPECT_EQ(dishes(), QStringList({"Orata", "Sogliola"}));
}

TEST_F(PreferitiFormTest, ATypeThatDoesNotExistGivesAnEmptyGridAndACountOfZero)
{
    combo("Combo1").setText("Merenda");
    EXPECT_EQ(dishes(), kAllDishes); // until the button is pressed
    click("Command1");
    EXPECT_EQ(dishes(), QStringList());
    EXPECT_EQ(grid().caption(), "Scegli i tuoi menu Preferiti - (selezionati = 0)");
}

TEST_F(PreferitiFormTest, AnApostropheInAFilterIsToldAndTheNextFilterWorks)
{
    combo("Combo1").setText("l'altro");
    click("Command1");
    EXPECT_EQ(failures.size(), 1);
    EXPECT_EQ(dishes(), QStringList());
    combo("Combo1").setText("Menu");
    click("Command1");
    EXPECT_EQ(dishes().size(), 10);
    EXPECT_EQ(failures.size(), 1);
    EXPECT_EQ(countOf(dati, "Sostituisci"), 20);
}

TEST_F(PreferitiFormTest, ATickReachesTheTableAtOnceAndTheButtonCountsIt)
{
    clickCell(0, 0);
    clickCell(5, 0);
    EXPECT_EQ(favourites(), QStringList({"Caffelatte", "Mela", "Manzo"}));
    EXPECT_EQ(grid().caption(), "Scegli i tuoi menu Preferiti - (selezionati = 1)"); // counted when asked
    click("Command2");
    EXPECT_EQ(grid().caption(), "Scegli i tuoi menu Preferiti - (selezionati = 3)");
    EXPECT_EQ(world.dialoghi.boxes(), QStringList("MsgBox 64 \"OK\" Preferiti = 3"));
    clickCell(0, 0);
    EXPECT_EQ(favourites(), QStringList({"Mela", "Manzo"}));
}

TEST_F(PreferitiFormTest, ADishThatSomebodyElseTickedIsToldOnceAndShownWithItsTick)
{
    form().show();
    ASSERT_EQ(column(1).at(2), "Fagiolini");
    dati.Execute("UPDATE Sostituisci SET Preferito = True WHERE Piatto = 'Fagiolini'");
    clickCell(2, 0);
    QApplication::processEvents();
    EXPECT_EQ(failures.size(), 1);
    EXPECT_EQ(currentDish(), "Fagiolini");
    clickCell(2, 0); // now off again
    QApplication::processEvents();
    EXPECT_EQ(failures.size(), 1);
    EXPECT_FALSE(favourites().contains("Fagiolini"));
}

TEST_F(PreferitiFormTest, TypeAndCategoryAreEditedFromTheirListsAndTheNameIsNot)
{
    form().show();
    const auto flags = [this](int column) { return grid().model()->index(0, column).flags(); };
    EXPECT_FALSE(flags(1) & Qt::ItemIsEditable);
    grid().setCurrentIndex(grid().model()->index(0, 2));
    QTest::keyClick(&grid(), Qt::Key_F2);
    auto *list = grid().viewport()->findChild<QComboBox *>();
    ASSERT_TRUE(list);
    EXPECT_EQ(list->count(), 2);
    EXPECT_EQ(list->itemText(0) + list->itemText(1), "ColazioneMenu");
    list->setCurrentIndex(1);
    emit list->activated(1);
    EXPECT_EQ(valueOf(dati, "Select tipo from Sostituisci where Piatto = 'Caffelatte'"), "Menu");

    grid().setCurrentIndex(grid().model()->index(1, 3));
    QTest::keyClick(&grid(), Qt::Key_F2);
    list = grid().viewport()->findChildren<QComboBox *>().last();
    QStringList texts;
    for (int i = 0; i < list->count(); ++i)
        texts << list->itemText(i);
    EXPECT_EQ(texts, QStringList({"Bevanda", "Bistecca Vegetale", "Carne", "Cereali", "Contorno", "Formaggio", "Frutta",
                                  "Panino - Pizza", "Pasta - Minestra", "Pesce", "Piatto unico"}));
    QTest::keyClick(&form(), Qt::Key_Escape); // the edit is given up, not the form
    EXPECT_TRUE(isLoaded());
    EXPECT_EQ(valueOf(dati, "Select Categoria from Sostituisci where Piatto = 'Cuscus'"), "Piatto unico");
}

TEST_F(PreferitiFormTest, TheEntryTogglesByItsOwnCaptionAndChecksTheTypes)
{
    addDish("Colazione 2", "Colazione", "Cereali", true);
    toggle();
    EXPECT_EQ(control<QAction>("mnupreferiti").text(), "Visualizza tutta la tabella");
    EXPECT_EQ(dishes(), QStringList({"Colazione 2", "Manzo"}));
    const QString verdict = "MsgBox 64 \"Verifica KO\" I tipi di Menu sono COLAZIONE - MENU - SPUNTINO \n\n Ci sono "
                            "solo \n\n Colazione\n Menu\n\n Verifica ne mancano 1  !!!";
    EXPECT_EQ(world.dialoghi.takeBoxes(), QStringList(verdict));
    toggle();
    EXPECT_EQ(control<QAction>("mnupreferiti").text(), "Visualizza tutti i preferiti");
    EXPECT_EQ(dishes().size(), 21);
    EXPECT_EQ(world.dialoghi.takeBoxes(), QStringList(verdict));
}

TEST_F(PreferitiFormTest, ACountAfterATogglesGoesByTheLastFilter)
{
    addDish("Colazione 2", "Colazione", "Cereali", true);
    pick("Combo1", "Menu");
    toggle();
    world.dialoghi.takeBoxes();
    click("Command2");
    EXPECT_EQ(world.dialoghi.boxes(), QStringList("MsgBox 64 \"OK\" Preferiti = 1"));
    EXPECT_EQ(dishes(), QStringList({"Colazione 2", "Manzo"}));
}

TEST_F(PreferitiFormTest, WithoutFavouritesTheToggleShowsAnEmptyGridAndTheCriticalMessage)
{
    dati.Execute("UPDATE Sostituisci SET Preferito = False");
    toggle();
    EXPECT_EQ(dishes(), QStringList());
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList("MsgBox 16 \"Verifica KO!!\" Non sono stati selezionati nessun preferito nelle categorie "
                          "Colazione, Menu, Spuntino \n- Seleziona dal menu generale ' Modifica menu Preferiti '"));
}

TEST_F(PreferitiFormTest, TicksWorkInTheViewsOfTheMenuToo)
{
    toggle();
    clickCell(0, 0);
    EXPECT_EQ(favourites(), QStringList());
    EXPECT_EQ(dishes(), QStringList("Manzo")); // it stays in sight until the list is asked for again
}

TEST_F(PreferitiFormTest, EscapeAndTheEntryEsciCloseTheForm)
{
    form().show();
    grid().setFocus();
    QTest::keyClick(&grid(), Qt::Key_Escape);
    EXPECT_FALSE(isLoaded());
    form().show();
    menu("MnuEsci");
    EXPECT_FALSE(isLoaded());
}

TEST_F(PreferitiFormTest, EnterInAListAsksForTheDishes)
{
    form().show();
    QApplication::setActiveWindow(&form());
    combo("Combo1").setFocus();
    QTest::keyClicks(&combo("Combo1"), "spuntino");
    QTest::keyClick(&combo("Combo1"), Qt::Key_Return);
    EXPECT_EQ(dishes(), QStringList({"Mela", "Pera"}));
}

TEST_F(PreferitiFormTest, EnterInTheGridReadsNothingAnew)
{
    clickCell(3, 1);
    QApplication::setActiveWindow(&form());
    combo("Combo1").setEditText("Colazione"); // a filter that nobody has asked for yet
    grid().setFocus();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
        QTest::keyClick(&grid(), key);
    EXPECT_EQ(dishes(), kAllDishes);
    EXPECT_EQ(grid().currentIndex().row(), 3);
    control<QPushButton>("Command2").setFocus();
    combo("Combo1").setFocus();
    QTest::keyClick(&combo("Combo1"), Qt::Key_Return);
    EXPECT_NE(dishes(), kAllDishes);
}

} // namespace
