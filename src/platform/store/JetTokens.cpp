#include "platform/store/JetTokens.h"

#include "platform/Failure.h"

namespace {

bool startsWord(QChar c)
{
    return c.isLetter() || c == '_';
}

bool continuesWord(QChar c)
{
    return c.isLetterOrNumber() || c == '_';
}

[[noreturn]] void failOpen(const char *what, QStringView statement)
{
    throw Failure(FailureNumber::Engine, QStringLiteral("Errore di sintassi nell'istruzione: manca ") + what,
                  statement.toString());
}

// Where a literal that opens at `start` ends, behind its closing sign; a doubled apostrophe stands for one.
qsizetype literalEnd(QStringView statement, qsizetype start, QChar close, const char *what)
{
    for (qsizetype i = start + 1; i < statement.size(); ++i) {
        if (statement[i] != close)
            continue;
        if (close == '\'' && i + 1 < statement.size() && statement[i + 1] == close)
            ++i;
        else
            return i + 1;
    }
    failOpen(what, statement);
}

qsizetype wordEnd(QStringView statement, qsizetype i)
{
    while (i < statement.size() && continuesWord(statement[i]))
        ++i;
    return i;
}

qsizetype numberEnd(QStringView statement, qsizetype i)
{
    const auto digits = [&] {
        while (i < statement.size() && statement[i].isDigit())
            ++i;
    };
    digits();
    if (i < statement.size() && statement[i] == '.') {
        ++i;
        digits();
    }
    return i;
}

qsizetype signEnd(QStringView statement, qsizetype i)
{
    const QStringView two = statement.mid(i, 2);
    return i + (two == u"<>" || two == u"<=" || two == u">=" ? 2 : 1);
}

struct Piece
{
    JetTokenKind kind;
    qsizetype end;
};

Piece pieceAt(QStringView statement, qsizetype i)
{
    const QChar c = statement[i];
    if (c == '\'')
        return {JetTokenKind::Text, literalEnd(statement, i, '\'', "un apice")};
    if (c == '#')
        return {JetTokenKind::Date, literalEnd(statement, i, '#', "un segno # di chiusura")};
    if (c == '[')
        return {JetTokenKind::Bracket, literalEnd(statement, i, ']', "una parentesi quadra")};
    if (c.isDigit())
        return {JetTokenKind::Number, numberEnd(statement, i)};
    if (startsWord(c))
        return {JetTokenKind::Word, wordEnd(statement, i)};
    return {JetTokenKind::Sign, signEnd(statement, i)};
}

} // namespace

bool JetToken::is(const char *word) const
{
    return (kind == JetTokenKind::Word || kind == JetTokenKind::Sign) &&
           text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
}

std::vector<JetToken> jetTokens(QStringView statement)
{
    std::vector<JetToken> tokens;
    tokens.reserve(size_t(statement.size() / 4));
    int depth = 0;
    bool blank = false;
    for (qsizetype i = 0; i < statement.size();) {
        if (statement[i].isSpace()) {
            blank = true;
            ++i;
            continue;
        }
        const Piece piece = pieceAt(statement, i);
        const QStringView text = statement.mid(i, piece.end - i);
        if (text == u")")
            --depth;
        tokens.push_back({piece.kind, blank, depth, text.toString()});
        if (text == u"(")
            ++depth;
        blank = false;
        i = piece.end;
    }
    return tokens;
}
