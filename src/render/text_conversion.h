// Narrow texts made wide for the back-ends.
#pragma once

#include "render/drawing_lib.h"
#include "render/text_rules.h"

#include <array>

namespace zq::LM {

// One more than the converted bytes: always terminated.
using WideText = std::array<wchar_t, ConvertedTextBytes + 1>;

// From the system's ANSI code page; a longer text is cut.
WideText ConvertToWide(const char* text);

// Converted and drawn; the place is scaled and then truncated.
void DrawNarrowText(DrawingLib& backEnd, double scale, int x, int y, unsigned colour, const char* text);

} // namespace zq::LM
