#include "platform/store/JetTranslator.h"

#include "platform/Failure.h"
#include "platform/store/JetTokens.h"

#include <QDate>

#include <algorithm>
#include <array>
#include <optional>

namespace {

using Tokens = std::vector<JetToken>;
using Kind = JetTokenKind;

JetToken word(const QString &text, bool blankBefore = true)
{
    return {Kind::Word, blankBefore, 0, text};
}

JetToken sign(const char *text, bool blankBefore = false)
{
    return {Kind::Sign, blankBefore, 0, QString::fromLatin1(text)};
}

Tokens plain(std::initializer_list<const char *> words)
{
    Tokens tokens;
    for (const char *text : words)
        tokens.push_back(word(QString::fromLatin1(text)));
    return tokens;
}

bool isName(const JetToken &token)
{
    return token.kind == Kind::Word || token.kind == Kind::Bracket;
}

QString bareName(const JetToken &token)
{
    return token.kind == Kind::Bracket ? token.text.mid(1, token.text.size() - 2) : token.text;
}

bool isCallOf(const Tokens &tokens, size_t i, const char *function)
{
    return tokens[i].is(function) && i + 1 < tokens.size() && tokens[i + 1].is("(");
}

// The position of the bracket that closes the one at `open`; the end where there is none.
size_t closing(const Tokens &tokens, size_t open)
{
    int depth = 0;
    for (size_t i = open; i < tokens.size(); ++i) {
        if (tokens[i].is("("))
            ++depth;
        else if (tokens[i].is(")") && --depth == 0)
            return i;
    }
    return tokens.size();
}

void insertAt(Tokens &tokens, size_t position, const Tokens &what)
{
    tokens.insert(tokens.begin() + std::ptrdiff_t(position), what.begin(), what.end());
}

void eraseRange(Tokens &tokens, size_t from, size_t to)
{
    tokens.erase(tokens.begin() + std::ptrdiff_t(from), tokens.begin() + std::ptrdiff_t(to));
}

// ---- Literals and names, the same in every statement ----

// Month first; where only the second number can be a month, the day comes first.
QDate dayOfLiteral(const QString &literal)
{
    const QStringList parts = literal.mid(1, literal.size() - 2).split('/');
    if (parts.size() != 3)
        return {};
    std::array<int, 3> numbers{};
    for (size_t i = 0; i < 3; ++i) {
        bool isNumber = false;
        numbers[i] = parts[qsizetype(i)].trimmed().toInt(&isNumber);
        if (!isNumber)
            return {};
    }
    if (numbers[0] > 12 && numbers[1] <= 12)
        std::swap(numbers[0], numbers[1]);
    return QDate(numbers[2], numbers[0], numbers[1]);
}

void rewriteDates(Tokens &tokens, const QString &statement)
{
    for (JetToken &token : tokens) {
        if (token.kind != Kind::Date)
            continue;
        const QDate day = dayOfLiteral(token.text);
        if (!day.isValid())
            throw Failure(FailureNumber::Engine, "Errore di sintassi nella data: " + token.text, statement);
        token.kind = Kind::Text;
        token.text = '\'' + day.toString(Qt::ISODate) + '\'';
    }
}

// [table.column] becomes [table].[column].
void splitBrackets(Tokens &tokens)
{
    for (size_t i = 0; i < tokens.size(); ++i) {
        if (tokens[i].kind != Kind::Bracket)
            continue;
        const qsizetype point = tokens[i].text.indexOf('.');
        if (point < 0)
            continue;
        const QString column = '[' + tokens[i].text.mid(point + 1);
        tokens[i].text = tokens[i].text.left(point) + ']';
        insertAt(tokens, i + 1, {sign("."), {Kind::Bracket, false, tokens[i].depth, column}});
    }
}

// A whole number behind a division would divide integers.
void makeDivisorsReal(Tokens &tokens)
{
    for (size_t i = 1; i < tokens.size(); ++i)
        if (tokens[i].kind == Kind::Number && tokens[i - 1].is("/") && !tokens[i].text.contains('.'))
            tokens[i].text += ".0";
}

// "= True" asks for anything but 0, so that a store that holds -1 answers too; elsewhere True is 1 and False 0.
void rewriteYesNo(Tokens &tokens)
{
    bool assigning = tokens.front().is("UPDATE");
    for (size_t i = 1; i < tokens.size(); ++i) {
        if (tokens[i].is("WHERE"))
            assigning = false;
        const bool isTrue = tokens[i].is("True");
        if ((!isTrue && !tokens[i].is("False")) || tokens[i - 1].is("."))
            continue;
        tokens[i].kind = Kind::Number;
        const bool compared = !assigning && tokens[i - 1].is("=");
        if (isTrue && compared)
            tokens[i - 1].text = "<>";
        tokens[i].text = isTrue && !compared ? "1" : "0";
    }
}

// ---- Clauses of a statement ----

// Where the clauses begin, at bracket depth 0; the end of the statement where one is missing.
struct Clauses
{
    size_t from, where, group, having, order, limit;
};

Clauses clausesOf(const Tokens &tokens)
{
    Clauses clauses{tokens.size(), tokens.size(), tokens.size(), tokens.size(), tokens.size(), tokens.size()};
    const auto note = [&](size_t &place, size_t i, const char *name) {
        if (place == tokens.size() && tokens[i].is(name))
            place = i;
    };
    int depth = 0;
    for (size_t i = 0; i < tokens.size(); ++i) {
        if (tokens[i].is("("))
            ++depth;
        if (tokens[i].is(")"))
            --depth;
        if (depth != 0)
            continue;
        note(clauses.from, i, "FROM");
        note(clauses.where, i, "WHERE");
        note(clauses.group, i, "GROUP");
        note(clauses.having, i, "HAVING");
        note(clauses.order, i, "ORDER");
        note(clauses.limit, i, "LIMIT");
    }
    return clauses;
}

size_t endOfFrom(const Clauses &c)
{
    return std::min({c.where, c.group, c.having, c.order, c.limit});
}

bool isAggregate(const Tokens &tokens, size_t i)
{
    static constexpr std::array names{"Sum", "Count", "Max", "Min", "Avg", "First", "Last", "jet_first", "jet_last"};
    return std::any_of(names.begin(), names.end(), [&](const char *name) { return isCallOf(tokens, i, name); });
}

bool anyAggregate(const Tokens &tokens, size_t from, size_t to)
{
    for (size_t i = from; i < to; ++i)
        if (isAggregate(tokens, i))
            return true;
    return false;
}

// A trimmed text has lost the collation of its column: it is given back wherever it is compared, grouped or ordered.
void collateTrims(Tokens &tokens)
{
    const Clauses clauses = clausesOf(tokens);
    size_t compared = tokens.front().is("SELECT") ? clauses.from : clauses.where;
    for (size_t i = compared; i < tokens.size(); ++i) {
        if (!isCallOf(tokens, i, "Trim"))
            continue;
        const size_t close = closing(tokens, i + 1);
        if (close == tokens.size() || (close + 1 < tokens.size() && tokens[close + 1].is("COLLATE")))
            continue;
        Tokens behind = plain({"COLLATE", "NOCASE"});
        behind.push_back(sign(")"));
        insertAt(tokens, close + 1, behind);
        insertAt(tokens, i, {sign("(", tokens[i].blankBefore)});
        tokens[i + 1].blankBefore = false;
        i = close + 1;
    }
}

// ---- Actions ----

// What stands between DELETE and FROM names nothing that is needed.
void dropDeleteList(Tokens &tokens)
{
    const size_t from = clausesOf(tokens).from;
    if (from != tokens.size())
        eraseRange(tokens, 1, from);
}

// SET T.c = ... becomes SET c = ...
void dropSetQualifiers(Tokens &tokens)
{
    const size_t where = clausesOf(tokens).where;
    size_t end = where;
    int depth = 0;
    for (size_t i = 1; i + 3 < end; ++i) {
        if (tokens[i].is("("))
            ++depth;
        if (tokens[i].is(")"))
            --depth;
        if (depth != 0 || !(tokens[i].is("SET") || tokens[i].is(",")))
            continue;
        if (!isName(tokens[i + 1]) || !tokens[i + 2].is(".") || !isName(tokens[i + 3]))
            continue;
        tokens[i + 3].blankBefore = true;
        eraseRange(tokens, i + 1, i + 3);
        end -= 2;
    }
}

// ---- Selects ----

class Select
{
public:
    explicit Select(Tokens &tokens) : m_tokens(tokens) { m_table = singleTable(); }

