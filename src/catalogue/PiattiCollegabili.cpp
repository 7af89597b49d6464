#include "catalogue/PiattiCollegabili.h"

#include "core/Vocabulary.h"

namespace {

const QString kPiatto = QStringLiteral("(Sostituisci.Piatto)");

// "(Sostituisci.Piatto)<>'Spuntino 1' And ... <>'Spuntino 7'", the sign between column and name being `sign`.
QString differsFromAll(const QString &kind, const QString &sign)
{
    QStringList terms;
    for (const QString &name : NomiRiservati())
        if (name.startsWith(kind))
            terms.append(kPiatto + sign + '\'' + name + '\'');
    return terms.join(" And ");
}

QString columnIs(const QString &column, const QString &sign, const QString &value)
{
    return "((Sostituisci." + column + ")" + sign + "'" + value + "')";
}

} // namespace

QString IstruzioneCollegabiliDaTipo(const QString &tipo, const QString &categoria)
{
    const QString exclusion =
        " HAVING ((" + differsFromAll(Pasto::Spuntino, "<>") + " And " + differsFromAll(Pasto::Colazione, "<>") + ")";
    const QString order = ") ORDER BY Sostituisci.Piatto;";
    if (categoria.isEmpty())
        return "SELECT Sostituisci.Piatto, Sostituisci.tipo From Sostituisci GROUP BY Sostituisci.Piatto, "
               "Sostituisci.tipo" +
               exclusion + " AND " + columnIs("tipo", "=", tipo) + order;
    return " SELECT Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Categoria From Sostituisci GROUP BY "
           "Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.Categoria" +
           exclusion + " AND " + columnIs("tipo", "=", tipo) + " AND " + columnIs("Categoria", "=", categoria) + order;
}

QString IstruzioneCollegabiliDaCategoria(const QString &tipo, const QString &categoria)
{
    if (tipo.trimmed().isEmpty())
        return "SELECT Sostituisci.Piatto From Sostituisci GROUP BY Sostituisci.Piatto, Sostituisci.tipo "
               " Having ((" +
               differsFromAll(Pasto::Spuntino, " <> ") + ") And " + columnIs("tipo", " = ", tipo) +
               ") ORDER BY Sostituisci.Piatto;";
    return " SELECT Sostituisci.Piatto, Sostituisci.Categoria From Sostituisci GROUP BY Sostituisci.Piatto, "
           "Sostituisci.tipo, Sostituisci.Categoria"
           " HAVING ((" +
           differsFromAll(Pasto::Spuntino, "<>") + ") AND " + columnIs("tipo", "=", tipo) + " AND " +
           columnIs("Categoria", "=", categoria) + ")  and (" + differsFromAll(Pasto::Colazione, " <> ") +
           ") ORDER BY Sostituisci.Piatto;";
}

const QStringList &CategorieNuovoPiatto()
{
    static const QStringList kNames = [] {
        QStringList names = Categorie12();
        names.removeOne(QStringLiteral("Contorno"));
        names.removeLast(); // the second spelling of the single dish
        return names;
    }();
    return kNames;
}
