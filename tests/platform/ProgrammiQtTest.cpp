#include "platform/ui/ProgrammiQt.h"
#include "platform/Failure.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QtTest/QTest>

namespace {

// A machine whose search path holds only what the test puts there.
class ProgrammiQtTest : public testing::Test
{
protected:
    ProgrammiQtTest() : before(qgetenv("PATH")) { qputenv("PATH", folder.path().toLocal8Bit()); }
    ~ProgrammiQtTest() override { qputenv("PATH", before); }

    void install(const QString &name)
    {
        QFile program(folder.path() + '/' + name);
        ASSERT_TRUE(program.open(QIODevice::WriteOnly));
        program.write("#!/bin/sh\necho \"$0\" > \"${0%/*}/started\"\n");
        program.close();
        program.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }
    QString started()
    {
        QFile trace(folder.path() + "/started");
        for (int i = 0; i < 200 && trace.size() == 0; ++i)
            QTest::qWait(20);
        return trace.open(QIODevice::ReadOnly) ? QString::fromUtf8(trace.readAll()).trimmed() : QString();
    }
    QString wordsOf(ProgramKind kind, const QString &target)
    {
        try {
            ProgrammiQt().start(kind, target);
        } catch (const Failure &failure) {
            EXPECT_EQ(failure.number(), FailureNumber::FileNotFound);
            return failure.words();
        }
        return {};
    }

    TemporaryFolder folder;
    QByteArray before;
};

TEST_F(ProgrammiQtTest, ACalculatorIsTheFirstThatIsInstalled)
{
    install("xcalc");
    install("galculator");
    ProgrammiQt().start(ProgramKind::Calculator, "");
    EXPECT_EQ(started(), folder.path() + "/galculator");
}

TEST_F(ProgrammiQtTest, WithoutAnyProgramTheUserIsTold)
{
    EXPECT_EQ(wordsOf(ProgramKind::Calculator, ""), "Non è stato trovato nessun programma per aprire: la calcolatrice");
    EXPECT_EQ(wordsOf(ProgramKind::TextViewer, folder.path()),
              "Non è stato trovato nessun programma per aprire: " + folder.path());
}

TEST_F(ProgrammiQtTest, AFileThatIsNotThereIsSaidToBeMissing)
{
    EXPECT_EQ(wordsOf(ProgramKind::TextViewer, folder.path() + "/manca.txt"),
              "File non trovato: " + folder.path() + "/manca.txt");
}

} // namespace
