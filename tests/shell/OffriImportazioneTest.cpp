// The offer to import an old .mdb file chosen in the database dialog.
#include "shell/OffriImportazione.h"

#include "platform/store/ArchiveFile.h"
#include "shell/ConfermaDatabase.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>

namespace {

const QString kQuestion = "MsgBox 68 \"Importazione archivio\" Il file \"%1\" è un archivio del vecchio formato "
                          ".mdb.\nVuoi importarlo nel nuovo archivio \"%2\"?\nIl vecchio file resta com'è.";
const QString kPassword = "InputBox hidden \"Inserisci la password per accedere al database\" Inserisci la password "
                          "per accedere al database";

QByteArray sample(const QString &name)
{
    QFile file(QStringLiteral(CIBRA_SOURCE_DIR "/tests/archive/mdb/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

class OffriImportazioneTest : public testing::Test
{
protected:
    int count = 0;
    QCoreApplication application{count, nullptr}; // which knows where the program lies
    TestWorld world;

    void putOld(const QString &told, const QString &name) const { world.cartella.write(told, sample(name)); }
    QString folder() const { return world.cartella.path(); }
    DopoConferma conferma(const QString &file) { return ConfermaDatabase(world.modulo, folder(), file); }
    static QString question(const QString &file, const QString &name) { return kQuestion.arg(file, name); }
};

TEST_F(OffriImportazioneTest, OnYesTheNewArchiveIsChosenInPlaceOfTheOldOne)
{
    putOld("casa.mdb", "netserver97.mdb");
    world.dialoghi.answer(MsgAnswer::Si);
    EXPECT_EQ(conferma("casa.mdb"), DopoConferma::ChiudiDialogo);
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList({question("casa.mdb", "casa.db"),
                           "MsgBox 64 \"Importazione archivio\" Il nuovo archivio è \"casa.db\".\n\n"
                           "Formato Jet 3, tabelle 1\nMessaggi: righe lette 3, scritte 3"}));
    EXPECT_EQ(world.modulo.NomeDbDati, "casa.db");
    EXPECT_EQ(world.modulo.PercorsoDbDati, folder() + "\\casa.db");
    EXPECT_EQ(rowCounts(world.cartella.path("casa.db")).value("Messaggi"), 3);
    EXPECT_TRUE(world.cartella.read("casa.mdb") == sample("netserver97.mdb"));
    EXPECT_EQ(world.schermo.pointers, (std::vector<int>{MousePointer::Hourglass, MousePointer::Default}));
}

TEST_F(OffriImportazioneTest, OnNoNothingIsWrittenAndTheDialogStays)
{
    putOld("casa.mdb", "netserver97.mdb");
    world.dialoghi.answer(MsgAnswer::No);
    EXPECT_EQ(conferma("casa.mdb"), DopoConferma::LasciaAperto);
    EXPECT_EQ(world.dialoghi.boxes(), QStringList(question("casa.mdb", "casa.db")));
    EXPECT_FALSE(world.cartella.has("INI\\GestioneRete.INI"));
    EXPECT_FALSE(world.cartella.has("casa.db"));
}

TEST_F(OffriImportazioneTest, ANameThatIsTakenGetsANumber)
{
    putOld("casa.mdb", "netserver97.mdb");
    world.cartella.write("casa.db", "di qualcuno");
    world.cartella.write("casa-2.db", "di qualcuno");
    world.dialoghi.answer(MsgAnswer::Si);
    EXPECT_EQ(OffriImportazione(world.modulo, folder(), "casa.mdb"), "casa-3.db");
    EXPECT_EQ(world.cartella.read("casa.db"), "di qualcuno");
}

TEST_F(OffriImportazioneTest, ADamagedFileIsToldAndTheDialogStays)
{
    putOld("casa.mdb", "rotto.mdb");
    world.dialoghi.answer(MsgAnswer::Si);
    EXPECT_EQ(conferma("casa.mdb"), DopoConferma::LasciaAperto);
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList({question("casa.mdb", "casa.db"),
                           "MsgBox 16 \"Importazione archivio\" Il file \"" + folder() +
                               "/casa.mdb\" è tronco: ne manca la fine. Niente è stato importato"}));
    EXPECT_EQ(world.cartella.entries(), QStringList({"INI/", "casa.mdb"}));
}

TEST_F(OffriImportazioneTest, APasswordIsAskedForOnceAndAWrongOneIsTold)
{
    putOld("casa.mdb", "password97.mdb");
    for (const char *typed : {"", "sbagliata"}) {
        world.dialoghi.answer(MsgAnswer::Si);
        world.dialoghi.answerText(typed);
        EXPECT_EQ(OffriImportazione(world.modulo, folder(), "casa.mdb"), "");
    }
    EXPECT_EQ(world.dialoghi.takeBoxes(), QStringList({question("casa.mdb", "casa.db"), kPassword,
                                                       "MsgBox 16 \"Importazione archivio\" Il file \"" + folder() +
                                                           "/casa.mdb\" è protetto da una password",
                                                       question("casa.mdb", "casa.db"), kPassword,
                                                       "MsgBox 16 \"Importazione archivio\" La password del file \"" +
                                                           folder() + "/casa.mdb\" non è quella giusta"}));
    EXPECT_EQ(world.cartella.entries(), QStringList("casa.mdb"));

    world.dialoghi.answer(MsgAnswer::Si);
    world.dialoghi.answerText("segreta");
    EXPECT_EQ(OffriImportazione(world.modulo, folder(), "casa.mdb"), "casa.db");
    EXPECT_EQ(rowCounts(world.cartella.path("casa.db"), "segreta").value("SchedaPranzo"), 60);
}

TEST_F(OffriImportazioneTest, OfALongReportTheCountsOfWholeTablesAreDroppedFirst)
{
    QStringList lines = {"Formato Jet 4, tabelle 20"};
    for (int i = 1; i <= 20; ++i)
        lines += QString("Tabella%1: righe lette %2, scritte %2").arg(i).arg(i * 10);
    lines += "Da notare: la query \"x\" non è portata";
    EXPECT_EQ(RapportoInBreve(lines.join(u'\n')), lines.join(u'\n')) << "22 lines have room";
    lines += "Tabelle che il file non ha, lasciate vuote: Menu";
    EXPECT_EQ(RapportoInBreve(lines.join(u'\n')),
              "Formato Jet 4, tabelle 20\nDi ogni tabella sono scritte tutte le righe lette\n"
              "Da notare: la query \"x\" non è portata\nTabelle che il file non ha, lasciate vuote: Menu");
    EXPECT_EQ(RapportoInBreve(""), "");
}

TEST_F(OffriImportazioneTest, ALineThatTheBoxBreaksCountsAsSeveral)
{
    QStringList lines = {"Formato Jet 4, tabelle 1"};
    const QString note = "Da notare: " + QString(160, 'x');
    for (int i = 0; i < 7; ++i)
        lines += note;
    EXPECT_EQ(RapportoInBreve(lines.join(u'\n')), lines.join(u'\n')) << "three lines each";
    lines += note;
    EXPECT_EQ(RapportoInBreve(lines.join(u'\n')),
              "Formato Jet 4, tabelle 1\nDi ogni tabella sono scritte tutte le righe lette\n" +
                  QStringList(6, note).join(u'\n') + "\n... e altre righe: 2");
}

TEST_F(OffriImportazioneTest, AReportThatDoesNotFitLiesWholeBesideTheArchive)
{
    putOld("casa.mdb", "password97.mdb");
    world.cartella.write("casa-importazione.txt", "di qualcuno");
    world.dialoghi.answer(MsgAnswer::Si);
    world.dialoghi.answerText("segreta");
    EXPECT_EQ(OffriImportazione(world.modulo, folder(), "casa.mdb"), "casa.db");
    EXPECT_EQ(world.dialoghi.boxes().last(),
              "MsgBox 64 \"Importazione archivio\" Il nuovo archivio è \"casa.db\".\n\n"
              "Formato Jet 3, tabelle 15\n"
              "Di ogni tabella sono scritte tutte le righe lette\n"
              "Tabelle che il programma non usa, portate come sono: Appunti di casa\n"
              "Da notare: Amministratori: la colonna \"Nome\" non è del programma ed è portata com'è\n"
              "Da notare: Clienti: la colonna \"predefinito\" non è del programma ed è portata com'è\n"
              "L'archivio nuovo si apre con la stessa password del vecchio\n\n"
              "Il resoconto intero è in \"casa-2-importazione.txt\".");
    EXPECT_EQ(world.cartella.read("casa-importazione.txt"), "di qualcuno");
    const QByteArray whole = world.cartella.read("casa-2-importazione.txt");
    EXPECT_EQ(whole.count("\r\n"), 20);
    EXPECT_TRUE(whole.startsWith("Formato Jet 3, tabelle 15\r\nCategorie: righe lette 20, scritte 20\r\n") &&
                whole.endsWith("L'archivio nuovo si apre con la stessa password del vecchio\r\n"))
        << whole.constData();
}

// The keys of a password take longer than the program waits between two looks at the keyboard.
TEST_F(OffriImportazioneTest, EscGivesTheImportUpAndNothingIsLeftOfIt)
{
    putOld("casa.mdb", "password97.mdb");
    world.dialoghi.answer(MsgAnswer::Si);
    world.dialoghi.answerText("segreta");
    world.schermo.onBreath = [this] { world.schermo.escAtBreath = world.dialoghi.boxes().size() > 1 ? 1 : 0; };
    EXPECT_EQ(conferma("casa.mdb"), DopoConferma::LasciaAperto);
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList({question("casa.mdb", "casa.db"), kPassword,
                           "MsgBox 16 \"Importazione archivio\" L'importazione è stata interrotta con Esc. Niente è "
                           "stato importato"}));
    EXPECT_EQ(world.cartella.entries(), QStringList({"INI/", "casa.mdb"}));
    EXPECT_EQ(world.schermo.pointers.back(), MousePointer::Default);
}

TEST_F(OffriImportazioneTest, NamesMayHaveAccentsBlanksAndSigns)
{
    putOld("dischetto 1/città d'oro.mdb", "netserver97.mdb");
    world.dialoghi.answer(MsgAnswer::Si);
    EXPECT_EQ(OffriImportazione(world.modulo, folder() + "/dischetto 1", "città d'oro.mdb"), "città d'oro.db");
    EXPECT_EQ(world.cartella.entries("dischetto 1"), QStringList({"città d'oro.db", "città d'oro.mdb"}));
}

TEST_F(OffriImportazioneTest, AnArchiveOfThisProgramIsTakenWithoutAWord)
{
    makeTestArchive(world.cartella.path("casa.mdb"));
    EXPECT_FALSE(EArchivioJet(world.cartella.path("casa.mdb")));
    EXPECT_FALSE(EArchivioJet(world.cartella.path("manca.mdb")));
    EXPECT_EQ(conferma("casa.mdb"), DopoConferma::ChiudiDialogo);
    EXPECT_EQ(world.dialoghi.boxes(), QStringList());
    EXPECT_EQ(world.modulo.NomeDbDati, "casa.mdb");
}

} // namespace
