// The engine's own handle of an archive, for the files of this folder that make archives and copy them.
#pragma once

#include "platform/Failure.h"

#include <sqlcipher/sqlite3.h>

#include <QByteArray>
#include <QString>

#include <memory>

struct EngineCloser
{
    void operator()(sqlite3 *handle) const { sqlite3_close_v2(handle); }
};
using EngineHandle = std::unique_ptr<sqlite3, EngineCloser>;

// Opens the file `path`, which must be there, for reading and writing; `key` is its password, empty for none. What is
// in the file is not looked at. Throws Failure(Engine).
EngineHandle openEngine(const QString &path, const QByteArray &key);

// Throws Failure(Engine) for any answer but SQLITE_OK; `told` is the statement that it names.
void checkEngine(sqlite3 *handle, int rc, const QString &told = {});

// Runs the engine's own statements, any number. Throws Failure(Engine).
void runScript(sqlite3 *handle, const QByteArray &script);
