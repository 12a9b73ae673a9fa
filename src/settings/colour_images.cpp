// The pictures of the colour wheel and the value bar, as plain pixels.
#include "settings/colour_images.h"

#include "settings/colour_conversion.h"
#include "settings/colour_geometry.h"

#include <algorithm>
#include <cmath>

namespace zq::LM {

namespace {

constexpr std::uint8_t BackgroundGrey = 240;
constexpr std::uint8_t FrameGrey = 128;

// Counted as they lie in memory, from the bottom up.
std::span<std::uint8_t> Row(const BitmapPixels& bitmap, int row)
{
    return bitmap.bytes.subspan(static_cast<std::size_t>(row) * RowBytes(bitmap.width),
                                RowBytes(bitmap.width));
}

void SetPixel(std::span<std::uint8_t> row, int x, std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    const std::size_t first = 3 * static_cast<std::size_t>(x);
    row[first] = blue;
    row[first + 1] = green;
    row[first + 2] = red;
}

void SetGrey(std::span<std::uint8_t> row, int x, std::uint8_t grey) { SetPixel(row, x, grey, grey, grey); }

std::uint8_t ValueBarGrey(int x, int width)
{
    const int end = width - ValueBarMargin;
    if (x >= ValueBarMargin && x < end) {
        return static_cast<std::uint8_t>(255 * (x - ValueBarMargin) / (end - ValueBarMargin));
    }
    return x == ValueBarMargin - 1 || x == end ? FrameGrey : BackgroundGrey;
}

Rgb WheelColour(int dx, int dy, int radius)
{
    const int squared = dx * dx + dy * dy;
    if (squared >= radius * radius) {
        return {BackgroundGrey, BackgroundGrey, BackgroundGrey};
    }
    const double distance = std::sqrt(squared);
    const double saturation = 255.0 / radius * distance;
    const Rgb colour = RgbFromHsv({static_cast<double>(WholeDegrees(dx, dy)), saturation, 255.0});
    const double cover = radius - distance;
    if (cover >= 1) {
        return colour;
    }
    const auto blend = [cover](double channel) { return channel * cover + (1 - cover) * BackgroundGrey; };
    return {blend(colour.red), blend(colour.green), blend(colour.blue)};
}

} // namespace

void PaintValueBar(const BitmapPixels& bitmap)
{
    if (bitmap.width <= 0 || bitmap.height <= 0) {
        return;
    }
    const std::span<std::uint8_t> first = Row(bitmap, 0);
    const auto copyFirstTo = [&](int row) {
        std::copy(first.begin(), first.end(), Row(bitmap, row).begin());
    };
    for (int x = 0; x < bitmap.width; ++x) {
        SetGrey(first, x, ValueBarGrey(x, bitmap.width));
    }
    for (int row = 1; row < bitmap.height; ++row) {
        copyFirstTo(row);
    }
    for (int x = ValueBarMargin - 1; x <= bitmap.width - ValueBarMargin; ++x) {
        SetGrey(first, x, FrameGrey);
    }
    copyFirstTo(bitmap.height - 1);
}

void PaintWheel(const BitmapPixels& bitmap)
{
    const WheelPlace wheel = WheelIn(bitmap.width, bitmap.height);
    for (int y = 0; y < bitmap.height; ++y) {
        const std::span<std::uint8_t> row = Row(bitmap, bitmap.height - 1 - y);
        for (int x = 0; x < bitmap.width; ++x) {
            const Rgb colour = WheelColour(x - wheel.centre.x, y - wheel.centre.y, wheel.radius);
            SetPixel(row, x, TruncatedChannel(colour.red), TruncatedChannel(colour.green),
                     TruncatedChannel(colour.blue));
        }
    }
}

} // namespace zq::LM
