#include "catalogue/forms/InserimentoKCal.h"

#include "support/FormWorld.h"

#include <gtest/gtest.h>

namespace {

class InserimentoKCalTest : public testing::Test, protected FormWorld<InserimentoKCal>
{
};

TEST_F(InserimentoKCalTest, ItBeepsNamesThePersonsAndForgetsTheLastAnswer)
{
    world.modulo.NomeScelto = "Ondira";
    show();
    EXPECT_EQ(world.schermo.beeps, 1);
    EXPECT_EQ(world.modulo.NomeScelto, "");
    EXPECT_EQ(form().windowTitle(), "Inserimento Kcal");
    EXPECT_EQ(text("Label1"), "A chi devo inserire il valore di KCal?");
    EXPECT_EQ(control<QAbstractButton>("Command1").text(), "Ondira");
    EXPECT_EQ(control<QAbstractButton>("Command2").text(), "Tesmo");
}

TEST_F(InserimentoKCalTest, EachButtonAnswersWithItsNameAndCloses)
{
    show();
    click("Command1");
    EXPECT_EQ(world.modulo.NomeScelto, "Ondira");
    EXPECT_FALSE(isLoaded());
    show();
    click("Command2");
    EXPECT_EQ(world.modulo.NomeScelto, "Tesmo");
    EXPECT_FALSE(isLoaded());
}

TEST_F(InserimentoKCalTest, EscIsToldApartFromAnAnswerByTheEmptyName)
{
    world.modulo.NomeScelto = "Ondira";
    show();
    key(Qt::Key_Escape);
    EXPECT_EQ(world.modulo.NomeScelto, "");
    EXPECT_FALSE(isLoaded());
}

TEST_F(InserimentoKCalTest, TheQuestionCanNameTheValue)
{
    form().setDomanda("A chi devo inserire il valore di '1557,5' KCal?");
    show();
    EXPECT_EQ(text("Label1"), "A chi devo inserire il valore di '1557,5' KCal?");
}

TEST_F(InserimentoKCalTest, AnAmpersandInANameIsShownAndAnsweredAsItStands)
{
    world.modulo.NomePrimaPersona = "Anna & Bea";
    show();
    EXPECT_EQ(control<QAbstractButton>("Command1").text(), "Anna && Bea");
    click("Command1");
    EXPECT_EQ(world.modulo.NomeScelto, "Anna & Bea");
}

TEST_F(InserimentoKCalTest, NamesOfThreeWordsFitTheirButtons)
{
    world.modulo.NomePrimaPersona = "Maria Concetta Immacolata";
    world.modulo.NomeSecondaPersona = "Giovanbattista Alessandro Maria";
    show();
    for (const char *button : {"Command1", "Command2"})
        EXPECT_GE(control<QWidget>(button).width(), control<QWidget>(button).sizeHint().width());
}

} // namespace
