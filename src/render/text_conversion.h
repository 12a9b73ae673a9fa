// Narrow texts made wide for the back-ends.
#pragma once

#include "render/drawing_lib.h"
#include "render/text_rules.h"

#include <array>

namespace zq::LM {

// A terminator fits behind the longest text.
using WideText = std::array<wchar_t, ConvertedTextBytes + 1>;

// From the system's ANSI code page; a longer text is cut.
WideText ConvertToWide(const char* text);

// The place is that on an unscaled bitmap.
void DrawNarrowText(DrawingLib& backEnd, double scale, int x, int y, unsigned colour, const char* text);

} // namespace zq::LM
