// The row on show: its boxes, its total, its deletion, its food and its dish replaced.
#include "sheet/FrmCibraWorld.h"

#include <QComboBox>
#include <QTimer>

namespace {

class FrmCibraRigaTest : public FrmCibraWorld
{
protected:
    QString row(int number) { return sheet("02/03/2025").value(number); }
    QComboBox &foodsToChoose() { return control<QComboBox>("Combo2"); }
    void insertPiatti(const QStringList &rows)
    {
        insertRows(dati, "Piatti",
                   "Piatto, Alimento, KC100gr, quantita, KcNominale, Totale1, quantita2, KcNominale2, Totale2", rows);
    }
    void substitute(const QString &choice)
    {
        click("Label6");
        foodsToChoose().setEditText(choice);
        click("Command3");
    }
    // Replaces the dish on show by the first of its alternatives, as the window of alternatives is answered.
    void replaceDish(MsgAnswer answer)
    {
        world.dialoghi.answer(answer);
        QTimer::singleShot(0, [this] { controlOf<QAbstractButton>(registry.get<Sostituti>(), "Command1").click(); });
        click("Label7");
    }
};

TEST_F(FrmCibraRigaTest, TheBoxesShowTheRowOnShowAndFollowTheGrid)
{
    show();
    const auto texts = [this] {
        QStringList all;
        for (int index = 0; index < 11; ++index)
            all.append(text(index));
        return all.join(" | ");
    };
    EXPECT_EQ(texts(), "02/03/2025 | Colazione | Colazione 1 | Latte | 150 | 50 |  |  | 200 | 300 | 100");
    goToRow(1);
    EXPECT_EQ(texts(), "02/03/2025 | Pranzo | Pasta | Pasta | 420 | 350 |  |  | 100 | 120 | 350");
    EXPECT_EQ(text(11), "2");
}

TEST_F(FrmCibraRigaTest, TheLabelsNameWhatTheirCommandWillActOn)
{
    show();
    EXPECT_EQ(caption("Label3"), "  Cancella Record  ");
    EXPECT_EQ(caption("Label4"), "  Cancella Gruppo Colazione");
    EXPECT_EQ(caption("Label6"), "  Sostituisci Alimento Latte");
    EXPECT_EQ(caption("Label7"), "Sostituisci Piatto Colazione 1");
    goToRow(1);
    EXPECT_EQ(caption("Label4"), "  Cancella Gruppo Pranzo");
    EXPECT_EQ(caption("Label6"), "  Sostituisci Alimento Pasta");
    EXPECT_EQ(caption("Label7"), "Sostituisci Piatto Pasta");
    days().setText("03/03/2025");
    EXPECT_EQ(caption("Label4"), "  Cancella Gruppo ");
    EXPECT_EQ(caption("Label6"), "  Sostituisci Alimento ");
    EXPECT_EQ(caption("Label7"), "Sostituisci Piatto ");
}

TEST_F(FrmCibraRigaTest, TheBoxesAreNamedForBothPersonsAndTheFilledOnesAreGrey)
{
    show();
    const std::pair<const char *, const char *> captions[] = {{"LbLabel_9", "KCal Ondira"},
                                                              {"LbLabel_11", "Quantità Ondira"},
                                                              {"LbLabel_13", "Totale Ondira"},
                                                              {"LbLabel_10", "KCal Tesmo"},
                                                              {"LbLabel_12", "Quantità Tesmo"},
                                                              {"LbLabel_14", "Totale Tesmo"},
                                                              {"LbLabel_0", "Data"},
                                                              {"LbLabel_1", "Tipo "},
                                                              {"LbLabel_2", "Piatto"},
                                                              {"LbLabel_3", "alimento"},
                                                              {"LbLabel_5", "Kcal 100 g"}};
    for (const auto &[label, words] : captions)
        EXPECT_EQ(caption(label), words) << label;
    QList<int> grey;
    for (int index = 0; index <= 11; ++index)
        if (box(index).palette().color(QPalette::Base) == QColor("#E0E0E0"))
            grey.append(index);
    EXPECT_EQ(grey, QList<int>({1, 2, 4, 5, 6, 7, 10}));
}

TEST_F(FrmCibraRigaTest, AFirstPortionLeftRecalculatesTheRowAndTheDay)
{
    show();
    enter(8, "85,5");
    EXPECT_EQ(text(10), "42.75");
    EXPECT_EQ(totals(), QStringList({"392,75", "570"}));
    EXPECT_EQ(row(0), "Colazione | Colazione 1 | Latte | 85,5 | 42,75 | 300 | 150");
    EXPECT_EQ(grid().model()->index(0, 7).data().toString(), "42,75");
    EXPECT_TRUE(world.dialoghi.boxes().isEmpty());
}

TEST_F(FrmCibraRigaTest, ASecondPortionLeftRecalculatesItsOwnTotal)
{
    show();
    goToRow(1);
    enter(9, "90");
    EXPECT_EQ(text(4), "315");
    EXPECT_EQ(totals(), QStringList({"450", "465"}));
    EXPECT_EQ(row(1), "Pranzo | Pasta | Pasta | 100 | 350 | 90 | 315");
}

TEST_F(FrmCibraRigaTest, APortionSetToZeroBringsItsTotalToZeroAndTheDayFollows)
{
    show();
    enter(8, "0");
    EXPECT_EQ(text(10), "0");
    EXPECT_EQ(totals(), QStringList({"350", "570"}));
}

TEST_F(FrmCibraRigaTest, ANegativePortionLeavesItsTotal)
{
    show();
    enter(8, "-5");
    EXPECT_EQ(row(0), "Colazione | Colazione 1 | Latte | -5 | 100 | 300 | 150");
    EXPECT_EQ(totals(), QStringList({"450", "570"}));
}

TEST_F(FrmCibraRigaTest, AnEmptiedPortionOrATextIsToldAndLoggedAndTheRowKeepsItsPortion)
{
    const std::pair<const char *, const char *> cases[] = {{"", "il numero manca"},
                                                           {"tanto", "\"TANTO\" non è un numero"},
                                                           {"80 g", "\"80 G\" non è un numero"},
                                                           {"1.000,5", "\"1.000,5\" non è un numero"}};
    for (const auto &[typed, words] : cases) {
        show();
        enter(8, typed);
        ASSERT_EQ(world.dialoghi.boxes().size(), 1) << typed;
        EXPECT_EQ(world.dialoghi.takeBoxes().first(),
                  QString("Msg1 \"Errore Generico\" Tipo non corrispondente: %1 [#@!? ... Errore!] 0 0 picture 3")
                      .arg(words));
        EXPECT_TRUE(log().contains("FrmCibra * txtFields_LostFocus Tipo non corrispondente"));
        EXPECT_EQ(text(8), "200");
        EXPECT_EQ(row(0), "Colazione | Colazione 1 | Latte | 200 | 100 | 300 | 150");
        enter(9, "300"); // and nothing of it is left behind
        EXPECT_EQ(row(0), "Colazione | Colazione 1 | Latte | 200 | 100 | 300 | 150");
        EXPECT_TRUE(world.dialoghi.boxes().isEmpty());
    }
}

TEST_F(FrmCibraRigaTest, ATextInAnotherNumberBoxIsToldWithItsField)
{
    show();
    enter(5, "molte");
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList("Msg1 \"Errore Generico\" Tipo non corrispondente: \"MOLTE\" non è un numero (campo Kc100gr) "
                          "[#@!? ... Errore!] 0 0 picture 3"));
    EXPECT_EQ(text(5), "50");
    EXPECT_EQ(valueOf(dati, "SELECT KC100gr FROM SchedaPranzo WHERE ID = 1"), "50");
}

