#include "platform/store/Statement.h"

#include "platform/store/EngineFailure.h"

namespace {

bool endsStatement(const char *tail, const char *end)
{
    while (tail != end && (*tail == ' ' || *tail == ';' || *tail == '\t' || *tail == '\r' || *tail == '\n'))
        ++tail;
    return tail == end;
}

} // namespace

Statement::Statement(sqlite3 *handle, QByteArrayView sql, const QString &told)
{
    sqlite3_stmt *prepared = nullptr;
    const char *tail = nullptr;
    const int rc = sqlite3_prepare_v2(handle, sql.data(), int(sql.size()), &prepared, &tail);
    m_handle.reset(prepared);
    if (rc != SQLITE_OK)
        throw engineFailure(handle, rc, told);
    if (prepared == nullptr)
        throw Failure(FailureNumber::Engine, QStringLiteral("L'istruzione è vuota"), told);
    if (!endsStatement(tail, sql.data() + sql.size()))
        throw Failure(FailureNumber::Engine, QStringLiteral("C'è altro testo dopo la fine dell'istruzione"), told);
}

void Statement::bind(int index, qint64 whole)
{
    sqlite3_bind_int64(m_handle.get(), index, whole);
}

void Statement::bind(int index, double number)
{
    sqlite3_bind_double(m_handle.get(), index, number);
}

void Statement::bind(int index, QByteArrayView utf8)
{
    // A null pointer would bind null instead of the empty text.
    sqlite3_bind_text(m_handle.get(), index, utf8.isEmpty() ? "" : utf8.data(), int(utf8.size()), SQLITE_STATIC);
}

void Statement::bindNull(int index)
{
    sqlite3_bind_null(m_handle.get(), index);
}

bool Statement::step(const QString &told)
{
    const int rc = sqlite3_step(m_handle.get());
    if (rc == SQLITE_ROW)
        return true;
    if (rc == SQLITE_DONE)
        return false;
    throw engineFailure(sqlite3_db_handle(m_handle.get()), rc, told);
}

void Statement::reset() noexcept
{
    sqlite3_reset(m_handle.get());
}

QString Statement::columnText(int column) const
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(m_handle.get(), column));
    return QString::fromUtf8(text, sqlite3_column_bytes(m_handle.get(), column));
}

QByteArray quotedName(const QString &name)
{
    return '"' + QString(name).replace(u'"', QStringLiteral("\"\"")).toUtf8() + '"';
}
