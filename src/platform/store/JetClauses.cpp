#include "platform/store/JetClauses.h"

#include <algorithm>

namespace {

// The token behind a round bracket and all it holds, or behind the one token.
int behind(const JetTokens &tokens, int at)
{
    return tokens[at].is(u'(') ? tokens[at].match + 1 : at + 1;
}

int lastToken(const JetTokens &tokens)
{
    return int(tokens.size()) - 1;
}

bool beginsClause(const JetTokens &tokens, int at)
{
    switch (tokens[at].word) {
    case JetWord::From:
    case JetWord::Where:
    case JetWord::Having:
    case JetWord::Limit:
        return true;
    case JetWord::Group:
    case JetWord::Order:
        return tokens[at + 1].is(JetWord::By);
    default:
        return false;
    }
}

// Whether more than the one select goes on here.
bool beginsAnother(JetWord word)
{
    return word == JetWord::Union || word == JetWord::Except || word == JetWord::Intersect || word == JetWord::Select;
}

// Finds the clauses one behind the other.
class ClauseReader
{
public:
    ClauseReader(const JetTokens &tokens, int at) : m_tokens(tokens), m_at(at) {}

    JetClauses read()
    {
        JetClauses clauses;
        const bool distinct = m_tokens[m_at + 1].is(JetWord::Distinct);
        clauses.list = next();
        clauses.from = next(JetWord::From);
        clauses.where = next(JetWord::Where);
        clauses.group = next(JetWord::Group);
        clauses.having = next(JetWord::Having);
        clauses.order = next(JetWord::Order);
        clauses.rest = next(JetWord::Limit);
        clauses.isPlain = m_at == lastToken(m_tokens) && !m_several && !distinct && !clauses.from.isEmpty();
        return clauses;
    }

private:
    JetRange next(JetWord first)
    {
        return beginsClause(m_tokens, m_at) && m_tokens[m_at].is(first) ? next() : JetRange{m_at, m_at};
    }

    JetRange next()
    {
        JetRange clause{m_at, m_at + 1};
        while (clause.to < lastToken(m_tokens) && !beginsClause(m_tokens, clause.to)) {
            m_several = m_several || beginsAnother(m_tokens[clause.to].word);
            clause.to = behind(m_tokens, clause.to);
        }
        m_at = clause.to;
        return clause;
    }

    const JetTokens &m_tokens;
    int m_at;
    bool m_several = false;
};

bool joins(const JetToken &token)
{
    switch (token.word) {
    case JetWord::Inner:
    case JetWord::Left:
    case JetWord::Right:
    case JetWord::Full:
    case JetWord::Outer:
    case JetWord::Cross:
    case JetWord::Natural:
        return true;
    default:
        return false;
    }
}

// Reads "T", "T AS t" or "T t"; gives the name by which the rest calls it, or nothing.
const JetToken *readTable(const JetTokens &tokens, int &at)
{
    const JetToken *name = &tokens[at];
    if (!name->isName() || tokens[at + 1].is(u'.'))
        return nullptr;
    ++at;
    if (tokens[at].is(JetWord::As))
        ++at;
    if (tokens[at].isName())
        name = &tokens[at++];
    return name;
}

// Where the next table of the clause is named.
int nextTable(const JetTokens &tokens, int at, int end)
{
    while (at < end && !tokens[at].is(u',') && !tokens[at].is(JetWord::Join))
        at = behind(tokens, at);
    return at;
}

bool followsTable(const JetTokens &tokens, int at, int end)
{
    return at >= end || tokens[at].is(u',') || tokens[at].is(JetWord::Join) || tokens[at].is(JetWord::On) ||
           tokens[at].is(JetWord::Using) || joins(tokens[at]);
}

// A direction that stands alone is the name of a column.
JetRange withoutDirection(const JetTokens &tokens, JetRange term)
{
    if (term.to - term.from > 1 && (tokens[term.to - 1].is(JetWord::Asc) || tokens[term.to - 1].is(JetWord::Desc)))
        --term.to;
    return term;
}

bool sameToken(const JetToken &one, const JetToken &other)
{
    const bool alike = one.kind == other.kind || (one.isName() && other.isName());
    if (one.kind == JetKind::Text)
        return alike && one.text == other.text;
    return alike && one.text.compare(other.text, Qt::CaseInsensitive) == 0;
}

// The column of "column" or "table.column", not of a call.
bool isColumn(const JetTokens &tokens, JetRange range)
{
    const int size = range.to - range.from;
    if (size == 3)
        return tokens[range.from].isName() && tokens[range.from + 1].is(u'.') && tokens[range.from + 2].isName();
    return size == 1 && tokens[range.from].isName();
}

bool sameColumn(const JetTokens &tokens, JetRange one, JetRange other)
{
    const bool bothQualified = one.to - one.from == 3 && other.to - other.from == 3;
    return sameToken(tokens[one.to - 1], tokens[other.to - 1]) &&
           (!bothQualified || sameToken(tokens[one.from], tokens[other.from]));
}

JetRange columnAt(const JetTokens &tokens, int at)
{
    return {at, tokens[at + 1].is(u'.') ? at + 3 : at + 1};
}

bool mayStandBeforeGrouping(const JetToken &token)
{
    switch (token.kind) {
    case JetKind::Number:
    case JetKind::Text:
    case JetKind::Day:
    case JetKind::Symbol:
        return true;
    case JetKind::Word:
        break;
    default:
        return false;
    }
    switch (token.word) {
    case JetWord::And:
    case JetWord::Or:
    case JetWord::Not:
    case JetWord::Is:
    case JetWord::Null:
    case JetWord::Between:
    case JetWord::True:
    case JetWord::False:
        return true;
    default:
        return false;
    }
}

bool isAggregate(JetWord word)
{
    switch (word) {
    case JetWord::Avg:
    case JetWord::Count:
    case JetWord::First:
    case JetWord::JetFirst:
    case JetWord::JetLast:
    case JetWord::Last:
    case JetWord::Max:
    case JetWord::Min:
    case JetWord::Sum:
        return true;
    default:
        return false;
    }
}

// Looks into brackets, but not into selects within them: these have calls of their own.
template <typename Predicate>
bool callsAny(const JetTokens &tokens, JetRange range, Predicate isOne)
{
    for (int at = range.from; at < range.to; ++at) {
        if (!tokens[at].is(u'('))
            continue;
        if (at > range.from && isOne(tokens[at - 1].word))
            return true;
        if (tokens[at + 1].is(JetWord::Select))
            at = tokens[at].match;
    }
    return false;
}

} // namespace

