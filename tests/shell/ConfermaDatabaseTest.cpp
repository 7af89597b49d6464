// "Conferma" of the database dialog.
#include "shell/ConfermaDatabase.h"

#include "support/TestWorld.h"

#include <gtest/gtest.h>

namespace {

const QString kQuestion = "Msg1 \"Attenzione !!\" La procedura deve attivare il collegamento DSN \noppure la "
                          "connessione Diretta al Database\nappena selezionato? [DSN|Diretta|Annulla] 0 103 picture 23";
const QString kNothing = "Msg1 \"Nessuna selezione ....\" Non è stato selezionato nessun Database Aziendale, "
                         "Riprova... [OK!] 0 0 picture 36";

class ConfermaDatabaseTest : public testing::Test
{
protected:
    TestWorld world;

    QString folder() const { return world.cartella.path(); }
};

TEST_F(ConfermaDatabaseTest, TheChosenArchiveIsWrittenWholeAndReadBackWithoutAWord)
{
    makeTestArchive(world.cartella.path("famiglia.db"));
    EXPECT_EQ(ConfermaDatabase(world.modulo, folder(), "famiglia.db"), DopoConferma::ChiudiDialogo);
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
    const QList<QByteArray> lines = world.cartella.read("INI\\GestioneRete.INI").split('\n');
    ASSERT_EQ(lines.size(), 15);
    EXPECT_EQ(lines[0], "[Gestione database]\r");
    EXPECT_EQ(lines[1], "\r");
    EXPECT_EQ(lines[2], "[Gestione database Aziendale]\r");
    EXPECT_EQ(lines[3], folder().toUtf8() + "\\famiglia.db\r");
    EXPECT_EQ(lines[4], "famiglia.db\r");
    EXPECT_EQ(lines[5], "\r");
    EXPECT_EQ(world.cartella.read("INI\\NetServer.ini"), "NetProc = false\r\n");
    EXPECT_EQ(world.cartella.read("INI\\SDIForm.ini"), "[Stile]\r\nStileMenu = 0\r\n");
    EXPECT_EQ(world.modulo.NomeDbDati, "famiglia.db");
    EXPECT_EQ(world.modulo.PercorsoDbDati, folder() + "\\famiglia.db");
    EXPECT_EQ(world.modulo.CartellaDbDati, folder());
    EXPECT_EQ(world.modulo.PercorsoDbSistema, "");
    EXPECT_EQ(world.modulo.ConnessioneDati, nullptr);
}

TEST_F(ConfermaDatabaseTest, WithNothingSelectedTheDialogStaysOpen)
{
    EXPECT_EQ(ConfermaDatabase(world.modulo, folder(), {}), DopoConferma::LasciaAperto);
    EXPECT_EQ(world.dialoghi.boxes(), QStringList(kNothing));
    EXPECT_FALSE(world.cartella.has("INI\\GestioneRete.INI"));
    EXPECT_TRUE(world.cartella.has("INI\\NetServer.ini"));
}

TEST_F(ConfermaDatabaseTest, EitherOdbcMarkerMakesItAskAndDsnForgetsTheLocations)
{
    for (const char *marker : {"INI\\GestOdbc.ini", "INI\\GestNetOdbc.ini"}) {
        world.cartella.write(marker, "");
        world.cartella.write("INI\\GestioneRete.INI", "vecchio");
        world.dialoghi.answerButton(6);
        EXPECT_EQ(ConfermaDatabase(world.modulo, folder(), "famiglia.db"), DopoConferma::ChiudiDialogo);
        EXPECT_EQ(world.dialoghi.takeBoxes(), QStringList(kQuestion));
        EXPECT_FALSE(world.cartella.has("INI\\GestioneRete.INI"));
        EXPECT_FALSE(world.cartella.has("INI\\NetServer.ini"));
        world.cartella.remove(marker);
    }
}

TEST_F(ConfermaDatabaseTest, AnnullaSaysGoodbyeAndChangesNothing)
{
    world.cartella.write("INI\\GestOdbc.ini", "");
    world.cartella.write("INI\\GestioneRete.INI", "vecchio");
    world.dialoghi.answerButton(2);
    EXPECT_EQ(ConfermaDatabase(world.modulo, folder(), "famiglia.db"), DopoConferma::ChiudiDialogo);
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList({kQuestion, "MsgBox 64 \"Procedura terminata!\" L'operatore non ha effettuato scelta \nbye "
                                      "bye"}));
    EXPECT_EQ(world.cartella.read("INI\\GestioneRete.INI"), "vecchio");
}

TEST_F(ConfermaDatabaseTest, DirettaGoesOn)
{
    world.cartella.write("INI\\GestNetOdbc.ini", "");
    world.dialoghi.answerButton(7);
    EXPECT_EQ(ConfermaDatabase(world.modulo, folder(), {}), DopoConferma::LasciaAperto);
    EXPECT_EQ(world.dialoghi.boxes(), QStringList({kQuestion, kNothing}));
}

// Line 2 is written only for a shared installation; a hand that puts a path there brings the confirmation back.
TEST_F(ConfermaDatabaseTest, TheConfirmationAppearsWhereTheSystemArchiveHasAPath)
{
    makeTestArchive(world.cartella.path("famiglia.db"));
    makeTestSystemArchive(world.cartella.path("NetServer.Mdb"));
    world.schermate.inGestioneRete = [this] {
        world.cartella.write("INI\\GestioneRete.INI", ("[Gestione database]\r\n" + folder() +
                                                       "\\NetServer.Mdb\r\n[Gestione database "
                                                       "Aziendale]\r\n" +
                                                       folder() + "\\famiglia.db\r\nfamiglia.db\r\n")
                                                          .toUtf8());
    };
    // The selected archive vanishes before the settings are read back, so the dialog comes up again.
    EXPECT_EQ(ConfermaDatabase(world.modulo, folder(), "sparito.db"), DopoConferma::ChiudiDialogo);
    EXPECT_EQ(world.schermate.gestioneReteShown, 1);
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList("Msg1 \"O.K.!!\" Registrazione effettuata con successo,\nDataSystem     " + folder() +
                          "\\NetServer.Mdb\nDataAziendale " + folder() + "\\famiglia.db [OK!] 0 0 picture 27"));
}

TEST_F(ConfermaDatabaseTest, SettingsThatCannotBeWrittenFailWithTheirPath)
{
    world.cartella.makeFolder("INI\\NetServer.ini");
    try {
        ConfermaDatabase(world.modulo, folder(), "famiglia.db");
        FAIL() << "a folder stands where the file should be";
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number(), FailureNumber::PathAccess);
        EXPECT_TRUE(failure.words().contains("NetServer.ini")) << failure.words().toStdString();
    }
}

} // namespace
