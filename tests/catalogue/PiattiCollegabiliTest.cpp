#include "catalogue/PiattiCollegabili.h"

#include "catalogue/CatalogueRows.h"

#include <gtest/gtest.h>

namespace {

TEST(PiattiCollegabiliTest, TheTwoListsAskByDifferentStatementsLetterByLetter)
{
    EXPECT_EQ(IstruzioneCollegabiliDaTipo("menu", ""), corpusStatement("piatti", "list-kind"));
    EXPECT_EQ(IstruzioneCollegabiliDaTipo("Menu", "Carne"), corpusStatement("piatti", "list-kind-category"));
    EXPECT_EQ(IstruzioneCollegabiliDaCategoria("", "Carne"), corpusStatement("piatti", "list-no-kind"));
    EXPECT_EQ(IstruzioneCollegabiliDaCategoria("Menu", "Carne"), corpusStatement("piatti", "list-category"));
}

TEST(PiattiCollegabiliTest, AKindOfBlanksIsNoneForTheCategories)
{
    EXPECT_EQ(IstruzioneCollegabiliDaCategoria("  ", "Carne"),
              corpusStatement("piatti", "list-no-kind").replace("= '')", "= '  ')"));
}

TEST(PiattiCollegabiliTest, BothHideTheNumberedBreakfastsAndSnacks)
{
    TestWorld world;
    Connection &dati = world.openArchive();
    insertDishes(dati, {"'Spuntino 1', 0, 0, 'Spuntino', 'Frutta'", "'spuntino 7', 0, 0, 'Spuntino', 'Frutta'",
                        "'Mela', 0, 0, 'Spuntino', 'Frutta'", "'Yogurt', 0, 0, 'Spuntino', 'Bevanda'",
                        "'Colazione 1', 0, 0, 'Colazione', 'Cereali'", "'Colazione 7', 0, 0, 'Colazione', 'Cereali'",
                        "'Fette', 0, 0, 'Colazione', 'Cereali'"});
    EXPECT_EQ(rowsOf(dati, IstruzioneCollegabiliDaTipo("spuntino", "")),
              QStringList({"Mela | Spuntino", "Yogurt | Spuntino"}));
    EXPECT_EQ(rowsOf(dati, IstruzioneCollegabiliDaTipo("Spuntino", "frutta")), QStringList("Mela | Spuntino | Frutta"));
    EXPECT_EQ(rowsOf(dati, IstruzioneCollegabiliDaTipo("Colazione", "")), QStringList("Fette | Colazione"));
    EXPECT_EQ(rowsOf(dati, IstruzioneCollegabiliDaCategoria("Colazione", "Cereali")), QStringList("Fette | Cereali"));
    EXPECT_EQ(rowsOf(dati, IstruzioneCollegabiliDaCategoria("Spuntino", "Frutta")), QStringList("Mela | Frutta"));
}

TEST(PiattiCollegabiliTest, WithoutAKindTheCategoriesFindOnlyDishesOfTheEmptyKind)
{
    TestWorld world;
    Connection &dati = world.openArchive();
    insertDishes(dati, {"'Pane', 0, 0, '', 'Pane'", "'Arrosto', 0, 0, 'Menu', 'Carne'"});
    EXPECT_EQ(rowsOf(dati, IstruzioneCollegabiliDaCategoria("", "Carne")), QStringList("Pane"));
}

TEST(PiattiCollegabiliTest, TenCategoriesAreOffered)
{
    EXPECT_EQ(CategorieNuovoPiatto(),
              QStringList({"Bevanda", "Bistecca Vegetale", "Carne", "Cereali", "Formaggio", "Frutta", "Piatto Unico",
                           "Panino - Pizza", "Pasta - Minestra", "Pesce"}));
}

} // namespace
