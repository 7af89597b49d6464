#include "platform/store/ArchiveLock.h"

#include <QFile>

#include <fcntl.h>

namespace {

// The bytes that the engine locks, as its file format tells them: pending, reserved, and the range of the readers.
constexpr off_t kFirstLockByte = 0x40000000;
constexpr off_t kLockBytes = 2 + 510;

} // namespace

bool isLockedByAnother(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    struct flock asked = {};
    asked.l_type = F_WRLCK;
    asked.l_whence = SEEK_SET;
    asked.l_start = kFirstLockByte;
    asked.l_len = kLockBytes;
    return fcntl(file.handle(), F_GETLK, &asked) == 0 && asked.l_type != F_UNLCK;
}
