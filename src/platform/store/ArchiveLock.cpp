#include "platform/store/ArchiveLock.h"

#include <QFile>

#include <array>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// The bytes that the engine locks, as its file format tells them: pending, reserved, and the range of the readers.
constexpr off_t kFirstLockByte = 0x40000000;
constexpr off_t kLockBytes = 2 + 510;

struct flock engineBytes(short type)
{
    struct flock asked = {};
    asked.l_type = type;
    asked.l_whence = SEEK_SET;
    asked.l_start = kFirstLockByte;
    asked.l_len = kLockBytes;
    return asked;
}

// A lock of the open file, not of the process: the engine, which drops the process's locks as it likes, leaves it.
bool takeLock(int file, short type)
{
    struct flock asked = engineBytes(type);
    return fcntl(file, F_OFD_SETLK, &asked) == 0 || (errno != EAGAIN && errno != EACCES);
}

bool isLockedByAnybody(int file)
{
    struct flock asked = engineBytes(F_WRLCK);
    return fcntl(file, F_OFD_GETLK, &asked) == 0 && asked.l_type != F_UNLCK;
}

} // namespace

ArchiveHold::ArchiveHold(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    m_file = open(name.constData(), O_RDWR | O_CLOEXEC);
    if (m_file >= 0) {
        m_held = takeLock(m_file, F_WRLCK);
        return;
    }
    m_file = open(name.constData(), O_RDONLY | O_CLOEXEC);
    m_held = m_file < 0 || (!isLockedByAnybody(m_file) && takeLock(m_file, F_RDLCK));
}

ArchiveHold::~ArchiveHold()
{
    if (m_file >= 0)
        close(m_file);
}

void ArchiveHold::retire() const
{
    struct stat left = {};
    if (m_file < 0 || !m_held || fstat(m_file, &left) != 0 || left.st_nlink > 0)
        return;
    // Neither the beginning of a plain archive nor that of an encrypted one.
    static constexpr std::array<char, 1024> kNothing{};
    [[maybe_unused]] const ssize_t written = pwrite(m_file, kNothing.data(), kNothing.size(), 0);
}
