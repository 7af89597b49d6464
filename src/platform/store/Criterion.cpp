#include "platform/store/Criterion.h"

#include "platform/Failure.h"
#include "platform/store/Folding.h"
#include "platform/text/Dates.h"

#include <QRegularExpression>

namespace {

Failure unreadable(const QString &text)
{
    return Failure(FailureNumber::Engine, QStringLiteral("La condizione non si può leggere: ") + text, text);
}

QRegularExpressionMatch parts(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral(
            R"(^\s*(?:\[(?<bracketed>[^\]]+)\]|(?<word>\w+))\s*(?<op><>|<=|>=|=|<|>|like\b)\s*(?<value>.*?)\s*$)"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption |
            QRegularExpression::UseUnicodePropertiesOption);
    return form.match(text);
}

bool isQuoted(const QString &value)
{
    static const QRegularExpression form(QStringLiteral("^'(?:[^']|'')*'$"),
                                         QRegularExpression::DotMatchesEverythingOption);
    return form.match(value).hasMatch();
}

bool isWord(const QString &value, QStringView word)
{
    return value.compare(word, Qt::CaseInsensitive) == 0;
}

int sign(double difference)
{
    return difference < 0 ? -1 : difference > 0 ? 1 : 0;
}

} // namespace

Criterion::Criterion(const QString &text)
{
    const QRegularExpressionMatch match = parts(text);
    if (!match.hasMatch())
        throw unreadable(text);
    m_column = match.captured(QStringLiteral("bracketed")) + match.captured(QStringLiteral("word"));
    const QStringList operators{QStringLiteral("="),  QStringLiteral("<>"), QStringLiteral("<"),   QStringLiteral(">"),
                                QStringLiteral("<="), QStringLiteral(">="), QStringLiteral("like")};
    m_operator = Operator(operators.indexOf(match.captured(QStringLiteral("op")).toLower()));
    const QString value = match.captured(QStringLiteral("value"));
    bool isNumber = false;
    m_number = value.toDouble(&isNumber);
    if (isQuoted(value)) {
        m_text = value.sliced(1, value.size() - 2).replace(QStringLiteral("''"), QStringLiteral("'"));
    } else if (isWord(value, u"true") || isWord(value, u"false")) {
        m_kind = Kind::YesNo;
        m_yes = isWord(value, u"true");
    } else if (isNumber) {
        m_kind = Kind::Number;
        m_text = value;
    } else {
        throw unreadable(text);
    }
}

int Criterion::compare(const Value &value) const
{
    if (m_kind == Kind::Number && !std::holds_alternative<QString>(value.held()) &&
        !std::holds_alternative<QDate>(value.held()))
        return sign(value.number() - m_number);
    if (const auto *day = std::get_if<QDate>(&value.held())) {
        const QDate told = dayFromText(m_text);
        if (told.isValid())
            return sign(double(told.daysTo(*day)));
    }
    if (std::holds_alternative<qint64>(value.held()) || std::holds_alternative<double>(value.held())) {
        bool isNumber = false;
        const double told = m_text.toDouble(&isNumber);
        if (isNumber)
            return sign(value.number() - told);
    }
    return compareFolded(value.text(), m_text);
}

bool Criterion::passesYesNo(const Value &value) const
{
    return (value.yes() == m_yes) == (m_operator != Operator::Different);
}

bool Criterion::passes(const Value &value) const
{
    if (value.isNull())
        return false;
    if (m_kind == Kind::YesNo)
        return passesYesNo(value);
    if (m_operator == Operator::Like)
        return matchesPattern(value.text(), m_text);
    const int order = compare(value);
    switch (m_operator) {
    case Operator::Equal:
        return order == 0;
    case Operator::Different:
        return order != 0;
    case Operator::Less:
        return order < 0;
    case Operator::Greater:
        return order > 0;
    case Operator::LessOrEqual:
        return order <= 0;
    case Operator::GreaterOrEqual:
        return order >= 0;
    case Operator::Like:
        break;
    }
    return false;
}
