// The ink engine as plainly as it can be said: what the model test compares the real one with.
#pragma once

#include "ink/params.h"
#include "ink/pen_data.h"
#include "log/debug_log.h"
#include "platform/clock.h"
#include "support/recorded_calls.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace zq::LM::test {

// The part before the point, as near as the type can come to it.
template <class Integer> Integer Whole(double value)
{
    using Range = std::numeric_limits<Integer>;
    return std::isnan(value)
               ? Integer{0}
               : static_cast<Integer>(std::clamp(value, double{Range::min()}, double{Range::max()}));
}

inline std::int64_t Since(std::int64_t later, std::int64_t earlier) { return later - earlier; }

// Shares no rule with the engine. Its calls, samples and lines lie open instead of going to callbacks and the
// log.
class ReferenceEngine {
public:
    Params params = DefaultParams;
    bool vectorOutline = false;
    std::uint32_t screenColour = 0;
    bool pickingSetsTheRecord = false;

    Calls calls;
    std::vector<PenData> penData; // as last handed over whole
    std::vector<std::string> lines;

    void AddPenDataAry(const PenData* samples, std::size_t number)
    {
        const bool shows = params.line || params.outline || params.cursor || params.colorPicker;
        if (!shows || number == 0) {
            return;
        }
        SayLocked("AddPenDataAryCore_", GetDebugLevel() >= 3);
        for (std::size_t i = 0; i < number; ++i) {
            if (samples[i].x == 0 || samples[i].y == 0 || samples[i].time == 0) {
                pending.clear();
            } else {
                pending.push_back(samples[i]);
                pending.back().time = MillisecondClock();
            }
        }
        count = pending.size();
    }

    void DeleteOldPenData()
    {
        while (!live.empty()) {
            const std::int64_t age = Since(MillisecondClock(), live.front().time);
            Warn("DeleteOldPenDataCore_", age);
            if (age < params.inkDecayTime) {
                break;
            }
            live.erase(live.begin());
        }
        count = live.size();
    }

    void DrawLumoraLines()
    {
        SayLocked("MovePenData_", GetDebugLevel() >= 3);
        live.insert(live.end(), pending.begin(), pending.end());
        pending.clear();
        MeasureRate();
        DeleteOldPenData();
        if (params.colorPicker == 1 && !live.empty() && live.back().pressure > 0) {
            params.inkColor = Pick(true);
        }
        calls.push_back(Clear());
        if (params.colorPicker == 0 && live.size() > 1) {
            Strokes();
        }
        if (params.cursor != 0 && !live.empty()) {
            if (params.colorPicker != 0) {
                Swatch(live.back());
            } else if (live.back().pressure <= 0) {
                CrossHair(live.back());
            }
        }
        calls.push_back(Present());
    }

    std::int64_t LivePointsNum()
    {
        SayLocked("LivePointsNum", GetDebugLevel() == 255);
        return static_cast<std::int64_t>(count);
    }

    std::uint32_t PenReoprtRate()
    {
        SayLocked("PenReoprtRate", GetDebugLevel() == 255);
        return static_cast<std::uint32_t>(rate);
    }

    std::uint32_t EnabledOptions(std::uint32_t mask) const
    {
        const std::uint32_t enabled = (params.cursor ? 0x0001U : 0) + (params.line ? 0x0002U : 0) +
                                      (params.outline ? 0x0004U : 0) + (params.zebraMode ? 0x0008U : 0) +
                                      (params.usePressure ? 0x0010U : 0) + (params.useOffset ? 0x0020U : 0) +
                                      (params.colorPicker ? 0x1000U : 0);
        return enabled & mask;
    }

    void SetScale(double factor) { scale = factor > 0 ? factor : scale; }

    void ClearLivePenData() { live.clear(); }

private:
    void MeasureRate()
    {
        rate = 0;
        if (live.size() > 1) {
            const std::int64_t span = Since(live.back().time, live.front().time);
            if (span < 0) {
                WarnOf("CalcPenReportRate_", static_cast<std::int32_t>(span)); // all that this line prints
            }
            rate = span > 0 ? live.size() * 1000 / static_cast<std::uint64_t>(span) : 0;
        }
    }

    void Strokes()
    {
        if (params.line == 1) {
            if (params.outline != 0) {
                Outline();
            }
            Main();
        } else if (params.outline == 1 && vectorOutline) {
            calls.push_back(DrawPenData(live.size(), params.brushSize, params.inkColor));
            penData = live;
        } else if (params.outline == 1) {
            Outline();
            Main();
            Hollow();
        }
    }

    void Outline()
    {
        for (std::size_t i = 0; i + 1 < live.size(); ++i) {
            const std::int64_t gap = Since(live[i + 1].time, live[i].time);
            Warn("DrawLumoraLinesBody_Outline_", gap);
            if (gap < params.inkDecayTime && IsStroke(i)) {
                const std::uint32_t width = Width(live[i + 1]) + 2;
                calls.push_back(Segment(i, width % 0x80000000, Contrast(), "DrawLine"));
            }
        }
    }

