#include "catalogue/forms/Sostituti.h"

#include "catalogue/CatalogueRows.h"
#include "platform/ui/DataCombo.h"
#include "platform/ui/EtichettaComando.h"
#include "support/FormWorld.h"

#include <gtest/gtest.h>

namespace {

class SostitutiTest : public testing::Test, protected FormWorld<Sostituti>
{
protected:
    SostitutiTest()
    {
        insertDishes(dati, {"'Pasta', 300, 400, 'Menu', 'Pasta - Minestra'",
                            "'Riso', 310, 420, 'Menu', 'Pasta - Minestra'", "'Orzo', 290, 380, 'Menu', 'Cereali'",
                            "'Acqua', 0, 0, 'Menu', 'Bevanda'", "'Zuppa', 200, 300, 'Menu', 'Piatto Unico'"});
        insertFoods(dati, {"'Pasta', 'Pasta', 350, 70, 245, 90, 315", "'Pasta', 'Olio', 900, 10, 90, 15, 135",
                           "'Riso', 'Riso', 330, 70, 231, 100, 330", "'Zuppa', 'Ceci', 320, 50, 160, 80, 256"});
        insertPairs(dati, {"'Pasta', 'Riso'", "'Riso', 'Pasta'", "'Pasta', 'Zuppa'", "'Zuppa', 'Pasta'",
                           "'Pasta', 'Orzo'", "'Orzo', 'Pasta'"});
    }

    void openForDay(const QString &dish)
    {
        world.modulo.PiattoSostituto = dish;
        form().preparaPerGiorno(dish, "Pranzo");
        show();
    }
    void openForDish(const QString &dish)
    {
        form().preparaPerPiatto(dish);
        show();
    }
    DataCombo &dishes() { return control<DataCombo>("DataCombo1"); }
    void clickRow(const char *name, int row)
    {
        auto &grid = control<QTableView>(name);
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.model()->index(row, 0)).center());
    }
};

TEST_F(SostitutiTest, ItListsTheAlternativesWithStoredCaloriesAndTheTotalsOfTheFoods)
{
    openForDay("Pasta");
    EXPECT_EQ(captions("TDBGrid1"),
              QStringList({"Sostituisci con piatto ", "KCal Ondira", "KCal Tesmo", "Categoria", "Tipo"}));
    EXPECT_EQ(rows("TDBGrid1"),
              QStringList({"Orzo | 290 | 380 | Cereali | Menu", "Riso | 310 | 420 | Pasta - Minestra | Menu",
                           "Zuppa | 200 | 300 | Piatto unico | Menu"}));
    EXPECT_EQ(text("Label5"), "335");
    EXPECT_EQ(text("Label7"), "450");
    EXPECT_EQ(text("Label3"), "Piatto o pietanza che sostituirà Pasta");
    EXPECT_EQ(text("Text1"), "Pasta");
    EXPECT_EQ(text("Text2"), "Orzo");
    EXPECT_EQ(text("lblStatus"), "F1 Help     *    Record: 1\\3");
    EXPECT_EQ(control<QLabel>("lblStatus").toolTip(), "Tabella SOSTITUISCI, GRUPPOPIATTISOSTITUITI, PIATTI");
}

TEST_F(SostitutiTest, FromTheSheetTheDishIsFixedAndTheCaptionNamesTheMeal)
{
    openForDay("Pasta");
    EXPECT_EQ(form().windowTitle(), "Sostituisci Menu Pasta di cui Pranzo");
    EXPECT_EQ(text("Label6"), "Sostituisci Menu Pasta di cui ");
    EXPECT_TRUE(visible("Label6"));
    EXPECT_FALSE(visible("DataCombo1"));
}

TEST_F(SostitutiTest, FromTheDishEditorAfterwardsAnyDishCanBeChosen)
{
    openForDay("Pasta");
    click("Command2");
    openForDish("Riso");
    EXPECT_EQ(form().windowTitle(), "Sostituisci Menu");
    EXPECT_FALSE(visible("Label6"));
    EXPECT_TRUE(visible("DataCombo1"));
    EXPECT_EQ(dishes().text(), "Riso");
    EXPECT_EQ(dishes().itemText(0), "Acqua");
    EXPECT_EQ(dishes().count(), 5);
    EXPECT_EQ(rows("TDBGrid1"), QStringList("Pasta | 300 | 400 | Pasta - Minestra | Menu"));
}

