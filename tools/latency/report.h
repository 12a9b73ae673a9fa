// The table of a measurement.
#pragma once

#include "latency/exchange.h"
#include "latency/pairs.h"

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

namespace lumora::latency {

struct PairResult {
    std::string first;
    std::string second;
    Pace pace = Pace::Isolated;
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::uint32_t samples = 0;      // that were handed over to each, in all runs
    std::vector<double> firstTimes; // of all runs, milliseconds
    std::vector<double> secondTimes;
    std::vector<Ratio> runs;
};

// Two lines of Markdown's.
void WriteTableHead(std::ostream& output);

// One line of Markdown's: both distributions, what is missing, and the median of the runs' ratios.
void WriteTableRow(std::ostream& output, const PairResult& result);

// Each time on a line of its own, after the names of all columns.
void WriteCsvHead(std::ostream& output);
void WriteCsv(std::ostream& output, const PairResult& result);

} // namespace lumora::latency
