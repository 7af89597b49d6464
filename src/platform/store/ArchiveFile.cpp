#include "platform/store/ArchiveFile.h"

#include "platform/store/EngineFailure.h"
#include "platform/store/JetFunctions.h"
#include "platform/store/OpenArchive.h"
#include "platform/store/Statement.h"

#include <QFile>
#include <QFileInfo>

#include <memory>

namespace {

struct Closer
{
    void operator()(sqlite3 *handle) const { sqlite3_close_v2(handle); }
};
using Handle = std::unique_ptr<sqlite3, Closer>;

// A file taken for a new archive: it goes away again unless all went well.
class NewFile
{
public:
    explicit NewFile(const QString &path) : m_path(path)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            throw Failure::usual(FailureNumber::PathAccess,
                                 QFileInfo::exists(path) ? path + QStringLiteral(" esiste già") : path);
    }
    ~NewFile()
    {
        if (!m_done)
            QFile::remove(m_path);
    }
    NewFile(const NewFile &) = delete;
    NewFile &operator=(const NewFile &) = delete;

    void keep() { m_done = true; }

private:
    QString m_path;
    bool m_done = false;
};

void check(sqlite3 *handle, int rc, const QString &told = {})
{
    if (rc != SQLITE_OK)
        throw engineFailure(handle, rc, told);
}

Handle openHandle(const QString &path)
{
    sqlite3 *raw = nullptr;
    const int rc = sqlite3_open_v2(QFile::encodeName(path).constData(), &raw,
                                   SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    Handle handle(raw);
    check(raw, rc);
    return handle;
}

void giveKey(sqlite3 *handle, const QString &password)
{
    const QByteArray key = password.toUtf8();
    if (!key.isEmpty())
        check(handle, sqlite3_key(handle, key.constData(), int(key.size())));
}

void run(sqlite3 *handle, const QByteArray &script)
{
    check(handle, sqlite3_exec(handle, script.constData(), nullptr, nullptr, nullptr), QString::fromUtf8(script));
}

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
    run(original, "SELECT sqlcipher_export('copia')");
    run(original, "DETACH DATABASE copia");
}

} // namespace

void makeArchive(const QString &path, const QString &script, const QString &password)
{
    NewFile file(path);
    {
        const Handle handle = openHandle(path);
        giveKey(handle.get(), password);
        teachEngine(handle.get());
        run(handle.get(), "BEGIN");
        run(handle.get(), script.toUtf8());
        run(handle.get(), "COMMIT");
    }
    file.keep();
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
