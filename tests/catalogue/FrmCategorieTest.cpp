#include "catalogue/forms/FrmCategorie.h"

#include "platform/ui/DataCombo.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/StatusPanels.h"
#include "support/FormWorld.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

namespace {

const QString kSaved = "F1 Help     *    Record: ";
const QString kSavedEmpty = "F1 Help     *    RecordSet Vuoto!!";
const QString kRefused = "Msg1 \"Operazione NON consentita\" Il contenuto del Record è gestito dalla Procedura\rNon è "
                         "possibile apportare alcuna Modifica / Cancellazione\rse non con abilitazione "
                         "dell'Amministratore di Sistema [OK!] 0 0 picture 36";
const QString kNotFound = "Msg1 \"RICERCA ...K.O!!\" ELEMENTO non trovato!! [OK!] 0 0 picture 36";
const QString kReminder =
    "Msg1 \"Contattare il programmatore della procedura\" Il programmatore deve contribuire "
    "all'attivazione della modalità di Ricerca, disattivando i commenti del codice. [OK!] 0 0 picture 27";
const QString kAsk = "InputBox \"RICERCA\" Inserisci l'Alimento da ricercare";

class FrmCategorieTest : public testing::Test, protected FormWorld<FrmCategorie>
{
protected:
    FrmCategorieTest()
    {
        insertRows(dati, "CategorieMaster", "ID, categorie", {"3, 'Bevande'", "4, 'Cereali'", "5, 'Frutta'"});
    }
    ~FrmCategorieTest() override { EXPECT_EQ(failures, QStringList()); }

