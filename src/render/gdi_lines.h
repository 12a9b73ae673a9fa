// The two ways in which the GDI back-end can draw a line.
#pragma once

#include "platform/win32/windows_header.h"

#include <cstdint>

namespace zq::LM {

struct GdiLine {
    int x1, y1;
    unsigned width1;
    int x2, y2;
    unsigned width2;
    unsigned colour; // 0xAABBGGRR
};

// GDI+ wants 0xAARRGGBB.
constexpr std::uint32_t GdiPlusColour(std::uint32_t colour)
{
    return (colour & 0xFF00FF00) | ((colour & 0xFF) << 16) | ((colour >> 16) & 0xFF);
}

// Round ends, half pixels of width, and hard edges: GDI+ does not smooth unless it is told to. Alpha 0 leaves
// no trace. A line from a point to itself is a dot.
void DrawGdiPlusLine(HDC dc, const GdiLine& line);

// By GDI alone, which knows neither half pixels nor transparency.
void DrawPlainLine(HDC dc, const GdiLine& line);

} // namespace zq::LM
