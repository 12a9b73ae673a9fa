// The table of a measurement.
#include "latency/report.h"

#include <iomanip>
#include <ostream>

namespace lumora::latency {

namespace {

const char* NameOf(Pace pace) { return pace == Pace::Stream ? "200 Hz" : "isolated"; }

void WriteTimes(std::ostream& output, const Distribution& times, std::uint32_t samples)
{
    output << std::fixed << std::setprecision(2) << times.median << " (" << times.p5 << " to " << times.p95
           << ')';
    if (times.count < samples) {
        output << ", " << samples - times.count << " not seen";
    }
}

void WriteLines(std::ostream& output, const PairResult& result, const std::string& name,
                const std::vector<double>& times)
{
    for (const double time : times) {
        output << result.width << 'x' << result.height << ',' << NameOf(result.pace) << ',' << name << ','
               << std::fixed << std::setprecision(3) << time << '\n';
    }
}

} // namespace

void WriteTableHead(std::ostream& output)
{
    output << "| Screen | Samples | First | Second | First, ms | Second, ms | Ratio of medians | Ratio of "
              "5th percentiles |\n"
              "|---|---|---|---|---|---|---|---|\n";
}

void WriteTableRow(std::ostream& output, const PairResult& result)
{
    output << "| " << result.width << " x " << result.height << " | " << NameOf(result.pace) << " | "
           << result.first << " | " << result.second << " | ";
    WriteTimes(output, DistributionOf(result.firstTimes), result.samples);
    output << " | ";
    WriteTimes(output, DistributionOf(result.secondTimes), result.samples);
    const Ratio ratio = MedianOf(result.runs);
    output << " | " << ratio.median << " | " << ratio.p5 << " |\n";
}

void WriteCsvHead(std::ostream& output) { output << "screen,samples,name,milliseconds\n"; }

void WriteCsv(std::ostream& output, const PairResult& result)
{
    WriteLines(output, result, result.first, result.firstTimes);
    WriteLines(output, result, result.second, result.secondTimes);
}

} // namespace lumora::latency
