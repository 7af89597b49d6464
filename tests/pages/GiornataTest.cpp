// The calculator of a day's meals, played in the browser.
#include "pages/PaginaScritta.h"
#include "pages/Sessione.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

const QString kServonoProteine = "Occorre aumentare l'apporto proteico";
const QString kServonoCarboidrati = "Sarebbe bene aumentare l'apporto di carboidrati e zuccheri";
const QString kCorretta = "La composizione della cibra è sostanzialmente corretta";

struct Valori
{
    double acqua;       // g
    double calorie;     // kcal
    double carboidrati; // g
    double proteine;    // g
    double grassi;      // g
};

struct Riga
{
    QString nome;
    QString alimento; // as its list shows it
    int grammi;
    Valori valori;
};

// A day with every row in use, worked out by hand from the values per 100 g.
const QList<Riga> kGiornata = {
    {"A1", "Fette biscottate", 40, {1.12, 162, 30.64, 3.92, 2.36}},
    {"A2", "Kiwi", 100, {83.1, 61, 11.7, 1.1, 0.5}},
    {"A3", "Latte di vacca intero", 250, {217.5, 152.5, 12, 7.75, 8.5}},
    {"A4", "Burro", 10, {1.79, 71.7, 0.01, 0.09, 8.11}},
    {"B1", "Ananas", 150, {129, 75, 17.55, 0.75, 0.15}},
    {"B2", "Pasta all'uovo", 80, {7.2, 307.2, 54.4, 11.36, 3.52}},
    {"B3", "Zucchine", 200, {189.6, 34, 4.2, 2.4, 0.6}},
    {"B4", "Merluzzo e nasello", 150, {121.8, 123, 0, 26.7, 1.05}},
    {"B5", "Parmigiano", 10, {3.04, 40.9, 0, 3.11, 3.1}},
    {"B6", "Vino bianco", 125, {124.875, 88.75, 5, 0, 0}},
    {"B7", "Arachidi tostate>", 15, {0.27, 88.05, 1.935, 3.66, 7.455}},
    {"C1", "Miele", 20, {3.42, 60.8, 16.44, 0.06, 0}},
    {"C2", "Mele", 200, {171.2, 104, 22.8, 0.6, 0.4}},
    {"C3", "Bresaola", 30, {17.13, 49.5, 0, 9.48, 1.29}},
    {"C4", "Olio d'oliva", 5, {0.005, 45, 0, 0, 4.995}},
    {"D1", "Yogurth", 125, {109.875, 76.25, 5.875, 4.375, 4.125}},
    {"D2", "Prosciutto cotto", 60, {43.32, 82.2, 0.54, 12.12, 3.48}},
    {"D3", "Ceci secchi>", 50, {3.85, 189, 25.4, 10.25, 3}},
    {"D4", "Vitello", 120, {90.48, 133.2, 0, 26.16, 3.12}},
    {"D5", "Olio di semi vari", 10, {0, 90, 0, 0, 9.99}},
    {"D6", "Pinoli secchi", 8, {0.184, 53.84, 0.752, 1.096, 5.472}},
    {"D7", "Vino rosso", 100, {99.9, 4, 10.7, 0, 0}},
};
const QList<std::pair<QString, Valori>> kTotaliDeiPasti = {
    {"At", {303.51, 447.2, 54.35, 12.86, 19.47}},
    {"Bt", {575.785, 756.9, 83.085, 47.98, 15.875}},
    {"Ct", {191.755, 259.3, 39.24, 10.14, 6.685}},
    {"Dt", {347.609, 628.49, 43.267, 54.001, 29.187}},
};

struct Porzione
{
    QString nome;
    QString alimento; // the first of the list where empty
    QString grammi;
};

const QStringList &nomiDelleRighe()
{
    static const QStringList kNomi = {"A1", "A2", "A3", "A4", "B1", "B2", "B3", "B4", "B5", "B6", "B7",
                                      "C1", "C2", "C3", "C4", "D1", "D2", "D3", "D4", "D5", "D6", "D7"};
    return kNomi;
}

