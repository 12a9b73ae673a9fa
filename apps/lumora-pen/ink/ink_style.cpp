// The library's parameters from the settings, and back.
#include "ink/ink_style.h"

#include "input/input.h"
#include "settings/words.h"

#include <algorithm>

namespace lumora_pen {

namespace {

// The largest that the dialog's sliders show. What lies above it lowers when it opens.
constexpr int MostWidthOfDialog = 200;
constexpr int MostLifeOfDialogMs = 1000;

constexpr std::array<int, 14> Widths = {1, 2, 3, 4, 6, 8, 10, 13, 16, 20, 26, 34, 48, 64};

// Light pressure still leaves a line.
constexpr int ThinnestPart = 4;

// Two of the library's ways to draw take this very colour for see-through.
constexpr lumora::Colour SeeThrough = {255, 0, 255};
constexpr lumora::Colour NextToSeeThrough = {254, 0, 255};

int Scaled(int length, int dpi) { return std::max((length * dpi + UnscaledDpi / 2) / UnscaledDpi, 1); }

int LifeOf(Mode mode, const Settings& settings)
{
    if (mode == Mode::Trail) {
        return settings.trailLifeMs;
    }
    return KeepsInk(mode, settings) ? WetInkMs : settings.boardLifeMs;
}

// True when the number differs from what the program had set and from what the dialog makes of it by itself.
bool IsChosen(int now, int set, int mostOfDialog)
{
    return now != set && (set <= mostOfDialog || now != mostOfDialog);
}

} // namespace

bool KeepsInk(Mode mode, const Settings& settings)
{
    return mode == Mode::Board && settings.boardLifeMs == 0;
}

lumora::Params StyleFor(Mode mode, const Settings& settings, int dpi, lumora::Params current)
{
    const int width = Scaled(settings.width, dpi);
    const lumora::Colour colour = settings.palette[settings.colour];
    current.inkColor = colour == SeeThrough ? NextToSeeThrough : colour;
    current.brushSize = static_cast<std::uint32_t>(width);
    current.minBrushSize = static_cast<std::uint32_t>(std::max(width / ThinnestPart, 1));
    current.maxPressure = FullPressure;
    current.inkDecayTime = std::chrono::milliseconds(LifeOf(mode, settings));
    current.line = true;
    current.cursor = settings.crossHair;
    current.outline = settings.outline && !KeepsInk(mode, settings); // which the Board does not draw
    current.usePressure = settings.pressure;
    current.useOffset = settings.offset;
    current.zebraMode = settings.zebra && !KeepsInk(mode, settings); // nor stripes
    return current;
}

Settings WithChoicesOf(const lumora::Params& style, Mode mode, int dpi, Settings settings)
{
    const lumora::Params before = StyleFor(mode, settings, dpi, style);
    if (style.inkColor != before.inkColor) {
        settings.palette[settings.colour] = style.inkColor;
    }
    const int width = static_cast<int>(std::min<std::uint32_t>(style.brushSize, MostWidthOfDialog));
    if (IsChosen(width, static_cast<int>(before.brushSize), MostWidthOfDialog)) {
        settings.width = std::clamp((width * UnscaledDpi + dpi / 2) / dpi, LeastWidth, MostWidth);
    }
    const int life = static_cast<int>(std::min<std::int64_t>(style.inkDecayTime.count(), MostLifeMs));
    if (!KeepsInk(mode, settings) && IsChosen(life, LifeOf(mode, settings), MostLifeOfDialogMs)) {
        int& chosen = mode == Mode::Trail ? settings.trailLifeMs : settings.boardLifeMs;
        chosen = std::max(life, LeastLifeMs);
    }
    settings.crossHair = style.cursor;
    settings.pressure = style.usePressure;
    settings.offset = style.useOffset;
    if (!KeepsInk(mode, settings)) {
        settings.outline = style.outline;
        settings.zebra = style.zebraMode;
    }
    return settings;
}

Settings WithColour(Settings settings, std::string_view colour)
{
    constexpr char First = '1';
    if (colour.size() == 1 && colour[0] >= First && colour[0] < First + static_cast<int>(ColourCount)) {
        settings.colour = static_cast<std::size_t>(colour[0] - First);
    } else if (const auto other = ParseColour(colour)) {
        settings.palette[settings.colour] = *other;
    }
    return settings;
}

int WiderThan(int width)
{
    const auto next = std::upper_bound(Widths.begin(), Widths.end(), width);
    return next == Widths.end() ? std::max(width, Widths.back()) : *next;
}

int NarrowerThan(int width)
{
    const auto same = std::lower_bound(Widths.begin(), Widths.end(), width);
    return same == Widths.begin() ? Widths.front() : *std::prev(same);
}

} // namespace lumora_pen