    Translation translate()
    {
        keyFirstAndLast();
        moveHavingToWhere();
        collateTrims(m_tokens);
        order();
        Translation translation;
        translation.hasKeyColumn = addKeyColumn();
        if (translation.hasKeyColumn)
            translation.table = bareName(*m_table);
        return translation;
    }

private:
    Clauses clauses() const { return clausesOf(m_tokens); }

    // The one table of the statement, none for a join.
    std::optional<JetToken> singleTable() const
    {
        const Clauses c = clauses();
        if (c.from + 2 != endOfFrom(c) || !isName(m_tokens[c.from + 1]))
            return std::nullopt;
        return m_tokens[c.from + 1];
    }

    Tokens key(bool blankBefore) const
    {
        JetToken table = *m_table;
        table.blankBefore = blankBefore;
        return {table, sign("."), word("rowid", false)};
    }

    bool aggregates() const { return anyAggregate(m_tokens, 1, clauses().from); }
    bool grouped() const { return clauses().group != m_tokens.size(); }
    bool distinct() const { return m_tokens.size() > 1 && m_tokens[1].is("DISTINCT"); }

    // First and Last are those of the lowest and highest key. Over no rows they give no row.
    void keyFirstAndLast()
    {
        if (!m_table)
            return;
        bool found = false;
        for (size_t i = 1; i < m_tokens.size(); ++i) {
            const bool first = isCallOf(m_tokens, i, "First");
            if (!first && !isCallOf(m_tokens, i, "Last"))
                continue;
            m_tokens[i].text = first ? "jet_first" : "jet_last";
            Tokens argument{sign(",")};
            const Tokens rowid = key(true);
            argument.insert(argument.end(), rowid.begin(), rowid.end());
            insertAt(m_tokens, closing(m_tokens, i + 1), argument);
            found = true;
        }
        if (found && !grouped())
            insertAt(m_tokens, std::min(clauses().order, clauses().limit), plain({"GROUP", "BY", "NULL"}));
    }

