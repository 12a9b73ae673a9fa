// Colours as red, green and blue, as hue, saturation and value, and as colour references.
#include "settings/colour_conversion.h"

#include "ink/truncation.h"

#include <algorithm>

namespace zq::LM {

namespace {

constexpr double Full = 255.0;

std::uint32_t Pack(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    return std::uint32_t{red} | (std::uint32_t{green} << 8) | (std::uint32_t{blue} << 16);
}

} // namespace

Rgb RgbFromHsv(const Hsv& colour)
{
    const double s = colour.saturation / Full;
    const double v = colour.value / Full;
    const int sector = (TruncateToSigned(colour.hue) / 60) % 6;
    const double f = colour.hue / 60 - sector;
    const double p = (1 - s) * v * Full;
    const double q = (1 - f * s) * v * Full;
    const double t = (1 - (1 - f) * s) * v * Full;
    switch (sector) {
    case 0:
        return {colour.value, t, p};
    case 1:
        return {q, colour.value, p};
    case 2:
        return {p, colour.value, t};
    case 3:
        return {p, q, colour.value};
    case 4:
        return {t, p, colour.value};
    case 5:
        return {colour.value, p, q};
    default:
        return {}; // a hue of -60 degrees or less
    }
}

Hsv HsvFromRgb(const Rgb& colour)
{
    if (colour.red == colour.green && colour.green == colour.blue) {
        return {0.0, 0.0, colour.green};
    }
    const double r = colour.red / Full;
    const double g = colour.green / Full;
    const double b = colour.blue / Full;
    const double most = std::max({r, g, b});
    const double range = most - std::min({r, g, b});
    double hue = 0.0;
    if (most == r) { // equal channels: the one that is asked for first gives the hue
        hue = (g - b) * 60 / range;
    } else if (most == g) {
        hue = (b - r) * 60 / range + 120;
    } else {
        hue = (r - g) * 60 / range + 240;
    }
    if (hue < 0) {
        hue += 360;
    }
    return {hue, range * Full / most, most * Full};
}

std::uint8_t TruncatedChannel(double channel)
{
    return static_cast<std::uint8_t>(std::min(TruncateToUnsigned(channel), std::uint32_t{255}));
}

Rgb RgbFromReference(std::uint32_t reference)
{
    const auto channel = [reference](unsigned shift) {
        return static_cast<double>((reference >> shift) & 0xFF);
    };
    return {channel(0), channel(8), channel(16)};
}

std::uint32_t RoundedReference(const Rgb& colour)
{
    return Pack(TruncatedChannel(colour.red + 0.5), TruncatedChannel(colour.green + 0.5),
                TruncatedChannel(colour.blue + 0.5));
}

std::uint32_t TruncatedReference(const Rgb& colour)
{
    return Pack(TruncatedChannel(colour.red), TruncatedChannel(colour.green), TruncatedChannel(colour.blue));
}

} // namespace zq::LM
