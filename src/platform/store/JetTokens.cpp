#include "platform/store/JetTokens.h"

#include "platform/Failure.h"

#include <array>
#include <span>

namespace {

struct Known
{
    QLatin1String text;
    JetWord word;
};

// The words of each length from 2 to 9 letters.
constexpr std::array k2{Known{QLatin1String("as"), JetWord::As}, Known{QLatin1String("by"), JetWord::By},
                        Known{QLatin1String("or"), JetWord::Or}, Known{QLatin1String("on"), JetWord::On},
                        Known{QLatin1String("is"), JetWord::Is}, Known{QLatin1String("in"), JetWord::In}};
constexpr std::array k3{Known{QLatin1String("and"), JetWord::And}, Known{QLatin1String("sum"), JetWord::Sum},
                        Known{QLatin1String("not"), JetWord::Not}, Known{QLatin1String("set"), JetWord::Set},
                        Known{QLatin1String("min"), JetWord::Min}, Known{QLatin1String("max"), JetWord::Max},
                        Known{QLatin1String("avg"), JetWord::Avg}, Known{QLatin1String("asc"), JetWord::Asc}};
constexpr std::array k4{Known{QLatin1String("from"), JetWord::From}, Known{QLatin1String("desc"), JetWord::Desc},
                        Known{QLatin1String("true"), JetWord::True}, Known{QLatin1String("trim"), JetWord::Trim},
                        Known{QLatin1String("last"), JetWord::Last}, Known{QLatin1String("null"), JetWord::Null},
                        Known{QLatin1String("like"), JetWord::Like}, Known{QLatin1String("join"), JetWord::Join},
                        Known{QLatin1String("left"), JetWord::Left}, Known{QLatin1String("full"), JetWord::Full},
                        Known{QLatin1String("view"), JetWord::View}};
constexpr std::array k5{Known{QLatin1String("where"), JetWord::Where}, Known{QLatin1String("order"), JetWord::Order},
                        Known{QLatin1String("group"), JetWord::Group}, Known{QLatin1String("count"), JetWord::Count},
                        Known{QLatin1String("first"), JetWord::First}, Known{QLatin1String("false"), JetWord::False},
                        Known{QLatin1String("inner"), JetWord::Inner}, Known{QLatin1String("outer"), JetWord::Outer},
                        Known{QLatin1String("cross"), JetWord::Cross}, Known{QLatin1String("right"), JetWord::Right},
                        Known{QLatin1String("union"), JetWord::Union}, Known{QLatin1String("limit"), JetWord::Limit},
                        Known{QLatin1String("using"), JetWord::Using}, Known{QLatin1String("ltrim"), JetWord::LTrim},
                        Known{QLatin1String("rtrim"), JetWord::RTrim}};
constexpr std::array k6{
    Known{QLatin1String("select"), JetWord::Select}, Known{QLatin1String("having"), JetWord::Having},
    Known{QLatin1String("delete"), JetWord::Delete}, Known{QLatin1String("update"), JetWord::Update},
    Known{QLatin1String("create"), JetWord::Create}, Known{QLatin1String("except"), JetWord::Except}};
constexpr std::array k7{Known{QLatin1String("between"), JetWord::Between},
                        Known{QLatin1String("collate"), JetWord::Collate},
                        Known{QLatin1String("natural"), JetWord::Natural}};
constexpr std::array k8{Known{QLatin1String("distinct"), JetWord::Distinct},
                        Known{QLatin1String("jet_last"), JetWord::JetLast}};
constexpr std::array k9{Known{QLatin1String("intersect"), JetWord::Intersect},
                        Known{QLatin1String("jet_first"), JetWord::JetFirst}};

std::span<const Known> wordsOfLength(qsizetype length)
{
    switch (length) {
    case 2:
        return k2;
    case 3:
        return k3;
    case 4:
        return k4;
    case 5:
        return k5;
    case 6:
        return k6;
    case 7:
        return k7;
    case 8:
        return k8;
    case 9:
        return k9;
    default:
        return {};
    }
}

char16_t lowered(char16_t sign)
{
    return sign >= u'A' && sign <= u'Z' ? char16_t(sign + 32) : sign;
}

bool sameWord(QStringView text, QLatin1String word)
{
    const char16_t *signs = text.utf16();
    for (qsizetype i = 0; i < text.size(); ++i)
        if (lowered(signs[i]) != char16_t(word[i].unicode()))
            return false;
    return true;
}

bool isBlank(char16_t sign)
{
    return sign == u' ' || (sign >= u'\t' && sign <= u'\r');
}

bool isDigit(char16_t sign)
{
    return sign >= u'0' && sign <= u'9';
}

// Letters of every tongue count, as a name may hold them.
bool isWordSign(char16_t sign)
{
    return (lowered(sign) >= u'a' && lowered(sign) <= u'z') || isDigit(sign) || sign == u'_' || sign >= 0x80;
}

class Reader
{
public:
    explicit Reader(const QString &statement)
        : m_statement(statement), m_at(reinterpret_cast<const char16_t *>(statement.utf16())),
          m_end(m_at + statement.size())
    {
    }