    void insertFoods()
    {
        insertRows(dati, "Categorie", "ID, Alimento, TIPO, Kcal, KJ, ParteEdibile, DataInserimento",
                   {"1, 'Caffè d''orzo', 3, 20.5, 84, 100, '2020-01-31'", "2, 'Riso', 4, 350, Null, 100, Null",
                    "3, 'Risone', 4, 340, Null, 100, Null", "7, 'Zucca', 99, 26, Null, 80, Null"});
    }
    void show(int level = 0)
    {
        world.modulo.LivelloUtente = level;
        form().showModeless();
        QApplication::setActiveWindow(&form());
        QApplication::processEvents();
        world.dialoghi.takeBoxes();
        world.schermo.beeps = 0;
    }
    QLineEdit &box(int index) { return control<QLineEdit>(QString("TxtFields_%1").arg(index)); }
    QString line() { return control<QLabel>("lblStatus").text(); }
    QString food() { return box(2).text(); }
    DataCombo &group() { return control<DataCombo>("DataCombo1"); }
    StatusPanels &bar() { return control<StatusPanels>("StatusBar1"); }
    void panel(int number) { QTest::mouseClick(bar().panelWidget(number), Qt::LeftButton); }
    void type(int index, const QString &text)
    {
        box(index).setFocus();
        box(index).selectAll();
        QTest::keyClick(&box(index), Qt::Key_Delete);
        QTest::keyClicks(&box(index), text);
    }
    QStringList panels(bool shown)
    {
        QStringList texts;
        for (int i = 1; i <= bar().panelCount(); ++i) {
            if (bar().panelWidget(i)->isHidden() != shown)
                texts.append(bar().panelText(i));
        }
        return texts;
    }
    QString stored(const QString &field, int id)
    {
        Recordset one;
        one.Open(QString("SELECT * FROM Categorie WHERE ID = %1").arg(id), dati);
        return one.RecordCount() == 0 ? "gone" : one.value(field).isNull() ? "NULL" : one.value(field).text();
    }
    QStringList boxes() { return world.dialoghi.takeBoxes(); }
    QString log() { return QString::fromLatin1(world.cartella.read("\\Errori\\ErrFrmCategorie.txt")); }
};

// Load

TEST_F(FrmCategorieTest, ItOpensOnTheFirstFoodInTheViewState)
{
    insertFoods();
    show();
    EXPECT_EQ(form().windowTitle(), "Scheda Alimento          (FrmCategorie.frm)");
    EXPECT_EQ(form().stato(), "V");
    EXPECT_EQ(food(), "Caffè d'orzo");
    EXPECT_EQ(box(4).text(), "20,5");
    EXPECT_EQ(group().text(), "Bevande");
    EXPECT_EQ(line(), "Record: 1\\4");
    EXPECT_EQ(world.schermate.pannelli.value(4), "Procedura Scheda Alimento          (FrmCategorie.frm) in esecuzione");
    EXPECT_EQ(world.schermate.suggerimentoErrore, "Procedura Scheda Alimento");
    EXPECT_EQ(world.schermo.pointers.back(), MousePointer::Default);
}

TEST_F(FrmCategorieTest, EveryBoxIsBoundToItsColumnAndLabelledWithItsName)
{
    const char *const fields[] = {"ID",
                                  "",
                                  "Alimento",
                                  "ParteEdibile",
                                  "Kcal",
                                  "KJ",
                                  "Acqua_G",
                                  "Prot_tot_G",
                                  "Prot_anim",
                                  "Prot_Veg",
                                  "Glucidi_tot",
                                  "Amido",
                                  "Glucidi_solub",
                                  "Lipidi_tot",
                                  "Saturi_tot",
                                  "Monoins_tot",
                                  "Polins_tot",
                                  "Ac_oleico",
                                  "Ac_linoleico",
                                  "Ac_linolenico",
                                  "altri_Polins",
                                  "alcool",
                                  "Colest",
                                  "Fibre_alim",
                                  "Ferro",
                                  "Ca",
                                  "Na",
                                  "K",
                                  "P",
                                  "Zn",
                                  "Vit_B1",
                                  "Vi_C",
                                  "Vit_B2",
                                  "Vit_B3",
                                  "Vit_B6",
                                  "Beta_carotene_eq",
                                  "Folico",
                                  "Retinolo_eq",
                                  "Vit_E",
                                  "Vit_D"};
    QStringList names, values;
    for (int i = 0; i < 40; ++i) {
        if (i == 1)
            continue;
        names.append(fields[i]);
        values.append(i == 2 ? QString("'cibo'") : QString::number(i + 100));
    }
    insertRows(dati, "Categorie", names.join(", "), {values.join(", ")});
    show();
    for (int i = 0; i < 40; ++i) {
        const QString label = control<QLabel>(QString("LbLabel_%1").arg(i)).text();
        EXPECT_EQ(label, i == 1 ? "TIPO" : i == 3 ? "Parte Edibile" : fields[i]);
        if (i != 1) {
            EXPECT_EQ(box(i).text(), i == 2 ? QString("cibo") : QString::number(i + 100)) << fields[i];
        }
    }
}

TEST_F(FrmCategorieTest, TheBarHasItsSevenPanelsAndGrigliaIsHiddenInTheViewState)
{
    insertFoods();
    show();
    QStringList texts, tips;
    for (int i = 1; i <= bar().panelCount(); ++i) {
        texts.append(bar().panelText(i));
        tips.append(bar().panelWidget(i)->toolTip());
    }
    EXPECT_EQ(texts, QStringList({"F5 New", "F4 Ricerca", "F7 Ric.Successiva", "F3 Cancella", "F10 Annulla", "Griglia",
                                  "F12 Salva"}));
    EXPECT_EQ(tips,
              QStringList({"Aggiunge un Nuovo Record ", "Ricerca", "Ricerca Successiva", "Cancella il Record corrente",
                           "Annulla le modifiche", "Esce dalla procedura", "Salva le modifiche apportate"}));
    EXPECT_EQ(panels(false), QStringList("Griglia"));
}

TEST_F(FrmCategorieTest, WithoutALevelAddDuplicateAndDeleteAreNotOfferedAndPanelsOneAndFiveAreDisabled)
{
    show();
    for (const char *entry : {"MnuAdd", "mnuDuplica", "MnuDelete"})
        EXPECT_FALSE(control<QAction>(entry).isVisible()) << entry;
    EXPECT_FALSE(bar().isPanelEnabled(1));
    EXPECT_TRUE(bar().isPanelEnabled(4)) << "F3 Cancella stays, though its key tests the fifth";
    EXPECT_FALSE(bar().isPanelEnabled(5));
}

TEST_F(FrmCategorieTest, LevelThreeMayAddAndLevelFourMayDelete)
{
    show(3);
    EXPECT_TRUE(control<QAction>("MnuAdd").isVisible());
    EXPECT_TRUE(control<QAction>("mnuDuplica").isVisible());
    EXPECT_FALSE(control<QAction>("MnuDelete").isVisible());
    form().unload();
    show(4);
    EXPECT_TRUE(control<QAction>("MnuDelete").isVisible());
    EXPECT_TRUE(bar().isPanelEnabled(5));
}

TEST_F(FrmCategorieTest, TheMenuStandsLetterByLetterAndIsListedInItsFile)
{
    show();
    EXPECT_EQ(QString::fromLatin1(world.cartella.read("\\INI\\FrmCategorie.mnu")),
              "MnuView=&Record\r\nMnuAdd=&Aggiungi\r\nmnuDuplica=Duplica Record\r\nmnuAddBar1=\r\nMnuUpdate=&Salva\r\n"
              "mnuAddBar2=\r\nMnuDelete=C&ancella\r\nMnuRicerc=Ricerca\r\nMnuRicerca=Nuova &Ricerca\r\n"
              "MnuSuccessivo=Cerca &Successivo\r\nmnusep3=\r\nMnuStampa=Stampa Pagina\r\n"
              "MnuFileTesto=Stampa Intero Recordset su Files testo\r\nmnuImposta=Impostazione Stampante\r\n"
              "mnuAddBar3=\r\nmnuUtility=Utility\r\nMnuMostraTabella=Mostra Tabella Access 2000\r\n"
              "MnuRefresh=Refresh Recordset\r\nmnuGriglia=Griglia\r\nMnuCalcola=Calcolatrice\r\n"
              "MnuContrChar=Controllo Caratteri NON ammessi\r\nMnuSepp33=\r\nMnuConfiguraMenu=Configura Menu\r\n"
              "MnuSepp3=\r\nmnuLog=Mostra Log Errore\r\nMnuEmail=Email - Comunicazione Anomalie Procedura\r\n"
              "MnuHelp=?\r\nmnuAddBar4=\r\nMnuClose=&Chiudi\r\nMnuAnnulla=&Annulla  (F10)\r\n"
              "MnuSalva=&Salva   (F12)\r\nMnuEsci=&Esci  \r\nMnuNascosto=.\r\nMnuAnnulla2=&Annulla  (F10)\r\n"
              "MnuSalva2=&Salva   (F12)\r\n");
}

TEST_F(FrmCategorieTest, MissingColumnsAreToldAndTheFormOpens)
{
    insertFoods();
    dati.Execute("DROP TABLE Amministratori");
    dati.Execute("CREATE TABLE Amministratori (ID INTEGER PRIMARY KEY)");
    form().showModeless();
    EXPECT_EQ(boxes(),
              QStringList(QString::fromUtf8(
                  "Msg1 \"Tabella non conforme!!\" La tabella  Amministratori non contiene\runo o piï¿½ campi "
                  "obligatori:\r____________________________________________\r\r\rManca campo  "
                  "DATAINSERIMENTO - tipo DATE\rManca campo  PREDEFINITO - tipo BOOLEAN [OK] 0 0 picture 32")));
    EXPECT_EQ(food(), "Caffè d'orzo");
    EXPECT_TRUE(form().isVisible());
}

TEST_F(FrmCategorieTest, WithoutTheTemplateTableTheFailureIsToldAndTheFormOpens)
{
    insertFoods();
    dati.Execute("DROP TABLE Amministratori");
    form().showModeless();
    const QStringList told = boxes();
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told.first().startsWith("Msg1 \"Errore Generico\"")) << told.first().toStdString();
    EXPECT_TRUE(log().contains("FrmCategorie * Form_Load "));
    EXPECT_EQ(food(), "Caffè d'orzo");
    EXPECT_EQ(line(), "Record: 1\\4");
}

