// Colours as red, green and blue, as hue, saturation and value, and as colour references.
#pragma once

#include <cstdint>

namespace zq::LM {

// Exact channels up to 255: a stored colour is made of them by rounding, a shown one by truncating.
struct Rgb {
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
};

// The hue in degrees of one turn; the others up to 255, like channels.
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

// The system packs a colour from red upward, 0x00BBGGRR. What lies above blue does not count, and is 0 in a
// result.
Rgb RgbFromReference(std::uint32_t reference);
std::uint32_t RoundedReference(const Rgb& colour);
std::uint32_t TruncatedReference(const Rgb& colour);

} // namespace zq::LM
