#include "planner/Preferiti.h"

#include "planner/PlannerTest.h"

namespace {

// What keeps the placeholders of the days out of each of the four statements, letter by letter.
const QString kFilter =
    "Sostituisci.Piatto <>'Colazione 1' AND Sostituisci.Piatto <>'Colazione 2' AND Sostituisci.Piatto <>'Colazione 3'  "
    "and Sostituisci.Piatto <>'Colazione 4' AND Sostituisci.Piatto <>'Colazione 5' AND  Sostituisci.Piatto "
    "<>'Colazione 6' AND Sostituisci.Piatto <>'Colazione 7'  and Sostituisci.Piatto <>'Spuntino 1' AND "
    "Sostituisci.Piatto <>'Spuntino 2' AND Sostituisci.Piatto <>'Spuntino 3'  and Sostituisci.Piatto <>'Spuntino 4' "
    "AND Sostituisci.Piatto <>'Spuntino 5' AND  Sostituisci.Piatto <>'Spuntino 6' AND Sostituisci.Piatto <>'Spuntino "
    "7'";

class PreferitiTest : public PlannerTest
{
protected:
    void prefer(const QString &Piatto)
    {
        dati.Execute("UPDATE Sostituisci SET Preferito = True WHERE Piatto = '" + Piatto + "'");
    }
    QStringList dishes(const QString &query)
    {
        QStringList names;
        for (const QString &row : rowsOf(dati, query))
            names.append(row.section(" | ", 0, 0));
        return names;
    }
    QString verdict(bool expected)
    {
        EXPECT_EQ(VerificaTipi(world.modulo), expected);
        const QStringList boxes = world.dialoghi.takeBoxes();
        EXPECT_EQ(boxes.size(), 1);
        return boxes.value(0);
    }
};

TEST_F(PreferitiTest, EachPairOfListTextsHasItsStatement)
{
    EXPECT_EQ(QueryPreferiti("", ""),
              "Select Piatto, Tipo, Categoria, Preferito from Sostituisci Where " + kFilter + " order by piatto");
    EXPECT_EQ(QueryPreferiti("Menu", ""),
              " SELECT Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Categoria, Sostituisci.Preferito From "
              "Sostituisci WHERE   " +
                  kFilter + " AND  Sostituisci.tipo ='Menu' ;");
    EXPECT_EQ(QueryPreferiti("", "Carne"),
              "SELECT Sostituisci.Piatto, Sostituisci.Tipo, Sostituisci.Categoria, Sostituisci.Preferito FROM "
              "Sostituisci WHERE (((Sostituisci.Categoria)='Carne')) and " +
                  kFilter + " ORDER BY Sostituisci.Piatto;");
    EXPECT_EQ(QueryPreferiti("Menu", "Carne"),
              "Select Piatto, Tipo, Categoria, Preferito from Sostituisci where Categoria = 'Carne' and Tipo = 'Menu' "
              "and " +
                  kFilter + " order by piatto");
}

TEST_F(PreferitiTest, BlanksChooseTheStatementAsNothingAndStandInItAsTheyAre)
{
    EXPECT_EQ(QueryPreferiti("  ", " "), QueryPreferiti("", ""));
    EXPECT_EQ(QueryPreferiti(" Menu", "  ").right(9), "' Menu' ;");
}

TEST_F(PreferitiTest, TheTwoViewsOfTheMenuHaveTheirStatements)
{
    EXPECT_EQ(QuerySoloPreferiti(),
              "SELECT Sostituisci.Piatto, Sostituisci.Tipo, Sostituisci.Categoria, Sostituisci.Preferito FROM "
              "Sostituisci WHERE (((Sostituisci.Preferito)=True)) ORDER BY Sostituisci.Tipo;");
    EXPECT_EQ(QueryTuttaLaTabella(), "SELECT Sostituisci.Piatto, Sostituisci.Tipo, Sostituisci.Categoria, "
                                     "Sostituisci.Preferito FROM Sostituisci  ORDER BY Sostituisci.Tipo;");
}

TEST_F(PreferitiTest, TheListsLeaveThePlaceholdersOutAndTheViewsDoNot)
{
    fillCatalogue();
    prefer("Colazione 1");
    EXPECT_EQ(dishes(QueryPreferiti("", "")),
              QStringList({"Caffelatte", "Cuscus", "Fagiolini", "Grissini", "Manzo", "Mela", "Orata", "Paella", "Pera",
                           "Pizza", "Pollo", "Ravioli", "Rosetta", "Sogliola", "Spinaci", "Toast", "Yogurt e miele",
                           "Zuppa"}));
    EXPECT_EQ(dishes(QueryPreferiti("colazione", "")), QStringList({"Caffelatte", "Yogurt e miele"}));
    EXPECT_EQ(dishes(QueryPreferiti("", "piatto unico")), QStringList({"Cuscus", "Paella"}));
    EXPECT_EQ(dishes(QueryPreferiti("Menu", "Pesce")), QStringList({"Orata", "Sogliola"}));
    EXPECT_EQ(dishes(QueryPreferiti("Merenda", "")), QStringList());
    EXPECT_EQ(dishes(QuerySoloPreferiti()), QStringList({"Colazione 1", "Manzo"}));
    EXPECT_EQ(dishes(QueryTuttaLaTabella()).size(), 20);
}

TEST_F(PreferitiTest, OnlyTheFavouritesAmongTheRowsShownCount)
{
    fillCatalogue();
    prefer("Orata");
    prefer("Mela");
    prefer("Spuntino 1");
    EXPECT_EQ(ContaPreferiti(world.modulo, QueryPreferiti("", "")), 3); // Manzo, Mela, Orata
    EXPECT_EQ(ContaPreferiti(world.modulo, QueryPreferiti("Menu", "")), 2);
    EXPECT_EQ(ContaPreferiti(world.modulo, QueryPreferiti("Menu", "Pesce")), 1);
    EXPECT_EQ(ContaPreferiti(world.modulo, QueryPreferiti("Merenda", "")), 0);
}

TEST_F(PreferitiTest, ATextWithAnApostropheBreaksItsStatementWithAClearError)
{
    EXPECT_EQ(wordsOf([this] { ContaPreferiti(world.modulo, QueryPreferiti("l'altro", "")); }).isEmpty(), false);
    EXPECT_EQ(ContaPreferiti(world.modulo, QueryPreferiti("l’altro", "")), 0);
}

TEST_F(PreferitiTest, ATypeListsTheCategoriesOfItsDishesOnce)
{
    fillCatalogue();
    addDish("Panino", "menu", "PANINO - PIZZA");
    // In which spelling a category of several ones comes is the store's affair.
    EXPECT_EQ(CategorieDelTipo(world.modulo, "Menu").join('|').toLower(),
              "carne|panino - pizza|pasta - minestra|pesce|piatto unico");
    EXPECT_EQ(CategorieDelTipo(world.modulo, "Merenda"), QStringList());
}

TEST_F(PreferitiTest, WithoutAFavouriteTheCheckIsCritical)
{
    addDish("Mela", "Spuntino", "Frutta");
    EXPECT_EQ(verdict(false),
              "MsgBox 16 \"Verifica KO!!\" Non sono stati selezionati nessun preferito nelle categorie Colazione, "
              "Menu, Spuntino \n- Seleziona dal menu generale ' Modifica menu Preferiti '");
}

TEST_F(PreferitiTest, WithTwoTypesTheCheckNamesThemAndHowManyAreMissing)
{
    addDish("Mela", "Spuntino", "Frutta", true);
    addDish("Pera", "Spuntino", "Frutta", true);
    addDish("Manzo", "Menu", "Carne", true);
    EXPECT_EQ(verdict(false), "MsgBox 64 \"Verifica KO\" I tipi di Menu sono COLAZIONE - MENU - SPUNTINO \n\n Ci sono "
                              "solo \n\n Menu\n Spuntino\n\n Verifica ne mancano 1  !!!");
}

TEST_F(PreferitiTest, WithThreeTypesTheCheckIsGood)
{
    addDish("Mela", "Spuntino", "Frutta", true);
    addDish("Manzo", "Menu", "Carne", true);
    addDish("Latte", "Colazione", "Bevanda", true);
    EXPECT_EQ(verdict(true), "MsgBox 64 \"Verifica OK\" Ci sono tutti \n Colazione\n Menu\n Spuntino\n Verifica OK!");
}

TEST_F(PreferitiTest, ATypeOutsideTheThreeCountsLikeAnyOther)
{
    addDish("Mela", "Merenda", "Frutta", true);
    addDish("Manzo", "Menu", "Carne", true);
    addDish("Latte", "Colazione", "Bevanda", true);
    EXPECT_EQ(verdict(true), "MsgBox 64 \"Verifica OK\" Ci sono tutti \n Colazione\n Menu\n Merenda\n Verifica OK!");
    addDish("Pera", "Spuntino", "Frutta", true);
    EXPECT_EQ(verdict(false), "MsgBox 64 \"Verifica KO\" I tipi di Menu sono COLAZIONE - MENU - SPUNTINO \n\n Ci sono "
                              "solo \n\n Colazione\n Menu\n Merenda\n Spuntino\n\n Verifica ne mancano -1  !!!");
}

} // namespace
