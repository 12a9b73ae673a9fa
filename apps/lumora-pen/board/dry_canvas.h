// The ink of the Board that has dried: a bitmap of the whole virtual screen, however much has been written.
#pragma once

#include "ink/dry_stroke.h"
#include "input/pixel_rectangle.h"

#include "lumora/params.hpp"

#include <cstdint>
#include <memory>
#include <span>

#include <windows.h>

namespace lumora_pen {

class DryCanvas {
public:
    // What is not ink: black, as good as see-through, but not to the mouse, which looks for more than
    // nothing.
    static constexpr std::uint32_t Ground = 0x01000000;

    DryCanvas();
    ~DryCanvas();
    DryCanvas(const DryCanvas&) = delete;
    DryCanvas& operator=(const DryCanvas&) = delete;

    // An empty bitmap of this part of the screen; false when the system has none to give.
    bool Make(const PixelRectangle& area);
    // Of another part of the screen, on which the ink stays where it was. False leaves all as it is.
    bool MoveTo(const PixelRectangle& area);
    void Free();

    // Draws segments from point to point, each as wide as its newer end says, or a single point as a dot. The
    // answer is what has changed, in pixels of the screen.
    PixelRectangle Draw(std::span<const InkPoint> points, const lumora::Colour& colour);
    PixelRectangle Wipe();

    bool IsMade() const { return surface != nullptr; }
    PixelRectangle Area() const;         // empty without a bitmap
    HDC DC() const;                      // with the bitmap in it
    const std::uint32_t* Pixels() const; // 0xAARRGGBB, premultiplied, row by row from the top

private:
    class GdiPlus;
    class Surface;

    std::unique_ptr<Surface> MakeSurface_(const PixelRectangle& area);

    std::unique_ptr<GdiPlus> gdiPlus; // outlives what is drawn with it
    std::unique_ptr<Surface> surface;
    PixelRectangle inked; // nothing else needs wiping
};

} // namespace lumora_pen