TEST_F(SostitutiTest, WhereTheFirstDishHasAnApostropheThatIsToldAndTheOthersCanBeChosen)
{
    insertDishes(dati, {"'''Nduja', 0, 0, 'Menu', 'Carne'"});
    show();
    EXPECT_EQ(failures.size(), 1);
    dishes().setText("Pasta");
    emit dishes().picked();
    EXPECT_EQ(text("Text1"), "Pasta");
    EXPECT_EQ(failures.size(), 1);
}

TEST_F(SostitutiTest, LoadedWithoutADishItStartsFromTheFirst)
{
    show();
    EXPECT_EQ(dishes().text(), "Acqua");
    EXPECT_EQ(text("Text1"), "Acqua");
}

TEST_F(SostitutiTest, LoadedWithADishItStartsFromThat)
{
    world.modulo.PiattoSostituto = "Riso";
    show();
    EXPECT_EQ(dishes().text(), "Riso");
    EXPECT_EQ(text("Text2"), "Pasta");
}

TEST_F(SostitutiTest, ADishWithoutAGroupShowsAnEmptyGridAndItsTotals)
{
    insertFoods(dati, {"'Acqua', 'Acqua', 0, 200, 0, 250, 0"});
    openForDay("Acqua");
    EXPECT_EQ(rows("TDBGrid1"), QStringList());
    EXPECT_EQ(text("lblStatus"), "F1 Help     *    RecordSet Vuoto!!");
    EXPECT_EQ(text("Label5"), "0");
    EXPECT_EQ(text("Label7"), "0");
    EXPECT_EQ(text("Text2"), "");
    click("cmdNext");
    click("cmdPrevious");
    click("cmdLast");
    EXPECT_EQ(world.schermo.beeps, 0);
}

TEST_F(SostitutiTest, ADishWithoutFoodsEmptiesTheTotalsOfTheFormerOne)
{
    openForDish("Pasta");
    dishes().setText("Orzo");
    EXPECT_EQ(text("Label5"), "");
    EXPECT_EQ(text("Label7"), "");
    EXPECT_EQ(text("Label3"), "Piatto o pietanza che sostituirà Orzo");
    EXPECT_EQ(text("Text2"), "Pasta");
}

TEST_F(SostitutiTest, EveryMoveCopiesTheAlternativeAndShowsItsFoods)
{
    openForDay("Pasta");
    click("cmdNext");
    EXPECT_EQ(text("Text2"), "Riso");
    EXPECT_EQ(text("Text3"), "Riso");
    EXPECT_EQ(rows("TDBGrid2"), QStringList("Riso | 330 | 231 | 330"));
    click("cmdLast");
    EXPECT_EQ(rows("TDBGrid2"), QStringList("Ceci | 320 | 160 | 256"));
    EXPECT_EQ(text("lblStatus"), "F1 Help     *    Record: 3\\3");
    click("cmdNext");
    EXPECT_EQ(text("Text2"), "Orzo");
    EXPECT_EQ(text("lblStatus"), "F1 Help     *    Record: 1\\3");
    click("cmdPrevious");
    EXPECT_EQ(text("Text2"), "Zuppa");
    EXPECT_EQ(world.schermo.beeps, 2);
    click("cmdFirst");
    EXPECT_EQ(text("Text2"), "Orzo");
}

TEST_F(SostitutiTest, AClickOnARowMovesThereAndTogglesTheIngredients)
{
    openForDay("Pasta");
    EXPECT_FALSE(visible("Frame2"));
    clickRow("TDBGrid1", 1);
    EXPECT_EQ(text("Text2"), "Riso");
    EXPECT_EQ(text("lblStatus"), "F1 Help     *    Record: 2\\3");
    EXPECT_TRUE(visible("Frame2"));
    clickRow("TDBGrid2", 0);
    EXPECT_FALSE(visible("Frame2"));
}

TEST_F(SostitutiTest, TheLabelAndAKeyInAGridToggleTheIngredientsButAnArrowDoesNot)
{
    openForDay("Pasta");
    click("Label1");
    EXPECT_TRUE(visible("Frame2"));
    auto &grid = control<QTableView>("TDBGrid1");
    grid.setFocus();
    QTest::keyClick(&grid, Qt::Key_X);
    EXPECT_FALSE(visible("Frame2"));
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_FALSE(visible("Frame2"));
    EXPECT_EQ(text("Text2"), "Riso");
    QTest::keyClick(&grid, Qt::Key_Return);
    EXPECT_TRUE(visible("Frame2"));
}

