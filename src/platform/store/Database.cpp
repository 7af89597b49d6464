#include "platform/store/Database.h"

namespace {

bool definesTables(const QString &statement)
{
    const QStringView text = QStringView(statement).trimmed();
    return text.startsWith(u"CREATE", Qt::CaseInsensitive) || text.startsWith(u"DROP", Qt::CaseInsensitive) ||
           text.startsWith(u"ALTER", Qt::CaseInsensitive);
}

} // namespace

Database::Database(sqlite3 *handle, const QByteArray &key) : m_handle(handle), m_key(key), m_group(handle) {}

Database::~Database()
{
    try {
        m_group.commit({});
    } catch (const Failure &) { // NOLINT(bugprone-empty-catch): the archive is closing, and nobody is left to be told
    }
}

PreparedStatement &Database::prepare(const QString &statement)
{
    m_group.throwLateFailure();
    return m_statements.prepare(handle(), statement);
}

qint64 Database::execute(const QString &statement)
{
    PreparedStatement &prepared = prepare(statement);
    if (sqlite3_stmt_readonly(prepared.statement.handle()) != 0) {
        const StatementRun run(prepared.statement);
        while (prepared.statement.step(statement)) {
        }
        return 0;
    }
    const int before = sqlite3_total_changes(handle());
    m_group.run(statement, [&] {
        const StatementRun run(prepared.statement);
        while (prepared.statement.step(statement)) {
        }
    });
    const qint64 changed = sqlite3_total_changes(handle()) - before;
    if (definesTables(prepared.translation.statement))
        forgetTables();
    return changed;
}

const std::shared_ptr<const ResultShape> &Database::shapeOf(PreparedStatement &prepared)
{
    // Another program may have given a table more columns since the statement was prepared.
    if (!prepared.shape || prepared.shape->columns != prepared.statement.columnCount()) {
        if (prepared.shape) {
            m_tables.clear();
            m_writers.clear();
        }
        prepared.shape =
            readShape(prepared.statement, prepared.translation, [this](const QString &name) { return table(name); });
    }
    return prepared.shape;
}

std::shared_ptr<const TableInfo> Database::table(const QString &name)
{
    const QString key = name.toLower();
    const auto known = m_tables.constFind(key);
    if (known != m_tables.constEnd())
        return *known;
    std::shared_ptr<const TableInfo> info = readTableInfo(handle(), name);
    if (info)
        m_tables.insert(key, info);
    return info;
}

RowWriter &Database::writer(const std::shared_ptr<const TableInfo> &table)
{
    std::shared_ptr<RowWriter> &writer = m_writers[table->name];
    if (!writer)
        writer = std::make_shared<RowWriter>(handle(), table);
    return *writer;
}

void Database::forgetTables()
{
    m_statements.clear();
    m_tables.clear();
    m_writers.clear();
}
