#include "faults/UnluckyDisk.h"

#include "platform/Failure.h"

#include <sqlcipher/sqlite3.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <new>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int kFailedStatus = 3;

Misfortune misfortune = Misfortune::None;
qint64 fatalByte = 0;

enum class Fate
{
    Goes,
    Dies,
    NoRoom
};

// What becomes of a step of so many bytes.
Fate fateOf(qint64 bytes)
{
    const qint64 before = sharedProgress().written.fetch_add(bytes);
    if (misfortune == Misfortune::None || before + bytes < fatalByte)
        return Fate::Goes;
    return misfortune == Misfortune::Kill ? Fate::Dies : Fate::NoRoom;
}

[[noreturn]] void die()
{
    kill(getpid(), SIGKILL);
    for (;;)
        pause();
}

// A write of `count` bytes, which `put` does for as many of them as it is told.
template <typename Put>
ssize_t unlucky(size_t count, const Put &put)
{
    const Fate fate = fateOf(qint64(count));
    if (fate == Fate::Goes)
        return put(count);
    if (fate == Fate::Dies && put(count / 2) >= 0)
        die();
    errno = ENOSPC;
    return -1;
}

ssize_t unluckyWrite(int file, const void *bytes, size_t count)
{
    return unlucky(count, [&](size_t part) { return write(file, bytes, part); });
}

ssize_t unluckyPwrite(int file, const void *bytes, size_t count, off_t offset)
{
    return unlucky(count, [&](size_t part) { return pwrite(file, bytes, part, offset); });
}

int unluckyUnlink(const char *path)
{
    if (fateOf(1) == Fate::Dies)
        die();
    return unlink(path);
}

int unluckyTruncate(int file, off_t size)
{
    if (fateOf(1) == Fate::Dies)
        die();
    return ftruncate(file, size);
}

template <typename Call>
void putInPlace(const char *name, Call call)
{
    sqlite3_vfs *const disk = sqlite3_vfs_find(nullptr);
    disk->xSetSystemCall(disk, name, reinterpret_cast<sqlite3_syscall_ptr>(call));
}

} // namespace

Progress &sharedProgress()
{
    static Progress *const progress = [] {
        void *memory = mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        return new (memory) Progress;
    }();
    return *progress;
}

void makeDiskUnlucky(Misfortune what, qint64 atByte)
{
    misfortune = what;
    fatalByte = atByte;
    putInPlace("write", unluckyWrite);
    putInPlace("pwrite", unluckyPwrite);
    putInPlace("pwrite64", unluckyPwrite);
    putInPlace("unlink", unluckyUnlink);
    putInPlace("ftruncate", unluckyTruncate);
}

int runOnUnluckyDisk(Misfortune what, qint64 atByte, const std::function<void()> &work)
{
    sharedProgress().written = 0;
    sharedProgress().commits = 0;
    const pid_t child = fork();
    if (child == 0) {
        makeDiskUnlucky(what, atByte);
        try {
            work();
        } catch (const std::exception &failure) {
            if (what != Misfortune::Full)
                std::fprintf(stderr, "the child failed: %s\n", failure.what());
            _exit(kFailedStatus);
        }
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return status;
}

bool wasKilled(int status)
{
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

bool hasFailed(int status)
{
    return WIFEXITED(status) && WEXITSTATUS(status) == kFailedStatus;
}

bool hasFinished(int status)
{
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}
