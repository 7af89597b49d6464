#include "catalogue/forms/FrmMenu.h"

#include "catalogue/CatalogueRows.h"
#include "catalogue/forms/Sostituti.h"
#include "platform/ui/DataCombo.h"
#include "platform/ui/EtichettaNome.h"
#include "support/FormWorld.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QTimer>

namespace {

constexpr const char *kIdle = "  Inserisci altro Alimento  ";

class FrmMenuTest : public testing::Test, protected FormWorld<FrmMenu>
{
protected:
    FrmMenuTest()
    {
        addForm<Sostituti>();
        insertDishes(dati, {"'Insalata', 0, 0, 'Menu', 'Contorno'", "'Pasta', 0, 0, 'Menu', 'Pasta - Minestra'",
                            "'Riso', 0, 0, 'Menu', 'Pasta - Minestra'"});
        insertFoods(dati, {"'Pasta', 'Pasta', 350, 70, 245, 90, 315", "'Pasta', 'Olio', 900, 10, 90, 15, 135",
                           "'Insalata', 'Lattuga', 20, 80, 16, 90, 18", "'Riso', 'Riso', 330, 70, 231, 100, 330"});
        insertPairs(dati, {"'Pasta', 'Riso'", "'Riso', 'Pasta'"});
    }

    QString field(int index) { return text(qPrintable("TxtFields_" + QString::number(index))); }
    void typeField(int index, const QString &value) { type(qPrintable("TxtFields_" + QString::number(index)), value); }
    DataCombo &dishes() { return control<DataCombo>("DataCombo1"); }
    QComboBox &foods() { return control<QComboBox>("Combo2"); }
    QStringList foodsOf(const QString &dish)
    {
        return rowsOf(dati,
                      "Select Alimento, KC100gr, quantita, quantita2, Totale1, Totale2 from Piatti where Piatto = '" +
                          dish + "'");
    }
    void pick(const char *name, const QString &item)
    {
        auto &combo = control<QComboBox>(name);
        combo.setCurrentIndex(combo.findText(item));
        emit combo.activated(combo.currentIndex());
    }
    void startFood(const QString &entry, const QString &first, const QString &second)
    {
        click("Label1");
        pick("Combo2", entry);
        typeField(8, first);
        typeField(9, second);
    }
    void newDish(const QString &title, const QString &model)
    {
        click("Command2");
        pick("ComboTipo", "Menu");
        type("Text1", title);
        control<DataCombo>("DataCombo2").setText(model);
    }
};

TEST_F(FrmMenuTest, ItOpensOnTheFirstDishWithItsFoodsByName)
{
    show();
    EXPECT_EQ(form().windowTitle(), "Visualizzaingredienti  Menu");
    EXPECT_EQ(dishes().text(), "Insalata");
    EXPECT_EQ(text("Label5"), "Tipologia 'Menu' - Categoria 'Contorno'");
    EXPECT_EQ(text("Label1"), kIdle);
    EXPECT_EQ(captions("TDBGrid1"), QStringList({"Alimento", "KCal per 100 g.", "Quant. Ondira", "KCal. Ondira",
                                                 "Tot. Ondira", "Quant. Tesmo", "KCal. Tesmo", "Tot. Tesmo"}));
    dishes().setText("Pasta");
    EXPECT_EQ(rows("TDBGrid1"),
              QStringList({"Olio | 900 | 10 |  | 90 | 15 |  | 135", "Pasta | 350 | 70 |  | 245 | 90 |  | 315"}));
    EXPECT_EQ(field(3), "Olio");
    EXPECT_EQ(field(8) + ' ' + field(9) + ' ' + field(10) + ' ' + field(4), "10 15 90 135");
    EXPECT_FALSE(visible("Frame2"));
    EXPECT_FALSE(visible("Combo2"));
    EXPECT_EQ(control<QLabel>("lblStatus").toolTip(), "Tabella PIATTI");
    EXPECT_EQ(failures, QStringList());
}

TEST_F(FrmMenuTest, ADishThatIsNotInTheTableOfDishesBeepsAndSaysSo)
{
    insertFoods(dati, {"'Ignoto', 'Sale', 0, 1, 0, 1, 0"});
    show();
    dishes().setText("Ignoto");
    EXPECT_EQ(text("Label5"), "Elemento non trovato nella tabella Sostituisci");
    EXPECT_EQ(world.schermo.beeps, 1);
}

TEST_F(FrmMenuTest, AHalfTypedDishShowsNoFoodsAndKeepsTheLineOfTheFormerOne)
{
    show();
    dishes().setText("Pas");
    EXPECT_EQ(rows("TDBGrid1"), QStringList());
    EXPECT_EQ(text("Label5"), "Tipologia 'Menu' - Categoria 'Contorno'");
    EXPECT_EQ(field(3), "");
}

TEST_F(FrmMenuTest, WhereTheFirstDishHasAnApostropheThatIsToldAndTheOthersCanBeChosen)
{
    insertFoods(dati, {"'''Nduja', 'Nduja', 500, 1, 5, 1, 5"});
    show();
    EXPECT_EQ(failures.size(), 1);
    dishes().setText("Pasta");
    EXPECT_EQ(rows("TDBGrid1").size(), 2);
    EXPECT_EQ(failures.size(), 1);
}

TEST_F(FrmMenuTest, AnApostropheTypedWhileAFoodIsPendingLeavesNoRowToSave)
{
    show();
    startFood("Olio /Kcal 900", "10", "20");
    dishes().setText("L'");
    EXPECT_EQ(failures.size(), 1);
    EXPECT_EQ(text("Label1"), kIdle);
}

TEST_F(FrmMenuTest, AFoodThatIsNotOnTheListLeavesTheChosenOneAndTheBarSaysSo)
{
    show();
    startFood("Olio /Kcal 900", "10", "20");
    foods().setEditText("Avocado");
    EXPECT_EQ(text("lblStatus"), "Scegli dall'elenco: l'alimento resta \"Olio\"");
    EXPECT_EQ(field(3), "Olio ");
}

TEST_F(FrmMenuTest, AnEmptiedDishFallsBackToTheFirstOfAllFoodsByName)
{
    show();
    dishes().setText("Pasta");
    dishes().setText("");
    EXPECT_EQ(dishes().text(), "Insalata"); // Lattuga is the first food
    EXPECT_EQ(rows("TDBGrid1").size(), 1);
}

TEST_F(FrmMenuTest, WhereTheFirstDishHasNoNameItStillOpensAndNoWalkDeletesTheOthers)
{
    insertFoods(dati, {"'', 'Aglio', 40, 1, 1, 1, 1"});
    show();
    EXPECT_EQ(dishes().text(), "");
    EXPECT_EQ(rows("TDBGrid1").size(), 5);
    EXPECT_EQ(text("Label5"), "Elemento non trovato nella tabella Sostituisci");
    world.dialoghi.answer(MsgAnswer::Si);
    click("Label7");
    EXPECT_EQ(countOf(dati, "Piatti"), 5);
    EXPECT_EQ(failures, QStringList());
}

TEST_F(FrmMenuTest, AnEmptyArchiveOpensEmpty)
{
    dati.Execute("DELETE * FROM Piatti");
    show();
    EXPECT_EQ(dishes().text(), "");
    EXPECT_EQ(rows("TDBGrid1"), QStringList());
    click("cmdFirst");
    EXPECT_EQ(text("lblStatus"), " RecordSet Vuoto!!");
    click("cmdNext");
    EXPECT_EQ(text("lblStatus"), "RecordSet Vuoto!!");
    click("cmdPrevious");
    click("cmdLast");
    EXPECT_EQ(text("lblStatus"), "RecordSet Vuoto!!");
    EXPECT_EQ(world.schermo.beeps, 0);
    EXPECT_EQ(failures, QStringList());
}

TEST_F(FrmMenuTest, EveryMoveLandsOnTheFirstFoodOfTheDish)
{
    show();
    dishes().setText("Pasta");
    click("cmdNext");
    EXPECT_EQ(text("lblStatus"), "2\\2");
    EXPECT_EQ(field(3), "Olio");
    click("cmdLast");
    EXPECT_EQ(text("lblStatus"), "2\\2");
    EXPECT_EQ(field(3), "Olio");
    click("cmdPrevious");
    EXPECT_EQ(text("lblStatus"), "2\\2");
    EXPECT_EQ(world.schermo.beeps, 1);
    click("cmdFirst");
    EXPECT_EQ(text("lblStatus"), "1\\2");
    EXPECT_EQ(dishes().text(), "Pasta");
}

TEST_F(FrmMenuTest, ADishOfOneFoodStaysWhereItIs)
{
    show();
    click("cmdNext");
    EXPECT_EQ(text("lblStatus"), "1\\1");
    EXPECT_EQ(world.schermo.beeps, 1);
    EXPECT_EQ(field(3), "Lattuga");
}

TEST_F(FrmMenuTest, AMoveFromTheWholeTableShowsTheDishOfTheNewRow)
{
    insertFoods(dati, {"'', 'Aglio', 40, 1, 1, 1, 1"});
    show();
    click("cmdNext"); // from Aglio to Lattuga
    EXPECT_EQ(text("lblStatus"), "2\\5");
    EXPECT_EQ(dishes().text(), "Insalata");
    EXPECT_EQ(rows("TDBGrid1").size(), 1);
}

TEST_F(FrmMenuTest, TheFirstClickBeginsARowWithTodayTheDishTheTargetsAndTheFood)
{
    show();
    dishes().setText("Pasta");
    click("Label1");
    EXPECT_EQ(text("Label1"), "Salva");
    EXPECT_TRUE(visible("Combo2"));
    EXPECT_FALSE(visible("TxtFields_3"));
    EXPECT_TRUE(foods().hasFocus());
    EXPECT_EQ(field(0), "02/03/2025");
    EXPECT_EQ(field(2), "Pasta");
    EXPECT_EQ(field(6), "1100");
    EXPECT_EQ(field(7), "1500");
    EXPECT_EQ(field(3), "Lattuga ");
    EXPECT_EQ(field(5), " 20");
    EXPECT_EQ(rows("TDBGrid1").size(), 3);
    EXPECT_EQ(countOf(dati, "Piatti"), 4);
}

TEST_F(FrmMenuTest, NothingJumpsWhenARowBeginsAndIsSaved)
{
    show();
    QApplication::processEvents();
    const auto places = [this] {
        QApplication::processEvents();
        QList<QPoint> all;
        for (const char *name : {"TDBGrid1", "Campi", "Check1", "Label6", "Label7"})
            all << control<QWidget>(name).pos();
        return all;
    };
    const QList<QPoint> before = places();
    click("Label1");
    EXPECT_EQ(control<QLabel>("Label1").text(), "Salva");
    EXPECT_EQ(places(), before);
}

TEST_F(FrmMenuTest, LongNamesAreCutAndTheWindowFitsTheScreen)
{
    world.modulo.NomePrimaPersona = "Maria Concetta <b>Immacolata</b>";
    world.modulo.NomeSecondaPersona = "Giovanbattista & Alessandro";
    show();
    EXPECT_EQ(control<EtichettaNome>("LbCampo_8").scritta(), "quantità Maria Concetta <b>Immacolata</b>");
    EXPECT_EQ(control<EtichettaNome>("LbCampo_9").scritta(), "quantità Giovanbattista & Alessandro");
    form().resize(1, 1);
    QApplication::processEvents();
    EXPECT_LE(form().width(), 1280);
    EXPECT_LE(form().minimumSizeHint().width(), 1280);
}

TEST_F(FrmMenuTest, AFoodIsChosenFromTheListAndATextWithoutABarChangesNothing)
{
    show();
    EXPECT_EQ(foods().itemText(1), "Olio /Kcal 900");
    click("Label1");
    pick("Combo2", "Riso /Kcal 330");
    EXPECT_EQ(field(3) + '|' + field(5), "Riso | 330");
    foods().setEditText("Avocado");
    EXPECT_EQ(field(3) + '|' + field(5), "Riso | 330");
    foods().setEditText("Avocado /Kcal 160,5");
    EXPECT_EQ(field(3) + '|' + field(5), "Avocado | 160,5");
}

TEST_F(FrmMenuTest, TheSecondClickStoresTheRowAndTheDatabaseComputesItsTotals)
{
    show();
    dishes().setText("Pasta");
    startFood("Lattuga /Kcal 20", "50", "75,5");
    click("Label1");
    EXPECT_EQ(foodsOf("Pasta").last(), "Lattuga  | 20 | 50 | 75,5 | 10 | 15,1");
    EXPECT_EQ(rowsOf(dati, "Select DataInserimento, KcNominale, KcNominale2 from Piatti where Alimento = 'Lattuga '"),
              QStringList("02/03/2025 | 1100 | 1500"));
    EXPECT_EQ(text("Label1"), kIdle);
    EXPECT_FALSE(visible("Combo2"));
    EXPECT_TRUE(visible("TxtFields_3"));
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
    EXPECT_EQ(failures, QStringList());
}

TEST_F(FrmMenuTest, AQuantityOfZeroOrBlanksRefusesWithThePersonsNameAndKeepsTheRow)
{
    show();
    startFood("Riso /Kcal 330", "0", "10");
    click("Label1");
    EXPECT_TRUE(control<QLineEdit>("TxtFields_8").hasFocus());
    typeField(8, "10");
    typeField(9, "   ");
    click("Label1");
    EXPECT_TRUE(control<QLineEdit>("TxtFields_9").hasFocus());
    EXPECT_EQ(
        world.dialoghi.boxes(),
        QStringList({"MsgBox 16 \"Inserisci Quantita\" Quantità per Ondira non puo essere vuota o essere impostato a "
                     "ZERO",
                     "MsgBox 16 \"Inserisci Quantita\" Quantità per Tesmo non puo essere vuota o essere impostato a "
                     "ZERO"}));
    EXPECT_EQ(text("Label1"), "Salva");
    EXPECT_EQ(countOf(dati, "Piatti"), 4);
    typeField(9, "12");
    click("Label1");
    EXPECT_EQ(foodsOf("Insalata").last(), "Riso  | 330 | 10 | 12 | 33 | 39,6");
}

TEST_F(FrmMenuTest, AskedAndRefusedTheRowIsDroppedAndTheFoodBoxReturns)
{
    show();
    control<QCheckBox>("Check1").setChecked(true);
    startFood("Riso /Kcal 330", "10", "12");
    world.dialoghi.answer(MsgAnswer::No);
    click("Label1");
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList("MsgBox 68 \"Salvataggio in corso ...\" Vuoi salvare inserimento di \r\n\r\nRiso   ?"));
    EXPECT_EQ(countOf(dati, "Piatti"), 4);
    EXPECT_FALSE(visible("Combo2"));
    EXPECT_TRUE(visible("TxtFields_3"));
    EXPECT_EQ(field(3), "Lattuga");
    EXPECT_EQ(text("Label1"), kIdle);
    EXPECT_EQ(rowsOf(dati, "Select Alimento from Piatti where Piatto = 'Insalata'"), QStringList("Lattuga"));
}

