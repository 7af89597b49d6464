#include "sheet/SincronizzaKcal.h"

#include "platform/text/Numbers.h"

#include <array>
#include <exception>
#include <optional>
#include <vector>

namespace {

constexpr double kStep = 10;  // grams a portion moves
constexpr double kFloor = 20; // a portion at or below it is left alone
constexpr int kStepsBetweenBreaths = 5000;

// Columns of the day's record set, as its statement lists them.
constexpr int kKC100gr = 1;
struct PersonColumns
{
    int portion;
    int total;
};
constexpr PersonColumns kFirstColumns{2, 4};
constexpr PersonColumns kSecondColumns{5, 7};

// The pass guard, the stop test and the end test differ for each person and direction. Bands are kcal added to the
// target; without an end band only a pass in which nothing changed finishes the person.
struct Walk
{
    double step;
    double stopBand;
    std::optional<double> endBand;
};
constexpr Walk kLowerFirst{-kStep, 0, std::nullopt};
constexpr Walk kRaiseFirst{kStep, -25, 0};
constexpr Walk kLowerSecond{-kStep, 0, 50}; // a whole pass that ends up to 50 over is good enough
constexpr Walk kRaiseSecond{kStep, -50, std::nullopt};

struct Row
{
    std::optional<double> kcPer100;
    std::optional<double> portion;
    std::optional<double> total;
    bool moved = false;
};

std::optional<double> numberOrNull(const Value &value)
{
    return value.isNull() ? std::nullopt : std::optional(value.number());
}

// One person's side of a day: the rows in the day's order, and where their values stand in its record set.
struct Side
{
    PersonColumns columns;
    std::vector<Row> rows;
};

using Sides = std::array<Side, 2>; // first person, second person

Side readSide(const Recordset &day, const PersonColumns &columns)
{
    Side side{columns, {}};
    side.rows.reserve(size_t(day.RecordCount()));
    for (int i = 0; i < day.RecordCount(); ++i)
        side.rows.push_back({numberOrNull(day.valueAt(i, kKC100gr)), numberOrNull(day.valueAt(i, columns.portion)),
                             numberOrNull(day.valueAt(i, columns.total))});
    return side;
}

// Writes each moved row once.
void writeRows(Recordset &day, const Sides &sides)
{
    const auto writeCurrent = [&](size_t i) {
        bool moved = false;
        for (const Side &side : sides) {
            const Row &row = side.rows[i];
            if (!row.moved)
                continue;
            day.setValue(side.columns.portion, *row.portion);
            day.setValue(side.columns.total, *row.total);
            moved = true;
        }
        if (moved)
            day.Update();
    };
    day.MoveFirst();
    for (size_t i = 0; !day.Eof(); ++i, day.MoveNext())
        writeCurrent(i);
}

// The sum as the store gives it: plain doubles added in row order from 0, nulls skipped, null where all are null.
std::optional<double> sumOf(const std::vector<Row> &rows)
{
    std::optional<double> sum;
    for (const Row &row : rows)
        if (row.total)
            sum = sum.value_or(0) + *row.total;
    return sum;
}

// Lets the window live during a walk that goes on for more than a moment.
class Patience
{
public:
    explicit Patience(Schermo &screen) : m_screen(screen) {}
    void step()
    {
        if (++m_steps % kStepsBetweenBreaths == 0 && m_screen.breathe())
            m_interrupted = true;
    }
    bool interrupted() const { return m_interrupted; } // by Esc

private:
    Schermo &m_screen;
    qint64 m_steps = 0;
    bool m_interrupted = false;
};

bool reaches(double sum, double goal, const Walk &walk)
{
    return walk.step < 0 ? sum <= goal : sum >= goal;
}

// Nulls: a null portion is not greater than the floor, and arithmetic on a null fails.
void moveRow(Row &row, double step)
{
    if (!row.kcPer100)
        throw Failure::usual(FailureNumber::InvalidNull);
    const double portion = *row.portion + step;
    row.total = *row.kcPer100 / 100 * portion;
    row.portion = portion;
    row.moved = true;
}

// One pass over the rows, stopped where the sum comes to its band; gives whether a row changed. `sum` is at every
// moment that of a query made afresh: the rows behind stand in `before`, those ahead are added in their order.
bool pass(std::vector<Row> &rows, const Walk &walk, double target, double &sum, Patience &patience)
{
    bool changed = false;
    double before = 0;
    for (size_t i = 0; i < rows.size(); ++i) {
        const bool takesPart = rows[i].portion && *rows[i].portion > kFloor;
        if (takesPart) {
            changed = true;
            moveRow(rows[i], walk.step);
        }
        before += rows[i].total.value_or(0);
        if (takesPart) {
            sum = before;
            for (size_t ahead = i + 1; ahead < rows.size(); ++ahead)
                sum += rows[ahead].total.value_or(0);
        }
        patience.step();
        if (reaches(sum, target + walk.stopBand, walk) || patience.interrupted())
            break;
    }
    return changed;
}

void repeatPasses(std::vector<Row> &rows, const Walk &walk, const QString &targetText, double sum, Patience &patience)
{
    const double target = NumeroDaTesto(targetText);
    while (!reaches(sum, target, walk)) {
        const double sumBefore = sum;
        const bool changed = pass(rows, walk, target, sum, patience);
        if (!changed || patience.interrupted())
            return;
        if (walk.endBand && reaches(sum, target + *walk.endBand, walk))
            return;
        // Raising that leaves the sum where it was counts as a pass without a change: with sound totals it would go on
        // for ever.
        if (walk.step > 0 && sum == sumBefore)
            return;
    }
}

// The direction is a comparison of texts, code by code: a sum of 980 is above a target of 1500.
void balance(std::vector<Row> &rows, const Walk &lower, const Walk &raise, const QString &target, Patience &patience)
{
    const std::optional<double> sum = sumOf(rows);
    if (!sum)
        return;
    const QString sumText = TestoNumero(*sum);
    if (sumText > target)
        repeatPasses(rows, lower, target, *sum, patience);
    else if (sumText < target)
        repeatPasses(rows, raise, target, *sum, patience);
}

// The target is read behind the bar's step: making the planner's form may read the household's file afresh.
void balanceSides(ModNetServer &modulo, Sides &sides, bool PrimaPersona, bool SecondaPersona, Patience &patience)
{
    if (PrimaPersona)
        balance(sides[0].rows, kLowerFirst, kRaiseFirst, modulo.KcalPrimaPersona, patience);
    AvanzaBarra(modulo.schermate.barra());
    if (SecondaPersona && !patience.interrupted())
        balance(sides[1].rows, kLowerSecond, kRaiseSecond, modulo.KcalSecondaPersona, patience);
}

void tellInterruption(ModNetServer &modulo, const QString &DataGiorno)
{
    modulo.mondo.dialoghi.MsgBox("La sincronizzazione del " + DataGiorno + " è stata interrotta con Esc.\r\n" +
                                     "Le quantità raggiunte fin qui sono state salvate.",
                                 MsgFlags::Exclamation, "Sincronizzazione interrotta");
}

std::shared_ptr<Recordset> openDay(ModNetServer &modulo, const QString &DataGiorno)
{
    auto day = std::make_shared<Recordset>();
    modulo.RsComune = day;
    day->Open("SELECT SchedaPranzo.id, SchedaPranzo.KC100gr, SchedaPranzo.quantita, SchedaPranzo.KcNominale, "
              "SchedaPranzo.Totale1, SchedaPranzo.quantita2, SchedaPranzo.KcNominale2, SchedaPranzo.Totale2, "
              "SchedaPranzo.dataInserimento From SchedaPranzo WHERE (((SchedaPranzo.dataInserimento)='" +
                  DataGiorno + "'));",
              modulo.dati());
    return day;
}

} // namespace

void SincronizzaKcal(ModNetServer &modulo, const QString &DataGiorno, bool PrimaPersona, bool SecondaPersona)
{
    modulo.mondo.schermo.setMousePointer(MousePointer::Hourglass);
    const std::shared_ptr<Recordset> day = openDay(modulo, DataGiorno);
    if (day->RecordCount() == 0)
        return;

    Sides sides{readSide(*day, kFirstColumns), readSide(*day, kSecondColumns)};
    Patience patience(modulo.mondo.schermo);
    std::exception_ptr failure;
    try {
        balanceSides(modulo, sides, PrimaPersona, SecondaPersona, patience);
    } catch (...) { // what was reached is kept first, then the failure goes on its way
        failure = std::current_exception();
    }
    {
        GruppoScritture group(modulo.dati());
        writeRows(*day, sides);
        if (patience.interrupted())
            group.commit(); // the message will say that it is saved
        group.close();
    }
    if (failure)
        std::rethrow_exception(failure);
    if (patience.interrupted())
        tellInterruption(modulo, DataGiorno);
}
