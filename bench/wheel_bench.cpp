// The picture of the dialog's colour wheel beside a loop of its angles, distances and conversions.
#include "settings/colour_conversion.h"
#include "settings/colour_geometry.h"
#include "settings/colour_images.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

namespace zq::LM::bench {
namespace {

void WheelOfTheLibrary(benchmark::State& state)
{
    const int size = static_cast<int>(state.range(0));
    std::vector<std::uint8_t> bytes(RowBytes(size) * static_cast<std::size_t>(size));
    for ([[maybe_unused]] auto iteration : state) {
        PaintWheel({bytes, size, size});
        benchmark::ClobberMemory();
    }
}

std::uint8_t* Put(std::uint8_t* pixel, const Rgb& colour)
{
    pixel[0] = TruncatedChannel(colour.blue);
    pixel[1] = TruncatedChannel(colour.green);
    pixel[2] = TruncatedChannel(colour.red);
    return pixel + 3;
}

// From top to bottom, and without the soft rim.
void BareWheel(benchmark::State& state)
{
    const int size = static_cast<int>(state.range(0));
    const WheelPlace wheel = WheelIn(size, size);
    std::vector<std::uint8_t> bytes(RowBytes(size) * static_cast<std::size_t>(size));
    for ([[maybe_unused]] auto iteration : state) {
        for (int y = 0; y < size; ++y) {
            std::uint8_t* pixel = bytes.data() + RowBytes(size) * static_cast<std::size_t>(y);
            for (int x = 0; x < size; ++x) {
                const int dx = x - wheel.centre.x;
                const int dy = y - wheel.centre.y;
                const double distance = std::sqrt(dx * dx + dy * dy);
                pixel = Put(pixel, distance >= wheel.radius
                                       ? Rgb{240, 240, 240}
                                       : RgbFromHsv({static_cast<double>(WholeDegrees(dx, dy)),
                                                     255.0 / wheel.radius * distance, 255.0}));
            }
        }
        benchmark::ClobberMemory();
    }
}

BENCHMARK(WheelOfTheLibrary)->Name("colour wheel/library")->Arg(200);
BENCHMARK(BareWheel)->Name("colour wheel/bare")->Arg(200);

} // namespace
} // namespace zq::LM::bench
