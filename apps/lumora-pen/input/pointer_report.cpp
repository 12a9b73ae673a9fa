// What the system's numbers for a pen or a finger mean.
#include "input/pointer_report.h"

#include <cmath>

namespace lumora_pen {

namespace {

// Along one axis.
double FinePlace(double fine, double pixel, double surfaceBegin, double surfaceEnd, double displayBegin,
                 double displayEnd)
{
    constexpr double MostApart = 2; // pixels: both are rounded
    const double size = surfaceEnd - surfaceBegin;
    if (size <= 0 || displayEnd <= displayBegin) {
        return pixel;
    }
    const double place = displayBegin + (fine - surfaceBegin) / size * (displayEnd - displayBegin);
    return std::abs(place - pixel) <= MostApart ? place : pixel;
}

} // namespace

std::int32_t TouchPressure(std::optional<std::uint32_t> reported)
{
    constexpr std::uint32_t FullReport = 1024;
    const std::uint32_t felt = (std::min)(reported.value_or(FullReport), FullReport);
    return 1 + static_cast<std::int32_t>(felt * (FullPressure - 1) / FullReport);
}

Position PlaceOnScreen(WholePosition fine, WholePosition pixel, const Tablet& tablet)
{
    const PixelRectangle& surface = tablet.surface;
    const PixelRectangle& display = tablet.display;
    return {FinePlace(fine.x, pixel.x, surface.left, surface.right, display.left, display.right),
            FinePlace(fine.y, pixel.y, surface.top, surface.bottom, display.top, display.bottom)};
}

std::uint32_t HistoryToAsk(std::uint32_t available)
{
    constexpr std::uint32_t Most = 256;
    return std::clamp<std::uint32_t>(available, 1, Most);
}

} // namespace lumora_pen
