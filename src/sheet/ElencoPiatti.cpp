#include "sheet/ElencoPiatti.h"

#include "core/Vocabulary.h"

#include <QStringList>

namespace {

constexpr int kNumerati = 7; // "Colazione 1" to "Colazione 7", and the same for snacks

QString withoutNumbered(const QString &kind)
{
    QStringList conditions;
    for (int number = 1; number <= kNumerati; ++number)
        conditions.append(QStringLiteral("(Sostituisci.Piatto) <> '%1 %2'").arg(kind).arg(number));
    return conditions.join(" And ");
}

QString breakfasts()
{
    return " SELECT Sostituisci.Piatto From Sostituisci WHERE (((Sostituisci.tipo)='colazione')) "
           "GROUP BY Sostituisci.Piatto  Having (" +
           withoutNumbered(Pasto::Colazione) + ") ORDER BY Sostituisci.Piatto;";
}

QString snacks()
{
    return "SELECT Sostituisci.Piatto, Sostituisci.tipo From Sostituisci Where ((" + withoutNumbered(Pasto::Spuntino) +
           ") And ((Sostituisci.tipo) = 'Spuntino')) ORDER BY Sostituisci.Piatto;";
}

QString ofMenu(const QString &condition)
{
    return "SELECT Sostituisci.Piatto, Sostituisci.tipo, Sostituisci.categoria From Sostituisci "
           "Where (((Sostituisci.tipo) = 'menu') And ((Sostituisci.categoria) " +
           condition + ")) ORDER BY Sostituisci.Piatto;";
}

} // namespace

QString IstruzioneColazioniNumerate()
{
    QStringList conditions;
    for (int number = 1; number <= kNumerati; ++number)
        conditions.append(QStringLiteral("(((Piatti.Piatto) = 'colazione %1'))").arg(number));
    QString having = conditions.join(" Or ");
    having.insert(having.size() - 1, ' ');
    return " SELECT Piatti.Piatto From Piatti GROUP BY Piatti.Piatto  Having " + having + "  ORDER BY Piatti.Piatto;";
}

std::optional<QString> IstruzionePiatti(const QString &classe)
{
    if (classe.toLower() == "colazione")
        return breakfasts();
    if (classe == Pasto::Spuntino)
        return snacks();
    if (classe == "Contorno")
        return ' ' + ofMenu("= 'contorno'");
    if (classe == Pasto::Menu)
        return ofMenu("<> 'Contorno'");
    return std::nullopt;
}
