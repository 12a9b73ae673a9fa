// Small owners for painting: the paint cycle and selected objects that are deleted with their scope.
#pragma once

#include <windows.h>

namespace lumora::demo {

struct PaintScope {
    explicit PaintScope(HWND paintedWindow) : window(paintedWindow), dc(BeginPaint(window, &paint)) {}
    ~PaintScope() { EndPaint(window, &paint); }
    PaintScope(const PaintScope&) = delete;
    PaintScope& operator=(const PaintScope&) = delete;

    HWND window;
    PAINTSTRUCT paint = {};
    HDC dc;
};

// Selects an object that was made for this purpose, and deletes it at the end.
struct Selected {
    Selected(HDC targetDC, HGDIOBJ selectedObject)
        : dc(targetDC), object(selectedObject), previous(SelectObject(dc, object))
    {
    }
    ~Selected()
    {
        SelectObject(dc, previous);
        DeleteObject(object);
    }
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;

    HDC dc;
    HGDIOBJ object;
    HGDIOBJ previous;
};

} // namespace lumora::demo
