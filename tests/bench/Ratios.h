// Pairs of measurements, ours and the bare work, and their ratio.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <map>
#include <string>

using Measured = std::function<void(benchmark::State &)>;

// Registers "name: ours" and "name: bare". Our time may be at most `limit` times the bare one.
void measurePair(const std::string &name, double limit, const Measured &ours, const Measured &bare);

// Prints the measurements as they come and keeps the shortest time of each.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override;
    // One line a pair; false where one is above its limit.
    bool printRatios() const;

private:
    std::map<std::string, double> m_shortest; // seconds an iteration
};