// The day with these portions alone: all other rows at their first food and without grams.
Passo giorno(const QString &nome, const QList<Porzione> &porzioni)
{
    Passo passo{nome, 1, {}, {}, "Calcola"};
    for (const QString &riga : nomiDelleRighe()) {
        passo.scrivi[riga] = "";
        passo.scrivi[riga + "g"] = "0";
    }
    for (const Porzione &porzione : porzioni) {
        passo.scrivi[porzione.nome] = porzione.alimento;
        passo.scrivi[porzione.nome + "g"] = porzione.grammi;
    }
    return passo;
}

Passo giornataIntera()
{
    QList<Porzione> porzioni;
    for (const Riga &riga : kGiornata)
        porzioni.append({riga.nome, riga.alimento, QString::number(riga.grammi)});
    Passo passo = giorno("giornata intera", porzioni);
    // A result that is not written again would not be told from the 0 that it begins with.
    for (const QString &riga : nomiDelleRighe())
        for (const char *risultato : {"h", "k", "c", "p", "f"})
            passo.scrivi[riga + risultato] = "1";
    return passo;
}

QList<Passo> passi()
{
    return {
        {"pagina aperta", 1, {}, {}, {}},
        {"senza fabbisogno", 1, {}, {}, "Calcola"},
        // a need of 2275 kcal
        {"fabbisogno", 0, {{"age", "30"}, {"height", "175"}, {"weight", "70"}}, {}, "Calcola"},
        {"tutto a zero", 1, {}, {}, "Calcola"},
        {"primo dell'elenco", 1, {{"A1g", "50"}}, {}, "Calcola"},
        giorno("numeri interi", {{"A1", "", "33"}}),
        giornataIntera(),
        giorno("appena sotto il fabbisogno", {{"D7", "Vino rosso", "56874"}}),
        giorno("pari al fabbisogno", {{"D7", "Vino rosso", "56875"}}),
        giorno("sopra il fabbisogno", {{"D5", "Olio di semi vari", "600"}}),
        giorno("poche proteine", {{"B7", "Pane tipo 0", "100"}, {"D2", "Albume", "12"}}),
        giorno("abbastanza proteine", {{"B7", "Pane tipo 0", "100"}, {"D2", "Albume", "13"}}),
        giorno("pochi carboidrati", {{"A2", "Uovo di gallina intero", "100"}, {"A1", "Zucchero", "39"}}),
        giorno("abbastanza carboidrati", {{"A2", "Uovo di gallina intero", "100"}, {"A1", "Zucchero", "40"}}),
        giorno("datteri", {{"A2", "Datteri secchi", "50"}}),
        giorno("uva secca", {{"D1", "Uva secca", "100"}, {"B1", "", "100"}}),
        giorno("uva secca senza grammi", {{"D1", "Uva secca", "0"}}),
        giorno("tuorlo", {{"C2", "Tuorlo", "200"}}),
        giorno("grammi con la virgola", {{"A1", "", "10,5"}}),
    };
}

class GiornataTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { s_sessione = std::make_unique<Sessione>(paginaIntera(), passi()); }
    static void TearDownTestSuite() { s_sessione.reset(); }

    QStringList campi(const QString &passo, const QStringList &nomi)
    {
        QStringList values;
        for (const QString &nome : nomi)
            values.append(s_sessione->campo(passo, nome));
        return values;
    }
    // Unrounded figures, as near as the page's binary arithmetic comes to them.
    void expectValues(const QString &passo, const QString &prefix, const Valori &valori)
    {
        const auto expectNear = [&](const char *field, double expected) {
            EXPECT_NEAR(s_sessione->numero(passo, prefix + field), expected, 1e-9) << (prefix + field).toStdString();
        };
        expectNear("h", valori.acqua);
        expectNear("k", valori.calorie);
        expectNear("c", valori.carboidrati);
        expectNear("p", valori.proteine);
        expectNear("f", valori.grassi);
    }
    QString consiglio(const QString &passo) { return s_sessione->campo(passo, "testo2"); }

    static std::unique_ptr<Sessione> s_sessione;
};
std::unique_ptr<Sessione> GiornataTest::s_sessione;

