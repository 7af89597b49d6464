// The stand-ins of the other tests: that they fail a test where they should.
#include "support/Printers.h"
#include "support/ScriptedDialoghi.h"
#include "support/ScriptedEnvironment.h"
#include "support/TestSchermate.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <stdexcept>

TEST(ScriptedDialoghiTest, KeepsEachBoxWholeAndAnswersInOrder)
{
    ScriptedDialoghi dialoghi;
    dialoghi.answer(MsgAnswer::No);
    dialoghi.answerButton(2);
    dialoghi.answerText("41");
    EXPECT_EQ(dialoghi.MsgBox("Vai avanti?", MsgFlags::YesNoInformationDefaultNo, "Domanda"), MsgAnswer::No);
    EXPECT_EQ(dialoghi.Msg1({"Titolo", "corpo", {"DSN", "Diretta", "Annulla"}, 256, 103, 2}), 2);
    EXPECT_EQ(dialoghi.InputBox("Quanti?", "Numero", false), "41");
    EXPECT_EQ(dialoghi.MsgBox("Fatto", MsgFlags::Information, "OK"), MsgAnswer::Ok);
    EXPECT_EQ(dialoghi.Msg1({"Titolo", "corpo", {"OK!"}, 0, 0, 1}), 6);
    EXPECT_EQ(dialoghi.takeBoxes(), QStringList({"MsgBox 324 \"Domanda\" Vai avanti?",
                                                 "Msg1 \"Titolo\" corpo [DSN|Diretta|Annulla] 256 103 picture 2",
                                                 "InputBox \"Numero\" Quanti?", "MsgBox 64 \"OK\" Fatto",
                                                 "Msg1 \"Titolo\" corpo [OK!] 0 0 picture 1"}));
    EXPECT_EQ(dialoghi.boxes(), QStringList());
}

TEST(ScriptedDialoghiTest, AQuestionWithoutAnAnswerFailsTheTestAndEndsIt)
{
    const auto ask = [] {
        ScriptedDialoghi dialoghi;
        EXPECT_THROW(dialoghi.MsgBox("Vai avanti?", MsgFlags::YesNoInformation, {}), std::logic_error);
    };
    EXPECT_NONFATAL_FAILURE(ask(), "no answer was scripted for: MsgBox 68 \"\" Vai avanti?");
}

TEST(ScriptedDialoghiTest, AnAnswerOfAnotherKindFailsTheTestAndEndsIt)
{
    const auto ask = [] {
        ScriptedDialoghi dialoghi;
        dialoghi.answerText("sì");
        EXPECT_THROW(dialoghi.MsgBox("Vai avanti?", MsgFlags::YesNoCritical, {}), std::logic_error);
    };
    EXPECT_NONFATAL_FAILURE(ask(), "one of another kind");
}

TEST(ScriptedDialoghiTest, AnAnswerThatNobodyAskedForFailsTheTest)
{
    const auto leaveOver = [] {
        ScriptedDialoghi dialoghi;
        dialoghi.answerButton(6);
    };
    EXPECT_NONFATAL_FAILURE(leaveOver(), "1 scripted answers were never asked for");
}

TEST(ScriptedDadoTest, ThrowsTheScriptedValuesAndThenTheUsualOnes)
{
    DadoFisso usual;
    ScriptedDado dado;
    dado.script({0.5, 0.25});
    EXPECT_EQ(dado.next(), 0.5);
    EXPECT_EQ(dado.next(), 0.25);
    EXPECT_EQ(dado.next(), usual.next());
    EXPECT_EQ(dado.thrown, 3);
}

TEST(ScriptedDadoTest, AStrictOneFailsWhereTheScriptEnds)
{
    const auto throwOnce = [] {
        ScriptedDado dado;
        dado.strict = true;
        EXPECT_THROW(dado.next(), std::logic_error);
    };
    EXPECT_NONFATAL_FAILURE(throwOnce(), "throw 1 was not scripted");
}

TEST(DadoFissoTest, DrawsTheSameValuesBelowOneAtEachStart)
{
    DadoFisso first;
    DadoFisso second;
    for (int index = 0; index < 1000; ++index) {
        const double value = first.next();
        EXPECT_EQ(value, second.next());
        EXPECT_GE(value, 0);
        EXPECT_LT(value, 1);
        EXPECT_EQ(value * (1 << 24), int(value * (1 << 24))) << "24 bits";
    }
}

TEST(TestSchermateTest, AnEndlessRoundOfDialogsFailsTheTest)
{
    const auto loop = [] {
        TestSchermate screens;
        const auto always = [&screens] {
            for (;;)
                screens.mostraGestioneRete();
        };
        EXPECT_THROW(always(), std::logic_error);
    };
    EXPECT_NONFATAL_FAILURE(loop(), "opened again and again");
}
