#include "platform/text/TextFile.h"
#include "platform/Failure.h"
#include "platform/text/CodePage.h"
#include "support/Printers.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QFileInfo>

#include <csignal>
#include <sys/resource.h>

namespace {

// While one lives, no file of this process grows beyond `bytes`: a disk that is nearly full.
class SmallDisk
{
public:
    explicit SmallDisk(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small = {bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;

private:
    rlimit m_before = {};
    void (*m_handler)(int);
};

template <typename Operation>
FailureNumber failureOf(Operation operation)
{
    try {
        operation();
    } catch (const Failure &failure) {
        return failure.number();
    }
    ADD_FAILURE() << "nothing failed";
    return FailureNumber::Engine;
}

QStringList linesOf(const QString &path)
{
    QStringList lines;
    for (TextReader reader(path); !reader.atEnd();)
        lines.append(reader.line());
    return lines;
}

void append(const QString &path, const QString &text)
{
    TextWriter writer(path, TextEncoding::Settings, TextWriter::Mode::Append);
    writer.line(text);
    writer.close();
}

} // namespace

TEST(CodePageTest, EveryByteIsReadAndWrittenBackUnchanged)
{
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte)
        all.append(char(byte));
    const QString text = fromWindows1252(all);
    ASSERT_EQ(text.size(), 256);
    EXPECT_TRUE(fitsWindows1252(text));
    EXPECT_EQ(toWindows1252(text), all);
}

TEST(CodePageTest, TheUpperHalfHoldsTheCharactersOfWesternEurope)
{
    EXPECT_EQ(fromWindows1252("\x80\x91\x92\x93\x94\x96\x97\xE0\xE8\xC0\xFF"), u"€‘’“”–—àèÀÿ"_qs);
    EXPECT_EQ(toWindows1252(u"caffè · 5 €"_qs), QByteArray("caff\xE8 \xB7 5 \x80"));
}

TEST(CodePageTest, WhatIsLackingBecomesOneQuestionMarkACharacter)
{
    EXPECT_EQ(toWindows1252(u"Ωa😀b\u0304"_qs), QByteArray("?a?b?"));
    EXPECT_FALSE(fitsWindows1252(u"Ω"_qs));
    EXPECT_FALSE(fitsWindows1252(u"😀"_qs));
    EXPECT_TRUE(fitsWindows1252(QString()));
}

TEST(TextFileTest, LinesEndInCrLfAndAreWindows1252)
{
    const TemporaryFolder folder;
    TextWriter writer(folder.path("a.txt"));
    writer.line("Ondira è qui");
    writer.line("");
    writer.close();
    EXPECT_EQ(folder.read("a.txt"), QByteArray("Ondira \xE8 qui\r\n\r\n"));
    EXPECT_EQ(linesOf(folder.path("a.txt")), QStringList({"Ondira è qui", ""}));
}

TEST(TextFileTest, ASettingsFileThatDoesNotFitTheCodePageIsUtf8WithAByteOrderMark)
{
    const TemporaryFolder folder;
    TextWriter(folder.path("a.txt")).line("Łucja è qui");
    EXPECT_EQ(folder.read("a.txt"), QByteArray("\xEF\xBB\xBF"
                                               "Łucja è qui\r\n"));
    EXPECT_EQ(linesOf(folder.path("a.txt")), QStringList("Łucja è qui"));
}

TEST(TextFileTest, AnAppendKeepsTheEncodingThatTheFileHas)
{
    const TemporaryFolder folder;
    folder.write("latin.txt", "\xE8\r\n");
    append(folder.path("latin.txt"), "à");
    EXPECT_EQ(folder.read("latin.txt"), QByteArray("\xE8\r\n\xE0\r\n"));

    folder.write("utf8.txt", "\xEF\xBB\xBFŁ\r\n");
    append(folder.path("utf8.txt"), "à");
    EXPECT_EQ(folder.read("utf8.txt"), QByteArray("\xEF\xBB\xBFŁ\r\nà\r\n"));
}

TEST(TextFileTest, AnAppendThatDoesNotFitTurnsTheWholeFileIntoUtf8)
{
    const TemporaryFolder folder;
    folder.write("a.txt", "\xE8\r\n");
    append(folder.path("a.txt"), "Ł");
    EXPECT_EQ(folder.read("a.txt"), QByteArray("\xEF\xBB\xBFè\r\nŁ\r\n"));
}

TEST(TextFileTest, AnAppendMakesAFileThatIsNotThere)
{
    const TemporaryFolder folder;
    append(folder.path("a.txt"), "x");
    EXPECT_EQ(folder.read("a.txt"), QByteArray("x\r\n"));
}

TEST(TextFileTest, APrintIsAlwaysInTheCodePage)
{
    const TemporaryFolder folder;
    TextWriter(folder.path("a.txt"), TextEncoding::CodePage).line("Łè");
    EXPECT_EQ(folder.read("a.txt"), QByteArray("?\xE8\r\n"));
}

TEST(TextFileTest, APrintIsEmptiedAtOnceAndKeepsWhatWasPrintedBeforeAFailure)
{
    const TemporaryFolder folder;
    folder.write("a.txt", "old");
    try {
        TextWriter writer(folder.path("a.txt"), TextEncoding::CodePage);
        EXPECT_EQ(folder.read("a.txt"), QByteArray());
        writer.line("first");
        throw Failure::usual(FailureNumber::NoCurrentRow);
    } catch (const Failure &) {
        EXPECT_EQ(folder.read("a.txt"), QByteArray("first\r\n"));
    }
}

TEST(TextFileTest, ASettingsFileIsReplacedOnlyAtTheEnd)
{
    const TemporaryFolder folder;
    folder.write("a.txt", "old");
    {
        TextWriter writer(folder.path("a.txt"));
        writer.line("new");
        EXPECT_EQ(folder.read("a.txt"), QByteArray("old"));
    }
    EXPECT_EQ(folder.read("a.txt"), QByteArray("new\r\n"));
    EXPECT_EQ(folder.entries(), QStringList("a.txt"));
}

TEST(TextFileTest, AFullDiskFailsTheCloseAndNeverTheDestructor)
{
    if (!QFileInfo("/dev/full").isWritable())
        GTEST_SKIP() << "no /dev/full here";
    const auto print = [] {
        TextWriter writer("/dev/full", TextEncoding::CodePage);
        writer.line("x");
        writer.close();
    };
    EXPECT_EQ(failureOf(print), FailureNumber::PathAccess);
    EXPECT_NO_THROW(TextWriter("/dev/full", TextEncoding::CodePage).line("x"));
}

TEST(TextFileTest, AFullDiskLeavesTheOldSettingsFileAsItWas)
{
    const TemporaryFolder folder;
    folder.write("a.txt", "old\r\n");
    const auto save = [&] {
        const SmallDisk disk(100);
        TextWriter writer(folder.path("a.txt"));
        writer.line(QString(5000, u'x'));
        writer.close();
    };
    EXPECT_EQ(failureOf(save), FailureNumber::PathAccess);
    EXPECT_EQ(folder.read("a.txt"), QByteArray("old\r\n"));
    EXPECT_EQ(folder.entries(), QStringList("a.txt"));
}

TEST(TextFileTest, AFullDiskLeavesAPrintIncomplete)
{
    const TemporaryFolder folder;
    const auto print = [&] {
        const SmallDisk disk(100);
        TextWriter writer(folder.path("a.txt"), TextEncoding::CodePage);
        writer.line(QString(5000, u'x'));
        writer.close();
    };
    EXPECT_EQ(failureOf(print), FailureNumber::PathAccess);
    EXPECT_EQ(folder.read("a.txt"), QByteArray(100, 'x'));
}

TEST(TextFileTest, AWriterNeedsItsFolderAndNoFolderInItsPlace)
{
    const TemporaryFolder folder;
    folder.makeFolder("here");
    for (const TextEncoding encoding : {TextEncoding::Settings, TextEncoding::CodePage}) {
        EXPECT_EQ(failureOf([&] { TextWriter(folder.path("no/a.txt"), encoding); }), FailureNumber::PathNotFound);
        EXPECT_EQ(failureOf([&] { TextWriter(folder.path("here"), encoding); }), FailureNumber::PathAccess);
    }
    EXPECT_EQ(folder.entries(), QStringList("here/"));
}

TEST(TextFileTest, ReadingKnowsBothLineEndsAndALastLineWithoutOne)
{
    const TemporaryFolder folder;
    folder.write("a.txt", "one\ntwo\r\nthree");
    EXPECT_EQ(linesOf(folder.path("a.txt")), QStringList({"one", "two", "three"}));
    folder.write("empty.txt", "");
    EXPECT_EQ(linesOf(folder.path("empty.txt")), QStringList());
    folder.write("mark.txt", "\xEF\xBB\xBF");
    EXPECT_EQ(linesOf(folder.path("mark.txt")), QStringList());
}

TEST(TextFileTest, ReadingPastTheEndFails)
{
    const TemporaryFolder folder;
    folder.write("a.txt", "one\r\n");
    TextReader reader(folder.path("a.txt"));
    EXPECT_EQ(reader.line(), "one");
    EXPECT_TRUE(reader.atEnd());
    EXPECT_EQ(failureOf([&] { reader.line(); }), FailureNumber::InputPastEnd);
    EXPECT_EQ(failureOf([&] { TextReader missing(folder.path("no.txt")); }), FailureNumber::FileNotFound);
}

TEST(TextFileTest, NoiseIsReadAsLinesOfSomething)
{
    const TemporaryFolder folder;
    QByteArray noise;
    for (int index = 0; index < 5000; ++index)
        noise.append(char(index * 7919 >> 3));
    folder.write("noise.txt", noise);
    EXPECT_EQ(linesOf(folder.path("noise.txt")).size(), noise.count('\n') + (noise.endsWith('\n') ? 0 : 1));
    folder.write("mark.txt", "\xEF\xBB\xBF" + noise);
    EXPECT_FALSE(linesOf(folder.path("mark.txt")).isEmpty());
}

TEST(TextFileTest, LinesThatAreEncodedAlreadyKeepTheirPlaceAmongTheOthers)
{
    const TemporaryFolder folder;
    TextWriter writer(folder.path("a.html"), TextEncoding::CodePage);
    writer.line("prima è");
    writer.encodedLines("seconda \xE8 \r\nterza \r\n");
    writer.line("quarta Ω");
    writer.close();
    EXPECT_EQ(folder.read("a.html"), QByteArray("prima \xE8\r\nseconda \xE8 \r\nterza \r\nquarta ?\r\n"));
}
