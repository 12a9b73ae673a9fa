// Reads the bitmap of the Board's dry ink.
#pragma once

#include "board/dry_canvas.h"

#include <cstddef>
#include <cstdint>
#include <stdexcept>

namespace lumora_pen::test {

constexpr lumora::Colour Red = {224, 32, 32};
constexpr std::uint32_t RedInk = 0xFFE02020;

// 0xAARRGGBB at a place of the screen.
inline std::uint32_t PixelOf(const DryCanvas& canvas, int x, int y)
{
    const PixelRectangle area = canvas.Area();
    if (x < area.left || x >= area.right || y < area.top || y >= area.bottom) {
        throw std::out_of_range("a pixel outside the canvas");
    }
    return canvas.Pixels()[static_cast<std::ptrdiff_t>(y - area.top) * area.Width() + (x - area.left)];
}

// How many pixels are not the ground.
inline std::size_t InkedPixels(const DryCanvas& canvas)
{
    const auto count =
        static_cast<std::size_t>(canvas.Area().Width()) * static_cast<std::size_t>(canvas.Area().Height());
    std::size_t inked = 0;
    for (std::size_t i = 0; i < count; ++i) {
        inked += canvas.Pixels()[i] != DryCanvas::Ground ? 1 : 0;
    }
    return inked;
}

} // namespace lumora_pen::test
