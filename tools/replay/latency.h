// The summary of measured latencies.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace lumora::replay {

struct LatencySummary {
    std::size_t count = 0;
    double min = 0;
    double median = 0;
    double p95 = 0;
    double p99 = 0;
    double max = 0;
};

// The smallest of `sorted` that at least `percent` of 100 of them do not exceed (the nearest rank). Needs one
// value.
double NearestRank(const std::vector<double>& sorted, std::size_t percent);

LatencySummary Summarise(std::vector<double> milliseconds);

// One line, milliseconds with three decimals.
std::string Describe(const LatencySummary& summary);

} // namespace lumora::replay
