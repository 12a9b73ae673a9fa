// The information overlay: what a frame tells about itself for diagnosis, in its upper right corner.
#pragma once

#include "ink/pen_data.h"
#include "platform/win32/windows_header.h"
#include "render/drawing_lib.h"
#include "render/rendering_type.h"

#include <array>
#include <cstdint>

namespace zq::LM {

struct InformationFacts {
    int screenWidth = 0;           // of the overlay, whose right edge everything is placed by
    std::uint32_t drawingRate = 0; // frames a second
    std::uint32_t penRate = 0;     // samples a second
    std::array<std::uint16_t, 4> version{};
    RenderingType renderingType = RenderingType::DirectComposition;
    RECT shell{};
    PenData lastPenData{};
    unsigned port = 0;            // of the brush-data server; 0 without one
    std::uint32_t textColour = 0; // index of the lines' colour; any beyond the last gives the last
    bool debugSwitch = false;
};

// Into a frame that is open. Only a back-end that fills rectangles shows the bars. Texts are placed on the
// scaled bitmap, bars are not scaled.
void DrawInformationOverlay(DrawingLib& backEnd, double renderScale, const InformationFacts& facts);

} // namespace zq::LM
