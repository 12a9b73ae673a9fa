// A picture of a control's client area, kept outside the screen with its pixels in reach.
#include "settings/off_screen_image.h"

#include <algorithm>

namespace zq::LM {

bool OffScreenImage::Make(HWND ofControl)
{
    RECT client{};
    GetClientRect(ofControl, &client); // stays empty without a control
    return Make_(ofControl, client.right, client.bottom);
}

bool OffScreenImage::MakeCopyOf(const OffScreenImage& source)
{
    if (source.DC() == nullptr || !Make_(source.control, source.pixels.width, source.pixels.height)) {
        Release();
        return false;
    }
    std::copy(source.pixels.bytes.begin(), source.pixels.bytes.end(), pixels.bytes.begin());
    return true;
}

void OffScreenImage::Release()
{
    // A bitmap that is still selected cannot be deleted.
    selected.reset();
    dc.reset();
    bitmap.reset();
    pixels = {};
    control = nullptr;
}

void OffScreenImage::Show() const
{
    const WindowDC target(control);
    BitBlt(target.Get(), 0, 0, pixels.width, pixels.height, dc.get(), 0, 0, SRCCOPY);
}

bool OffScreenImage::Make_(HWND ofControl, int width, int height)
{
    Release();
    if (width <= 0 || height <= 0) {
        return false;
    }
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height; // positive: lines from the bottom up
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    info.bmiHeader.biCompression = BI_RGB;
    const WindowDC controlDC(ofControl);
    void* bits = nullptr;
    dc.reset(CreateCompatibleDC(controlDC.Get()));
    bitmap.reset(CreateDIBSection(dc.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (dc == nullptr || bitmap == nullptr) {
        Release();
        return false;
    }
    selected.emplace(dc.get(), bitmap.get());
    control = ofControl;
    pixels = {{static_cast<std::uint8_t*>(bits), RowBytes(width) * static_cast<std::size_t>(height)},
              width,
              height};
    return true;
}

} // namespace zq::LM
