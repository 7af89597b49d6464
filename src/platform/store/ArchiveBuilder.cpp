#include "platform/store/ArchiveBuilder.h"

#include "platform/store/EngineHandle.h"
#include "platform/store/JetFunctions.h"
#include "platform/store/NewFile.h"
#include "platform/store/Statement.h"

namespace {

// Binds one value; the engine takes copies of texts and bytes.
struct Binder
{
    sqlite3_stmt *statement;
    int index;

    int operator()(std::monostate) const { return sqlite3_bind_null(statement, index); }
    int operator()(qint64 whole) const { return sqlite3_bind_int64(statement, index, whole); }
    int operator()(double number) const { return sqlite3_bind_double(statement, index, number); }
    int operator()(const QString &text) const
    {
        const QByteArray utf8 = text.toUtf8();
        return sqlite3_bind_text64(statement, index, utf8.constData(), sqlite3_uint64(utf8.size()), SQLITE_TRANSIENT,
                                   SQLITE_UTF8);
    }
    int operator()(const QByteArray &bytes) const
    {
        return sqlite3_bind_blob64(statement, index, bytes.constData(), sqlite3_uint64(bytes.size()), SQLITE_TRANSIENT);
    }
};

QByteArray insertion(const QString &table, const QStringList &columns)
{
    QByteArrayList names;
    QByteArrayList places;
    for (const QString &column : columns) {
        names += quotedName(column);
        places += "?";
    }
    return "INSERT INTO " + quotedName(table) + " (" + names.join(", ") + ") VALUES (" + places.join(", ") + ")";
}

} // namespace

struct ArchiveBuilder::Private
{
    Private(const QString &path, const QString &password) : file(path), handle(openEngine(path, password.toUtf8())) {}

    void run(const QByteArray &script) const { runScript(handle.get(), script); }

    NewFile file; // outlives the handle
    EngineHandle handle;
    Statement insert;
};

ArchiveBuilder::ArchiveBuilder(const QString &path, const QString &password)
    : m_private(std::make_unique<Private>(path, password))
{
    teachEngine(m_private->handle.get());
    m_private->run("BEGIN");
}

ArchiveBuilder::~ArchiveBuilder() = default;

void ArchiveBuilder::run(const QString &script)
{
    m_private->run(script.toUtf8());
}

void ArchiveBuilder::startRows(const QString &table, const QStringList &columns)
{
    m_private->insert = Statement(m_private->handle.get(), insertion(table, columns));
}

void ArchiveBuilder::addRow(const std::vector<StoredValue> &values)
{
    Statement &insert = m_private->insert;
    const StatementRun run(insert);
    for (std::size_t i = 0; i < values.size(); ++i)
        checkEngine(m_private->handle.get(), std::visit(Binder{insert.handle(), int(i) + 1}, values[i]));
    insert.step();
}

void ArchiveBuilder::finish()
{
    m_private->insert = Statement();
    m_private->run("COMMIT");
    m_private->handle.reset();
    m_private->file.keep();
}
