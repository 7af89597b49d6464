#include "pages/Alimenti.h"

#include "pages/FileModello.h"

#include <utility>

namespace {

// The text up to the next comma, which is taken off the row with it.
QByteArrayView nextCell(QByteArrayView &row)
{
    const qsizetype comma = row.indexOf(',');
    const QByteArrayView cell = row.first(comma);
    row = row.sliced(comma + 1);
    return cell;
}

std::vector<GruppoPagina> readFoods()
{
    std::vector<GruppoPagina> groups;
    bool head = true; // the names of the columns
    perOgniRiga(TestoModello("alimenti.csv"), [&](QByteArrayView row) {
        if (std::exchange(head, false))
            return;
        const QByteArrayView group = nextCell(row);
        if (groups.empty() || groups.back().nome != group)
            groups.push_back({group.toByteArray(), {}});
        const QByteArrayView name = nextCell(row);
        groups.back().alimenti.push_back({name.toByteArray(), nextCell(row).toByteArray()});
    });
    return groups;
}

} // namespace

const std::vector<GruppoPagina> &AlimentiPagina()
{
    static const std::vector<GruppoPagina> kGruppi = readFoods();
    return kGruppi;
}
