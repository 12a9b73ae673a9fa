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

// Round caps, antialiased, half widths kept; honours the alpha byte, so that alpha 0 draws nothing. A line
// from a point to itself is a dot.
void DrawGdiPlusLine(HDC dc, const GdiLine& line);

// A plain GDI pen: whole widths, no alpha.
void DrawPlainLine(HDC dc, const GdiLine& line);

} // namespace zq::LM
