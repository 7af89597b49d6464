#include "support/OtherProgram.h"

#include "platform/Failure.h"
#include "platform/store/Connection.h"
#include "platform/store/Recordset.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr char kReady = '1';
constexpr char kFailed = '0';

// Never returns: the process stays as it is until it is killed.
[[noreturn]] void holdOpen(const QString &path, const QString &password, const QString &statement, int told)
{
    Connection archive;
    char result = kFailed;
    try {
        if (archive.Open(path, password)) {
            if (!statement.isEmpty())
                archive.Execute(statement);
            Recordset rows; // from its first reading on it holds a lock
            rows.Open(QStringLiteral("SELECT name FROM sqlite_master"), archive, Recordset::Access::ReadOnly);
            result = kReady;
        }
    } catch (const Failure &) {
        result = kFailed;
    }
    if (write(told, &result, 1) == 1)
        pause();
    _exit(0);
}

} // namespace

OtherProgram::OtherProgram(const QString &path, const QString &password, const QString &statement)
{
    int ready[2];
    if (pipe(ready) != 0) {
        ADD_FAILURE() << "no pipe";
        return;
    }
    m_child = fork();
    if (m_child == 0)
        holdOpen(path, password, statement, ready[1]);
    char result = kFailed;
    EXPECT_EQ(read(ready[0], &result, 1), 1);
    EXPECT_EQ(result, kReady);
    close(ready[0]);
    close(ready[1]);
}

OtherProgram::~OtherProgram()
{
    if (m_child <= 0)
        return;
    kill(m_child, SIGKILL);
    waitpid(m_child, nullptr, 0);
}
