#include "core/Locations.h"

#include "core/Helpers.h"
#include "platform/Failure.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

namespace {

const QString kByBy =
    "MsgBox 64 \"By by!!\" Su conferma dell'utente la procedura non ha creato il files di sistema per "
    "la gestione rete e non può andare avanti";
const QString kReset = "MsgBox 16 \"Errore di COnnessione al Database\" Reset della procedura - ";

const QString kQuestion = "Inserisci la password per accedere al database";
const QString kPassword = "InputBox hidden \"" + kQuestion + "\" " + kQuestion;

struct LocationsTest : testing::Test
{
    TestWorld world;
    ModNetServer &modulo = world.modulo;
    QString dati = world.cartella.path("archivi/Cibra.Mdb");

    void SetUp() override { world.cartella.makeFolder("archivi"); }

    // A locations file with these lines 2, 4 and 5.
    void writeLocations(const QString &system, const QString &path, const QString &name)
    {
        const QString text = "[Gestione database]\r\n" + system + "\r\n[Gestione database Aziendale]\r\n" + path +
                             "\r\n" + name + "\r\n\r\n####\r\n";
        world.cartella.write("INI\\GestioneRete.INI", text.toLatin1());
    }

    // What the dialog does when the user picks an archive in it.
    void save(const QString &folder, const QString &name)
    {
        AssicuraCartellaIni(modulo);
        ScriviGestioneRete(modulo, folder, name);
    }

    QStringList locations() const
    {
        return {modulo.PercorsoDbSistema, modulo.PercorsoDbDati, modulo.NomeDbDati, modulo.CartellaDbDati};
    }
};

} // namespace

TEST_F(LocationsTest, LinesTwoFourAndFiveAreRead)
{
    makeTestArchive(dati);
    makeTestSystemArchive(world.cartella.path("NetServer.Mdb"));
    const QString system = world.cartella.path("NetServer.Mdb");
    writeLocations(system, dati, "Cibra.Mdb");
    LeggiPercorsiDb(modulo);
    EXPECT_EQ(locations(), QStringList({system, dati, "Cibra.Mdb", world.cartella.path("archivi")}));
    EXPECT_EQ(world.schermate.gestioneReteShown, 0);
}

TEST_F(LocationsTest, WhatTheDialogWritesIsFound)
{
    makeTestArchive(dati);
    save(world.cartella.path("archivi"), "Cibra.Mdb");
    LeggiPercorsiDb(modulo);
    const QString folder = world.cartella.path("archivi");
    EXPECT_EQ(locations(), QStringList({"", folder + "\\Cibra.Mdb", "Cibra.Mdb", folder}));
    EXPECT_EQ(world.schermate.gestioneReteShown, 0);
}

TEST_F(LocationsTest, TheFileIsWrittenWhole)
{
    save("/casa/dati", "Cibra.Mdb");
    EXPECT_EQ(world.cartella.read("INI\\GestioneRete.INI"),
              QByteArray("[Gestione database]\r\n"
                         "\r\n"
                         "[Gestione database Aziendale]\r\n"
                         "/casa/dati\\Cibra.Mdb\r\n"
                         "Cibra.Mdb\r\n"
                         "\r\n"
                         "#####################################################\r\n"
                         "Se non si riesce ad avere la connessione con il database selezionato\r\n"
                         "1) Eseguire Mdac_Typ.exe\r\n"
                         "2) Provare a togliere uno dei due slasc che appaiono nell'indirizzo..\r\n"
                         "   esempio: da e:\\\\Collegato\\Rete correggi in e:\\Collegato\\Rete \r\n"
                         "   e salva il file GestioneRete.ini\r\n"
                         "3) Installare l'ultimo service pack del sistema operativo\r\n"
                         "#####################################################\r\n"));
}

TEST_F(LocationsTest, TheSystemArchiveIsWrittenOnlyInANetwork)
{
    modulo.PercorsoDbSistema = "/casa/NetServer.Mdb";
    save("/casa", "Cibra.Mdb");
    EXPECT_EQ(world.cartella.read("INI\\GestioneRete.INI").split('\n')[1], QByteArray("\r"));
    modulo.NetProc = true;
    save("/casa", "Cibra.Mdb");
    EXPECT_EQ(world.cartella.read("INI\\GestioneRete.INI").split('\n')[1], QByteArray("/casa/NetServer.Mdb\r"));
}

