// The ink engine's frame: outline, main and hollow strokes, the hover cross-hair and the colour picker's
// swatch.
#include "ink/drawing.h"
#include "ink/truncation.h"
#include "platform/clock.h"

namespace zq::LM {

namespace {

// The top bit of a width means nothing.
constexpr std::uint32_t WidthBits = 0x7FFFFFFF;

std::int64_t Age(std::uint32_t now, const PenData& sample)
{
    return static_cast<std::int64_t>(now) - static_cast<std::int64_t>(sample.time);
}

// The time between a segment's two samples, which unlike an age stays what it is.
std::int64_t Gap(const PenData& older, const PenData& newer) { return Age(newer.time, older); }

// The pen was down all the way.
bool IsStroke(const PenData& older, const PenData& newer) { return Touches(older) && Touches(newer); }

// A host may send any coordinate, and a signed sum must not overflow.
std::int32_t Sum(std::int32_t a, std::int32_t b)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

// As ink ages its stripes pass along the stroke.
bool IsContrastBand(std::int64_t age)
{
    constexpr std::int64_t BandMilliseconds = 10;
    return age / BandMilliseconds % 2 != 0;
}

} // namespace

void Drawing::DrawLumoraLines()
{
    MovePenData_();
    CalcPenReportRate_();
    DeleteOldPenDataCore_();
    PickColor_();
    clearCallback();
    if (!liveSamples.empty()) {
        DrawStrokes_();
        if (params.cursor != 0) {
            DrawCursor_();
        }
    }
    presentCallback();
}

void Drawing::PickColor_()
{
    if (params.colorPicker == 1 && !liveSamples.empty() && liveSamples.back().pressure > 0) {
        params.inkColor = pickColorCallback(true); // the touch was the choice: picking is over
    }
}

void Drawing::DrawStrokes_()
{
    const bool hasSegments = liveSamples.size() > 1;
    if (params.colorPicker != 0 || !hasSegments) {
        return;
    }
    if (params.line == 1) {
        // A stroke a little wider, below the other: its border stays in sight.
        if (params.outline != 0) {
            DrawLumoraLinesBody_Outline_();
        }
        DrawLumoraLinesBody_Main_();
    } else if (params.outline == 1) {
        if (vectorOutline) {
            drawPenDataCallback(&liveSamples, params.brushSize, params.inkColor);
            return;
        }
        DrawLumoraLinesBody_Outline_();
        DrawLumoraLinesBody_Main_();
        DrawLumoraLinesBody_Hollow_();
    }
}

void Drawing::DrawLumoraLinesBody_Main_()
{
    const std::uint32_t now = MillisecondClock();
    const std::int64_t life = params.inkDecayTime;
    const std::uint32_t inkColor = params.inkColor;
    const std::uint32_t contrastColour = ContrastColour(inkColor);
    for (std::size_t i = 0; i + 1 < liveSamples.size(); ++i) {
        const PenData& older = liveSamples[i];
        const PenData& newer = liveSamples[i + 1];
        const std::int64_t age = Age(now, older);
        if (age < 0) {
            LogTimeWarning_("DrawLumoraLinesBody_Main_", age);
        }
        if (age >= life || !IsStroke(older, newer)) {
            continue;
        }
        const Segment segment = MakeSegment_(older, newer);
        const std::uint32_t colour = params.zebraMode != 0 && IsContrastBand(age) ? contrastColour : inkColor;
        const std::uint32_t width = ScaledWidth_(segment.width);
        drawLineCallback(segment.x1, segment.y1, width, colour, segment.x2, segment.y2, width, colour);
    }
}

void Drawing::DrawLumoraLinesBody_Outline_()
{
    constexpr std::uint32_t Rim = 2;
    const std::int64_t life = params.inkDecayTime;
    const std::uint32_t colour = ContrastColour(params.inkColor);
    for (std::size_t i = 0; i + 1 < liveSamples.size(); ++i) {
        const PenData& older = liveSamples[i];
        const PenData& newer = liveSamples[i + 1];
        // A segment drawn faster than ink lives has its border for as long as both samples are there.
        const std::int64_t gap = Gap(older, newer);
        if (gap < 0) {
            LogTimeWarning_("DrawLumoraLinesBody_Outline_", gap);
        }
        if (gap >= life || !IsStroke(older, newer)) {
            continue;
        }
        const Segment segment = MakeSegment_(older, newer);
        const std::uint32_t width = ScaledWidth_(segment.width + Rim);
        drawLineCallback(segment.x1, segment.y1, width, colour, segment.x2, segment.y2, width, colour);
    }
}

void Drawing::DrawLumoraLinesBody_Hollow_()
{
    for (std::size_t i = 0; i + 1 < liveSamples.size(); ++i) {
        const PenData& older = liveSamples[i];
        const PenData& newer = liveSamples[i + 1];
        if (Gap(older, newer) >= static_cast<std::int64_t>(params.inkDecayTime) || !IsStroke(older, newer)) {
            continue;
        }
        const Segment segment = MakeSegment_(older, newer);
        // A stroke without room for a core is all core: below zero, this becomes the widest line there is.
        const std::int64_t inner = static_cast<std::int64_t>(segment.width & WidthBits) - hollowInset;
        const std::uint32_t width =
            TruncateToUnsigned(static_cast<double>(static_cast<std::uint64_t>(inner)) * scale);
        if (width == 0) {
            continue;
        }
        const std::uint32_t colour = params.inkColor;
        eraseLineCallback(segment.x1, segment.y1, width, colour, segment.x2, segment.y2, width, colour);
    }
}

void Drawing::DrawCursor_()
{
    const PenData pen = liveSamples.back();
    if (params.colorPicker != 0) {
        DrawSwatch_(pen);
    } else if (!Touches(pen)) {
        DrawCrossHair_(pen);
    }
}

void Drawing::DrawSwatch_(const PenData& pen)
{
    constexpr std::int32_t Distance = 32;
    constexpr unsigned RimWidth = 40;
    constexpr unsigned Width = 32;
    constexpr unsigned Grey = 0x00C0C0C0;
    // Where a right hand does not cover it, yet never off the screen.
    const auto beside = [](std::int32_t position) {
        const std::int32_t before = Sum(position, -Distance);
        return before <= Distance ? Sum(position, Distance) : before;
    };
    const unsigned colour = pickColorCallback(false); // the ink has that colour from now on
    const int x = beside(pen.x);
    const int y = beside(pen.y);
    DrawSegment_(x, y, RimWidth, Grey, x, y, RimWidth, Grey);
    DrawSegment_(x, y, Width, colour, x, y, Width, colour);
}

void Drawing::DrawCrossHair_(const PenData& pen)
{
    constexpr unsigned CoreWidth = 2;
    const std::int32_t half = cursorSize / 2;
    const std::int32_t arm = cursorMargin + half;
    const unsigned rim = static_cast<unsigned>(cursorMargin + 2);
    const unsigned colour = params.inkColor;
    const unsigned contrast = ContrastColour(colour);
    const auto vertical = [&](std::int32_t reach, unsigned width, unsigned lineColour) {
        DrawSegment_(pen.x, Sum(pen.y, -reach), width, lineColour, pen.x, Sum(pen.y, reach), width,
                     lineColour);
    };
    const auto horizontal = [&](std::int32_t reach, unsigned width, unsigned lineColour) {
        DrawSegment_(Sum(pen.x, -reach), pen.y, width, lineColour, Sum(pen.x, reach), pen.y, width,
                     lineColour);
    };
    vertical(arm, rim, contrast);
    horizontal(arm, rim, contrast);
    vertical(half, CoreWidth, colour);
    horizontal(half, CoreWidth, colour);
}

void Drawing::DrawSegment_(int x1, int y1, unsigned w1, unsigned c1, int x2, int y2, unsigned w2, unsigned c2)
{
    const unsigned width = TruncateToUnsigned(static_cast<double>((w1 + w2) >> 1) * scale);
    drawLineCallback(ScaledCoordinate_(x1), ScaledCoordinate_(y1), width, c1, ScaledCoordinate_(x2),
                     ScaledCoordinate_(y2), width, c2);
}

Drawing::Segment Drawing::MakeSegment_(const PenData& older, const PenData& newer) const
{
    const bool shifted = params.useOffset != 0;
    const std::int32_t dx = shifted ? offsetX : 0;
    const std::int32_t dy = shifted ? offsetY : 0;
    return {
        .x1 = ScaledCoordinate_(Sum(older.x, dx)),
        .y1 = ScaledCoordinate_(Sum(older.y, dy)),
        .x2 = ScaledCoordinate_(Sum(newer.x, dx)),
        .y2 = ScaledCoordinate_(Sum(newer.y, dy)),
        .width = SegmentWidth(params, newer.pressure),
    };
}

std::int32_t Drawing::ScaledCoordinate_(std::int32_t value) const
{
    return TruncateToSigned(static_cast<double>(value) * scale);
}

std::uint32_t Drawing::ScaledWidth_(std::uint32_t width) const
{
    return TruncateToUnsigned(static_cast<double>(width & WidthBits) * scale);
}

} // namespace zq::LM
