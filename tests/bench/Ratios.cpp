#include "Ratios.h"

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

struct Pair
{
    std::string name;
    double limit;
};

std::vector<Pair> &pairs()
{
    static std::vector<Pair> all;
    return all;
}

std::string ours(const std::string &name)
{
    return name + ": ours";
}

std::string bare(const std::string &name)
{
    return name + ": bare";
}

void registerOne(const std::string &name, const Measured &work)
{
    benchmark::RegisterBenchmark(name.c_str(), work)->Repetitions(7)->MinTime(0.1)->Unit(benchmark::kMicrosecond);
}

} // namespace

void measurePair(const std::string &name, double limit, const Measured &oursWork, const Measured &bareWork)
{
    pairs().push_back({name, limit});
    registerOne(ours(name), oursWork);
    registerOne(bare(name), bareWork);
}

void RatioReporter::ReportRuns(const std::vector<Run> &runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const Run &run : runs) {
        if (run.run_type != Run::RT_Iteration || run.error_occurred)
            continue;
        const double seconds =
            run.cpu_accumulated_time / double(std::max<benchmark::IterationCount>(run.iterations, 1));
        const auto [known, isNew] = m_shortest.try_emplace(run.run_name.function_name, seconds);
        if (!isNew)
            known->second = std::min(known->second, seconds);
    }
}

bool RatioReporter::printRatios() const
{
    bool kept = true;
    for (const Pair &pair : pairs()) {
        const auto oursTime = m_shortest.find(ours(pair.name));
        const auto bareTime = m_shortest.find(bare(pair.name));
        if (oursTime == m_shortest.end() || bareTime == m_shortest.end())
            continue;
        const double ratio = oursTime->second / bareTime->second;
        std::printf("%-40s %8.2f ms against %8.2f ms, ratio %.2f of at most %.2f%s\n", pair.name.c_str(),
                    oursTime->second * 1e3, bareTime->second * 1e3, ratio, pair.limit,
                    ratio <= pair.limit ? "" : "   TOO SLOW");
        kept = kept && ratio <= pair.limit;
    }
    return kept;
}
