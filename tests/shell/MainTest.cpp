// The start of the program, with screens that only keep what is done to them.
#include "shell/Main.h"

#include "support/TestWorld.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

namespace {

// Every touch, in order; what the database dialog does is the world's.
class RecordedAvvio : public SchermateDiAvvio
{
public:
    explicit RecordedAvvio(TestWorld &world) : m_world(world) {}

    QStringList steps;
    std::function<void()> inMenu;

    void mostraMessaggi() override
    {
        steps << "Messaggi: " + m_world.modulo.TestoAttesa1 + " / " + m_world.modulo.TestoAttesa2;
    }
    void scriviAttesa(const QString &label1, const QString &label2) override
    {
        steps << "attesa: " + label1 + " / " + label2;
    }
    int valoreBarra() override { return m_bar; }
    int massimoBarra() override { return 100; }
    void impostaBarra(int value) override
    {
        m_bar = value;
        steps << "barra " + QString::number(value);
    }
    void chiudiMessaggi() override { steps << "chiude Messaggi"; }
    void mostraSfondo() override { steps << "mostra Sfondo"; }
    void nascondiSfondo() override { steps << "nasconde Sfondo"; }
    void mostraMenu() override
    {
        steps << "Menu";
        if (inMenu)
            inMenu();
    }

private:
    TestWorld &m_world;
    int m_bar = 0;
};

class MainTest : public testing::Test
{
protected:
    TestWorld world;
    RecordedAvvio avvio{world};

    void run() { EXPECT_THROW(Main(world.modulo, avvio), ProgramEnd); }
    // Settings that point to an archive in the program folder.
    void setUpArchive()
    {
        makeTestArchive(world.cartella.path("Cibra.Mdb"));
        writeLocations("Cibra.Mdb");
    }
    void writeLocations(const QByteArray &file)
    {
        world.cartella.write("INI\\GestioneRete.INI", "[Gestione database]\r\n\r\n[Gestione database Aziendale]\r\n" +
                                                          world.cartella.path().toUtf8() + "\\" + file + "\r\n" + file +
                                                          "\r\n");
    }
};

TEST_F(MainTest, TheStartGoesThroughItsStepsInOrderAndEndsWithTheMainWindow)
{
    setUpArchive();
    run();
    EXPECT_EQ(avvio.steps,
              QStringList({"Messaggi: Attendere prego, / Caricamento procedura in corso", "barra 20", "barra 40",
                           "mostra Sfondo", "attesa: Apertura Connessione Database, / Attendere prego ....", "barra 60",
                           "barra 80", "barra 100", "barra 100", "chiude Messaggi", "Menu"}));
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
    EXPECT_EQ(world.schermate.gestioneReteShown, 0);
    EXPECT_TRUE(world.modulo.dati().isOpen());
    EXPECT_EQ(world.modulo.DataAvvio, "02/03/2025");
    EXPECT_FALSE(world.modulo.ConnessioneDsn);
    EXPECT_EQ(QDir::currentPath(), QDir(world.cartella.path()).canonicalPath());
}

TEST_F(MainTest, AnEmptyFolderGetsItsFoldersAndTheDialogAndEndsWithGoodbyeAfterTwoRefusals)
{
    run();
    EXPECT_EQ(world.cartella.entries(), QStringList({"INI/", "documenti/"}));
    EXPECT_EQ(world.cartella.read("INI\\SDIForm.ini"), "[Stile]\r\nStileMenu = 0\r\n");
    EXPECT_EQ(world.cartella.read("documenti\\Log.ini"), "Non Calcellare\r\n");
    EXPECT_EQ(world.schermate.gestioneReteShown, 2);
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList("MsgBox 64 \"By by!!\" Su conferma dell'utente la procedura non ha creato il files di "
                          "sistema per la gestione rete e non può andare avanti"));
    EXPECT_FALSE(avvio.steps.contains("Menu"));
}

TEST_F(MainTest, EsciInTheFirstDialogEndsAtOnceWithoutGoodbye)
{
    world.schermate.inGestioneRete = [] { TerminaProgramma(); };
    run();
    EXPECT_EQ(world.schermate.gestioneReteShown, 1);
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
}

TEST_F(MainTest, AnArchiveChosenInTheFirstDialogIsOpened)
{
    makeTestArchive(world.cartella.path("Cibra.Mdb"));
    world.schermate.inGestioneRete = [this] { writeLocations("Cibra.Mdb"); };
    run();
    EXPECT_EQ(world.schermate.gestioneReteShown, 1);
    EXPECT_TRUE(world.modulo.dati().isOpen());
    EXPECT_EQ(avvio.steps.last(), "Menu");
}

TEST_F(MainTest, FoldersThatAreThereInAnotherSpellingAreLeftAlone)
{
    makeTestArchive(world.cartella.path("Cibra.Mdb"));
    writeLocations("Cibra.Mdb");
    world.cartella.makeFolder("DOCUMENTI");
    QFile::rename(world.cartella.path("INI"), world.cartella.path() + "/Ini");
    run();
    world.modulo.dati().Close(); // its journal lies beside it while it is open
    EXPECT_EQ(world.cartella.entries(), QStringList({"Cibra.Mdb", "Copie/", "DOCUMENTI/", "Ini/"}));
    EXPECT_EQ(world.cartella.entries("Ini"), QStringList("GestioneRete.INI"));
    EXPECT_EQ(world.cartella.entries("DOCUMENTI"), QStringList());
}

