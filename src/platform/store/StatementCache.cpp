#include "platform/store/StatementCache.h"

#include "platform/Failure.h"

#include <optional>
#include <utility>

namespace {

constexpr std::size_t kKept = 128;

PreparedStatement prepareAsTold(sqlite3 *handle, const QString &statement)
{
    PreparedStatement prepared;
    prepared.key = statement;
    prepared.translation = translateJet(statement);
    prepared.statement = Statement(handle, prepared.translation.statement.toUtf8(), statement);
    return prepared;
}

// An expression without a name is named by its own text, in which a parameter would show.
bool namesShowParameters(const Statement &statement)
{
    for (int column = 0; column < statement.columnCount(); ++column)
        if (QByteArrayView(sqlite3_column_name(statement.handle(), column)).contains('?'))
            return true;
    return false;
}

// Nothing where the statement does not work with parameters; then it is prepared as it was told, so that a failure
// speaks of the statement's own text.
std::optional<PreparedStatement> prepareLifted(sqlite3 *handle, const LiftedLiterals &lifted)
{
    if (lifted.values.empty())
        return std::nullopt;
    try {
        PreparedStatement prepared;
        prepared.key = lifted.shape;
        prepared.translation = translateJet(lifted.shape);
        prepared.translation.statement = marksToParameters(prepared.translation.statement);
        prepared.statement = Statement(handle, prepared.translation.statement.toUtf8());
        if (namesShowParameters(prepared.statement))
            return std::nullopt;
        return prepared;
    } catch (const Failure &) {
        return std::nullopt;
    }
}

void bindValues(PreparedStatement &prepared, std::vector<QByteArray> &&values)
{
    prepared.values = std::move(values);
    const int count = sqlite3_bind_parameter_count(prepared.statement.handle());
    for (int i = 0; i < count && std::size_t(i) < prepared.values.size(); ++i)
        prepared.statement.bind(i + 1, QByteArrayView(prepared.values[std::size_t(i)]));
}

} // namespace

PreparedStatement *StatementCache::find(const QString &key)
{
    const auto known = m_byKey.constFind(key);
    if (known == m_byKey.constEnd())
        return nullptr;
    m_recent.splice(m_recent.begin(), m_recent, *known);
    return &m_recent.front();
}

PreparedStatement &StatementCache::keep(PreparedStatement &&prepared)
{
    m_recent.push_front(std::move(prepared));
    m_byKey.insert(m_recent.front().key, m_recent.begin());
    if (m_recent.size() > kKept) {
        m_byKey.remove(m_recent.back().key);
        m_recent.pop_back();
    }
    return m_recent.front();
}

PreparedStatement &StatementCache::prepare(sqlite3 *handle, const QString &statement)
{
    LiftedLiterals lifted = liftLiterals(statement);
    PreparedStatement *ready = find(lifted.shape);
    if (ready == nullptr) {
        if (PreparedStatement *asTold = find(statement))
            return *asTold;
        std::optional<PreparedStatement> prepared = prepareLifted(handle, lifted);
        if (!prepared)
            return keep(prepareAsTold(handle, statement));
        ready = &keep(std::move(*prepared));
    }
    bindValues(*ready, std::move(lifted.values));
    return *ready;
}

void StatementCache::clear()
{
    m_byKey.clear();
    m_recent.clear();
}
