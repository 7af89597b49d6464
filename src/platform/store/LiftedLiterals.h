// The text literals of a Jet statement taken out of it, so that the same statement for another day or another dish is
// found ready.
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

struct LiftedLiterals
{
    QString shape;                  // the statement with a short mark in the place of each literal
    std::vector<QByteArray> values; // the literals, UTF-8, in their order
};

// A text that cannot be read to its end (an open literal) is its own shape and has no values.
LiftedLiterals liftLiterals(const QString &statement);

// The marks of a translated shape made parameters ?1, ?2 ...
QString marksToParameters(const QString &translated);
