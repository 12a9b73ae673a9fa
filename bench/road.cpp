// A host that does nothing but what is counted: lumora_road BACKEND FRAMES SEGMENTS INPUTS
// Draws so many frames with so many live segments, before each of them so many inputs of a sample that adds
// none.
#include "lumora/lumora.hpp"

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <span>
#include <string_view>
#include <vector>

namespace {

using lumora::BackEnd;
using lumora::Overlay;

LM_PenData At(int x, int pressure)
{
    LM_PenData sample = {};
    sample.time = 1;
    sample.x = x;
    sample.y = 100;
    sample.pressure = pressure;
    return sample;
}

void DrawFrames(Overlay& overlay, int frames, int segments, int inputs)
{
    constexpr int FullPressure = 32767;
    const LM_PenData lifted = At(50, 0);
    overlay.ChangeParams([](lumora::Params& params) {
        params.inkDecayTime = std::chrono::hours(1);
        params.cursor = false;
    });
    std::vector<LM_PenData> stroke;
    for (int i = 0; i <= segments; ++i) {
        stroke.push_back(At(100 + 4 * i, FullPressure));
    }
    overlay.Input(stroke.data(), stroke.size());
    UpdateWindow(overlay.Window());
    for (; frames > 0; --frames) {
        for (int left = inputs; left > 0; --left) {
            overlay.Input(&lifted, 1);
        }
        UpdateWindow(overlay.Window());
    }
}

} // namespace

int main(int count, char** arguments)
try {
    if (count != 5) {
        std::cerr << "Usage: lumora_road gdi|direct2d FRAMES SEGMENTS INPUTS\n";
        return 2;
    }
    const std::span<char*> given(arguments, static_cast<std::size_t>(count));
    const BackEnd backEnd = std::string_view(given[1]) == "gdi" ? BackEnd::GDI : BackEnd::Direct2D;
    Overlay overlay({backEnd, 0}, lumora::Library::Load());
    DrawFrames(overlay, std::atoi(given[2]), std::atoi(given[3]), std::atoi(given[4]));
    return 0;
} catch (const std::exception& error) {
    std::cerr << "lumora_road: " << error.what() << '\n';
    return 1;
}
