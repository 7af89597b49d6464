#include "platform/store/JetTranslator.h"

#include "platform/Failure.h"
#include "platform/store/JetClauses.h"
#include "platform/store/JetTokens.h"
#include "platform/store/JetWriter.h"

#include <algorithm>
#include <utility>

namespace {

constexpr QStringView kKeyAlias = u"jet_key";

enum class Key
{
    Added,
    LeftOut
};

// What the rows are grouped by. GROUP BY NULL, which makes one group of all rows, names nothing.
JetRanges readKeys(const JetTokens &tokens, JetRange group)
{
    JetRanges keys = readTerms(tokens, group);
    keys.removeIf([&](JetRange key) { return key.to - key.from == 1 && tokens[key.from].is(JetWord::Null); });
    return keys;
}

// A select whose clauses are known, written clause by clause.
class SelectWriter
{
public:
    SelectWriter(const QString &statement, const JetTokens &tokens, const JetClauses &clauses)
        : m_tokens(tokens), m_clauses(clauses), m_tables(readTables(tokens, clauses.from)),
          m_keys(readKeys(tokens, clauses.group)),
          m_grouped(!clauses.group.isEmpty() || callsAggregate(tokens, clauses.list)),
          m_writer(statement, tokens, m_tables.isEmpty() ? nullptr : m_tables.front())
    {
    }

    bool isUpdatable() const { return !m_grouped && m_tables.size() == 1; }
    QString table() const { return m_tokens[m_clauses.from.from + 1].text.toString(); }

    // `before` is what stands in front of the select.
    QString write(JetRange before, Key key)
    {
        m_writer.write(before);
        m_writer.write(m_clauses.list);
        if (key == Key::Added && isUpdatable())
            writeKey();
        m_writer.write(m_clauses.from);
        const bool moves = !m_keys.isEmpty() && comparesOnly(m_tokens, m_clauses.having, m_keys);
        writeWhere(moves ? m_clauses.having : JetRange());
        writeGroup();
        if (!moves)
            m_writer.write(m_clauses.having);
        writeOrder();
        m_writer.write(m_clauses.rest);
        return m_writer.take();
    }

private:
    bool isKeyOf(const JetToken &table, JetRange range) const
    {
        return range.to - range.from == 3 && m_tokens[range.from].isName() && m_tokens[range.from].text == table.text &&
               m_tokens[range.from + 1].is(u'.') && m_tokens[range.from + 2].text == u"rowid";
    }

    bool hasKey() const
    {
        const int end = m_clauses.list.to;
        return end - m_clauses.list.from > 5 && m_tokens[end - 1].text == kKeyAlias &&
               m_tokens[end - 2].is(JetWord::As) && isKeyOf(*m_tables.front(), {end - 5, end - 2});
    }

    void writeKey()
    {
        if (hasKey())
            return;
        m_writer.append(u",");
        m_writer.addKeyOf(*m_tables.front());
        m_writer.add(u"AS");
        m_writer.add(kKeyAlias);
    }

    void writeWhere(JetRange having)
    {
        if (having.isEmpty()) {
            m_writer.write(m_clauses.where);
            return;
        }
        having.from += 1;
        m_writer.add(u"WHERE");
        if (m_clauses.where.isEmpty()) {
            m_writer.write(having);
            return;
        }
        writeBracketed({m_clauses.where.from + 1, m_clauses.where.to});
        m_writer.add(u"AND");
        writeBracketed(having);
    }

    void writeBracketed(JetRange condition)
    {
        const bool bracketed = m_tokens[condition.from].match == condition.to - 1;
        if (!bracketed)
            m_writer.add(u"(");
        m_writer.write(condition);
        if (!bracketed)
            m_writer.append(u")");
    }

    // First and Last of a table without rows give no row.
    void writeGroup()
    {
        m_writer.write(m_clauses.group);
        if (m_clauses.group.isEmpty() && !m_tables.isEmpty() && picksRows(m_tokens, m_clauses.list))
            m_writer.add(u"GROUP BY NULL");
    }

    void writeOrder()
    {
        m_writer.write(m_clauses.order);
        const JetRanges terms = readTerms(m_tokens, m_clauses.order);
        m_ordered = !m_clauses.order.isEmpty();
        if (m_grouped)
            orderByKeys(terms);
        else
            orderByRows(terms);
    }

