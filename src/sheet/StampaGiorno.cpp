#include "sheet/StampaGiorno.h"

namespace {

QString mealInStatement(Sezione meal)
{
    switch (meal) {
    case Sezione::Colazione:
        return QStringLiteral("colazione");
    case Sezione::Spuntino:
        return QStringLiteral("Spuntino");
    case Sezione::Pranzo:
        return QStringLiteral("pranzo");
    case Sezione::Cena:
        break;
    }
    return QStringLiteral("cena");
}

QString statementOf(const QString &day, Sezione meal)
{
    return " SELECT SchedaPranzo.dataInserimento, SchedaPranzo.PranzoCenaSpuntino, SchedaPranzo.Piatto, "
           "SchedaPranzo.Alimento, SchedaPranzo.KC100gr, SchedaPranzo.quantita, SchedaPranzo.KcNominale, "
           "SchedaPranzo.Totale1, SchedaPranzo.quantita2, SchedaPranzo.KcNominale2, SchedaPranzo.Totale2"
           " From SchedaPranzo"
           " Where (((SchedaPranzo.dataInserimento) = '" +
           day + "') And ((SchedaPranzo.PranzoCenaSpuntino) = '" + mealInStatement(meal) +
           "'))"
           " ORDER BY SchedaPranzo.PranzoCenaSpuntino, SchedaPranzo.Piatto, SchedaPranzo.alimento;";
}

QString foodText(const Recordset &rows, const QString &portion)
{
    return rows.value("Alimento").text() + ' ' + rows.value(portion).text() + " gr./ml.";
}

} // namespace

QString FileStampa(const ModNetServer &modulo, const QString &DataGiorno, const QString &ending)
{
    return modulo.mondo.folder.resolve("\\Documenti\\" + QString(DataGiorno).remove('/') + ending);
}

StampaGiorno::StampaGiorno(ModNetServer &modulo, QString DataGiorno) : m_modulo(modulo), m_day(std::move(DataGiorno)) {}

bool StampaGiorno::openMeal(Sezione meal)
{
    m_rows = std::make_unique<Recordset>();
    m_rows->Open(statementOf(m_day, meal), m_modulo.dati());
    return !m_rows->Eof();
}

bool StampaGiorno::atEnd() const
{
    return m_rows->Eof();
}

QString StampaGiorno::dish() const
{
    return m_rows->value("Piatto").text();
}

QString StampaGiorno::foodOfFirst() const
{
    return foodText(*m_rows, "quantita");
}

QString StampaGiorno::foodOfSecond() const
{
    return foodText(*m_rows, "quantita2");
}

void StampaGiorno::addTotals()
{
    m_first += m_rows->value("Totale1").number();
    m_second += m_rows->value("Totale2").number();
}

void StampaGiorno::next()
{
    m_rows->MoveNext();
}

void StampaGiorno::forEachRow(const std::function<void()> &row)
{
    for (; !atEnd(); next()) {
        row();
        addTotals();
    }
}

void StampaGiorno::forThreeSnacks(const std::function<void(const QString &)> &row)
{
    bool first = true;
    for (const char *ora : {"10", "15", "21"}) {
        if (!first && !atEnd())
            next();
        first = false;
        row(ora);
        addTotals();
    }
}

void StampaGiorno::forEachRowOfDish(const std::function<void()> &row)
{
    const QString group = dish();
    for (; !atEnd() && dish() == group; next()) {
        row();
        addTotals();
    }
}
