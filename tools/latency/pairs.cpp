// What runs in turns say about two participants.
#include "latency/pairs.h"

#include "latency.h"

#include <algorithm>

namespace lumora::latency {

namespace {

double Middle(std::vector<double> values)
{
    if (values.empty()) {
        return 0;
    }
    std::sort(values.begin(), values.end());
    return replay::NearestRank(values, 50);
}

double Share(double first, double second) { return second > 0 ? first / second : 0; }

} // namespace

Distribution DistributionOf(std::vector<double> milliseconds)
{
    if (milliseconds.empty()) {
        return {};
    }
    std::sort(milliseconds.begin(), milliseconds.end());
    return {milliseconds.size(), replay::NearestRank(milliseconds, 5), replay::NearestRank(milliseconds, 50),
            replay::NearestRank(milliseconds, 95)};
}

Ratio RatioOf(const Distribution& first, const Distribution& second)
{
    return {Share(first.median, second.median), Share(first.p5, second.p5)};
}

Ratio MedianOf(const std::vector<Ratio>& runs)
{
    std::vector<double> medians;
    std::vector<double> lows;
    for (const Ratio& run : runs) {
        medians.push_back(run.median);
        lows.push_back(run.p5);
    }
    return {Middle(medians), Middle(lows)};
}

} // namespace lumora::latency
