// The calculator of the daily need, played in the browser.
#include "pages/PaginaScritta.h"
#include "pages/Sessione.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

constexpr int kMaschio = 0;
constexpr int kFemmina = 1;

const QString kBambino = "Questa tabella non ha valore per i bambini al di sotto dei dieci anni";
const QString kBeneMuoversi = "Non avete problemi di peso, ma sarebbe comunque bene fare un po' di attività fisica";
const QString kBeneMuoversiColMedico = "Non avete problemi di peso, un po' di attività fisica sotto controllo medico "
                                       "potrebbe esservi utile";
const QString kOttimaForma = "Siete in ottima forma, continuate così";
const QString kSovrappesoMuoversi = "Siete sovrappeso, dovreste fare un po' di attività fisica e controllare la vostra "
                                    "alimentazione";
const QString kSovrappeso = "Siete sovrappeso, dovreste controllare la vostra alimentazione";
const QString kSovrappesoMedico = "Siete sovrappeso, rivolgetevi ad un medico che vi consigli, se è il caso, cibra e "
                                  "attività fisica";
const QString kMoltoSovrappeso = "Siete molto in sovrappeso, dovete necessariamente controllare la vostra cibra e fare "
                                 "attività fisica";
const QString kSottoPesoMuoversi = "Siete sotto peso, dovreste fare più attività fisica e aumentare l'apporto calorico "
                                   "dei vostri pasti";
const QString kSottoPeso = "Siete sotto peso, dovreste aumentare l'apporto calorico dei vostri pasti";
const QString kTroppoSottoPeso = "Siete troppo sotto peso, consultate un medico";

struct Dati
{
    QString eta;     // years
    QString altezza; // cm
    QString peso;    // kg
    int sesso;
    int attivita; // from 0, the lightest
    int sonno;    // from 0, the longest
};

struct Risultato
{
    QString kcal;
    QString carboidrati; // g
    QString proteine;    // g
    QString grassi;      // g
    QString pesoDa;      // kg
    QString pesoA;       // kg
    QString imc;
    QString consiglio;
};

struct Caso
{
    QString nome;
    Dati dati;
    Risultato risultato;
};

