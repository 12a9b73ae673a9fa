// What a pen reports, and how the system's numbers become that. Needs no Windows, so it can be tested
// anywhere.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <ostream>
#include <vector>

namespace pen_host {

constexpr std::int32_t FullPressure = 32767; // Lumora's default, and that of recordings

struct PenSample {
    double x = 0; // pixels of the screen, and their fractions
    double y = 0;
    std::int32_t pressure = 0; // 1 to FullPressure touches, 0 hovers
    std::uint32_t time = 0;    // milliseconds of the system's clock, which wraps
};

// What a sample means for the stroke.
enum class Step { Hover, Begin, Continue, End, Cancel, Nothing };

inline Step NextStep(bool writes, bool touches, bool cancelled)
{
    if (writes) {
        return cancelled ? Step::Cancel : touches ? Step::Continue : Step::End;
    }
    return cancelled ? Step::Nothing : touches ? Step::Begin : Step::Hover;
}

// Windows reports up to 1024. A pen that feels no pressure reports 0 and writes at full width. A touch is
// never 0, however light, because that would end Lumora's stroke.
inline std::int32_t ScalePressure(std::uint32_t reported, bool feelsPressure)
{
    constexpr std::uint32_t FullReport = 1024;
    const std::uint32_t known = feelsPressure ? (std::min)(reported, FullReport) : FullReport;
    return (std::max)(static_cast<std::int32_t>(known * FullPressure / FullReport), 1);
}

// Puts a sample where the tablet's surface, in HIMETRIC, lies over the display: finer than the system's own
// whole `pixel`, which serves where a device does not say how large it is. Takes the system's POINT and RECT.
template <typename Point, typename Rectangle>
void PutOnScreen(PenSample& sample, Point himetric, const Rectangle& surface, const Rectangle& display,
                 Point pixel)
{
    const auto map = [](double from, double begin, double end, double newBegin, double newEnd,
                        double otherwise) {
        return end > begin ? newBegin + (from - begin) * (newEnd - newBegin) / (end - begin) : otherwise;
    };
    sample.x = map(himetric.x, surface.left, surface.right, display.left, display.right, pixel.x);
    sample.y = map(himetric.y, surface.top, surface.bottom, display.top, display.bottom, pixel.y);
}

// How much to ask for of a history. After a stall it may be of any length; this is a second of a fast pen.
inline std::uint32_t BoundedHistory(std::uint32_t available)
{
    constexpr std::uint32_t Most = 256;
    return (std::min)((std::max)(available, std::uint32_t{1}), Most);
}

// The system fills the buffer newest first, and says how many it has, which may be more than fit.
template <typename Report> std::vector<Report> OldestFirst(std::vector<Report> buffer, std::size_t available)
{
    buffer.resize((std::min)(buffer.size(), available));
    std::reverse(buffer.begin(), buffer.end());
    return buffer;
}

// A recording for lumora-replay. Hundredths of a pixel keep what HIMETRIC told.
inline void WriteSvc(std::ostream& output, const std::vector<PenSample>& samples)
{
    constexpr double UnitsPerPixel = 100;
    output << "# By lumora-pen-host: hundredths of a pixel, y upwards; angles as if the pen stood upright.\n"
           << samples.size() << '\n';
    std::uint32_t last = samples.empty() ? 0 : samples.front().time;
    std::uint32_t time = 0;
    for (const PenSample& sample : samples) {
        // Time must not run backwards, and pen and mouse have stamps of their own. A difference outlives the
        // wrap.
        const std::uint32_t passed = sample.time - last;
        if (passed < 0x80000000U) {
            time += passed;
            last = sample.time;
        }
        output << std::lround(sample.x * UnitsPerPixel) << ' ' << std::lround(-sample.y * UnitsPerPixel)
               << ' ' << time << ' ' << (sample.pressure > 0 ? 1 : 0) << " 0 900 " << sample.pressure << '\n';
    }
}

} // namespace pen_host
