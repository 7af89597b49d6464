// What statements rely on in the archive's tables: comparison without case, days as text and as days, copies.
#include "platform/store/Recordset.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

namespace {

struct SchemaTest : testing::Test
{
    TestWorld world;
    Connection &dati = world.openArchive();

    void addToSheet(const QString &day, const QString &kind, double kcal)
    {
        insertRows(dati, "SchedaPranzo", "dataInserimento, PranzoCenaSpuntino, Piatto, Totale1",
                   {QStringLiteral("'%1', '%2', 'Pasta', %3").arg(day, kind, QString::number(kcal))});
    }
};

} // namespace

TEST_F(SchemaTest, ATypeIsFoundInAnySpelling)
{
    insertRows(dati, "Sostituisci", "Piatto, tipo, Categoria",
               {"'Caffè', 'Menu', 'Piatto Unico'", "'Tè', 'colazione', 'Bevanda'"});
    EXPECT_EQ(rowsOf(dati, "Select Piatto from Sostituisci where tipo = 'menu'"), QStringList("Caffè"));
    EXPECT_EQ(rowsOf(dati, "Select Piatto from Sostituisci where CATEGORIA = 'Piatto unico'"), QStringList("Caffè"));
    EXPECT_EQ(rowsOf(dati, "Select Piatto from Sostituisci where piatto = 'CAFFÈ'"), QStringList("Caffè"));
    EXPECT_EQ(rowsOf(dati, "Select Piatto from Sostituisci where Piatto = 'Caffe'"), QStringList());
}

TEST_F(SchemaTest, DayTextsSortAsTextAndTheListOfDaysByDay)
{
    addToSheet("11/01/2025", "Pranzo", 1);
    addToSheet("02/03/2025", "Pranzo", 1);
    EXPECT_EQ(rowsOf(dati, "Select SchedaPranzo.dataInserimento From SchedaPranzo "
                           "ORDER BY SchedaPranzo.dataInserimento DESC, SchedaPranzo.ID"),
              QStringList({"11/01/2025", "02/03/2025"}));
    EXPECT_EQ(rowsOf(dati, "SELECT CDate([SchedaPranzo].[datainserimento]) AS dataInserimento From SchedaPranzo "
                           "GROUP BY CDate([SchedaPranzo].[datainserimento]);"),
              QStringList({"11/01/2025", "02/03/2025"}));
    addToSheet("03/02/2025", "Pranzo", 1);
    EXPECT_EQ(rowsOf(dati, "Select SchedaPranzo.dataInserimento From SchedaPranzo "
                           "ORDER BY SchedaPranzo.dataInserimento DESC, SchedaPranzo.ID"),
              QStringList({"11/01/2025", "03/02/2025", "02/03/2025"}));
    EXPECT_EQ(rowsOf(dati, "SELECT CDate([SchedaPranzo].[datainserimento]) AS dataInserimento From SchedaPranzo "
                           "GROUP BY CDate([SchedaPranzo].[datainserimento]);"),
              QStringList({"11/01/2025", "03/02/2025", "02/03/2025"}));
}

TEST_F(SchemaTest, TheSheetKeepsItsCopiesOfADeletedDish)
{
    insertRows(dati, "Sostituisci", "Piatto, tipo", {"'Pasta', 'Menu'"});
    addToSheet("02/03/2025", "Pranzo", 350);
    dati.Execute("Delete * from Sostituisci where Piatto = 'pasta'");
    EXPECT_EQ(countOf(dati, "Sostituisci"), 0);
    EXPECT_EQ(rowsOf(dati, "Select Piatto, Totale1 from SchedaPranzo"), QStringList("Pasta | 350"));
}

TEST_F(SchemaTest, RowsOfTheKindMenuCountInTheSumAndStandInNoPrintedMeal)
{
    addToSheet("02/03/2025", "Pranzo", 300);
    addToSheet("02/03/2025", "Menu", 50.5);
    EXPECT_EQ(valueOf(dati, "SELECT Sum(SchedaPranzo.Totale1) AS Totale1, SchedaPranzo.dataInserimento "
                            "From SchedaPranzo GROUP BY SchedaPranzo.dataInserimento "
                            "HAVING SchedaPranzo.dataInserimento='02/03/2025'"),
              "350,5");
    EXPECT_EQ(rowsOf(dati, "Select Totale1 from SchedaPranzo where PranzoCenaSpuntino = 'pranzo'"), QStringList("300"));
}

TEST_F(SchemaTest, KcalOfAPortionDividesFirstAndRoundsNothing)
{
    insertRows(dati, "Piatti", "Piatto, KC100gr, quantita, quantita2", {"'Pasta', 250, 80, 125"});
    const QString id = valueOf(dati, "Select ID from Piatti");
    dati.Execute("UPDATE Piatti SET Piatti.Totale1 = [Piatti].[kc100gr]/100*[Piatti].[quantita], Piatti.Totale2 = "
                 "[Piatti].[kc100gr]/100*[Piatti].[quantita2] WHERE (((Piatti.ID)=" +
                 id + "));");
    EXPECT_EQ(rowsOf(dati, "Select Totale1, Totale2 from Piatti"), QStringList("200 | 312,5"));
}
