// Archive files as a whole: made, copied under a password, checked.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

// Makes a new archive file from a script of the engine's own statements, encrypted where a password is given. Never
// overwrites: throws Failure(PathAccess) where the file is there already or cannot be made, and Failure(Engine) where
// the script fails; then no file is left.
void makeArchive(const QString &path, const QString &script, const QString &password = {});

// A copy of the archive `from` that opens with `password` alone, or without one where it is empty. `fromPassword`
// opens the original. Only the owner may read it, whatever the rights of the original. Never overwrites. Throws
// Failure, and then no copy is left.
void copyEncrypted(const QString &from, const QString &to, const QString &password, const QString &fromPassword = {});

// What the engine finds wrong with the archive, line by line; empty for a sound one. A file that does not open gives
// the words of that failure.
QStringList integrityCheck(const QString &path, const QString &password = {});

// Takes the indexes out of the archive's table of contents; their pages stay behind, used by nothing. Gives the
// statements that make them. What serves a key of a table stays and is made anew. Throws Failure.
QStringList takeOutIndexes(const QString &path, const QString &password = {});
// Runs the engine's own statements on the archive. Throws Failure.
void runStatements(const QString &path, const QStringList &statements, const QString &password = {});

// The same rows in the same order give the same, in whatever file.
struct TableContent
{
    qint64 rows = 0;
    QByteArray digest; // of every value, its type included
    bool operator==(const TableContent &) const = default;
};
// What each table holds, by the table's declared name, read without any index. Throws Failure where one cannot be read.
QMap<QString, TableContent> tableContents(const QString &path, const QString &password = {});

// How many rows each table has, by the table's declared name, counted without any index. Throws Failure.
QMap<QString, qint64> rowCounts(const QString &path, const QString &password = {});