    Tokens groupKeys() const
    {
        const Clauses c = clauses();
        const size_t end = std::min({c.having, c.order, c.limit});
        if (c.group + 2 > end)
            return {};
        return Tokens(m_tokens.begin() + std::ptrdiff_t(c.group) + 2, m_tokens.begin() + std::ptrdiff_t(end));
    }

    // Whether every name between the two places is that of a group key.
    bool namesOnlyKeys(size_t from, size_t to) const
    {
        QStringList keys;
        const Tokens groupTokens = groupKeys();
        for (const JetToken &token : groupTokens)
            if (isName(token))
                keys << bareName(token).toLower();
        for (size_t i = from; i < to; ++i) {
            const bool qualifier = i + 1 < to && m_tokens[i + 1].is(".");
            const bool joint = m_tokens[i].is("AND") || m_tokens[i].is("OR") || m_tokens[i].is("NOT");
            if (!isName(m_tokens[i]) || qualifier || joint)
                continue;
            if (!keys.contains(bareName(m_tokens[i]).toLower()))
                return false;
        }
        return true;
    }

    // A condition on group keys alone chooses the same groups before they are made, and can use an index there.
    void moveHavingToWhere()
    {
        const Clauses c = clauses();
        const size_t end = std::min(c.order, c.limit);
        if (c.having == m_tokens.size() || !namesOnlyKeys(c.having + 1, end))
            return;
        Tokens condition(m_tokens.begin() + std::ptrdiff_t(c.having) + 1, m_tokens.begin() + std::ptrdiff_t(end));
        condition.front().blankBefore = false;
        condition.insert(condition.begin(), sign("(", true));
        condition.push_back(sign(")"));
        eraseRange(m_tokens, c.having, end);
        if (c.where == m_tokens.size() + (end - c.having)) {
            condition.insert(condition.begin(), word("WHERE"));
            insertAt(m_tokens, c.group, condition);
            return;
        }
        condition.insert(condition.begin(), word("AND"));
        condition.insert(condition.begin(), sign(")"));
        insertAt(m_tokens, c.group, condition);
        m_tokens[c.where + 1].blankBefore = false;
        insertAt(m_tokens, c.where + 1, {sign("(", true)});
    }

