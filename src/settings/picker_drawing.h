// The colour picker as it is seen: the pictures of the value bar and the wheel with their markers on top.
#pragma once

#include "settings/colour_conversion.h"
#include "settings/off_screen_image.h"

namespace zq::LM {

// Building computes every pixel and is slow; showing is fast enough for each move of a drag. Without an image
// nothing is shown.
bool BuildValueBar(OffScreenImage& image, HWND control);
bool BuildWheel(OffScreenImage& image, HWND control);

void ShowValueBar(const OffScreenImage& image, double value);
void ShowWheel(const OffScreenImage& image, const Hsv& colour);

} // namespace zq::LM