    JetTokens read()
    {
        while (skipBlanks(), m_at != m_end && *m_at != u';')
            readToken();
        if (m_at != m_end)
            checkNothingFollows();
        if (!m_open.isEmpty())
            fail(QStringLiteral("manca una parentesi tonda"));
        if (followsPoint())
            failAtPoint();
        m_tokens.append(JetToken());
        return std::move(m_tokens);
    }

private:
    [[noreturn]] void fail(const QString &detail) const
    {
        throw Failure(FailureNumber::Engine, QStringLiteral("Errore di sintassi nell'istruzione: ") + detail,
                      m_statement);
    }

    void skipBlanks()
    {
        m_blank = m_at != m_end && isBlank(*m_at);
        while (m_at != m_end && isBlank(*m_at))
            ++m_at;
    }

    void checkNothingFollows()
    {
        ++m_at;
        skipBlanks();
        if (m_at != m_end)
            fail(QStringLiteral("c'è altro testo dopo la fine"));
    }

    void readToken()
    {
        const char16_t sign = *m_at;
        if (sign == u'\'' || sign == u'"')
            readText(sign);
        else if (sign == u'#')
            add(JetKind::Day, inside(u'#', QStringLiteral("manca il segno # che chiude una data")));
        else if (sign == u'[')
            readName();
        else if (isDigit(sign) || (sign == u'.' && m_at + 1 != m_end && isDigit(m_at[1]) && !followsName()))
            readNumber();
        else if (isWordSign(sign))
            readWord();
        else
            readSymbol();
    }

    // A point stands between names; behind it also the star of "T.*".
    [[noreturn]] void failAtPoint() const { fail(QStringLiteral("un punto è fuori posto")); }

    JetToken &add(JetKind kind, QStringView text)
    {
        if (followsPoint() && kind != JetKind::Word && kind != JetKind::Name && text != u"*")
            failAtPoint();
        JetToken token;
        token.text = text;
        token.kind = kind;
        token.blankBefore = m_blank;
        m_tokens.append(token);
        return m_tokens.last();
    }

    QStringView taken(const char16_t *from) const { return QStringView(from, m_at); }

    bool followsName() const { return !m_blank && !m_tokens.isEmpty() && m_tokens.last().isName(); }

    bool followsPoint() const { return !m_tokens.isEmpty() && m_tokens.last().is(u'.'); }

    // A doubled quote is the quote itself.
    void readText(char16_t quote)
    {
        const char16_t *const from = m_at++;
        while (m_at != m_end) {
            if (*m_at++ != quote)
                continue;
            if (m_at == m_end || *m_at != quote) {
                add(JetKind::Text, taken(from));
                return;
            }
            ++m_at;
        }
        fail(quote == u'\'' ? QStringLiteral("un nome contiene un apostrofo ('): scrivere ’ al suo posto")
                            : QStringLiteral("mancano le virgolette"));
    }