TEST_F(FrmMenuTest, AskedAndConfirmedTheRowIsStored)
{
    show();
    control<QCheckBox>("Check1").setChecked(true);
    startFood("Riso /Kcal 330", "10", "12");
    world.dialoghi.answer(MsgAnswer::Si);
    click("Label1");
    EXPECT_EQ(countOf(dati, "Piatti"), 5);
}

TEST_F(FrmMenuTest, TheTickIsAFileThatSurvivesTheForm)
{
    show();
    EXPECT_FALSE(control<QCheckBox>("Check1").isChecked());
    control<QCheckBox>("Check1").setChecked(true);
    EXPECT_EQ(world.cartella.read("conferma"), QByteArray("\r\n"));
    key(Qt::Key_Escape);
    EXPECT_FALSE(isLoaded());
    show();
    EXPECT_TRUE(control<QCheckBox>("Check1").isChecked());
    control<QCheckBox>("Check1").setChecked(false);
    EXPECT_FALSE(world.cartella.has("conferma"));
}

TEST_F(FrmMenuTest, ATextThatIsNoNumberIsNamedAndTheRowStaysPending)
{
    show();
    startFood("Riso /Kcal 330", "10 grammi", "12");
    click("Label1");
    ASSERT_EQ(failures.size(), 1);
    EXPECT_TRUE(failures.first().contains("quantita")) << failures.first().toStdString();
    EXPECT_EQ(text("Label1"), "Salva");
    EXPECT_EQ(countOf(dati, "Piatti"), 4);
    typeField(8, "10");
    click("Label1");
    EXPECT_EQ(foodsOf("Insalata").last(), "Riso  | 330 | 10 | 12 | 33 | 39,6");
}

