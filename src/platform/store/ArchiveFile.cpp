#include "platform/store/ArchiveFile.h"

#include "platform/store/ArchiveBuilder.h"
#include "platform/store/EngineHandle.h"
#include "platform/store/NewFile.h"
#include "platform/store/OpenArchive.h"
#include "platform/store/Statement.h"

#include <QFile>

#include <memory>

namespace {

// The original, in a state that another handle may read whole.
std::shared_ptr<Database> openOriginal(const QString &path, const QString &password)
{
    OpenedArchive original = openArchive(path, password, OpenFor::Inspection);
    if (!original.result)
        throw Failure(FailureNumber(original.result.number), original.result.words);
    return original.database;
}

void exportTo(sqlite3 *original, const QString &path, const QString &password)
{
    Statement attach(original, "ATTACH DATABASE ?1 AS copia KEY ?2");
    const QByteArray name = QFile::encodeName(path);
    const QByteArray key = password.toUtf8();
    attach.bind(1, QByteArrayView(name));
    attach.bind(2, QByteArrayView(key));
    attach.step();
    attach.reset();
    runScript(original, "SELECT sqlcipher_export('copia')");
    runScript(original, "DETACH DATABASE copia");
}

} // namespace

void makeArchive(const QString &path, const QString &script, const QString &password)
{
    ArchiveBuilder builder(path, password);
    builder.run(script);
    builder.finish();
}

void copyEncrypted(const QString &from, const QString &to, const QString &password, const QString &fromPassword)
{
    NewFile file(to);
    const std::shared_ptr<Database> original = openOriginal(from, fromPassword);
    exportTo(original->handle(), to, password);
    file.keep();
}

QStringList integrityCheck(const QString &path, const QString &password)
{
    const OpenedArchive archive = openArchive(path, password, OpenFor::Inspection);
    if (!archive.result)
        return {archive.result.words};
    QStringList faults;
    try {
        Statement checking(archive.database->handle(), "PRAGMA integrity_check");
        while (checking.step())
            if (const QString line = checking.columnText(0); line != u"ok")
                faults << line;
    } catch (const Failure &failure) {
        faults << failure.words();
    }
    return faults;
}

void rebuildIndexes(const QString &path, const QString &password)
{
    runScript(openOriginal(path, password)->handle(), "REINDEX");
}

QMap<QString, qint64> rowCounts(const QString &path, const QString &password)
{
    const std::shared_ptr<Database> archive = openOriginal(path, password);
    QMap<QString, qint64> counts;
    Statement tables(archive->handle(), "SELECT name FROM sqlite_master WHERE type = 'table'");
    while (tables.step()) {
        const QString name = tables.columnText(0);
        // Without a condition the engine would count the entries of an index all the same.
        Statement count(archive->handle(), "SELECT Count(*) FROM " + quotedName(name) + " NOT INDEXED WHERE 1");
        count.step();
        counts.insert(name, count.columnInt(0));
    }
    return counts;
}
