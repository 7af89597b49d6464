// One value of a field: null, whole number, number, text, day or yes/no.
#pragma once

#include <QDate>
#include <QString>

#include <variant>

// The type numbers that a field reports.
enum class ColumnType : int
{
    Long = 3,
    Number = 5,
    Date = 7,
    Boolean = 11,
    Text = 202,
    Memo = 203
};

class Value
{
public:
    Value() = default; // null
    Value(int whole) : m_value(qint64(whole)) {}
    Value(qint64 whole) : m_value(whole) {}
    Value(double number) : m_value(number) {}
    Value(bool yes) : m_value(yes) {}
    Value(const QString &text) : m_value(text) {}
    Value(const char *) = delete; // would become a yes/no value
    Value(QDate day) : m_value(day) {}

    bool isNull() const { return std::holds_alternative<std::monostate>(m_value); }

    // The default text form: "" for null, TestoNumero for numbers, dd/mm/yyyy for days.
    QString text() const;
    // The number; texts are read by NumeroDaTesto. Null throws InvalidNull, other texts TypeMismatch.
    double number() const;
    // The day; texts are read by CDate. Null throws InvalidNull, other values TypeMismatch.
    QDate date() const;
    // Not null and not 0.
    bool yes() const;

    const auto &held() const { return m_value; }
    friend bool operator==(const Value &, const Value &) = default;

private:
    std::variant<std::monostate, qint64, double, bool, QString, QDate> m_value;
};
