// The rows of a table put in through the engine's own interface: what the road is measured against.
#pragma once

#include "platform/store/Connection.h"

#include <QByteArray>

#include <variant>
#include <vector>

using BareCell = std::variant<std::monostate, double, QByteArray>;

struct BareTable
{
    QByteArray insertion; // the statement, one parameter a column
    int columns = 0;
    std::vector<BareCell> cells; // row by row
};

BareTable readBare(Connection &connection, const QString &table);
// All rows in one transaction, into an archive that nobody has open. Throws std::runtime_error.
void insertBare(const QString &archive, const std::vector<BareTable> &tables);
