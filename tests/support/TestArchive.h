// Archives for tests: empty ones with all their tables, rows put in, tables read out as text.
#pragma once

#include "platform/store/Connection.h"

#include <QStringList>

// Make an empty archive at `path`: of a household, with every table of archive/schema.sql, or the system one.
void makeTestArchive(const QString &path);
void makeTestSystemArchive(const QString &path);
// The same of a household, encrypted.
void makeProtectedTestArchive(const QString &path, const QString &password);

// Puts rows into `table`: `columns` joined by ", ", each row a text of values joined by ", " as a statement spells
// them: 'Pasta', 350, Null, #3/2/2025#, True.
void insertRows(Connection &connection, const QString &table, const QString &columns, const QStringList &rows);

// The rows of a statement (or of a table named alone), one text each, the columns joined by " | ", null as "-".
QStringList rowsOf(Connection &connection, const QString &statement);
// The first column of the first row as text; fails the test where there is no row.
QString valueOf(Connection &connection, const QString &statement);
int countOf(Connection &connection, const QString &table);
