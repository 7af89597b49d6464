#include "catalogue/forms/PiattiKCAL.h"

#include "catalogue/CatalogueRows.h"
#include "support/FormWorld.h"

#include <gtest/gtest.h>

namespace {

class PiattiKCALFormTest : public testing::Test, protected FormWorld<PiattiKCAL>
{
};

TEST_F(PiattiKCALFormTest, ItListsTheNamedDishesUnderTheNamesOfThePersons)
{
    insertFoods(dati, {"'', 'Pane', 250, 100, 0, 100, 0", "'Toast', 'Pane', 250, 50, 0, 80, 0",
                       "'È buono', 'Riso', 300, 50, 0, 75, 0"});
    show();
    EXPECT_EQ(form().windowTitle(), "Elenco KCalorie per piatti");
    EXPECT_EQ(captions("TDBGrid1"), QStringList({"Piatto", "KCalGr Ondira", "KCalGr Tesmo"}));
    EXPECT_EQ(rows("TDBGrid1"), QStringList({"È buono | 150 | 225", "Toast | 125 | 200"}));
    EXPECT_EQ(control<QLabel>("ImgMarvo").toolTip(), "Tabella SCHEDAPRANZO");
}

TEST_F(PiattiKCALFormTest, ItComputesAtTheMomentOfOpening)
{
    insertFoods(dati, {"'Toast', 'Pane', 250, 50, 0, 80, 0"});
    show();
    key(Qt::Key_Escape);
    EXPECT_FALSE(isLoaded());
    dati.Execute("UPDATE Piatti SET Piatti.quantita = 100;");
    show();
    EXPECT_EQ(rows("TDBGrid1"), QStringList("Toast | 250 | 200"));
}

TEST_F(PiattiKCALFormTest, WithoutDishesTheListIsEmpty)
{
    show();
    EXPECT_EQ(rows("TDBGrid1"), QStringList());
    EXPECT_EQ(failures, QStringList());
}

} // namespace
