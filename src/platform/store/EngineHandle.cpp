#include "platform/store/EngineHandle.h"

#include "platform/store/EngineFailure.h"

#include <QFile>

EngineHandle openEngine(const QString &path, const QByteArray &key)
{
    sqlite3 *raw = nullptr;
    const int rc = sqlite3_open_v2(QFile::encodeName(path).constData(), &raw,
                                   SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    EngineHandle handle(raw);
    checkEngine(raw, rc);
    if (!key.isEmpty())
        checkEngine(raw, sqlite3_key(raw, key.constData(), int(key.size())));
    return handle;
}

void checkEngine(sqlite3 *handle, int rc, const QString &told)
{
    if (rc != SQLITE_OK)
        throw engineFailure(handle, rc, told);
}

void runScript(sqlite3 *handle, const QByteArray &script)
{
    checkEngine(handle, sqlite3_exec(handle, script.constData(), nullptr, nullptr, nullptr), QString::fromUtf8(script));
}
