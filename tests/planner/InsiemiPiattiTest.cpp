#include "planner/InsiemiPiatti.h"

#include "planner/PlannerTest.h"

namespace {

class InsiemiPiattiTest : public PlannerTest
{
protected:
    static QStringList dishes(const std::unique_ptr<Recordset> &rs)
    {
        QStringList names;
        for (int row = 0; row < rs->RecordCount(); ++row)
            names.append(rs->valueAt(row, rs->fieldIndex("Piatto")).text());
        return names;
    }

    void setOrdine(const QString &Piatto, int ordine)
    {
        dati.Execute(QStringLiteral("UPDATE Sostituisci SET Sostituisci.Ordine = %1 WHERE Piatto = '%2'")
                         .arg(QString::number(ordine), Piatto));
    }
};

TEST_F(InsiemiPiattiTest, TheLoadStatementsStandLetterByLetter)
{
    insiemi.Apri(dati);
    const QString kind = "SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, Sostituisci.Categoria From "
                         "Sostituisci WHERE ";
    const QString meal = "SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, Sostituisci.tipo From "
                         "Sostituisci WHERE ";
    EXPECT_EQ(insiemi.ColazioneRs->Source(),
              meal + "(((Sostituisci.Piatto)<>'Colazione 1') AND ((Sostituisci.tipo)='colazione')) and "
                     "(((Sostituisci.Piatto)<>'Colazione 2') AND ((Sostituisci.tipo)='colazione')) and "
                     "(((Sostituisci.Piatto)<>'Colazione 3') AND ((Sostituisci.tipo)='colazione')) and "
                     "(((Sostituisci.Piatto)<>'Colazione 4') AND ((Sostituisci.tipo)='colazione')) and "
                     "(((Sostituisci.Piatto)<>'Colazione 5') AND ((Sostituisci.tipo)='colazione')) and "
                     "(((Sostituisci.Piatto)<>'Colazione 6') AND ((Sostituisci.tipo)='colazione')) and "
                     "(((Sostituisci.Piatto)<>'Colazione 7') AND ((Sostituisci.tipo)='colazione')) "
                     "order by Sostituisci.ordine;");
    EXPECT_EQ(insiemi.SpuntinoRs->Source(),
              meal + "(((Sostituisci.Piatto)<>'Spuntino 1') AND ((Sostituisci.tipo)='Spuntino')) and "
                     "(((Sostituisci.Piatto)<>'Spuntino 2') AND ((Sostituisci.tipo)='Spuntino')) and "
                     "(((Sostituisci.Piatto)<>'Spuntino 3') AND ((Sostituisci.tipo)='Spuntino')) and "
                     "(((Sostituisci.Piatto)<>'Spuntino 4') AND ((Sostituisci.tipo)='Spuntino')) and "
                     "(((Sostituisci.Piatto)<>'Spuntino 5') AND ((Sostituisci.tipo)='Spuntino')) and "
                     "(((Sostituisci.Piatto)<>'Spuntino 6') AND ((Sostituisci.tipo)='Spuntino')) and "
                     "(((Sostituisci.Piatto)<>'Spuntino 7') AND ((Sostituisci.tipo)='Spuntino')) "
                     "order by Sostituisci.ordine;");
    EXPECT_EQ(insiemi.CarneRs->Source(), kind + "(((Sostituisci.Categoria)='Carne')) order by Sostituisci.ordine;");
    EXPECT_EQ(insiemi.PesceRs->Source(), kind + "(((Sostituisci.Categoria)='Pesce')) order by Sostituisci.ordine;");
    EXPECT_EQ(insiemi.PaninoRs->Source(),
              kind + "(((Sostituisci.Categoria)='Panino - Pizza')) order by Sostituisci.ordine;");
    EXPECT_EQ(insiemi.PastaRs->Source(), kind + "  Sostituisci.Categoria ='Pasta - Minestra'  ;");
    EXPECT_EQ(insiemi.PiattoUnicoRs->Source(), kind + "  Sostituisci.Categoria ='Piatto unico'  ;");
    EXPECT_EQ(insiemi.ContornoRs->Source(),
              kind + "(((Sostituisci.Categoria)='Contorno')) order by Sostituisci.ordine;");
    EXPECT_EQ(insiemi.menuRs->Source(),
              "SELECT Sostituisci.ordine, Sostituisci.Id, Sostituisci.Piatto, Sostituisci.tipo, sostituisci.Categoria "
              "FROM Sostituisci WHERE (((Sostituisci.tipo)='menu')) order by Sostituisci.ordine;");
    EXPECT_EQ(insiemi.PaneRs->Source(),
              "SELECT Sostituisci.Id, Sostituisci.ordine, Sostituisci.Piatto, Sostituisci.tipo FROM Sostituisci WHERE "
              "(((Sostituisci.categoria)='Pane')) order by Sostituisci.ordine;");
}

TEST_F(InsiemiPiattiTest, EachSetHoldsItsKindWithoutTheNumberedMeals)
{
    fillCatalogue();
    insiemi.Apri(dati);
    EXPECT_EQ(dishes(insiemi.ColazioneRs), QStringList({"Caffelatte", "Yogurt e miele"}));
    EXPECT_EQ(dishes(insiemi.SpuntinoRs), QStringList({"Mela", "Pera"}));
    EXPECT_EQ(dishes(insiemi.CarneRs), QStringList({"Manzo", "Pollo"}));
    EXPECT_EQ(dishes(insiemi.PesceRs), QStringList({"Orata", "Sogliola"}));
    EXPECT_EQ(dishes(insiemi.PaninoRs), QStringList({"Toast", "Pizza"}));
    EXPECT_EQ(dishes(insiemi.PastaRs), QStringList({"Ravioli", "Zuppa"}));
    EXPECT_EQ(dishes(insiemi.PiattoUnicoRs), QStringList({"Paella", "Cuscus"})); // whatever the capital of Unico
    EXPECT_EQ(dishes(insiemi.ContornoRs), QStringList({"Fagiolini", "Spinaci"}));
    EXPECT_EQ(dishes(insiemi.menuRs), QStringList({"Manzo", "Pollo", "Orata", "Sogliola", "Toast", "Pizza", "Ravioli",
                                                   "Zuppa", "Paella", "Cuscus"}));
    EXPECT_EQ(dishes(insiemi.PaneRs), QStringList({"Rosetta", "Grissini"}));
}

TEST_F(InsiemiPiattiTest, AtLoadPastaAndSingleDishesComeUnorderedTheOthersByTheirNumber)
{
    fillCatalogue();
    for (const char *first :
         {"Caffelatte", "Mela", "Manzo", "Orata", "Toast", "Ravioli", "Paella", "Fagiolini", "Rosetta"})
        setOrdine(first, 5);
    insiemi.Apri(dati);
    EXPECT_EQ(dishes(insiemi.ColazioneRs), QStringList({"Yogurt e miele", "Caffelatte"}));
    EXPECT_EQ(dishes(insiemi.SpuntinoRs), QStringList({"Pera", "Mela"}));
    EXPECT_EQ(dishes(insiemi.CarneRs), QStringList({"Pollo", "Manzo"}));
    EXPECT_EQ(dishes(insiemi.PesceRs), QStringList({"Sogliola", "Orata"}));
    EXPECT_EQ(dishes(insiemi.PaninoRs), QStringList({"Pizza", "Toast"}));
    EXPECT_EQ(dishes(insiemi.PastaRs), QStringList({"Ravioli", "Zuppa"}));
    EXPECT_EQ(dishes(insiemi.PiattoUnicoRs), QStringList({"Paella", "Cuscus"}));
    EXPECT_EQ(dishes(insiemi.ContornoRs), QStringList({"Spinaci", "Fagiolini"}));
    EXPECT_EQ(dishes(insiemi.PaneRs), QStringList({"Grissini", "Rosetta"}));
    EXPECT_EQ(dishes(insiemi.menuRs), QStringList({"Pollo", "Sogliola", "Pizza", "Zuppa", "Cuscus", "Manzo", "Orata",
                                                   "Toast", "Ravioli", "Paella"}));
}

TEST_F(InsiemiPiattiTest, TheFavouritesStatementsStandLetterByLetter)
{
    for (const char *Categoria : {"Carne", "Pesce", "Panino - Pizza", "Pasta - Minestra", "Piatto unico", "Contorno"})
        addDish(Categoria, "menu", Categoria, true);
    insiemi.SoloPreferiti(dati);
    const QString chain =
        "SELECT Sostituisci.id, Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Preferito, Sostituisci.Ordine From "
        "Sostituisci WHERE (((Sostituisci.Piatto)<>'Colazione 1' And (Sostituisci.Piatto)<>'Colazione 2' And "
        "(Sostituisci.Piatto)<>'Colazione 3' And (Sostituisci.Piatto)<>'Colazione 4' And "
        "(Sostituisci.Piatto)<>'Colazione 5' And (Sostituisci.Piatto)<>'Colazione 6' And "
        "(Sostituisci.Piatto)<>'Colazione 7' And (Sostituisci.Piatto)<>'Spuntino 1' And "
        "(Sostituisci.Piatto)<>'Spuntino 2' And (Sostituisci.Piatto)<>'Spuntino 3' And "
        "(Sostituisci.Piatto)<>'Spuntino 4' And (Sostituisci.Piatto)<>'Spuntino 5' And "
        "(Sostituisci.Piatto)<>'Spuntino 6' And (Sostituisci.Piatto)<>'Spuntino 7') AND ";
    EXPECT_EQ(insiemi.ColazioneRs->Source(), " " + chain + "((Sostituisci.tipo)='Colazione')) order by Ordine, ID;");
    EXPECT_EQ(insiemi.SpuntinoRs->Source(), chain + "((Sostituisci.tipo)='Spuntino'))  order by Ordine, ID;");
    const QString kind = "SELECT  Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine From "
                         "Sostituisci WHERE ";
    EXPECT_EQ(insiemi.CarneRs->Source(),
              kind + " Preferito = true and   (((Sostituisci.Categoria)='Carne'))  order by Ordine, ID;");
    EXPECT_EQ(insiemi.PesceRs->Source(),
              kind + " Preferito = true and   (((Sostituisci.Categoria)='Pesce'))  order by Ordine, ID;");
    EXPECT_EQ(insiemi.PaninoRs->Source(),
              kind + "  Preferito = true and  (((Sostituisci.Categoria)='Panino - Pizza')) order by Ordine, ID;");
    EXPECT_EQ(insiemi.PastaRs->Source(),
              kind + "  Preferito = true and  Sostituisci.Categoria ='Pasta - Minestra'  order by Ordine ;");
    EXPECT_EQ(insiemi.PiattoUnicoRs->Source(),
              kind + " Preferito = true and   Sostituisci.Categoria ='Piatto unico'  order by Ordine ;");
    EXPECT_EQ(insiemi.ContornoRs->Source(), kind + "  Preferito = true and  (((Sostituisci.Categoria)='Contorno'));");
    EXPECT_EQ(insiemi.menuRs->Source(),
              "SELECT  Sostituisci.id, Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Ordine,  "
              "sostituisci.Categoria  FROM Sostituisci WHERE   Preferito = true and  (((Sostituisci.tipo)='menu')) "
              "order by Ordine, ID;");
}

TEST_F(InsiemiPiattiTest, TheFallbackStatementsStandLetterByLetter)
{
    insiemi.SoloPreferiti(dati);
    const QString kind = "SELECT  Sostituisci.id, Sostituisci.Piatto, Sostituisci.Categoria, Sostituisci.Ordine From "
                         "Sostituisci WHERE ";
    EXPECT_EQ(insiemi.CarneRs->Source(), kind + "  (((Sostituisci.Categoria)='Carne'))  order by Ordine, ID;");
    EXPECT_EQ(insiemi.PesceRs->Source(), kind + "  (((Sostituisci.Categoria)='Pesce')) order by Ordine, ID;");
    EXPECT_EQ(insiemi.PaninoRs->Source(), kind + " (((Sostituisci.Categoria)='Panino - Pizza')) order by Ordine, ID;");
    EXPECT_EQ(insiemi.PastaRs->Source(), kind + "Sostituisci.Categoria ='Pasta - Minestra'  order by Ordine ;");
    EXPECT_EQ(insiemi.PiattoUnicoRs->Source(), kind + "Sostituisci.Categoria ='Piatto unico'  order by Ordine ;");
    EXPECT_EQ(insiemi.ContornoRs->Source(), kind + "(((Sostituisci.Categoria)='Contorno')) order by Ordine, ID;");
    EXPECT_EQ(insiemi.menuRs->Source(),
              "SELECT  Sostituisci.id, Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Ordine,  "
              "sostituisci.Categoria  FROM Sostituisci WHERE (((Sostituisci.tipo)='menu'))  order by Ordine, ID;");
}

TEST_F(InsiemiPiattiTest, OneKindRunsOnItsFavouritesWhileTheNextFallsBackToAllItsDishes)
{
    fillCatalogue();
    setOrdine("Manzo", 8);
    insiemi.Apri(dati);
    insiemi.SoloPreferiti(dati);
    EXPECT_EQ(dishes(insiemi.CarneRs), QStringList("Manzo"));
    EXPECT_EQ(dishes(insiemi.PesceRs), QStringList({"Orata", "Sogliola"}));
    EXPECT_EQ(dishes(insiemi.PastaRs), QStringList({"Ravioli", "Zuppa"}));
    EXPECT_EQ(dishes(insiemi.ContornoRs), QStringList({"Fagiolini", "Spinaci"}));
    EXPECT_EQ(dishes(insiemi.menuRs), QStringList("Manzo"));
}

TEST_F(InsiemiPiattiTest, BreakfastsAndSnacksStayWholeAndComeInKeyOrder)
{
    fillCatalogue();
    addDish("Brioche", "Colazione", "Cereali", true);
    setOrdine("Caffelatte", 5);
    setOrdine("Mela", 5);
    insiemi.Apri(dati);
    insiemi.SoloPreferiti(dati);
    EXPECT_EQ(dishes(insiemi.ColazioneRs), QStringList({"Caffelatte", "Yogurt e miele", "Brioche"}));
    EXPECT_EQ(dishes(insiemi.SpuntinoRs), QStringList({"Mela", "Pera"}));
    EXPECT_EQ(rowsOf(dati, "SELECT Sostituisci.Piatto From Sostituisci WHERE Sostituisci.Ordine <> 0"), QStringList());
}

TEST_F(InsiemiPiattiTest, TheBreadsStayAsTheyWereLoaded)
{
    fillCatalogue();
    insiemi.Apri(dati);
    insiemi.PaneRs->MoveNext();
    insiemi.SoloPreferiti(dati);
    EXPECT_EQ(insiemi.PaneRs->value("Piatto").text(), "Grissini");
}

} // namespace