TEST_F(FrmCategorieTest, AFailingLoadIsToldAndTheFormStaysOpen)
{
    dati.Execute("DROP TABLE Categorie");
    form().showModeless();
    EXPECT_TRUE(boxes().first().startsWith("Msg1 \"Errore Generico\""));
    EXPECT_TRUE(log().contains("FrmCategorie * Form_Load "));
    EXPECT_TRUE(form().isVisible());
    EXPECT_EQ(world.schermo.pointers.back(), MousePointer::Default);
}

TEST_F(FrmCategorieTest, TextsAreLimitedToTheirColumnAndNumbersAreRightAligned)
{
    insertFoods();
    show();
    EXPECT_EQ(box(2).maxLength(), 100);
    EXPECT_TRUE(box(4).alignment() & Qt::AlignRight);
    EXPECT_FALSE(box(2).alignment() & Qt::AlignRight);
    type(2, QString(120, 'x'));
    key(Qt::Key_Down);
    EXPECT_EQ(stored("Alimento", 1), QString(100, 'x'));
}

// Navigation

TEST_F(FrmCategorieTest, NextOnTheLastBeepsAndShowsTheFirstAndPreviousOnTheFirstTheLast)
{
    insertFoods();
    show();
    click("cmdPrevious");
    EXPECT_EQ(food(), "Zucca");
    EXPECT_EQ(line(), "4\\4");
    EXPECT_EQ(world.schermo.beeps, 1);
    click("cmdNext");
    EXPECT_EQ(food(), "Caffè d'orzo");
    EXPECT_EQ(world.schermo.beeps, 2);
    click("cmdNext");
    EXPECT_EQ(line(), "2\\4");
    click("cmdLast");
    EXPECT_EQ(line(), "4\\4");
    click("cmdFirst");
    EXPECT_EQ(line(), "1\\4");
    EXPECT_EQ(world.schermo.beeps, 2);
}

TEST_F(FrmCategorieTest, OnAnEmptyTableNavigationNeitherWrapsNorBeeps)
{
    show();
    EXPECT_EQ(line(), "RecordSet Vuoto!!");
    click("cmdFirst");
    EXPECT_EQ(line(), " RecordSet Vuoto!!");
    for (const char *button : {"cmdNext", "cmdPrevious", "cmdLast"}) {
        control<QLabel>("lblStatus").clear();
        click(button);
        EXPECT_EQ(line(), "RecordSet Vuoto!!") << button;
    }
    EXPECT_EQ(world.schermo.beeps, 0);
}

TEST_F(FrmCategorieTest, OnAnEmptyTableEveryCommandWritesItsOwnEmptyLine)
{
    show();
    world.dialoghi.answerText("riso");
    key(Qt::Key_F4);
    EXPECT_EQ(line(), kSavedEmpty);
    EXPECT_EQ(boxes(), QStringList({kAsk, kNotFound}));
    for (const char *entry : {"MnuUpdate", "MnuRefresh", "MnuSuccessivo"}) {
        control<QLabel>("lblStatus").clear();
        menu(entry);
        EXPECT_EQ(line(), kSavedEmpty) << entry;
    }
    menu("MnuContrChar");
    EXPECT_EQ(line(), " RecordSet Vuoto!!");
}

TEST_F(FrmCategorieTest, TheKeysMoveTheRecordEvenFromATextBoxAndTheEditIsStored)
{
    insertFoods();
    show();
    const std::tuple<int, Qt::KeyboardModifiers, const char *> keys[] = {
        {Qt::Key_Down, Qt::NoModifier, "Riso"},       {Qt::Key_PageDown, Qt::NoModifier, "Risone"},
        {Qt::Key_Up, Qt::NoModifier, "Riso"},         {Qt::Key_PageUp, Qt::NoModifier, "Caffè d'orzo"},
        {Qt::Key_End, Qt::NoModifier, "Zucca"},       {Qt::Key_Home, Qt::NoModifier, "Caffè d'orzo"},
        {Qt::Key_Down, Qt::ControlModifier, "Zucca"}, {Qt::Key_Up, Qt::ControlModifier, "Caffè d'orzo"}};
    box(4).setFocus();
    for (const auto &[which, modifiers, name] : keys) {
        key(which, modifiers);
        EXPECT_EQ(food(), name) << which;
    }
    type(4, "21");
    key(Qt::Key_Down);
    EXPECT_EQ(stored("Kcal", 1), "21");
}

TEST_F(FrmCategorieTest, DownInTheGroupMovesTheRecordAndPicksNothing)
{
    insertFoods();
    show();
    group().setFocus();
    key(Qt::Key_Down);
    EXPECT_EQ(group().text(), "Cereali");
    key(Qt::Key_Up);
    EXPECT_EQ(stored("TIPO", 1), "3");
    EXPECT_EQ(stored("TIPO", 2), "4");
}

