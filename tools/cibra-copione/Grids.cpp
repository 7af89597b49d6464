#include "Grids.h"

#include "platform/ui/DataGrid.h"

#include <QHeaderView>

namespace {

QString shownText(const QModelIndex &index)
{
    const QVariant tick = index.data(Qt::CheckStateRole);
    const QString text = index.data(Qt::DisplayRole).toString();
    if (tick.isValid() && text.isEmpty())
        return tick.toInt() == Qt::Checked ? QStringLiteral("on") : QStringLiteral("off");
    return text;
}

} // namespace

std::vector<int> shownColumns(const QTableView &view)
{
    std::vector<int> columns;
    const QHeaderView *const header = view.horizontalHeader();
    for (int visual = 0; visual < header->count(); ++visual) {
        const int logical = header->logicalIndex(visual);
        if (!view.isColumnHidden(logical))
            columns.push_back(logical);
    }
    return columns;
}

QStringList gridHeaders(const QTableView &view)
{
    QStringList headers;
    for (const int column : shownColumns(view))
        headers << view.model()->headerData(column, Qt::Horizontal).toString();
    return headers;
}

QJsonArray gridRows(const QTableView &view)
{
    QJsonArray rows;
    const std::vector<int> columns = shownColumns(view);
    const int count = view.model() ? view.model()->rowCount() : 0;
    for (int row = 0; row < count; ++row) {
        if (view.isRowHidden(row))
            continue;
        QJsonArray cells;
        for (const int column : columns)
            cells.append(shownText(view.model()->index(row, column)));
        rows.append(cells);
    }
    return rows;
}

QStringList listTexts(const QAbstractItemView &view)
{
    QStringList texts;
    const int count = view.model() ? view.model()->rowCount(view.rootIndex()) : 0;
    for (int row = 0; row < count; ++row)
        texts << shownText(view.model()->index(row, 0, view.rootIndex()));
    return texts;
}

int columnNamed(const QTableView &view, const QString &name)
{
    const auto *grid = qobject_cast<const DataGrid *>(&view);
    for (const int column : shownColumns(view)) {
        const QString caption = view.model()->headerData(column, Qt::Horizontal).toString();
        if (caption.compare(name, Qt::CaseInsensitive) == 0 ||
            (grid && grid->columnField(column).compare(name, Qt::CaseInsensitive) == 0))
            return column;
    }
    return -1;
}

QModelIndex itemNamed(const QAbstractItemView &view, const QString &text)
{
    if (!view.model() || view.model()->rowCount(view.rootIndex()) == 0)
        return {};
    const QModelIndex first = view.model()->index(0, 0, view.rootIndex());
    const QModelIndexList found = view.model()->match(first, Qt::DisplayRole, text, 1,
                                                      Qt::MatchExactly | Qt::MatchCaseSensitive | Qt::MatchRecursive);
    return found.isEmpty() ? QModelIndex() : found.first();
}
