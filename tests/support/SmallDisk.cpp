#include "support/SmallDisk.h"

#include <QFile>

#include <sys/mount.h>
#include <unistd.h>

SmallDisk::SmallDisk(const QString &folder, qint64 bytes) : m_path(QFile::encodeName(folder))
{
    const QByteArray size = "size=" + QByteArray::number(bytes);
    m_there = geteuid() == 0 && mount("tmpfs", m_path.constData(), "tmpfs", 0, size.constData()) == 0;
}

SmallDisk::~SmallDisk()
{
    if (m_there)
        umount(m_path.constData());
}
