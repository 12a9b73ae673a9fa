// What runs in turns say about two participants.
#pragma once

#include <cstddef>
#include <vector>

namespace lumora::latency {

struct Distribution {
    std::size_t count = 0;
    double p5 = 0;
    double median = 0;
    double p95 = 0;
};

// By nearest rank. Of nothing: all 0.
Distribution DistributionOf(std::vector<double> milliseconds);

// The first against the second: how many times as long.
struct Ratio {
    double median = 0;
    double p5 = 0;
};

// 0 where the second one has nothing.
Ratio RatioOf(const Distribution& first, const Distribution& second);

// The medians of several paired runs' ratios, each on its own.
Ratio MedianOf(const std::vector<Ratio>& runs);

} // namespace lumora::latency
