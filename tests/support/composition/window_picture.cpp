// Shows a frame as a window's picture on the screen.
#include "support/composition/window_picture.h"

#include "support/screen/memory_bitmap.h"

#include <algorithm>
#include <utility>

namespace zq::LM::test {

namespace {

// Pixels that a window's picture is taken from; all transparent at first.
class Picture32 {
public:
    explicit Picture32(SIZE size) : size(size), bitmap(size.cx, size.cy) {}

    // By the nearest pixel: alpha must stay with its colour.
    void Fill(const Frame& frame)
    {
        std::uint32_t* pixel = bitmap.Pixels();
        for (int y = 0; y < size.cy; ++y) {
            const auto fromY = static_cast<UINT>(y) * frame.height / static_cast<UINT>(size.cy);
            for (int x = 0; x < size.cx; ++x) {
                const auto fromX = static_cast<UINT>(x) * frame.width / static_cast<UINT>(size.cx);
                *pixel++ = frame.At(fromX, fromY);
            }
        }
    }

    // Wine 10 takes the first picture of a size for unchanged when all of it is transparent, and leaves the
    // window opaque. So a faint pixel comes before it. Never before later ones: Wine 10 has a window painted
    // again where a pixel appears, and the paintings would not end.
    void ShowOn(HWND window)
    {
        if (IsFirstOfItsSize_(window)) {
            constexpr std::uint32_t Faint = 0x01000000;
            const std::uint32_t corner = std::exchange(*bitmap.Pixels(), Faint);
            Update_(window);
            *bitmap.Pixels() = corner;
        }
        Update_(window);
    }

private:
    // The window itself remembers the size.
    bool IsFirstOfItsSize_(HWND window) const
    {
        constexpr wchar_t Property[] = L"Lumora Test Picture Size";
        const auto shown = reinterpret_cast<HANDLE>(static_cast<INT_PTR>(MAKELONG(size.cx, size.cy)));
        const bool isFirst = GetPropW(window, Property) != shown;
        SetPropW(window, Property, shown);
        return isFirst;
    }

    void Update_(HWND window)
    {
        POINT origin{};
        BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
        UpdateLayeredWindow(window, nullptr, nullptr, &size, bitmap.DC(), &origin, 0, &blend, ULW_ALPHA);
    }

    SIZE size;
    MemoryBitmap bitmap;
};

SIZE SizeOf(HWND window)
{
    RECT place{};
    GetWindowRect(window, &place);
    return {std::max<LONG>(place.right - place.left, 1), std::max<LONG>(place.bottom - place.top, 1)};
}

} // namespace

void ShowFrame(HWND window, const Frame& frame)
{
    if (IsWindow(window) != 0) {
        Picture32 picture(SizeOf(window));
        picture.Fill(frame);
        picture.ShowOn(window);
    }
}

void ShowNothing(HWND window)
{
    if (IsWindow(window) != 0) {
        Picture32(SizeOf(window)).ShowOn(window);
    }
}

} // namespace zq::LM::test