// Worked out with decimal arithmetic. At a height of 2 m the body mass index is a quarter of the weight, and that of
// the right weight is 22 for men, 20 for women, one less below 21 years: the thresholds of 1.4, 5 and -4 are then near.
const QList<Caso> kCasi = {
    // activity, sleep
    {"uomo, attività leggera",
     {"30", "175", "70", kMaschio, 0, 2},
     {"2275", "341.25", "85.31", "63.25", "66.5", "69.8", "22.9", kBeneMuoversi}},
    {"uomo, attività media",
     {"30", "175", "70", kMaschio, 1, 2},
     {"2445", "366.75", "91.69", "67.97", "66.5", "69.8", "22.9", kOttimaForma}},
    {"uomo, attività pesante",
     {"30", "175", "70", kMaschio, 2, 2},
     {"2784", "417.6", "104.4", "77.4", "66.5", "69.8", "22.9", kOttimaForma}},
    {"uomo, attività estrema",
     {"30", "175", "70", kMaschio, 3, 2},
     {"3123", "468.45", "117.11", "86.82", "66.5", "69.8", "22.9", kOttimaForma}},
    {"donna, attività leggera",
     {"30", "165", "55", kFemmina, 0, 2},
     {"1789", "268.35", "67.09", "49.73", "53.6", "56.6", "20.2", kBeneMuoversi}},
    {"donna, attività media",
     {"30", "165", "55", kFemmina, 1, 2},
     {"1921", "288.15", "72.04", "53.4", "53.6", "56.6", "20.2", kOttimaForma}},
    {"donna, attività pesante",
     {"30", "165", "55", kFemmina, 2, 2},
     {"2185", "327.75", "81.94", "60.74", "53.6", "56.6", "20.2", kOttimaForma}},
    {"donna, attività estrema",
     {"30", "165", "55", kFemmina, 3, 2},
     {"2450", "367.5", "91.88", "68.11", "53.6", "56.6", "20.2", kOttimaForma}},
    {"uomo, sonno più di 10",
     {"30", "175", "70", kMaschio, 0, 0},
     {"2105", "315.75", "78.94", "58.52", "66.5", "69.8", "22.9", kBeneMuoversi}},
    {"donna, sonno più di 10",
     {"30", "165", "55", kFemmina, 0, 0},
     {"1619", "242.85", "60.71", "45.01", "53.6", "56.6", "20.2", kBeneMuoversi}},
    {"uomo, sonno 9",
     {"30", "175", "70", kMaschio, 0, 1},
     {"2205", "330.75", "82.69", "61.3", "66.5", "69.8", "22.9", kBeneMuoversi}},
    {"donna, sonno 9",
     {"30", "165", "55", kFemmina, 0, 1},
     {"1719", "257.85", "64.46", "47.79", "53.6", "56.6", "20.2", kBeneMuoversi}},
    {"uomo, sonno 7",
     {"30", "175", "70", kMaschio, 0, 3},
     {"2345", "351.75", "87.94", "65.19", "66.5", "69.8", "22.9", kBeneMuoversi}},
    {"donna, sonno 7",
     {"30", "165", "55", kFemmina, 0, 3},
     {"1859", "278.85", "69.71", "51.68", "53.6", "56.6", "20.2", kBeneMuoversi}},
    {"uomo, sonno meno di 7",
     {"30", "175", "70", kMaschio, 0, 4},
     {"2415", "362.25", "90.56", "67.14", "66.5", "69.8", "22.9", kBeneMuoversi}},
    {"donna, sonno meno di 7",
     {"30", "165", "55", kFemmina, 0, 4},
     {"1929", "289.35", "72.34", "53.63", "53.6", "56.6", "20.2", kBeneMuoversi}},
    // ages
    {"nove anni",
     {"9", "135", "30", kMaschio, 0, 0},
     {"1319", "197.85", "49.46", "36.67", "37.7", "39.7", "16.5", kBambino}},
    {"dieci anni",
     {"10", "150", "46", kMaschio, 0, 0},
     {"1692", "253.8", "63.45", "47.04", "46.6", "49.1", "20.4", kBeneMuoversi}},
    {"uomo di venti anni",
     {"20", "200", "84", kMaschio, 0, 2},
     {"2775", "416.25", "104.06", "77.15", "82.8", "87.2", "21", kBeneMuoversi}},
    {"uomo di ventun anni",
     {"21", "200", "84", kMaschio, 0, 2},
     {"2766", "414.9", "103.73", "76.89", "86.8", "91.2", "21", kBeneMuoversi}},
    {"donna di venti anni",
     {"20", "200", "80", kFemmina, 0, 2},
     {"2239", "335.85", "83.96", "62.24", "74.8", "79.2", "20", kBeneMuoversi}},
    {"donna di ventun anni",
     {"21", "200", "80", kFemmina, 0, 2},
     {"2233", "334.95", "83.74", "62.08", "78.8", "83.2", "20", kBeneMuoversi}},
    {"cinquantanove anni, peso giusto",
     {"59", "200", "88", kMaschio, 0, 2},
     {"2502", "375.3", "93.83", "69.56", "86.8", "91.2", "22", kBeneMuoversi}},
    {"sessanta anni, peso giusto",
     {"60", "200", "88", kMaschio, 0, 2},
     {"2493", "373.95", "93.49", "69.31", "86.8", "91.2", "22", kBeneMuoversiColMedico}},
    {"sessanta anni, peso giusto, attività media",
     {"60", "200", "88", kMaschio, 1, 2},
     {"2679", "401.85", "100.46", "74.48", "86.8", "91.2", "22", kOttimaForma}},
    // above the right weight
    {"appena sotto 1,4",
     {"30", "200", "93.5", kMaschio, 0, 2},
     {"2856", "428.4", "107.1", "79.4", "86.8", "91.2", "23.4", kBeneMuoversi}},
    {"appena sopra 1,4",
     {"30", "200", "93.7", kMaschio, 0, 2},
     {"2859", "428.85", "107.21", "79.48", "86.8", "91.2", "23.4", kSovrappesoMuoversi}},
    {"appena sopra 1,4, attività media",
     {"30", "200", "93.7", kMaschio, 1, 2},
     {"3074", "461.1", "115.28", "85.46", "86.8", "91.2", "23.4", kSovrappeso}},
    {"appena sopra 1,4, cinquantanove anni",
     {"59", "200", "93.7", kMaschio, 0, 2},
     {"2603", "390.45", "97.61", "72.36", "86.8", "91.2", "23.4", kSovrappesoMuoversi}},
    {"appena sopra 1,4, sessanta anni",
     {"60", "200", "93.7", kMaschio, 0, 2},
     {"2594", "389.1", "97.28", "72.11", "86.8", "91.2", "23.4", kSovrappeso}},
    {"appena sotto 5",
     {"30", "200", "107.9", kMaschio, 0, 2},
     {"3112", "466.8", "116.7", "86.51", "86.8", "91.2", "27", kSovrappesoMuoversi}},
    {"cinque",
     {"30", "200", "108", kMaschio, 0, 2},
     {"3114", "467.1", "116.78", "86.57", "86.8", "91.2", "27", kMoltoSovrappeso}},
    {"cinque, attività estrema",
     {"30", "200", "108", kMaschio, 3, 2},
     {"4285", "642.75", "160.69", "119.12", "86.8", "91.2", "27", kMoltoSovrappeso}},
    {"cinque, cinquantanove anni",
     {"59", "200", "108", kMaschio, 0, 2},
     {"2858", "428.7", "107.18", "79.45", "86.8", "91.2", "27", kMoltoSovrappeso}},
    {"cinque, cinquantanove anni e mezzo",
     {"59.5", "200", "108", kMaschio, 0, 2},
     {"2853", "427.95", "106.99", "79.31", "86.8", "91.2", "27", kSovrappesoMedico}},
    {"cinque, sessanta anni",
     {"60", "200", "108", kMaschio, 0, 2},
     {"2849", "427.35", "106.84", "79.2", "86.8", "91.2", "27", kSovrappesoMedico}},
    {"donna, cinque",
     {"30", "200", "100", kFemmina, 0, 2},
     {"2427", "364.05", "91.01", "67.47", "78.8", "83.2", "25", kMoltoSovrappeso}},
    // below it
    {"appena sopra -1,4",
     {"30", "200", "82.5", kMaschio, 0, 2},
     {"2660", "399", "99.75", "73.95", "86.8", "91.2", "20.6", kBeneMuoversi}},
    {"appena sotto -1,4",
     {"30", "200", "82.3", kMaschio, 0, 2},
     {"2657", "398.55", "99.64", "73.86", "86.8", "91.2", "20.6", kSottoPesoMuoversi}},
    {"appena sotto -1,4, attività media",
     {"30", "200", "82.3", kMaschio, 1, 2},
     {"2856", "428.4", "107.1", "79.4", "86.8", "91.2", "20.6", kSottoPeso}},
    {"appena sotto -1,4, cinquantanove anni",
     {"59", "200", "82.3", kMaschio, 0, 2},
     {"2400", "360", "90", "66.72", "86.8", "91.2", "20.6", kSottoPesoMuoversi}},
    {"appena sotto -1,4, cinquantanove anni e mezzo",
     {"59.5", "200", "82.3", kMaschio, 0, 2},
     {"2396", "359.4", "89.85", "66.61", "86.8", "91.2", "20.6", kSottoPesoMuoversi}},
    {"appena sotto -1,4, sessanta anni",
     {"60", "200", "82.3", kMaschio, 0, 2},
     {"2391", "358.65", "89.66", "66.47", "86.8", "91.2", "20.6", kTroppoSottoPeso}},
    {"appena sopra -4",
     {"30", "200", "72.2", kMaschio, 0, 2},
     {"2477", "371.55", "92.89", "68.86", "86.8", "91.2", "18.1", kSottoPesoMuoversi}},
    {"meno quattro",
     {"30", "200", "72", kMaschio, 0, 2},
     {"2473", "370.95", "92.74", "68.75", "86.8", "91.2", "18", kTroppoSottoPeso}},
    {"meno quattro, attività pesante",
     {"30", "200", "72", kMaschio, 2, 2},
     {"3028", "454.2", "113.55", "84.18", "86.8", "91.2", "18", kTroppoSottoPeso}},
    {"donna, meno quattro",
     {"30", "200", "64", kFemmina, 0, 2},
     {"1978", "296.7", "74.18", "54.99", "78.8", "83.2", "16", kTroppoSottoPeso}},
    {"donna, appena sopra -4",
     {"30", "200", "64.2", kFemmina, 1, 2},
     {"2128", "319.2", "79.8", "59.16", "78.8", "83.2", "16.1", kSottoPeso}},
};

