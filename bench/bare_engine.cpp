// The engine's work in plain loops.
#include "bare_engine.h"

#include "engine_ink.h"
#include "ink/truncation.h"
#include "platform/clock.h"

#include <algorithm>
#include <utility>

namespace zq::LM::bench {

namespace {

std::int64_t Difference(std::uint32_t later, std::uint32_t earlier)
{
    return static_cast<std::int64_t>(later) - static_cast<std::int64_t>(earlier);
}

bool IsStroke(const PenData& older, const PenData& newer)
{
    return older.pressure >= 1 && newer.pressure >= 1;
}

} // namespace

BareEngine::BareEngine(const Params& params, SignedLineFunction drawLine, SignedLineFunction eraseLine)
    : params(params), clear(TakeCall), present(TakeCall), line(std::move(drawLine)),
      erase(std::move(eraseLine))
{
}

void BareEngine::Add(const PenData* samples, std::size_t added)
{
    for (std::size_t i = 0; i < added; ++i) {
        const PenData& sample = samples[i];
        if (sample.x == 0 || sample.y == 0 || sample.time == 0) {
            pending.clear();
        } else {
            pending.push_back(sample);
            pending.back().time = MillisecondClock();
        }
    }
    count = static_cast<std::int64_t>(pending.size());
}

void BareEngine::Frame()
{
    Move_();
    Rate_();
    Age_();
    clear();
    if (live.size() > 1) {
        if (params.outline != 0) {
            Outline_();
        }
        if (params.line != 0 || params.outline != 0) {
            Main_();
        }
        if (params.line == 0 && params.outline != 0) {
            Hollow_();
        }
    }
    present();
}

void BareEngine::Move_()
{
    live.insert(live.end(), pending.begin(), pending.end());
    pending.clear();
    count = static_cast<std::int64_t>(live.size());
}

void BareEngine::Rate_()
{
    const std::int64_t span = live.size() < 2 ? 0 : Difference(live.back().time, live.front().time);
    rate = span > 0 ? static_cast<std::uint32_t>(live.size() * 1000 / static_cast<std::uint64_t>(span)) : 0;
}

void BareEngine::Age_()
{
    const std::uint32_t now = MillisecondClock();
    const auto isYoung = [&](const PenData& sample) {
        return Difference(now, sample.time) < static_cast<std::int64_t>(params.inkDecayTime);
    };
    live.erase(live.begin(), std::find_if(live.begin(), live.end(), isYoung));
    count = static_cast<std::int64_t>(live.size());
}

void BareEngine::Main_()
{
    const std::uint32_t now = MillisecondClock();
    const std::uint32_t contrast = ContrastColour(params.inkColor);
    for (std::size_t i = 0; i + 1 < live.size(); ++i) {
        const std::int64_t age = Difference(now, live[i].time);
        if (age >= static_cast<std::int64_t>(params.inkDecayTime) || !IsStroke(live[i], live[i + 1])) {
            continue;
        }
        const Segment segment = SegmentOf_(live[i], live[i + 1]);
        const std::uint32_t colour = params.zebraMode != 0 && age / 10 % 2 != 0 ? contrast : params.inkColor;
        const std::uint32_t width = Width_(segment.width);
        line(segment.x1, segment.y1, width, colour, segment.x2, segment.y2, width, colour);
    }
}

void BareEngine::Outline_()
{
    const std::uint32_t colour = ContrastColour(params.inkColor);
    for (std::size_t i = 0; i + 1 < live.size(); ++i) {
        const std::int64_t gap = Difference(live[i + 1].time, live[i].time);
        if (gap >= static_cast<std::int64_t>(params.inkDecayTime) || !IsStroke(live[i], live[i + 1])) {
            continue;
        }
        const Segment segment = SegmentOf_(live[i], live[i + 1]);
        const std::uint32_t width = Width_(segment.width + 2);
        line(segment.x1, segment.y1, width, colour, segment.x2, segment.y2, width, colour);
    }
}

void BareEngine::Hollow_()
{
    for (std::size_t i = 0; i + 1 < live.size(); ++i) {
        const std::int64_t gap = Difference(live[i + 1].time, live[i].time);
        if (gap >= static_cast<std::int64_t>(params.inkDecayTime) || !IsStroke(live[i], live[i + 1])) {
            continue;
        }
        const Segment segment = SegmentOf_(live[i], live[i + 1]);
        const auto inner = static_cast<std::uint64_t>(static_cast<std::int64_t>(segment.width) - 4);
        const std::uint32_t width = TruncateToUnsigned(static_cast<double>(inner) * scale);
        if (width != 0) {
            erase(segment.x1, segment.y1, width, params.inkColor, segment.x2, segment.y2, width,
                  params.inkColor);
        }
    }
}

BareEngine::Segment BareEngine::SegmentOf_(const PenData& older, const PenData& newer) const
{
    const std::int32_t dx = params.useOffset != 0 ? shiftX : 0;
    const std::int32_t dy = params.useOffset != 0 ? shiftY : 0;
    std::uint32_t width = params.brushSize;
    if (params.usePressure != 0) {
        const double share = static_cast<double>(newer.pressure) / static_cast<double>(params.maxPressure);
        width = TruncateToUnsigned(share * static_cast<double>(params.brushSize) + 0.5);
        width = std::min(std::max(width, params.minBrushSize), params.brushSize);
    }
    return {Coordinate_(older.x, dx), Coordinate_(older.y, dy), Coordinate_(newer.x, dx),
            Coordinate_(newer.y, dy), width};
}

std::int32_t BareEngine::Coordinate_(std::int32_t value, std::int32_t shift) const
{
    return TruncateToSigned(static_cast<double>(value + shift) * scale);
}

std::uint32_t BareEngine::Width_(std::int64_t width) const
{
    return TruncateToUnsigned(static_cast<double>(width & 0x7FFFFFFF) * scale);
}

} // namespace zq::LM::bench