TEST_F(FrmCategorieTest, NextAndPreviousHideTheErrorImage)
{
    insertFoods();
    show();
    world.schermate.erroreVisibile = true;
    click("cmdFirst");
    EXPECT_TRUE(world.schermate.erroreVisibile);
    click("cmdNext");
    EXPECT_FALSE(world.schermate.erroreVisibile);
    world.schermate.erroreVisibile = true;
    click("cmdPrevious");
    EXPECT_FALSE(world.schermate.erroreVisibile);
}

TEST_F(FrmCategorieTest, EnterGoesToTheNextFieldAndPressesNothing)
{
    insertFoods();
    show();
    box(2).setFocus();
    key(Qt::Key_Return);
    EXPECT_EQ(form().focusWidget(), &group());
    box(39).setFocus(); // the last one: the buttons follow
    key(Qt::Key_Enter);
    EXPECT_EQ(form().focusWidget()->objectName(), "cmdFirst");
    EXPECT_EQ(line(), "Record: 1\\4");
}

TEST_F(FrmCategorieTest, TheTabKeyGoesThroughAllFieldsInTheOrderOfTheEye)
{
    insertFoods();
    show();
    box(2).setFocus();
    QStringList order;
    for (int i = 0; i < 40; ++i) {
        order.append(form().focusWidget()->objectName().section('_', 1));
        key(Qt::Key_Tab);
    }
    EXPECT_EQ(order.join(' '),
              "2  3 0 4 5 6 21 7 8 9 10 11 12 23 13 14 15 16 17 18 19 20 22 24 25 26 27 28 29 30 32 33 "
              "34 31 36 37 35 38 39");
}

// Function keys and panels

TEST_F(FrmCategorieTest, AddAndDeleteBeepBecauseTheirPanelsAreDisabled)
{
    insertFoods();
    show();
    key(Qt::Key_F5);
    key(Qt::Key_F3);
    panel(4); // "F3 Cancella" is enabled, its key is not
    EXPECT_EQ(world.schermo.beeps, 3);
    EXPECT_EQ(boxes(), QStringList());
    EXPECT_EQ(form().stato(), "V");
    EXPECT_EQ(countOf(dati, "Categorie"), 4);
}

TEST_F(FrmCategorieTest, CancelAndSaveBeepInTheViewState)
{
    show();
    key(Qt::Key_F10);
    key(Qt::Key_F12);
    panel(7);
    EXPECT_EQ(world.schermo.beeps, 3);
    key(Qt::Key_F6);
    key(Qt::Key_F9);
    EXPECT_EQ(world.schermo.beeps, 3) << "keys that this sheet does not know";
}

TEST_F(FrmCategorieTest, DeleteEndsInTheRefusalWithoutAQuestion)
{
    insertFoods();
    show();
    menu("MnuDelete");
    EXPECT_EQ(boxes(), QStringList(kRefused));
    EXPECT_EQ(countOf(dati, "Categorie"), 4);
}

TEST_F(FrmCategorieTest, EscAndF11CloseWithoutASaveOrAQuestion)
{
    insertFoods();
    for (const int how : {int(Qt::Key_Escape), int(Qt::Key_F11)}) {
        show();
        type(4, "uno");
        key(how);
        EXPECT_FALSE(isLoaded());
        EXPECT_EQ(boxes(), QStringList());
    }
    EXPECT_EQ(stored("Kcal", 1), "20,5");
}

TEST_F(FrmCategorieTest, EsciAndChiudiClose)
{
    for (const char *entry : {"MnuEsci", "MnuClose"}) {
        show();
        menu(entry);
        EXPECT_FALSE(isLoaded()) << entry;
    }
}

// Add, save, cancel, delete, duplicate, where a level allows them

TEST_F(FrmCategorieTest, ANewFoodGetsTheNextKeyAndTheDayAndIsStoredByF12)
{
    insertFoods();
    show(3);
    key(Qt::Key_F5);
    EXPECT_EQ(form().stato(), "I");
    EXPECT_EQ(box(0).text(), "8");
    EXPECT_EQ(food(), "");
    EXPECT_EQ(panels(true), QStringList("Griglia"));
    EXPECT_FALSE(visible("picStatBox"));
    EXPECT_FALSE(control<QMenu>("MnuView").menuAction()->isVisible());
    EXPECT_FALSE(control<QAction>("MnuEsci").isVisible());
    EXPECT_EQ(world.schermate.pannelli.value(4),
              "Procedura Scheda Alimento          (FrmCategorie.frm) Inserimento Nuovo Record");
    type(2, "te' verde");
    key(Qt::Key_F12);
    EXPECT_EQ(form().stato(), "V");
    EXPECT_EQ(stored("Alimento", 8), "te' verde");
    EXPECT_EQ(stored("DataInserimento", 8), "02/03/2025");
    EXPECT_EQ(line(), kSaved + "5\\5");
    EXPECT_EQ(panels(false), QStringList("Griglia"));
    EXPECT_TRUE(visible("picStatBox"));
}

TEST_F(FrmCategorieTest, LeavingABoxWhileInsertingPutsItInCapitalsWithAccents)
{
    insertFoods();
    show(3);
    key(Qt::Key_F5);
    type(2, "te' e caffe'");
    key(Qt::Key_Tab);
    EXPECT_EQ(food(), "TÈ E CAFFÈ");
}

TEST_F(FrmCategorieTest, LeavingABoxInTheViewStateLeavesItsCase)
{
    insertFoods();
    show();
    type(2, "te' verde");
    key(Qt::Key_Tab);
    EXPECT_EQ(food(), "te' verde");
}

