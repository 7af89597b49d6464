#include "sheet/ReferenceWalk.h"

#include "platform/text/Numbers.h"

namespace {

// The record sets of one day, and the sum of one person as it stands in the archive now.
struct Day
{
    Recordset rows;
    Recordset sum;
    QString sumField;

    double t() const { return sum.value(sumField).number(); }
};

void openDay(Day &day, Connection &connection, const QString &DataGiorno)
{
    day.rows.Open("SELECT SchedaPranzo.id, SchedaPranzo.KC100gr, SchedaPranzo.quantita, SchedaPranzo.KcNominale, "
                  "SchedaPranzo.Totale1, SchedaPranzo.quantita2, SchedaPranzo.KcNominale2, SchedaPranzo.Totale2, "
                  "SchedaPranzo.dataInserimento From SchedaPranzo WHERE (((SchedaPranzo.dataInserimento)='" +
                      DataGiorno + "'));",
                  connection);
    day.sum.Open("SELECT Sum(SchedaPranzo.Totale1) AS Totale1, Sum(SchedaPranzo.Totale2) AS Totale2, "
                 "SchedaPranzo.dataInserimento From SchedaPranzo GROUP BY SchedaPranzo.dataInserimento "
                 "HAVING (((SchedaPranzo.dataInserimento)='" +
                     DataGiorno + "'));",
                 connection);
}

bool moveRow(Recordset &rows, const QString &portion, const QString &total, double step)
{
    if (rows.value(portion).isNull() || !(rows.value(portion).number() > 20))
        return false;
    const double moved = rows.value(portion).number() + step;
    const double calories = rows.value("KC100gr").number() / 100 * moved;
    rows.setValue(portion, moved);
    rows.setValue(total, calories);
    rows.Update();
    return true;
}

void lowerFirst(Day &day, const QString &L)
{
    while (NumeroDaTesto(L) < day.t()) {
        const double l = NumeroDaTesto(L);
        bool changed = false;
        for (day.rows.MoveFirst(); !day.rows.Eof();) {
            changed |= moveRow(day.rows, "quantita", "Totale1", -10);
            day.rows.MoveNext();
            day.sum.Requery();
            if (day.t() <= l)
                break;
        }
        day.sum.Requery();
        if (!changed)
            return;
    }
}

void raiseFirst(Day &day, const QString &L)
{
    while (NumeroDaTesto(L) > day.t()) {
        const double l = NumeroDaTesto(L);
        const double before = day.t();
        bool changed = false;
        for (day.rows.MoveFirst(); !day.rows.Eof();) {
            changed |= moveRow(day.rows, "quantita", "Totale1", 10);
            day.rows.MoveNext();
            day.sum.Requery();
            if (day.t() >= l - 25)
                break;
        }
        day.sum.Requery();
        if (day.t() >= l || !changed || day.t() == before)
            return;
    }
}

void lowerSecond(Day &day, const QString &L)
{
    while (NumeroDaTesto(L) < day.t()) {
        const double l = NumeroDaTesto(L);
        bool changed = false;
        for (day.rows.MoveFirst(); !day.rows.Eof();) {
            changed |= moveRow(day.rows, "quantita2", "Totale2", -10);
            day.rows.MoveNext();
            day.sum.Requery();
            if (day.t() <= l)
                break;
        }
        day.sum.Requery();
        if (day.t() <= l + 50 || !changed)
            return;
    }
}

void raiseSecond(Day &day, const QString &L)
{
    while (NumeroDaTesto(L) > day.t()) {
        const double l = NumeroDaTesto(L);
        const double before = day.t();
        bool changed = false;
        for (day.rows.MoveFirst(); !day.rows.Eof();) {
            changed |= moveRow(day.rows, "quantita2", "Totale2", 10);
            day.rows.MoveNext();
            day.sum.Requery();
            if (day.t() >= l - 50)
                break;
        }
        day.sum.Requery();
        if (!changed || day.t() == before)
            return;
    }
}

void balance(Day &day, const QString &L, void (*lower)(Day &, const QString &), void (*raise)(Day &, const QString &))
{
    const Value T = day.sum.value(day.sumField);
    if (T.isNull())
        return;
    if (T.text() > L)
        lower(day, L);
    else if (T.text() < L)
        raise(day, L);
}

} // namespace

void referenceWalk(ModNetServer &modulo, const QString &DataGiorno, bool PrimaPersona, bool SecondaPersona)
{
    Day day;
    openDay(day, modulo.dati(), DataGiorno);
    if (day.rows.RecordCount() == 0)
        return;
    if (PrimaPersona) {
        day.sumField = "Totale1";
        balance(day, modulo.KcalPrimaPersona, lowerFirst, raiseFirst);
    }
    if (SecondaPersona) {
        day.sumField = "Totale2";
        balance(day, modulo.KcalSecondaPersona, lowerSecond, raiseSecond);
    }
}
