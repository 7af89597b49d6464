// Record sets against the bare engine.
#include "BareEngine.h"
#include "Ratios.h"
#include "SheetYears.h"

#include "platform/store/Connection.h"
#include "platform/store/Recordset.h"

#include <stdexcept>

namespace {

constexpr int kInsertedRows = 12500;
constexpr int kDayStep = 1237; // from one looked-up day to the next, so that they lie far apart

void open(Connection &connection, const QString &path)
{
    const OpenResult result = connection.Open(path);
    if (!result)
        throw std::runtime_error(result.words.toStdString());
}

void openTenYears(benchmark::State &state)
{
    Connection connection;
    open(connection, SheetYears::shared().path());
    for ([[maybe_unused]] auto round : state) {
        Recordset rows;
        rows.Open(QStringLiteral("Select * from SchedaPranzo"), connection);
        benchmark::DoNotOptimize(rows.RecordCount());
    }
}

void stepTenYears(benchmark::State &state)
{
    BareEngine engine(SheetYears::shared().path());
    engine.prepare("SELECT * FROM SchedaPranzo ORDER BY rowid");
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(engine.readAll());
}

void lookUpADay(benchmark::State &state)
{
    const SheetYears &years = SheetYears::shared();
    Connection connection;
    open(connection, years.path());
    int day = 0;
    for ([[maybe_unused]] auto round : state) {
        Recordset rows;
        rows.Open(QStringLiteral("SELECT *  From SchedaPranzo Where datainserimento = '%1' "
                                 "ORDER BY SchedaPranzo.dataInserimento DESC , SchedaPranzo.ID;")
                      .arg(years.dayText(day += kDayStep)),
                  connection);
        benchmark::DoNotOptimize(rows.RecordCount());
    }
}

void stepADay(benchmark::State &state)
{
    const SheetYears &years = SheetYears::shared();
    BareEngine engine(years.path());
    sqlite3_stmt *const statement =
        engine.prepare("SELECT * FROM SchedaPranzo WHERE dataInserimento = ?1 ORDER BY dataInserimento DESC, ID");
    int day = 0;
    for ([[maybe_unused]] auto round : state) {
        const QByteArray text = years.dayText(day += kDayStep).toUtf8();
        sqlite3_bind_text(statement, 1, text.constData(), int(text.size()), SQLITE_STATIC);
        benchmark::DoNotOptimize(engine.readAll());
    }
}

void addSheetRow(Recordset &rows, int number)
{
    rows.AddNew();
    rows.setValue(QStringLiteral("dataInserimento"), SheetYears::shared().dayText(number / 35));
    rows.setValue(QStringLiteral("PranzoCenaSpuntino"), QStringLiteral("Pranzo"));
    rows.setValue(QStringLiteral("Piatto"), QStringLiteral("Pasta al pomodoro"));
    rows.setValue(QStringLiteral("Alimento"), QStringLiteral("Pasta di semola"));
    for (const QString &field : {QStringLiteral("KC100gr"), QStringLiteral("quantita"), QStringLiteral("KcNominale"),
                                 QStringLiteral("Totale1"), QStringLiteral("quantita2"), QStringLiteral("KcNominale2"),
                                 QStringLiteral("Totale2")})
        rows.setValue(field, 100.5 + number);
    rows.Update();
}

void insertRows(benchmark::State &state)
{
    Connection connection;
    open(connection, SheetYears::shared().emptyPath());
    for ([[maybe_unused]] auto round : state) {
        {
            const GruppoScritture group(connection);
            Recordset rows;
            rows.Open(QStringLiteral("Select * from SchedaPranzo"), connection, Recordset::Access::AppendOnly);
            for (int number = 0; number < kInsertedRows; ++number)
                addSheetRow(rows, number);
        }
        state.PauseTiming();
        connection.Execute(QStringLiteral("Delete * from SchedaPranzo"));
        state.ResumeTiming();
    }
}

void bindSheetRow(sqlite3_stmt *statement, const QByteArray &day, int number)
{
    const auto bindText = [&](int index, const char *text, int size) {
        sqlite3_bind_text(statement, index, text, size, SQLITE_STATIC);
    };
    bindText(1, day.constData(), int(day.size()));
    bindText(2, "Pranzo", -1);
    bindText(3, "Pasta al pomodoro", -1);
    bindText(4, "Pasta di semola", -1);
    for (int index = 5; index <= 11; ++index)
        sqlite3_bind_double(statement, index, 100.5 + number);
}

void insertBare(benchmark::State &state)
{
    BareEngine engine(SheetYears::shared().emptyPath());
    sqlite3_stmt *const statement = engine.prepare(
        "INSERT INTO SchedaPranzo (dataInserimento, PranzoCenaSpuntino, Piatto, Alimento, KC100gr, quantita, "
        "KcNominale, Totale1, quantita2, KcNominale2, Totale2) VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11)");
    for ([[maybe_unused]] auto round : state) {
        engine.run("BEGIN");
        for (int number = 0; number < kInsertedRows; ++number) {
            const QByteArray day = SheetYears::shared().dayText(number / 35).toUtf8();
            bindSheetRow(statement, day, number);
            sqlite3_step(statement);
            sqlite3_reset(statement);
        }
        engine.run("COMMIT");
        state.PauseTiming();
        engine.run("DELETE FROM SchedaPranzo");
        state.ResumeTiming();
    }
}

[[maybe_unused]] const bool kRegistered = [] {
    measurePair("ten years of sheets opened", 2, openTenYears, stepTenYears);
    measurePair("one day looked up in ten years", 5, lookUpADay, stepADay);
    measurePair("12,500 rows added", 2, insertRows, insertBare);
    return true;
}();

} // namespace