TEST_F(FrmCategorieTest, CancelGivesTheMenusBackButKeepsStateAndPendingRow)
{
    insertFoods();
    show(3);
    key(Qt::Key_F5);
    const QString question = "Msg1 \"Annullo Movimento\" Confermi l'annullameto delle modifiche apportate \ral record "
                             "corrente? [OK|ANNULLA] 256 102 picture 5";
    world.dialoghi.answerButton(7);
    key(Qt::Key_F10);
    EXPECT_EQ(boxes(), QStringList(question));
    EXPECT_FALSE(visible("picStatBox"));
    world.dialoghi.answerButton(6);
    key(Qt::Key_F10);
    EXPECT_EQ(boxes(), QStringList(question));
    EXPECT_TRUE(visible("picStatBox"));
    EXPECT_EQ(form().stato(), "I");
    EXPECT_EQ(line(), "Record: 5\\5");
}

TEST_F(FrmCategorieTest, OnAnEmptyTableAddFailsUnderItsOwnName)
{
    show(3);
    key(Qt::Key_F5);
    EXPECT_EQ(boxes(), QStringList("Msg1 \"Errore Generico\" Manca un valore (valore nullo non valido) [#@!? ... "
                                   "Errore!] 0 0 picture 3"));
    EXPECT_TRUE(log().contains("FrmCategorie * MnuAdd_Click Manca un valore (valore nullo non valido)"));
    EXPECT_EQ(form().stato(), "V");
}

TEST_F(FrmCategorieTest, TheMenuOfThePointSavesAndCancelsToo)
{
    insertFoods();
    show(3);
    key(Qt::Key_F5);
    world.dialoghi.answerButton(7);
    menu("MnuAnnulla2");
    type(2, "Kiwi");
    menu("MnuSalva2");
    EXPECT_EQ(stored("Alimento", 8), "Kiwi");
}

TEST_F(FrmCategorieTest, EsciWhileInsertingSavesFirst)
{
    insertFoods();
    show(3);
    key(Qt::Key_F5);
    type(2, "Kiwi");
    menu("MnuEsci");
    EXPECT_EQ(stored("Alimento", 8), "Kiwi");
    EXPECT_FALSE(isLoaded());
}

TEST_F(FrmCategorieTest, LevelSixMayDeleteAfterAQuestionAndTheNextFoodIsOnShow)
{
    insertFoods();
    show(6);
    click("cmdNext");
    world.dialoghi.answerButton(7);
    key(Qt::Key_F3);
    EXPECT_EQ(boxes(), QStringList("Msg1 \"Cancellazione Record ...\" Questo Record potrebbe essere \rrelazionato ad "
                                   "altri movimenti.\rSei sicuro di voler cancellare? [CANCELLA|ANNULLA] 256 102 "
                                   "picture 23"));
    EXPECT_EQ(countOf(dati, "Categorie"), 4);
    world.dialoghi.answerButton(6);
    key(Qt::Key_F3);
    EXPECT_EQ(stored("Alimento", 2), "gone");
    EXPECT_EQ(food(), "Risone");
    EXPECT_EQ(line(), "Record: 2\\3");
}

TEST_F(FrmCategorieTest, DeletingTheOnlyFoodLeavesTheEmptyLineAndASecondDeleteBeeps)
{
    insertRows(dati, "Categorie", "ID, Alimento", {"1, 'Solo'"});
    show(6);
    world.dialoghi.answerButton(6);
    key(Qt::Key_F3);
    EXPECT_EQ(line(), "RecordSet Vuoto!!");
    EXPECT_EQ(food(), "");
    key(Qt::Key_F3);
    EXPECT_EQ(world.schermo.beeps, 1);
}

TEST_F(FrmCategorieTest, DuplicateStoresACopyAtOnceAndStaysInTheViewState)
{
    insertFoods();
    show(3);
    menu("mnuDuplica");
    EXPECT_EQ(stored("Alimento", 8), "Caffè d'orzo");
    EXPECT_EQ(stored("DataInserimento", 8), "31/01/2020");
    EXPECT_EQ(line(), kSaved + "5\\5");
    EXPECT_EQ(form().stato(), "V");
    EXPECT_EQ(box(0).text(), "8");
}

TEST_F(FrmCategorieTest, DuplicateStoresFirstWhatIsStillInTheBoxSoThatTheCopyHasIt)
{
    insertFoods();
    show(3);
    type(4, "30");
    menu("mnuDuplica");
    EXPECT_EQ(stored("Kcal", 1), "30");
    EXPECT_EQ(stored("Kcal", 8), "30");
    type(4, "molte");
    menu("mnuDuplica");
    EXPECT_EQ(boxes().size(), 1);
    EXPECT_EQ(stored("Kcal", 9), "gone");
}

TEST_F(FrmCategorieTest, ARecordThatGetsNoKeyIsNotAdded)
{
    show(3); // in an empty table there is no last key to count on from
    key(Qt::Key_F5);
    EXPECT_EQ(boxes().size(), 1);
    menu("MnuRefresh");
    EXPECT_EQ(countOf(dati, "Categorie"), 0);
    EXPECT_EQ(line(), kSavedEmpty);
}

// Repair of a failed save

TEST_F(FrmCategorieTest, ASaveThatFailsIsToldThenTheKeyColumnStopsTheRepair)
{
    insertFoods();
    show();
    type(4, "molte");
    menu("MnuUpdate");
    EXPECT_EQ(
        boxes(),
        QStringList({"Msg1 \"Errore Generico\" Tipo non corrispondente: \"molte\" non è un numero (campo Kcal) "
                     "[#@!? ... Errore!] 0 0 picture 3",
                     "Msg1 \"Dati eccessivi\" Controllare il valore immesso, in quanto eccede, sui valori massimi "
                     "consentiti, per questo tipo di campo [OK!] 0 0 picture 36"}));
    EXPECT_TRUE(log().contains("FrmCategorie * MnuUpdate_Click Tipo non corrispondente"));
    EXPECT_EQ(form().stato(), "V");
    EXPECT_EQ(box(4).text(), "molte") << "nothing is lost";
    EXPECT_EQ(stored("Kcal", 1), "20,5");
}

