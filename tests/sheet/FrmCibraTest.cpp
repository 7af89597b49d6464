#include "sheet/FrmCibraWorld.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QRadioButton>
#include <QToolButton>

namespace {

constexpr const char *kTail = "          (FrmCibra.frm)";

class FrmCibraTest : public FrmCibraWorld
{
};

TEST_F(FrmCibraTest, ItOpensOnTodayWithItsRowsTotalsCaptionsAndTargets)
{
    show();
    EXPECT_EQ(days().text(), "02/03/2025");
    EXPECT_EQ(foods(), QStringList({"Latte", "Pasta"}));
    EXPECT_EQ(totals(), QStringList({"450", "570"}));
    EXPECT_EQ(form().windowTitle(),
              QString("Cibra (Ingredienti che compongono il piatto) Della cibra giornaliera") + kTail);
    EXPECT_EQ(caption("Label1"), "Totale Kcal Ondira");
    EXPECT_EQ(caption("Label2"), "Totale Kcal Tesmo");
    EXPECT_EQ(control<QPushButton>("Command6").text(), "Sincronizza  a 1100");
    EXPECT_EQ(control<QPushButton>("Command5").text(), "Sincronizza  a 1500");
    EXPECT_TRUE(failures.isEmpty());
}

TEST_F(FrmCibraTest, TheGridHasItsElevenColumnsNamedForBothPersons)
{
    show();
    QStringList captions;
    for (int column = 0; column < grid().model()->columnCount(); ++column)
        captions.append(grid().model()->headerData(column, Qt::Horizontal).toString());
    EXPECT_EQ(captions,
              QStringList({"Data", "Pranzo Cena Spuntino", "Piatto", "Alimento", "KCal per 100 g.", "Quantita Ondira",
                           "Kcal Ondira", "Totale Ondira", "Quantita Tesmo", "Kcal Tesmo", "Totale Tesmo"}));
}

TEST_F(FrmCibraTest, TheListHoldsEachDayOnceInDateOrderWithoutTextsThatAreNoDate)
{
    insertSheet(dati, {"'2/3/2025', 'Cena', 'Riso', 'Riso', 1, 1, 1, 1, 1", "'', 'Cena', 'Riso', 'Riso', 1, 1, 1, 1, 1",
                       "'31/02/2025', 'Cena', 'Riso', 'Riso', 1, 1, 1, 1, 1"});
    show();
    QStringList items;
    for (int i = 0; i < days().count(); ++i)
        items.append(days().itemText(i));
    EXPECT_EQ(items, QStringList({"11/01/2025", "02/03/2025"}));
}

TEST_F(FrmCibraTest, TheLoadTellsItsStagesAndItsEndOnTheBackground)
{
    form();
    EXPECT_EQ(world.schermate.pannelli.value(4),
              "OK!Cibra (Ingredienti che compongono il piatto) Della cibra giornaliera !");
    EXPECT_EQ(world.schermate.pannelli.value(5),
              "Procedura Cibra (Ingredienti che compongono il piatto) Della cibra giornaliera in esecuzione");
    EXPECT_EQ(world.schermo.pointers.back(), MousePointer::Default);
}

TEST_F(FrmCibraTest, AFailingLoadIsShownAndLoggedAndTheFormStaysOpen)
{
    dati.Close();
    show();
    ASSERT_FALSE(world.dialoghi.boxes().isEmpty());
    EXPECT_TRUE(world.dialoghi.boxes().first().startsWith("Msg1 \"Errore Generico\""));
    EXPECT_TRUE(world.cartella.read("\\Errori\\ErrFrmCibra.txt").contains("FrmCibra * Form_Load "));
    EXPECT_TRUE(form().isVisible());
}

TEST_F(FrmCibraTest, PickingADayShowsItAndBalancesNothingByItself)
{
    show();
    pick("11/01/2025");
    EXPECT_EQ(foods(), QStringList("Riso"));
    EXPECT_EQ(totals(), QStringList({"1200", "1700"}));
}

TEST_F(FrmCibraTest, ADayThatIsNotInTheListIsEmptyWithZeroTotalsAndNothingIsMade)
{
    show();
    days().setText("03/03/2025");
    EXPECT_EQ(foods(), QStringList());
    EXPECT_EQ(totals(), QStringList({"0", "0"}));
    EXPECT_EQ(countOf(dati, "SchedaPranzo"), 3);
    EXPECT_TRUE(failures.isEmpty());
}

TEST_F(FrmCibraTest, ADayIsLookedUpAsTextNotAsDate)
{
    show();
    days().setText("2/3/2025");
    EXPECT_EQ(foods(), QStringList());
}

TEST_F(FrmCibraTest, UntilTheFirstResizeIsThroughTheDayChoiceDoesNothing)
{
    form();
    days().setText("11/01/2025");
    EXPECT_EQ(foods(), QStringList({"Latte", "Pasta"}));
    show();
    EXPECT_EQ(foods(), QStringList("Riso"));
}

TEST_F(FrmCibraTest, Command6BalancesTheFirstPersonOnTheDayOnShow)
{
    show();
    pick("11/01/2025");
    click("Command6");
    EXPECT_EQ(totals(), QStringList({"1100", "1700"}));
    EXPECT_EQ(world.schermo.pointers.back(), MousePointer::Default);
}

TEST_F(FrmCibraTest, Command5BalancesTheSecondPersonAndStandsOnTheFirstRow)
{
    insertSheet(dati, {"'11/01/2025', 'Cena', 'Sale', 'Sale', 0, 5, 0, 5, 0"});
    show();
    pick("11/01/2025");
    click("Command5");
    EXPECT_EQ(totals(), QStringList({"1200", "1550"}));
    EXPECT_EQ(currentRow(), 0);
}

TEST_F(FrmCibraTest, BalancingADayWithoutRowsSaysNothing)
{
    show();
    days().setText("03/03/2025");
    click("Command5");
    click("Command6");
    EXPECT_TRUE(failures.isEmpty());
    EXPECT_EQ(world.schermate.barTouches, 0);
}

TEST_F(FrmCibraTest, ATargetThatIsNoNumberIsReportedAndTheFormLivesOn)
{
    world.modulo.KcalPrimaPersona = "mille";
    show();
    pick("11/01/2025");
    click("Command6");
    EXPECT_EQ(failures, QStringList("Tipo non corrispondente: \"mille\" non è un numero"));
    EXPECT_EQ(world.schermo.pointers.back(), MousePointer::Default);
    EXPECT_EQ(totals(), QStringList({"1200", "1700"}));
}

TEST_F(FrmCibraTest, WithCheck1APickedDayIsBalancedForTheFirstAndThenTheSecondPerson)
{
    show();
    control<QCheckBox>("Check1").setChecked(true);
    EXPECT_TRUE(world.cartella.has("\\Aggiusta.log"));
    pick("11/01/2025");
    EXPECT_EQ(totals(), QStringList({"1100", "1550"}));
}

TEST_F(FrmCibraTest, WithCheck1ATypedDayIsOnlyShown)
{
    show();
    control<QCheckBox>("Check1").setChecked(true);
    days().setText("11/01/2025");
    EXPECT_EQ(totals(), QStringList({"1200", "1700"}));
}

TEST_F(FrmCibraTest, TheMarkerSetsCheck1AndTakingTheTickOffDeletesIt)
{
    world.cartella.write("\\Aggiusta.log", "");
    show();
    EXPECT_TRUE(control<QCheckBox>("Check1").isChecked());
    click("Check1");
    EXPECT_FALSE(world.cartella.has("\\Aggiusta.log"));
}

TEST_F(FrmCibraTest, TheFormatDecidesWhichOfTheTwoPrintButtonsShows)
{
    show();
    EXPECT_TRUE(control<QRadioButton>("Option1_0").isChecked());
    EXPECT_TRUE(visible("Command2"));
    EXPECT_FALSE(visible("Command14"));
    const QPoint place = control<QWidget>("Command2").pos();
    click("Option1_1");
    QApplication::processEvents();
    EXPECT_FALSE(visible("Command2"));
    EXPECT_TRUE(visible("Command14"));
    EXPECT_EQ(control<QWidget>("Command14").pos(), place);
    click("Option1_0");
    EXPECT_TRUE(visible("Command2"));
    EXPECT_FALSE(visible("Command14"));
}

TEST_F(FrmCibraTest, ThePrintButtonsPrintTheDayOnShow)
{
    world.cartella.makeFolder("\\documenti");
    show();
    click("Command2");
    click("Command14");
    EXPECT_EQ(world.programmi.started, QStringList({"Page " + world.cartella.path("\\documenti\\02032025.html"),
                                                    "TextViewer " + world.cartella.path("\\documenti\\02032025.txt")}));
}

TEST_F(FrmCibraTest, APrintWithoutItsFolderIsReported)
{
    show();
    click("Command2");
    EXPECT_EQ(failures.size(), 1);
    EXPECT_TRUE(world.programmi.started.isEmpty());
}

TEST_F(FrmCibraTest, TheHintFollowsTheMouseAndFrameGridAndFormHideIt)
{
    show();
    const QString portions = "RICALCOLA LE QUANTITA DI OGNI ELEMENTO RIPORTANDO IL TOTALE CALORIE A ";
    const std::pair<const char *, QString> hints[] = {
        {"Command5", portions + "1500"},
        {"Command6", portions + "1100"},
        {"Command1", "Seleziona la Data, il tipo ( pranzo/colazione/spuntino, seleziona ) e il Piatto e premi "
                     "''INSERISCI PIATTO''"},
        {"Check1", "Se il check è selezionato, ogni volta che ricerchi un menu giornaliero, provvede in automatico a "
                   "sincronizzare i vari elementi di ogni menu al valore dei KCal giornalieri di default"}};
    for (QWidget *elsewhere : {&control<QWidget>("Frame1"), form().centralWidget(), grid().viewport()}) {
        for (const auto &[name, hint] : hints) {
            QTest::mouseMove(&control<QWidget>(name));
            EXPECT_TRUE(visible("Label5")) << name;
            EXPECT_EQ(caption("Label5"), hint);
        }
        QTest::mouseMove(elsewhere, QPoint(3, 3));
        EXPECT_FALSE(visible("Label5")) << elsewhere->objectName().toStdString();
    }
}

TEST_F(FrmCibraTest, ToolTipsStandLetterByLetter)
{
    EXPECT_EQ(control<QWidget>("Option1_0").toolTip(), "Formato Stampa in HTML");
    EXPECT_EQ(control<QWidget>("Option1_1").toolTip(), "Formato Stampa in TXT");
    EXPECT_EQ(control<QWidget>("Command2").toolTip(), "stampa Cibra giornaliera");
    EXPECT_EQ(control<QWidget>("Command14").toolTip(), "stampa Cibra giornaliera");
    EXPECT_EQ(days().toolTip(), "Tabella SCHEDAPRANZO");
}

TEST_F(FrmCibraTest, TotaliSumsTheDayAgainAndLeavesTheRowsOnShow)
{
    show();
    dati.Execute("UPDATE SchedaPranzo SET Totale1 = 1 WHERE Alimento = 'Latte'");
    form().Totali();
    EXPECT_EQ(totals(), QStringList({"351", "570"}));
    EXPECT_EQ(grid().model()->index(0, 7).data().toString(), "100");
}

TEST_F(FrmCibraTest, PicturesShowWhereTheyLieBesideTheProgramAndNothingIsMissedWithoutThem)
{
    show();
    EXPECT_FALSE(visible("LogoEmail"));
    world.cartella.makeFolder("\\Picture");
    QImage drawing(300, 100, QImage::Format_RGB32);
    drawing.fill(Qt::red);
    ASSERT_TRUE(drawing.save(world.cartella.path("\\Picture\\Menu.jpg")));
    ASSERT_TRUE(drawing.save(world.cartella.path("\\Picture\\EmailVerticalejpg.jpg")));
    registry.dropAll();
    show();
    EXPECT_TRUE(visible("LogoEmail"));
    EXPECT_EQ(control<QToolButton>("ImgMarvo").iconSize(), QSize(156, 52));
}

TEST_F(FrmCibraTest, TheNotesOfTheFormOpenByTheirButton)
{
    show();
    click("ImgMarvo");
    EXPECT_EQ(world.programmi.started, QStringList("TextViewer " + world.cartella.path("\\testi\\FrmCibra.txt")));
}

TEST_F(FrmCibraTest, TheCalculatorStartsFromTheMenu)
{
    show();
    menu("MnuCalcola");
    EXPECT_EQ(world.programmi.started, QStringList("Calculator calc.exe"));
}

TEST_F(FrmCibraTest, EscClosesTheFormAndForgetsTheDishToReplace)
{
    show();
    world.modulo.PiattoSostituto = "Pasta";
    QTest::keyClick(days().lineEdit(), Qt::Key_Escape);
    QApplication::processEvents();
    EXPECT_FALSE(isLoaded());
    EXPECT_EQ(world.modulo.PiattoSostituto, "");
}

TEST_F(FrmCibraTest, EsciAndChiudiCloseTheForm)
{
    for (const char *entry : {"MnuEsci", "MnuClose"}) {
        show();
        menu(entry);
        EXPECT_FALSE(isLoaded()) << entry;
    }
}

} // namespace
