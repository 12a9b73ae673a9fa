// Shows a frame as a window's picture on the screen.
#include "support/composition/window_picture.h"

#include <algorithm>

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

    void ShowOn(HWND window)
    {
        GdiFlush();
        POINT origin{};
        BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
        UpdateLayeredWindow(window, nullptr, nullptr, &size, dc, &origin, 0, &blend, ULW_ALPHA);
    }

private:
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