TEST_F(FrmCategorieTest, ARepairThatFailsItselfGivesUp)
{
    insertFoods();
    show();
    type(4, "molte");
    box(0).setText("x"); // no number: it passes by its length, and the row refuses it
    boxes();
    menu("MnuUpdate");
    EXPECT_EQ(boxes().last(),
              "Msg1 \"Dati Incongruenti! Mi arrendo.\" I Dati inseriti sono talmente Incongruenti da non "
              "essere sistemati! [OK!] 0 0 picture 10");
    EXPECT_TRUE(log().contains("FrmCategorie * AggiustaCasini "));
}

// Bad input and other programs

TEST_F(FrmCategorieTest, ATextInANumberBoxIsToldWhenTheBoxIsLeftAndKeepsTheKeyboard)
{
    insertFoods();
    show();
    type(4, "molte");
    key(Qt::Key_Tab);
    EXPECT_EQ(boxes(), QStringList("Msg1 \"Errore Generico\" Tipo non corrispondente: \"molte\" non è un numero (campo "
                                   "Kcal) [#@!? ... Errore!] 0 0 picture 3"));
    EXPECT_TRUE(log().contains("FrmCategorie * txtFields_LostFocus "));
    QApplication::processEvents();
    EXPECT_EQ(form().focusWidget(), &box(4));
    EXPECT_EQ(box(4).selectedText(), "molte");
    click("cmdNext");
    EXPECT_EQ(line(), "Record: 1\\4") << "the sheet stays on the record";
    boxes();
    type(4, "30");
    key(Qt::Key_Down);
    EXPECT_EQ(stored("Kcal", 1), "30");
    EXPECT_EQ(boxes(), QStringList());
}

