#include "SheetYears.h"

#include "platform/store/ArchiveFile.h"
#include "platform/text/Dates.h"

#include <QFile>

#include <stdexcept>

namespace {

constexpr int kDays = 3652;
const QDate kFirstDay(2020, 1, 1);

QString schema()
{
    QFile file(QStringLiteral(CIBRA_SOURCE_DIR "/archive/schema.sql"));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("archive/schema.sql cannot be read");
    return QString::fromUtf8(file.readAll());
}

// 125,000 rows: day by day, meals and foods as a sheet has them.
QString sheetRows()
{
    return QStringLiteral(
        "INSERT INTO SchedaPranzo (dataInserimento, PranzoCenaSpuntino, Piatto, Alimento, KC100gr, quantita, "
        "KcNominale,"
        " Totale1, quantita2, KcNominale2, Totale2) "
        "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 124999) "
        "SELECT strftime('%d/%m/%Y', date('2020-01-01', '+' || (i * 3652 / 125000) || ' days')), "
        "CASE i % 5 WHEN 0 THEN 'Colazione' WHEN 1 THEN 'Pranzo' WHEN 2 THEN 'Cena' ELSE 'Spuntino' END, "
        "'Piatto numero ' || (i * 7 % 160), 'Alimento con nome ' || (i * 13 % 400), 50.0 + i % 300, 20.0 + i % 180, "
        "1100.0, (50.0 + i % 300) / 100 * (20 + i % 180), 30.0 + i % 200, 1500.0, "
        "(50.0 + i % 300) / 100 * (30 + i % 200) FROM n;");
}

} // namespace

const SheetYears &SheetYears::shared()
{
    static const SheetYears years;
    return years;
}

SheetYears::SheetYears()
{
    makeArchive(path(), schema() + sheetRows());
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
    return TestoData(kFirstDay.addDays(number % kDays));
}
