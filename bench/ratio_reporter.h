// Prints the usual console table and, at the end, what the library costs as a multiple of a bare loop.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace zq::LM::bench {

// Benchmarks are named subject/library and subject/bare, with their arguments behind: each such pair gives a
// ratio.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    RatioReporter() : ConsoleReporter(OO_Tabular) {}

    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    std::map<std::string, double> fastest; // nanoseconds of CPU time by name, over all repetitions
    std::map<std::pair<std::int64_t, std::int64_t>, std::string> names; // in the order of the source
};

} // namespace zq::LM::bench