TEST_F(FrmCategorieTest, AClickOnTheBarTellsABadNumberOnce)
{
    insertFoods();
    show();
    type(4, "molte");
    QTest::mouseClick(&control<QWidget>("cmdNext"), Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_EQ(boxes().size(), 1);
    EXPECT_EQ(line(), "Record: 1\\4");
}

TEST_F(FrmCategorieTest, ABadNumberKeepsTheGridShut)
{
    insertFoods();
    show();
    type(4, "molte");
    menu("mnuGriglia");
    EXPECT_EQ(boxes().size(), 1);
    EXPECT_FALSE(visible("MyGriglia"));
    type(4, "30");
    menu("mnuGriglia");
    EXPECT_TRUE(visible("MyGriglia"));
}

TEST_F(FrmCategorieTest, TheBoxesUnderTheGridAreOutOfTheKeyboardsReach)
{
    insertFoods();
    show();
    menu("mnuGriglia");
    for (int i = 0; i < 12; ++i)
        key(Qt::Key_Tab);
    EXPECT_FALSE(control<QWidget>("Corpo").isAncestorOf(form().focusWidget()));
    menu("mnuGriglia");
    EXPECT_TRUE(box(2).isEnabled());
}

TEST_F(FrmCategorieTest, ADoubleClickHidesAnEmptyGridToo)
{
    show();
    menu("mnuGriglia");
    QTest::mouseDClick(control<DataGrid>("MyGriglia").viewport(), Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_FALSE(visible("MyGriglia"));
}

TEST_F(FrmCategorieTest, ASearchThatABadNumberStoppedGoesOnOnceItIsMended)
{
    insertFoods();
    show();
    type(4, "molte");
    world.dialoghi.answerText("ris");
    key(Qt::Key_F4);
    type(4, "30");
    boxes();
    key(Qt::Key_F7);
    EXPECT_EQ(boxes(), QStringList(kReminder));
    EXPECT_EQ(food(), "Riso");
}

TEST_F(FrmCategorieTest, AnEmptiedNumberIsNullAndApostrophesAreNoTrouble)
{
    insertFoods();
    show();
    type(4, "");
    type(2, "Fiori d'acacia all'aceto");
    key(Qt::Key_Down);
    EXPECT_EQ(stored("Kcal", 1), "NULL");
    EXPECT_EQ(stored("Alimento", 1), "Fiori d'acacia all'aceto");
}

TEST_F(FrmCategorieTest, ARecordChangedByAnotherProgramKeepsTheOthersChangeAndShowsIt)
{
    insertFoods();
    show();
    dati.Execute("UPDATE Categorie SET Kcal = 77 WHERE ID = 1");
    type(4, "30");
    click("cmdNext");
    EXPECT_EQ(boxes(),
              QStringList("Msg1 \"Errore Generico\" Il record è stato modificato o cancellato nel frattempo: la "
                          "modifica non è stata salvata [#@!? ... Errore!] 0 0 picture 3"));
    EXPECT_EQ(stored("Kcal", 1), "77");
    EXPECT_EQ(box(4).text(), "77");
    EXPECT_EQ(line(), kSaved + "1\\4");
    click("cmdNext");
    EXPECT_EQ(food(), "Riso");
    EXPECT_EQ(boxes(), QStringList());
}

TEST_F(FrmCategorieTest, ARecordDeletedByAnotherProgramIsToldAndTheNextOneTakesItsPlace)
{
    insertFoods();
    show();
    click("cmdNext");
    dati.Execute("DELETE FROM Categorie WHERE ID = 2");
    type(4, "30");
    click("cmdFirst");
    EXPECT_EQ(boxes().size(), 1);
    EXPECT_EQ(food(), "Risone");
    EXPECT_EQ(line(), kSaved + "2\\3");
}

TEST_F(FrmCategorieTest, ASaveAgainstAnotherProgramsChangeIsToldOnceWithoutARepair)
{
    insertFoods();
    show();
    dati.Execute("UPDATE Categorie SET Kcal = 77 WHERE ID = 1");
    type(4, "30");
    menu("MnuUpdate");
    EXPECT_EQ(boxes().size(), 1);
    EXPECT_EQ(box(4).text(), "77");
}

TEST_F(FrmCategorieTest, AThinLineTellsThatSomethingTypedIsNotStoredYet)
{
    insertFoods();
    show();
    EXPECT_FALSE(visible("LineaModifica"));
    type(4, "30");
    EXPECT_TRUE(visible("LineaModifica"));
    key(Qt::Key_Tab);
    EXPECT_TRUE(visible("LineaModifica"));
    menu("MnuUpdate");
    EXPECT_FALSE(visible("LineaModifica"));
    EXPECT_EQ(stored("Kcal", 1), "30");
}

// Group

TEST_F(FrmCategorieTest, AGroupKeyWithoutARowLeavesTheComboEmptyAndIsKept)
{
    insertFoods();
    show();
    click("cmdLast");
    EXPECT_EQ(group().text(), "");
    type(4, "27");
    click("cmdFirst");
    EXPECT_EQ(stored("TIPO", 7), "99");
}

TEST_F(FrmCategorieTest, APickedGroupIsStoredAsItsKey)
{
    insertFoods();
    show();
    group().setCurrentIndex(group().findText("Frutta"));
    emit group().activated(group().currentIndex());
    EXPECT_TRUE(visible("LineaModifica"));
    click("cmdNext");
    EXPECT_EQ(stored("TIPO", 1), "5");
    EXPECT_EQ(group().text(), "Cereali");
}

TEST_F(FrmCategorieTest, AGroupThatIsNotInTheListIsToldWhenTheBoxIsLeft)
{
    insertFoods();
    show();
    group().setFocus();
    group().lineEdit()->selectAll();
    QTest::keyClicks(&group(), "Sassi");
    key(Qt::Key_Tab);
    EXPECT_EQ(boxes(),
              QStringList("Msg1 \"Errore Generico\" Tipo non corrispondente: \"Sassi\" non è nell'elenco (campo "
                          "TIPO) [#@!? ... Errore!] 0 0 picture 3"));
    EXPECT_EQ(stored("TIPO", 1), "3");
}

// Search

TEST_F(FrmCategorieTest, ASearchGoesToTheFirstFoodThatBeginsSo)
{
    insertFoods();
    show();
    click("cmdLast");
    world.dialoghi.answerText("ris");
    key(Qt::Key_F4);
    EXPECT_EQ(boxes(), QStringList(kAsk));
    EXPECT_EQ(food(), "Riso");
    EXPECT_EQ(line(), kSaved + "2\\4");
    key(Qt::Key_F7);
    EXPECT_EQ(boxes(), QStringList(kReminder));
    EXPECT_EQ(food(), "Risone");
    key(Qt::Key_F7);
    EXPECT_EQ(boxes(), QStringList({kReminder, kNotFound}));
    EXPECT_EQ(food(), "Risone");
}

TEST_F(FrmCategorieTest, AFailedSearchReturnsToTheRecordWhereItBegan)
{
    insertFoods();
    show();
    click("cmdNext");
    click("cmdNext");
    world.dialoghi.answerText("zenzero");
    panel(2);
    EXPECT_EQ(boxes(), QStringList({kAsk, kNotFound}));
    EXPECT_EQ(line(), kSaved + "3\\4");
}

TEST_F(FrmCategorieTest, AnEmptyAnswerLeavesThePositionAndClearsTheCriterion)
{
    insertFoods();
    show();
    world.dialoghi.answerText("ris");
    key(Qt::Key_F4);
    world.dialoghi.answerText("");
    key(Qt::Key_F4);
    EXPECT_EQ(line(), kSaved + "2\\4");
    boxes();
    menu("MnuSuccessivo");
    EXPECT_EQ(boxes(), QStringList(kReminder));
    EXPECT_EQ(line(), kSaved + "2\\4");
}

TEST_F(FrmCategorieTest, SearchNextBeforeAnySearchRemindsAndOnlyRewritesTheLine)
{
    insertFoods();
    show();
    panel(3);
    EXPECT_EQ(boxes(), QStringList(kReminder));
    EXPECT_EQ(line(), kSaved + "1\\4");
}

TEST_F(FrmCategorieTest, AnApostropheInTheSearchIsReadAsAnAccent)
{
    insertRows(dati, "Categorie", "ID, Alimento", {"1, 'Pane'", "2, 'Tè verde'"});
    show();
    world.dialoghi.answerText("te' v");
    key(Qt::Key_F4);
    EXPECT_EQ(food(), "Tè verde");
}

// Grid and the other commands

TEST_F(FrmCategorieTest, TheGridComesAndGoesAndMovesTheSheet)
{
    insertFoods();
    show();
    EXPECT_FALSE(visible("MyGriglia"));
    menu("mnuGriglia");
    EXPECT_TRUE(visible("MyGriglia"));
    auto &grid = control<DataGrid>("MyGriglia");
    EXPECT_EQ(grid.model()->rowCount(), 4);
    key(Qt::Key_Down);
    EXPECT_EQ(line(), "Record: 1\\4") << "the grid keeps its keys";
    EXPECT_EQ(food(), "Riso");
    menu("mnuGriglia");
    EXPECT_FALSE(visible("MyGriglia"));
    menu("mnuGriglia");
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.model()->index(0, 0)).center());
    EXPECT_FALSE(visible("MyGriglia"));
}

