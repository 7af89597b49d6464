#include "sheet/SincronizzaKcal.h"

#include "platform/text/Numbers.h"
#include "sheet/ReferenceWalk.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

constexpr int kDays = 2000;
constexpr int kDaysAGroup = 100;

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

// A target in the neighbourhood of the sum, in every spelling that a person may give it.
QString randomTarget(RandomDays &random, double sum)
{
    const double target = sum + random.below(300) - 150;
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

    Case makeDay(int number);
    void run(TestWorld &world, const Case &made, QStringList &outcomes,
             void (*walk)(ModNetServer &, const QString &, bool, bool));

    RandomDays random;
    TestWorld plain;
    TestWorld quick;
    Connection &plainDati;
    Connection &quickDati;
};

Case SincronizzaKcalReferenceTest::makeDay(int number)
{
    const QString day = QString("%1/01/%2").arg(number % 28 + 1, 2, 10, QChar('0')).arg(2025 + number / 28);
    QStringList rows;
    double first = 0;
    double second = 0;
    for (int row = random.below(7); row > 0; --row) {
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
    return {day, randomTarget(random, first), randomTarget(random, second), persons != 1, persons != 0};
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

TEST_F(SincronizzaKcalReferenceTest, ThousandsOfDaysEndBitForBitAsWithAQueryAfterEachRow)
{
    QStringList plainOutcomes;
    QStringList quickOutcomes;
    for (int number = 0; number < kDays; number += kDaysAGroup) {
        const GruppoScritture plainGroup(plainDati);
        const GruppoScritture quickGroup(quickDati);
        for (int i = number; i < number + kDaysAGroup; ++i) {
            const Case made = makeDay(i);
            run(plain, made, plainOutcomes, referenceWalk);
            run(quick, made, quickOutcomes, SincronizzaKcal);
        }
    }
    EXPECT_EQ(quickOutcomes, plainOutcomes);
    const std::vector<Value> expected = allValues(plainDati);
    EXPECT_GT(expected.size(), size_t(kDays));
    EXPECT_TRUE(allValues(quickDati) == expected);
    const QString failures = quickOutcomes.join('\n');
    EXPECT_TRUE(failures.contains("fails with 13"));
    EXPECT_TRUE(failures.contains("fails with 94"));
}

} // namespace
