#include "platform/store/LiftedLiterals.h"

namespace {

// Stands in a mark '<sign>12'; no text that a person types holds it.
constexpr QChar kMark(0xE000);

// The index behind the literal, date or bracketed name that starts at `from`; -1 where it is not closed.
qsizetype behind(const QString &text, qsizetype from, QChar close)
{
    const qsizetype end = text.indexOf(close, from + 1);
    return end < 0 ? -1 : end + 1;
}

// The same for a text literal, in which a doubled sign is the sign itself.
qsizetype behindLiteral(const QString &text, qsizetype from, QChar quote)
{
    for (qsizetype at = from + 1; at < text.size(); ++at) {
        if (text[at] != quote)
            continue;
        if (at + 1 == text.size() || text[at + 1] != quote)
            return at + 1;
        ++at;
    }
    return -1;
}

qsizetype behindToken(const QString &text, qsizetype from)
{
    switch (text[from].unicode()) {
    case u'"':
        return behindLiteral(text, from, u'"');
    case u'[':
        return behind(text, from, u']');
    case u'#':
        return behind(text, from, u'#');
    default:
        return from + 1;
    }
}

QString literalContent(QStringView literal)
{
    return literal.sliced(1, literal.size() - 2).toString().replace(QStringLiteral("''"), QStringLiteral("'"));
}

} // namespace

LiftedLiterals liftLiterals(const QString &statement)
{
    LiftedLiterals lifted;
    if (statement.contains(kMark))
        return {statement, {}};
    lifted.shape.reserve(statement.size());
    for (qsizetype at = 0; at < statement.size();) {
        const bool literal = statement[at] == u'\'';
        const qsizetype next = literal ? behindLiteral(statement, at, u'\'') : behindToken(statement, at);
        if (next < 0)
            return {statement, {}};
        const QStringView token = QStringView(statement).sliced(at, next - at);
        if (literal) {
            lifted.values.push_back(literalContent(token).toUtf8());
            lifted.shape += u'\'' + QString(kMark) + QString::number(lifted.values.size()) + u'\'';
        } else {
            lifted.shape += token;
        }
        at = next;
    }
    return lifted;
}

QString marksToParameters(const QString &translated)
{
    QString result = translated;
    qsizetype at = 0;
    while ((at = result.indexOf(QStringLiteral("'") + kMark, at)) >= 0) {
        const qsizetype end = result.indexOf(u'\'', at + 1);
        result.remove(end, 1);
        result.replace(at, 2, QStringLiteral("?"));
    }
    return result;
}
