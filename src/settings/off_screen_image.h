// A picture of a control's client area, kept outside the screen with its pixels in reach.
#pragma once

#include "platform/win32/gdi_owners.h"
#include "settings/colour_images.h"

#include <optional>

namespace zq::LM {

class OffScreenImage {
public:
    OffScreenImage() = default;
    ~OffScreenImage() { Release(); }
    OffScreenImage(const OffScreenImage&) = delete;
    OffScreenImage& operator=(const OffScreenImage&) = delete;

    // An image of the size of the control's client area. On failure, also for an empty area or a missing
    // control, there is no image.
    bool Make(HWND control);

    // Something to draw markers on while the source stays clean.
    bool MakeCopyOf(const OffScreenImage& source);

    void Release();

    // Shows the image in its control.
    void Show() const;

    HWND Control() const { return control; }
    HDC DC() const { return dc.get(); } // null while there is no image
    const BitmapPixels& Pixels() const { return pixels; }

private:
    bool Make_(HWND ofControl, int width, int height);

    HWND control = nullptr;
    MemoryDC dc;
    GdiObject<HBITMAP> bitmap;
    std::optional<SelectedObject> selected;
    BitmapPixels pixels{};
};

} // namespace zq::LM
