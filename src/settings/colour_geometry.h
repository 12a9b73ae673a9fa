// Where the colour picker's markers stand, and which colour a point of its controls stands for.
#pragma once

#include "settings/colour_conversion.h"

namespace zq::LM {

struct PixelPoint {
    int x;
    int y;
    bool operator==(const PixelPoint&) const = default;
};

// The wheel inside its control. In a control that is too small for one the radius is 0 or less.
struct WheelPlace {
    PixelPoint centre;
    int radius;
};

WheelPlace WheelIn(int width, int height);

// The value bar's gradient lies between two margins of this width.
inline constexpr int ValueBarMargin = 16;

// Hue and saturation of a point of the wheel's control; the angle is in whole degrees, and outside the wheel
// the saturation is full. `value` is passed on.
Hsv ColourAtWheelPoint(PixelPoint point, const WheelPlace& wheel, double value);

// The value of a column of the value bar, whole; beside the gradient it is that of the nearer end.
double ValueAtColumn(int x, int width);

// The centre of the wheel's marker and the column of the bar's.
PixelPoint WheelMarker(const Hsv& colour, const WheelPlace& wheel);
int ValueMarkerColumn(double value, int width);

// The angle of a vector in whole degrees, truncated toward 0 degrees from both sides, within 0 to 359. As y
// grows downward on a screen, so does the angle.
int WholeDegrees(int dx, int dy);

} // namespace zq::LM
