// Percentiles by nearest rank: every figure is a latency that was really measured.
#include "latency.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

namespace lumora::replay {

double NearestRank(const std::vector<double>& sorted, std::size_t percent)
{
    const std::size_t rank = (sorted.size() * percent + 99) / 100;
    return sorted[std::max<std::size_t>(rank, 1) - 1];
}

LatencySummary Summarise(std::vector<double> milliseconds)
{
    if (milliseconds.empty()) {
        return {};
    }
    std::sort(milliseconds.begin(), milliseconds.end());
    return {milliseconds.size(),           milliseconds.front(),          NearestRank(milliseconds, 50),
            NearestRank(milliseconds, 95), NearestRank(milliseconds, 99), milliseconds.back()};
}

std::string Describe(const LatencySummary& summary)
{
    std::ostringstream text;
    text << "latency from pen input to painted ink, ms: n " << summary.count;
    if (summary.count != 0) {
        text << std::fixed << std::setprecision(3) << ", min " << summary.min << ", median " << summary.median
             << ", p95 " << summary.p95 << ", p99 " << summary.p99 << ", max " << summary.max;
    }
    return text.str();
}

} // namespace lumora::replay
