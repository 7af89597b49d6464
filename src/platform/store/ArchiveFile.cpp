#include "platform/store/ArchiveFile.h"

#include "platform/store/ArchiveBuilder.h"
#include "platform/store/EngineHandle.h"
#include "platform/store/NewFile.h"
#include "platform/store/OpenArchive.h"
#include "platform/store/Statement.h"

#include <QCryptographicHash>
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

void digest(QCryptographicHash &hash, sqlite3_stmt *row, int column)
{
    const char type = char(sqlite3_column_type(row, column));
    const double number = type == SQLITE_FLOAT ? sqlite3_column_double(row, column) : 0;
    const qint64 whole = sqlite3_column_int64(row, column);
    QByteArrayView value;
    if (type == SQLITE_FLOAT)
        value = QByteArrayView(reinterpret_cast<const char *>(&number), sizeof number);
    else if (type == SQLITE_INTEGER)
        value = QByteArrayView(reinterpret_cast<const char *>(&whole), sizeof whole);
    else if (type != SQLITE_NULL)
        value = QByteArrayView(static_cast<const char *>(sqlite3_column_blob(row, column)),
                               sqlite3_column_bytes(row, column));
    const qint64 size = value.size();
    hash.addData(QByteArrayView(&type, 1));
    hash.addData(QByteArrayView(reinterpret_cast<const char *>(&size), sizeof size));
    hash.addData(value);
}

TableContent contentOf(sqlite3 *handle, const QString &table)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    TableContent content;
    Statement rows(handle, "SELECT * FROM " + quotedName(table) + " NOT INDEXED");
    for (; rows.step(); ++content.rows)
        for (int column = 0; column < rows.columnCount(); ++column)
            digest(hash, rows.handle(), column);
    content.digest = hash.result();
    return content;
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
    NewFile file(to, NewFile::Readers::OwnerAlone);
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

QStringList takeOutIndexes(const QString &path, const QString &password)
{
    QStringList statements;
    {
        const std::shared_ptr<Database> archive = openOriginal(path, password);
        Statement made(archive->handle(), "SELECT sql FROM sqlite_master WHERE type = 'index' AND sql IS NOT NULL");
        while (made.step())
            statements += made.columnText(0);
        runScript(archive->handle(), "PRAGMA writable_schema=ON;"
                                     "DELETE FROM sqlite_master WHERE type = 'index' AND sql IS NOT NULL");
    }
    runStatements(path, {QStringLiteral("REINDEX")}, password);
    return statements;
}

void runStatements(const QString &path, const QStringList &statements, const QString &password)
{
    const std::shared_ptr<Database> archive = openOriginal(path, password);
    for (const QString &statement : statements)
        runScript(archive->handle(), statement.toUtf8());
}

QMap<QString, TableContent> tableContents(const QString &path, const QString &password)
{
    const std::shared_ptr<Database> archive = openOriginal(path, password);
    QMap<QString, TableContent> contents;
    Statement tables(archive->handle(), "SELECT name FROM sqlite_master WHERE type = 'table'");
    while (tables.step())
        contents.insert(tables.columnText(0), contentOf(archive->handle(), tables.columnText(0)));
    return contents;
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