    void append(const Tokens &what) { insertAt(m_tokens, clauses().limit, what); }

    // Rows come in key order where no order is told, and ties are broken by key; groups come in the order of theirs.
    void order()
    {
        const Clauses c = clauses();
        const bool ordered = c.order != m_tokens.size();
        if (grouped()) {
            if (!ordered && !groupsByNothing())
                orderBy(groupKeys());
        } else if (m_table && !aggregates() && !distinct()) {
            if (!ordered)
                orderBy(key(true));
            else if (!endsInKey(c))
                appendTie();
        }
    }

    bool groupsByNothing() const
    {
        const Tokens keys = groupKeys();
        return keys.size() == 1 && keys.front().is("NULL");
    }

    void orderBy(Tokens keys)
    {
        if (keys.empty())
            return;
        keys.front().blankBefore = true;
        append(plain({"ORDER", "BY"}));
        append(keys);
    }

    // ID is the key itself.
    bool endsInKey(const Clauses &c) const
    {
        for (size_t i = c.order; i < c.limit; ++i)
            if (isName(m_tokens[i])) {
                const QString name = bareName(m_tokens[i]);
                if (name.compare("ID", Qt::CaseInsensitive) == 0 || name.compare("rowid", Qt::CaseInsensitive) == 0)
                    return true;
            }
        return false;
    }

    void appendTie()
    {
        Tokens tie{sign(",")};
        const Tokens rowid = key(true);
        tie.insert(tie.end(), rowid.begin(), rowid.end());
        append(tie);
    }

    // The hidden key, by which rows of a single table are written.
    bool addKeyColumn()
    {
        if (!m_table || grouped() || aggregates() || distinct())
            return false;
        const size_t from = clauses().from;
        const bool there = m_tokens[from - 1].is("rowid_") && m_tokens[from - 2].is("AS");
        if (!there) {
            Tokens column{sign(",")};
            const Tokens rowid = key(true);
            column.insert(column.end(), rowid.begin(), rowid.end());
            column.push_back(word("AS"));
            column.push_back(word("rowid_"));
            insertAt(m_tokens, from, column);
        }
        return true;
    }

    Tokens &m_tokens;
    std::optional<JetToken> m_table;
};

// ---- The whole ----

// One statement a call; a semicolon may end it.
void dropSemicolon(Tokens &tokens, const QString &statement)
{
    for (size_t i = 0; i < tokens.size(); ++i) {
        if (!tokens[i].is(";"))
            continue;
        if (i + 1 != tokens.size())
            throw Failure(FailureNumber::Engine, "Trovati caratteri dopo la fine dell'istruzione", statement);
        tokens.pop_back();
    }
}

// A table or stored query opened by its name alone.
void openByName(Tokens &tokens)
{
    if (tokens.size() == 1 && isName(tokens.front())) {
        const JetToken name = word('[' + bareName(tokens.front()) + ']');
        tokens = plain({"SELECT", "*", "FROM"});
        tokens.push_back(name);
        tokens.back().kind = Kind::Bracket;
        tokens[1].kind = Kind::Sign;
        tokens.front().blankBefore = false;
    }
}

QString joined(const Tokens &tokens)
{
    QString text;
    for (const JetToken &token : tokens) {
        if (token.blankBefore && !text.isEmpty())
            text += ' ';
        text += token.text;
    }
    return text;
}

} // namespace

Translation translateJet(const QString &statement)
{
    Tokens tokens = jetTokens(statement);
    dropSemicolon(tokens, statement);
    if (tokens.empty())
        throw Failure(FailureNumber::Engine, "L'istruzione è vuota", statement);
    openByName(tokens);
    rewriteDates(tokens, statement);
    splitBrackets(tokens);
    makeDivisorsReal(tokens);
    rewriteYesNo(tokens);

    Translation translation;
    if (tokens.front().is("SELECT")) {
        translation = Select(tokens).translate();
    } else {
        translation.kind = Translation::Kind::Action;
        if (tokens.front().is("DELETE"))
            dropDeleteList(tokens);
        if (tokens.front().is("UPDATE"))
            dropSetQualifiers(tokens);
        collateTrims(tokens);
    }
    translation.statement = joined(tokens);
    return translation;
}
