#include "sheet/DayRows.h"

#include "support/TestArchive.h"

namespace {

QStringList onDay(const QStringList &rows)
{
    QStringList dated;
    for (const QString &row : rows)
        dated.append("'01/02/2025', " + row);
    return dated;
}

} // namespace

void insertSheet(Connection &connection, const QStringList &rows)
{
    insertRows(connection, "SchedaPranzo",
               "dataInserimento, PranzoCenaSpuntino, Piatto, Alimento, KC100gr, quantita, Totale1, quantita2, Totale2",
               rows);
}

void insertFirstPerson(Connection &connection, const QStringList &rows)
{
    insertRows(connection, "SchedaPranzo", "dataInserimento, KC100gr, quantita, Totale1", onDay(rows));
}

void insertSecondPerson(Connection &connection, const QStringList &rows)
{
    insertRows(connection, "SchedaPranzo", "dataInserimento, KC100gr, quantita2, Totale2", onDay(rows));
}

QStringList firstPerson(Connection &connection)
{
    return rowsOf(connection, "SELECT quantita, Totale1 FROM SchedaPranzo ORDER BY ID");
}

QStringList secondPerson(Connection &connection)
{
    return rowsOf(connection, "SELECT quantita2, Totale2 FROM SchedaPranzo ORDER BY ID");
}
