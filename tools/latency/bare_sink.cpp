// An overlay of the fewest calls that draw the same by GDI+ on a window with a colour key: what the platform
// itself takes. It clears and copies all of its window for each frame.
#include "latency/ink_sink.h"

#include "lumora/error.hpp"

#include <objidl.h> // what gdiplus.h needs of it

#include <gdiplus.h>

#include <deque>

namespace lumora::latency {

namespace {

constexpr COLORREF Key = 0x00010001; // seen through
constexpr BYTE Opacity = 192;
constexpr UINT TickMs = 50;

struct Segment {
    POINT from;
    POINT to;
    DWORD time;
};

class BareSink final : public InkSink {
public:
    BareSink();
    ~BareSink() override;
    BareSink(const BareSink&) = delete;
    BareSink& operator=(const BareSink&) = delete;

    void Input(std::span<const LM_PenData> samples) override;

private:
    static LRESULT CALLBACK Procedure_(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void MakeWindow_();
    void MakeBitmap_();
    void DropOld_();
    void Tick_();
    void Paint_();

    inline static BareSink* g_sink = nullptr;
    ULONG_PTR token = 0;
    HWND window = nullptr;
    HDC memory = nullptr;
    HBITMAP bitmap = nullptr;
    HGDIOBJ before = nullptr;
    HBRUSH keyBrush = CreateSolidBrush(Key);
    RECT place = {};
    std::deque<Segment> segments;
    LM_PenData last = {};
};

BareSink::BareSink()
{
    const Gdiplus::GdiplusStartupInput input;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok) {
        throw Error("GDI+ does not start");
    }
    g_sink = this;
    MakeWindow_();
    MakeBitmap_();
}

BareSink::~BareSink()
{
    DestroyWindow(window);
    SelectObject(memory, before);
    DeleteObject(bitmap);
    DeleteDC(memory);
    DeleteObject(keyBrush);
    Gdiplus::GdiplusShutdown(token);
    g_sink = nullptr;
}

void BareSink::MakeWindow_()
{
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = Procedure_;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = L"Lumora bare overlay";
    RegisterClassW(&windowClass);
    place = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    window = CreateWindowExW(WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_LAYERED | WS_EX_TRANSPARENT,
                             windowClass.lpszClassName, L"Lumora bare overlay", WS_POPUP | WS_VISIBLE, 0, 0,
                             place.right, place.bottom, nullptr, nullptr, windowClass.hInstance, nullptr);
    if (window == nullptr) {
        throw Error("the bare overlay's window could not be made");
    }
    SetLayeredWindowAttributes(window, Key, Opacity, LWA_COLORKEY | LWA_ALPHA);
    SetTimer(window, 1, TickMs, nullptr);
}

void BareSink::MakeBitmap_()
{
    HDC dc = GetDC(window);
    memory = CreateCompatibleDC(dc);
    bitmap = CreateCompatibleBitmap(dc, place.right, place.bottom);
    before = SelectObject(memory, bitmap);
    FillRect(dc, &place, keyBrush);
    ReleaseDC(window, dc);
}

void BareSink::Input(std::span<const LM_PenData> samples)
{
    const DWORD now = GetTickCount();
    for (const LM_PenData& sample : samples) {
        if (sample.pressure > 0 && last.pressure > 0) {
            segments.push_back({{last.x, last.y}, {sample.x, sample.y}, now});
        }
        last = sample;
    }
    InvalidateRect(window, nullptr, FALSE);
}

void BareSink::DropOld_()
{
    const DWORD now = GetTickCount();
    while (!segments.empty() && now - segments.front().time > InkLifeMs) {
        segments.pop_front();
    }
}

void BareSink::Tick_()
{
    if (segments.empty()) {
        return;
    }
    DropOld_();
    if (segments.empty()) {
        InvalidateRect(window, nullptr, FALSE);
    }
}

void BareSink::Paint_()
{
    DropOld_();
    PAINTSTRUCT paint = {};
    HDC dc = BeginPaint(window, &paint);
    FillRect(memory, &place, keyBrush);
    {
        Gdiplus::Graphics graphics(memory);
        Gdiplus::Pen pen(Gdiplus::Color(255, 32, 32, 32), static_cast<float>(InkWidth));
        pen.SetStartCap(Gdiplus::LineCapRound);
        pen.SetEndCap(Gdiplus::LineCapRound);
        for (const Segment& each : segments) {
            graphics.DrawLine(&pen, static_cast<INT>(each.from.x), static_cast<INT>(each.from.y),
                              static_cast<INT>(each.to.x), static_cast<INT>(each.to.y));
        }
    }
    BitBlt(dc, 0, 0, place.right, place.bottom, memory, 0, 0, SRCCOPY);
    EndPaint(window, &paint);
}

LRESULT CALLBACK BareSink::Procedure_(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_PAINT:
        g_sink->Paint_();
        return 0;
    case WM_TIMER:
        g_sink->Tick_();
        return 0;
    default:
        return DefWindowProcW(window, message, wParam, lParam);
    }
}

} // namespace

std::unique_ptr<InkSink> MakeBareSink() { return std::make_unique<BareSink>(); }

} // namespace lumora::latency
