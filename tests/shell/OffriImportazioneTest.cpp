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

TEST_F(OffriImportazioneTest, ALongReportIsShownAsFarAsItFits)
{
    QStringList lines;
    for (int i = 1; i <= 22; ++i)
        lines += QString("riga %1").arg(i);
    EXPECT_EQ(RapportoInBreve(lines.join(u'\n')), lines.join(u'\n'));
    const QStringList longer = lines + QStringList({"riga 23", "riga 24"});
    EXPECT_EQ(RapportoInBreve(longer.join(u'\n')), lines.mid(0, 21).join(u'\n') + "\n... e altre 3 righe");
    EXPECT_EQ(RapportoInBreve(""), "");
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
