#include "faults/Contents.h"

#include "faults/UnluckyDisk.h"
#include "platform/store/ArchiveFile.h"
#include "platform/store/ArchiveSigns.h"
#include "platform/store/ConnectionPrivate.h"
#include "platform/store/Recordset.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

#include <cstring>
#include <stdexcept>

namespace {

constexpr int kCheckpointPages = 1000; // as the engine does it unless told otherwise

QString *digestedPath = nullptr;

int afterCommit(void *, sqlite3 *handle, const char *name, int pages)
{
    const int number = ++sharedProgress().commits;
    if (digestedPath && number < 256)
        sharedProgress().digests[number] = digestOf(*digestedPath);
    return pages >= kCheckpointPages ? sqlite3_wal_checkpoint(handle, name) : SQLITE_OK;
}

} // namespace

quint64 digestOf(Connection &archive)
{
    QCryptographicHash hash(QCryptographicHash::Md5);
    for (const char *table : {"Sostituisci", "Menu", "SchedaPranzo"}) {
        Recordset rows;
        rows.Open(QStringLiteral("Select * from ") + QLatin1String(table), archive, Recordset::Access::ReadOnly);
        hash.addData(QByteArray(table));
        for (int row = 0; row < rows.RecordCount(); ++row)
            for (int column = 0; column < rows.fieldCount(); ++column) {
                const Value value = rows.valueAt(row, column);
                hash.addData(value.isNull() ? QByteArray(1, '\0') : value.text().toUtf8() + '\1');
            }
    }
    quint64 digest = 0;
    std::memcpy(&digest, hash.result().constData(), sizeof digest);
    return digest;
}

quint64 digestOf(const QString &path, const QString &password)
{
    Connection archive;
    if (const OpenResult opened = archive.Open(path, password); !opened)
        throw Failure(FailureNumber(opened.number), opened.words);
    return digestOf(archive);
}

QString faultsOf(const QString &path, const QString &password)
{
    return integrityCheck(path, password).join(QStringLiteral("; "));
}

void putArchive(const QString &from, const QString &to)
{
    for (const QString &left : QStringList(to) + companionFiles(to))
        QFile::remove(left);
    if (!QFile::copy(from, to))
        throw std::runtime_error("the archive cannot be put in its place");
}

void countCommits(Connection &connection, bool digests)
{
    static QString path;
    path = connection.path();
    digestedPath = digests ? &path : nullptr;
    sqlite3_wal_hook(connection.engine().opened().handle(), afterCommit, nullptr);
}
