#include "CatalogoEsempio.h"

#include "Csv.h"
#include "platform/Failure.h"
#include "platform/text/Numbers.h"

#include <QHash>
#include <QMap>

namespace {

constexpr int kLivelloPrima = 1100; // kcal a day for which the first person's portions are meant
constexpr int kLivelloSeconda = 1500;

struct Ingrediente
{
    QString alimento;
    double kc100gr = 0;
    double quantita = 0;
    double quantita2 = 0;
};

using Ricette = QHash<QString, QList<Ingrediente>>;
using Sostituti = QHash<QString, QStringList>;

QString testo(const QString &value)
{
    return "'" + QString(value).replace("'", "''") + "'";
}

QString numeroOppureNull(const QString &cell)
{
    return cell.isEmpty() ? QStringLiteral("NULL") : cell;
}

QString giorno(QDate day)
{
    return testo(day.toString(Qt::ISODate));
}

double numero(const CsvTable &table, int row, const QString &column)
{
    bool good = false;
    const double value = table.cell(row, column).toDouble(&good);
    if (!good)
        throw Failure::usual(FailureNumber::TypeMismatch, column + ": " + table.cell(row, column));
    return value;
}

CsvTable tabella(const char *name)
{
    return CsvTable::read(QStringLiteral(":/archive/%1.csv").arg(QLatin1String(name)));
}

QString gruppiDiAlimenti()
{
    const CsvTable groups = tabella("CategorieMaster");
    QString script;
    for (int i = 0; i < groups.rowCount(); ++i)
        script += QStringLiteral("INSERT INTO CategorieMaster (ID, categorie) VALUES (%1, %2);\n")
                      .arg(groups.cell(i, "ID"), testo(groups.cell(i, "categorie")));
    return script;
}

QString alimenti(const CsvTable &foods, QDate day)
{
    QString script;
    for (int i = 0; i < foods.rowCount(); ++i) {
        QStringList values;
        for (const QString &column : foods.columns())
            values += column == "Alimento" ? testo(foods.cell(i, column)) : numeroOppureNull(foods.cell(i, column));
        script += QStringLiteral("INSERT INTO Categorie (DataInserimento, %1) VALUES (%2, %3);\n")
                      .arg(foods.columns().join(", "), giorno(day), values.join(", "));
    }
    return script;
}

Ricette leggiRicette(const CsvTable &foods)
{
    QHash<QString, double> kcal;
    for (int i = 0; i < foods.rowCount(); ++i)
        kcal.insert(foods.cell(i, "Alimento"), numero(foods, i, "Kcal"));

    const CsvTable rows = tabella("Piatti");
    Ricette recipes;
    for (int i = 0; i < rows.rowCount(); ++i) {
        const QString &food = rows.cell(i, "Alimento");
        const auto found = kcal.constFind(food);
        if (found == kcal.constEnd())
            throw Failure(FailureNumber::Engine, QStringLiteral("Piatti: l’alimento \"%1\" non c’è").arg(food));
        recipes[rows.cell(i, "Piatto")] += {food, *found, numero(rows, i, "quantita"), numero(rows, i, "quantita2")};
    }
    return recipes;
}

// Every dish of a group can replace every other one of it.
Sostituti leggiSostituti()
{
    const CsvTable rows = tabella("Gruppi");
    QMap<QString, QStringList> groups;
    for (int i = 0; i < rows.rowCount(); ++i)
        groups[rows.cell(i, "gruppo")] += rows.cell(i, "Piatto");

    Sostituti substitutes;
    for (const QStringList &dishes : std::as_const(groups))
        for (const QString &dish : dishes) {
            QStringList others = dishes;
            others.removeOne(dish);
            substitutes.insert(dish, others);
        }
    return substitutes;
}

QList<Porzione> porzioni(const QList<Ingrediente> &foods, double Ingrediente::*grams)
{
    QList<Porzione> portions;
    for (const Ingrediente &food : foods)
        portions += {food.alimento, food.*grams};
    return portions;
}

QString piatti(const CsvTable &dishes, const Ricette &recipes, const Sostituti &substitutes)
{
    QString script;
    for (int i = 0; i < dishes.rowCount(); ++i) {
        const QString &dish = dishes.cell(i, "Piatto");
        const QList<Ingrediente> foods = recipes.value(dish);
        if (foods.isEmpty())
            throw Failure(FailureNumber::Engine, QStringLiteral("Sostituisci: il piatto \"%1\" è vuoto").arg(dish));
        const QStringList others = substitutes.value(dish);
        const QStringList values = {
            testo(dish),
            testo(dishes.cell(i, "tipo")),
            testo(dishes.cell(i, "Categoria")),
            dishes.cell(i, "Preferito"),
            testo(testoComposizione(porzioni(foods, &Ingrediente::quantita), others)),
            testo(testoComposizione(porzioni(foods, &Ingrediente::quantita2), others)),
        };
        script += QStringLiteral("INSERT INTO Sostituisci (Piatto, tipo, Categoria, Preferito, sostituisci1100,"
                                 " sostituisci1500, Ordine) VALUES (%1, 0);\n")
                      .arg(values.join(", "));
    }
    return script;
}

QString composizioni(const CsvTable &dishes, const Ricette &recipes, QDate day)
{
    QString script;
    for (int i = 0; i < dishes.rowCount(); ++i) {
        const QString &dish = dishes.cell(i, "Piatto");
        for (const Ingrediente &food : recipes.value(dish)) {
            const QStringList values = {
                giorno(day),
                testo(dish),
                testo(food.alimento),
                NumeroPerIstruzione(food.kc100gr),
                NumeroPerIstruzione(food.quantita),
                QString::number(kLivelloPrima),
                NumeroPerIstruzione(food.quantita2),
                QString::number(kLivelloSeconda),
            };
            script += QStringLiteral("INSERT INTO Piatti (DataInserimento, Piatto, Alimento, KC100gr, quantita,"
                                     " KcNominale, quantita2, KcNominale2) VALUES (%1);\n")
                          .arg(values.join(", "));
        }
    }
    return script;
}

QString gruppiDiPiatti(const CsvTable &dishes, const Sostituti &substitutes)
{
    QString script;
    for (int i = 0; i < dishes.rowCount(); ++i) {
        const QString &dish = dishes.cell(i, "Piatto");
        for (const QString &other : substitutes.value(dish))
            script += QStringLiteral("INSERT INTO GruppoPiattiSostituiti (alimento, sostituisci) VALUES (%1, %2);\n")
                          .arg(testo(dish), testo(other));
    }
    return script;
}

// Left to the engine, so that the figures are the very ones that it gives later for the same portions.
QString calorie()
{
    return QStringLiteral("UPDATE Piatti SET Totale1 = KC100gr/100*quantita, Totale2 = KC100gr/100*quantita2;\n"
                          "UPDATE Sostituisci SET\n"
                          " KCalOndira = (SELECT Sum(Totale1) FROM Piatti WHERE Piatti.Piatto = Sostituisci.Piatto),\n"
                          " KCalTesmo = (SELECT Sum(Totale2) FROM Piatti WHERE Piatti.Piatto = Sostituisci.Piatto);\n");
}

// A group or recipe of a dish that is not in the list would be lost without a word.
void controllaNomi(const CsvTable &dishes, const QStringList &used, const QString &where)
{
    QStringList known;
    for (int i = 0; i < dishes.rowCount(); ++i)
        known += dishes.cell(i, "Piatto");
    for (const QString &dish : used)
        if (!known.contains(dish))
            throw Failure(FailureNumber::Engine, QStringLiteral("%1: il piatto \"%2\" non c’è").arg(where, dish));
}

} // namespace

QString testoComposizione(const QList<Porzione> &foods, const QStringList &sostituti)
{
    QStringList lines;
    for (const Porzione &food : foods)
        lines += QStringLiteral("- %1 (%2 gr.)").arg(food.alimento, TestoNumero(food.grammi));
    return (lines + sostituti).join("\r\n");
}

QString scriptCatalogoEsempio(QDate day)
{
    const CsvTable foods = tabella("Categorie");
    const CsvTable dishes = tabella("Sostituisci");
    const Ricette recipes = leggiRicette(foods);
    const Sostituti substitutes = leggiSostituti();
    controllaNomi(dishes, recipes.keys(), "Piatti");
    controllaNomi(dishes, substitutes.keys(), "Gruppi");
    return gruppiDiAlimenti() + alimenti(foods, day) + piatti(dishes, recipes, substitutes) +
           composizioni(dishes, recipes, day) + gruppiDiPiatti(dishes, substitutes) + calorie();
}