TEST_F(LocationsTest, WithoutASavedFileTheProgramSaysGoodbye)
{
    EXPECT_THROW(LeggiPercorsiDb(modulo), ProgramEnd);
    EXPECT_EQ(world.schermate.gestioneReteShown, 1);
    EXPECT_EQ(world.dialoghi.boxes(), QStringList(kByBy));
    EXPECT_EQ(world.cartella.read("INI\\SDIForm.ini"), QByteArray("[Stile]\r\nStileMenu = 0\r\n"));
}

TEST_F(LocationsTest, TheFileSavedInTheDialogIsRead)
{
    makeTestArchive(dati);
    world.schermate.inGestioneRete = [this] { save(world.cartella.path("archivi"), "Cibra.Mdb"); };
    LeggiPercorsiDb(modulo);
    EXPECT_EQ(world.schermate.gestioneReteShown, 1);
    EXPECT_EQ(modulo.NomeDbDati, "Cibra.Mdb");
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
}

TEST_F(LocationsTest, AMovedArchiveIsAskedForUntilOneExists)
{
    writeLocations("", world.cartella.path("gone/Cibra.Mdb"), "Cibra.Mdb");
    world.schermate.inGestioneRete = [this] {
        if (world.schermate.gestioneReteShown == 3)
            makeTestArchive(dati);
        if (world.schermate.gestioneReteShown >= 2)
            save(world.cartella.path("archivi"), "Cibra.Mdb");
    };
    LeggiPercorsiDb(modulo);
    EXPECT_EQ(world.schermate.gestioneReteShown, 3);
    EXPECT_EQ(modulo.CartellaDbDati, world.cartella.path("archivi"));
}

TEST_F(LocationsTest, AMovedArchiveWhoseFileIsDeletedInTheDialogEndsTheProgram)
{
    writeLocations("", world.cartella.path("gone/Cibra.Mdb"), "Cibra.Mdb");
    world.schermate.inGestioneRete = [this] { world.cartella.remove("INI"); };
    EXPECT_THROW(LeggiPercorsiDb(modulo), ProgramEnd);
    EXPECT_EQ(world.dialoghi.boxes(), QStringList(kByBy));
    EXPECT_FALSE(world.cartella.has("INI")) << "the folder is made anew only where no system archive was found";
}

TEST_F(LocationsTest, AMissingSystemArchiveOpensTheDialogToo)
{
    makeTestArchive(dati);
    writeLocations(world.cartella.path("NetServer.Mdb"), dati, "Cibra.Mdb");
    world.schermate.inGestioneRete = [this] { save(world.cartella.path("archivi"), "Cibra.Mdb"); };
    LeggiPercorsiDb(modulo);
    EXPECT_EQ(world.schermate.gestioneReteShown, 1);
    EXPECT_EQ(modulo.PercorsoDbSistema, "");
}

TEST_F(LocationsTest, AnEmptyLineFourIsNoArchive)
{
    writeLocations("", "", "Cibra.Mdb");
    world.schermate.inGestioneRete = [this] { world.cartella.remove("INI\\GestioneRete.INI"); };
    EXPECT_THROW(LeggiPercorsiDb(modulo), ProgramEnd);
    EXPECT_EQ(locations(), QStringList({"", "", "Cibra.Mdb", ""}));
    EXPECT_EQ(world.dialoghi.boxes(), QStringList(kByBy));
}

TEST_F(LocationsTest, AFolderIsNoArchive)
{
    writeLocations("", world.cartella.path("archivi"), "archivi");
    world.schermate.inGestioneRete = [this] { world.cartella.remove("INI\\GestioneRete.INI"); };
    EXPECT_THROW(LeggiPercorsiDb(modulo), ProgramEnd);
    EXPECT_EQ(world.dialoghi.boxes(), QStringList(kByBy));
}

TEST_F(LocationsTest, AFileCutShortOrFullOfNoiseOpensTheDialog)
{
    for (const QByteArray &bytes : {QByteArray(), QByteArray("[Gestione"), QByteArray("\r\n\r\n\r\n"),
                                    QByteArray("\x00\x01\xFF\n\xFE\n\n\x00/\\\n\x81\n", 13)}) {
        world.cartella.write("INI\\GestioneRete.INI", bytes);
        world.schermate.gestioneReteShown = 0;
        world.schermate.inGestioneRete = [this] { world.cartella.remove("INI\\GestioneRete.INI"); };
        EXPECT_THROW(LeggiPercorsiDb(modulo), ProgramEnd);
        EXPECT_EQ(world.schermate.gestioneReteShown, 1);
        EXPECT_EQ(world.dialoghi.takeBoxes(), QStringList(kByBy));
    }
}