TEST_F(FrmCibraRigaTest, UntilASaveEachBoxLeftIsPutIntoCapitalsWithItsAccentsMended)
{
    show();
    enter(3, "caffe' d'orzo");
    EXPECT_EQ(text(3), "CAFFÈ D’ORZO");
    EXPECT_EQ(row(0), "Colazione | Colazione 1 | CAFFÈ D’ORZO | 200 | 100 | 300 | 150");
    save();
    EXPECT_EQ(form().stato(), "V");
    enter(3, "the'");
    EXPECT_EQ(text(3), "the'");
    EXPECT_TRUE(row(0).contains("the'"));
}

TEST_F(FrmCibraRigaTest, TextsAreNoLongerThanTheirColumn)
{
    show();
    enter(3, QString(130, 'a'));
    EXPECT_EQ(text(3), QString(100, 'A'));
    EXPECT_EQ(box(0).maxLength(), 10);
    EXPECT_EQ(box(1).maxLength(), 20);
    EXPECT_EQ(control<QLineEdit>("Text1").maxLength(), 10);
}

TEST_F(FrmCibraRigaTest, TheLineOfChangesShowsWhileAPortionIsTypedAndGoesWhenItIsStored)
{
    show();
    box(8).setText("90");
    EXPECT_TRUE(visible("LineaModifica"));
    enter(8, "90");
    EXPECT_FALSE(visible("LineaModifica"));
}