    void Main()
    {
        for (std::size_t i = 0; i + 1 < live.size(); ++i) {
            const std::int64_t age = Since(MillisecondClock(), live[i].time);
            Warn("DrawLumoraLinesBody_Main_", age);
            if (age < params.inkDecayTime && IsStroke(i)) {
                const bool stripe = params.zebraMode != 0 && std::abs(age) % 20 >= 10;
                calls.push_back(Segment(i, Width(live[i + 1]) % 0x80000000,
                                        stripe ? Contrast() : params.inkColor, "DrawLine"));
            }
        }
    }

    void Hollow()
    {
        for (std::size_t i = 0; i + 1 < live.size(); ++i) {
            const std::int64_t gap = Since(live[i + 1].time, live[i].time);
            const std::uint32_t width = Width(live[i + 1]) % 0x80000000;
            const double core = width < 4 ? 0x1p64 : width - 4; // without room for a core all of it goes
            const Call segment = Segment(i, core, params.inkColor, "EraseLine");
            if (gap < params.inkDecayTime && IsStroke(i) && segment.arguments[2] != 0) {
                calls.push_back(segment);
            }
        }
    }

    void Swatch(const PenData& pen)
    {
        const auto beside = [](std::int32_t position) {
            const std::int64_t before = static_cast<std::int32_t>(std::int64_t{position} - 32);
            return before <= 32 ? std::int64_t{position} + 32 : before;
        };
        const std::uint32_t colour = Pick(false);
        const Point at = Place(beside(pen.x), beside(pen.y));
        CursorLine(at, at, 40, 0x00C0C0C0);
        CursorLine(at, at, 32, colour);
    }

    void CrossHair(const PenData& pen)
    {
        const std::int64_t x = pen.x;
        const std::int64_t y = pen.y;
        CursorLine(Place(x, y - 7), Place(x, y + 7), 4, Contrast());
        CursorLine(Place(x - 7, y), Place(x + 7, y), 4, Contrast());
        CursorLine(Place(x, y - 5), Place(x, y + 5), 2, params.inkColor);
        CursorLine(Place(x - 5, y), Place(x + 5, y), 2, params.inkColor);
    }

    std::uint32_t Pick(bool clearFlag)
    {
        calls.push_back(PickColor(clearFlag));
        if (pickingSetsTheRecord) {
            params.inkColor = screenColour;
            params.colorPicker = clearFlag ? 0 : params.colorPicker;
        }
        return screenColour;
    }

    std::uint32_t Contrast() const
    {
        const std::uint32_t colour = params.inkColor;
        return colour % 256 + colour / 256 % 256 + colour / 65536 % 256 < 384 ? 0x00FFFFFF : 0;
    }

    std::uint32_t Width(const PenData& newer) const
    {
        if (params.usePressure == 0) {
            return params.brushSize;
        }
        const double full = params.maxPressure;
        const auto width = Whole<std::uint32_t>(newer.pressure / full * params.brushSize + 0.5);
        return std::min(std::max(width, params.minBrushSize), params.brushSize);
    }

    Point Place(std::int64_t x, std::int64_t y) const
    {
        return {Whole<std::int32_t>(static_cast<std::int32_t>(x) * scale),
                Whole<std::int32_t>(static_cast<std::int32_t>(y) * scale)};
    }

    Call Segment(std::size_t i, double width, std::uint32_t colour, const char* name) const
    {
        const std::int64_t up = params.useOffset != 0 ? 50 : 0;
        Call call = DrawLine(Place(live[i].x, live[i].y - up), Place(live[i + 1].x, live[i + 1].y - up),
                             Whole<std::uint32_t>(width * scale), colour);
        call.name = name;
        return call;
    }

    void CursorLine(Point from, Point to, std::uint32_t width, std::uint32_t colour)
    {
        calls.push_back(DrawLine(from, to, Whole<std::uint32_t>(width * scale), colour));
    }

    void SayLocked(const char* operation, bool appears)
    {
        if (appears) {
            lines.push_back(std::string("\t").append(operation).append(" is locked.\n"));
            lines.push_back(std::string("\t").append(operation).append(" is unlocked.\n"));
        }
    }

    void Warn(const char* operation, std::int64_t difference)
    {
        if (difference < 0) {
            WarnOf(operation, difference);
        }
    }

    void WarnOf(const char* operation, std::int64_t difference)
    {
        if (GetDebugLevel() >= 3) {
            lines.push_back("Warning (zq::LM::Drawing::" + std::string(operation) +
                            ") : time_sub = " + std::to_string(difference) + "\n");
        }
    }

    bool IsStroke(std::size_t i) const { return live[i].pressure > 0 && live[i + 1].pressure > 0; }

    std::vector<PenData> pending;
    std::vector<PenData> live;
    std::size_t count = 0;
    std::uint64_t rate = 0;
    double scale = 1;
};

} // namespace zq::LM::test
