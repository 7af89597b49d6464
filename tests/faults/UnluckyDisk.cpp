#include "faults/UnluckyDisk.h"

#include "platform/Failure.h"

#include <sqlcipher/sqlite3.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <new>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int kFailedStatus = 3;

bool counting = false;
Misfortune misfortune = Misfortune::None;
qint64 fatal = 0;

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
    if (misfortune == Misfortune::None || misfortune == Misfortune::KillAtName || before + bytes < fatal)
        return Fate::Goes;
    return misfortune == Misfortune::Kill ? Fate::Dies : Fate::NoRoom;
}

[[noreturn]] void die()
{
    kill(getpid(), SIGKILL);
    for (;;)
        pause();
}

void passMoment()
{
    if (counting && ++sharedProgress().names >= fatal && misfortune == Misfortune::KillAtName)
        die();
}

// A step by which a file is given a name or loses it.
template <typename Step>
int unluckyStep(const Step &step)
{
    passMoment();
    const int result = int(step());
    const int error = errno;
    passMoment();
    errno = error;
    return result;
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

// In the place of the library's own, for the whole program and the libraries that it loads.
extern "C" {

int rename(const char *from, const char *to) noexcept
{
    return unluckyStep([&] { return syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0); });
}

int renameat2(int fromFolder, const char *from, int toFolder, const char *to, unsigned flags) noexcept
{
    return unluckyStep([&] { return syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags); });
}

int unlink(const char *path) noexcept
{
    return unluckyStep([&] { return syscall(SYS_unlinkat, AT_FDCWD, path, 0); });
}

} // extern "C"

Progress &sharedProgress()
{
    static Progress *const progress = [] {
        void *memory = mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        return new (memory) Progress;
    }();
    return *progress;
}

void makeDiskUnlucky(Misfortune what, qint64 at)
{
    counting = true;
    misfortune = what;
    fatal = at;
    putInPlace("write", unluckyWrite);
    putInPlace("pwrite", unluckyPwrite);
    putInPlace("pwrite64", unluckyPwrite);
    putInPlace("unlink", unluckyUnlink);
    putInPlace("ftruncate", unluckyTruncate);
}

int runOnUnluckyDisk(Misfortune what, qint64 at, const std::function<void()> &work)
{
    sharedProgress().written = 0;
    sharedProgress().names = 0;
    sharedProgress().commits = 0;
    const pid_t child = fork();
    if (child == 0) {
        makeDiskUnlucky(what, at);
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