TEST_F(FrmMenuTest, AMoveWhileARowIsPendingStoresItWithoutTotals)
{
    show();
    startFood("Riso /Kcal 330", "10", "12");
    click("cmdFirst");
    EXPECT_EQ(foodsOf("Insalata").last(), "Riso  | 330 | 10 | 12 | - | -");
    EXPECT_EQ(text("Label1"), kIdle);
    EXPECT_EQ(field(3), "Lattuga");
}

TEST_F(FrmMenuTest, AQuantityChangedInItsBoxIsStoredByTheNextMoveAndTheTotalsStay)
{
    show();
    dishes().setText("Pasta");
    typeField(8, "20");
    click("cmdNext");
    EXPECT_EQ(foodsOf("Pasta"), QStringList({"Pasta | 350 | 70 | 90 | 245 | 315", "Olio | 900 | 20 | 15 | 90 | 135"}));
}

TEST_F(FrmMenuTest, AQuantityThatSomebodyElseChangedMeanwhileIsToldAndTheirsIsKept)
{
    show();
    dishes().setText("Pasta");
    typeField(8, "20");
    dati.Execute("UPDATE Piatti SET Piatti.quantita = 99 WHERE Piatti.Alimento = 'Olio'");
    click("cmdNext");
    EXPECT_EQ(failures.size(), 1);
    EXPECT_EQ(foodsOf("Pasta").last(), "Olio | 900 | 99 | 15 | 90 | 135");
    EXPECT_EQ(field(8), "99");
    click("cmdNext");
    EXPECT_EQ(failures.size(), 1) << "told once";
}