TEST_F(FrmCibraRigaTest, ARowChangedByAnotherProgramMeanwhileIsToldAndTheOthersChangeIsKeptAndShown)
{
    show();
    goToRow(1);
    dati.Execute("UPDATE SchedaPranzo SET quantita = 77, Totale1 = 269.5 WHERE ID = 2");
    enter(8, "90");
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList("Msg1 \"Errore Generico\" Il record è stato modificato o cancellato nel frattempo: la "
                          "modifica non è stata salvata [#@!? ... Errore!] 0 0 picture 3"));
    EXPECT_EQ(row(1), "Pranzo | Pasta | Pasta | 77 | 269,5 | 120 | 420");
    EXPECT_EQ(currentRow(), 1);
    EXPECT_EQ(text(8), "77");
    EXPECT_EQ(totals(), QStringList({"369,5", "570"}));
    enter(8, "80"); // and now it goes through
    EXPECT_EQ(row(1), "Pranzo | Pasta | Pasta | 80 | 280 | 120 | 420");
}

TEST_F(FrmCibraRigaTest, ARowDeletedUnderTheOpenFormIsToldAndTheDayIsReadAgain)
{
    show();
    goToRow(1);
    dati.Execute("Delete * from SchedaPranzo where ID = 2");
    enter(8, "90");
    EXPECT_EQ(world.dialoghi.boxes().size(), 1);
    EXPECT_EQ(foods(), QStringList("Latte"));
    EXPECT_EQ(text(3), "Latte");
    EXPECT_EQ(totals(), QStringList({"100", "150"}));
}

TEST_F(FrmCibraRigaTest, ABoxLeftOnADayWithoutRowsDoesNothing)
{
    show();
    days().setText("03/03/2025");
    enter(8, "90");
    enter(3, "Pasta");
    EXPECT_TRUE(world.dialoghi.boxes().isEmpty());
    EXPECT_TRUE(failures.isEmpty());
    EXPECT_EQ(text(8), "");
    EXPECT_EQ(countOf(dati, "SchedaPranzo"), 3);
}

TEST_F(FrmCibraRigaTest, WhatWasTypedIsStoredBeforeACommandThatLeavesTheFocusInItsBox)
{
    show();
    box(8).setFocus();
    box(8).selectAll();
    QTest::keyClicks(&box(8), "120");
    menu("mnuGriglia");
    EXPECT_EQ(row(0), "Colazione | Colazione 1 | Latte | 120 | 60 | 300 | 150");
}

TEST_F(FrmCibraRigaTest, TheKeyOfAnotherRowIsRefusedAndADeletionTakesTheRowOnShow)
{
    show();
    enter(11, "3");
    EXPECT_EQ(world.dialoghi.takeBoxes().size(), 1);
    EXPECT_EQ(text(11), "1");
    world.dialoghi.answer(MsgAnswer::Si);
    doubleClick("Label3");
    EXPECT_EQ(foods(), QStringList("Pasta"));
    EXPECT_EQ(sheet("11/01/2025").size(), 1);
}

