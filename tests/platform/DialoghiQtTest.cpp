#include "platform/ui/DialoghiQt.h"
#include "platform/ui/SchermoQt.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QTimer>
#include <QtTest/QTest>

namespace {

class DialoghiQtTest : public testing::Test
{
protected:
    // Does something to the box in front once it is shown.
    template <class Box>
    static void whenShown(std::function<void(Box &)> what)
    {
        QTimer::singleShot(0, [what] {
            auto *box = qobject_cast<Box *>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            what(*box);
        });
    }
    static QString captions(const QMessageBox &box)
    {
        QStringList all;
        for (const QAbstractButton *button : box.buttons())
            all << button->text() + (button == box.defaultButton() ? "*" : "");
        return all.join(' ');
    }

    FormHost host;
    DialoghiQt dialoghi{host, "Cibra"};
};

TEST_F(DialoghiQtTest, AYesNoBoxShowsTitleTextIconAndTheDefaultThatTheFlagsTell)
{
    whenShown<QMessageBox>([](QMessageBox &box) {
        EXPECT_EQ(box.windowTitle(), "Cancellazione Record");
        EXPECT_EQ(box.text(), "Vuoi <b>\n - Piatto");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        EXPECT_EQ(captions(box), "Sì* No");
        QTest::keyClick(&box, Qt::Key_Return);
    });
    EXPECT_EQ(dialoghi.MsgBox("Vuoi <b>\r\n - Piatto", MsgFlags::YesNoCritical, "Cancellazione Record"), MsgAnswer::Si);

    whenShown<QMessageBox>([](QMessageBox &box) {
        EXPECT_EQ(box.icon(), QMessageBox::Information);
        EXPECT_EQ(captions(box), "Sì No*");
        QTest::keyClick(&box, Qt::Key_Return);
    });
    EXPECT_EQ(dialoghi.MsgBox("?", MsgFlags::YesNoInformationDefaultNo, "t"), MsgAnswer::No);
}

TEST_F(DialoghiQtTest, EscAnswersNoAndOkWhereThereIsNothingElse)
{
    whenShown<QMessageBox>([](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(dialoghi.MsgBox("?", MsgFlags::YesNoInformation, "t"), MsgAnswer::No);
    whenShown<QMessageBox>([](QMessageBox &box) {
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        EXPECT_EQ(captions(box), "OK*");
        box.close();
    });
    EXPECT_EQ(dialoghi.MsgBox("!", MsgFlags::Exclamation, "t"), MsgAnswer::Ok);
}

TEST_F(DialoghiQtTest, ALongMessageIsScrolledSoThatItsButtonsStayOnTheScreen)
{
    const QString foods = QString("Alimento - 100 g.\r\n").repeated(80);
    whenShown<QMessageBox>([&](QMessageBox &box) {
        EXPECT_LT(box.height(), 720);
        EXPECT_EQ(box.property("testo").toString(), foods);
        EXPECT_NE(box.findChild<QScrollArea *>(), nullptr);
        box.close();
    });
    dialoghi.MsgBox(foods, MsgFlags::YesNoInformation, "Inserisci piatto");
    whenShown<QMessageBox>([](QMessageBox &box) {
        EXPECT_EQ(box.findChild<QScrollArea *>(), nullptr);
        box.close();
    });
    dialoghi.MsgBox("uno\ndue", MsgFlags::YesNoInformation, "t");
}

TEST_F(DialoghiQtTest, ABoxWithoutATitleBearsTheProgramsName)
{
    whenShown<QMessageBox>([](QMessageBox &box) {
        EXPECT_EQ(box.windowTitle(), "Cibra");
        box.close();
    });
    dialoghi.MsgBox("!", MsgFlags::Information, "");
}

TEST_F(DialoghiQtTest, TheExtendedBoxAnswersSixSevenAndTwo)
{
    const struct
    {
        QStringList buttons;
        int pressed;
        int answer;
    } cases[] = {
        {{"a"}, 0, 6},           {{"a", "b"}, 0, 6},      {{"a", "b"}, 1, 7},
        {{"a", "b", "c"}, 0, 6}, {{"a", "b", "c"}, 1, 7}, {{"a", "b", "c"}, 2, 2},
    };
    for (const auto &one : cases) {
        whenShown<QMessageBox>([&](QMessageBox &box) { box.buttons()[one.pressed]->click(); });
        EXPECT_EQ(dialoghi.Msg1({"t", "b", one.buttons, 0, 0, 0}), one.answer) << one.buttons.size() << one.pressed;
    }
    whenShown<QMessageBox>([](QMessageBox &box) {
        EXPECT_EQ(captions(box), "a b* c");
        EXPECT_EQ(box.text(), "uno\ndue");
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    EXPECT_EQ(dialoghi.Msg1({"t", "uno\rdue", {"a", "b", "c"}, 256, 103, 0}), 2);
}

TEST_F(DialoghiQtTest, TheExtendedBoxShowsAQuestionMarkWhereItAsksForAConfirmation)
{
    const std::pair<int, QMessageBox::Icon> cases[] = {{Immagine::Conferma, QMessageBox::Question},
                                                       {Immagine::Errore, QMessageBox::NoIcon}};
    for (const auto &[picture, icon] : cases) {
        whenShown<QMessageBox>([expected = icon](QMessageBox &box) {
            EXPECT_EQ(box.icon(), expected);
            QTest::keyClick(&box, Qt::Key_Escape);
        });
        dialoghi.Msg1({"t", "b", {"a"}, 0, 0, picture});
    }
}

TEST_F(DialoghiQtTest, AnInputBoxGivesItsTextAndNothingWhenCancelled)
{
    whenShown<QInputDialog>([](QInputDialog &box) {
        EXPECT_EQ(box.okButtonText() + box.cancelButtonText(), "OKAnnulla");
        auto *line = box.findChild<QLineEdit *>();
        EXPECT_EQ(line->echoMode(), QLineEdit::Password);
        QTest::keyClicks(line, "segreta");
        QTest::keyClick(line, Qt::Key_Return);
    });
    EXPECT_EQ(dialoghi.InputBox("Password", "Archivio", true), "segreta");
    whenShown<QInputDialog>([](QInputDialog &box) {
        box.setTextValue("x");
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    EXPECT_EQ(dialoghi.InputBox("Nome", "Archivio", false), "");
}

TEST_F(DialoghiQtTest, TheEndOfTheProgramLeavesABox)
{
    QTimer::singleShot(0, [this] { host.end(); });
    EXPECT_THROW(dialoghi.MsgBox("?", MsgFlags::YesNoInformation, "t"), ProgramEnd);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(DialoghiQtTest, TheBusyPointerIsGoneWhileABoxAsks)
{
    SchermoQt screen;
    screen.setMousePointer(MousePointer::Hourglass);
    whenShown<QMessageBox>([](QMessageBox &box) {
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        box.close();
    });
    dialoghi.MsgBox("!", MsgFlags::Information, "t");
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
    screen.setMousePointer(MousePointer::Default);
}

} // namespace
