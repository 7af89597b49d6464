// The road from a dish list to balanced days, against the bare insertion of the same rows, and ten years against one.
#include "BareInsertion.h"
#include "Ratios.h"
#include "road/RoadWorld.h"

namespace {

constexpr int kYear = 365; // days

// Each turn works on a fresh copy of the example archive; making and dropping it is no part of the time.
template <class Work>
void onFreshWorlds(benchmark::State &state, const Work &work)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto world = std::make_unique<RoadWorld>();
        state.ResumeTiming();
        work(*world);
        state.PauseTiming();
        world.reset();
        state.ResumeTiming();
    }
}

Measured planned(int days)
{
    return [days](benchmark::State &state) {
        onFreshWorlds(state, [days](RoadWorld &world) { world.planExpandBalance(days); });
    };
}

const std::vector<BareTable> &rowsOfAYear()
{
    static const std::vector<BareTable> rows = [] {
        RoadWorld pattern;
        pattern.planExpandBalance(kYear);
        Connection &written = pattern.modulo().dati();
        return std::vector<BareTable>{readBare(written, "Menu"), readBare(written, "SchedaPranzo")};
    }();
    return rows;
}

void insertYear(benchmark::State &state)
{
    const std::vector<BareTable> &rows = rowsOfAYear();
    onFreshWorlds(state, [&rows](RoadWorld &world) {
        world.close();
        insertBare(world.archivePath(), rows);
    });
}

// Ten years may cost ten times one year, and a fifth more.
[[maybe_unused]] const bool kRegistered = [] {
    measurePair("a year planned, expanded, balanced", 4, planned(kYear), insertYear);
    measurePair("ten years of it against one", 12, planned(10 * kYear), planned(kYear));
    return true;
}();

} // namespace
