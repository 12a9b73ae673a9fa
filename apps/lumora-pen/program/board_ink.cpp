// Wet ink dries on the Board.
#include "program/board_ink.h"

#include "ink/ink_style.h"
#include "ink/ink_width.h"

namespace lumora_pen {

namespace {

// Long before the library loses it, also on a bad day.
constexpr std::uint32_t DryAgeMs = WetInkMs / 2;

constexpr double OffsetPixels = 50; // of lumora::Params::useOffset

} // namespace

// While the Board is asked, the mouse writes on it.
BoardInk::BoardInk(TakeInput take) : mouse([] { return true; }), board(std::move(take))
{
    board.UseMouseHistory([this](const InputSample& newest) {
        std::vector<InputSample> samples;
        mouse.Look(newest.time, samples);
        return samples;
    });
}

bool BoardInk::Show(HWND overlay)
{
    if (board.IsShown()) {
        board.PlaceBelow(overlay);
    } else {
        board.Show(overlay);
    }
    return KeepsInk();
}

void BoardInk::Hide()
{
    stroke = {};
    board.Hide();
}

void BoardInk::Take(const StrokeSteps& steps, const lumora::Params& style, std::uint32_t now)
{
    if (steps.begins) {
        mouse.Begin(steps.samples.front());
    }
    for (const InputSample& sample : steps.samples) {
        if (sample.pressure > 0) {
            const double y = sample.y - (style.useOffset ? OffsetPixels : 0);
            stroke.Add({sample.x, y, static_cast<double>(InkWidth(style, sample.pressure)), now});
        }
    }
    if (steps.ends) {
        if (!steps.isCancelled) {
            board.Draw(stroke.DryRest(), colour);
        }
        stroke = {};
    }
}

void BoardInk::DryWhatIsDue(std::uint32_t now) { board.Draw(stroke.Dry(now, DryAgeMs), colour); }

void BoardInk::ChangeColour(const lumora::Colour& other)
{
    if (other != colour) {
        board.Draw(stroke.DryRest(), colour); // what is written keeps its own
        colour = other;
    }
}

void BoardInk::Wipe()
{
    stroke = {};
    board.Wipe();
}

} // namespace lumora_pen