const QStringList kTotali = {"toth", "totk", "totc", "totp", "totf"};
const QStringList kEsito = {"aumdim", "ksett", "testo2"};

TEST_F(GiornataTest, AnUntouchedDayGivesZeros)
{
    for (const QString &riga : nomiDelleRighe()) {
        const QStringList fields = {riga + "g", riga + "h", riga + "k", riga + "c", riga + "p", riga + "f"};
        EXPECT_EQ(campi("pagina aperta", fields), QStringList({"0", "0", "0", "0", "0", "0"}));
        EXPECT_EQ(campi("tutto a zero", fields), QStringList({"0", "0", "0", "0", "0", "0"}));
    }
    EXPECT_EQ(campi("pagina aperta", kEsito), QStringList({"", "0", ""}));
    EXPECT_EQ(campi("tutto a zero", kTotali), QStringList({"0", "0", "0", "0", "0"}));
    EXPECT_EQ(campi("tutto a zero", kEsito), QStringList({"una diminuzione", "2.3", kCorretta}));
}

TEST_F(GiornataTest, BeforeTheNeedIsWorkedOutThereIsNothingToCompareWith)
{
    EXPECT_EQ(campi("senza fabbisogno", kTotali), QStringList({"0", "0", "0", "0", "0"}));
    EXPECT_EQ(campi("senza fabbisogno", kEsito), QStringList({"un aumento", "NaN", kCorretta}));
}

TEST_F(GiornataTest, GramsBesideAnUntouchedListCountItsFirstFood)
{
    EXPECT_EQ(campi("primo dell'elenco", {"A1h", "A1k", "A1c", "A1p", "A1f"}),
              QStringList({"1.1", "209", "42.7", "3.3", "3.95"}));
    EXPECT_EQ(campi("primo dell'elenco", kTotali), QStringList({"1.1", "209", "42.7", "3.3", "4"}));
}

TEST_F(GiornataTest, RowsAndMealsAreNotRounded)
{
    EXPECT_EQ(campi("numeri interi", {"A1h", "Ath", "toth"}),
              QStringList({"0.7260000000000001", "0.7260000000000001", "0.7"}));
}

TEST_F(GiornataTest, EveryRowOfADayIsTheValuePer100GramsTimesItsGrams)
{
    for (const Riga &riga : kGiornata)
        expectValues("giornata intera", riga.nome, riga.valori);
}

TEST_F(GiornataTest, MealsAreTheSumsOfTheirRowsAndTheDayThatOfItsMeals)
{
    for (const auto &[pasto, valori] : kTotaliDeiPasti)
        expectValues("giornata intera", pasto, valori);
    EXPECT_EQ(campi("giornata intera", kTotali), QStringList({"1418.7", "2092", "219.9", "125", "71.2"}));
    EXPECT_EQ(campi("giornata intera", kEsito), QStringList({"una diminuzione", "0.2", kServonoCarboidrati}));
}

TEST_F(GiornataTest, TheWeightFallsOnlyBelowTheNeed)
{
    EXPECT_EQ(campi("appena sotto il fabbisogno", {"Dtk", "aumdim", "ksett"}),
              QStringList({"2274.96", "una diminuzione", "0"}));
    EXPECT_EQ(campi("pari al fabbisogno", {"Dtk", "aumdim", "ksett"}), QStringList({"2275", "un aumento", "0"}));
}

TEST_F(GiornataTest, AnIncreaseShowsAsANegativeFigure)
{
    EXPECT_EQ(campi("sopra il fabbisogno", {"totk", "aumdim", "ksett"}), QStringList({"5400", "un aumento", "-3.1"}));
}

// 100 g of bread and 12 g of albumen have 9.508 g of proteins where 90 % of 15 % of their 282.24 kcal is 9.5256 g.
TEST_F(GiornataTest, TheAdviceComparesProteinsWithTheDaysOwnCalories)
{
    EXPECT_EQ(consiglio("poche proteine"), kServonoProteine);
    EXPECT_EQ(consiglio("abbastanza proteine"), kCorretta);
    EXPECT_EQ(consiglio("sopra il fabbisogno"), kServonoProteine);
}

