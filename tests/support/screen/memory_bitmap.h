// A bitmap in memory that can be drawn on and whose pixels can be reached.
#pragma once

#include <windows.h>

#include <cstdint>

namespace zq::LM::test {

class MemoryBitmap {
public:
    MemoryBitmap(int width, int height)
    {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof(info.bmiHeader);
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height; // from the top
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        dc = CreateCompatibleDC(nullptr);
        previous = SelectObject(dc, bitmap);
    }
    ~MemoryBitmap()
    {
        SelectObject(dc, previous);
        DeleteDC(dc);
        DeleteObject(bitmap);
    }
    MemoryBitmap(const MemoryBitmap&) = delete;
    MemoryBitmap& operator=(const MemoryBitmap&) = delete;

    HDC DC() const { return dc; }

    // 0xAARRGGBB, row by row; all of it 0 at first.
    std::uint32_t* Pixels() const
    {
        GdiFlush();
        return static_cast<std::uint32_t*>(bits);
    }

private:
    void* bits = nullptr;
    HBITMAP bitmap;
    HDC dc;
    HGDIOBJ previous;
};

} // namespace zq::LM::test
