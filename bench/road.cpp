// A host that does nothing but what is counted: lumora_road gdi|direct2d FRAMES SEGMENTS INPUTS [LIFE]
// Draws so many frames with so many live segments, before each of them so many inputs of a lifted pen's
// sample, which adds none. With an ink life in milliseconds the pen touches instead, and its ink ages from
// frame to frame.
#include "lumora/lumora.hpp"

#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <iostream>
#include <span>
#include <string_view>
#include <vector>

namespace {

using lumora::BackEnd;
using lumora::Overlay;

struct Run {
    int frames = 0;
    int segments = 0;
    int inputs = 0;
    int lifeMs = 0; // 0 is longer than any run
};

LM_PenData At(int x, bool touches)
{
    constexpr int FullPressure = 32767;
    LM_PenData sample = {};
    sample.time = 1;
    sample.x = x;
    sample.y = 100;
    sample.pressure = touches ? FullPressure : 0;
    return sample;
}

void InputStroke(Overlay& overlay, int segments)
{
    std::vector<LM_PenData> stroke;
    for (int i = 0; i <= segments; ++i) {
        stroke.push_back(At(100 + 4 * i, true));
    }
    overlay.Input(stroke.data(), stroke.size());
    UpdateWindow(overlay.Window());
}

void DrawFrames(Overlay& overlay, const Run& run)
{
    const bool ages = run.lifeMs != 0;
    overlay.ChangeParams([&](lumora::Params& params) {
        params.inkDecayTime = ages ? std::chrono::milliseconds(run.lifeMs) : std::chrono::hours(1);
        params.cursor = false;
    });
    InputStroke(overlay, run.segments);
    for (int frame = 0; frame < run.frames; ++frame) {
        for (int left = run.inputs; left > 0; --left) {
            const LM_PenData sample = At(50 + left, ages);
            overlay.Input(&sample, 1);
        }
        UpdateWindow(overlay.Window());
    }
}

int Number(const char* text) { return static_cast<int>(std::strtol(text, nullptr, 10)); }

} // namespace

int main(int count, char** arguments)
try {
    const std::span<char*> given(arguments, static_cast<std::size_t>(count));
    if (count != 5 && count != 6) {
        std::cerr << "Usage: lumora_road gdi|direct2d FRAMES SEGMENTS INPUTS [LIFE]\n";
        return 2;
    }
    const BackEnd backEnd = std::string_view(given[1]) == "gdi" ? BackEnd::GDI : BackEnd::Direct2D;
    Overlay overlay({backEnd, 0}, lumora::Library::Load());
    DrawFrames(overlay,
               {Number(given[2]), Number(given[3]), Number(given[4]), count == 6 ? Number(given[5]) : 0});
    return 0;
} catch (const std::exception& error) {
    std::cerr << "lumora_road: " << error.what() << '\n';
    return 1;
}
