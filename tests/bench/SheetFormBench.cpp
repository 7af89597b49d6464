// The daily sheet's window on ten years of sheets against one year: what grows with the years must not be felt.
#include "Ratios.h"
#include "SheetYears.h"

#include "platform/ui/DataCombo.h"
#include "platform/ui/FormHost.h"
#include "platform/ui/FormRegistry.h"
#include "sheet/forms/FrmCibra.h"
#include "support/TestWorld.h"

#include <QFile>
#include <QFocusEvent>
#include <QLineEdit>

#include <stdexcept>

namespace {

constexpr int kDayStep = 37; // from one looked-up day to the next

// A program on a copy of the years' archive, standing in the middle of the first year.
class SheetWorld
{
public:
    explicit SheetWorld(const SheetYears &years) : m_years(years)
    {
        const QString copy = m_world.cartella.path("\\Anni.Mdb");
        QFile::copy(years.path(), copy);
        m_world.orologio.when = QDateTime(QDate(2020, 6, 15), QTime(12, 0));
        m_world.setHousehold();
        m_world.modulo.PercorsoDbDati = copy;
        m_world.modulo.ConnessioneDati = std::make_unique<Connection>();
        if (!m_world.modulo.ConnessioneDati->Open(copy))
            throw std::runtime_error("the years' archive cannot be opened");
        m_registry.setFactory<FrmCibra>(
            [this] { return std::make_unique<FrmCibra>(m_host, m_registry, m_world.modulo); });
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
    TestWorld m_world;
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

// The list of days grows with the years, the rest does not.
[[maybe_unused]] const bool kRegistered = [] {
    measurePair("sheet opened, ten years against one", 5, formOpened(SheetYears::shared),
                formOpened(SheetYears::ofOneYear));
    measurePair("a day found, ten years against one", 2, dayFound(SheetYears::shared), dayFound(SheetYears::ofOneYear));
    measurePair("a portion edited, ten years against one", 2, portionEdited(SheetYears::shared),
                portionEdited(SheetYears::ofOneYear));
    return true;
}();

} // namespace
