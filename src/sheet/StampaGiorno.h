// What the two prints of a day have in common: the rows of each meal, and how a food reads.
#pragma once

#include "core/ModNetServer.h"

#include <array>
#include <functional>

// Meal kinds as the prints look them up, in the order in which they stand on the page: snacks before lunch.
enum class Sezione
{
    Colazione,
    Spuntino,
    Pranzo,
    Cena
};
inline constexpr std::array kSezioni{Sezione::Colazione, Sezione::Spuntino, Sezione::Pranzo, Sezione::Cena};

// Full path of the day's print: the folder Documenti, the day without its "/", and `ending`.
QString FileStampa(const ModNetServer &modulo, const QString &DataGiorno, const QString &ending);

// One day being printed: the rows of each meal by dish and food, and the running totals of both persons in kcal.
class StampaGiorno
{
public:
    StampaGiorno(ModNetServer &modulo, QString DataGiorno);

    // Looks up one meal and stands on its first row; false where it has none.
    bool openMeal(Sezione meal);
    bool atEnd() const;
    QString dish() const;
    QString foodOfFirst() const; // "Pane 50 gr./ml.": the food and the first person's portion, unrounded
    QString foodOfSecond() const;
    void addTotals(); // of the current row; a null total throws Failure(InvalidNull)
    void next();

    double totalOfFirst() const { return m_first; }
    double totalOfSecond() const { return m_second; }

    // Every row of the meal, with `row` run on each.
    void forEachRow(const std::function<void()> &row);
    // The three snacks, by position and not by hour, with `row` run on each; rows from the fourth on are passed over.
    // A meal of one or two rows throws Failure(NoCurrentRow) where the next one is read.
    void forThreeSnacks(const std::function<void(const QString &ora)> &row);
    // The rows from the current one on that belong to the same dish, spelled alike.
    void forEachRowOfDish(const std::function<void()> &row);

private:
    ModNetServer &m_modulo;
    QString m_day;
    std::unique_ptr<Recordset> m_rows;
    double m_first = 0;
    double m_second = 0;
};
