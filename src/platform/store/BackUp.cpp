#include "platform/store/BackUp.h"

#include "platform/store/ConnectionPrivate.h"
#include "platform/store/EngineFailure.h"
#include "platform/store/EngineHandle.h"
#include "platform/store/JetFunctions.h"
#include "platform/store/NewFile.h"
#include "platform/store/Statement.h"

namespace {

constexpr int kAllPages = -1;

Failure copyFailure(sqlite3 *copy, int rc)
{
    if ((rc & 0xff) == SQLITE_FULL)
        return Failure(FailureNumber::Engine, QStringLiteral("Il disco è pieno"));
    return engineFailure(copy, rc);
}

// The program that starts or expands does not stand still for a copy.
class WithoutWaiting
{
public:
    explicit WithoutWaiting(sqlite3 *handle) : m_handle(handle)
    {
        Statement asked(handle, "PRAGMA busy_timeout");
        m_before = asked.step() ? int(asked.columnInt(0)) : 0;
        sqlite3_busy_timeout(handle, 0);
    }
    ~WithoutWaiting() { sqlite3_busy_timeout(m_handle, m_before); }
    WithoutWaiting(const WithoutWaiting &) = delete;
    WithoutWaiting &operator=(const WithoutWaiting &) = delete;

private:
    sqlite3 *m_handle;
    int m_before = 0;
};

EngineHandle openCopy(const QString &path, const QByteArray &key)
{
    EngineHandle copy = openEngine(path, key);
    teachEngine(copy.get());
    // Half a copy is thrown away, so that there is nothing to roll back.
    runScript(copy.get(), "PRAGMA journal_mode=OFF");
    return copy;
}

void copyPages(sqlite3 *original, sqlite3 *copy)
{
    const WithoutWaiting now(original);
    sqlite3_backup *const backup = sqlite3_backup_init(copy, "main", original, "main");
    if (!backup)
        throw copyFailure(copy, sqlite3_errcode(copy));
    const int rc = sqlite3_backup_step(backup, kAllPages);
    const int ending = sqlite3_backup_finish(backup);
    if (rc != SQLITE_DONE)
        throw copyFailure(copy, ending != SQLITE_OK ? ending : rc);
}

void checkPages(sqlite3 *copy)
{
    Statement checking(copy, "PRAGMA quick_check(1)");
    while (checking.step())
        if (const QString found = checking.columnText(0); found != u"ok")
            throw engineFailure(SQLITE_CORRUPT, found);
}

} // namespace

void backUp(Connection &from, const QString &to)
{
    Database &original = from.engine().opened();
    NewFile file(to, NewFile::Readers::OwnerAlone);
    {
        const EngineHandle copy = openCopy(to, original.key());
        copyPages(original.handle(), copy.get());
        checkPages(copy.get());
    }
    file.keep();
}
