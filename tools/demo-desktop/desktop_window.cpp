// The demonstration desktop: an evening sky with hills.
#include "desktop_window.h"
#include "paint_scope.h"

#include <array>

namespace lumora::demo {

namespace {

constexpr wchar_t DesktopClass[] = L"Lumora Demo Desktop";

struct Shade {
    BYTE red;
    BYTE green;
    BYTE blue;
};

constexpr Shade Zenith = {88, 134, 190};
constexpr Shade Horizon = {252, 222, 190};

TRIVERTEX GradientCorner(LONG x, LONG y, Shade shade)
{
    const auto widened = [](BYTE value) { return static_cast<COLOR16>(value << 8); };
    return {x, y, widened(shade.red), widened(shade.green), widened(shade.blue), 0};
}

void PaintSky(HDC dc, const RECT& area)
{
    std::array corners = {GradientCorner(area.left, area.top, Zenith),
                          GradientCorner(area.right, area.bottom, Horizon)};
    GRADIENT_RECT whole = {0, 1};
    GradientFill(dc, corners.data(), static_cast<ULONG>(corners.size()), &whole, 1, GRADIENT_FILL_RECT_V);
}

// Position and size in thousandths of the area's, so that every screen gets the same picture.
void PaintEllipse(HDC dc, const RECT& area, int left, int top, int right, int bottom, COLORREF colour)
{
    const Selected brush(dc, CreateSolidBrush(colour));
    const Selected pen(dc, CreatePen(PS_NULL, 0, 0));
    Ellipse(dc, MulDiv(left, area.right, 1000), MulDiv(top, area.bottom, 1000),
            MulDiv(right, area.right, 1000), MulDiv(bottom, area.bottom, 1000));
}

void PaintDesktop(HWND window)
{
    const PaintScope scope(window);
    RECT area = {};
    GetClientRect(window, &area);
    PaintSky(scope.dc, area);
    PaintEllipse(scope.dc, area, 740, 110, 860, 270, RGB(255, 241, 214));
    PaintEllipse(scope.dc, area, -200, 780, 520, 1300, RGB(150, 178, 168));
    PaintEllipse(scope.dc, area, 420, 820, 1300, 1350, RGB(126, 160, 152));
    PaintEllipse(scope.dc, area, 100, 880, 900, 1400, RGB(98, 136, 130));
}

LRESULT CALLBACK DesktopProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_PAINT:
        PaintDesktop(window);
        return 0;
    case WM_ERASEBKGND:
        return 1;
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE;
    case WM_WINDOWPOSCHANGING:
        // A desktop stays below every other window.
        reinterpret_cast<WINDOWPOS*>(lParam)->hwndInsertAfter = HWND_BOTTOM;
        return 0;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    default:
        return DefWindowProcW(window, message, wParam, lParam);
    }
}

// The system has the function, but no header declares it.
bool BecomeShellWindow(HWND window)
{
    using SetShellWindowFunction = BOOL(WINAPI*)(HWND);
    const auto address =
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "SetShellWindow"));
    const auto setShellWindow = reinterpret_cast<SetShellWindowFunction>(address);
    return setShellWindow != nullptr && setShellWindow(window) != 0;
}

} // namespace

HWND CreateDesktopWindow(HINSTANCE instance)
{
    WNDCLASSEXW windowClass = {};
    windowClass.cbSize = sizeof(windowClass);
    windowClass.lpfnWndProc = DesktopProcedure;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.lpszClassName = DesktopClass;
    RegisterClassExW(&windowClass);
    HWND window = CreateWindowExW(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, DesktopClass, L"Lumora demo desktop",
                                  WS_POPUP | WS_CLIPCHILDREN, 0, 0, GetSystemMetrics(SM_CXSCREEN),
                                  GetSystemMetrics(SM_CYSCREEN), nullptr, nullptr, instance, nullptr);
    if (window != nullptr && GetShellWindow() == nullptr && !BecomeShellWindow(window)) {
        DestroyWindow(window);
        MSG quit = {};
        PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
        return nullptr;
    }
    if (window != nullptr) {
        ShowWindow(window, SW_SHOWNOACTIVATE);
        UpdateWindow(window);
    }
    return window;
}

} // namespace lumora::demo
