// The commands that the daily sheet has from the record form template, and how it differs from it.
#include "sheet/FrmCibraWorld.h"

#include "platform/ui/StatusPanels.h"

#include <QMenu>
#include <QMenuBar>
#include <QTimer>

namespace {

QString errorBox(const QString &words)
{
    return "Msg1 \"Errore Generico\" " + words + " [#@!? ... Errore!] 0 0 picture 3";
}

class FrmCibraComandiTest : public FrmCibraWorld
{
protected:
    FrmCibraComandiTest()
    {
        insertRows(dati, "Piatti", "Piatto, Alimento",
                   {"'Colazione 1', 'Latte'", "'Colazione 2', 'Latte'", "'Colazione 2', 'Pane'"});
        insertRows(dati, "Sostituisci", "Piatto, tipo",
                   {"'Biscotti', 'Colazione'", "'Fette', 'Colazione'", "'Yogurt', 'Colazione'"});
    }

    QString position() { return caption("lblStatus"); }
    StatusPanels &bar() { return control<StatusPanels>("StatusBar1"); }
    int beeps(Qt::Key pressed)
    {
        const int before = world.schermo.beeps;
        key(pressed);
        return world.schermo.beeps - before;
    }
};

TEST_F(FrmCibraComandiTest, TheBarHasItsNinePanels)
{
    QStringList texts;
    for (int panel = 1; panel <= bar().panelCount(); ++panel)
        texts.append(bar().panelText(panel));
    EXPECT_EQ(texts, QStringList({"F5 New", "F6 Modifica", "F4 Ricerca", "F7 Ric.Successiva", "F3 Cancella",
                                  "F10 Annulla", "Griglia", "F12 Salva", "F11 Esci"}));
}

TEST_F(FrmCibraComandiTest, TheMenusStandInOrder)
{
    const auto captions = [](const QWidget &menu) {
        QStringList all;
        for (const QAction *action : menu.actions())
            if (action->isVisible())
                all.append(action->isSeparator() ? "-" : action->text());
        return all;
    };
    EXPECT_EQ(captions(*form().menuBar()),
              QStringList({"&Record", "Piatti Kcal Totali", "Archivio Menu giornalieri", "&Esci  "}));
    EXPECT_EQ(captions(control<QMenu>("MnuView")),
              QStringList({"C&ancella", "-", "Stampa Pagina", "Stampa Intero Recordset su Files testo",
                           "Impostazione Stampante", "-", "Utility", "?", "-", "&Chiudi", "&Annulla  (F10)",
                           "&Salva   (F12)"}));
    EXPECT_EQ(captions(control<QMenu>("mnuUtility")), QStringList({"Griglia", "Calcolatrice"}));
}

TEST_F(FrmCibraComandiTest, ThePositionLineCountsTheListFromBeforeTheClassWasRead)
{
    show();
    EXPECT_EQ(position(), "Record: 1\\2");
}

TEST_F(FrmCibraComandiTest, WithoutNumberedBreakfastsTheLineSaysThatTheSetIsEmpty)
{
    dati.Execute("Delete * from Piatti");
    show();
    EXPECT_EQ(position(), "RecordSet Vuoto!!");
}

TEST_F(FrmCibraComandiTest, NavigationMovesTheDishListAndNotTheRowsAndPutsNothingOnTheBackground)
{
    show();
    goToRow(1);
    world.schermate.pannelli[4] = "as it was";
    click("cmdNext");
    EXPECT_EQ(position(), "F1 Help     *    Record: 2\\3");
    click("cmdLast");
    EXPECT_EQ(position(), "F1 Help     *    Record: 3\\3");
    click("cmdNext");
    EXPECT_EQ(position(), "F1 Help     *    Record: 1\\3");
    EXPECT_EQ(world.schermo.beeps, 1);
    click("cmdPrevious");
    EXPECT_EQ(position(), "F1 Help     *    Record: 3\\3");
    click("cmdFirst");
    EXPECT_EQ(position(), "F1 Help     *    Record: 1\\3");
    EXPECT_EQ(currentRow(), 1);
    EXPECT_EQ(world.schermate.pannelli.value(4), "as it was");
}

TEST_F(FrmCibraComandiTest, UntilASaveOrACancelTheKeysOfTheViewBeepAndNavigationKeysDoNothing)
{
    show();
    EXPECT_EQ(form().stato(), "");
    for (const Qt::Key pressed : {Qt::Key_F3, Qt::Key_F4, Qt::Key_F5, Qt::Key_F6, Qt::Key_F7, Qt::Key_F8, Qt::Key_F9})
        EXPECT_EQ(beeps(pressed), 1) << pressed;
    control<QWidget>("cmdFirst").setFocus();
    key(Qt::Key_End);
    EXPECT_EQ(position(), "Record: 1\\2");
    EXPECT_TRUE(world.dialoghi.boxes().isEmpty());
}

TEST_F(FrmCibraComandiTest, ASaveWithNothingWaitingOpensTheView)
{
    show();
    save();
    EXPECT_EQ(form().stato(), "V");
    EXPECT_EQ(position(), "F1 Help     *    Record: 1\\3");
    EXPECT_EQ(beeps(Qt::Key_F12), 1);
    EXPECT_EQ(beeps(Qt::Key_F10), 1);
}

TEST_F(FrmCibraComandiTest, ACancelDropsWhatWasTypedAndOpensTheView)
{
    show();
    box(8).setFocus();
    box(8).selectAll();
    QTest::keyClicks(&box(8), "999");
    world.dialoghi.answerButton(6);
    key(Qt::Key_F10);
    EXPECT_EQ(form().stato(), "V");
    EXPECT_EQ(text(8), "200");
    EXPECT_TRUE(world.dialoghi.boxes().first().startsWith("Msg1 \"Annullo Movimento\""));
}

TEST_F(FrmCibraComandiTest, ACancelThatIsRefusedChangesNothing)
{
    show();
    world.dialoghi.answerButton(7);
    key(Qt::Key_F10);
    EXPECT_EQ(form().stato(), "");
}

TEST_F(FrmCibraComandiTest, AddAndModifyFailOnTheListOfDishesAndSayUnderWhichName)
{
    show();
    save();
    key(Qt::Key_F5);
    EXPECT_EQ(world.dialoghi.takeBoxes(), QStringList(errorBox("Questo elenco è di sola lettura")));
    EXPECT_TRUE(log().contains("FrmCibra * MnuAdd_Click Questo elenco"));
    key(Qt::Key_F6);
    EXPECT_EQ(world.dialoghi.takeBoxes(), QStringList(errorBox("Il campo richiesto non esiste: predefinito")));
    EXPECT_TRUE(log().contains("FrmCibra * mnuModifica_Click Il campo"));
    EXPECT_EQ(form().stato(), "V");
    EXPECT_EQ(countOf(dati, "Sostituisci"), 3);
}

TEST_F(FrmCibraComandiTest, ModifyOnAnEmptyListSaysThatNoRecordIsThere)
{
    dati.Execute("Delete * from Sostituisci");
    show();
    save();
    key(Qt::Key_F6);
    EXPECT_EQ(world.dialoghi.boxes(),
              QStringList("MsgBox 16 \"Recordset non posizionato\" Modifica non effettuabile in quanto\r\n"
                          "il database non è posizionato in\r\nalcun record"));
}

TEST_F(FrmCibraComandiTest, SearchAsksForTheNameAndFailsOnItsField)
{
    show();
    save();
    world.dialoghi.answerText("Rossi");
    key(Qt::Key_F4);
    EXPECT_EQ(world.dialoghi.boxes(), QStringList({"InputBox \"RICERCA\" Inserisci IL NOMINATIVO da ricercare",
                                                   errorBox("Il campo richiesto non esiste: Nominativo")}));
    EXPECT_TRUE(log().contains("FrmCibra * mnuRicerca_Click "));
}

TEST_F(FrmCibraComandiTest, SearchNextRemindsOfTheProgrammerFirst)
{
    show();
    save();
    key(Qt::Key_F7);
    EXPECT_TRUE(world.dialoghi.boxes().value(0).startsWith(
        "Msg1 \"Contattare il programmatore della procedura\" Il programmatore deve contribuire all'attivazione della "
        "modalità di Ricerca, disattivando i commenti del codice. [OK!]"));
}

TEST_F(FrmCibraComandiTest, TheDeleteKeyIsTheDeletionOfTheGroup)
{
    show();
    save();
    world.dialoghi.answer(MsgAnswer::Si);
    key(Qt::Key_F3);
    EXPECT_EQ(foods(), QStringList("Pasta"));
}

TEST_F(FrmCibraComandiTest, TheExportHoldsTheNumberedBreakfastsWhicheverDayAndClassAreOnShow)
{
    QByteArray first;
    for (const char *day : {"02/03/2025", "11/01/2025", "09/09/2030"}) {
        show();
        days().setText(day);
        if (form().stato() != "V")
            save();
        world.dialoghi.answerButton(6);
        key(Qt::Key_F9);
        const QByteArray file = world.cartella.read("\\InteroRecordSet.txt");
        EXPECT_TRUE(file.endsWith("Piatto; \r\n \r\nColazione 1\r\nColazione 2\r\n")) << file.toStdString();
        if (first.isEmpty())
            first = file;
        EXPECT_EQ(file, first);
    }
}

TEST_F(FrmCibraComandiTest, AnExportThatFailsIsShownAndLogged)
{
    world.cartella.makeFolder("\\InteroRecordSet.txt");
    show();
    world.dialoghi.answerButton(6);
    menu("MnuFileTesto");
    EXPECT_TRUE(world.dialoghi.boxes().last().startsWith("Msg1 \"Errore Generico\""));
    EXPECT_TRUE(log().contains("FrmCibra * mnuFileTesto_Click "));
}

TEST_F(FrmCibraComandiTest, PanelsAnswerAsTheirKeys)
{
    show();
    emit bar().panelClicked(2);
    EXPECT_EQ(world.schermo.beeps, 1);
    emit bar().panelClicked(8);
    EXPECT_EQ(form().stato(), "V");
    emit bar().panelClicked(2);
    EXPECT_EQ(world.dialoghi.boxes().size(), 1);
    emit bar().panelClicked(9);
    QApplication::processEvents();
    EXPECT_FALSE(isLoaded());
}

TEST_F(FrmCibraComandiTest, TheOverviewShowsEveryDayNewestTextFirstAndTheSecondTimeTheDayAgain)
{
    show();
    EXPECT_FALSE(visible("MyGriglia"));
    menu("mnuGriglia");
    EXPECT_TRUE(visible("MyGriglia"));
    auto &all = control<DataGrid>("MyGriglia");
    EXPECT_EQ(all.dataSource()->Source(), "SELECT  * FROM SchedaPranzo ORDER BY SchedaPranzo.dataInserimento DESC;");
    EXPECT_EQ(all.model()->rowCount(), 3);
    dati.Execute("UPDATE SchedaPranzo SET Totale1 = 1 WHERE ID = 1");
    emit bar().panelClicked(7);
    EXPECT_FALSE(visible("MyGriglia"));
    EXPECT_TRUE(grid().isVisible());
    EXPECT_EQ(totals(), QStringList({"351", "570"}));
    emit bar().panelClicked(7);
    QTest::mouseDClick(all.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(20, all.viewport()->height() - 5));
    EXPECT_FALSE(visible("MyGriglia"));
    EXPECT_TRUE(grid().isVisible());
}

TEST_F(FrmCibraComandiTest, TheMenuFileOfTheFormIsWrittenOnce)
{
    show();
    const QString file = QString::fromLatin1(world.cartella.read("\\INI\\FrmCibra.mnu"));
    EXPECT_TRUE(file.contains("MnuDelete=C&ancella\r\n"));
    EXPECT_TRUE(file.contains("mnuPiattiKcal=Piatti Kcal Totali\r\n"));
}

TEST_F(FrmCibraComandiTest, TheQuestionMarkSendsEnterToTheControlThatHasTheFocus)
{
    show();
    QApplication::setActiveWindow(&form());
    box(8).setFocus();
    menu("MnuHelp");
    EXPECT_FALSE(box(8).hasFocus());
}

TEST_F(FrmCibraComandiTest, TheOtherListsOpenFromTheMenu)
{
    show();
    const std::pair<const char *, const char *> windows[] = {{"mnuarchivio", "MyBrowse"},
                                                             {"mnuPiattiKcal", "PiattiKCAL"}};
    for (const auto &[entry, window] : windows) {
        QString opened;
        QTimer::singleShot(0, [&opened] {
            QWidget *const front = QApplication::activeModalWidget();
            opened = front ? front->objectName() : QString();
            if (front)
                front->close();
        });
        menu(entry);
        EXPECT_EQ(opened, window);
    }
    EXPECT_TRUE(failures.isEmpty());
}

// A sheet whose list of dishes, once loaded, has the field that modify asks for: the table of the column check.
class SchedaModificabile : public FrmCibra
{
public:
    using FrmCibra::FrmCibra;