TEST_F(SostitutiTest, TheChoiceConfirmedIsHandedOverAndTheWindowOnlyHides)
{
    openForDay("Pasta");
    click("cmdNext");
    world.dialoghi.answer(MsgAnswer::Si);
    click("Command1");
    EXPECT_EQ(world.dialoghi.boxes(), QStringList("MsgBox 68 \"OK\" Sostituisce Pasta con Riso"));
    EXPECT_EQ(world.modulo.PiattoSostituto, "Riso");
    EXPECT_TRUE(isLoaded());
    EXPECT_FALSE(form().isVisible());
}

TEST_F(SostitutiTest, TheChoiceRefusedIsNoChoice)
{
    openForDay("Pasta");
    world.dialoghi.answer(MsgAnswer::No);
    click("Command1");
    EXPECT_EQ(world.modulo.PiattoSostituto, "");
    EXPECT_TRUE(isLoaded());
    EXPECT_FALSE(form().isVisible());
}

TEST_F(SostitutiTest, NothingChosenIsAskedWithNothingBehindConAndStaysNothing)
{
    openForDay("Acqua");
    world.dialoghi.answer(MsgAnswer::Si);
    click("Command1");
    EXPECT_EQ(world.dialoghi.boxes(), QStringList("MsgBox 68 \"OK\" Sostituisce Acqua con "));
    EXPECT_EQ(world.modulo.PiattoSostituto, "");
}

TEST_F(SostitutiTest, AnnullaEmptiesTheChoiceAndHides)
{
    openForDay("Pasta");
    click("Command2");
    EXPECT_EQ(world.modulo.PiattoSostituto, "");
    EXPECT_TRUE(isLoaded());
    EXPECT_FALSE(form().isVisible());
}

TEST_F(SostitutiTest, EscAndClosingEmptyTheChoiceAndUnload)
{
    openForDay("Pasta");
    key(Qt::Key_Escape);
    EXPECT_EQ(world.modulo.PiattoSostituto, "");
    EXPECT_FALSE(isLoaded());
    openForDay("Pasta");
    form().close();
    EXPECT_EQ(world.modulo.PiattoSostituto, "");
    EXPECT_FALSE(isLoaded());
}

TEST_F(SostitutiTest, HiddenAndShownAgainItHasTheNewDishButTheOldListOfDishes)
{
    openForDish("Pasta");
    click("Command2");
    insertDishes(dati, {"'Nuovo', 1, 1, 'Menu', 'Carne'"});
    openForDish("Riso");
    EXPECT_EQ(text("Text1"), "Riso");
    EXPECT_EQ(dishes().findText("Nuovo"), -1);
    key(Qt::Key_Escape);
    openForDish("Riso");
    EXPECT_NE(dishes().findText("Nuovo"), -1);
}

TEST_F(SostitutiTest, ATypedDishWorksAtEachKeyAndAnApostropheIsToldAndLosesNothing)
{
    openForDish("Pasta");
    emit dishes().picked();
    dishes().setText("Ris");
    EXPECT_EQ(rows("TDBGrid1"), QStringList());
    dishes().setText("riso");
    EXPECT_EQ(rows("TDBGrid1").size(), 1);
    EXPECT_EQ(failures, QStringList());
    dishes().setText("L'orzo");
    EXPECT_EQ(failures.size(), 1);
    dishes().setText("Pasta");
    EXPECT_EQ(rows("TDBGrid1").size(), 3);
    EXPECT_EQ(countOf(dati, "GruppoPiattiSostituiti"), 6);
}

TEST_F(SostitutiTest, ADishWithAnAccentAndATypographicApostropheWorks)
{
    insertDishes(dati, {"'Caffè d’orzo', 5, 6, 'Colazione', 'Bevanda'"});
    insertPairs(dati, {"'Acqua', 'Caffè d’orzo'"});
    insertFoods(dati, {"'Caffè d’orzo', 'Orzo', 50, 10, 5, 12, 6"});
    openForDish("Acqua");
    EXPECT_EQ(text("Text2"), "Caffè d’orzo");
    EXPECT_EQ(rows("TDBGrid2"), QStringList("Orzo | 50 | 5 | 6"));
    EXPECT_EQ(failures, QStringList());
}

} // namespace