JetClauses readClauses(const JetTokens &tokens, int at)
{
    return ClauseReader(tokens, at).read();
}

JetTables readTables(const JetTokens &tokens, JetRange from)
{
    JetTables tables;
    int at = from.from;
    while (at < from.to) {
        ++at; // FROM, JOIN or a comma
        const JetToken *table = readTable(tokens, at);
        if (table == nullptr || !followsTable(tokens, at, from.to))
            return {};
        tables.append(table);
        at = nextTable(tokens, at, from.to);
    }
    return tables;
}

JetRanges readTerms(const JetTokens &tokens, JetRange clause)
{
    JetRanges terms;
    const auto add = [&](int from, int to) {
        if (from < to)
            terms.append(withoutDirection(tokens, {from, to}));
    };
    int begin = clause.from + 2;
    for (int at = begin; at < clause.to; at = behind(tokens, at)) {
        if (!tokens[at].is(u','))
            continue;
        add(begin, at);
        begin = at + 1;
    }
    add(begin, clause.to);
    return terms;
}

bool sameExpression(const JetTokens &tokens, JetRange one, JetRange other)
{
    if (isColumn(tokens, one) && isColumn(tokens, other))
        return sameColumn(tokens, one, other);
    return std::equal(tokens.begin() + one.from, tokens.begin() + one.to, tokens.begin() + other.from,
                      tokens.begin() + other.to, sameToken);
}

bool comparesOnly(const JetTokens &tokens, JetRange having, const JetRanges &keys)
{
    for (int at = having.from + 1; at < having.to;) {
        if (!tokens[at].isName()) {
            if (!mayStandBeforeGrouping(tokens[at]))
                return false;
            ++at;
            continue;
        }
        const JetRange column = columnAt(tokens, at);
        const bool isKey = isColumn(tokens, column) && !tokens[column.to].is(u'(') &&
                           std::any_of(keys.begin(), keys.end(), [&](JetRange key) {
                               return isColumn(tokens, key) && sameColumn(tokens, column, key);
                           });
        if (!isKey)
            return false;
        at = column.to;
    }
    return having.to - having.from > 1;
}

bool callsAggregate(const JetTokens &tokens, JetRange range)
{
    return callsAny(tokens, range, isAggregate);
}

bool picksRows(const JetTokens &tokens, JetRange range)
{
    return callsAny(tokens, range, [](JetWord word) { return word == JetWord::First || word == JetWord::Last; });
}
