#include "core/Helpers.h"

#include "platform/Failure.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

TEST(AllineaTest, CutsOrPadsToTheWidth)
{
    EXPECT_EQ(Allinea("Pranzo", 4), "Pran");
    EXPECT_EQ(Allinea("ab", 4), "ab  ");
    EXPECT_EQ(Allinea("abcd", 4), "abcd");
    EXPECT_EQ(Allinea("", 0), "");
    EXPECT_EQ(Allinea("", 3), "   ");
    EXPECT_EQ(Allinea("abc", 0), "");
}

TEST(AccentaTest, MendsVowelsAndApostrophes)
{
    EXPECT_EQ(Accenta("Purea' di caffe' cosi' pero' ragu'"), "Pureà di caffè così però ragù");
    EXPECT_EQ(Accenta("CITTA' E' I' O' U'"), "CITTÀ È Ì Ò Ù");
    EXPECT_EQ(Accenta("Pasta all'olio, l'uovo"), u"Pasta all\u2019olio, l\u2019uovo"_qs);
    EXPECT_EQ(Accenta("a''"), u"à\u2019"_qs);
    EXPECT_EQ(Accenta(""), "");
}

TEST(SoloNumeriTest, TakesDigitsPointsAndCommasAlone)
{
    for (const char *text : {"", "0123456789", "12,5", "1.2.3", ",", "."})
        EXPECT_TRUE(SoloNumeri(text)) << text;
    for (const char *text : {"1 2", "-1", "1a", "/", ":", "à"})
        EXPECT_FALSE(SoloNumeri(text)) << text;
}

TEST(PosizioneApiceTest, CountsFromOne)
{
    EXPECT_EQ(PosizioneApice("'a"), 1);
    EXPECT_EQ(PosizioneApice("all'olio d'oliva"), 4);
    EXPECT_EQ(PosizioneApice("olio"), 0);
    EXPECT_EQ(PosizioneApice(""), 0);
}

TEST(CartellaWindowsTest, IsWhatTheSystemNamesElseUsr)
{
    const QByteArray before = qgetenv("SystemRoot");
    qputenv("SystemRoot", "/sistema");
    EXPECT_EQ(CartellaWindows(), "/sistema");
    qunsetenv("SystemRoot");
    EXPECT_EQ(CartellaWindows(), "/usr");
    if (!before.isNull())
        qputenv("SystemRoot", before);
}

TEST(NuovoIdTest, IsOneMoreThanTheHighestKey)
{
    TestWorld world;
    insertRows(world.openArchive(), "Categorie", "ID, Alimento", {"3, 'Pasta'", "41, 'Riso'", "7, 'Pane'"});
    EXPECT_EQ(NuovoId(world.modulo, "Categorie"), 42);
}

TEST(NuovoIdTest, FailsOnAnEmptyTable)
{
    TestWorld world;
    world.openArchive();
    try {
        NuovoId(world.modulo, "Categorie");
        FAIL();
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number(), FailureNumber::InvalidNull);
    }
}

TEST(NuovoIdTest, FailsWithoutAnArchive)
{
    TestWorld world;
    try {
        NuovoId(world.modulo, "Categorie");
        FAIL();
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number(), FailureNumber::ConnectionClosed);
    }
}

TEST(SegnalaProblemiTest, MakesTheNotesFileAndOpensIt)
{
    TestWorld world;
    SegnalaProblemi(world.modulo, "FrmCibra");
    EXPECT_EQ(world.cartella.entries(), QStringList("TESTI/"));
    EXPECT_EQ(world.cartella.read("\\TESTI\\FrmCibra.txt"),
              QByteArray("                 ---------------------------------- \r\n"
                         "..................* Procedura FrmCibra.txt *   - 02/03/2025\r\n"
                         "                 ---------------------------------- \r\n"
                         "\r\n"
                         ".................. devi scrivere i problemi che riscontri nella procedura, senza\r\n"
                         ".................. cancellare il contenuto dei problemi precedenti alla procedura.\r\n"
                         ".................. Il Programmatore apporr\xE0 sucessivamente un visto e data sulle \r\n"
                         ".................. modifiche apportartate sulla procedura e su questo modulo\r\n"));
    EXPECT_EQ(world.programmi.started, QStringList("TextViewer " + world.cartella.path("\\TESTI\\FrmCibra.txt")));
}

TEST(SegnalaProblemiTest, LeavesTheNotesThatAreThere)
{
    TestWorld world;
    world.cartella.write("\\testi\\GestioneRete.txt", "i miei appunti");
    SegnalaProblemi(world.modulo, "GestioneRete");
    EXPECT_EQ(world.cartella.read("\\testi\\GestioneRete.txt"), QByteArray("i miei appunti"));
    EXPECT_EQ(world.programmi.started, QStringList("TextViewer " + world.cartella.path("\\testi\\GestioneRete.txt")));
}

TEST(SegnalaProblemiTest, TellsWhereNoViewerIsThere)
{
    TestWorld world;
    world.programmi.nothingIsInstalled = true;
    EXPECT_THROW(SegnalaProblemi(world.modulo, "Sfondo"), Failure);
}

namespace {

struct RegistraModificaTest : testing::Test
{
    TestWorld world;
    QString source = world.cartella.path("Sfondo.FRM");

    // The source stands there since now, on the machine's clock; the program's clock says the same day.
    void makeSource()
    {
        world.cartella.write("Sfondo.FRM", "x");
        world.orologio.when = QFileInfo(source).lastModified();
    }
    QString today() const { return world.orologio.when.toString("dd/MM/yyyy"); }
    QString list() const { return QString::fromLatin1(world.cartella.read("FileModificati.log")); }
};

} // namespace

TEST_F(RegistraModificaTest, DoesNothingWithoutTheSource)
{
    RegistraModifica(world.modulo, source);
    EXPECT_EQ(world.cartella.entries(), QStringList());
}

TEST_F(RegistraModificaTest, DoesNothingForASourceOfADayBefore)
{
    makeSource();
    world.orologio.when = world.orologio.when.addDays(1);
    RegistraModifica(world.modulo, source);
    EXPECT_EQ(world.cartella.entries(), QStringList("Sfondo.FRM"));
}

TEST_F(RegistraModificaTest, ListsEachSourceOnceUnderItsDay)
{
    makeSource();
    world.cartella.write("Menu.FRM", "x");
    RegistraModifica(world.modulo, source);
    RegistraModifica(world.modulo, source);
    RegistraModifica(world.modulo, world.cartella.path("Menu.FRM"));
    EXPECT_EQ(list(), "[" + today() + "]\r\n" + source + "\r\n" + world.cartella.path("Menu.FRM") + "\r\n");
}

TEST_F(RegistraModificaTest, AnOlderDayDoesNotCount)
{
    makeSource();
    world.cartella.write("FileModificati.log", "[01/01/2001]\r\n" + source.toLatin1() + "\r\n");
    RegistraModifica(world.modulo, source);
    EXPECT_EQ(list(), "[01/01/2001]\r\n" + source + "\r\n[" + today() + "]\r\n" + source + "\r\n");
}
