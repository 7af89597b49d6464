#include "Player.h"

#include "platform/ui/DialoghiQt.h"
#include "platform/ui/Form.h"
#include "platform/ui/StatusPanels.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QTabWidget>
#include <QThread>
#include <QVBoxLayout>

namespace {

// A window with one control of each kind. What happens to it is written into the box Traccia.
class Prova : public Form
{
public:
    Prova(const QString &name, FormHost &host, DialoghiQt &boxes, Programmi &programs, Schermo &screen)
        : Form(name, host), dialoghi(boxes), programmi(programs), schermo(screen)
    {
        setWindowTitle("Finestra di prova");
        auto *ground = new QWidget(this);
        layout = new QVBoxLayout(ground);
        setCentralWidget(ground);
        traccia = add<QLabel>("Traccia");
        add<QLineEdit>("Text1")->setMaxLength(8);
        add<QLineEdit>("TxtFields_3")->setReadOnly(true);
        add<QCheckBox>("Check1")->setText("Solo &Preferiti");
        add<QRadioButton>("Periodo_0")->setText("Giorno");
        add<QRadioButton>("Periodo_1")->setText("Settimana");
        add<QPushButton>("Nascosto")->hide();
        add<QPushButton>("Persona")->setText("Anna && Bea");
        add<QPushButton>("Spento")->setEnabled(false);
        add<QComboBox>("Combo1")->addItems({"Colazione", "Menu", "Spuntino"});
        add<QListWidget>("Elenco")->addItems({"uno", "due"});
        add<QProgressBar>("Barra")->setValue(40);
        auto *tabs = add<QTabWidget>("SSTab1");
        tabs->addTab(new QWidget, "Dati");
        tabs->addTab(new QWidget, "Sistema");
        fillGrid("TDBGrid1", 0);
        fillGrid("Preferiti", 1);
        fillBar();
        fillMenu();

        on(add<QPushButton>("Command1"), &QPushButton::clicked, this, &Prova::Command1_Click);
        on(add<QPushButton>("Command2"), &QPushButton::clicked, this, &Prova::Command2_Click);
        on(add<QPushButton>("Command3"), &QPushButton::clicked, this, &Prova::Command3_Click);
        on(add<QPushButton>("Command4"), &QPushButton::clicked, this, &Prova::Command4_Click);
        on(add<QPushButton>("Command5"), &QPushButton::clicked, this, &Prova::Command5_Click);
        onWith(find<QLineEdit>("Text1"), &QLineEdit::textEdited, this, &Prova::Text1_Change);
        on(find<QLineEdit>("Text1"), &QLineEdit::editingFinished, this, &Prova::Text1_LostFocus);
        onWith(find<QComboBox>("Combo1"), &QComboBox::activated, this, &Prova::Combo1_Click);
        resize(600, 700);
    }

    template <class Widget>
    Widget *find(const char *name) const
    {
        return findChild<Widget *>(name);
    }

protected:
    void Form_Resize() override { note(QString("resize %1").arg(width())); }
    void Form_KeyDown(int key, Qt::KeyboardModifiers) override
    {
        if (key == Qt::Key_F12)
            note("F12");
    }
    void Form_KeyPress(int) override { unload(); }
    void Form_Unload() override
    {
        if (name() == "Prova")
            throw ProgramEnd();
    }

private:
    template <class Widget>
    Widget *add(const char *name)
    {
        auto *widget = new Widget(this);
        widget->setObjectName(name);
        layout->addWidget(widget);
        return widget;
    }
    void note(const QString &what) { traccia->setText(traccia->text() + what + ';'); }

