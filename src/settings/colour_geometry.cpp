// Where the colour picker's markers stand, and which colour a point of its controls stands for.
#include "settings/colour_geometry.h"

#include "ink/truncation.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace zq::LM {

WheelPlace WheelIn(int width, int height)
{
    constexpr int Margin = 10; // a marker at the rim stays inside the control
    const PixelPoint centre = {width / 2, height / 2};
    return {centre, std::min(centre.x, centre.y) - Margin};
}

Hsv ColourAtWheelPoint(PixelPoint point, const WheelPlace& wheel, double value)
{
    constexpr double FullSaturation = 255.0;
    const int dx = point.x - wheel.centre.x;
    const int dy = point.y - wheel.centre.y;
    const auto squared = [](int length) {
        return static_cast<std::uint32_t>(length) * static_cast<std::uint32_t>(length);
    };
    const double distance = std::sqrt(static_cast<std::int32_t>(squared(dy) + squared(dx)));
    const double saturation =
        distance < wheel.radius ? TruncateToSigned(distance * FullSaturation / wheel.radius) : FullSaturation;
    return {static_cast<double>(WholeDegrees(dx, dy)), saturation, value};
}

double ValueAtColumn(int x, int width)
{
    const int span = width - 2 * ValueBarMargin;
    const int column = std::max(std::min(x - ValueBarMargin, span), 0);
    return TruncateToSigned(column * 255.0 / span); // without a gradient the quotient is no number: 0
}

PixelPoint WheelMarker(const Hsv& colour, const WheelPlace& wheel)
{
    constexpr double FullCircle = 6.283185307179586;
    const double angle = colour.hue * FullCircle / 360;
    const double distance = colour.saturation * wheel.radius / 255;
    return {TruncateToSigned(std::cos(angle) * distance + wheel.centre.x),
            TruncateToSigned(std::sin(angle) * distance + wheel.centre.y)};
}

int ValueMarkerColumn(double value, int width)
{
    return ValueBarMargin + TruncateToSigned(value * (width - 2 * ValueBarMargin) / 255);
}

int WholeDegrees(int dx, int dy)
{
    constexpr double DegreesPerRadian = 57.29577951308232;
    const int degrees =
        TruncateToSigned(std::atan2(static_cast<double>(dy), static_cast<double>(dx)) * DegreesPerRadian);
    return degrees < 0 ? degrees + 360 : degrees;
}

} // namespace zq::LM
