#include "pages/Alimenti.h"

#include "pages/Modello.h"

std::vector<GruppoPagina> AlimentiPagina()
{
    std::vector<GruppoPagina> groups;
    QStringList rows = RigheModello(QStringLiteral("alimenti.csv"));
    rows.removeFirst(); // the names of the columns
    for (const QString &row : rows) {
        const QStringList cells = row.split(u',');
        if (groups.empty() || groups.back().nome != cells[0])
            groups.push_back({cells[0], {}});
        groups.back().alimenti.push_back({cells[1], cells[2]});
    }
    return groups;
}
