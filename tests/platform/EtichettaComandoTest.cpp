#include "platform/ui/EtichettaComando.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

namespace {

class EtichettaComandoTest : public testing::Test
{
protected:
    EtichettaComandoTest()
        : clicks(&label, &EtichettaComando::clicked), doubles(&label, &EtichettaComando::doubleClicked)
    {
        label.setText("Salva");
        label.resize(120, 30);
        label.show();
        QApplication::processEvents();
    }

    EtichettaComando label;
    QSignalSpy clicks, doubles;
};

TEST_F(EtichettaComandoTest, AClickIsOneCommand)
{
    QTest::mouseClick(&label, Qt::LeftButton);
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(doubles.count(), 0);
}

TEST_F(EtichettaComandoTest, ADoubleClickIsOneClickAndThenADoubleOne)
{
    QTest::mouseClick(&label, Qt::LeftButton);
    QTest::mouseDClick(&label, Qt::LeftButton);
    QTest::mouseRelease(&label, Qt::LeftButton);
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(doubles.count(), 1);
}

TEST_F(EtichettaComandoTest, AButtonLetGoOutsideOrAnotherButtonIsNoCommand)
{
    QTest::mousePress(&label, Qt::LeftButton);
    QTest::mouseRelease(&label, Qt::LeftButton, {}, QPoint(300, 10));
    QTest::mouseClick(&label, Qt::RightButton);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(EtichettaComandoTest, EnterAndSpaceWorkIt)
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_A})
        QTest::keyClick(&label, key);
    EXPECT_EQ(clicks.count(), 3);
    EXPECT_EQ(doubles.count(), 0);
}

TEST_F(EtichettaComandoTest, EnterGivesTheDoubleClickWhereThatIsTheCommand)
{
    label.setProperty("aDoppioClic", true);
    QTest::keyClick(&label, Qt::Key_Return);
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(doubles.count(), 1);
}

TEST_F(EtichettaComandoTest, ALongTextDoesNotWidenItsWindow)
{
    const int before = label.minimumSizeHint().width();
    label.setText(QString(300, 'm'));
    EXPECT_EQ(label.minimumSizeHint().width(), 90);
    EXPECT_LE(before, 90);
    EXPECT_GT(label.sizeHint().width(), 1000);
}

TEST_F(EtichettaComandoTest, ThePointerShowsACutTextAndAsksForTheDoubleClick)
{
    EXPECT_EQ(label.suggerimento(), "");
    label.setProperty("aDoppioClic", true);
    EXPECT_EQ(label.suggerimento(), "Si esegue con un doppio clic");
    label.setText("  Cancella Gruppo Colazione del mattino");
    label.setToolTip("Tabella PIATTI");
    EXPECT_EQ(label.suggerimento(),
              "Cancella Gruppo Colazione del mattino\nTabella PIATTI\nSi esegue con un doppio clic");
}

} // namespace
