#include "platform/ui/EtichettaNome.h"
#include "platform/ui/Scritte.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QLineEdit>
#include <QToolTip>

namespace {

class EtichettaNomeTest : public testing::Test
{
protected:
    int width(const QString &text) const { return label.fontMetrics().horizontalAdvance(text); }
    int line() const { return label.fontMetrics().lineSpacing(); }
    void askForHelp()
    {
        QHelpEvent help(QEvent::ToolTip, QPoint(1, 1), label.mapToGlobal(QPoint(1, 1)));
        QApplication::sendEvent(&label, &help);
    }

    EtichettaNome label;
};

TEST_F(EtichettaNomeTest, ANameThatFitsStandsInOneLine)
{
    label.setScritta("Quantità Ondira");
    label.resize(label.sizeHint());
    EXPECT_EQ(label.righe(), QStringList("Quantità Ondira"));
}

TEST_F(EtichettaNomeTest, ALongNameGoesOnInASecondLineWhereThereIsOne)
{
    label.setScritta("Quantità Margherita");
    label.resize(width("Margherita") + 2, 2 * line());
    EXPECT_EQ(label.righe(), QStringList({"Quantità", "Margherita"}));
}

TEST_F(EtichettaNomeTest, WhatHasNoRoomIsCutAndShownWholeByThePointer)
{
    label.setScritta("Quantità <b>Maria</b> Concetta");
    label.resize(width("Quantità <b>Maria") + 2, line());
    ASSERT_EQ(label.righe().size(), 1);
    EXPECT_TRUE(label.righe().first().startsWith("Quantità <b>"));
    EXPECT_TRUE(label.righe().first().endsWith(u'…'));
    label.show();
    askForHelp();
    EXPECT_EQ(QToolTip::text(), Scritte::suggerimento("Quantità <b>Maria</b> Concetta"));
    EXPECT_TRUE(QToolTip::text().contains("&lt;b&gt;"));
}

TEST_F(EtichettaNomeTest, ItTakesLittleRoomWhateverTheName)
{
    label.setScritta(QString("Maria ").repeated(30));
    EXPECT_LE(label.minimumSizeHint().width(), 60);
}

TEST_F(EtichettaNomeTest, AnAmpersandInANameIsNoAccessKey)
{
    QLineEdit box;
    label.setBuddy(&box);
    label.setScritta("KCal Anna & Bea");
    EXPECT_EQ(label.text(), "KCal Anna && Bea");
    EXPECT_EQ(label.scritta(), "KCal Anna & Bea");
    label.resize(label.sizeHint());
    EXPECT_EQ(label.righe(), QStringList("KCal Anna & Bea"));
}

} // namespace