TEST_F(FrmMenuTest, AnotherRowOfTheGridStoresThePendingFoodAndNothingWaitsAnyMore)
{
    show();
    dishes().setText("Pasta");
    startFood("Lattuga /Kcal 20", "30", "40");
    control<QTableView>("TDBGrid1").setCurrentIndex(control<QTableView>("TDBGrid1").model()->index(0, 0));
    EXPECT_EQ(foodsOf("Pasta").last(), "Lattuga  | 20 | 30 | 40 | - | -");
    EXPECT_EQ(text("Label1"), kIdle);
    EXPECT_FALSE(visible("Combo2"));
}

TEST_F(FrmMenuTest, ALineShowsForAsLongAsAQuantityIsNotStored)
{
    show();
    dishes().setText("Pasta");
    EXPECT_FALSE(visible("LineaModifica"));
    typeField(8, "20");
    EXPECT_TRUE(visible("LineaModifica"));
    click("cmdNext");
    EXPECT_FALSE(visible("LineaModifica"));
}

TEST_F(FrmMenuTest, DeletingADishDeletesTheOneOnShowWhateverIsTypedOverItsName)
{
    show();
    dishes().setText("Pasta");
    typeField(2, "Riso");
    world.dialoghi.answer(MsgAnswer::Si);
    click("Label7");
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList("MsgBox 324 \"Cancellazione Record\" Vuoi cancellare l'intero piatto 'Pasta' ??"));
    EXPECT_EQ(foodsOf("Pasta"), QStringList());
    EXPECT_EQ(foodsOf("Riso").size(), 1);
    EXPECT_EQ(countOf(dati, "Sostituisci"), 2);
}

