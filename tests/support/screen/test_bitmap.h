// A bitmap that tests draw on and read back, without a screen.
#pragma once

#include "support/screen/screen.h"

#include <windows.h>

namespace zq::LM::test {

class TestBitmap {
public:
    TestBitmap(int width, int height, COLORREF background) : place{0, 0, width, height}
    {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof(info.bmiHeader);
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, nullptr, nullptr, 0);
        dc = CreateCompatibleDC(nullptr);
        previous = SelectObject(dc, bitmap);
        Fill(background);
    }
    ~TestBitmap()
    {
        SelectObject(dc, previous);
        DeleteDC(dc);
        DeleteObject(bitmap);
    }
    TestBitmap(const TestBitmap&) = delete;
    TestBitmap& operator=(const TestBitmap&) = delete;

    HDC DC() const { return dc; }
    Picture Look() const { return TakePicture(dc, place); }

    void Fill(COLORREF colour) const
    {
        HBRUSH brush = CreateSolidBrush(colour);
        FillRect(dc, &place, brush);
        DeleteObject(brush);
    }

private:
    RECT place;
    HBITMAP bitmap;
    HDC dc;
    HGDIOBJ previous;
};

} // namespace zq::LM::test