// An egg of 100 g and 39 g of sugar have 39.661 g of carbohydrates where 90 % of 60 % of their 295.88 kcal is 39.9438
// g.
TEST_F(GiornataTest, TheAdviceComparesCarbohydratesOnceTheProteinsAreEnough)
{
    EXPECT_EQ(consiglio("pochi carboidrati"), kServonoCarboidrati);
    EXPECT_EQ(consiglio("abbastanza carboidrati"), kCorretta);
}

TEST_F(GiornataTest, AValueOneCharacterShortIsReadShifted)
{
    EXPECT_EQ(campi("datteri", {"A2h", "A2k", "A2c", "A2p", "A2f"}),
              QStringList({"8.65", "26.5", "31.55", "1.35", "0.3"}));
    EXPECT_EQ(campi("datteri", kTotali), QStringList({"8.7", "27", "31.6", "1.4", "0.3"}));
    EXPECT_EQ(campi("uva secca", {"D1h", "D1k", "D1c", "D1p", "D1f"}),
              QStringList({"17.1", "83", "NaN", "NaN", "NaN"}));
    EXPECT_EQ(campi("tuorlo", {"C2h", "C2k", "C2c", "C2p", "C2f"}),
              QStringList({"98.4", "110", "NaN", "36.6", "63.8"}));
}

TEST_F(GiornataTest, WhatIsNoNumberSpreadsIntoTheTotalsEvenWithoutGrams)
{
    EXPECT_EQ(campi("uva secca", {"Dtc", "Btc", "totk", "totc", "totp"}),
              QStringList({"NaN", "9.1", "131", "NaN", "NaN"}));
    EXPECT_EQ(campi("uva secca", kEsito), QStringList({"una diminuzione", "2.1", kCorretta}));
    EXPECT_EQ(campi("uva secca senza grammi", {"D1p", "Dtp", "totp", "totk"}), QStringList({"NaN", "NaN", "NaN", "0"}));
    EXPECT_EQ(campi("grammi con la virgola", {"A1k", "totk", "aumdim", "ksett"}),
              QStringList({"NaN", "NaN", "un aumento", "NaN"}));
}

TEST_F(GiornataTest, TheBrowserReadsTheCodePageAndTheStraySigns)
{
    EXPECT_EQ(s_sessione->codifica(), "windows-1252");
    EXPECT_TRUE(s_sessione->elenco("A1").contains("Arachidi tostate>"));
    EXPECT_TRUE(s_sessione->elenco("B7").contains("Arachidi tostate>"));
    EXPECT_TRUE(s_sessione->elenco("B3").contains("Ceci secchi>"));
    EXPECT_TRUE(s_sessione->elenco("D1").contains("Latte di vacca parzialmente scremato"));
    qsizetype options = 0;
    for (const QString &riga : nomiDelleRighe())
        options += s_sessione->elenco(riga).size();
    EXPECT_EQ(options, 1118);
}

TEST_F(GiornataTest, TheConsoleStaysEmpty)
{
    EXPECT_EQ(s_sessione->console(), QStringList(Sessione::kFineProva));
}

// The short page holds the first calculator alone.
TEST(PaginaBreveTest, TheShortPageWorksOutTheNeed)
{
    const Sessione sessione(
        paginaBreve(), {{"fabbisogno", 0, {{"age", "30"}, {"height", "165"}, {"weight", "55"}}, {{"R1", 1}}, "Calcola"},
                        {"cancellato", 0, {}, {}, "Cancella"}});
    EXPECT_EQ(sessione.campo("fabbisogno", "kcal"), "1789");
    EXPECT_EQ(sessione.campo("fabbisogno", "pesok2"), "53.6");
    EXPECT_EQ(sessione.campo("fabbisogno", "pesok1"), "56.6");
    EXPECT_EQ(sessione.campo("fabbisogno", "IMC"), "20.2");
    EXPECT_EQ(sessione.campo("cancellato", "kcal"), "");
    EXPECT_EQ(sessione.console(), QStringList(Sessione::kFineProva));
}

} // namespace