    void fillGrid(const char *name, int nameColumn)
    {
        const int tickColumn = 1 - nameColumn;
        auto *grid = add<QTableWidget>(name);
        grid->setColumnCount(2);
        grid->setRowCount(2);
        grid->setHorizontalHeaderItem(nameColumn, new QTableWidgetItem("Piatto"));
        grid->setHorizontalHeaderItem(tickColumn, new QTableWidgetItem("Preferito"));
        for (int row = 0; row < 2; ++row) {
            grid->setItem(row, nameColumn, new QTableWidgetItem(row == 0 ? "Pasta" : "Pane"));
            auto *tick = new QTableWidgetItem;
            tick->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable | Qt::ItemIsSelectable);
            tick->setCheckState(Qt::Unchecked);
            grid->setItem(row, tickColumn, tick);
        }
    }
    void fillBar()
    {
        auto *bar = new StatusPanels(this);
        bar->setObjectName("StatusBar1");
        bar->addPanel("F2 Aiuto");
        bar->addPanel("F12 Salva");
        bar->setPanelEnabled(2, false);
        setStatusBar(bar);
        onWith(bar, &StatusPanels::panelClicked, this, &Prova::StatusBar1_PanelClick);
    }
    void fillMenu()
    {
        QMenu *utility = menuBar()->addMenu("Utility");
        utility->setObjectName("mnuUtility");
        const auto entry = [this](QMenu *menu, const char *name, const char *caption) {
            QAction *action = menu->addAction(caption);
            action->setObjectName(name);
            on(action, &QAction::triggered, this, &Prova::Entry_Click);
            return action;
        };
        entry(utility, "mnuGriglia", "Griglia");
        entry(utility, "mnuSpenta", "Spenta")->setEnabled(false);
        QMenu *closed = menuBar()->addMenu("Chiuso");
        closed->setObjectName("mnuChiuso");
        closed->setEnabled(false);
        entry(closed, "mnuDentro", "Dentro");
    }

    void Command1_Click()
    {
        const MsgAnswer answer = dialoghi.MsgBox("Vuoi?\r\nDavvero", MsgFlags::YesNoInformationDefaultNo, "Domanda");
        note(answer == MsgAnswer::Si ? "si" : "no");
        note(dialoghi.InputBox("Nome", "Cerca", false));
    }
    void Command2_Click()
    {
        Prova inner("Interna", host(), dialoghi, programmi, schermo);
        inner.showModal();
        note("interna chiusa");
    }
    void Command3_Click()
    {
        schermo.beep();
        programmi.start(ProgramKind::Page, "/pagina.html");
    }
    void Command4_Click()
    {
        for (QElapsedTimer timer = started(); timer.elapsed() < 20'000;) {
            if (schermo.breathe()) {
                note("fermato");
                return;
            }
        }
        note("finito");
    }
    void Command5_Click() { QThread::sleep(30); }
    void Text1_Change(const QString &text) { note(text); }
    void Text1_LostFocus() { note("lasciato"); }
    void Combo1_Click(int item) { note(QString("scelto %1").arg(item)); }
    void StatusBar1_PanelClick(int panel) { note(QString("pannello %1").arg(panel)); }
    void Entry_Click() { note(static_cast<QAction *>(sender())->objectName()); }
    static QElapsedTimer started()
    {
        QElapsedTimer timer;
        timer.start();
        return timer;
    }

    DialoghiQt &dialoghi;
    Programmi &programmi;
    Schermo &schermo;
    QVBoxLayout *layout = nullptr;
    QLabel *traccia = nullptr;
};

class PlayerTest : public testing::Test
{
protected:
    TemporaryFolder pictures;
    // Milliseconds; long, as machines may be slow. Short where a test waits in vain.
    int waitForWindow = 60'000;
    int waitForHandler = 60'000;

    // Plays a script and gives what it printed, then its failure, then the status where it is not 0.
    QString play(const QString &script)
    {
        FormHost host;
        host.report = [](const Failure &failure) { FAIL() << failure.what(); };
        DialoghiQt dialoghi(host, "Prova");
        RecordedProgrammi programs;
        CountingSchermo screen;
        Stage stage;
        stage.run = [&] {
            Prova form("Prova", host, dialoghi, programs, screen);
            try {
                form.showModal();
            } catch (const ProgramEnd &) {
                return;
            }
        };
        stage.end = [&] { host.end(); };
        stage.programs = &programs;
        stage.screen = &screen;

        QString output;
        QTextStream stream(&output);
        const PlayerSettings settings{"prova.copione", pictures.path(), waitForWindow, waitForHandler};
        const int status = Player(parseScript(script), stage, settings, stream, stream).play();
        return status == 0 ? output : output + QString("= %1").arg(status);
    }
    // The same after `start`, for the trace that the window keeps.
    QString traceOf(const QString &script)
    {
        return play("start\n" + script + "\nget Prova.Traccia").split('\n').value(0);
    }
};

