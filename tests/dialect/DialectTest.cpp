// Every statement of the corpus: its translation, and that it runs on a real archive.
#include "platform/Failure.h"
#include "platform/store/Connection.h"
#include "platform/store/JetTranslator.h"
#include "platform/store/Recordset.h"
#include "support/DialectCorpus.h"
#include "support/Printers.h"
#include "support/TemporaryFolder.h"
#include "support/TestArchive.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

// What the mark of a case says of its translation.
Translation expectedOf(const DialectCase &told)
{
    Translation expected;
    expected.statement = told.expected;
    expected.kind = told.mark == QStringLiteral("acts") ? Translation::Kind::Action : Translation::Kind::Select;
    expected.hasKeyColumn = told.mark.startsWith(QStringLiteral("writes "));
    expected.table = told.mark.section(u' ', 1);
    return expected;
}

class DialectTest : public testing::TestWithParam<DialectFile>
{
};

class StatementsTest : public DialectTest
{
protected:
    void SetUp() override
    {
        const QString path = m_folder.path(QStringLiteral("Prova.Mdb"));
        if (GetParam().schema == QStringLiteral("schema-sistema.sql"))
            makeTestSystemArchive(path);
        else
            makeTestArchive(path);
        ASSERT_TRUE(m_connection.Open(path));
    }

    void run(const DialectCase &told)
    {
        if (told.mark == QStringLiteral("acts")) {
            m_connection.Execute(told.statement);
            return;
        }
        Recordset rows;
        rows.Open(told.statement, m_connection);
        EXPECT_EQ(rows.Source(), told.statement);
        EXPECT_EQ(rows.isUpdatable(), told.mark.startsWith(QStringLiteral("writes ")));
        EXPECT_FALSE(rows.hasField(QStringLiteral("jet_key")));
    }

    TemporaryFolder m_folder;
    Connection m_connection;
};

TEST_P(DialectTest, EveryStatementHasItsTranslation)
{
    ASSERT_FALSE(GetParam().cases.empty());
    for (const DialectCase &told : GetParam().cases) {
        SCOPED_TRACE(told.name.toStdString());
        if (told.fails()) {
            try {
                ADD_FAILURE() << translateJet(told.statement).statement.toStdString();
            } catch (const Failure &failure) {
                EXPECT_EQ(failure.number(), FailureNumber::Engine);
                EXPECT_EQ(failure.words().toStdString(), told.expected.toStdString());
                EXPECT_EQ(failure.statement().toStdString(), told.statement.toStdString());
            }
            continue;
        }
        const Translation expected = expectedOf(told);
        const Translation translation = translateJet(told.statement);
        EXPECT_EQ(translation.statement.toStdString(), expected.statement.toStdString());
        EXPECT_TRUE(translation == expected);
    }
}

TEST_P(DialectTest, ATranslationTranslatesToItself)
{
    for (const DialectCase &told : GetParam().cases) {
        SCOPED_TRACE(told.name.toStdString());
        if (told.fails())
            continue;
        const Translation once = translateJet(told.statement);
        const Translation twice = translateJet(once.statement);
        EXPECT_EQ(twice.statement.toStdString(), once.statement.toStdString());
        EXPECT_TRUE(twice == once);
    }
}

TEST_P(StatementsTest, EveryStatementRunsOnAnEmptyArchive)
{
    for (const DialectCase &told : GetParam().cases) {
        SCOPED_TRACE(told.name.toStdString());
        // What an insertion leaves behind is of no concern to the others.
        const bool adds = told.statement.startsWith(QStringLiteral("INSERT"));
        try {
            run(told);
            if (adds)
                m_connection.Execute(QStringLiteral("DELETE FROM ") + told.statement.section(u' ', 2, 2));
        } catch (const Failure &failure) {
            ADD_FAILURE() << failure.words().toStdString();
        }
    }
}

std::vector<DialectFile> filesThatRun()
{
    std::vector<DialectFile> files = readDialectFiles();
    std::erase_if(files, [](const DialectFile &file) { return file.schema == QStringLiteral("none"); });
    return files;
}

std::string nameOf(const testing::TestParamInfo<DialectFile> &info)
{
    return info.param.name.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Corpus, DialectTest, testing::ValuesIn(readDialectFiles()), nameOf);
INSTANTIATE_TEST_SUITE_P(Corpus, StatementsTest, testing::ValuesIn(filesThatRun()), nameOf);

TEST(CorpusTest, HoldsEveryStatementOfTheProgram)
{
    std::size_t statements = 0;
    for (const DialectFile &file : filesThatRun())
        statements += file.cases.size();
    EXPECT_EQ(statements, 110u);
}

TEST(CorpusTest, EveryConstructIsShownByItsCase)
{
    const std::vector<DialectFile> files = readDialectFiles();
    for (const DialectConstruct &construct : readConstructs()) {
        SCOPED_TRACE(construct.what.toStdString());
        const auto file = std::find_if(files.begin(), files.end(), [&](const DialectFile &candidate) {
            return candidate.name == construct.shownBy.section(u'.', 0, 0);
        });
        ASSERT_NE(file, files.end());
        const auto told = std::find_if(file->cases.begin(), file->cases.end(), [&](const DialectCase &candidate) {
            return candidate.name == construct.shownBy.section(u'.', 1);
        });
        ASSERT_NE(told, file->cases.end());
        EXPECT_TRUE(told->statement.contains(construct.before)) << construct.before.toStdString();
        EXPECT_TRUE(told->expected.contains(construct.after)) << construct.after.toStdString();
        EXPECT_FALSE(told->statement.contains(construct.after) && told->expected.contains(construct.before))
            << "shows no change";
    }
}

} // namespace
