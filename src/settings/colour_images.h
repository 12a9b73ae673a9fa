// The pictures of the colour wheel and the value bar, as plain pixels.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace zq::LM {

// A bitmap in the system's own layout: lines from the bottom up, of three bytes a pixel with blue in front,
// and as many idle bytes after each as make its length divisible by 4.
struct BitmapPixels {
    std::span<std::uint8_t> bytes;
    int width;
    int height;
};

constexpr std::size_t RowBytes(int width) { return (3 * static_cast<std::size_t>(width) + 3) / 4 * 4; }

// From black to white, framed. Without a pixel nothing is painted.
void PaintValueBar(const BitmapPixels& bitmap);

// White in the middle and pure colours at the rim, from red at the right clockwise through yellow.
void PaintWheel(const BitmapPixels& bitmap);

} // namespace zq::LM
