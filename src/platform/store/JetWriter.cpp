#include "platform/store/JetWriter.h"

#include "platform/Failure.h"
#include "platform/store/JetDay.h"

#include <algorithm>

namespace {

bool isWhole(QStringView number)
{
    return std::all_of(number.begin(), number.end(), [](QChar sign) { return sign >= u'0' && sign <= u'9'; });
}

} // namespace

JetWriter::JetWriter(const QString &statement, const JetTokens &tokens, const JetToken *keyOwner)
    : m_statement(statement), m_tokens(tokens), m_keyOwner(keyOwner)
{
    m_out.reserve(statement.size() + statement.size() / 4 + 64);
}

void JetWriter::write(JetRange range)
{
    if (range.isEmpty())
        return;
    addBlank();
    for (int at = range.from; at < range.to;) {
        writeToken(at);
        const int next = behindQualifier(at);
        if (m_tokens[at + 1].blankBefore && next < range.to)
            addBlank();
        at = next;
    }
}

void JetWriter::add(QStringView text)
{
    addBlank();
    m_out.append(text);
}

void JetWriter::addBlank()
{
    if (!m_out.isEmpty() && m_out.back() != u' ' && m_out.back() != u'(')
        m_out.append(u' ');
}

void JetWriter::addKeyOf(const JetToken &table)
{
    const bool bracketed = table.kind == JetKind::Name;
    m_out.append(bracketed ? u" [" : u" ").append(table.text).append(bracketed ? u"].rowid" : u".rowid");
}

// Where the next token to be written stands. The left side of an assignment is written without its table.
int JetWriter::behindQualifier(int at) const
{
    const bool assigns = m_place == Place::Assignment && m_outer.isEmpty();
    const bool leftSide = assigns && (m_tokens[at].is(JetWord::Set) || m_tokens[at].is(u','));
    int next = at + 1;
    while (leftSide && m_tokens[next].isName() && m_tokens[next + 1].is(u'.'))
        next += 2;
    return next;
}

void JetWriter::enterPlace(JetWord word)
{
    switch (word) {
    case JetWord::Select:
        m_place = Place::List;
        break;
    case JetWord::Set:
        if (m_tokens.front().is(JetWord::Update))
            m_place = Place::Assignment;
        break;
    case JetWord::From:
    case JetWord::On:
    case JetWord::Where:
    case JetWord::Group:
    case JetWord::Having:
    case JetWord::Order:
        m_place = Place::Condition;
        break;
    default:
        break;
    }
}

void JetWriter::writeToken(int at)
{
    const JetToken &token = m_tokens[at];
    switch (token.kind) {
    case JetKind::Word:
        writeWord(at);
        break;
    case JetKind::Name:
        m_out.append(u'[').append(token.text).append(u']');
        break;
    case JetKind::Number:
        writeNumber(at, token.text);
        break;
    case JetKind::Text:
        writeText(token);
        break;
    case JetKind::Day:
        writeDay(token);
        break;
    case JetKind::Symbol:
        writeSymbol(at);
        break;
    case JetKind::End:
        break;
    }
}

// Whole numbers would be divided as such: 250/100 is 2.5, not 2.
void JetWriter::writeNumber(int at, QStringView number)
{
    m_out.append(number);
    if (at > 0 && m_tokens[at - 1].is(u'/') && isWhole(number))
        m_out.append(u".0");
}

bool JetWriter::isCall(int at) const
{
    return m_tokens[at + 1].is(u'(');
}

// The collation of a column does not reach the result of a function.
bool JetWriter::isComparedTrim(int at) const
{
    const JetWord word = m_tokens[at].word;
    const bool trims = word == JetWord::Trim || word == JetWord::LTrim || word == JetWord::RTrim;
    return trims && m_place == Place::Condition && isCall(at) &&
           !m_tokens[m_tokens[at + 1].match + 1].is(JetWord::Collate);
}

