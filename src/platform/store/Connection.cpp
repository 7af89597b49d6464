#include "platform/store/Connection.h"

#include "platform/store/ConnectionPrivate.h"

#include <utility>

Database &Connection::Private::opened() const
{
    if (!database)
        throw Failure::usual(FailureNumber::ConnectionClosed);
    return *database;
}

Connection::Connection() : m_private(std::make_unique<Private>()) {}

Connection::~Connection() = default;

OpenResult Connection::Private::open(const QString &archivePath, OpenedArchive archive)
{
    path = archivePath;
    database = std::move(archive.database);
    return archive.result;
}

OpenResult Connection::Open(const QString &path, const QString &password)
{
    Close();
    return m_private->open(path, openArchive(path, password, OpenFor::Use));
}

OpenResult Connection::OpenForInspection(const QString &path, const QString &password)
{
    Close();
    return m_private->open(path, openArchive(path, password, OpenFor::Inspection));
}

void Connection::Close()
{
    m_private->database.reset();
    m_private->path.clear();
}

bool Connection::isOpen() const
{
    return m_private->database != nullptr;
}

QString Connection::path() const
{
    return m_private->path;
}

qint64 Connection::Execute(const QString &statement)
{
    return m_private->opened().execute(statement);
}

bool Connection::hasTable(const QString &name) const
{
    return m_private->opened().table(name) != nullptr;
}

void Connection::setLockWait(int milliseconds)
{
    sqlite3_busy_timeout(m_private->opened().handle(), milliseconds);
}

GruppoScritture::GruppoScritture(Connection &connection) : m_database(connection.engine().database)
{
    if (const auto database = m_database.lock())
        database->group().enter();
}

GruppoScritture::~GruppoScritture()
{
    const auto database = m_database.lock();
    if (database && !m_closed)
        database->group().leave();
}

void GruppoScritture::commit()
{
    if (const auto database = m_database.lock())
        database->group().commit({});
}

void GruppoScritture::close()
{
    const auto database = m_database.lock();
    if (!database || m_closed)
        return;
    m_closed = true;
    database->group().close();
}
