#include "sheet/SostituisciAlimento.h"

#include "support/TestWorld.h"

#include <gtest/gtest.h>

namespace {

const QString kPiatti = QStringLiteral("SELECT Piatto, Alimento, KC100gr, quantita, KcNominale, Totale1, quantita2, "
                                       "KcNominale2, Totale2 FROM Piatti ORDER BY ID");

class SostituisciAlimentoTest : public testing::Test
{
protected:
    SostituisciAlimentoTest() : dati(world.openArchive()) { world.setHousehold(); }

    void insertPiatti(const QStringList &rows)
    {
        insertRows(dati, "Piatti",
                   "Piatto, Alimento, KC100gr, quantita, KcNominale, Totale1, quantita2, KcNominale2, Totale2", rows);
    }
    // What the choice brings, in the order of the boxes that it fills; null as "-".
    QStringList brought(const QString &choice)
    {
        const std::optional<AlimentoSostituto> food = LeggiSostituto(world.modulo, choice, "Pasta al pomodoro");
        if (!food)
            return {};
        QStringList texts;
        for (const Value &value : {food->Alimento, food->KC100gr, food->Kcnominale, food->quantita, food->totale1,
                                   food->Kcnominale2, food->quantita2, food->totale2})
            texts.append(value.isNull() ? "-" : value.text());
        return texts;
    }

    TestWorld world;
    Connection &dati;
};

TEST_F(SostituisciAlimentoTest, TheFoodsAreListedByNameWithTheLowestCaloriesOfTheirGroup)
{
    insertRows(dati, "Categorie", "ID, TIPO, Alimento, Kcal",
               {"1, 2, 'Pane', 270", "2, 2, ' Pane ', 265.5", "3, 1, 'Latte', 64", "4, 1, 'Acqua', 0"});
    EXPECT_EQ(AlimentiSostitutivi(world.modulo), QStringList({"Acqua / 0", "Latte / 64", "Pane / 265,5"}));
}

TEST_F(SostituisciAlimentoTest, AFoodOfGroup999IsNotOffered)
{
    insertRows(dati, "Categorie", "ID, TIPO, Alimento, Kcal", {"1, 999, 'Ritirato', 1", "2, 1, 'Latte', 64"});
    EXPECT_EQ(AlimentiSostitutivi(world.modulo), QStringList("Latte / 64"));
}

TEST_F(SostituisciAlimentoTest, OneNameInTwoGroupsIsOfferedTwiceEachWithItsOwnCalories)
{
    insertRows(dati, "Categorie", "ID, TIPO, Alimento, Kcal",
               {"1, 1, 'Soia', 400", "2, 5, 'Soia', 80", "3, 5, 'Soia', 70"});
    EXPECT_EQ(AlimentiSostitutivi(world.modulo), QStringList({"Soia / 400", "Soia / 70"}));
}

TEST_F(SostituisciAlimentoTest, AnEmptyFoodSheetOffersNothing)
{
    EXPECT_TRUE(AlimentiSostitutivi(world.modulo).isEmpty());
}

TEST_F(SostituisciAlimentoTest, AFoodKnownToADishComesWithThePortionsOfItsFirstRowWhateverTheDish)
{
    insertPiatti({"'Toast', 'Pane', 270, 60, 1100, 162, 90, 1500, 243", "'Panino', 'Pane', 270, 1, 1, 1, 1, 1, 1"});
    EXPECT_EQ(brought("Pane / 270"), QStringList({"Pane", "270", "1100", "60", "162", "1500", "90", "243"}));
    EXPECT_EQ(countOf(dati, "Piatti"), 2);
}

TEST_F(SostituisciAlimentoTest, AFoodNeverUsedIsAddedToTheDishesWithTheTargetsAndNoPortions)
{
    EXPECT_EQ(brought("Zucca  / 18,5"), QStringList({"Zucca", "18,5", "1100", "0", "0", "1500", "0", "0"}));
    EXPECT_EQ(rowsOf(dati, kPiatti), QStringList("Pasta al pomodoro | Zucca | 18,5 | 0 | 1100 | 0 | 0 | 1500 | 0"));
    EXPECT_EQ(world.modulo.RigaLetta, "Zucca ");
}

TEST_F(SostituisciAlimentoTest, TheFirstSeparatorPartsTheNameAlsoWhereTheNameHoldsOne)
{
    insertPiatti({"'Toast', 'Pane', 270, 60, 1100, 162, 90, 1500, 243"});
    EXPECT_EQ(brought("Pane / integrale / 240").value(0), "Pane");
}

TEST_F(SostituisciAlimentoTest, ATextWithoutASeparatorDoesNothing)
{
    EXPECT_TRUE(brought("Pane").isEmpty());
    EXPECT_TRUE(brought("Pane/270").isEmpty());
    EXPECT_TRUE(brought("").isEmpty());
    EXPECT_EQ(countOf(dati, "Piatti"), 0);
}

TEST_F(SostituisciAlimentoTest, ANullTotalComesAsZeroAndANullPortionAsItIs)
{
    insertPiatti({"'Toast', 'Pane', 270, Null, 1100, Null, Null, 1500, Null"});
    EXPECT_EQ(brought("Pane / 270"), QStringList({"Pane", "270", "1100", "-", "0", "1500", "-", "0"}));
}

TEST_F(SostituisciAlimentoTest, CaloriesThatAreNoNumberFailAndAddNothing)
{
    EXPECT_THROW(brought("Zucca / molte"), Failure);
    EXPECT_EQ(countOf(dati, "Piatti"), 0);
}

TEST_F(SostituisciAlimentoTest, ANameWithAnApostropheFails)
{
    EXPECT_THROW(brought("Olio d'oliva / 900"), Failure);
    EXPECT_EQ(countOf(dati, "Piatti"), 0);
}

} // namespace