    QStringView inside(char16_t close, const QString &whereOpen)
    {
        const char16_t *const from = ++m_at;
        while (m_at != m_end && *m_at != close)
            ++m_at;
        if (m_at == m_end)
            fail(whereOpen);
        return {from, m_at++};
    }

    void readName()
    {
        const QStringView name = inside(u']', QStringLiteral("manca una parentesi quadra"));
        if (!name.contains(u'.') || name.startsWith(u'.') || name.endsWith(u'.') || name.contains(u"..")) {
            add(JetKind::Name, name);
            return;
        }
        qsizetype from = 0;
        for (qsizetype point = name.indexOf(u'.'); point >= 0; point = name.indexOf(u'.', from)) {
            add(JetKind::Name, name.sliced(from, point - from));
            m_blank = false;
            add(JetKind::Symbol, name.sliced(point, 1));
            from = point + 1;
        }
        add(JetKind::Name, name.sliced(from));
    }

    void skipDigits()
    {
        while (m_at != m_end && isDigit(*m_at))
            ++m_at;
    }

    void readNumber()
    {
        const char16_t *const from = m_at;
        skipDigits();
        if (m_at != m_end && *m_at == u'.') {
            ++m_at;
            skipDigits();
        }
        readExponent();
        add(JetKind::Number, taken(from));
    }

    void readExponent()
    {
        const char16_t *digits = m_at;
        if (digits == m_end || lowered(*digits) != u'e')
            return;
        ++digits;
        if (digits != m_end && (*digits == u'+' || *digits == u'-'))
            ++digits;
        if (digits == m_end || !isDigit(*digits))
            return;
        m_at = digits;
        skipDigits();
    }

    void readWord()
    {
        const char16_t *const from = m_at;
        while (m_at != m_end && isWordSign(*m_at))
            ++m_at;
        const bool column = followsPoint();
        JetToken &token = add(JetKind::Word, taken(from));
        if (!column)
            token.word = jetWordOf(token.text);
    }

    void readSymbol()
    {
        const char16_t *const from = m_at;
        if (!QStringView(u"(),.=<>+-*/&|!%^~").contains(*m_at))
            fail(QStringLiteral("segno inatteso \"%1\"").arg(QChar(*m_at)));
        ++m_at;
        if (m_at != m_end && isPair(*from, *m_at))
            ++m_at;
        const JetToken &token = add(JetKind::Symbol, taken(from));
        if (token.is(u'.'))
            nameBeforePoint();
        else if (token.is(u'('))
            m_open.append(int(m_tokens.size()) - 1);
        else if (token.is(u')'))
            close();
    }

    static bool isPair(char16_t first, char16_t second)
    {
        switch (first) {
        case u'<':
            return second == u'=' || second == u'>' || second == u'<';
        case u'>':
            return second == u'=' || second == u'>';
        case u'!':
        case u'=':
            return second == u'=';
        case u'|':
            return second == u'|';
        default:
            return false;
        }
    }

    void nameBeforePoint()
    {
        if (m_tokens.size() == 1)
            failAtPoint();
        JetToken &name = m_tokens[m_tokens.size() - 2];
        if (name.kind != JetKind::Word && name.kind != JetKind::Name)
            failAtPoint();
        name.word = JetWord::None;
    }

    void close()
    {
        if (m_open.isEmpty())
            fail(QStringLiteral("c'è una parentesi tonda di troppo"));
        const int open = m_open.last();
        m_open.removeLast();
        m_tokens[open].match = int(m_tokens.size()) - 1;
        m_tokens.last().match = open;
    }

    const QString &m_statement;
    const char16_t *m_at;
    const char16_t *const m_end;
    bool m_blank = false;
    JetTokens m_tokens;
    QVarLengthArray<int, 32> m_open;
};

} // namespace

JetWord jetWordOf(QStringView text)
{
    for (const Known &known : wordsOfLength(text.size()))
        if (sameWord(text, known.text))
            return known.word;
    return JetWord::None;
}

JetTokens readJetTokens(const QString &statement)
{
    return Reader(statement).read();
}
