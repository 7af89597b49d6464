// The daily sheet's window on ten years of sheets against one year: what grows with the years must not be felt.
#include "BareEngine.h"
#include "Ratios.h"
#include "SheetYears.h"

#include "platform/ui/DataCombo.h"
#include "platform/ui/FormHost.h"
#include "platform/ui/FormRegistry.h"
#include "road/RoadWorld.h"
#include "sheet/forms/FrmCibra.h"

#include <QAction>
#include <QCoreApplication>
#include <QFile>
#include <QFocusEvent>
#include <QLineEdit>

#include <stdexcept>

namespace {

constexpr int kDayStep = 37; // from one looked-up day to the next

// A program on a copy of the years' archive, standing on the first day.
class SheetWorld
{
public:
    explicit SheetWorld(const SheetYears &years) : m_years(years)
    {
        m_road.close();
        if (!QFile::remove(m_road.archivePath()) || !QFile::copy(years.path(), m_road.archivePath()))
            throw std::runtime_error("the years' archive cannot be copied");
        m_road.open();
        m_registry.setFactory<FrmCibra>(
            [this] { return std::make_unique<FrmCibra>(m_host, m_registry, m_road.modulo()); });
    }
    ~SheetWorld() { m_registry.dropAll(); }
    SheetWorld(const SheetWorld &) = delete;
    SheetWorld &operator=(const SheetWorld &) = delete;

    FrmCibra &open()
    {
        FrmCibra &form = m_registry.get<FrmCibra>();
        form.showModeless();
        return form;
    }
    void close() { m_registry.dropAll(); }
    QString nextDay() { return m_years.dayText(m_day += kDayStep); }

private:
    const SheetYears &m_years;
    int m_day = 0;
    RoadWorld m_road;
    FormHost m_host;
    FormRegistry m_registry;
};

Measured formOpened(const SheetYears &(*years)())
{
    return [years](benchmark::State &state) {
        SheetWorld world(years());
        for ([[maybe_unused]] auto round : state) {
            world.open();
            state.PauseTiming();
            world.close();
            state.ResumeTiming();
        }
    };
}

Measured dayFound(const SheetYears &(*years)())
{
    return [years](benchmark::State &state) {
        SheetWorld world(years());
        auto *const days = world.open().findChild<DataCombo *>("DataCombo2");
        for ([[maybe_unused]] auto round : state)
            days->setText(world.nextDay());
    };
}

// A portion typed over and left: the row written, the day summed again.
Measured portionEdited(const SheetYears &(*years)())
{
    return [years](benchmark::State &state) {
        SheetWorld world(years());
        auto *const portion = world.open().findChild<QLineEdit *>("TxtFields_8");
        int grams = 20;
        for ([[maybe_unused]] auto round : state) {
            portion->setText(QString::number(grams = grams % 500 + 1));
            QFocusEvent leaves(QEvent::FocusOut, Qt::TabFocusReason);
            QCoreApplication::sendEvent(portion, &leaves);
        }
    };
}

// Every row of the ten years in the overview grid.
void overviewOpened(benchmark::State &state)
{
    SheetWorld world(SheetYears::shared());
    auto *const entry = world.open().findChild<QAction *>("mnuGriglia");
    for ([[maybe_unused]] auto round : state) {
        entry->trigger();
        state.PauseTiming();
        entry->trigger();
        state.ResumeTiming();
    }
}

void readTenYears(benchmark::State &state)
{
    BareEngine engine(SheetYears::shared().path());
    engine.prepare("SELECT * FROM SchedaPranzo ORDER BY dataInserimento DESC, rowid");
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(engine.readAll());
}

// The list of days grows with the years, the rest does not.
[[maybe_unused]] const bool kRegistered = [] {
    measurePair("sheet opened, ten years against one", 5, formOpened(SheetYears::shared),
                formOpened(SheetYears::ofOneYear));
    measurePair("a day found, ten years against one", 2, dayFound(SheetYears::shared), dayFound(SheetYears::ofOneYear));
    measurePair("a portion edited, ten years against one", 2, portionEdited(SheetYears::shared),
                portionEdited(SheetYears::ofOneYear));
    measurePair("all days of ten years in the overview", 4, overviewOpened, readTenYears);
    return true;
}();

} // namespace
