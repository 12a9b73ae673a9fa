// Owners of GDI objects: what is taken is given back in the right order, also when an exception passes.
#pragma once

#include "platform/win32/windows_header.h"

#include <memory>
#include <type_traits>

namespace zq::LM {

struct GdiObjectDeleter {
    void operator()(HGDIOBJ object) const { DeleteObject(object); }
};

template <typename Handle> using GdiObject = std::unique_ptr<std::remove_pointer_t<Handle>, GdiObjectDeleter>;

struct MemoryDCDeleter {
    void operator()(HDC dc) const { DeleteDC(dc); }
};

using MemoryDC = std::unique_ptr<std::remove_pointer_t<HDC>, MemoryDCDeleter>;

// An object selected into a device context for a while.
class SelectedObject {
public:
    SelectedObject(HDC dc, HGDIOBJ object) : dc(dc), previous(SelectObject(dc, object)) {}
    ~SelectedObject() { SelectObject(dc, previous); }
    SelectedObject(const SelectedObject&) = delete;
    SelectedObject& operator=(const SelectedObject&) = delete;

    // False when the device context has kept what it had.
    bool IsSelected() const { return previous != nullptr; }

private:
    HDC dc;
    HGDIOBJ previous;
};

// A window's device context, or the screen's for a null window.
class WindowDC {
public:
    explicit WindowDC(HWND window) : window(window), dc(GetDC(window)) {}
    ~WindowDC()
    {
        if (dc != nullptr) {
            ReleaseDC(window, dc);
        }
    }
    WindowDC(const WindowDC&) = delete;
    WindowDC& operator=(const WindowDC&) = delete;

    HDC Get() const { return dc; }

private:
    HWND window;
    HDC dc;
};

// The time between BeginPaint and EndPaint; validates the window whatever happens in between.
class PaintSession {
public:
    explicit PaintSession(HWND window) : window(window) { BeginPaint(window, &paint); }
    ~PaintSession() { EndPaint(window, &paint); }
    PaintSession(const PaintSession&) = delete;
    PaintSession& operator=(const PaintSession&) = delete;

    HDC Get() const { return paint.hdc; }
    const RECT& Area() const { return paint.rcPaint; }

private:
    HWND window;
    PAINTSTRUCT paint{};
};

} // namespace zq::LM