Passo compila(const QString &nome, const Dati &dati, const QString &bottone = "Calcola")
{
    return {nome,
            0,
            {{"age", dati.eta}, {"height", dati.altezza}, {"weight", dati.peso}},
            {{"R1", dati.sesso}, {"radio1", dati.attivita}, {"radio2", dati.sonno}},
            bottone};
}

QList<Passo> passi()
{
    QList<Passo> steps = {
        {"pagina aperta", 0, {}, {}, {}},
        compila("zero su zero, da vuoto", {"30", "0", "0", kMaschio, 0, 2}),
    };
    for (const Caso &caso : kCasi)
        steps.append(compila(caso.nome, caso.dati));
    steps.append(compila("zero su zero, dopo un consiglio", {"30", "0", "0", kMaschio, 0, 2}));
    steps.append(compila("senza altezza", {"30", "0", "70", kMaschio, 0, 2}));
    steps.append(compila("peso con la virgola", {"30", "175", "70,5", kMaschio, 0, 2}));
    steps.append(compila("prima di cancellare", {"30", "165", "55", kFemmina, 3, 4}));
    steps.append({"cancellato", 0, {}, {}, "Cancella"});
    steps.append({"ricalcolato da vuoto", 0, {}, {}, "Calcola"});
    return steps;
}

class FabbisognoTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { s_sessione = std::make_unique<Sessione>(paginaIntera(), passi()); }
    static void TearDownTestSuite() { s_sessione.reset(); }

    QString campo(const QString &passo, const QString &nome) { return s_sessione->campo(passo, nome); }
    QStringList campi(const QString &passo, const QStringList &nomi)
    {
        QStringList values;
        for (const QString &nome : nomi)
            values.append(campo(passo, nome));
        return values;
    }

    static std::unique_ptr<Sessione> s_sessione;
};
std::unique_ptr<Sessione> FabbisognoTest::s_sessione;

const QStringList kRisultati = {"kcal", "carboidrati", "proteine", "grassi", "pesok2", "pesok1", "IMC", "Testo"};

TEST_F(FabbisognoTest, ThePageOpensWithAnAverageSleeperOfLightActivity)
{
    EXPECT_EQ(campi("pagina aperta", {"age", "height", "weight", "R1", "radio1", "radio2"}),
              QStringList({"0", "0", "0", "V1", "Light", "70"}));
    EXPECT_EQ(campi("pagina aperta", kRisultati), QStringList({"", "", "", "", "", "", "", ""}));
}

TEST_F(FabbisognoTest, NeedWeightsIndexAndAdviceComeOutAsWorkedOutByHand)
{
    for (const Caso &caso : kCasi) {
        const Risultato &atteso = caso.risultato;
        EXPECT_EQ(campi(caso.nome, kRisultati),
                  QStringList({atteso.kcal, atteso.carboidrati, atteso.proteine, atteso.grassi, atteso.pesoDa,
                               atteso.pesoA, atteso.imc, atteso.consiglio}))
            << caso.nome.toStdString();
    }
}

TEST_F(FabbisognoTest, EveryAdviceOccursInTheCases)
{
    QStringList missing = {
        kBambino,          kBeneMuoversi,    kBeneMuoversiColMedico, kOttimaForma, kSovrappesoMuoversi, kSovrappeso,
        kSovrappesoMedico, kMoltoSovrappeso, kSottoPesoMuoversi,     kSottoPeso,   kTroppoSottoPeso};
    for (const Caso &caso : kCasi)
        missing.removeAll(caso.risultato.consiglio);
    EXPECT_EQ(missing, QStringList());
}

// 0 / 0 is no number, and no comparison with it holds.
TEST_F(FabbisognoTest, WithoutHeightAndWeightTheAdviceKeepsItsOldText)
{
    EXPECT_EQ(campi("zero su zero, da vuoto", {"IMC", "pesok2", "pesok1", "Testo"}),
              QStringList({"NaN", "0", "0", ""}));
    EXPECT_EQ(campi("zero su zero, dopo un consiglio", {"IMC", "Testo"}),
              QStringList({"NaN", kCasi.last().risultato.consiglio}));
}

TEST_F(FabbisognoTest, WithoutHeightAloneTheIndexIsInfinite)
{
    EXPECT_EQ(campi("senza altezza", {"IMC", "Testo"}), QStringList({"Infinity", kMoltoSovrappeso}));
}

TEST_F(FabbisognoTest, AWeightThatIsNoNumberGivesNoNumbers)
{
    EXPECT_EQ(campi("peso con la virgola", {"kcal", "proteine", "pesok2", "IMC", "Testo"}),
              QStringList({"NaN", "NaN", "66.5", "NaN", kMoltoSovrappeso}));
}

TEST_F(FabbisognoTest, ClearingLeavesTheIndexAndTheSleepAsTheyWere)
{
    EXPECT_EQ(campi("prima di cancellare", {"IMC", "R1", "radio1", "radio2"}),
              QStringList({"20.2", "V2", "Extreme", "210"}));
    EXPECT_EQ(campi("cancellato", {"age", "height", "weight", "kcal", "carboidrati", "proteine", "grassi", "pesok1",
                                   "pesok2", "Testo", "R1", "radio1", "radio2", "IMC"}),
              QStringList({"", "", "", "", "", "", "", "", "", "", "V1", "Light", "210", "20.2"}));
}

TEST_F(FabbisognoTest, EmptyBoxesCountAsZero)
{
    EXPECT_EQ(campi("ricalcolato da vuoto", {"kcal", "IMC", "Testo"}), QStringList({"297", "NaN", kBambino}));
}

TEST_F(FabbisognoTest, TheConsoleStaysEmpty)
{
    EXPECT_EQ(s_sessione->console(), QStringList(Sessione::kFineProva));
}

} // namespace
