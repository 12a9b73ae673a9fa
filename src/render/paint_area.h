// Which part of the memory bitmap and of the window a frame has to touch: both hold little ink and much key.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace zq::LM {

// From left and top, both included, to right and bottom, both excluded. Empty where one of them is not
// smaller.
struct PaintRectangle {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    bool IsEmpty() const { return left >= right || top >= bottom; }
};

bool operator==(const PaintRectangle& left, const PaintRectangle& right);

// A few rectangles around some pixels, or everything. Pens that are far from each other, and a stroke that
// leads across the screen, leave most of it between them untouched.
class PaintArea {
public:
    static constexpr std::size_t Most = 4;

    static PaintArea Everything();

    // All that a line with round ends can reach, whatever rounds its width and smooths its edges. A line far
    // outside of every screen, or wider than one, is everything: nobody needs it fast.
    void AddLine(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2, std::uint32_t width);

    void Add(const PaintArea& other);
    void Add(const PaintRectangle& rectangle);

    bool IsEverything() const { return isEverything; }
    std::span<const PaintRectangle> Rectangles() const { return {rectangles.data(), count}; } // may overlap

private:
    struct Pair;

    Pair CheapestPair_() const;
    void Join_(const Pair& pair);

    std::array<PaintRectangle, Most + 1> rectangles; // one more for a moment
    std::size_t count = 0;
    bool isEverything = false;
};

// What bitmap and window hold, and so what the next frame clears and copies. Begins with both unknown.
class PaintRecord {
public:
    // Whether the window hides what lies below it, because the system refused to let the key through.
    void SetWindowOpaque(bool isOpaque) { isWindowOpaque = isOpaque; }
    bool IsWindowOpaque() const { return isWindowOpaque; }

    // Nobody knows any more what the bitmap, the window, or either of them holds.
    void ForgetBitmap() { bitmap = PaintArea::Everything(); }
    void ForgetWindow() { window = PaintArea::Everything(); }
    void Forget();

    // This part of the window is to be copied, whatever is drawn.
    void AddWanted(const PaintRectangle& part) { window.Add(part); }

    // A frame: what is to be cleared first, then what is drawn, then what is to be copied. After a frame that
    // has not come to its end everything is unknown.
    PaintArea BeginFrame();
    void AddLine(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2, std::uint32_t width);
    PaintArea ToCopy() const;
    void EndFrame();

private:
    PaintArea bitmap = PaintArea::Everything();
    PaintArea window = PaintArea::Everything();
    bool isWindowOpaque = false;
    bool isOpen = false; // a frame has begun and not come to its end
};

} // namespace zq::LM