TEST_F(FrmMenuTest, AnotherDishShowsItsOwnPosition)
{
    show();
    dishes().setText("Pasta");
    EXPECT_EQ(text("lblStatus"), "1\\2");
    dishes().setText("Ignoto");
    EXPECT_EQ(text("lblStatus"), "RecordSet Vuoto!!");
}

TEST_F(FrmMenuTest, ADishDeletedUnderTheOpenFormIsToldAndTheFormGoesOn)
{
    show();
    dishes().setText("Pasta");
    dati.Execute("DELETE * FROM Piatti WHERE Piatto = 'Pasta'");
    typeField(8, "20");
    click("cmdNext");
    EXPECT_EQ(failures.size(), 1);
    dishes().setText("Riso");
    EXPECT_EQ(field(3), "Riso");
    EXPECT_EQ(countOf(dati, "Piatti"), 2);
}

TEST_F(FrmMenuTest, ANameLongerThanItsColumnCannotBeTyped)
{
    show();
    EXPECT_EQ(control<QLineEdit>("TxtFields_3").maxLength(), 100);
    EXPECT_EQ(control<QLineEdit>("TxtFields_2").maxLength(), 100);
    EXPECT_EQ(control<QLineEdit>("Text1").maxLength(), 100);
}

TEST_F(FrmMenuTest, AFoodIsDeletedAfterAQuestion)
{
    show();
    dishes().setText("Pasta");
    world.dialoghi.answer(MsgAnswer::No);
    click("Label6");
    EXPECT_EQ(countOf(dati, "Piatti"), 4);
    world.dialoghi.answer(MsgAnswer::Si);
    click("Label6");
    EXPECT_EQ(world.dialoghi.takeBoxes().last(),
              "MsgBox 324 \"Cancellazione Record\" Vuoi cancellare l'alimento 'Olio' relativo al piatto 'Pasta' ??");
    EXPECT_EQ(foodsOf("Pasta"), QStringList("Pasta | 350 | 70 | 90 | 245 | 315"));
    EXPECT_EQ(field(3), "Pasta");
    EXPECT_EQ(text("lblStatus"), "1\\1");
}