TEST_F(FrmCibraRigaTest, ARowWithANewKeyCanBeEditedFurther)
{
    show();
    enter(11, "40");
    enter(9, "200");
    EXPECT_TRUE(world.dialoghi.boxes().isEmpty());
    EXPECT_EQ(valueOf(dati, "Select quantita2 from SchedaPranzo where ID = 40"), "200");
}

TEST_F(FrmCibraRigaTest, WhatCannotBeStoredForTheMomentWaitsAndNothingIsDeletedMeanwhile)
{
    show();
    dati.setLockWait(20);
    {
        Connection other;
        ASSERT_TRUE(other.Open(dati.path()));
        GruppoScritture writing(other);
        other.Execute("UPDATE SchedaPranzo SET Piatto = 'Riso' WHERE ID = 3");
        enter(8, "90");
        EXPECT_EQ(world.dialoghi.takeBoxes().size(), 1);
        EXPECT_EQ(text(8), "90");
        doubleClick("Label3");                                 // tries again first
        for (const QString &told : world.dialoghi.takeBoxes()) // and never asks whether to delete
            EXPECT_TRUE(told.contains("in uso da un altro programma")) << told.toStdString();
        EXPECT_EQ(foods(), QStringList({"Latte", "Pasta"}));
        writing.close();
    }
    enter(8, "90");
    EXPECT_TRUE(world.dialoghi.boxes().isEmpty());
    EXPECT_EQ(row(0), "Colazione | Colazione 1 | Latte | 90 | 45 | 300 | 150");
}

TEST_F(FrmCibraRigaTest, ADayWithAnApostropheShowsNothingAndTheFormGoesOn)
{
    show();
    days().setText("02/03/2025'");
    EXPECT_EQ(failures.size(), 1);
    EXPECT_TRUE(foods().isEmpty());
    EXPECT_EQ(totals(), QStringList({"0", "0"}));
    days().setText("02/03/2025");
    EXPECT_EQ(foods(), QStringList({"Latte", "Pasta"}));
    EXPECT_EQ(failures.size(), 1);
}

TEST_F(FrmCibraRigaTest, ADoubleClickDeletesTheRowOnShowAndASingleOneNothing)
{
    show();
    goToRow(1);
    click("Label3");
    EXPECT_TRUE(world.dialoghi.boxes().isEmpty());
    world.dialoghi.answer(MsgAnswer::Si);
    doubleClick("Label3");
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList("MsgBox 20 \"Cancellazione Record\" Vuoi cancellare presente Record \r\n - Pranzo\r\n"
                          " - Piatto Pasta\r\n - Alimento Pasta\r\n"));
    EXPECT_EQ(foods(), QStringList("Latte"));
    EXPECT_EQ(totals(), QStringList({"100", "150"}));
}

TEST_F(FrmCibraRigaTest, AGroupIsDeletedByItsLabelAndByTheMenuAndItsDayStaysInTheList)
{
    insertSheet(dati, {"'11/01/2025', 'Cena', 'Riso', 'Burro', 758, 10, 75.8, 10, 75.8",
                       "'11/01/2025', 'Pranzo', 'Riso', 'Riso', 100, 10, 10, 10, 10"});
    show();
    pick("11/01/2025");
    world.dialoghi.answer(MsgAnswer::Si);
    doubleClick("Label4");
    EXPECT_EQ(foods(), QStringList("Riso"));
    world.dialoghi.answer(MsgAnswer::Si);
    menu("MnuDelete");
    EXPECT_EQ(foods(), QStringList());
    EXPECT_EQ(totals(), QStringList({"0", "0"}));
    EXPECT_GE(days().findText("11/01/2025"), 0);
    EXPECT_EQ(world.dialoghi.boxes().last(),
              "MsgBox 20 \"Cancellazione gruppo\" Vuoi cancellare tutto il gruppo Pranzo - Piatto Riso");
}

TEST_F(FrmCibraRigaTest, DeletingARowWhereThereIsNoneIsReported)
{
    show();
    days().setText("03/03/2025");
    world.dialoghi.answer(MsgAnswer::Si);
    doubleClick("Label3");
    EXPECT_EQ(failures.size(), 1);
    EXPECT_EQ(countOf(dati, "SchedaPranzo"), 3);
}

