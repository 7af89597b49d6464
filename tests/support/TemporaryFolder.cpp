#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

TemporaryFolder::TemporaryFolder()
{
    EXPECT_TRUE(m_folder.isValid()) << "no temporary folder can be made";
}

QString TemporaryFolder::path(const QString &told) const
{
    return ProgramFolder(path()).resolve(told);
}

bool TemporaryFolder::has(const QString &told) const
{
    return QFileInfo::exists(path(told));
}

void TemporaryFolder::write(const QString &told, const QByteArray &bytes) const
{
    const QString native = path(told);
    QDir().mkpath(QFileInfo(native).path());
    QFile file(native);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << "cannot write " << native.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size());
}

QByteArray TemporaryFolder::read(const QString &told) const
{
    QFile file(path(told));
    if (!file.open(QIODevice::ReadOnly)) {
        ADD_FAILURE() << "there is no file " << told.toStdString();
        return {};
    }
    return file.readAll();
}

void TemporaryFolder::makeFolder(const QString &told) const
{
    ASSERT_TRUE(QDir().mkpath(path(told)));
}

void TemporaryFolder::remove(const QString &told) const
{
    const QFileInfo info(path(told));
    ASSERT_TRUE(info.isDir() ? QDir(info.filePath()).removeRecursively() : QFile::remove(info.filePath()));
}

QStringList TemporaryFolder::entries(const QString &told) const
{
    QStringList names;
    const QDir::Filters filters = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    for (const QFileInfo &info : QDir(path(told)).entryInfoList(filters, QDir::Name))
        names.append(info.isDir() ? info.fileName() + u'/' : info.fileName());
    return names;
}
