// Shows a frame as a window's picture on the screen.
#include "support/composition/window_picture.h"

#include <algorithm>
#include <utility>

namespace zq::LM::test {

namespace {

BITMAPINFO PictureFormat(int width, int height)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // from the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    return info;
}

// Pixels that a window's picture is taken from; all transparent at first.
class Picture32 {
public:
    explicit Picture32(SIZE size) : dc(CreateCompatibleDC(nullptr)), size(size)
    {
        const BITMAPINFO info = PictureFormat(size.cx, size.cy);
        void* bits = nullptr;
        bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        previous = SelectObject(dc, bitmap);
        pixels = static_cast<std::uint32_t*>(bits);
    }

    ~Picture32()
    {
        SelectObject(dc, previous);
        DeleteObject(bitmap);
        DeleteDC(dc);
    }

    Picture32(const Picture32&) = delete;
    Picture32& operator=(const Picture32&) = delete;

    // By the nearest pixel: alpha must stay with its colour.
    void Fill(const Frame& frame)
    {
        for (int y = 0; y < size.cy; ++y) {
            const auto fromY = static_cast<UINT>(y) * frame.height / static_cast<UINT>(size.cy);
            for (int x = 0; x < size.cx; ++x) {
                const auto fromX = static_cast<UINT>(x) * frame.width / static_cast<UINT>(size.cx);
                pixels[y * size.cx + x] = frame.At(fromX, fromY);
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
            const std::uint32_t corner = std::exchange(*pixels, Faint);
            Update_(window);
            *pixels = corner;
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
        GdiFlush();
        POINT origin{};
        BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
        UpdateLayeredWindow(window, nullptr, nullptr, &size, dc, &origin, 0, &blend, ULW_ALPHA);
    }

    HDC dc;
    SIZE size;
    HBITMAP bitmap = nullptr;
    HGDIOBJ previous = nullptr;
    std::uint32_t* pixels = nullptr;
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