TEST_F(LocationsTest, AnArchiveNamedAloneLiesInTheProgramFolder)
{
    makeTestArchive(world.cartella.path("Cibra.Mdb"));
    writeLocations("", "cibra.mdb", "cibra.mdb");
    LeggiPercorsiDb(modulo);
    EXPECT_EQ(world.schermate.gestioneReteShown, 0);
    EXPECT_EQ(modulo.CartellaDbDati, "");
    ApriConnessioni(modulo);
    EXPECT_EQ(countOf(modulo.dati(), "Piatti"), 0);
}

TEST_F(LocationsTest, BothConnectionsAreOpened)
{
    makeTestArchive(dati);
    makeTestSystemArchive(world.cartella.path("netserver.mdb"));
    modulo.PercorsoDbDati = world.cartella.path("archivi") + "\\Cibra.Mdb";
    ApriConnessioni(modulo);
    EXPECT_TRUE(modulo.ConnessioneDati->isOpen());
    EXPECT_TRUE(modulo.ConnessioneDati->hasTable("SchedaPranzo"));
    EXPECT_TRUE(modulo.ConnessioneSistema->isOpen());
    EXPECT_TRUE(modulo.ConnessioneSistema->hasTable("Messaggi"));
    EXPECT_EQ(world.schermate.paths, QStringList(modulo.PercorsoDbDati));
    EXPECT_EQ(world.cartella.entries("INI"), QStringList("SDIForm.ini"));
}

TEST_F(LocationsTest, WithoutASystemArchiveItsConnectionStaysNull)
{
    makeTestArchive(dati);
    modulo.PercorsoDbDati = dati;
    ApriConnessioni(modulo);
    EXPECT_EQ(modulo.ConnessioneSistema, nullptr);
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
}

TEST_F(LocationsTest, TheArchiveInTheProgramFolderIsTakenWhereNoPathIsKnown)
{
    makeTestArchive(world.cartella.path("Cibra.Mdb"));
    modulo.NomeDbDati = "Cibra.Mdb";
    ApriConnessioni(modulo);
    EXPECT_TRUE(modulo.ConnessioneDati->isOpen());
    EXPECT_EQ(world.schermate.paths, QStringList(world.cartella.path("Cibra.Mdb")));
}

TEST_F(LocationsTest, ADoubledBackslashToTheSystemArchiveIsMendedInMemoryOnly)
{
    makeTestSystemArchive(world.cartella.path("archivi/NetServer.Mdb"));
    const QString doubled = world.cartella.path("archivi") + "\\\\NetServer.Mdb";
    makeTestArchive(dati);
    writeLocations(doubled, dati, "Cibra.Mdb");
    LeggiPercorsiDb(modulo);
    ApriConnessioni(modulo);
    EXPECT_TRUE(modulo.ConnessioneSistema->isOpen());
    EXPECT_EQ(modulo.PercorsoDbSistema, doubled);
    EXPECT_TRUE(world.cartella.read("INI\\GestioneRete.INI").contains(doubled.toLatin1()));
}

TEST_F(LocationsTest, ASystemArchiveThatDoesNotOpenIsPassedOver)
{
    world.cartella.write("archivi\\NetServer.Mdb", "no archive at all");
    ApriDbSistema(modulo, world.cartella.path("archivi/NetServer.Mdb"));
    ASSERT_NE(modulo.ConnessioneSistema, nullptr);
    EXPECT_FALSE(modulo.ConnessioneSistema->isOpen());
    ApriDbSistema(modulo, world.cartella.path("gone.Mdb"));
    EXPECT_FALSE(modulo.ConnessioneSistema->isOpen());
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
}

TEST_F(LocationsTest, AnOpenConnectionIsNeverReopened)
{
    world.openArchive();
    const Connection *before = modulo.ConnessioneDati.get();
    ApriDbDati(modulo, dati);
    EXPECT_EQ(modulo.ConnessioneDati.get(), before);
    EXPECT_EQ(world.schermate.paths, QStringList());
}

