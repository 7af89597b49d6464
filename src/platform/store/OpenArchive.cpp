#include "platform/store/OpenArchive.h"

#include "platform/store/ArchiveSigns.h"
#include "platform/store/EngineFailure.h"
#include "platform/store/JetFunctions.h"
#include "platform/store/Statement.h"

#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace {

constexpr qint64 kEncryptedPage = 1024;
constexpr int kLockWait = 5000; // milliseconds for another program to give its lock back
constexpr int kMostMoves = 3;   // of the file while it is being opened

enum class Mode
{
    Usual,
    Unchanging
};

struct Handle
{
    sqlite3 *handle = nullptr;
    int rc = SQLITE_OK;
};

OpenedArchive refused(OpenOutcome outcome, FailureNumber number, const QString &words)
{
    return {{outcome, int(number), words}, nullptr};
}

OpenedArchive refused(const Failure &failure)
{
    return refused(OpenOutcome::Errore, failure.number(), failure.words());
}

QByteArray unchangingUri(const QString &path)
{
    return QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()).toEncoded() + "?immutable=1";
}

Handle openHandle(const QString &path, Mode mode)
{
    Handle opened;
    if (mode == Mode::Usual)
        opened.rc = sqlite3_open_v2(QFile::encodeName(path).constData(), &opened.handle,
                                    SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    else
        opened.rc = sqlite3_open_v2(unchangingUri(path).constData(), &opened.handle,
                                    SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX, nullptr);
    return opened;
}

// The first bytes of a file, zeros standing for those that it lacks; nothing where it cannot be read. Through the
// engine: any other way to close a file that this process has open as an archive drops the locks on it.
std::optional<QByteArray> readHead(const QString &path, qsizetype size)
{
    sqlite3_vfs *const disk = sqlite3_vfs_find(nullptr);
    std::vector<std::max_align_t> memory(std::size_t(disk->szOsFile) / sizeof(std::max_align_t) + 1);
    auto *const file = reinterpret_cast<sqlite3_file *>(memory.data());
    const QByteArray name = QFile::encodeName(QFileInfo(path).absoluteFilePath()) + QByteArray(2, '\0');
    if (disk->xOpen(disk, name.constData(), file, SQLITE_OPEN_READONLY | SQLITE_OPEN_MAIN_DB, nullptr) != SQLITE_OK)
        return std::nullopt;
    QByteArray head(size, '\0');
    const int rc = file->pMethods->xRead(file, head.data(), int(size), 0);
    file->pMethods->xClose(file);
    return rc == SQLITE_OK || rc == SQLITE_IOERR_SHORT_READ ? std::optional(head) : std::nullopt;
}

// The failures that say that the file itself is no good, whatever the statement.
bool isDamage(int rc)
{
    switch (rc & 0xff) {
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
    case SQLITE_IOERR:
        return true;
    default:
        return false;
    }
}

int runToEnd(sqlite3 *handle, const QByteArray &sql)
{
    return sqlite3_exec(handle, sql.constData(), nullptr, nullptr, nullptr);
}

// The names of the tables; reading them reads the whole schema.
int readTableNames(sqlite3 *handle, QByteArrayList &names)
{
    const auto collect = [](void *list, int, char **texts, char **) {
        static_cast<QByteArrayList *>(list)->append(texts[0]);
        return 0;
    };
    return sqlite3_exec(handle, "SELECT name FROM sqlite_master WHERE type = 'table'", collect, &names, nullptr);
}

int testRead(sqlite3 *handle)
{
    QByteArrayList names;
    int rc = readTableNames(handle, names);
    for (const QByteArray &name : names) {
        if (rc != SQLITE_OK)
            break;
        const int read = runToEnd(handle, "SELECT * FROM " + quotedName(QString::fromUtf8(name)) + " LIMIT 1");
        rc = isDamage(read) ? read : SQLITE_OK;
    }
    return rc;
}

// Settings of speed and safety; an archive that does not take one works without it.
void settle(sqlite3 *handle)
{
    sqlite3_busy_timeout(handle, 0);
    if (runToEnd(handle, "PRAGMA journal_mode=WAL") != SQLITE_OK)
        runToEnd(handle, "PRAGMA journal_mode=DELETE");
    runToEnd(handle, "PRAGMA synchronous=NORMAL");
    runToEnd(handle, "PRAGMA cache_size=-16000");
    runToEnd(handle, "SELECT 1 FROM sqlite_master LIMIT 1"); // others see by its lock that the archive is open
    sqlite3_busy_timeout(handle, kLockWait);
}

// Whether the file has lost its name to another one since it was opened.
bool hasMoved(sqlite3 *handle)
{
    int moved = 0;
    return sqlite3_file_control(handle, "main", SQLITE_FCNTL_HAS_MOVED, &moved) == SQLITE_OK && moved != 0;
}

class Opening
{
public:
    Opening(const QString &path, const QString &password, OpenFor purpose)
        : m_path(path), m_password(password), m_purpose(purpose)
    {
    }

    // An archive that was replaced while it was waited for is opened once more: what is written into the one without a
    // name would be lost.
    OpenedArchive run()
    {
        OpenedArchive opened = once();
        for (int move = 0; m_moved && move < kMostMoves; ++move)
            opened = once();
        return opened;
    }

private:
    OpenedArchive once()
    {
        m_moved = false;
        const QFileInfo info(m_path);
        if (!info.isFile())
            return refused(Failure::usual(FailureNumber::FileNotFound, m_path));
        m_size = info.size();
        m_journalWasEmpty = !hasJournal(m_path);
        const std::optional<QByteArray> head = readHead(m_path, kArchiveSign);
        if (!head)
            return refused(
                Failure(FailureNumber::PathAccess, QStringLiteral("Il file non può essere letto: ") + m_path));
        m_plain = isPlainArchive(*head);
        if (isJetFile(*head)) // which no password opens
            return refused(Failure(FailureNumber::Engine,
                                   QStringLiteral("Il file è un archivio .mdb, da importare prima di usarlo")));
        if (m_size == 0)
            return refused(Failure(FailureNumber::Engine, QStringLiteral("Il file è vuoto, non è un archivio")));
        return openAndTest();
    }

    OpenedArchive openAndTest()
    {
        OpenedArchive opened = attempt(Mode::Usual);
        // The journal kept beside an archive cannot be made in a folder that may not be written.
        if (!opened.result && journalCannotBeMade() && m_journalWasEmpty)
            opened = attempt(Mode::Unchanging);
        return opened;
    }

    // In a folder that may not be written, or on a full disk.
    bool journalCannotBeMade() const
    {
        const int kind = m_lastCode & 0xff;
        return kind == SQLITE_CANTOPEN || kind == SQLITE_READONLY || kind == SQLITE_FULL ||
               m_lastCode == SQLITE_IOERR_SHMSIZE || m_lastCode == SQLITE_IOERR_SHMOPEN;
    }

    // The engine takes the missing rest of a last page for zeros. With something in the journal it may mend the file.
    bool isCutShort(sqlite3 *handle) const
    {
        Statement pageSize(handle, "PRAGMA page_size");
        return pageSize.step() && m_size % pageSize.columnInt(0) != 0 && m_journalWasEmpty;
    }

    OpenedArchive attempt(Mode mode)
    {
        const Handle opened = openHandle(m_path, mode);
        auto database = std::make_shared<Database>(opened.handle, key());
        sqlite3 *const handle = opened.handle;
        int rc = opened.rc;
        if (rc == SQLITE_OK) {
            sqlite3_extended_result_codes(handle, 1);
            sqlite3_busy_timeout(handle, kLockWait);
            teachEngine(handle);
            giveKey(handle);
            rc = testRead(handle);
        }
        m_lastCode = rc;
        m_moved = hasMoved(handle);
        // It is sound and in use: each statement says so for itself, until the other program is done.
        if (isBusy(rc) && (m_plain || (looksEncrypted() && !key().isEmpty())))
            return {{OpenOutcome::Aperto, 0, {}}, std::move(database)};
        if (rc != SQLITE_OK || m_moved)
            return failed(handle, rc != SQLITE_OK ? rc : SQLITE_BUSY);
        if (isCutShort(handle))
            return refused(engineFailure(SQLITE_CORRUPT, QStringLiteral("the file ends within a page")));
        if (mode == Mode::Usual && m_purpose == OpenFor::Use)
            settle(handle);
        return {{OpenOutcome::Aperto, 0, {}}, std::move(database)};
    }

    // A plain archive has no use for a password.
    QByteArray key() const { return m_plain ? QByteArray() : m_password.toUtf8(); }
    void giveKey(sqlite3 *handle) const
    {
        if (const QByteArray given = key(); !given.isEmpty())
            sqlite3_key(handle, given.constData(), int(given.size()));
    }

    OpenedArchive failed(sqlite3 *handle, int rc) const
    {
        // Whether a password that is not given would be right cannot be told of one in use.
        if (((rc & 0xff) == SQLITE_NOTADB || isBusy(rc)) && looksEncrypted())
            return refused(OpenOutcome::PasswordRichiesta, FailureNumber::LoginRefused,
                           m_password.isEmpty() ? QStringLiteral("L'archivio è protetto da una password")
                                                : QStringLiteral("Password non valida"));
        if ((rc & 0xff) == SQLITE_NOTADB && m_plain)
            return refused(engineFailure(SQLITE_CORRUPT, QString::fromUtf8(sqlite3_errmsg(handle))));
        return refused(engineFailure(handle, rc));
    }

    static bool isBusy(int rc) { return (rc & 0xff) == SQLITE_BUSY; }
    bool looksEncrypted() const { return !m_plain && m_size >= kEncryptedPage && m_size % kEncryptedPage == 0; }

    QString m_path;
    QString m_password;
    OpenFor m_purpose;
    qint64 m_size = 0;
    bool m_journalWasEmpty = true;
    bool m_plain = false;
    bool m_moved = false;
    int m_lastCode = SQLITE_OK;
};

} // namespace

OpenedArchive openArchive(const QString &path, const QString &password, OpenFor purpose)
{
    try {
        return Opening(path, password, purpose).run();
    } catch (const Failure &failure) {
        return refused(failure);
    }
}
