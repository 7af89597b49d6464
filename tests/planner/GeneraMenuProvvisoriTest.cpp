#include "planner/GeneraMenuProvvisori.h"

#include "planner/PlannerTest.h"
#include "platform/store/ArchiveFile.h"

#include <QFile>

namespace {

class GeneraMenuTest : public PlannerTest
{
protected:
    void SetUp() override
    {
        fillCatalogue();
        insiemi.Apri(dati);
    }

    void generate(const SceltaMenu &scelta) { GeneraMenuProvvisori(world.modulo, insiemi, scelta); }
    QString failureOf(const SceltaMenu &scelta)
    {
        return wordsOf([&] { generate(scelta); });
    }
    QStringList menu() { return rowsOf(dati, "Menu"); }
    QStringList ordini()
    {
        return rowsOf(dati, "SELECT Sostituisci.Ordine From Sostituisci WHERE Sostituisci.tipo = 'menu'");
    }
};

TEST_F(GeneraMenuTest, EachDayTakesItsDishesByRotation)
{
    scriptReversedShuffle();
    generate(choice("02/03/2025", "03/03/2025"));
    EXPECT_EQ(menu(), QStringList({
                          "02/03/2025 | Caffelatte | Mela | Cuscus | Fagiolini | Rosetta | Pera | Paella | Spinaci | "
                          "Grissini | Mela | -",
                          "03/03/2025 | Yogurt e miele | Pera | Zuppa | Fagiolini | Rosetta | Mela | Ravioli | "
                          "Spinaci | Grissini | Pera | -",
                      }));
}

TEST_F(GeneraMenuTest, TheShuffleWritesWholeNumbersBelowTheCountAndLetsThemCollide)
{
    world.dado.script({0.999999, 0.0, 0.1, 0.19, 0.5, 0.59, 0.6, 0.31, 0.72, 0.85});
    world.dado.strict = true;
    generate(choice("02/03/2025", "01/03/2025"));
    EXPECT_EQ(ordini(), QStringList({"9", "0", "1", "1", "5", "5", "6", "3", "7", "8"}));
    EXPECT_EQ(world.dado.thrown, 10);
    EXPECT_EQ(rowsOf(dati, "SELECT Sostituisci.Piatto From Sostituisci WHERE Sostituisci.tipo <> 'menu' And "
                           "Sostituisci.Ordine <> 0"),
              QStringList());
}

TEST_F(GeneraMenuTest, TheShuffleReachesTheKindsOnlyAtTheNextLoad)
{
    SceltaMenu scelta = choice("02/03/2025", "02/03/2025");
    scelta.Check[3] = true;
    scriptReversedShuffle();
    generate(scelta);
    EXPECT_EQ(column("Pranzo"), QStringList("Orata"));
    InsiemiPiatti reloaded;
    reloaded.Apri(dati);
    EXPECT_EQ(reloaded.PesceRs->value("Piatto").text(), "Sogliola");
}

TEST_F(GeneraMenuTest, ASecondRunNumbersOnlyFromWhereTheCursorStands)
{
    scriptReversedShuffle();
    generate(choice("02/03/2025", "03/03/2025")); // four dishes on: the fifth row, Pizza, is current
    world.dado.script({0.0, 0.0, 0.0, 0.0, 0.0, 0.0});
    world.dado.strict = true;
    generate(choice("02/03/2025", "01/03/2025"));
    EXPECT_EQ(world.dado.thrown, 16);
    EXPECT_EQ(ordini(), QStringList({"0", "0", "0", "0", "0", "0", "3", "2", "1", "0"}));
}

TEST_F(GeneraMenuTest, AfterTheFavouritesStepAllFavouritesAreNumberedAgain)
{
    dati.Execute("UPDATE Sostituisci SET Sostituisci.Preferito = True WHERE Sostituisci.tipo = 'menu'");
    SceltaMenu scelta = choice("02/03/2025", "03/03/2025");
    scelta.Check[10] = true;
    scriptReversedShuffle();
    generate(scelta);
    generate(scelta);
    EXPECT_EQ(world.dado.thrown, 20);
}

TEST_F(GeneraMenuTest, ARangeThatRunsBackwardsDeletesAndWritesNothing)
{
    insertRows(dati, "Menu", "DataMenu", {"#3/1/2025#", "#3/2/2025#"});
    generate(choice("02/03/2025", "01/03/2025"));
    EXPECT_EQ(column("DataMenu"), QStringList({"01/03/2025", "02/03/2025"}));
}

TEST_F(GeneraMenuTest, OneDayGivesOneRowOnWhichEveryFrequencyAboveZeroIsDue)
{
    SceltaMenu scelta = choice("02/03/2025", "02/03/2025");
    scelta.Check[7] = scelta.Check[6] = true;
    generate(scelta);
    EXPECT_EQ(menu().size(), 1);
    EXPECT_EQ(column("Pranzo"), QStringList("Manzo"));
    EXPECT_EQ(column("Cena"), QStringList("Orata"));
}

TEST_F(GeneraMenuTest, RowsOfTheRangeAreReplacedAndRowsOutsideItStay)
{
    insertRows(dati, "Menu", "DataMenu, Pranzo",
               {"#3/1/2025#, 'prima'", "#3/2/2025#, 'dentro'", "#3/2/2025#, 'dentro'", "#3/12/2025#, 'dentro'",
                "#3/13/2025#, 'dopo'", "#2/3/2025#, 'febbraio'"});
    generate(choice("02/03/2025", "12/03/2025"));
    EXPECT_EQ(rowsOf(dati, "SELECT Menu.DataMenu, Menu.Pranzo From Menu").mid(0, 3),
              QStringList({"01/03/2025 | prima", "13/03/2025 | dopo", "03/02/2025 | febbraio"}));
    EXPECT_EQ(menu().size(), 3 + 11);
    EXPECT_EQ(rowsOf(dati, "SELECT Menu.DataMenu From Menu WHERE Menu.Pranzo = 'dentro'"), QStringList());
}

struct Frequency
{
    const char *text;
    const char *dueDays; // of nine days: x due, . not due
};

TEST_F(GeneraMenuTest, AFrequencyIsACountOfDaysAtTheHeadOfEachSeven)
{
    const Frequency cases[] = {
        {"0", "xxxxxxxxx"},   {"1", "x......x."},   {"2", "xx.....xx"},   {"6", "xxxxxx.xx"},
        {"7", "xxxxxxxxx"},   {"40", "xxxxxxxxx"},  {"-1", "........."},  {"2,5", "xx.....xx"},
        {"2.5", "xx.....xx"}, {"0,5", "........."}, {" 3 ", "xxx....xx"}, {"1.100", "xxxxxxxxx"},
    };
    for (const Frequency &c : cases) {
        SceltaMenu scelta = choice("02/03/2025", "10/03/2025");
        scelta.Check[3] = true;
        scelta.Freq[3] = c.text;
        generate(scelta);
        QString due;
        for (const QString &Pranzo : column("Pranzo"))
            due += Pranzo == "Orata" || Pranzo == "Sogliola" ? 'x' : '.';
        EXPECT_EQ(due, QString(c.dueDays)) << c.text;
    }
}

struct Kind
{
    int check;
    int freq;
    const char *meal;
    QStringList dishes;
};

TEST_F(GeneraMenuTest, EachBoxTakesItsOwnKindByItsOwnFrequency)
{
    const Kind kinds[] = {
        {1, 1, "Pranzo", {"Toast", "Pizza"}},   {2, 2, "Pranzo", {"Ravioli", "Zuppa"}},
        {8, 0, "Pranzo", {"Paella", "Cuscus"}}, {3, 3, "Pranzo", {"Orata", "Sogliola"}},
        {7, 4, "Pranzo", {"Manzo", "Pollo"}},   {4, 1, "Cena", {"Toast", "Pizza"}},
        {9, 5, "Cena", {"Paella", "Cuscus"}},   {5, 7, "Cena", {"Ravioli", "Zuppa"}},
        {6, 8, "Cena", {"Orata", "Sogliola"}},  {11, 9, "Cena", {"Manzo", "Pollo"}},
    };
    for (const Kind &kind : kinds) {
        dati.Execute("UPDATE Sostituisci SET Sostituisci.Ordine = 0;");
        InsiemiPiatti fresh;
        fresh.Apri(dati);
        SceltaMenu scelta = choice("02/03/2025", "05/03/2025");
        scelta.Check.at(kind.check) = true;
        scelta.Freq.fill("no number"); // none but the one that belongs to the box is read
        scelta.Freq.at(kind.freq) = "2";
        GeneraMenuProvvisori(world.modulo, fresh, scelta);
        const QStringList taken = column(kind.meal);
        ASSERT_EQ(taken.size(), 4) << kind.check;
        EXPECT_EQ(taken.mid(0, 2), kind.dishes) << kind.check;
        EXPECT_FALSE(kind.dishes.contains(taken[2])) << kind.check;
        EXPECT_FALSE(kind.dishes.contains(taken[3])) << kind.check;
        EXPECT_NE(taken[2], taken[3]) << kind.check; // the complement rotates too
    }
}

TEST_F(GeneraMenuTest, TheFirstBoxThatIsOnDecidesAMeal)
{
    const std::pair<std::vector<int>, QStringList> cases[] = {
        {{1, 2, 8, 3, 7, 4, 9, 5, 6, 11}, {"Toast", "Pizza"}},
        {{2, 8, 3, 7, 9, 5, 6, 11}, {"Ravioli", "Paella"}},
        {{8, 3, 7, 5, 6, 11}, {"Cuscus", "Ravioli"}}, // single dishes are not rewound
        {{3, 7, 6, 11}, {"Orata", "Sogliola"}},
        {{7, 11}, {"Manzo", "Pollo"}},
    };
    for (const auto &[boxes, expected] : cases) {
        SceltaMenu scelta = choice("02/03/2025", "02/03/2025");
        for (const int box : boxes)
            scelta.Check.at(box) = true;
        generate(scelta);
        EXPECT_EQ(column("Pranzo") + column("Cena"), expected);
    }
}

TEST_F(GeneraMenuTest, AKindChosenForBothMealsAdvancesTwiceADay)
{
    SceltaMenu scelta = choice("02/03/2025", "03/03/2025");
    scelta.Check[3] = scelta.Check[6] = true;
    addDish("Merluzzo", "Menu", "Pesce");
    insiemi.Apri(dati);
    scelta.Freq[3] = scelta.Freq[8] = "7";
    generate(scelta);
    EXPECT_EQ(column("Pranzo"), QStringList({"Orata", "Merluzzo"}));
    EXPECT_EQ(column("Cena"), QStringList({"Sogliola", "Orata"}));
}

TEST_F(GeneraMenuTest, TheLunchFrequencyOfSandwichesServesDinnerTooAndItsOwnBoxIsNeverRead)
{
    SceltaMenu scelta = choice("02/03/2025", "04/03/2025");
    scelta.Check[4] = true;
    scelta.Freq[1] = "2";
    scelta.Freq[6] = "no number";
    generate(scelta);
    const QStringList dinners = column("Cena");
    EXPECT_EQ(dinners.mid(0, 2), QStringList({"Toast", "Pizza"}));
    EXPECT_NE(dinners[2], "Toast");
    EXPECT_NE(dinners[2], "Pizza");
}

TEST_F(GeneraMenuTest, TheComplementHasTheOrderOfTheRunBefore)
{
    SceltaMenu scelta = choice("02/03/2025", "02/03/2025");
    scelta.Check[3] = true;
    scelta.Freq[3] = "-1";
    scriptReversedShuffle();
    generate(scelta);
    EXPECT_EQ(column("Pranzo"), QStringList("Manzo")); // opened before the shuffle
    generate(scelta);
    EXPECT_EQ(column("Pranzo"), QStringList("Cuscus"));
}

TEST_F(GeneraMenuTest, TheComplementHoldsDishesThatAreNoFavourites)
{
    SceltaMenu scelta = choice("02/03/2025", "06/03/2025");
    scelta.Check[10] = scelta.Check[7] = true;
    scelta.Freq[4] = "1";
    generate(scelta);
    EXPECT_EQ(column("Pranzo"), QStringList({"Manzo", "Orata", "Sogliola", "Toast", "Pizza"}));
    EXPECT_EQ(column("Colazione").mid(0, 2), QStringList({"Caffelatte", "Yogurt e miele"}));
    EXPECT_EQ(column("Cena"), QStringList({"Manzo", "Manzo", "Manzo", "Manzo", "Manzo"}));
}

TEST_F(GeneraMenuTest, SwitchingTheFavouritesOffDoesNotBringTheWholeListsBack)
{
    SceltaMenu scelta = choice("02/03/2025", "03/03/2025");
    scelta.Check[7] = scelta.Check[10] = true;
    scelta.Freq[4] = "7";
    generate(scelta);
    scelta.Check[10] = false;
    generate(scelta);
    EXPECT_EQ(column("Pranzo"), QStringList({"Manzo", "Manzo"}));
    insiemi.Apri(dati);
    generate(scelta);
    QStringList lunches = column("Pranzo");
    lunches.sort();
    EXPECT_EQ(lunches, QStringList({"Manzo", "Pollo"}));
}

TEST_F(GeneraMenuTest, SinglesSidesAndBreadsGoOnFromRunToRunTheOthersStartAgain)
{
    addDish("Bietole", "", "Contorno");
    addDish("Ciabatta", "", "Pane");
    addDish("Banana", "Spuntino", "Frutta");
    insiemi.Apri(dati);
    SceltaMenu scelta = choice("02/03/2025", "02/03/2025");
    scelta.Check[8] = scelta.Check[6] = true;
    generate(scelta);
    EXPECT_EQ(menu(), QStringList("02/03/2025 | Caffelatte | Mela | Paella | Fagiolini | Rosetta | Pera | Orata | "
                                  "Spinaci | Grissini | Banana | -"));
    generate(scelta);
    EXPECT_EQ(menu(), QStringList("02/03/2025 | Caffelatte | Mela | Cuscus | Bietole | Ciabatta | Pera | Orata | "
                                  "Fagiolini | Rosetta | Banana | -"));
}

TEST_F(GeneraMenuTest, TwoSnacksWrapWithinADay)
{
    generate(choice("02/03/2025", "02/03/2025"));
    EXPECT_EQ(column("Spuntino1") + column("Spuntino2") + column("Spuntino3"), QStringList({"Mela", "Pera", "Mela"}));
}

TEST_F(GeneraMenuTest, ASetOfOneDishYieldsItEveryTime)
{
    dati.Execute("DELETE * FROM Sostituisci WHERE Sostituisci.Piatto = 'Grissini'");
    insiemi.Apri(dati);
    generate(choice("02/03/2025", "04/03/2025"));
    EXPECT_EQ(column("pane1") + column("pane2"), QStringList(6, "Rosetta"));
}

TEST_F(GeneraMenuTest, TheChoiceIsRememberedBesideTheProgram)
{
    SceltaMenu scelta = choice("02/03/2025", "02/03/2025");
    scelta.Check[2] = scelta.Check[5] = scelta.Check[12] = true;
    generate(scelta);
    EXPECT_EQ(world.cartella.read("\\Check.log"), "2\r\n0\r\n 1 \r\n");
}

TEST_F(GeneraMenuTest, ADayThatIsNoDateFailsAfterTheShuffleAndBeforeAnythingIsDeleted)
{
    insertRows(dati, "Menu", "DataMenu", {"#3/2/2025#"});
    for (const char *text : {"", "02/03", "29/02/2025", "oggi"}) {
        insiemi.Apri(dati);
        scriptReversedShuffle();
        EXPECT_EQ(failureOf(choice(text, "03/03/2025")).left(23), "Tipo non corrispondente") << text;
        insiemi.Apri(dati);
        EXPECT_EQ(failureOf(choice("02/03/2025", text)).left(23), "Tipo non corrispondente") << text;
    }
    EXPECT_EQ(column("DataMenu"), QStringList("02/03/2025"));
    EXPECT_NE(ordini(), QStringList(10, "0"));
    EXPECT_EQ(world.cartella.read("\\Check.log"), "0\r\n0\r\n 0 \r\n");
}

TEST_F(GeneraMenuTest, AFrequencyThatIsNoNumberFailsOnTheFirstDayWithTheRangeDeleted)
{
    for (const char *text : {"", "due", "1 2", "1,2,3"}) {
        insertRows(dati, "Menu", "DataMenu", {"#3/2/2025#"});
        SceltaMenu scelta = choice("02/03/2025", "08/03/2025");
        scelta.Check[3] = true;
        scelta.Freq[3] = text;
        EXPECT_EQ(failureOf(scelta).left(23), "Tipo non corrispondente") << text;
        EXPECT_EQ(menu(), QStringList()) << text;
    }
}

TEST_F(GeneraMenuTest, AnEmptySetFailsWhereItsDishIsFirstReadAndTheDaysBeforeStay)
{
    dati.Execute("DELETE * FROM Sostituisci WHERE Sostituisci.tipo = 'menu' And Sostituisci.Categoria <> 'Pesce'");
    insiemi.Apri(dati);
    SceltaMenu scelta = choice("02/03/2025", "05/03/2025");
    scelta.Check[3] = true;
    scelta.Freq[3] = "2";
    EXPECT_NE(failureOf(scelta), ""); // on the third day nothing but fish could be taken
    EXPECT_EQ(column("Pranzo"), QStringList({"Orata", "Sogliola"}));
}

TEST_F(GeneraMenuTest, WithoutBreakfastsSnacksSidesOrBreadsNoDayIsWritten)
{
    for (const char *where :
         {"tipo = 'Colazione'", "tipo = 'Spuntino'", "Categoria = 'Contorno'", "Categoria = 'Pane'"}) {
        dati.Execute("DELETE * FROM Sostituisci");
        fillCatalogue();
        dati.Execute(QStringLiteral("DELETE * FROM Sostituisci WHERE ") + where);
        insiemi.Apri(dati);
        EXPECT_NE(failureOf(choice("02/03/2025", "05/03/2025")), "") << where;
        EXPECT_EQ(menu(), QStringList()) << where;
    }
}

TEST_F(GeneraMenuTest, WithoutDishesOfTypeMenuItFailsBeforeTheRangeIsDeleted)
{
    insertRows(dati, "Menu", "DataMenu", {"#3/2/2025#"});
    dati.Execute("DELETE * FROM Sostituisci WHERE Sostituisci.tipo = 'menu'");
    insiemi.Apri(dati);
    EXPECT_NE(failureOf(choice("02/03/2025", "05/03/2025")), "");
    EXPECT_EQ(column("DataMenu"), QStringList("02/03/2025"));
}

TEST_F(GeneraMenuTest, DishesWithApostrophesEnterTheMenuAsTheyAre)
{
    insertRows(dati, "Sostituisci", "Piatto, tipo, Categoria, Ordine",
               {"'Spigola all''acqua pazza', 'Menu', 'Pesce', 0"});
    insiemi.Apri(dati);
    SceltaMenu scelta = choice("02/03/2025", "04/03/2025");
    scelta.Check[3] = true;
    scelta.Freq[3] = "0";
    generate(scelta);
    EXPECT_EQ(column("Pranzo"), QStringList({"Orata", "Sogliola", "Spigola all'acqua pazza"}));
}

TEST_F(GeneraMenuTest, ADishWithoutACategoryStaysOutOfEveryComplement)
{
    insertRows(dati, "Sostituisci", "Piatto, tipo, Ordine", {"'Senza nome', 'Menu', 0"});
    insiemi.Apri(dati);
    SceltaMenu scelta = choice("01/03/2025", "31/03/2025");
    scelta.Check[3] = true; // fish at lunch
    scelta.Freq[3] = "-1";  // never: the complement every day
    GeneraMenuProvvisori(world.modulo, insiemi, scelta);
    EXPECT_EQ(column("Pranzo").size(), 31);
    EXPECT_FALSE(column("Pranzo").contains("Senza nome"));
    EXPECT_TRUE(column("Cena").contains("Senza nome")); // no kind was chosen there
}

TEST_F(GeneraMenuTest, AfterAGroupOfWritesWasLostTheNextRunStartsFromWhatTheArchiveHolds)
{
    // As a full disk does: the engine gives up the whole group.
    QFile schema(CIBRA_SOURCE_DIR "/archive/schema.sql");
    ASSERT_TRUE(schema.open(QIODevice::ReadOnly));
    const QString path = world.cartella.path("Pieno.Mdb");
    makeArchive(path, QString::fromUtf8(schema.readAll()) +
                          "CREATE TRIGGER Pieno BEFORE INSERT ON Menu WHEN NEW.DataMenu = '2025-03-05' "
                          "BEGIN SELECT RAISE(ROLLBACK, 'pieno'); END;");
    dati.Close();
    ASSERT_TRUE(dati.Open(path));
    fillCatalogue();
    insiemi.Apri(dati);
    const SceltaMenu scelta = choice("01/03/2025", "08/03/2025");
    EXPECT_NE(wordsOf([&] { GeneraMenuProvvisori(world.modulo, insiemi, scelta); }), "");
    EXPECT_EQ(countOf(dati, "Menu"), 0);
    EXPECT_EQ(valueOf(dati, "Select Max(Ordine) from Sostituisci"), "0");
    dati.Execute("DROP TRIGGER Pieno");
    EXPECT_EQ(wordsOf([&] { GeneraMenuProvvisori(world.modulo, insiemi, scelta); }), "");
    EXPECT_EQ(countOf(dati, "Menu"), 8);
}

TEST_F(GeneraMenuTest, TheClosingQuestionHasNoAsItsButtonAtHand)
{
    world.dialoghi.answer(MsgAnswer::No);
    EXPECT_FALSE(ChiediCompilazione(world.modulo));
    world.dialoghi.answer(MsgAnswer::Si);
    EXPECT_TRUE(ChiediCompilazione(world.modulo));
    EXPECT_EQ(world.dialoghi.boxes().first(),
              "MsgBox 324 \"OK\" Elaborazione effettuata con successo!\nAdesso devo compilare i menu giornalieri per "
              "renderli visibili,\nVuoi Procedere? ");
}

} // namespace