TEST_F(LocationsTest, ADamagedArchiveResetsTheChoiceAndLeavesTheConnectionClosed)
{
    world.cartella.write("archivi\\Cibra.Mdb", "SQLite format 3" + QByteArray(1, '\0') + QByteArray(5000, 'x'));
    writeLocations("", dati, "Cibra.Mdb");
    LeggiPercorsiDb(modulo);
    world.schermate.inGestioneRete = [this] {
        EXPECT_FALSE(world.cartella.has("INI\\GestioneRete.INI"));
        EXPECT_EQ(modulo.PercorsoDbDati, "");
        save(world.cartella.path("archivi"), "Altro.Mdb");
    };
    ApriConnessioni(modulo);
    EXPECT_EQ(world.dialoghi.boxes(), QStringList(kReset));
    EXPECT_EQ(world.schermate.gestioneReteShown, 1);
    EXPECT_TRUE(world.cartella.has("INI\\GestioneRete.INI"));
    ASSERT_NE(modulo.ConnessioneDati, nullptr);
    EXPECT_FALSE(modulo.ConnessioneDati->isOpen());
    try {
        modulo.dati().Execute("Delete * from Alimenti");
        FAIL();
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number(), FailureNumber::ConnectionClosed);
    }
}

TEST_F(LocationsTest, AFileOfThePlainKindThatIsNoArchiveIsReset)
{
    world.cartella.write("archivi\\Cibra.Mdb", "just a text");
    ApriDbDati(modulo, dati);
    EXPECT_EQ(world.dialoghi.boxes(), QStringList(kReset));
    EXPECT_EQ(world.schermate.gestioneReteShown, 1);
}

TEST_F(LocationsTest, AnArchiveWithAPasswordOpensAfterTheRightOne)
{
    makeProtectedTestArchive(dati, "segreta");
    world.dialoghi.answerText("segreta");
    ApriDbDati(modulo, dati);
    EXPECT_TRUE(modulo.ConnessioneDati->isOpen());
    EXPECT_EQ(countOf(modulo.dati(), "Piatti"), 0);
    EXPECT_EQ(world.dialoghi.boxes(), QStringList(kPassword));
    EXPECT_EQ(modulo.RigaLetta, "") << "the password is kept nowhere";
    ApriDbDati(modulo, dati);
    EXPECT_EQ(world.dialoghi.boxes().size(), 1) << "it is asked for once a start";
}

TEST_F(LocationsTest, AWrongPasswordAndNoneEndTheProgram)
{
    makeProtectedTestArchive(dati, "segreta");
    const auto boxesAfter = [this](const QString &answer) {
        modulo.ConnessioneDati.reset();
        world.dialoghi.answerText(answer);
        EXPECT_THROW(ApriDbDati(modulo, dati), ProgramEnd);
        return world.dialoghi.takeBoxes();
    };
    const QString refused = "MsgBox 16 \"Password errata\" Database protetto con password\n";
    EXPECT_EQ(boxesAfter("sbagliata"), QStringList({kPassword, refused + "Password non valida"}));
    EXPECT_EQ(boxesAfter(""), QStringList({kPassword, refused + "L'archivio è protetto da una password"}));
    EXPECT_EQ(world.schermate.gestioneReteShown, 0);
}

TEST_F(LocationsTest, AnArchiveWithoutItsTablesOpensAndFailsWhereOneIsNeeded)
{
    makeTestSystemArchive(dati); // an archive, but with none of the household's tables
    ApriDbDati(modulo, dati);
    EXPECT_TRUE(modulo.ConnessioneDati->isOpen());
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
    try {
        NuovoId(modulo, "Categorie");
        FAIL();
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number(), FailureNumber::Engine);
        EXPECT_TRUE(failure.words().contains("Categorie")) << failure.words().toStdString();
        EXPECT_EQ(failure.statement(), "SELECT Max(ID) + 1 AS ID FROM Categorie;");
    }
}

TEST_F(LocationsTest, AWindowThatFailsToLoadIsNoFailureOfTheArchive)
{
    struct FailingMenu : TestSchermate
    {
        void percorsoNellaBarra(const QString &) override { throw Failure::usual(FailureNumber::InputPastEnd); }
    };
    FailingMenu screens;
    ModNetServer other(world.mondo, screens);
    makeTestArchive(dati);
    ApriDbDati(other, dati);
    EXPECT_TRUE(other.ConnessioneDati->isOpen());
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
}
