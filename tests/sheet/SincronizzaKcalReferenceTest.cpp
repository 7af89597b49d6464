#include "sheet/SincronizzaKcal.h"

#include "platform/text/Numbers.h"
#include "sheet/ReferenceWalk.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace {

constexpr int kDays = 2000;
constexpr int kDaysAGroup = 100;
constexpr int kLongDays = 24;

struct RandomDays
{
    std::mt19937 engine{20250201};

    int below(int n) { return int(engine() % unsigned(n)); }
    double of(std::initializer_list<double> values) { return *(values.begin() + below(int(values.size()))); }
    bool oneIn(int n) { return below(n) == 0; }

    QString kcPer100() { return oneIn(60) ? "Null" : NumeroPerIstruzione(kc()); }
    double kc() { return oneIn(6) ? 0 : of({884, 350, 250.5, 130.1, 89.7, 52, 33.333, 18.25, 7, 717}); }
    double portion() { return oneIn(4) ? of({0, 5, 10, 20, 20.5, 21, 29.9, 30}) : 10 * below(30) + of({0, 0, 5, 0.7}); }
};

struct Person
{
    QString columns; // the values of quantita and Totale as a statement spells them
    double total = 0;
};

Person randomPerson(RandomDays &random, const QString &kc)
{
    if (random.oneIn(40))
        return {"Null, " + QString(random.oneIn(2) ? "Null" : "12.5"), 0};
    const double portion = random.portion();
    // Most totals fit their portion, some are null or stale.
    if (random.oneIn(25))
        return {NumeroPerIstruzione(portion) + ", Null", 0};
    const double total = kc == "Null" || random.oneIn(20) ? random.below(900) / 7.0 : kc.toDouble() / 100 * portion;
    return {NumeroPerIstruzione(portion) + ", " + NumeroPerIstruzione(total), total};
}

// What kind of days are made: how many rows they have, and how far a target lies from the sum at most, in kcal.
struct Kind
{
    int fewestRows;
    int mostRows;
    int distance;
};
constexpr Kind kShort{0, 6, 150};
constexpr Kind kLong{20, 30, 1500}; // as the planner writes them, for a household that changes its targets

// A target around the sum, in every spelling that a person may give it.
QString randomTarget(RandomDays &random, double sum, int distance)
{
    const double target = std::max(0.0, sum + random.below(2 * distance) - distance);
    switch (random.below(14)) {
    case 0:
        return TestoNumero(sum);
    case 1:
        return TestoNumero(std::floor(target) + 0.5);
    case 2:
        return "1.500";
    case 3:
        return " " + TestoNumero(std::floor(target));
    case 4:
        return random.oneIn(3) ? "" : "1500 kcal";
    case 5:
        return "1480,25";
    default:
        return TestoNumero(std::floor(target));
    }
}

struct Case
{
    QString day;
    QString firstTarget;
    QString secondTarget;
    bool first;
    bool second;
};

class SincronizzaKcalReferenceTest : public testing::Test
{
protected:
    SincronizzaKcalReferenceTest() : plainDati(plain.openArchive()), quickDati(quick.openArchive()) {}

    Case makeDay(int number, const Kind &kind);
    void compareDays(int days, const Kind &kind);
    void run(TestWorld &world, const Case &made, QStringList &outcomes,
             void (*walk)(ModNetServer &, const QString &, bool, bool));

    RandomDays random;
    TestWorld plain;
    TestWorld quick;
    Connection &plainDati;
    Connection &quickDati;
    QStringList plainOutcomes;
    QStringList quickOutcomes;
};

Case SincronizzaKcalReferenceTest::makeDay(int number, const Kind &kind)
{
    const QString day = QString("%1/01/%2").arg(number % 28 + 1, 2, 10, QChar('0')).arg(2025 + number / 28);
    QStringList rows;
    double first = 0;
    double second = 0;
    for (int row = kind.fewestRows + random.below(kind.mostRows - kind.fewestRows + 1); row > 0; --row) {
        const QString kc = random.kcPer100();
        const Person one = randomPerson(random, kc);
        const Person two = randomPerson(random, kc);
        first += one.total;
        second += two.total;
        rows.append("'" + day + "', " + kc + ", " + one.columns + ", " + two.columns);
    }
    for (Connection *dati : {&plainDati, &quickDati})
        insertRows(*dati, "SchedaPranzo", "dataInserimento, KC100gr, quantita, Totale1, quantita2, Totale2", rows);
    const int persons = random.below(4);
    return {day, randomTarget(random, first, kind.distance), randomTarget(random, second, kind.distance), persons != 1,
            persons != 0};
}

void SincronizzaKcalReferenceTest::run(TestWorld &world, const Case &made, QStringList &outcomes,
                                       void (*walk)(ModNetServer &, const QString &, bool, bool))
{
    world.modulo.KcalPrimaPersona = made.firstTarget;
    world.modulo.KcalSecondaPersona = made.secondTarget;
    QString outcome = made.day + " for " + made.firstTarget + " and " + made.secondTarget;
    try {
        walk(world.modulo, made.day, made.first, made.second);
    } catch (const Failure &failure) {
        outcome += " fails with " + QString::number(int(failure.number()));
    }
    outcomes.append(outcome);
}

// Every field of every row, numbers to the last bit.
std::vector<Value> allValues(Connection &dati)
{
    Recordset rows;
    rows.Open("Select * from SchedaPranzo", dati);
    std::vector<Value> values;
    for (int row = 0; row < rows.RecordCount(); ++row)
        for (int column = 0; column < rows.fieldCount(); ++column)
            values.push_back(rows.valueAt(row, column));
    return values;
}

void SincronizzaKcalReferenceTest::compareDays(int days, const Kind &kind)
{
    for (int number = 0; number < days; number += kDaysAGroup) {
        const GruppoScritture plainGroup(plainDati);
        const GruppoScritture quickGroup(quickDati);
        for (int i = number; i < std::min(number + kDaysAGroup, days); ++i) {
            const Case made = makeDay(i, kind);
            run(plain, made, plainOutcomes, referenceWalk);
            run(quick, made, quickOutcomes, SincronizzaKcal);
        }
    }
    EXPECT_EQ(quickOutcomes, plainOutcomes);
    const std::vector<Value> expected = allValues(plainDati);
    EXPECT_GT(expected.size(), size_t(days));
    EXPECT_TRUE(allValues(quickDati) == expected);
}

TEST_F(SincronizzaKcalReferenceTest, ThousandsOfDaysEndBitForBitAsWithAQueryAfterEachRow)
{
    compareDays(kDays, kShort);
    const QString failures = quickOutcomes.join('\n');
    EXPECT_TRUE(failures.contains("fails with 13"));
    EXPECT_TRUE(failures.contains("fails with 94"));
}

TEST_F(SincronizzaKcalReferenceTest, DaysOfThirtyRowsWithFarTargetsEndBitForBitAlike)
{
    compareDays(kLongDays, kLong);
}

} // namespace