TEST_F(FrmMenuTest, ADishIsDeletedInAllTablesAndTheFirstOneComesOnShow)
{
    show();
    dishes().setText("Pasta");
    world.dialoghi.answer(MsgAnswer::Si);
    click("Label7");
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList("MsgBox 324 \"Cancellazione Record\" Vuoi cancellare l'intero piatto 'Pasta' ??"));
    EXPECT_EQ(foodsOf("Pasta"), QStringList());
    EXPECT_EQ(pairs(dati), QStringList());
    EXPECT_EQ(rowsOf(dati, "Select Piatto from Sostituisci"), QStringList({"Insalata", "Riso"}));
    EXPECT_EQ(countOf(dati, "Piatti"), 2);
    EXPECT_EQ(dishes().text(), "Insalata");
    EXPECT_EQ(dishes().findText("Pasta"), -1);
    EXPECT_EQ(rows("TDBGrid1").size(), 1);
}

TEST_F(FrmMenuTest, ANewDishIsLinkedToItsModelAndToTheWholeGroup)
{
    show();
    newDish("Zuppa d’orzo", "Pasta");
    world.dialoghi.answer(MsgAnswer::Si);
    click("Command3");
    EXPECT_EQ(pairs(dati).mid(2), QStringList({"Pasta | Zuppa d’orzo", "Zuppa d’orzo | Pasta", "Riso | Zuppa d’orzo",
                                               "Zuppa d’orzo | Riso"}));
    EXPECT_EQ(rowsOf(dati, "Select KCalOndira, KCalTesmo, tipo from Sostituisci where Piatto = 'Zuppa d’orzo'"),
              QStringList("0 | 0 | Menu"));
    EXPECT_EQ(dishes().text(), "Zuppa d’orzo");
    EXPECT_EQ(rows("TDBGrid1"), QStringList());
    EXPECT_FALSE(visible("Frame2"));
    // and its first food goes in
    startFood("Riso /Kcal 330", "60", "80");
    click("Label1");
    EXPECT_EQ(foodsOf("Zuppa d’orzo"), QStringList("Riso  | 330 | 60 | 80 | 198 | 264"));
    EXPECT_NE(dishes().findText("Zuppa d’orzo"), -1);
}