TEST_F(FrmCibraRigaTest, TheFoodsToChooseAreReadAfreshAtEachOpeningAndTheFirstOneShows)
{
    insertRows(dati, "Categorie", "ID, TIPO, Alimento, Kcal", {"1, 1, 'Zucca', 18", "2, 999, 'Ritirato', 1"});
    show();
    EXPECT_FALSE(visible("Frame2"));
    click("Label6");
    EXPECT_TRUE(visible("Frame2"));
    EXPECT_EQ(foodsToChoose().count(), 1);
    EXPECT_EQ(foodsToChoose().currentText(), "Zucca / 18");
    insertRows(dati, "Categorie", "ID, TIPO, Alimento, Kcal", {"3, 1, 'Aglio', 41"});
    click("Label6"); // while it is open nothing is read
    EXPECT_EQ(foodsToChoose().count(), 1);
    click("Command4");
    EXPECT_FALSE(visible("Frame2"));
    click("Label6");
    EXPECT_EQ(foodsToChoose().count(), 2);
    EXPECT_EQ(foodsToChoose().currentText(), "Aglio / 41");
    QTest::mouseDClick(&control<QWidget>("Frame2"), Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
    EXPECT_FALSE(visible("Frame2"));
    EXPECT_EQ(world.programmi.started, QStringList()) << "the notes belong to the form's own ground";
}

TEST_F(FrmCibraRigaTest, AFoodReplacedBringsThePortionsOfItsFirstDishAndTheDayIsSummedAgain)
{
    insertPiatti(
        {"'Risotto', 'Riso', 362, 70, 1100, 253.4, 90, 1500, 325.8", "'Insalata', 'Riso', 362, 1, 1, 1, 1, 1, 1"});
    show();
    goToRow(1);
    substitute("Riso / 362");
    EXPECT_FALSE(visible("Frame2"));
    EXPECT_EQ(row(1), "Pranzo | Pasta | Riso | 70 | 253,4 | 90 | 325,8");
    EXPECT_EQ(valueOf(dati, "SELECT KcNominale2 FROM SchedaPranzo WHERE ID = 2"), "1500");
    EXPECT_EQ(totals(), QStringList({"353,4", "475,8"}));
    EXPECT_EQ(foods(), QStringList({"Latte", "Riso"}));
    EXPECT_TRUE(failures.isEmpty());
}

TEST_F(FrmCibraRigaTest, AFoodFoundNowhereComesWithoutPortionsAndTheDayDropsByTheOldRow)
{
    show();
    goToRow(1);
    substitute("Zucca / 18");
    EXPECT_EQ(row(1), "Pranzo | Pasta | Zucca | 0 | 0 | 0 | 0");
    EXPECT_EQ(totals(), QStringList({"100", "150"}));
    EXPECT_EQ(rowsOf(dati, "SELECT Piatto, Alimento, KC100gr FROM Piatti"), QStringList("Pasta | Zucca | 18"));
}

TEST_F(FrmCibraRigaTest, ATextThatNamesNoFoodChangesNothingAndTheFrameStays)
{
    show();
    substitute("Zucca");
    EXPECT_TRUE(visible("Frame2"));
    EXPECT_EQ(row(0), "Colazione | Colazione 1 | Latte | 200 | 100 | 300 | 150");
    EXPECT_TRUE(failures.isEmpty());
}

TEST_F(FrmCibraRigaTest, AFoodReplacedOnADayWithoutRowsIsReportedAndAddsNothing)
{
    show();
    days().setText("03/03/2025");
    substitute("Zucca / 18");
    EXPECT_EQ(failures, QStringList("Non c'è nessun record corrente"));
    EXPECT_EQ(countOf(dati, "Piatti"), 0);
}

TEST_F(FrmCibraRigaTest, AFoodReplacedInARowThatAnotherHasChangedIsToldAndTheOthersChangeIsKept)
{
    show();
    goToRow(1);
    dati.Execute("UPDATE SchedaPranzo SET Alimento = 'Farro' WHERE ID = 2");
    substitute("Zucca / 18");
    EXPECT_EQ(failures, QStringList("Il record è stato modificato o cancellato nel frattempo: la modifica non è "
                                    "stata salvata"));
    EXPECT_EQ(row(1), "Pranzo | Pasta | Farro | 100 | 350 | 120 | 420");
    EXPECT_EQ(text(3), "Farro");
}

class FrmCibraPiattoTest : public FrmCibraRigaTest
{
protected:
    FrmCibraPiattoTest()
    {
        insertPiatti({"'Risotto', 'Riso', 362, 70, 1100, 253.4, 90, 1500, 325.8",
                      "'Risotto', 'Burro', 758, 5, 1100, 37.9, 10, 1500, 75.8",
                      "'Biscotti', 'Biscotti', 400, 30, 1100, 120, 40, 1500, 160"});
        insertRows(
            dati, "Sostituisci", "Piatto, tipo, Categoria",
            {"'Risotto', 'Menu', 'Cereali'", "'Pasta', 'Menu', 'Cereali'", "'Biscotti', 'Colazione', 'Cereali'"});
        insertRows(dati, "GruppoPiattiSostituiti", "alimento, sostituisci", {"'Pasta', 'Risotto'"});
    }
};

TEST_F(FrmCibraPiattoTest, AReplacedDishGivesItsPlaceToTheFoodsOfTheOtherUnderTheNameOfTheDishBox)
{
    show();
    goToRow(1);
    control<DataCombo>("DataCombo1").setText("Biscotti");
    replaceDish(MsgAnswer::Si);
    EXPECT_EQ(world.dialoghi.boxes(), QStringList("MsgBox 68 \"OK\" Sostituisce Pasta con Risotto"));
    EXPECT_EQ(sheet("02/03/2025"), QStringList({"Colazione | Colazione 1 | Latte | 200 | 100 | 300 | 150",
                                                "Pranzo | Biscotti | Burro | 5 | 37,9 | 10 | 75,8",
                                                "Pranzo | Biscotti | Riso | 70 | 253,4 | 90 | 325,8"}));
    EXPECT_EQ(foods(), QStringList({"Latte", "Burro", "Riso"}));
    EXPECT_EQ(totals(), QStringList({"450", "570"})); // they change at the next look at the day
    form().Totali();
    EXPECT_EQ(totals(), QStringList({"391,3", "551,6"}));
}

TEST_F(FrmCibraPiattoTest, AReplacementGivenUpLeavesTheDayAsItWas)
{
    const QStringList before = sheet("02/03/2025");
    show();
    goToRow(1);
    replaceDish(MsgAnswer::No);
    EXPECT_EQ(sheet("02/03/2025"), before);
    QTimer::singleShot(0, [this] {
        Sostituti &window = registry.get<Sostituti>();
        QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, Qt::Key_Escape);
    });
    click("Label7");
    EXPECT_EQ(sheet("02/03/2025"), before);
    EXPECT_EQ(world.modulo.PiattoSostituto, "");
}

