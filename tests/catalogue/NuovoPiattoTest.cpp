#include "catalogue/NuovoPiatto.h"

#include "catalogue/CatalogueRows.h"

#include <gtest/gtest.h>

namespace {

const DatiNuovoPiatto kZuppa{"Zuppa nuova", "Menu", "Pasta - Minestra", "Pasta"};

class NuovoPiattoTest : public testing::Test
{
protected:
    NuovoPiattoTest() : dati(world.openArchive()) {}

    TestWorld world;
    Connection &dati;
};

TEST_F(NuovoPiattoTest, TheQuestionNamesTheDishInCapitalsWithItsClassAndItsModel)
{
    world.dialoghi.answer(MsgAnswer::Si);
    EXPECT_TRUE(ConfermaNuovoPiatto(world.modulo, {"Caffè d’orzo", "Colazione", "Bevanda", "tè"}));
    world.dialoghi.answer(MsgAnswer::No);
    EXPECT_FALSE(ConfermaNuovoPiatto(world.modulo, {}));
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList({"MsgBox 68 \"Inserimento nuovo piatto\" \r\nConfermi l'inserimento del nuovo piatto \"CAFFÈ "
                           "D’ORZO\"\r\nCon classificazione TIPO = \"Colazione\"Categoria \"Bevanda\"(Piatto in "
                           "sostituzione \"TÈ\")",
                           "MsgBox 68 \"Inserimento nuovo piatto\" \r\nConfermi l'inserimento del nuovo piatto \"\"\r\n"
                           "Con classificazione TIPO = \"\"Categoria \"\"(Piatto in sostituzione \"\")"}));
}

TEST_F(NuovoPiattoTest, ItStartsWithoutCaloriesAndIsNoFavourite)
{
    InserisciNuovoPiatto(world.modulo, kZuppa);
    EXPECT_EQ(rowsOf(dati, "Select Piatto, KCalOndira, KCalTesmo, tipo, Categoria, Preferito, Ordine from Sostituisci"),
              QStringList("Zuppa nuova | 0 | 0 | Menu | Pasta - Minestra | Falso | -"));
    EXPECT_EQ(countOf(dati, "Piatti"), 0);
}

TEST_F(NuovoPiattoTest, AGroupOfNRowsMakesTwoAndTwoNRows)
{
    insertPairs(dati, {"'PASTA', 'Riso'", "'Pasta', 'Orzo'", "'Riso', 'Pasta'"});
    CollegaAlGruppo(world.modulo, kZuppa);
    EXPECT_EQ(pairs(dati).mid(3), QStringList({"PASTA | Zuppa nuova", "Zuppa nuova | PASTA", "Riso | Zuppa nuova",
                                               "Zuppa nuova | Riso", "Orzo | Zuppa nuova", "Zuppa nuova | Orzo"}));
}

TEST_F(NuovoPiattoTest, ADishWithoutAGroupMakesNoRows)
{
    insertPairs(dati, {"'Riso', 'Pasta'"});
    CollegaAlGruppo(world.modulo, kZuppa);
    CollegaAlleAlternative(world.modulo, kZuppa);
    EXPECT_EQ(pairs(dati), QStringList("Riso | Pasta"));
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
}

TEST_F(NuovoPiattoTest, TheAlternativesAloneAreLinkedWithoutTheDishItself)
{
    insertPairs(dati, {"'Pasta', 'Riso'", "'Pasta', 'Orzo'"});
    CollegaAlleAlternative(world.modulo, kZuppa);
    EXPECT_EQ(pairs(dati).mid(2),
              QStringList({"Riso | Zuppa nuova", "Zuppa nuova | Riso", "Orzo | Zuppa nuova", "Zuppa nuova | Orzo"}));
}

TEST_F(NuovoPiattoTest, AnApostropheInTheNameFailsAndInsertsNothing)
{
    try {
        InserisciNuovoPiatto(world.modulo, {"L'uovo", "Menu", "Carne", ""});
        FAIL();
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number(), FailureNumber::Engine);
        EXPECT_EQ(failure.words(),
                  "Errore di sintassi nell'istruzione: un nome contiene un apostrofo ('): scrivere ’ al suo posto");
    }
    EXPECT_EQ(countOf(dati, "Sostituisci"), 0);
}

TEST_F(NuovoPiattoTest, AccentsAndTypographicApostrophesGoIn)
{
    insertPairs(dati, {"'Tè', 'Caffè'"});
    const DatiNuovoPiatto dish{"Pò d’orzo", "Colazione", "Bevanda", "tè"};
    InserisciNuovoPiatto(world.modulo, dish);
    CollegaAlGruppo(world.modulo, dish);
    EXPECT_EQ(valueOf(dati, "Select Piatto from Sostituisci"), "Pò d’orzo");
    EXPECT_EQ(pairs(dati).mid(1),
              QStringList({"Tè | Pò d’orzo", "Pò d’orzo | Tè", "Caffè | Pò d’orzo", "Pò d’orzo | Caffè"}));
}

class CancellaDoppioneTest : public NuovoPiattoTest
{
protected:
    QStringList remaining() { return rowsOf(dati, "Select ID, alimento, sostituisci from GruppoPiattiSostituiti"); }
};

TEST_F(CancellaDoppioneTest, TheStatementsStandInTheCorpus)
{
    EXPECT_EQ(corpusStatement("sostituti", "doubles").count("Count("), 3); // what the test below runs through the code
    insertPairs(dati, {"'A', 'B'", "'A', 'B'"});
    EXPECT_EQ(rowsOf(dati, corpusStatement("sostituti", "doubles")), QStringList("B | A | 2 | - | 1"));
}

TEST_F(CancellaDoppioneTest, WithoutDoublesItSaysSoAndChangesNothing)
{
    insertPairs(dati, {"'A', 'B'", "'B', 'A'", "'A', 'C'"});
    CancellaDoppione(world.modulo);
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList("MsgBox 64 \"OK\" Non ci sono record DOPPI nella tabella GruppoPiattiSostituiti "));
    EXPECT_EQ(remaining(), QStringList({"1 | A | B", "2 | B | A", "3 | A | C"}));
}

TEST_F(CancellaDoppioneTest, OnePassTakesTheFirstCopyOfEachPairSoThatThreeNeedTwoPasses)
{
    insertPairs(dati, {"'A', 'B'", "'a', 'b'", "'A', 'B'", "'C', 'D'", "'C', 'D'", "'E', 'F'"});
    CancellaDoppione(world.modulo);
    EXPECT_EQ(remaining(), QStringList({"2 | a | b", "3 | A | B", "5 | C | D", "6 | E | F"}));
    CancellaDoppione(world.modulo);
    EXPECT_EQ(remaining(), QStringList({"3 | A | B", "5 | C | D", "6 | E | F"}));
    EXPECT_EQ(
        world.dialoghi.boxes(),
        QStringList({"MsgBox 64 \"OK\" Cancellazione record doppioni su tabella GruppoPiattiSostituiti effettuata "
                     "con successo",
                     "MsgBox 64 \"OK\" Cancellazione record doppioni su tabella GruppoPiattiSostituiti effettuata "
                     "con successo"}));
}

TEST_F(CancellaDoppioneTest, PairsOfDifferentDaysAreNoDoubles)
{
    insertRows(dati, "GruppoPiattiSostituiti", "alimento, sostituisci, dataInserimento",
               {"'A', 'B', #3/2/2025#", "'A', 'B', #3/3/2025#", "'A', 'B', Null"});
    CancellaDoppione(world.modulo);
    EXPECT_EQ(countOf(dati, "GruppoPiattiSostituiti"), 3);
}

} // namespace
