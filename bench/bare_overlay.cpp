// An overlay of the fewest calls.
#include "bare_overlay.h"

#include <stdexcept>
#include <utility>

namespace zq::LM::bench {

Ink Zigzag(int segments)
{
    constexpr LONG Reach = Ink::Width;
    Ink ink;
    ink.bounds = {256, 256, 0, 0};
    for (int i = 0; i <= segments; ++i) {
        const POINT point = {20 + i % 40 * 5, 20 + i % 2 * 10 + i / 40 * 8};
        ink.points.push_back(point);
        const RECT around = {point.x - Reach, point.y - Reach, point.x + Reach, point.y + Reach};
        UnionRect(&ink.bounds, &ink.bounds, &around);
    }
    return ink;
}

BareOverlay::BareOverlay(std::unique_ptr<BareBackEnd> newBackEnd, const RECT& place, Ink newInk)
    : backEnd(std::move(newBackEnd)), ink(std::move(newInk))
{
    constexpr const wchar_t* Name = L"Bare overlay";
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = Procedure_;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = Name;
    RegisterClassW(&windowClass); // fails for the second overlay, which has the first one's
    constexpr DWORD Style = WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_TRANSPARENT | WS_EX_LAYERED;
    window = CreateWindowExW(Style | backEnd->ExtendedStyle(), Name, Name, WS_POPUP | WS_VISIBLE, place.left,
                             place.top, place.right - place.left, place.bottom - place.top, nullptr, nullptr,
                             windowClass.hInstance, nullptr);
    if (window == nullptr) {
        throw std::runtime_error("the bare overlay has no window");
    }
    backEnd->Bind(window);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

BareOverlay::~BareOverlay()
{
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    backEnd.reset();
    DestroyWindow(window);
}

void BareOverlay::PaintOnce() const
{
    InvalidateRect(window, nullptr, FALSE);
    UpdateWindow(window);
}

LRESULT CALLBACK BareOverlay::Procedure_(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* overlay = reinterpret_cast<BareOverlay*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_PAINT && overlay != nullptr) {
        const PaintSession paint(window);
        overlay->backEnd->Paint(window, overlay->ink);
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

void BareBitmap::Create(HWND window)
{
    RECT client = {};
    GetClientRect(window, &client);
    const WindowDC windowDC(window);
    bitmap.reset(CreateCompatibleBitmap(windowDC.Get(), client.right, client.bottom));
    dc.reset(CreateCompatibleDC(windowDC.Get()));
    SelectObject(dc.get(), bitmap.get()); // for good: the context goes first
}

void BareBitmap::CopyTo(HWND window, const RECT& part) const
{
    const WindowDC target(window);
    RECT client = {};
    GetClientRect(window, &client);
    IntersectClipRect(target.Get(), part.left, part.top, part.right, part.bottom);
    BitBlt(target.Get(), 0, 0, client.right, client.bottom, dc.get(), 0, 0, SRCCOPY);
    SelectClipRgn(target.Get(), nullptr);
}

} // namespace zq::LM::bench
