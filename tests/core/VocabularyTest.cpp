#include "core/Vocabulary.h"

#include "core/Schermate.h"
#include "support/Printers.h"
#include "support/TestSchermate.h"

#include <gtest/gtest.h>

TEST(VocabularyTest, TypesStandInTheOrderOfTheCombos)
{
    EXPECT_EQ(Tipi(), QStringList({"Colazione", "Menu", "Spuntino"}));
}

TEST(VocabularyTest, TheSingleDishStandsTwiceInTheCombosAndOnceInTheGrids)
{
    EXPECT_EQ(Categorie12(),
              QStringList({"Bevanda", "Bistecca Vegetale", "Carne", "Cereali", "Contorno", "Formaggio", "Frutta",
                           "Piatto Unico", "Panino - Pizza", "Pasta - Minestra", "Pesce", "Piatto unico"}));
    EXPECT_EQ(CategorieGriglia(),
              QStringList({"Bevanda", "Bistecca Vegetale", "Carne", "Cereali", "Contorno", "Formaggio", "Frutta",
                           "Panino - Pizza", "Pasta - Minestra", "Pesce", "Piatto unico"}));
}

TEST(VocabularyTest, FourteenNamesAreReserved)
{
    EXPECT_EQ(NomiRiservati(), QStringList({"Colazione 1", "Colazione 2", "Colazione 3", "Colazione 4", "Colazione 5",
                                            "Colazione 6", "Colazione 7", "Spuntino 1", "Spuntino 2", "Spuntino 3",
                                            "Spuntino 4", "Spuntino 5", "Spuntino 6", "Spuntino 7"}));
}

TEST(ProgressBarTest, GrowsWhileItIsShorterThanItsBoxAndThenStartsAgain)
{
    TestBarra bar;
    bar.picture1 = 1000;
    bar.label5 = 200;
    for (int step = 0; step < 6; ++step)
        AvanzaBarra(bar);
    EXPECT_EQ(bar.widths, (std::vector<double>{550, 900, 1250, 200, 550, 900}));
}

TEST(ProgressBarTest, ABarAsLongAsItsBoxStartsAgain)
{
    TestBarra bar;
    bar.picture1 = 550;
    bar.label5 = 550;
    AvanzaBarra(bar);
    EXPECT_EQ(bar.label5, 200);
}
