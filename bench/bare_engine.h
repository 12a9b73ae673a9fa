// The engine's work in plain loops: the same tests and the same arithmetic, and nothing around them.
#pragma once

#include "ink/drawing.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace zq::LM::bench {

// Without locks, log lines and warnings, and for one thread. Its functions lie in a file of their own, like
// the engine's, so that no caller's knowledge makes them shorter.
class BareEngine {
public:
    BareEngine(const Params& params, SignedLineFunction drawLine, SignedLineFunction eraseLine);

    void Add(const PenData* samples, std::size_t added);
    void Frame();
    void ClearLive() { live.clear(); }

private:
    struct Segment {
        std::int32_t x1, y1, x2, y2;
        std::uint32_t width;
    };

    void Move_();
    void Rate_();
    void Age_();
    void Main_();
    void Outline_();
    void Hollow_();
    Segment SegmentOf_(const PenData& older, const PenData& newer) const;
    std::int32_t Coordinate_(std::int32_t value, std::int32_t shift) const;
    std::uint32_t Width_(std::int64_t width) const;

    Params params;
    double scale = 1.0;
    std::int32_t shiftX = 0;
    std::int32_t shiftY = -50;
    std::vector<PenData> pending;
    std::vector<PenData> live;
    std::int64_t count = 0;
    std::uint32_t rate = 0;
    ClearFunction clear;
    PresentFunction present;
    LineFunction line; // wrapped twice, as the engine's: signed widths inside unsigned ones
    LineFunction erase;
};

} // namespace zq::LM::bench
