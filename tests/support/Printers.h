// How values of Qt and of the store read in a failed comparison.
#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>

#include <ostream>

inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray &bytes, std::ostream *out)
{
    *out << '"' << bytes.toStdString() << '"';
}

inline void PrintTo(QDate day, std::ostream *out)
{
    *out << (day.isValid() ? day.toString(Qt::ISODate).toStdString() : "no day");
}