TEST_F(FrmCibraPiattoTest, TheWindowOfAlternativesNamesTheDishAndItsMeal)
{
    show();
    goToRow(1);
    QString title;
    QString label;
    QTimer::singleShot(0, [&] {
        Sostituti &window = registry.get<Sostituti>();
        title = window.windowTitle();
        label = controlOf<QLabel>(window, "Label6").text();
        controlOf<QAbstractButton>(window, "Command2").click();
    });
    click("Label7");
    EXPECT_EQ(title, "Sostituisci Menu Pasta di cui Pranzo");
    EXPECT_EQ(label, "Sostituisci Menu Pasta di cui ");
}

TEST_F(FrmCibraPiattoTest, ADayWithoutRowsHasNoDishToReplace)
{
    show();
    days().setText("03/03/2025");
    click("Label7");
    EXPECT_EQ(failures, QStringList("Non c'è nessun record corrente"));
}

TEST_F(FrmCibraPiattoTest, ADishIsInsertedIntoTheDayOnShowAndItsTotalsGrow)
{
    show();
    EXPECT_EQ(control<QLineEdit>("Text1").text(), "02/03/2025");
    EXPECT_EQ(control<QComboBox>("Combo1").currentText(), "Colazione");
    control<DataCombo>("DataCombo1").setText("Biscotti");
    world.dialoghi.answer(MsgAnswer::Si);
    click("Command1");
    EXPECT_EQ(foods(), QStringList({"Latte", "Pasta", "Biscotti"}));
    EXPECT_EQ(totals(), QStringList({"570", "730"}));
}

