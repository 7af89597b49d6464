#include "planner/forms/GeneraMenu.h"

#include "catalogue/forms/InserimentoKCal.h"
#include "planner/PlannerTest.h"
#include "platform/ui/DataGrid.h"
#include "support/FormWorld.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

namespace {

class GeneraMenuFormTest : public PlannerTest, protected FormHands<GeneraMenu>
{
protected:
    GeneraMenuFormTest() : FormHands(world.modulo) { addForm<InserimentoKCal>(); }

    QLineEdit &box(const char *name) { return control<QLineEdit>(name); }
    QCheckBox &check(int number) { return control<QCheckBox>(qPrintable("Check" + QString::number(number))); }

    // Which of the three panels shows.
    QString panel()
    {
        QString shown;
        for (const char *name : {"Frame1", "Frame2", "Frame3"})
            if (!control<QFrame>(name).isHidden())
                shown += name;
        return shown;
    }
    QList<int> checkedBoxes()
    {
        QList<int> on;
        for (int number = 1; number <= 12; ++number)
            if (check(number).isChecked())
                on.append(number);
        return on;
    }
    QStringList gridDays()
    {
        QStringList days;
        if (const std::shared_ptr<Recordset> rs = control<DataGrid>("TDBGrid1").dataSource())
            for (int row = 0; row < rs->RecordCount(); ++row)
                days.append(rs->valueAt(row, 0).text());
        return days;
    }
    void fillCalculator(const char *sex, const QString &age, const QString &height, const QString &weight)
    {
        form().show();
        click("Command5");
        if (sex)
            click(sex);
        box("Text9").setText(age);
        box("Text10").setText(height);
        box("Text11").setText(weight);
    }
    // Presses the button and answers the question for the person: the name of a button, or null for Esc.
    void calculate(const char *answer)
    {
        question.clear();
        QTimer::singleShot(0, &form(), [this, answer] {
            auto &dialog = registry.get<InserimentoKCal>();
            question = controlOf<QLabel>(dialog, "Label1").text();
            if (answer)
                controlOf<QPushButton>(dialog, answer).click();
            else
                QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        click("Command4");
    }
    bool calculatorShows() { return !control<QGroupBox>("Frame4").isHidden(); }
    QStringList targets() { return {text("Text7"), text("Text8")}; }
    void addDays(const QStringList &days) // month/day/year
    {
        for (const QString &day : days)
            insertRows(dati, "Menu", "DataMenu, Pranzo", {"#" + day + "#, 'Cuscus'"});
    }

    QString question; // of the dialog for the person
};

TEST_F(GeneraMenuFormTest, ItOpensOnTheHouseholdWithTheFourLinesOfItsFile)
{
    world.modulo.NomePrimaPersona.clear();
    EXPECT_EQ(panel(), "Frame3");
    EXPECT_EQ(QStringList({text("Text5"), text("Text6"), text("Text7"), text("Text8")}),
              QStringList({"Ondira", "Tesmo", "1100", "1500"}));
    EXPECT_EQ(world.modulo.NomePrimaPersona, "Ondira");
    EXPECT_EQ(form().windowTitle(), "Generazione nuovi menu");
}

TEST_F(GeneraMenuFormTest, WithoutAHouseholdTheBoxesAreEmptyAndTheGlobalsStay)
{
    world.cartella.remove("\\ini\\Anagrafica.txt");
    EXPECT_EQ(QStringList({text("Text5"), text("Text6"), text("Text7"), text("Text8")}), QStringList({"", "", "", ""}));
    EXPECT_EQ(world.modulo.NomePrimaPersona, "Ondira");
}

TEST_F(GeneraMenuFormTest, AHouseholdFileCutShortEndsTheLoadAndTheFormIsNotThere)
{
    world.cartella.write("\\ini\\Anagrafica.txt", "Ondira\r\nTesmo\r\n1100\r\n");
    EXPECT_THROW(form(), Failure);
    EXPECT_FALSE(isLoaded());
}

TEST_F(GeneraMenuFormTest, ConfirmingSavesTheBoxesAsTheyStandAndLeadsToTheGeneration)
{
    world.cartella.remove("\\ini\\Anagrafica.txt");
    box("Text5").setText("Anna ");
    box("Text6").setText("Bruno");
    box("Text7").setText("1.200");
    box("Text8").setText("non so");
    click("Command3");
    EXPECT_EQ(world.cartella.read("\\ini\\Anagrafica.txt"), "Anna \r\nBruno\r\n1.200\r\nnon so\r\n");
    EXPECT_EQ(QStringList({world.modulo.NomePrimaPersona, world.modulo.NomeSecondaPersona,
                           world.modulo.KcalPrimaPersona, world.modulo.KcalSecondaPersona}),
              QStringList({"Anna ", "Bruno", "1.200", "non so"}));
    EXPECT_EQ(panel(), "Frame1");
}

TEST_F(GeneraMenuFormTest, TheFirstRangeIsAWeekFromTodayWhateverIsPlanned)
{
    EXPECT_EQ(text("Text1"), "02/03/2025");
    EXPECT_EQ(text("Text2"), "09/03/2025");
    form().unload();
    addDays({"12/31/2025"});
    EXPECT_EQ(text("Text1"), "02/03/2025");
    EXPECT_EQ(text("Text2"), "09/03/2025");
    EXPECT_TRUE(control<QRadioButton>("Periodo_0").isChecked());
}

TEST_F(GeneraMenuFormTest, ThePeriodsSetTheLastDay)
{
    box("Text1").setText("31/01/2025");
    click("Periodo_1");
    EXPECT_EQ(text("Text2"), "31/03/2025");
    click("Periodo_2");
    EXPECT_EQ(text("Text2"), "31/01/2026");
    click("Periodo_0");
    EXPECT_EQ(text("Text2"), "07/02/2025");
    box("Text1").setText("01/02/2025");
    click("Periodo_0"); // a second click counts too
    EXPECT_EQ(text("Text2"), "08/02/2025");
    EXPECT_EQ(failures, QStringList());
}

TEST_F(GeneraMenuFormTest, APeriodFromAHalfTypedDayFailsAndTheFormLivesOn)
{
    box("Text1").setText("31/01/");
    click("Periodo_1");
    ASSERT_EQ(failures.size(), 1);
    EXPECT_EQ(failures.first().left(23), "Tipo non corrispondente");
    EXPECT_EQ(text("Text2"), "09/03/2025");
}

TEST_F(GeneraMenuFormTest, TheTwoRangesMirrorEachOtherAndTheDeletionIsNamedForThem)
{
    EXPECT_EQ(control<QPushButton>("Command2").text(), "Cancella Blocco 02/03/2025 al 09/03/2025");
    box("Text1").setText("0");
    EXPECT_EQ(text("Text3"), "0");
    EXPECT_EQ(control<QPushButton>("Command2").text(), "Cancella Blocco 0 al 09/03/2025");
    box("Text4").setText("05/03/2025");
    EXPECT_EQ(text("Text2"), "05/03/2025");
    EXPECT_EQ(text("Text1"), "0");
    box("Text3").setText("03/03/2025");
    EXPECT_EQ(text("Text1"), "03/03/2025");
    EXPECT_EQ(control<QPushButton>("Command2").text(), "Cancella Blocco 03/03/2025 al 05/03/2025");
    EXPECT_EQ(failures, QStringList());
}

TEST_F(GeneraMenuFormTest, ChangingTheGenerationRangeShowsNoOtherPanelChangingTheViewRangeShowsTheGrid)
{
    box("Text2").setText("03/03/2025");
    EXPECT_EQ(panel(), "Frame3");
    box("Text3").setText("01/03/2025");
    EXPECT_EQ(panel(), "Frame2");
}

TEST_F(GeneraMenuFormTest, TypingInTheMiddleOfADayKeepsTheCaret)
{
    menu("mnuVisualizza");
    form().show();
    box("Text3").setFocus();
    box("Text3").setCursorPosition(1);
    QTest::keyClick(&box("Text3"), Qt::Key_Delete);
    QTest::keyClick(&box("Text3"), Qt::Key_5);
    EXPECT_EQ(text("Text3"), "05/03/2025");
    EXPECT_EQ(text("Text1"), "05/03/2025");
    EXPECT_EQ(box("Text3").cursorPosition(), 2);
}

TEST_F(GeneraMenuFormTest, AtMostOneBoxOfAMealIsOnAndTheOtherMealIsLeftAlone)
{
    check(6).click();
    for (const int number : {1, 2, 3, 7, 8, 1}) {
        check(number).click();
        EXPECT_EQ(checkedBoxes(), number < 6 ? QList<int>({number, 6}) : QList<int>({6, number}));
    }
    for (const int number : {4, 5, 9, 11, 6, 4}) {
        check(number).click();
        EXPECT_EQ(checkedBoxes(), QList<int>({1, number}));
    }
    check(10).click();
    check(12).click();
    EXPECT_EQ(checkedBoxes(), QList<int>({1, 4, 10, 12}));
}

TEST_F(GeneraMenuFormTest, ClickingABoxThatIsOnClearsItAndNothingElse)
{
    check(3).click();
    check(4).click();
    check(12).click();
    check(3).click();
    EXPECT_EQ(checkedBoxes(), QList<int>({4, 12}));
}

TEST_F(GeneraMenuFormTest, TheLastChoiceComesBack)
{
    const std::pair<const char *, QList<int>> cases[] = {
        {"8\r\n9\r\n 0 \r\n", {8, 9}}, {"1\r\n4\r\n 1 \r\n", {1, 4, 12}}, {"2\r\n5\r\n 0 \r\n", {2, 5}},
        {"3\r\n6\r\n 0 \r\n", {3, 6}}, {"7\r\n11\r\n 0 \r\n", {7, 11}},   {"0\r\n0\r\n 0 \r\n", {}},
        {"11\r\n8\r\n 2 \r\n", {}},
    };
    for (const auto &[bytes, boxes] : cases) {
        world.cartella.write("\\Check.log", bytes);
        EXPECT_EQ(checkedBoxes(), boxes) << bytes;
        form().unload();
    }
}

TEST_F(GeneraMenuFormTest, WithoutARememberedChoiceAllBoxesAreOff)
{
    EXPECT_EQ(checkedBoxes(), QList<int>());
}

TEST_F(GeneraMenuFormTest, ARememberedChoiceCutShortEndsTheLoad)
{
    world.cartella.write("\\Check.log", "8\r\n9\r\n");
    EXPECT_THROW(form(), Failure);
    EXPECT_FALSE(isLoaded());
}

TEST_F(GeneraMenuFormTest, TheMenuShowsOnePanelAtATime)
{
    menu("mnuCrea");
    EXPECT_EQ(panel(), "Frame1");
    menu("mnuVisualizza");
    EXPECT_EQ(panel(), "Frame2");
    menu("mnuAnagrafica");
    EXPECT_EQ(panel(), "Frame3");
    menu("mnuCrea");
    form().showHousehold();
    EXPECT_EQ(panel(), "Frame3");
}

TEST_F(GeneraMenuFormTest, APanelThatNeedsMoreRoomMakesTheShrunkWindowGrow)
{
    form().show();
    form().resize(1, 1);
    QApplication::processEvents();
    menu("mnuCrea");
    QApplication::processEvents();
    const auto *shown = form().findChild<QWidget *>("Frame1");
    EXPECT_GE(shown->width(), shown->minimumSizeHint().width());
    EXPECT_GE(shown->height(), shown->minimumSizeHint().height());
    EXPECT_LE(form().width(), 1280);
    EXPECT_LE(form().height(), 680);
}

TEST_F(GeneraMenuFormTest, TheCalculatorHasRoomInTheSmallestWindow)
{
    form().show();
    form().resize(1, 1);
    QApplication::processEvents();
    click("Command5");
    QApplication::processEvents();
    const auto *card = form().findChild<QWidget *>("Frame4");
    const auto *panel = form().findChild<QWidget *>("Frame3");
    EXPECT_TRUE(panel->rect().contains(card->geometry()));
}

TEST_F(GeneraMenuFormTest, GeneratingWithoutGoingOnLeavesTheMenusInTheGrid)
{
    fillCatalogue();
    menu("mnuCrea");
    box("Text2").setText("04/03/2025");
    check(3).click();
    world.dialoghi.answer(MsgAnswer::No);
    click("Command1");
    EXPECT_EQ(panel(), "Frame2");
    EXPECT_EQ(gridDays(), QStringList({"02/03/2025", "03/03/2025", "04/03/2025"}));
    EXPECT_EQ(countOf(dati, "SchedaPranzo"), 0);
    EXPECT_EQ(form().windowTitle(), "Generazione nuovi menu");
    EXPECT_EQ(failures, QStringList());
}

TEST_F(GeneraMenuFormTest, GeneratingAndGoingOnFillsTheSheets)
{
    fillCatalogue();
    insertRows(dati, "Piatti", "Piatto, Alimento, KC100gr, quantita, Totale1, quantita2, Totale2",
               {"'Caffelatte', 'Latte', 50, 200, 100, 250, 125", "'Orata', 'Orata fresca', 120, 150, 180, 200, 240"});
    box("Text2").setText("03/03/2025");
    check(3).click();
    world.dialoghi.answer(MsgAnswer::Si);
    world.dialoghi.answer(MsgAnswer::Si);
    click("Command1");
    EXPECT_EQ(rowsOf(dati, "SELECT SchedaPranzo.dataInserimento, SchedaPranzo.Alimento From SchedaPranzo"),
              QStringList({"02/03/2025 | Latte", "02/03/2025 | Orata fresca"}));
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList({"MsgBox 324 \"OK\" Elaborazione effettuata con successo!\nAdesso devo compilare i menu "
                           "giornalieri per renderli visibili,\nVuoi Procedere? ",
                           "MsgBox 68 \"Generazione Menu\" Vuoi generare i menu dalla data 02/03/2025 alla data "
                           "03/03/2025",
                           "MsgBox 64 \"OK\" Elaborazione effettuata con successo !!"}));
    EXPECT_TRUE(control<QFrame>("Picture1").isHidden());
    EXPECT_TRUE(control<QLabel>("Label5").isHidden());
    EXPECT_EQ(form().windowTitle(), "Generazione nuovi menu");
    EXPECT_EQ(panel(), "Frame2");
}

TEST_F(GeneraMenuFormTest, AnEmptyRangeLeadsBackToTheGenerationWithCaptionAndBarAsTheyStand)
{
    menu("mnuVisualizza");
    world.dialoghi.answer(MsgAnswer::Si);
    menu("mnuGenera");
    EXPECT_EQ(world.dialoghi.boxes().last(), "MsgBox 16 \"KO\" Non hai ancora generato i menu da compilare");
    EXPECT_EQ(panel(), "Frame1");
    EXPECT_EQ(form().windowTitle(), "GENERA nella tabella SCHEDAPRANZO i menu creati nella tabella MENU");
    EXPECT_FALSE(control<QFrame>("Picture1").isHidden());
    EXPECT_FALSE(control<QLabel>("Label5").isHidden());
}

TEST_F(GeneraMenuFormTest, ARangeThatRunsBackwardsEndsWithTheSameQuestion)
{
    fillCatalogue();
    box("Text2").setText("01/03/2025"); // the day before the first
    world.dialoghi.answer(MsgAnswer::No);
    click("Command1");
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList("MsgBox 324 \"OK\" Elaborazione effettuata con successo!\nAdesso devo compilare i menu "
                          "giornalieri per renderli visibili,\nVuoi Procedere? "));
    EXPECT_EQ(countOf(dati, "Menu"), 0);
    EXPECT_EQ(panel(), "Frame2");
    EXPECT_EQ(failures, QStringList());
}

TEST_F(GeneraMenuFormTest, TheEntriesOfTheMenuStandInTheirOrder)
{
    QStringList entries;
    for (const QAction *entry : control<QMenu>("mnuElabora").actions())
        entries << (entry->isSeparator() ? QString("-") : entry->objectName());
    EXPECT_EQ(entries, QStringList({"mnuAnagrafica", "-", "mnuCrea", "-", "mnuVisualizza", "mnuGenera", "MnukcCalcolo",
                                    "-", "mnuPreferiti", "mnuEsci"}));
}

TEST_F(GeneraMenuFormTest, AFailingGenerationIsToldOnceAndTheFormLivesOn)
{
    fillCatalogue();
    menu("mnuCrea");
    check(3).click();
    box("Freq_3").setText("spesso");
    click("Command1");
    ASSERT_EQ(failures.size(), 1);
    EXPECT_EQ(failures.first().left(23), "Tipo non corrispondente");
    EXPECT_EQ(panel(), "Frame1");
    box("Freq_3").setText("1");
    world.dialoghi.answer(MsgAnswer::No);
    click("Command1");
    EXPECT_EQ(failures.size(), 1);
    EXPECT_EQ(countOf(dati, "Menu"), 8);
}

TEST_F(GeneraMenuFormTest, AHalfTypedDayLeavesTheGridAsItIs)
{
    addDays({"3/2/2025", "3/4/2025"});
    menu("mnuVisualizza");
    EXPECT_EQ(gridDays(), QStringList({"02/03/2025", "04/03/2025"}));
    for (const char *typed : {"03/03/202", "", "0", "03", "03/", "03/0", "30/02/2025"}) {
        box("Text3").setText(typed);
        EXPECT_EQ(gridDays(), QStringList({"02/03/2025", "04/03/2025"})) << typed;
        EXPECT_EQ(panel(), "Frame2");
    }
    box("Text3").setText("03/03/2025");
    EXPECT_EQ(gridDays(), QStringList("04/03/2025"));
    EXPECT_EQ(failures, QStringList());
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
}

TEST_F(GeneraMenuFormTest, AfterADeletionTheRangeIsThatOfTheTableAndTheWholeTableShows)
{
    addDays({"3/20/2025", "5/1/2025", "3/18/2025", "3/21/2025", "4/13/2025"});
    menu("mnuVisualizza");
    box("Text3").setText("19/03/2025");
    box("Text4").setText("31/03/2025");
    world.dialoghi.answer(MsgAnswer::Si);
    click("Command2");
    EXPECT_EQ(gridDays(), QStringList({"01/05/2025", "18/03/2025", "13/04/2025"}));
    EXPECT_EQ(QStringList({text("Text3"), text("Text4"), text("Text1"), text("Text2")}),
              QStringList({"01/05/2025", "13/04/2025", "01/05/2025", "13/04/2025"}));
    EXPECT_EQ(control<DataGrid>("TDBGrid1").dataSource()->AbsolutePosition(), 1);
    EXPECT_EQ(failures, QStringList());
}

TEST_F(GeneraMenuFormTest, DeletingTheLastRowsFailsWithTheRowsGoneAndTheRangeAsItWas)
{
    addDays({"3/20/2025"});
    menu("mnuVisualizza");
    box("Text3").setText("13/03/2025");
    box("Text4").setText("31/03/2025");
    world.dialoghi.answer(MsgAnswer::Si);
    click("Command2");
    EXPECT_EQ(failures.size(), 1);
    EXPECT_EQ(countOf(dati, "Menu"), 0);
    EXPECT_EQ(text("Text3"), "13/03/2025");
}

TEST_F(GeneraMenuFormTest, ADeletionThatIsNotConfirmedChangesNothing)
{
    addDays({"3/20/2025"});
    menu("mnuVisualizza");
    box("Text3").setText("13/03/2025");
    world.dialoghi.answer(MsgAnswer::No);
    click("Command2");
    EXPECT_EQ(text("Text3"), "13/03/2025");
    EXPECT_EQ(countOf(dati, "Menu"), 1);
}

TEST_F(GeneraMenuFormTest, TheBarsWidthIsKeptInTwips)
{
    EXPECT_GT(form().larghezzaPicture1(), 1000);
    form().setLarghezzaLabel5(355);
    EXPECT_EQ(form().larghezzaLabel5(), 355);
    EXPECT_EQ(control<QLabel>("Label5").width(), 23); // 15 twips a pixel
    form().setLarghezzaLabel5(200);
    EXPECT_EQ(form().larghezzaLabel5(), 200);
}

TEST_F(GeneraMenuFormTest, EscapeClosesTheForm)
{
    form().show();
    box("Text5").setFocus();
    QTest::keyClick(&box("Text5"), Qt::Key_Escape);
    EXPECT_FALSE(isLoaded());
}

TEST_F(GeneraMenuFormTest, TheEntryEsciClosesTheForm)
{
    form().show();
    menu("mnuEsci");
    EXPECT_FALSE(isLoaded());
}

TEST_F(GeneraMenuFormTest, EnterInTheHouseholdConfirms)
{
    form().show();
    box("Text6").setFocus();
    QTest::keyClick(&box("Text6"), Qt::Key_Return);
    EXPECT_EQ(panel(), "Frame1");
}

TEST_F(GeneraMenuFormTest, TheCalculatorOpensOverTheMiddleOfThePanelAndClosesByEitherButton)
{
    form().show();
    EXPECT_FALSE(calculatorShows());
    click("Command5");
    EXPECT_TRUE(calculatorShows());
    const QRect card = control<QGroupBox>("Frame4").geometry();
    EXPECT_NEAR(card.center().x(), form().width() / 2, 1);
    EXPECT_TRUE(control<QFrame>("Frame3").rect().contains(card));
    EXPECT_EQ(QStringList({text("Text9"), text("Text10"), text("Text11")}), QStringList({"0", "0", "0"}));
    click("Command5");
    EXPECT_FALSE(calculatorShows());
    click("Command5");
    click("Command7");
    EXPECT_FALSE(calculatorShows());
    EXPECT_EQ(panel(), "Frame3");
}

TEST_F(GeneraMenuFormTest, TheFigureGoesIntoTheBoxOfThePersonChosenAndNoFurther)
{
    fillCalculator("Option1_0", "40", "170", "70");
    calculate("Command1");
    EXPECT_EQ(question, "A chi devo inserire il valore di '1557,5' KCal?");
    EXPECT_EQ(targets(), QStringList({"1557,5", "1500"}));
    EXPECT_FALSE(calculatorShows());
    EXPECT_EQ(world.modulo.KcalPrimaPersona, "1100");
    EXPECT_EQ(world.cartella.read("\\ini\\Anagrafica.txt"), "Ondira\r\nTesmo\r\n1100\r\n1500\r\n");

    fillCalculator("Option1_1", "40", "170", "70");
    calculate("Command2");
    EXPECT_EQ(question, "A chi devo inserire il valore di '1723,5' KCal?");
    EXPECT_EQ(targets(), QStringList({"1557,5", "1723,5"}));
    click("Command3");
    EXPECT_EQ(world.cartella.read("\\ini\\Anagrafica.txt"), "Ondira\r\nTesmo\r\n1557,5\r\n1723,5\r\n");
}

TEST_F(GeneraMenuFormTest, WithoutASexTheDialogAsksAboutZeroWhateverTheBoxesHold)
{
    fillCalculator(nullptr, "", "alta", "");
    calculate("Command2");
    EXPECT_EQ(question, "A chi devo inserire il valore di '0' KCal?");
    EXPECT_EQ(targets(), QStringList({"1100", "0"}));
    EXPECT_EQ(failures, QStringList());
}

TEST_F(GeneraMenuFormTest, EscapeInTheDialogChangesNoBoxAndClosesTheCard)
{
    fillCalculator("Option1_0", "40", "170", "70");
    calculate(nullptr);
    EXPECT_EQ(targets(), QStringList({"1100", "1500"}));
    EXPECT_FALSE(calculatorShows());
    EXPECT_EQ(world.modulo.NomeScelto, "");
}

TEST_F(GeneraMenuFormTest, EscapeChangesNoBoxWithoutAHouseholdEither)
{
    world.cartella.remove("\\ini\\Anagrafica.txt");
    world.modulo.NomePrimaPersona.clear();
    world.modulo.NomeSecondaPersona.clear();
    fillCalculator("Option1_0", "40", "170", "70");
    calculate(nullptr);
    EXPECT_EQ(targets(), QStringList({"", ""}));
}

TEST_F(GeneraMenuFormTest, OfTwoPersonsOfOneNameTheFirstTakesTheFigure)
{
    world.cartella.write("\\ini\\Anagrafica.txt", "Anna\r\nAnna\r\n1100\r\n1500\r\n");
    fillCalculator("Option1_1", "40", "170", "70");
    calculate("Command2");
    EXPECT_EQ(targets(), QStringList({"1723,5", "1500"}));
}

TEST_F(GeneraMenuFormTest, TheActivityBoxesExcludeEachOtherAndChangeNothing)
{
    fillCalculator("Option1_0", "40", "170", "70");
    for (const int number : {13, 14, 15, 16, 13}) {
        check(number).click();
        QList<int> on;
        for (int box = 13; box <= 16; ++box)
            if (check(box).isChecked())
                on.append(box);
        EXPECT_EQ(on, QList<int>({number}));
    }
    EXPECT_EQ(checkedBoxes(), QList<int>()); // those of the meals are left alone
    calculate("Command1");
    EXPECT_EQ(targets(), QStringList({"1557,5", "1500"}));
}

TEST_F(GeneraMenuFormTest, ABoxWithoutANumberIsNamedAndTheCardStaysOpen)
{
    fillCalculator("Option1_0", "40", "1 metro", "70");
    click("Command4");
    EXPECT_EQ(failures, QStringList("Tipo non corrispondente: \"1 metro\" non è un numero (Altezza in cm.)"));
    EXPECT_TRUE(calculatorShows());
    EXPECT_EQ(targets(), QStringList({"1100", "1500"}));
}

TEST_F(GeneraMenuFormTest, EnterInTheCardCalculatesAndDoesNotConfirm)
{
    fillCalculator("Option1_0", "40", "1 metro", "70");
    box("Text9").setFocus();
    QTest::keyClick(&box("Text9"), Qt::Key_Return);
    EXPECT_EQ(failures.size(), 1);
    EXPECT_EQ(panel(), "Frame3");
    click("Command7");
    box("Text6").setFocus();
    QTest::keyClick(&box("Text6"), Qt::Key_Return);
    EXPECT_EQ(panel(), "Frame1");
}

TEST_F(GeneraMenuFormTest, TheCalculatorsPageOpensInTheBrowser)
{
    click("Command6");
    EXPECT_EQ(world.programmi.started, QStringList("Page https://www.calculator.net/calorie-calculator.html"));
}

TEST_F(GeneraMenuFormTest, EveryCaptionStandsLetterByLetter)
{
    const std::pair<const char *, const char *> labels[] = {
        {"Label3_0", "ANAGRAFICA"},
        {"Label3_1", " Nome"},
        {"Label3_2", " Nome"},
        {"Label3_3", "Kcal Giornaliere"},
        {"Label1", "Genero nuovi menu a partire dalla data"},
        {"Label2_0", "A finire con la data"},
        {"Label2_1", "A pranzo vuoi mangiare"},
        {"Label2_2", "A Cena vuoi mangiare"},
        {"frel2_6", "Frequenza"},
        {"freeel2_7", "Frequenza"},
        {"Label2_5", "Inserisce nella tabella MENU i dati relativi ai menu giornalieri creati"},
        {"Label2_3", "Visualizza dalla data :"},
        {"Label2_4", "a"},
        {"Label6", "Eta in anni"},
        {"Label7", "Altezza in cm."},
        {"Label8", "Peso in Kg"},
    };
    for (const auto &[name, caption] : labels)
        EXPECT_EQ(control<QLabel>(name).text(), QString(caption)) << name;
    const std::pair<const char *, const char *> buttons[] = {
        {"Command1", "Crea Menu provvisori"},
        {"Command3", "Conferma"},
        {"Command4", "** Calcola le tue Kcal per la cibra **"},
        {"Command5", "Calcolo Cibra"},
        {"Command6", "Consulta Calcolo HTML"},
        {"Command7", "X"},
        {"Option1_0", "Maschio "},
        {"Option1_1", "Femmina"},
        {"Check13", "Attivita fisica Leggera"},
        {"Check14", "Attivita fisica media"},
        {"Check15", "Attivita fisica pesante"},
        {"Check16", "Estremamente pesante"},
        {"Periodo_0", "Settimana"},
        {"Periodo_1", "Mensile"},
        {"Periodo_2", "Annuale"},
        {"Check8", "Piatto Unico"},
        {"Check9", "Piatto Unico"},
        {"Check1", "Panino\\Pizza"},
        {"Check4", "Panino\\Pizza"},
        {"Check2", "Pasta \\ Minestra"},
        {"Check5", "Pasta \\ Minestra"},
        {"Check3", "Pesce"},
        {"Check6", "Pesce"},
        {"Check7", "Carne"},
        {"Check11", "Carne"},
        {"Check10", "Solo Preferiti"},
        {"Check12", "Sincronizza sempre le eccedenze delle  Kcal dei menu, dopo la creazione dei Menu "},
    };
    for (const auto &[name, caption] : buttons)
        EXPECT_EQ(control<QAbstractButton>(name).text(), QString(caption)) << name;
    const std::pair<const char *, const char *> entries[] = {
        {"mnuAnagrafica", "Anagrafica"},
        {"mnuCrea", "Crea Menu  (Setta Valori Default)"},
        {"mnuVisualizza", "Visualizza Menu generati"},
        {"mnuGenera", "Genera nuovo calendario di Menu"},
        {"MnukcCalcolo", "Calcolo KCal in HTML"},
        {"mnuPreferiti", "Preferiti"},
        {"mnuEsci", "Esci"},
    };
    for (const auto &[name, caption] : entries)
        EXPECT_EQ(control<QAction>(name).text(), QString(caption)) << name;
    EXPECT_EQ(control<QMenu>("mnuElabora").title(), "Elaborazione Cibra");
    EXPECT_EQ(control<QGroupBox>("Frame4").title(), "Calcolo KCal  ");
}

TEST_F(GeneraMenuFormTest, ToolTipsAndFrequenciesAreThoseOfTheScreen)
{
    const QString tables = "Tabelle 'SOSTITUISCI', 'MENU', 'SCHEDAPRANZO', 'PIATTI' ";
    EXPECT_EQ(control<QPushButton>("Command1").toolTip(), tables);
    EXPECT_EQ(control<QPushButton>("Command3").toolTip(), tables);
    EXPECT_EQ(control<QLabel>("frel2_6").toolTip(), "Frequenza settimanale");
    EXPECT_EQ(control<QLabel>("freeel2_7").toolTip(), "Frequenza settimanale");
    EXPECT_EQ(check(10).toolTip(), "Verra creato un menu solamente con i piatti preferiti");
    QStringList frequencies;
    for (int index = 0; index < 10; ++index)
        frequencies.append(text(qPrintable("Freq_" + QString::number(index))));
    EXPECT_EQ(frequencies, QStringList({"1", "1", "7", "1", "1", "1", "1", "7", "1", "1"}));
}

} // namespace
