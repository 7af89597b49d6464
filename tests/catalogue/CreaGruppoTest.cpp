#include "catalogue/forms/CreaGruppo.h"

#include "catalogue/CatalogueRows.h"
#include "platform/ui/DataCombo.h"
#include "support/FormWorld.h"

#include <gtest/gtest.h>

#include <QAction>

namespace {

class CreaGruppoTest : public testing::Test, protected FormWorld<CreaGruppo>
{
protected:
    CreaGruppoTest()
    {
        insertDishes(dati, {"'Pasta', 0, 0, 'Menu', 'Pasta - Minestra'", "'Riso', 0, 0, 'Menu', 'Pasta - Minestra'",
                            "'Arrosto', 0, 0, 'Menu', 'Carne'", "'Spuntino 1', 0, 0, 'Menu', 'Carne'"});
        insertPairs(dati, {"'Pasta', 'Riso'", "'Riso', 'Pasta'"});
        show();
    }
    QComboBox &combo(const char *name) { return control<QComboBox>(name); }
    QString current(const char *name) { return combo(name).currentText(); }
    QStringList items(const char *name)
    {
        QStringList all;
        for (int i = 0; i < combo(name).count(); ++i)
            all.append(combo(name).itemText(i));
        return all;
    }
    void pick(const char *name, const QString &item)
    {
        combo(name).setCurrentIndex(combo(name).findText(item));
        emit combo(name).activated(combo(name).currentIndex());
    }
    void fill(const QString &title)
    {
        type("Text1", title);
        pick("ComboTipo", "Menu");
        pick("ComboCategoria", "Pasta - Minestra");
    }
};

TEST_F(CreaGruppoTest, ItOffersKindsCategoriesAndNothingElseAtFirst)
{
    EXPECT_EQ(form().windowTitle(), "Crea Gruppo dei piatti alternativi");
    EXPECT_EQ(items("ComboTipo"), QStringList({"Colazione", "Menu", "Spuntino"}));
    EXPECT_EQ(items("ComboCategoria").size(), 10);
    EXPECT_EQ(items("DataCombo2"), QStringList());
    EXPECT_EQ(current("ComboTipo") + current("ComboCategoria") + current("DataCombo2"), "");
}

TEST_F(CreaGruppoTest, TheListOfDishesFollowsKindAndCategory)
{
    pick("ComboTipo", "Menu");
    EXPECT_EQ(items("DataCombo2"), QStringList({"Arrosto", "Pasta", "Riso"}));
    EXPECT_EQ(current("DataCombo2"), "Arrosto");
    pick("ComboCategoria", "Pasta - Minestra");
    EXPECT_EQ(items("DataCombo2"), QStringList({"Pasta", "Riso"}));
    EXPECT_EQ(current("DataCombo2"), "Pasta");
    pick("ComboCategoria", "Frutta");
    EXPECT_EQ(items("DataCombo2"), QStringList());
    EXPECT_EQ(current("DataCombo2"), "Pasta"); // an empty list leaves the text
    pick("ComboTipo", "Spuntino");
    EXPECT_EQ(items("DataCombo2"), QStringList());
}

TEST_F(CreaGruppoTest, LeavingAListRebuildsTheDishesToo)
{
    combo("ComboTipo").setFocus();
    combo("ComboTipo").setEditText("menu");
    EXPECT_EQ(items("DataCombo2"), QStringList());
    key(Qt::Key_Tab);
    EXPECT_EQ(items("DataCombo2"), QStringList({"Arrosto", "Pasta", "Riso"}));
    combo("ComboCategoria").setFocus();
    combo("ComboCategoria").setEditText("carne");
    key(Qt::Key_Tab);
    EXPECT_EQ(items("DataCombo2"), QStringList("Arrosto"));
}

TEST_F(CreaGruppoTest, ANewDishIsLinkedToTheAlternativesOnly)
{
    fill("Zuppa");
    world.dialoghi.answer(MsgAnswer::Si);
    click("Command3");
    EXPECT_EQ(
        world.dialoghi.boxes(),
        QStringList("MsgBox 68 \"Inserimento nuovo piatto\" \r\nConfermi l'inserimento del nuovo piatto \"ZUPPA\"\r\n"
                    "Con classificazione TIPO = \"Menu\"Categoria \"Pasta - Minestra\"(Piatto in sostituzione "
                    "\"PASTA\")"));
    EXPECT_EQ(rowsOf(dati, "Select tipo, Categoria from Sostituisci where Piatto = 'Zuppa'"),
              QStringList("Menu | Pasta - Minestra"));
    EXPECT_EQ(pairs(dati).mid(2), QStringList({"Riso | Zuppa", "Zuppa | Riso"}));
    EXPECT_TRUE(form().isVisible());
    EXPECT_EQ(text("Text1"), "Zuppa");
}

TEST_F(CreaGruppoTest, RefusedItInsertsNothingAndKeepsTheBoxes)
{
    fill("Zuppa");
    world.dialoghi.answer(MsgAnswer::No);
    click("Command3");
    EXPECT_EQ(countOf(dati, "Sostituisci"), 4);
    EXPECT_EQ(countOf(dati, "GruppoPiattiSostituiti"), 2);
    EXPECT_EQ(text("Text1"), "Zuppa");
}

TEST_F(CreaGruppoTest, AnApostropheInAnyBoxIsToldAndNothingIsLost)
{
    fill("L'uovo");
    world.dialoghi.answer(MsgAnswer::Si);
    click("Command3");
    EXPECT_EQ(failures.size(), 1);
    EXPECT_EQ(countOf(dati, "Sostituisci"), 4);
    EXPECT_EQ(text("Text1"), "L'uovo");
    combo("ComboTipo").setFocus();
    combo("ComboTipo").setEditText("d'inverno");
    key(Qt::Key_Tab);
    EXPECT_EQ(failures.size(), 2);
    EXPECT_EQ(current("ComboTipo"), "d'inverno");
}

TEST_F(CreaGruppoTest, AnnullaAndEscCloseIt)
{
    click("Command4");
    EXPECT_FALSE(isLoaded());
    show();
    key(Qt::Key_Escape);
    EXPECT_FALSE(isLoaded());
}

TEST_F(CreaGruppoTest, ItsMenuRemovesDoubledPairs)
{
    insertPairs(dati, {"'Pasta', 'Riso'"});
    control<QAction>("mnuCancella").trigger();
    EXPECT_EQ(pairs(dati), QStringList({"Riso | Pasta", "Pasta | Riso"}));
    EXPECT_EQ(control<QAction>("mnuCancella").text(), "Cancella Doppione");
}

} // namespace
