// Colours as red, green and blue, as hue, saturation and value, and as colour references.
#pragma once

#include <cstdint>

namespace zq::LM {

// Channels run from 0 to 255 and are not rounded: each user rounds or truncates as it needs.
struct Rgb {
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
};

// Hue in degrees, 0 to below 360; saturation and value from 0 to 255.
struct Hsv {
    double hue = 0.0;
    double saturation = 0.0;
    double value = 0.0;
};

Rgb RgbFromHsv(const Hsv& colour);

// Grey has hue 0 and saturation 0.
Hsv HsvFromRgb(const Rgb& colour);

// A channel as a byte: truncated, and held within 0 to 255.
std::uint8_t TruncatedChannel(double channel);

// Colour references are 0x00BBGGRR: red in the low byte. The top byte is ignored, and 0 in a result.
Rgb RgbFromReference(std::uint32_t reference);
std::uint32_t RoundedReference(const Rgb& colour);
std::uint32_t TruncatedReference(const Rgb& colour);

} // namespace zq::LM
