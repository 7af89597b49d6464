#include "CatalogoEsempio.h"

#include "core/Vocabulary.h"
#include "CreaArchivio.h"
#include "platform/store/Connection.h"
#include "support/Printers.h"
#include "support/TemporaryFolder.h"
#include "support/TestArchive.h"

#include <gmock/gmock.h>

namespace {

using ::testing::Contains;
using ::testing::Each;

TEST(TestoComposizioneTest, FoodsComeFirstThenTheSubstitutesALineEach)
{
    EXPECT_EQ(testoComposizione({{"Pasta di semola", 60}, {"Olio d’oliva", 7.5}}, {"Risotto", "Pasta e ceci"}),
              "- Pasta di semola (60 gr.)\r\n- Olio d’oliva (7,5 gr.)\r\nRisotto\r\nPasta e ceci");
    EXPECT_EQ(testoComposizione({{"Mele", 120}}, {}), "- Mele (120 gr.)");
}

class CatalogoEsempioTest : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        s_folder = std::make_unique<TemporaryFolder>();
        creaArchivioEsempio(s_folder->path("famiglia.db"), QDate(2025, 3, 1));
        s_archive = std::make_unique<Connection>();
        ASSERT_TRUE(s_archive->Open(s_folder->path("famiglia.db")));
    }
    static void TearDownTestSuite()
    {
        s_archive.reset();
        s_folder.reset();
    }

    static Connection &archive() { return *s_archive; }
    static QStringList rows(const QString &statement) { return rowsOf(archive(), statement); }

private:
    inline static std::unique_ptr<TemporaryFolder> s_folder;
    inline static std::unique_ptr<Connection> s_archive;
};

TEST_F(CatalogoEsempioTest, EveryTableHoldsWhatTheListsHold)
{
    EXPECT_EQ(countOf(archive(), "CategorieMaster"), 20);
    EXPECT_EQ(countOf(archive(), "Categorie"), 436);
    EXPECT_EQ(countOf(archive(), "Sostituisci"), 168);
    EXPECT_EQ(countOf(archive(), "Piatti"), 528);
    EXPECT_EQ(countOf(archive(), "GruppoPiattiSostituiti"), 638);
    EXPECT_EQ(countOf(archive(), "Menu"), 0);
    EXPECT_EQ(countOf(archive(), "SchedaPranzo"), 0);
}

TEST_F(CatalogoEsempioTest, AFoodHasItsValuesAndNullWhereTheSourceHasNone)
{
    EXPECT_EQ(
        rows("SELECT ID, DataInserimento, TIPO, Alimento, Kcal, Acqua_G, Amido, Folico FROM Categorie WHERE ID = 1"),
        QStringList("1 | 01/03/2025 | 1 | Amido di mais | 381 | 8,32 | - | 0"));
}

TEST_F(CatalogoEsempioTest, EveryFoodBelongsToAGroup)
{
    EXPECT_EQ(rows("SELECT Categorie.Alimento FROM Categorie LEFT JOIN CategorieMaster"
                   " ON Categorie.TIPO = CategorieMaster.ID WHERE CategorieMaster.ID IS NULL"),
              QStringList());
}

TEST_F(CatalogoEsempioTest, ThePortionsOfADishAddUpToItsCalories)
{
    EXPECT_EQ(rows("SELECT Piatto, KCalOndira, KCalTesmo, tipo, Categoria, Preferito, Ordine FROM Sostituisci"
                   " WHERE Piatto = 'Pasta al pesto'"),
              QStringList("Pasta al pesto | 294,2 | 386,3 | Menu | Pasta - Minestra | Vero | 0"));
    EXPECT_EQ(rows("SELECT DataInserimento, Alimento, KC100gr, quantita, KcNominale, Totale1, quantita2, KcNominale2,"
                   " Totale2 FROM Piatti WHERE Piatto = 'Pasta al pesto' ORDER BY ID"),
              QStringList({"01/03/2025 | Pasta di semola | 371 | 60 | 1100 | 222,6 | 80 | 1500 | 296,8",
                           "01/03/2025 | Pesto alla genovese | 370 | 16 | 1100 | 59,2 | 20 | 1500 | 74",
                           "01/03/2025 | Fagiolini | 31 | 40 | 1100 | 12,4 | 50 | 1500 | 15,5"}));
}