    void beginTerm()
    {
        if (m_ordered)
            m_writer.append(u",");
        else
            m_writer.add(u"ORDER BY");
        m_ordered = true;
    }

    void orderByKeys(const JetRanges &terms)
    {
        JetRanges named = terms;
        for (const JetRange key : m_keys) {
            const auto isSame = [&](JetRange term) { return sameExpression(m_tokens, key, term); };
            if (std::any_of(named.begin(), named.end(), isSame))
                continue;
            beginTerm();
            m_writer.write(key);
            named.append(key);
        }
    }

    void orderByRows(const JetRanges &terms)
    {
        for (const JetToken *table : m_tables) {
            const auto isSame = [&](JetRange term) { return isKeyOf(*table, term); };
            if (std::any_of(terms.begin(), terms.end(), isSame))
                continue;
            beginTerm();
            m_writer.addKeyOf(*table);
        }
    }

    const JetTokens &m_tokens;
    const JetClauses &m_clauses;
    JetTables m_tables;
    JetRanges m_keys;
    bool m_grouped;
    bool m_ordered = false;
    JetWriter m_writer;
};

JetRange allOf(const JetTokens &tokens)
{
    return {0, int(tokens.size()) - 1};
}

QString writeAll(const QString &statement, const JetTokens &tokens)
{
    JetWriter writer(statement, tokens);
    writer.write(allOf(tokens));
    return writer.take();
}

// SELECT * FROM [word], as an opening by name is written.
bool isOpening(const JetTokens &tokens)
{
    return tokens.size() == 5 && tokens[1].is(u'*') && tokens[2].is(JetWord::From) && tokens[3].kind == JetKind::Name;
}

Translation opening(const JetToken &name)
{
    return {Translation::Kind::Select, QStringLiteral("SELECT * FROM [%1]").arg(name.text), name.text.toString(),
            false};
}

Translation translateSelect(const QString &statement, const JetTokens &tokens)
{
    if (isOpening(tokens))
        return opening(tokens[3]);
    const JetClauses clauses = readClauses(tokens, 0);
    if (!clauses.isPlain)
        return {Translation::Kind::Select, writeAll(statement, tokens), {}, false};
    SelectWriter select(statement, tokens, clauses);
    Translation translation{Translation::Kind::Select, {}, {}, select.isUpdatable()};
    if (select.isUpdatable())
        translation.table = select.table();
    translation.statement = select.write({}, Key::Added);
    return translation;
}

// DELETE <columns> FROM: the columns say nothing.
QString translateDelete(const QString &statement, const JetTokens &tokens)
{
    JetRange rest{1, int(tokens.size()) - 1};
    while (rest.from < rest.to && !tokens[rest.from].is(JetWord::From))
        rest.from = tokens[rest.from].is(u'(') ? tokens[rest.from].match + 1 : rest.from + 1;
    if (rest.isEmpty())
        rest.from = 1;
    JetWriter writer(statement, tokens);
    writer.write({0, 1});
    writer.write(rest);
    return writer.take();
}

// CREATE VIEW name AS SELECT: a stored query keeps to the columns it names.
QString translateCreate(const QString &statement, const JetTokens &tokens)
{
    const bool isView =
        tokens.size() > 5 && tokens[1].is(JetWord::View) && tokens[3].is(JetWord::As) && tokens[4].is(JetWord::Select);
    const JetClauses clauses = isView ? readClauses(tokens, 4) : JetClauses();
    if (!clauses.isPlain)
        return writeAll(statement, tokens);
    return SelectWriter(statement, tokens, clauses).write({0, 4}, Key::LeftOut);
}

Translation action(const QString &statement)
{
    return {Translation::Kind::Action, statement, {}, false};
}

} // namespace

Translation translateJet(const QString &statement)
{
    const JetTokens tokens = readJetTokens(statement);
    if (tokens.size() == 1)
        throw Failure(FailureNumber::Engine, QStringLiteral("L'istruzione è vuota"), statement);
    if (tokens.size() == 2 && (tokens[0].kind == JetKind::Word || tokens[0].kind == JetKind::Name))
        return opening(tokens[0]);
    switch (tokens[0].word) {
    case JetWord::Select:
        return translateSelect(statement, tokens);
    case JetWord::Delete:
        return action(translateDelete(statement, tokens));
    case JetWord::Create:
        return action(translateCreate(statement, tokens));
    default:
        return action(writeAll(statement, tokens));
    }
}