    Recordset &lista() { return *RsScheda; }
    void modifica() { mnuModifica_Click(); }
};

class SchedaModificabileTest : public FrmCibraComandiTest
{
protected:
    SchedaModificabileTest() : sheetForm(host, registry, world.modulo)
    {
        sheetForm.load();
        sheetForm.lista().Close();
        sheetForm.lista().Open("Select * from Amministratori", dati);
    }

    SchedaModificabile sheetForm;
};

TEST_F(SchedaModificabileTest, AFirstPressBeginsTheChangeAndASecondPutsTheFieldsBack)
{
    sheetForm.modifica();
    EXPECT_EQ(sheetForm.stato(), "M");
    EXPECT_TRUE(controlOf<QWidget>(sheetForm, "picStatBox").isHidden());
    EXPECT_FALSE(controlOf<QMenu>(sheetForm, "MnuView").menuAction()->isVisible());
    EXPECT_FALSE(controlOf<QAction>(sheetForm, "MnuEsci").isVisible());
    EXPECT_TRUE(controlOf<StatusPanels>(sheetForm, "StatusBar1").panelWidget(1)->isVisibleTo(&sheetForm));
    sheetForm.lista().setValue("DataInserimento", QString("01/01/2020"));
    sheetForm.lista().Update();
    sheetForm.modifica();
    EXPECT_EQ(sheetForm.stato(), "V");
    EXPECT_TRUE(sheetForm.lista().value("DataInserimento").isNull());
    EXPECT_EQ(world.dialoghi.boxes(), QStringList("MsgBox 64 \"\" Record ripristinato allo stato originale"));
    EXPECT_TRUE(controlOf<QMenu>(sheetForm, "MnuView").menuAction()->isVisible());
}

TEST_F(SchedaModificabileTest, ARecordOfTheProcedureIsNotChanged)
{
    sheetForm.lista().setValue("Predefinito", true);
    sheetForm.lista().Update();
    sheetForm.modifica();
    EXPECT_EQ(sheetForm.stato(), "");
    ASSERT_EQ(world.dialoghi.boxes().size(), 1);
    EXPECT_TRUE(world.dialoghi.boxes().first().startsWith("Msg1 \"Operazione NON consentita\" Il contenuto del Record "
                                                          "è gestito dalla Procedura\rNon è possibile apportare "
                                                          "alcuna Modifica / Cancellazione [OK!]"));
}

} // namespace
