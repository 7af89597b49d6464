#include "core/ErrorLog.h"

#include "support/TestWorld.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

const QByteArray kRule(98, '-');

QByteArray entry(const QByteArray &procedure, const QByteArray &words)
{
    return kRule + "\r\nLog errore  02/03/2025 10:20:30\r\n" + kRule + "\r\nProcedura : " + procedure + "\r\n" + words +
           "\r\n\r\n";
}

struct ErrorLogTest : testing::Test
{
    TestWorld world;
    Failure failure = Failure::usual(FailureNumber::NoCurrentRow);
    QByteArray words = "Non c'\xE8 nessun record corrente";
};

} // namespace

TEST_F(ErrorLogTest, AnEntryOfTheModuleHoldsTheProcedureAndTheWords)
{
    ScriviLogErrore(world.modulo, "Main ", failure);
    EXPECT_EQ(world.cartella.entries("Errori"), QStringList({"ErrModNetServer.txt", "LogErr.Log"}));
    EXPECT_EQ(world.cartella.read("Errori\\LogErr.Log"), QByteArray("Log\r\n"));
    EXPECT_EQ(world.cartella.read("Errori\\ErrModNetServer.txt"), entry("Main ", words));
}

TEST_F(ErrorLogTest, AnEntryOfAFormHoldsTheFormAndTheHandler)
{
    ScriviLogErroreForm(world.modulo, "FrmCibra", "Form_Load ", failure);
    EXPECT_EQ(world.cartella.read("Errori\\ErrFrmCibra.txt"), entry("FrmCibra", "FrmCibra * Form_Load " + words));
}

TEST_F(ErrorLogTest, EntriesFollowEachOther)
{
    ScriviLogErrore(world.modulo, "Main ", failure);
    ScriviLogErrore(world.modulo, "SincronizzaKcal", Failure::usual(FailureNumber::TypeMismatch));
    EXPECT_EQ(world.cartella.read("Errori\\ErrModNetServer.txt"),
              entry("Main ", words) + entry("SincronizzaKcal", "Tipo non corrispondente"));
}

TEST_F(ErrorLogTest, TheErrorStandsOnTheBackgroundScreen)
{
    ScriviLogErrore(world.modulo, "Main ", failure);
    ScriviLogErroreForm(world.modulo, "FrmCibra", "Form_Load ", Failure::usual(FailureNumber::TypeMismatch));
    EXPECT_EQ(world.schermate.errors,
              QStringList({"Procedura ModNetServer - Errore:3021 | Non c'è nessun record corrente",
                           "Procedura FrmCibra - Errore:13 | Tipo non corrispondente"}));
}

TEST_F(ErrorLogTest, NeverFailsItself)
{
    world.cartella.write("Errori", "a file in the folder's place");
    ScriviLogErrore(world.modulo, "Main ", failure);
    EXPECT_EQ(world.schermate.errors.size(), 1) << "the screen tells it although the log cannot";
    EXPECT_EQ(world.cartella.entries(), QStringList("Errori"));
}

TEST_F(ErrorLogTest, WordsOutsideTheCodePageComeOutWhole)
{
    ScriviLogErrore(world.modulo, "Main ", Failure(FailureNumber::Engine, "no such column: Ω"));
    ScriviLogErrore(world.modulo, "Main ", failure);
    EXPECT_EQ(world.cartella.read("Errori\\ErrModNetServer.txt"),
              "\xEF\xBB\xBF" + entry("Main ", "no such column: Ω") + entry("Main ", "Non c'è nessun record corrente"));
}

TEST_F(ErrorLogTest, TheErrorRoutineShowsAndLogs)
{
    RoutineErrore(world.modulo, "FrmCibra", "MnuAdd_Click ", failure);
    EXPECT_EQ(world.dialoghi.boxes(), QStringList("Msg1 \"Errore Generico\" Non c'è nessun record corrente "
                                                  "[#@!? ... Errore!] 0 0 picture 3"));
    EXPECT_EQ(world.cartella.read("Errori\\ErrFrmCibra.txt"), entry("FrmCibra", "FrmCibra * MnuAdd_Click " + words));
}

TEST_F(ErrorLogTest, AnErrorBehindTheDialogIsLoggedWithoutASecondOne)
{
    world.dialoghi.whileUp = [this](const QString &) {
        RoutineErrore(world.modulo, "FrmCibra", "Form_Resize", Failure::usual(FailureNumber::TypeMismatch));
    };
    RoutineErrore(world.modulo, "FrmCibra", "Form_Load ", failure);
    EXPECT_EQ(world.dialoghi.takeBoxes().size(), 1);
    EXPECT_EQ(world.cartella.read("Errori\\ErrFrmCibra.txt"),
              entry("FrmCibra", "FrmCibra * Form_ResizeTipo non corrispondente") +
                  entry("FrmCibra", "FrmCibra * Form_Load " + words));

    world.dialoghi.whileUp = nullptr;
    RoutineErrore(world.modulo, "FrmCibra", "Form_Load ", failure);
    EXPECT_EQ(world.dialoghi.boxes().size(), 1) << "the next error has its dialog again";
}
