// Days of the sheet as tests write them.
#pragma once

#include "platform/store/Connection.h"

#include <QStringList>

// The columns of a sheet row that tests give, in their order; each row is a text as insertRows takes it:
//   "'01/02/2025', 'Pranzo', 'Pasta', 'Olio', 900, 10, 90, 20, 180"
void insertSheet(Connection &connection, const QStringList &rows);

// Rows of 01/02/2025 that matter for the first person alone: "KC100gr, quantita, Totale1".
void insertFirstPerson(Connection &connection, const QStringList &rows);
// The same for the second person: "KC100gr, quantita2, Totale2".
void insertSecondPerson(Connection &connection, const QStringList &rows);
// Their portions and totals read back, "110 | 1210" a row.
QStringList firstPerson(Connection &connection);
QStringList secondPerson(Connection &connection);