TEST_F(FrmMenuTest, ANewDishWhoseModelHasNoGroupMakesNoRowsAndSaysNoWord)
{
    show();
    newDish("Zuppa", "Insalata");
    world.dialoghi.answer(MsgAnswer::Si);
    click("Command3");
    EXPECT_EQ(countOf(dati, "GruppoPiattiSostituiti"), 2);
    EXPECT_EQ(world.dialoghi.boxes().size(), 1);
    EXPECT_EQ(countOf(dati, "Sostituisci"), 4);
}

TEST_F(FrmMenuTest, ANewDishRefusedOnlyHidesThePanel)
{
    show();
    newDish("Zuppa", "Pasta");
    EXPECT_TRUE(visible("Frame2"));
    world.dialoghi.answer(MsgAnswer::No);
    click("Command3");
    EXPECT_FALSE(visible("Frame2"));
    EXPECT_EQ(countOf(dati, "Sostituisci"), 3);
}

TEST_F(FrmMenuTest, AnnullaHidesThePanelAndEmptiesItsTwoLists)
{
    show();
    newDish("Zuppa", "Pasta");
    click("Command4");
    EXPECT_FALSE(visible("Frame2"));
    EXPECT_EQ(control<QComboBox>("ComboTipo").currentText() + control<QComboBox>("ComboCategoria").currentText(), "");
}

TEST_F(FrmMenuTest, AnApostropheInTheNewNameIsToldAndNothingIsLost)
{
    show();
    newDish("L'uovo", "Pasta");
    world.dialoghi.answer(MsgAnswer::Si);
    click("Command3");
    EXPECT_EQ(failures.size(), 1);
    EXPECT_TRUE(visible("Frame2"));
    EXPECT_EQ(text("Text1"), "L'uovo");
    EXPECT_EQ(countOf(dati, "Sostituisci"), 3);
    EXPECT_EQ(countOf(dati, "GruppoPiattiSostituiti"), 2);
    dishes().setText("L'uovo");
    EXPECT_EQ(failures.size(), 2);
    dishes().setText("Riso");
    EXPECT_EQ(field(3), "Riso");
    EXPECT_EQ(countOf(dati, "Piatti"), 4);
}

TEST_F(FrmMenuTest, AFoodWithAnApostropheIsStoredForItTravelsInNoStatement)
{
    show();
    startFood("Riso /Kcal 330", "10", "12");
    foods().setEditText("Olio d'oliva /Kcal 899");
    click("Label1");
    EXPECT_EQ(foodsOf("Insalata").last(), "Olio d'oliva  | 899 | 10 | 12 | 89,9 | 107,88");
    EXPECT_EQ(failures, QStringList());
}

TEST_F(FrmMenuTest, LeavingTheTitleByKeyboardGoesOnToTheInsertion)
{
    show();
    click("Command2");
    control<QLineEdit>("Text1").setFocus();
    key(Qt::Key_Tab);
    EXPECT_TRUE(control<QAbstractButton>("Command3").hasFocus());
}

TEST_F(FrmMenuTest, TheAlternativesOpenOnTheDishOnShow)
{
    show();
    dishes().setText("Pasta");
    QString shown;
    QTimer::singleShot(0, &form(), [&] {
        auto &window = registry.get<Sostituti>();
        shown = window.findChild<QLineEdit *>("Text1")->text() + '|' + window.findChild<QLineEdit *>("Text2")->text();
        window.findChild<QAbstractButton *>("Command2")->click();
    });
    click("Command1");
    EXPECT_EQ(shown, "Pasta|Riso");
}

TEST_F(FrmMenuTest, WithoutAHouseholdTheTargetsAreRefusedByNameAndTheRowStays)
{
    world.modulo.KcalPrimaPersona = "tanto";
    show();
    startFood("Riso /Kcal 330", "10", "12");
    click("Label1");
    ASSERT_EQ(failures.size(), 1);
    EXPECT_TRUE(failures.first().contains("Kcnominale", Qt::CaseInsensitive)) << failures.first().toStdString();
    EXPECT_EQ(text("Label1"), "Salva");
}

} // namespace
