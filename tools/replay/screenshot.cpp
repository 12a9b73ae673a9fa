// Copies the screen into a bitmap and encodes it with GDI+.
#include "screenshot.h"
#include "replay_error.h"
#include "text/wide_text.h"

#include <algorithm>

#include <objidl.h>

// GDI+'s header calls min and max, which the system's headers are told not to define.
namespace Gdiplus {
using std::max;
using std::min;
} // namespace Gdiplus
#include <gdiplus.h>

namespace lumora::replay {

namespace {

constexpr CLSID PngEncoder = {0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
constexpr int BytesPerPixel = 4;

class GdiplusSession {
public:
    GdiplusSession()
    {
        const Gdiplus::GdiplusStartupInput input;
        started = Gdiplus::GdiplusStartup(&token, &input, nullptr) == Gdiplus::Ok;
    }
    ~GdiplusSession()
    {
        if (started) {
            Gdiplus::GdiplusShutdown(token);
        }
    }
    GdiplusSession(const GdiplusSession&) = delete;
    GdiplusSession& operator=(const GdiplusSession&) = delete;

private:
    ULONG_PTR token = 0;
    bool started = false;
};

struct ScreenDC {
    ScreenDC() = default;
    ~ScreenDC() { ReleaseDC(nullptr, handle); }
    ScreenDC(const ScreenDC&) = delete;
    ScreenDC& operator=(const ScreenDC&) = delete;
    HDC handle = GetDC(nullptr);
};

struct MemoryDC {
    MemoryDC(HDC like, HBITMAP bitmap)
        : handle(CreateCompatibleDC(like)), previous(SelectObject(handle, bitmap))
    {
    }
    ~MemoryDC()
    {
        SelectObject(handle, previous);
        DeleteDC(handle);
    }
    MemoryDC(const MemoryDC&) = delete;
    MemoryDC& operator=(const MemoryDC&) = delete;
    HDC handle;
    HGDIOBJ previous;
};

} // namespace

Screenshot::Screenshot() : width(GetSystemMetrics(SM_CXSCREEN)), height(GetSystemMetrics(SM_CYSCREEN))
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // the first row is the upper one
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = BytesPerPixel * 8;
    const ScreenDC screen;
    bitmap.reset(CreateDIBSection(screen.handle, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (bitmap == nullptr) {
        throw ReplayError("there is no memory for a screenshot");
    }
    const MemoryDC memory(screen.handle, bitmap.get());
    if (BitBlt(memory.handle, 0, 0, width, height, screen.handle, 0, 0, SRCCOPY) == 0) {
        throw ReplayError("the screen cannot be read");
    }
    GdiFlush();
}

void Screenshot::SaveAsPng(const std::filesystem::path& file) const
{
    const GdiplusSession session;
    Gdiplus::Bitmap picture(width, height, width * BytesPerPixel, PixelFormat32bppRGB,
                            static_cast<BYTE*>(bits));
    if (picture.Save(file.c_str(), &PngEncoder, nullptr) != Gdiplus::Ok) {
        throw ReplayError("the screenshot " + text::ToUtf8(file.native()) + " cannot be saved");
    }
}

} // namespace lumora::replay
