#include "Ratios.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <string>
#include <vector>

int main(int count, char **arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen"); // the forms that are measured need no display
    const QApplication application(count, arguments);
    // The two halves of a pair take turns, so that a machine that slows down slows both.
    std::string interleaved = "--benchmark_enable_random_interleaving=true";
    std::vector<char *> all(arguments, arguments + count);
    all.insert(all.begin() + 1, interleaved.data());
    int allCount = int(all.size());
    benchmark::Initialize(&allCount, all.data());
    if (benchmark::ReportUnrecognizedArguments(allCount, all.data()))
        return 1;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.printRatios() ? 0 : 1;
}
