#include "Script.h"
#include "Options.h"

#include <gtest/gtest.h>

#include <QDir>

namespace {

QString wordsOf(const QString &line)
{
    const auto command = parseLine(line, 1);
    if (!command)
        return "-";
    QStringList all{command->name};
    for (const Argument &argument : command->arguments)
        all << (argument.quoted ? '<' + argument.text + '>' : argument.text);
    return all.join('|');
}

TEST(ScriptTest, WordsAndTextsAreToldApart)
{
    EXPECT_EQ(wordsOf("  type GeneraMenu.Text1  \"03/03/2025\"  "), "type|GeneraMenu.Text1|<03/03/2025>");
    EXPECT_EQ(wordsOf("answer \"Sì \\\"certo\\\"\\n\\u00e0\""), "answer|<Sì \"certo\"\nà>");
    EXPECT_EQ(wordsOf("type A.b \"\""), "type|A.b|<>");
}

TEST(ScriptTest, BlankLinesAndRemarksAreSkipped)
{
    EXPECT_EQ(wordsOf("   "), "-");
    EXPECT_EQ(wordsOf(" # start"), "-");
    const auto script = parseScript("start\r\n\n# remark\nquit");
    ASSERT_EQ(script.size(), 2U);
    EXPECT_EQ(script[0].name, "start");
    EXPECT_EQ(script[1].line, 4);
}

TEST(ScriptTest, TheRestOfALineIsKeptForJson)
{
    const auto command = parseLine("expect A.b items [\"uno\", \"due\"]", 1);
    ASSERT_EQ(command->arguments.size(), 3U);
    EXPECT_EQ(command->rests[2], "[\"uno\", \"due\"]");
}

TEST(ScriptTest, AnOpenTextIsAnErrorWithItsLine)
{
    try {
        parseScript("start\ntype A.b \"offen");
        FAIL();
    } catch (const ScriptError &error) {
        EXPECT_EQ(error.line, 2);
    }
    EXPECT_THROW(parseLine("type A.b \"x\"y", 1), ScriptError);
}

TEST(OptionsTest, TheScreenFollowsTheDisplayWhereNothingIsSaid)
{
    const QString folder = QDir::tempPath();
    EXPECT_TRUE(readOptions({"cibra-copione", "--folder", folder}, false).offscreen);
    EXPECT_FALSE(readOptions({"cibra-copione", "--folder", folder}, true).offscreen);
    EXPECT_TRUE(readOptions({"cibra-copione", "--folder", folder, "--screen", "offscreen"}, true).offscreen);
    EXPECT_FALSE(readOptions({"cibra-copione", "--folder", folder, "--screen", "current"}, false).offscreen);
}

TEST(OptionsTest, EveryOptionIsRead)
{
    const Options options = readOptions(
        {"cibra-copione", "--folder", QDir::tempPath(), "--today", "31/01/2025", "--timeout", "5", "strada.copione"},
        false);
    EXPECT_EQ(options.folder, QDir::tempPath());
    EXPECT_EQ(options.today, QDate(2025, 1, 31));
    EXPECT_EQ(options.timeout, 5);
    EXPECT_EQ(options.script, "strada.copione");
}

TEST(OptionsTest, ABadCommandLineIsRefused)
{
    const QString folder = QDir::tempPath();
    const QStringList bad[] = {
        {"c"},
        {"c", "--folder", "/nessuna/cartella"},
        {"c", "--folder", folder, "--screen", "large"},
        {"c", "--folder", folder, "--today", "31/02/2025"},
        {"c", "--folder", folder, "--timeout", "x"},
        {"c", "--folder", folder, "--nothing"},
        {"c", "--folder", folder, "one", "two"},
    };
    for (const QStringList &line : bad)
        EXPECT_THROW(readOptions(line, false), UsageError) << qPrintable(line.join(' '));
}

} // namespace
