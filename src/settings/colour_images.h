// The pictures of the colour wheel and the value bar, as plain pixels.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace zq::LM {

// A 24-bit bitmap as the system lays it out: blue, green, red; the bottom line first; each row padded to a
// multiple of 4 bytes.
struct BitmapPixels {
    std::span<std::uint8_t> bytes;
    int width;
    int height;
};

constexpr std::size_t RowBytes(int width) { return (3 * static_cast<std::size_t>(width) + 3) / 4 * 4; }

// A gradient from black to white in a frame of one pixel. Without a pixel nothing is painted.
void PaintValueBar(const BitmapPixels& bitmap);

// Hue is the angle, clockwise from the right; saturation the distance from the centre; the value is full.
void PaintWheel(const BitmapPixels& bitmap);

} // namespace zq::LM
