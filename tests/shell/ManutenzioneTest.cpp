#include "shell/Manutenzione.h"

#include "shell/RigheDelMemo.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

namespace {

const QByteArray kStars(99, '*');

class ManutenzioneTest : public testing::Test
{
protected:
    ManutenzioneTest() { world.setHousehold(); }

    void addDish(const QString &Piatto, const QString &prima, const QString &seconda = {})
    {
        insertRows(dati, "Sostituisci", "Piatto, sostituisci1100, sostituisci1500",
                   {QStringLiteral("'%1', '%2', '%3'").arg(Piatto, prima, seconda)});
    }
    void writeTexts(const QByteArray &bytes) { world.cartella.write("\\prova\\TestiCibra\\Piatti.txt", bytes); }
    QByteArray texts() { return world.cartella.read("\\prova\\TestiCibra\\Piatti.txt"); }
    QString wordsOf(const std::function<void()> &command)
    {
        try {
            command();
        } catch (const Failure &failure) {
            return failure.words();
        }
        return {};
    }
    PiattoInCorso note()
    {
        return [this](const QString &Piatto) { told << Piatto; };
    }

    TestWorld world;
    Connection &dati = world.openArchive();
    QStringList told; // dishes named while a command worked
};

TEST_F(ManutenzioneTest, AMemoIsReadByLinesThroughItsTemporaryFile)
{
    QStringList lines;
    LeggiRigheDelMemo(world.modulo, "TMP", "- Pasta (80 gr.)\r\n\r\n Riso \nOrzo",
                      [&](const QString &line) { lines << line; });
    EXPECT_EQ(lines, QStringList({"- Pasta (80 gr.)", "", " Riso ", "Orzo"}));
    EXPECT_EQ(world.cartella.read("\\TMP"), "- Pasta (80 gr.)\r\n\r\n Riso \nOrzo\r\n");
    EXPECT_EQ(world.modulo.RigaLetta, "Orzo");
    LeggiRigheDelMemo(world.modulo, "TMP", "", [&](const QString &line) { lines << line; });
    EXPECT_EQ(world.cartella.read("\\TMP"), "\r\n");
    EXPECT_EQ(lines.last(), "");
}

TEST_F(ManutenzioneTest, CaloriesAreCopiedToTheSameFoodsOfTheSameDishes)
{
    insertRows(dati, "Piatti", "Piatto, Alimento, KC100gr",
               {"'Pasta al sugo', ' pasta ', 1", "'PASTA AL SUGO', 'Sugo', 2", "'Pizza', 'Pasta', 3"});
    insertRows(dati, "newPiatti", "Piatto, alimento, kc100gr", {"' Pasta al sugo', 'Pasta', 350.5"});
    CopiaCalorie(world.modulo);
    EXPECT_EQ(rowsOf(dati, "Select KC100gr from Piatti"), QStringList({"350,5", "2", "3"}));
    EXPECT_EQ(world.dialoghi.boxes(), QStringList("MsgBox 0 \"\" Fattto"));
}

TEST_F(ManutenzioneTest, ANameWithAnApostropheStopsTheCopyWithAnErrorAndKeepsWhatWasCopied)
{
    insertRows(dati, "Piatti", "Piatto, Alimento, KC100gr", {"'Aceto', 'Uva', 1", "'Uva', 'Uva', 1"});
    insertRows(dati, "newPiatti", "Piatto, alimento, kc100gr",
               {"'Aceto', 'Uva', 5", "'L''insalata', 'Uva', 6", "'Uva', 'Uva', 7"});
    EXPECT_NE(wordsOf([this] { CopiaCalorie(world.modulo); }), "");
    EXPECT_EQ(rowsOf(dati, "Select KC100gr from Piatti"), QStringList({"5", "1"}));
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
}

TEST_F(ManutenzioneTest, TheListOfSubstitutesTakesEveryLineThatNamesNoFood)
{
    addDish("Pasta", "- Pasta (80 gr.)\r\nRiso al sugo\r\n\r\n  \r\n Orzo ");
    addDish("Mela", "- Mela (150 gr.)");
    ElencaSostituti(world.modulo);
    const QString id = valueOf(dati, "Select ID from Sostituisci where Piatto = 'Pasta'");
    EXPECT_EQ(rowsOf(dati, "Select * from SostituisciMaster"),
              QStringList({id + " | - | Riso al sugo", id + " | - |   ", id + " | - |  Orzo "}));
    EXPECT_EQ(world.cartella.read("\\TMP"), "- Pasta (80 gr.)\r\nRiso al sugo\r\n\r\n  \r\n Orzo \r\n");
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
}

TEST_F(ManutenzioneTest, TheListOfSubstitutesKeepsTheTypeWhereTheArchiveHasOne)
{
    dati.Execute("ALTER TABLE Sostituisci ADD COLUMN TipoId INTEGER");
    insertRows(dati, "Sostituisci", "Piatto, TipoId, sostituisci1100", {"'Pasta', 7, 'Riso'"});
    ElencaSostituti(world.modulo);
    EXPECT_EQ(rowsOf(dati, "Select TipoId, Piatto from SostituisciMaster"), QStringList("7 | Riso"));
}

TEST_F(ManutenzioneTest, TheGroupsTakeTrimmedNamesAndNoLinesOfBlanks)
{
    addDish("Pasta", "- Pasta (80 gr.)\r\nRiso al sugo\r\n   \r\n Orzo ");
    addDish("Mela", "- Mela (150 gr.)");
    insertRows(dati, "Sostituisci", "Piatto", {"'Senza testo'"});
    RiempiGruppi(world.modulo, note());
    EXPECT_EQ(rowsOf(dati, "Select alimento, sostituisci from GruppoPiattiSostituiti"),
              QStringList({"Pasta | Riso al sugo", "Pasta | Orzo"}));
    EXPECT_EQ(told, QStringList({"Pasta", "Mela", "Senza testo"}));
    EXPECT_EQ(world.cartella.read("\\TEMP"), "\r\n");
    EXPECT_EQ(world.dialoghi.boxes(), QStringList("MsgBox 0 \"\" Fatto"));
}

TEST_F(ManutenzioneTest, TheExportHoldsBothTextsOfAllDishesByName)
{
    addDish("Zuppa", "- Farro (50 gr.)\r\nMinestra", "- Farro (70 gr.)");
    addDish("Caffè", "- Caffè (30 gr.)", "");
    EsportaTesti(world.modulo, note());
    EXPECT_EQ(texts(), QByteArray("\r\nCaff\xe8\r\n\r\n- Caff\xe8 (30 gr.)\r\n"
                                  "\r\nZuppa\r\n\r\n- Farro (50 gr.)\r\nMinestra\r\n") +
                           kStars +
                           "\r\n\r\nCaff\xe8\r\n\r\n\r\n"
                           "\r\nZuppa\r\n\r\n- Farro (70 gr.)\r\n");
    EXPECT_EQ(world.programmi.started, QStringList("TextViewer " + FileDiScambio(world.modulo)));
    EXPECT_EQ(FileDiScambio(world.modulo), world.cartella.path("\\prova\\TestiCibra\\Piatti.txt"));
    EXPECT_EQ(told, QStringList({"Caffè", "Zuppa", "Caffè", "Zuppa"}));
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
}

TEST_F(ManutenzioneTest, TheReportOfDishesWithoutAMatchHasTheSameLayout)
{
    insertRows(dati, "Nocorrispondenza", "Piatto, sostituisci1100, sostituisci1500",
               {"'Uova', '- Uova (60 gr.)', Null"});
    RapportoSenzaCorrispondenza(world.modulo, note());
    EXPECT_EQ(texts(), "\r\nUova\r\n\r\n- Uova (60 gr.)\r\n" + kStars + "\r\n\r\nUova\r\n\r\n\r\n");
    EXPECT_EQ(world.programmi.started, QStringList("TextViewer " + FileDiScambio(world.modulo)));
    EXPECT_EQ(world.dialoghi.boxes(), QStringList("MsgBox 0 \"\" fatto"));
    EXPECT_EQ(told, QStringList({"Uova", "Uova"}));
}

TEST_F(ManutenzioneTest, AReportOfNothingIsTheSeparatorAlone)
{
    RapportoSenzaCorrispondenza(world.modulo, note());
    EXPECT_EQ(texts(), kStars + "\r\n");
}

TEST_F(ManutenzioneTest, AStoredQueryMayStandForTheTableOfTheReport)
{
    dati.Execute("DROP TABLE Nocorrispondenza");
    EXPECT_NE(wordsOf([this] { RapportoSenzaCorrispondenza(world.modulo, note()); }), "");
    EXPECT_FALSE(world.cartella.has("\\prova\\TestiCibra\\Piatti.txt"));
    addDish("Uova", "- Uova (60 gr.)");
    dati.Execute("CREATE VIEW Nocorrispondenza AS SELECT Piatto, sostituisci1100, sostituisci1500 FROM Sostituisci");
    RapportoSenzaCorrispondenza(world.modulo, note());
    EXPECT_EQ(texts(), "\r\nUova\r\n\r\n- Uova (60 gr.)\r\n" + kStars + "\r\n\r\nUova\r\n\r\n\r\n");
}

TEST_F(ManutenzioneTest, TheImportReadsTheFoodsOfBothBlocks)
{
    writeTexts("\r\nPasta\r\n\r\n- Spaghetti (80 gr.)\r\n- Olio d'oliva(5 gr.)\r\nRiso\r\n" + kStars +
               "\r\n\r\nPasta\r\n\r\n- Spaghetti (100 gr.)\r\n- Olio d oliva (8 gr.)\r\n");
    insertRows(dati, "Alimenti", "Piatto", {"'Vecchio'"});
    ImportaTesti(world.modulo);
    EXPECT_EQ(rowsOf(dati, "Select * from Alimenti"),
              QStringList({"Pasta |  Spaghetti  | (80 gr.) | 1100 | (100 gr.) | 1500",
                           "Pasta |  Olio d oliva | (5 gr.) | 1100 | (8 gr.) | 1500"}));
    EXPECT_EQ(world.dialoghi.boxes(), QStringList("MsgBox 0 \"\" terminato"));
}

TEST_F(ManutenzioneTest, TargetsWithADecimalCommaOrThousandsReachBothPersonsRows)
{
    const QByteArray text =
        "\r\nPasta\r\n\r\n- Spaghetti (80 gr.)\r\n" + kStars + " \r\n\r\nPasta\r\n\r\n- Spaghetti (100 gr.)\r\n";
    for (const auto &[first, second, row] : {std::tuple("1557,5", "1723,5", "1557,5 | (100 gr.) | 1723,5"),
                                             {"1.100", "1.500", "1100 | (100 gr.) | 1500"}}) {
        writeTexts(text);
        world.modulo.KcalPrimaPersona = first;
        world.modulo.KcalSecondaPersona = second;
        ImportaTesti(world.modulo);
        EXPECT_EQ(rowsOf(dati, "Select * from Alimenti"),
                  QStringList(QString("Pasta |  Spaghetti  | (80 gr.) | ") + row));
    }
}

TEST_F(ManutenzioneTest, AnEmptyLineBehindAFoodEndsItsDish)
{
    writeTexts("Pasta\r\n- Sale (1 gr.)\r\n\r\n- Olio (5 gr.)\r\nRiso\r\n\r\n\r\n- Burro (5 gr.)\r\n");
    ImportaTesti(world.modulo);
    EXPECT_EQ(rowsOf(dati, "Select Piatto, alimento from Alimenti"),
              QStringList({"Pasta |  Sale ", " |  Olio ", " |  Burro "}));
}

TEST_F(ManutenzioneTest, AFoodWithoutAPortionIsNamedByItsLineAndNothingIsLost)
{
    insertRows(dati, "Alimenti", "Piatto", {"'Vecchio'"});
    writeTexts("Pasta\r\n\r\n- Sale (1 gr.)\r\n- Olio\r\n");
    EXPECT_EQ(wordsOf([this] { ImportaTesti(world.modulo); }),
              "Piatti.txt, riga 4: manca la quantità fra parentesi: - Olio");
    EXPECT_EQ(rowsOf(dati, "Select Piatto from Alimenti"), QStringList("Vecchio"));
}

TEST_F(ManutenzioneTest, WithoutItsFileOrTheTargetsTheImportLeavesTheOldRows)
{
    insertRows(dati, "Alimenti", "Piatto", {"'Vecchio'"});
    EXPECT_THROW(ImportaTesti(world.modulo), Failure);
    writeTexts("Pasta\r\n\r\n- Sale (1 gr.)\r\n");
    world.modulo.KcalSecondaPersona = "tante";
    EXPECT_EQ(wordsOf([this] { ImportaTesti(world.modulo); }), "Tipo non corrispondente: \"tante\" non è un numero");
    world.modulo.KcalSecondaPersona = " ";
    EXPECT_EQ(wordsOf([this] { ImportaTesti(world.modulo); }),
              "Mancano le Kcal giornaliere delle due persone: inserisci prima l'anagrafica");
    EXPECT_EQ(rowsOf(dati, "Select Piatto from Alimenti"), QStringList("Vecchio"));
}

TEST_F(ManutenzioneTest, PairingTakesTheRowsTwoByTwo)
{
    insertRows(dati, "Alimenti", "Piatto, alimento, quantita, KcNominale",
               {"'Pasta', 'Spaghetti', '(80 gr.)', 1100", "'Pasta', 'Spaghetti', '(100 gr.)', 1500",
                "'Mela', 'Mela', '(150 gr.)', 1100", "'Mela', 'Mela', '(200 gr.)', 1500"});
    AbbinaAlimenti(world.modulo);
    EXPECT_EQ(rowsOf(dati, "Select * from alimenti2"),
              QStringList({"Mela | Mela | (150 gr.) | 1100 | (200 gr.) | 1500",
                           "Pasta | Spaghetti | (80 gr.) | 1100 | (100 gr.) | 1500"}));
    EXPECT_EQ(world.schermo.beeps, 0);
}

TEST_F(ManutenzioneTest, AnUnevenEndBeepsAndTheRowLeftOverIsNotPaired)
{
    insertRows(dati, "Alimenti", "Piatto, alimento, quantita, KcNominale",
               {"'A', 'x', '(1 gr.)', 1100", "'A', 'x', '(2 gr.)', 1500", "'B', 'y', '(3 gr.)', 1100"});
    AbbinaAlimenti(world.modulo);
    EXPECT_EQ(rowsOf(dati, "Select * from alimenti2"), QStringList("A | x | (1 gr.) | 1100 | (2 gr.) | 1500"));
    EXPECT_EQ(world.schermo.beeps, 1);
}

} // namespace