TEST_F(FrmCategorieTest, ThePanelGrigliaDoesNothingWhileInserting)
{
    insertFoods();
    show(3);
    key(Qt::Key_F5);
    panel(6);
    EXPECT_FALSE(visible("MyGriglia"));
}

TEST_F(FrmCategorieTest, RefreshReadsTheTableAgain)
{
    insertFoods();
    show();
    click("cmdNext");
    dati.Execute("UPDATE Categorie SET Alimento = 'Caffè' WHERE ID = 1");
    menu("MnuRefresh");
    EXPECT_EQ(food(), "Caffè");
    EXPECT_EQ(line(), kSaved + "1\\4");
}

TEST_F(FrmCategorieTest, ThePictureOfTheFormGoesToThePrinterAndIsGoneAfterwards)
{
    insertFoods();
    show();
    key(Qt::Key_F8);
    const QString picture = world.cartella.path("\\documenti\\FrmCategorie.png");
    EXPECT_EQ(world.programmi.started, QStringList("Printer " + picture));
    EXPECT_FALSE(QFile::exists(picture));
    EXPECT_EQ(boxes(), QStringList());
}

TEST_F(FrmCategorieTest, APrinterThatIsNotThereIsToldAndLogged)
{
    show();
    world.programmi.nothingIsInstalled = true;
    menu("MnuStampa");
    EXPECT_EQ(boxes(), QStringList("Msg1 \"Impossibile stampare il form.\" Stampante non pronta [OK!] 0 0 picture 8"));
    EXPECT_TRUE(log().contains("FrmCategorie * MnuStampa_Click "));
    menu("mnuImposta");
    EXPECT_EQ(boxes(), QStringList("Msg1 \"Avverti Programmatore\" Il programmatore deve inserire controllo "
                                   "COmmondialog [OK!] 0 0 picture 8"));
    EXPECT_EQ(world.cartella.entries("\\documenti"), QStringList());
}

TEST_F(FrmCategorieTest, TheLogIsShownWhereThereIsOneElseItsAbsenceIsTold)
{
    show();
    menu("mnuLog");
    EXPECT_EQ(boxes(), QStringList("Msg1 \"Procedura ancora Esente da Errori\" Non ci sono Errori-Procedura da "
                                   "segnalare!! [OK!] 0 0 picture 18"));
    world.cartella.write("\\Errori\\ErrFrmCategorie.txt", "x");
    menu("mnuLog");
    EXPECT_EQ(world.programmi.started,
              QStringList("TextViewer " + world.cartella.path("\\Errori\\ErrFrmCategorie.txt")));
}

TEST_F(FrmCategorieTest, TheCharacterCheckTakesTheApostrophesOutAndEndsOnTheFirstFood)
{
    insertFoods();
    show();
    click("cmdLast");
    menu("MnuContrChar");
    EXPECT_EQ(stored("Alimento", 1), "Caffè d orzo");
    EXPECT_EQ(food(), "Caffè d orzo");
    EXPECT_EQ(line(), "1\\4");
}

TEST_F(FrmCategorieTest, ACharacterCheckThatFailsIsToldInItsOwnWords)
{
    insertFoods();
    show();
    dati.Execute("DELETE FROM Categorie WHERE ID = 1");
    menu("MnuContrChar");
    EXPECT_EQ(boxes(), QStringList("Msg1 \"Errore generico\" Il record è stato modificato o cancellato nel "
                                   "frattempo: la modifica non è stata salvata #  [#@!?   OK!] 0 0 picture 19"));
    EXPECT_TRUE(log().contains("FrmCategorie * MnuContrChar_Click "));
}

TEST_F(FrmCategorieTest, CalculatorNotesMailAndTheArchiveOpenInTheirPrograms)
{
    show();
    key(Qt::Key_F2);
    menu("MnuCalcola");
    click("ImgMarvo");
    QTest::mouseDClick(&control<QWidget>("Corpo"), Qt::LeftButton, {}, QPoint(4, 4));
    click("LogoEmail");
    menu("MnuEmail");
    menu("MnuMostraTabella");
    const QString notes = "TextViewer " + world.cartella.path("\\TESTI\\FrmCategorie.txt");
    const QString mail =
        "Mail mailto:cibra@example.org?Subject=Progetto Cibra - Procedura Scheda Alimento          (FrmCategorie.frm)";
    EXPECT_EQ(world.programmi.started, QStringList({"Calculator calc.exe", "Calculator calc.exe", notes, notes, mail,
                                                    mail, "Files " + world.cartella.path("\\Cibra.Mdb")}));
}

TEST_F(FrmCategorieTest, AnArchiveThatNoProgramOpensIsTold)
{
    show();
    world.programmi.nothingIsInstalled = true;
    menu("MnuMostraTabella");
    EXPECT_TRUE(boxes().first().startsWith("Msg1 \"Errore\" "));
}

TEST_F(FrmCategorieTest, TheEntriesWithoutAnActionDoNothing)
{
    insertFoods();
    show();
    for (const char *entry : {"MnuFileTesto", "MnuConfiguraMenu", "MnuHelp"})
        menu(entry);
    EXPECT_EQ(world.programmi.started, QStringList());
    EXPECT_EQ(boxes(), QStringList());
    EXPECT_EQ(line(), "Record: 1\\4");
    EXPECT_EQ(control<QLabel>("lblStatus").toolTip(), "Tabella CATEGORIE");
}

} // namespace
