// Days as text and texts as days.
#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>

QString TestoData(QDate day);                // dd/mm/yyyy
QString TestoDataOra(const QDateTime &when); // dd/mm/yyyy HH:mm:ss
// A day text, day first: d/m/yyyy, also with - or . between; four digits of the year and a real day.
// Throws Failure(TypeMismatch) where `text` is no date.
QDate CDate(const QString &text);
// The same, an invalid day instead of an exception.
QDate dayFromText(const QString &text);
// The parts of a day between # signs, month first without leading zeros, for instance 5/6/2025; `separator` is what
// stands between them.
QString DataPerIstruzione(QDate day, const QString &separator = QStringLiteral("/"));
