// A disk of few bytes in the place of a folder. Only the superuser can make one.
#pragma once

#include <QByteArray>
#include <QString>

class SmallDisk
{
public:
    SmallDisk(const QString &folder, qint64 bytes);
    ~SmallDisk(); // the folder is again what it was
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;

    bool isThere() const { return m_there; }

private:
    QByteArray m_path;
    bool m_there = false;
};
