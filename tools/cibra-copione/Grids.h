// Grids and lists as the eye reads them.
#pragma once

#include <QAbstractItemView>
#include <QJsonArray>
#include <QStringList>
#include <QTableView>

#include <vector>

std::vector<int> shownColumns(const QTableView &view); // logical numbers, from left to right
QStringList gridHeaders(const QTableView &view);
QJsonArray gridRows(const QTableView &view); // a tick shows as "on" or "off"
QStringList listTexts(const QAbstractItemView &view);
// The column with that data field or caption, without regard to case; -1 where there is none.
int columnNamed(const QTableView &view, const QString &name);
// The item of a list or tree with exactly that text; invalid where there is none.
QModelIndex itemNamed(const QAbstractItemView &view, const QString &text);
