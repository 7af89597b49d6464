// The safety copy of a year's archive, checked and named, against the plain copy of its file.
#include "Ratios.h"

#include "core/CopieDiSicurezza.h"
#include "road/RoadWorld.h"

#include <QFile>

#include <stdexcept>

namespace {

constexpr int kYear = 365; // days

RoadWorld &aYear()
{
    static RoadWorld world;
    [[maybe_unused]] static const bool planned = [] {
        world.planExpandBalance(kYear);
        world.close(); // so that the journal goes into the archive
        world.open();
        return true;
    }();
    return world;
}

template <class Copy>
void copyAgainAndAgain(benchmark::State &state, const Copy &copy)
{
    RoadWorld &world = aYear();
    for ([[maybe_unused]] auto round : state) {
        const QString made = copy(world);
        state.PauseTiming();
        if (!QFile::remove(made))
            throw std::runtime_error("no copy was made");
        state.ResumeTiming();
    }
}

void copyChecked(benchmark::State &state)
{
    copyAgainAndAgain(
        state, [](RoadWorld &world) { return FaiCopia(world.modulo().dati(), world.modulo().mondo.orologio.now()); });
}

void copyFile(benchmark::State &state)
{
    copyAgainAndAgain(state, [](RoadWorld &world) {
        const QString to = world.archivePath() + ".copia";
        QFile from(world.archivePath());
        QFile file(to);
        if (!from.open(QIODevice::ReadOnly) || !file.open(QIODevice::WriteOnly) || file.write(from.readAll()) < 0)
            throw std::runtime_error("the archive cannot be copied");
        return to;
    });
}

[[maybe_unused]] const bool kRegistered = [] {
    measurePair("the safety copy of a year's archive", 40, copyChecked, copyFile);
    return true;
}();

} // namespace
