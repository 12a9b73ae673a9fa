// How a stroke dries: its old end passes from the library, whose ink goes, to the Board's own bitmap.
#pragma once

#include "input/pixel_rectangle.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace lumora_pen {

struct InkPoint {
    double x = 0; // pixels of the screen
    double y = 0;
    double width = 0;       // of the segment that ends here
    std::uint32_t time = 0; // when it was handed to the library, whose clock is the system's and wraps
};

class DryStroke {
public:
    void Add(const InkPoint& point);

    // The segments whose older end has this age, drawn from point to point: with that end the library loses
    // them. None twice. What is given is valid until the next call of the stroke.
    std::span<const InkPoint> Dry(std::uint32_t now, std::uint32_t age);

    // The rest, at the end of the stroke. A stroke that never moved is a single point: a dot.
    std::span<const InkPoint> DryRest();

private:
    void ForgetGiven_();
    std::span<const InkPoint> GiveUpTo_(std::size_t last);

    std::vector<InkPoint> points; // the first one is where wet ink begins
    std::size_t given = 0;        // its place once what was given last is forgotten
    bool hasDried = false;
};

// What drawing these points can touch of the area.
PixelRectangle Touched(std::span<const InkPoint> points, const PixelRectangle& area);

} // namespace lumora_pen
