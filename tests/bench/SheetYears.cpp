#include "SheetYears.h"

#include "platform/store/ArchiveFile.h"
#include "platform/text/Dates.h"

#include <QFile>

#include <stdexcept>

namespace {

constexpr int kYear = 365;
constexpr int kTenYears = 3652;
constexpr int kRowsOfTenYears = 125000;
const QDate kFirstDay(2025, 1, 1);

QString schema()
{
    QFile file(QStringLiteral(CIBRA_SOURCE_DIR "/archive/schema.sql"));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("archive/schema.sql cannot be read");
    return QString::fromUtf8(file.readAll());
}

// Day by day, meals and foods as a sheet has them.
QString sheetRows(int days)
{
    const int rows = int(qint64(kRowsOfTenYears) * days / kTenYears);
    return QStringLiteral(
               "INSERT INTO SchedaPranzo (dataInserimento, PranzoCenaSpuntino, Piatto, Alimento, KC100gr, quantita, "
               "KcNominale,"
               " Totale1, quantita2, KcNominale2, Totale2) "
               "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < %1) "
               "SELECT strftime('%d/%m/%Y', date('2025-01-01', '+' || (i * 3652 / 125000) || ' days')), "
               "CASE i % 5 WHEN 0 THEN 'Colazione' WHEN 1 THEN 'Pranzo' WHEN 2 THEN 'Cena' ELSE 'Spuntino' END, "
               "'Piatto numero ' || (i * 7 % 160), 'Alimento con nome ' || (i * 13 % 400), 50.0 + i % 300, 20.0 + i % "
               "180, "
               "1100.0, (50.0 + i % 300) / 100 * (20 + i % 180), 30.0 + i % 200, 1500.0, "
               "(50.0 + i % 300) / 100 * (30 + i % 200) FROM n;")
        .arg(rows - 1);
}

} // namespace

const SheetYears &SheetYears::shared()
{
    static const SheetYears years(kTenYears);
    return years;
}

const SheetYears &SheetYears::ofOneYear()
{
    static const SheetYears year(kYear);
    return year;
}

SheetYears::SheetYears(int days) : m_days(days)
{
    makeArchive(path(), schema() + sheetRows(days));
    makeArchive(emptyPath(), schema());
}

QString SheetYears::path() const
{
    return m_folder.filePath(QStringLiteral("Anni.Mdb"));
}

QString SheetYears::emptyPath() const
{
    return m_folder.filePath(QStringLiteral("Vuoto.Mdb"));
}

QString SheetYears::dayText(int number) const
{
    return TestoData(kFirstDay.addDays(number % m_days));
}
