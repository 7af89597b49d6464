#include "core/Vocabulary.h"

namespace {

QStringList reservedNames()
{
    QStringList names;
    for (const QString &kind : {Pasto::Colazione, Pasto::Spuntino}) {
        for (int number = 1; number <= 7; ++number)
            names.append(kind + u' ' + QString::number(number));
    }
    return names;
}

QStringList categoriesOfGrids()
{
    QStringList names = Categorie12();
    names.removeOne(QStringLiteral("Piatto Unico"));
    return names;
}

} // namespace

const QStringList &Tipi()
{
    static const QStringList kNames = {Pasto::Colazione, Pasto::Menu, Pasto::Spuntino};
    return kNames;
}

const QStringList &Categorie12()
{
    // The single dish stands in both its spellings; in statements they are one value.
    static const QStringList kNames = {
        QStringLiteral("Bevanda"),        QStringLiteral("Bistecca Vegetale"),
        QStringLiteral("Carne"),          QStringLiteral("Cereali"),
        QStringLiteral("Contorno"),       QStringLiteral("Formaggio"),
        QStringLiteral("Frutta"),         QStringLiteral("Piatto Unico"),
        QStringLiteral("Panino - Pizza"), QStringLiteral("Pasta - Minestra"),
        QStringLiteral("Pesce"),          QStringLiteral("Piatto unico"),
    };
    return kNames;
}

const QStringList &CategorieGriglia()
{
    static const QStringList kNames = categoriesOfGrids();
    return kNames;
}

const QStringList &NomiRiservati()
{
    static const QStringList kNames = reservedNames();
    return kNames;
}