// A column named like a word of the language needs brackets where its table is left out.
void JetWriter::writeName(int at)
{
    const JetToken &token = m_tokens[at];
    const bool lostTable = at > 0 && m_tokens[at - 1].is(u'.') && !m_out.endsWith(u'.');
    if (lostTable && jetWordOf(token.text) != JetWord::None)
        m_out.append(u'[').append(token.text).append(u']');
    else
        m_out.append(token.text);
}

void JetWriter::writeWord(int at)
{
    const JetToken &token = m_tokens[at];
    enterPlace(token.word);
    switch (token.word) {
    case JetWord::True:
        writeNumber(at, at > 0 && isTrueTest(at - 1) ? u"0" : u"1");
        break;
    case JetWord::False:
        writeNumber(at, u"0");
        break;
    case JetWord::Trim:
    case JetWord::LTrim:
    case JetWord::RTrim:
    case JetWord::First:
    case JetWord::Last:
        writeCall(at);
        break;
    default:
        writeName(at);
        break;
    }
}

void JetWriter::writeCall(int at)
{
    const JetToken &token = m_tokens[at];
    const bool picks = token.is(JetWord::First) || token.is(JetWord::Last);
    if (picks && isCall(at) && m_keyOwner != nullptr) {
        m_closings.append({m_tokens[at + 1].match, true});
        m_out.append(token.is(JetWord::First) ? u"jet_first" : u"jet_last");
        return;
    }
    if (isComparedTrim(at)) {
        m_closings.append({m_tokens[at + 1].match, false});
        m_out.append(u'(');
    }
    m_out.append(token.text);
}

// Two literals side by side must not become one.
void JetWriter::keepApart(QStringView next)
{
    if (!m_out.isEmpty() && m_out.back() == next.front())
        m_out.append(u' ');
}

void JetWriter::writeText(const JetToken &token)
{
    keepApart(u"'");
    if (token.text.front() == u'\'') {
        m_out.append(token.text);
        return;
    }
    QString content = token.text.sliced(1, token.text.size() - 2).toString();
    content.replace(QStringLiteral("\"\""), QStringLiteral("\"")).replace(u'\'', QStringLiteral("''"));
    m_out.append(u'\'').append(content).append(u'\'');
}

void JetWriter::writeDay(const JetToken &token)
{
    const QString day = storedDay(token.text);
    if (day.isEmpty())
        throw Failure(FailureNumber::Engine, QStringLiteral("Errore di sintassi nella data #%1#").arg(token.text),
                      m_statement);
    keepApart(u"'");
    m_out.append(u'\'').append(day).append(u'\'');
}

// "= True" is a comparison everywhere but in an assignment.
bool JetWriter::isTrueTest(int at) const
{
    return m_tokens[at].is(u'=') && m_tokens[at + 1].is(JetWord::True) &&
           !(m_place == Place::Assignment && m_outer.isEmpty());
}

void JetWriter::writeSymbol(int at)
{
    const JetToken &token = m_tokens[at];
    if (token.is(u'(')) {
        m_outer.append(m_place);
    } else if (token.is(u')')) {
        closeBracket(at);
        return;
    } else if (isTrueTest(at)) {
        m_out.append(u"<>");
        return;
    }
    // Side by side these would begin a comment of the engine's.
    if (token.is(u'-'))
        keepApart(u"-");
    if (token.is(u'*'))
        keepApart(u"/");
    m_out.append(token.text);
}

void JetWriter::closeBracket(int at)
{
    m_place = m_outer.last();
    m_outer.removeLast();
    if (m_closings.isEmpty() || m_closings.last().bracket != at) {
        m_out.append(u')');
        return;
    }
    const Closing closing = m_closings.last();
    m_closings.removeLast();
    if (closing.asksForKey) {
        m_out.append(u',');
        addKeyOf(*m_keyOwner);
        m_out.append(u')');
    } else {
        m_out.append(u") COLLATE NOCASE)");
    }
}