TEST_F(CatalogoEsempioTest, ADishIsToldInWordsForEachPerson)
{
    const QString substitutes = "\r\nZuppa di farro e fagioli\r\nPenne all’arrabbiata\r\nTortellini in brodo\r\n"
                                "Pasta e ceci\r\nRisotto allo zafferano";
    EXPECT_EQ(valueOf(archive(), "SELECT sostituisci1100 FROM Sostituisci WHERE Piatto = 'Pasta al pesto'"),
              "- Pasta di semola (60 gr.)\r\n- Pesto alla genovese (16 gr.)\r\n- Fagiolini (40 gr.)" + substitutes);
    EXPECT_EQ(valueOf(archive(), "SELECT sostituisci1500 FROM Sostituisci WHERE Piatto = 'Pasta al pesto'"),
              "- Pasta di semola (80 gr.)\r\n- Pesto alla genovese (20 gr.)\r\n- Fagiolini (50 gr.)" + substitutes);
}

TEST_F(CatalogoEsempioTest, EverySubstituteIsADishAndStandsInBothDirections)
{
    const QStringList pairs = rows("SELECT alimento, sostituisci FROM GruppoPiattiSostituiti");
    const QStringList dishes = rows("SELECT Piatto FROM Sostituisci");
    for (const QString &pair : pairs) {
        const QStringList two = pair.split(" | ");
        ASSERT_EQ(two.size(), 2);
        EXPECT_NE(two[0], two[1]);
        EXPECT_TRUE(dishes.contains(two[1])) << two[1].toStdString();
        EXPECT_TRUE(pairs.contains(two[1] + " | " + two[0])) << pair.toStdString();
    }
    EXPECT_EQ(QSet<QString>(pairs.begin(), pairs.end()).size(), pairs.size());
}

TEST_F(CatalogoEsempioTest, TheReservedNamesHaveTheirClassAndFoods)
{
    ASSERT_EQ(NomiRiservati().size(), 14);
    for (const QString &name : NomiRiservati()) {
        const QString type = name.startsWith("Colazione") ? "Colazione" : "Spuntino";
        EXPECT_EQ(valueOf(archive(), QString("SELECT tipo FROM Sostituisci WHERE Piatto = '%1'").arg(name)), type);
        EXPECT_FALSE(rows(QString("SELECT Alimento FROM Piatti WHERE Piatto = '%1'").arg(name)).isEmpty());
    }
}

TEST_F(CatalogoEsempioTest, EveryKindThatThePlannerLooksForHasDishesAndFavourites)
{
    for (const char *kind : {"Carne", "Pesce", "Panino - Pizza", "Pasta - Minestra", "Piatto unico", "Contorno"}) {
        const QString where = QString("FROM Sostituisci WHERE Categoria = '%1' AND tipo = 'menu'").arg(kind);
        EXPECT_GE(valueOf(archive(), "SELECT Count(*) " + where).toInt(), 8) << kind;
        EXPECT_GE(valueOf(archive(), "SELECT Count(*) " + where + " AND Preferito = True").toInt(), 1) << kind;
    }
    EXPECT_EQ(rows("SELECT Piatto, tipo FROM Sostituisci WHERE Categoria = 'Pane'").size(), 4);
}

TEST_F(CatalogoEsempioTest, NoNameHoldsAnApostropheThatWouldBreakAStatement)
{
    for (const char *column : {"Sostituisci.Piatto", "Piatti.Alimento", "Categorie.Alimento"}) {
        const QString table = QString(column).section('.', 0, 0);
        for (const QString &name : rows(QString("SELECT %1 FROM %2").arg(column, table)))
            EXPECT_FALSE(name.contains('\'')) << name.toStdString();
    }
}

} // namespace
