// A part of the screen, in pixels.
#pragma once

#include <algorithm>
#include <cstdint>

namespace lumora_pen {

struct PixelRectangle {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0; // the first column and row that are outside
    std::int32_t bottom = 0;

    std::int32_t Width() const { return right - left; }
    std::int32_t Height() const { return bottom - top; }
    bool IsEmpty() const { return right <= left || bottom <= top; }

    friend bool operator==(const PixelRectangle&, const PixelRectangle&) = default;
};

inline PixelRectangle Common(const PixelRectangle& one, const PixelRectangle& other)
{
    const PixelRectangle common = {(std::max)(one.left, other.left), (std::max)(one.top, other.top),
                                   (std::min)(one.right, other.right), (std::min)(one.bottom, other.bottom)};
    return common.IsEmpty() ? PixelRectangle{} : common;
}

// The smallest around both; an empty one adds nothing.
inline PixelRectangle Around(const PixelRectangle& one, const PixelRectangle& other)
{
    if (one.IsEmpty() || other.IsEmpty()) {
        return one.IsEmpty() ? other : one;
    }
    return {(std::min)(one.left, other.left), (std::min)(one.top, other.top),
            (std::max)(one.right, other.right), (std::max)(one.bottom, other.bottom)};
}

} // namespace lumora_pen
