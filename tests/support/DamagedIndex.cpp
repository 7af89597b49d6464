#include "support/DamagedIndex.h"

#include "support/TestArchive.h"

#include <gtest/gtest.h>

#include <QFile>

void damageIndex(const QString &archive, const QString &name, const QString &password, const QByteArray &piece)
{
    Connection opened;
    ASSERT_TRUE(opened.Open(archive, password));
    opened.Execute(QStringLiteral("PRAGMA journal_mode=DELETE"));
    const qint64 size = valueOf(opened, QStringLiteral("PRAGMA page_size")).toLongLong();
    const qint64 root =
        valueOf(opened, QStringLiteral("SELECT rootpage FROM sqlite_master WHERE name = '%1'").arg(name)).toLongLong();
    opened.Close();
    QFile file(archive);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_GT(root, 1);
    ASSERT_TRUE(file.seek((root - 1) * size));
    ASSERT_EQ(file.write(piece.repeated(size).first(size)), size);
}
