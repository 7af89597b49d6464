// One condition on a column, as Find and the filter take it: "Column op 'value'".
#pragma once

#include "platform/store/Value.h"

#include <QString>

class Criterion
{
public:
    // op is one of = <> < > <= >= like; the value stands in single quotes, or is a number, true or false.
    // Throws Failure(Engine) for a text of another form.
    explicit Criterion(const QString &text);

    const QString &column() const { return m_column; }
    // Null passes no condition. Texts compare without regard to case.
    bool passes(const Value &value) const;

private:
    enum class Operator
    {
        Equal,
        Different,
        Less,
        Greater,
        LessOrEqual,
        GreaterOrEqual,
        Like
    };
    enum class Kind
    {
        Text,
        Number,
        YesNo
    };

    int compare(const Value &value) const;
    bool passesYesNo(const Value &value) const;

    QString m_column;
    Operator m_operator = Operator::Equal;
    Kind m_kind = Kind::Text;
    QString m_text;
    double m_number = 0;
    bool m_yes = false;
};