TEST_F(FrmCibraPiattoTest, ADishInsertedIntoAnotherDayBringsThatDayOnShow)
{
    show();
    control<QLineEdit>("Text1").setText("05/03/2025");
    control<QComboBox>("Combo1").setCurrentText("Menu");
    control<DataCombo>("DataCombo1").setText("Risotto");
    world.dialoghi.answer(MsgAnswer::Si);
    click("Command1");
    EXPECT_EQ(days().text(), "05/03/2025");
    EXPECT_EQ(sheet("05/03/2025"), QStringList({"Menu | Risotto | Burro | 5 | 37,9 | 10 | 75,8",
                                                "Menu | Risotto | Riso | 70 | 253,4 | 90 | 325,8"}));
    EXPECT_EQ(totals(), QStringList({"291,3", "401,6"}));
    EXPECT_EQ(days().findText("05/03/2025"), -1); // the list of days is not read again
}

TEST_F(FrmCibraPiattoTest, AnEmptyDayTakesItsRowsAndIsShown)
{
    show();
    control<QLineEdit>("Text1").clear();
    control<DataCombo>("DataCombo1").setText("Biscotti");
    world.dialoghi.answer(MsgAnswer::Si);
    click("Command1");
    EXPECT_EQ(days().text(), "");
    EXPECT_EQ(foods(), QStringList("Biscotti"));
    EXPECT_TRUE(failures.isEmpty());
}

TEST_F(FrmCibraPiattoTest, ADishWithoutFoodsAndANoInsertNothing)
{
    show();
    control<DataCombo>("DataCombo1").setText("Sconosciuto");
    click("Command1");
    EXPECT_TRUE(world.dialoghi.boxes().isEmpty());
    control<DataCombo>("DataCombo1").setText("Biscotti");
    world.dialoghi.answer(MsgAnswer::No);
    click("Command1");
    EXPECT_EQ(countOf(dati, "SchedaPranzo"), 3);
}

TEST_F(FrmCibraPiattoTest, ADishWithAnApostropheIsReported)
{
    show();
    control<DataCombo>("DataCombo1").setText("Pasta all'olio");
    click("Command1");
    EXPECT_EQ(failures.size(), 1);
    EXPECT_EQ(countOf(dati, "SchedaPranzo"), 3);
}

TEST_F(FrmCibraPiattoTest, TheDishListFollowsTheClassAlsoWhereItIsTyped)
{
    insertRows(
        dati, "Sostituisci", "Piatto, tipo, Categoria",
        {"'Insalata', 'Menu', 'Contorno'", "'Mela', 'Spuntino', 'Frutta'", "'Spuntino 1', 'Spuntino', 'Frutta'"});
    show();
    const auto list = [this](const QString &kind) {
        control<QComboBox>("Combo1").setEditText(kind);
        const auto &dishes = control<DataCombo>("DataCombo1");
        QStringList names;
        for (int i = 0; i < dishes.count(); ++i)
            names.append(dishes.itemText(i));
        return names;
    };
    EXPECT_EQ(list("Colazione"), QStringList("Biscotti"));
    EXPECT_EQ(list("Menu"), QStringList({"Pasta", "Risotto"}));
    EXPECT_EQ(list("Spuntino"), QStringList("Mela"));
    EXPECT_EQ(list("Contorno"), QStringList("Insalata"));
    EXPECT_EQ(list("Cont"), QStringList("Insalata")); // no class: the list stays
    EXPECT_EQ(list("COLAZIONE"), QStringList("Biscotti"));
    EXPECT_TRUE(failures.isEmpty());
}

} // namespace