TEST_F(PlayerTest, AWindowIsThereAfterStartAndGoneAtTheEndOfTheScript)
{
    EXPECT_EQ(play("forms\nstart\nforms\nended"), "[]\n[[\"form\",\"Prova\",\"Finestra di prova\"]]\nfalse\n");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(PlayerTest, PropertiesAreReadWithoutRegardToCase)
{
    const struct
    {
        const char *asked;
        const char *answer;
    } cases[] = {
        {"Prova caption", R"("Finestra di prova")"},
        {"prova.CHECK1", R"("Solo &Preferiti")"},
        {"Prova.Check1 checked", "false"},
        {"Prova.Nascosto visible", "false"},
        {"Prova.Spento enabled", "false"},
        {"Prova.Persona", R"("Anna & Bea")"},
        {"Prova.Text1 maxlength", "8"},
        {"Prova.txtfields(3) text", R"("")"},
        {"Prova.Combo1", R"("Colazione")"},
        {"Prova.Combo1 items", R"(["Colazione","Menu","Spuntino"])"},
        {"Prova.Combo1 count", "3"},
        {"Prova.Elenco", R"(["uno","due"])"},
        {"Prova.Barra value", "40"},
        {"Prova.TDBGrid1 headers", R"(["Piatto","Preferito"])"},
        {"Prova.TDBGrid1 rows", R"([["Pasta","off"],["Pane","off"]])"},
        {"Prova.TDBGrid1 row", "0"},
        {"Prova.StatusBar1 items", R"(["F2 Aiuto","F12 Salva"])"},
        {"Prova.StatusBar1(2) text", R"("F12 Salva")"},
        {"Prova.mnuUtility caption", R"("Utility")"},
        {"Prova.mnuSpenta enabled", "false"},
        {"Prova visible", "true"},
        {"Prova width", "600"},
    };
    QString script = "start\n";
    QString expected;
    for (const auto &one : cases) {
        script += QString("get %1\n").arg(one.asked);
        expected += QString::fromUtf8(one.answer) + '\n';
    }
    EXPECT_EQ(play(script), expected);
}

TEST_F(PlayerTest, ExpectFailsShowingBothValuesAndStopsTheScript)
{
    EXPECT_EQ(play("start\nexpect Prova.Combo1 items [\"Colazione\", \"Menu\", \"Spuntino\"]\nended"), "false\n");
    EXPECT_EQ(play("start\nexpect Prova.Combo1 text \"Menu\"\nended"),
              "prova.copione:2: Prova.Combo1 text is \"Colazione\", expected \"Menu\"\n= 1");
}

TEST_F(PlayerTest, TypingReplacesTheTextKeyByKeyAndLeavingMovesOn)
{
    EXPECT_EQ(traceOf("type Prova.Text1 \"Sì\"\ntype Prova.Text1 \"\"\nleave Prova.Text1"),
              "\"resize 600;S;Sì;;lasciato;\"");
}

TEST_F(PlayerTest, BoxesTakeNoMoreThanTheirLengthAndReadOnlyOnesNothing)
{
    EXPECT_EQ(play("start\ntype Prova.Text1 \"1234567890\"\nget Prova.Text1"), "\"12345678\"\n");
    EXPECT_EQ(play("start\ntype Prova.TxtFields(3) \"x\""),
              "prova.copione:2: Prova.TxtFields(3) cannot be typed into\n= 1");
}

TEST_F(PlayerTest, ItemsTicksAndOptionsAreChosenAsByHand)
{
    EXPECT_EQ(traceOf("choose Prova.Combo1 \"Spuntino\""), "\"resize 600;scelto 2;\"");
    EXPECT_EQ(play("start\nchoose Prova.Elenco \"due\"\nget Prova.Elenco row"), "2\n");
    EXPECT_EQ(play("start\ncheck Prova.Check1 on\ncheck Prova.Check1 on\nget Prova.Check1 checked"), "true\n");
    EXPECT_EQ(play("start\ncheck Prova.Periodo(1) on\nget Prova.Periodo(1) checked\nget Prova.Periodo(0) checked"),
              "true\nfalse\n");
    EXPECT_EQ(play("start\nchoose Prova.Combo1 \"Cena\""), "prova.copione:2: Prova.Combo1 has no item \"Cena\"\n= 1");
}

TEST_F(PlayerTest, RowsAndCellsOfAGridAreReached)
{
    EXPECT_EQ(play("start\nrow Prova.TDBGrid1 2\nget Prova.TDBGrid1 row"), "2\n");
    EXPECT_EQ(play("start\ncell Prova.TDBGrid1 2 \"piatto\" \"Riso\"\ncell Prova.TDBGrid1 1 \"Preferito\" \"on\"\n"
                   "get Prova.TDBGrid1"),
              "[[\"Pasta\",\"on\"],[\"Riso\",\"off\"]]\n");
    EXPECT_EQ(play("start\nrow Prova.Preferiti 2\nget Prova.Preferiti row\nget Prova.Preferiti"),
              "2\n[[\"off\",\"Pasta\"],[\"off\",\"Pane\"]]\n"); // the click takes a cell without a tick
    EXPECT_EQ(play("start\nrow Prova.TDBGrid1 3"), "prova.copione:2: Prova.TDBGrid1 has no row 3, but 2 rows\n= 1");
}

TEST_F(PlayerTest, MenusPanelsTabsAndKeysWork)
{
    EXPECT_EQ(traceOf("menu Prova.mnuGriglia\npanel Prova.StatusBar1 1\nkey Prova \"F12\""),
              "\"resize 600;mnuGriglia;pannello 1;F12;\"");
    EXPECT_EQ(play("start\ntab Prova.SSTab1 2\nget Prova.SSTab1 row"), "2\n");
}

TEST_F(PlayerTest, WhatIsHiddenOrDisabledCannotBeReached)
{
    EXPECT_EQ(play("start\nclick Prova.Nascosto"), "prova.copione:2: Prova.Nascosto is hidden\n= 1");
    EXPECT_EQ(play("start\nclick Prova.Spento"), "prova.copione:2: Prova.Spento is disabled\n= 1");
    EXPECT_EQ(play("start\nmenu Prova.mnuSpenta"), "prova.copione:2: Prova.mnuSpenta is disabled\n= 1");
    EXPECT_EQ(play("start\nmenu Prova.mnuDentro"),
              "prova.copione:2: Prova.mnuDentro (or a menu above it) is disabled\n= 1");
    EXPECT_EQ(play("start\npanel Prova.StatusBar1 2"), "prova.copione:2: panel 2 of Prova.StatusBar1 is disabled\n= 1");
}

TEST_F(PlayerTest, WhatIsNotThereFailsAfterAWaitAndTellsWhatWasOnScreen)
{
    waitForWindow = 200;
    EXPECT_EQ(play("start\nclick Prova.Nessuno"), "prova.copione:2: there is no control Prova.Nessuno; on screen: "
                                                  "[[\"form\",\"Prova\",\"Finestra di prova\"]]\n= 1");
    EXPECT_EQ(play("start\nmsg"), "prova.copione:2: no message box is in front; on screen: "
                                  "[[\"form\",\"Prova\",\"Finestra di prova\"]]\n= 1");
}

TEST_F(PlayerTest, BoxesThatAClickOpensAreReadAndAnswered)
{
    EXPECT_EQ(play("start\nclick Prova.Command1\nmsg\nforms\nanswer yes\nforms\ninput \"Marvo\"\nget Prova.Traccia"),
              "{\"title\":\"Domanda\",\"text\":\"Vuoi?\\r\\nDavvero\",\"icon\":\"information\","
              "\"buttons\":[\"Sì\",\"No\"],\"default\":\"No\"}\n"
              "[[\"msg\",\"Domanda\",\"\"],[\"form\",\"Prova\",\"Finestra di prova\"]]\n"
              "[[\"input\",\"Cerca\",\"\"],[\"form\",\"Prova\",\"Finestra di prova\"]]\n"
              "\"resize 600;si;Marvo;\"\n");
    EXPECT_EQ(traceOf("click Prova.Command1\nanswer 2\ninput-cancel"), "\"resize 600;no;;\"");
    EXPECT_EQ(play("start\nclick Prova.Command1\nanswer ok"),
              "prova.copione:3: there is no button ok; there are [\"Sì\",\"No\"]\n= 1");
}

TEST_F(PlayerTest, AModalWindowBlocksTheOneBehindAndIsLeftByItsKey)
{
    EXPECT_EQ(play("start\nclick Prova.Command2\nclick Prova.Command3"),
              "prova.copione:3: Prova is behind the modal window Interna\n= 1");
    EXPECT_EQ(traceOf("click Prova.Command2\nkey Interna \"Esc\""), "\"resize 600;interna chiusa;\"");
    EXPECT_EQ(traceOf("click Prova.Command2\nclose Interna"), "\"resize 600;interna chiusa;\"");
}

TEST_F(PlayerTest, AResizeIsThatOfTheWindowSystem)
{
    EXPECT_EQ(traceOf("resize Prova 700 800"), "\"resize 600;resize 700;\"");
}

TEST_F(PlayerTest, ProgramsAndBeepsAreRecordedAndForgottenWhenAsked)
{
    EXPECT_EQ(play("start\nclick Prova.Command3\nlaunches\nlaunches\nbeeps\nbeeps"),
              "[[\"page\",\"/pagina.html\"]]\n[]\n1\n0\n");
}

TEST_F(PlayerTest, AKeyComesLaterWhileAHandlerIsAtWork)
{
    EXPECT_EQ(traceOf("later 1000 Prova \"Esc\"\nclick Prova.Command4"), "\"resize 600;fermato;\"");
}

TEST_F(PlayerTest, ALaterKeyDoesNotReachThroughAModalWindow)
{
    EXPECT_EQ(play("start\nlater 50 Prova \"Esc\"\nclick Prova.Command2\nmsg"),
              "prova.copione:2: Prova is behind the modal window Interna\n= 1");
}

TEST_F(PlayerTest, TheEndOfTheProgramIsSeen)
{
    EXPECT_EQ(play("start\nkey Prova \"Esc\"\nended\nforms"), "true\n[]\n");
    EXPECT_EQ(play("start\nkey Prova \"Esc\"\nclick Prova.Command1"),
              "prova.copione:3: there is no form Prova (the program has ended); on screen: []\n= 1");
}

TEST_F(PlayerTest, QuitEndsTheScriptEvenInsideABox)
{
    EXPECT_EQ(play("start\nclick Prova.Command1\nquit\nended"), "");
}

TEST_F(PlayerTest, UnknownCommandsAndWrongArgumentsFail)
{
    EXPECT_EQ(play("jump"), "prova.copione:1: there is no command jump\n= 1");
    EXPECT_EQ(play("click"), "prova.copione:1: click takes other arguments\n= 1");
    EXPECT_EQ(play("start\nkey Prova \"Fxx\""), "prova.copione:2: there is no key Fxx\n= 1");
    EXPECT_EQ(play("start\nget Prova.Text1 colour"), "prova.copione:2: there is no property colour\n= 1");
}

TEST_F(PlayerTest, APictureIsWrittenOfTheWindowInFront)
{
    EXPECT_EQ(play("start\nresize Prova 640 800\nshot prova.png\nshot \"" + pictures.path() + "/altra.png\" Prova"),
              "");
    EXPECT_EQ(QImage(pictures.path() + "/prova.png").size(), QSize(640, 800));
    EXPECT_EQ(QImage(pictures.path() + "/altra.png").size(), QSize(640, 800));
}

TEST_F(PlayerTest, AHandlerThatNeverEndsIsCutOff)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    waitForHandler = 2500;
    EXPECT_EXIT(play("start\nclick Prova.Command5"), testing::ExitedWithCode(1),
                "prova.copione:2: a handler was at work for more than 2.5 s; on screen: .*Prova");
}

} // namespace