TEST_F(MainTest, EachStartKeepsACopyOfAnArchiveThatChanged)
{
    setUpArchive();
    run();
    EXPECT_EQ(world.cartella.entries("Copie"), QStringList("2025-03-02_10-20-30-000_Cibra.Mdb"));
    world.modulo.dati().Execute("INSERT INTO Clienti (Nominativo) VALUES ('Tesmo')");
    world.orologio.when = world.orologio.when.addDays(1);
    for (int start = 0; start < 2; ++start) {
        world.modulo.ConnessioneDati.reset();
        run();
    }
    EXPECT_EQ(world.cartella.entries("Copie"),
              QStringList({"2025-03-02_10-20-30-000_Cibra.Mdb", "2025-03-03_10-20-30-000_Cibra.Mdb"}));
}

TEST_F(MainTest, TheMarkerCopieNoLeavesTheStartWithoutCopies)
{
    setUpArchive();
    world.cartella.write("Copie.no", "");
    run();
    EXPECT_FALSE(world.cartella.has("Copie"));
}

TEST_F(MainTest, AFirstCharacterFHidesTheBackgroundAndNothingElseDoes)
{
    struct Case
    {
        QByteArray content;
        QString step;
    };
    const Case cases[] = {{"F\r\n", "nasconde Sfondo"},    {"Falso", "nasconde Sfondo"}, {"f\r\n", "mostra Sfondo"},
                          {"V\r\nF\r\n", "mostra Sfondo"}, {" F\r\n", "mostra Sfondo"},  {"", "mostra Sfondo"},
                          {"\r\nF\r\n", "mostra Sfondo"}};
    setUpArchive();
    for (const Case &each : cases) {
        avvio.steps.clear();
        world.cartella.write("INI\\SfondoVisible.ini", each.content);
        run();
        EXPECT_EQ(avvio.steps.filter("Sfondo"), QStringList(each.step)) << each.content.constData();
    }
}

TEST_F(MainTest, ADamagedArchiveResetsTheChoiceAndGoesOnWithoutAConnection)
{
    world.cartella.write("Cibra.Mdb", "this is no archive");
    writeLocations("Cibra.Mdb");
    run();
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList("MsgBox 16 \"Errore di COnnessione al Database\" Reset della procedura - "));
    EXPECT_FALSE(world.cartella.has("INI\\GestioneRete.INI"));
    EXPECT_EQ(world.schermate.gestioneReteShown, 1);
    EXPECT_EQ(avvio.steps.last(), "Menu");
    ASSERT_TRUE(world.modulo.ConnessioneDati);
    EXPECT_FALSE(world.modulo.ConnessioneDati->isOpen());
}

TEST_F(MainTest, AWrongPasswordEndsTheProgramBeforeTheMainWindow)
{
    makeProtectedTestArchive(world.cartella.path("Cibra.Mdb"), "segreta");
    writeLocations("Cibra.Mdb");
    world.dialoghi.answerText("sbagliata");
    run();
    ASSERT_EQ(world.dialoghi.boxes().size(), 2);
    EXPECT_TRUE(world.dialoghi.boxes()[1].startsWith("MsgBox 16 \"Password errata\" Database protetto con password\n"));
    EXPECT_FALSE(avvio.steps.contains("Menu"));
}

TEST_F(MainTest, AFolderThatCannotBeUsedIsToldInItalianAndNothingOpens)
{
    world.mondo.folder = ProgramFolder(world.cartella.path() + "/manca");
    Main(world.modulo, avvio);
    ASSERT_EQ(world.dialoghi.boxes().size(), 1);
    EXPECT_EQ(world.dialoghi.boxes()[0],
              "MsgBox 16 \"\" Il programma non può partire.\n\nLa cartella del programma non esiste o non può essere "
              "aperta\n\nCartella del programma: " +
                  world.cartella.path() +
                  "/manca\nControllare che la cartella esista, che vi si possa scrivere e che il disco non sia pieno.");
    EXPECT_FALSE(avvio.steps.contains("Menu"));
}

TEST_F(MainTest, AFailureOfTheStartIsLoggedUnderMain)
{
    world.cartella.write("documenti", "a file where the folder should be");
    Main(world.modulo, avvio);
    ASSERT_EQ(world.dialoghi.boxes().size(), 1);
    EXPECT_TRUE(world.dialoghi.boxes()[0].startsWith("MsgBox 16 \"\" Il programma non può partire.\n\n"));
    const QString log = QString::fromLatin1(world.cartella.read("Errori\\ErrModNetServer.txt"));
    EXPECT_TRUE(log.contains("\r\nProcedura : Main \r\n")) << log.toStdString();
}

TEST_F(MainTest, TheBarStepsByTwentyOnlyWhereThereIsRoom)
{
    EXPECT_EQ(PassoBarra(0, 100), 20);
    EXPECT_EQ(PassoBarra(80, 100), 100);
    EXPECT_EQ(PassoBarra(81, 100), 81);
    EXPECT_EQ(PassoBarra(100, 100), 100);
}

} // namespace
