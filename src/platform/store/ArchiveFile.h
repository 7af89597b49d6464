// Archive files as a whole: made, copied under a password, checked.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

// Makes a new archive file from a script of the engine's own statements, encrypted where a password is given. Never
// overwrites: throws Failure(PathAccess) where the file is there already or cannot be made, and Failure(Engine) where
// the script fails; then no file is left.
void makeArchive(const QString &path, const QString &script, const QString &password = {});

// A copy of the archive `from` that opens with `password` alone, or without one where it is empty. `fromPassword`
// opens the original. Never overwrites. Throws Failure, and then no copy is left.
void copyEncrypted(const QString &from, const QString &to, const QString &password, const QString &fromPassword = {});

// What the engine finds wrong with the archive, line by line; empty for a sound one. A file that does not open gives
// the words of that failure.
QStringList integrityCheck(const QString &path, const QString &password = {});

// Makes all indexes of the archive anew from its tables. Throws Failure.
void rebuildIndexes(const QString &path, const QString &password = {});

// How many rows each table has, by the table's declared name, counted without any index. Throws Failure.
QMap<QString, qint64> rowCounts(const QString &path, const QString &password = {});
