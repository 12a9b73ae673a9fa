// What each call on the road from a sample to its pixel costs by itself, on a window as large as the screen:
// lumora_road_costs
#include "platform/win32/gdiplus_flat.h"

#include <timeapi.h>

#include <algorithm>
#include <iomanip>
#include <iostream>
#include <limits>

namespace {

constexpr COLORREF Key = RGB(255, 0, 255);
constexpr BYTE Opacity = 192;
constexpr RECT StrokesPart = {400, 300, 480, 320};

// The fastest of many rounds is the one that other programs disturbed least.
template <typename Call> void Cost(const char* name, Call call)
{
    constexpr int Rounds = 200;
    LARGE_INTEGER frequency = {};
    LONGLONG fastest = std::numeric_limits<LONGLONG>::max();
    QueryPerformanceFrequency(&frequency);
    for (int round = 0; round < Rounds; ++round) {
        LARGE_INTEGER begin = {};
        LARGE_INTEGER end = {};
        QueryPerformanceCounter(&begin);
        for (int i = 0; i < 10; ++i) {
            call();
        }
        QueryPerformanceCounter(&end);
        fastest = std::min(fastest, end.QuadPart - begin.QuadPart);
    }
    std::cout << "| " << name << " | " << std::fixed << std::setprecision(2)
              << static_cast<double>(fastest) * 1e6 / static_cast<double>(frequency.QuadPart) / 10 << " |\n";
}

void ConfineTo(HDC dc, const RECT& part)
{
    IntersectClipRect(dc, part.left, part.top, part.right, part.bottom);
}

// As the overlay is: layered, with a key, over the whole screen.
class Sheet {
public:
    Sheet()
        : width(GetSystemMetrics(SM_CXSCREEN)), height(GetSystemMetrics(SM_CYSCREEN)),
          window(CreateWindowExW(WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_LAYERED | WS_EX_TRANSPARENT,
                                 L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, width, height, nullptr, nullptr,
                                 nullptr, nullptr)),
          target(GetDC(window)), memory(CreateCompatibleDC(target)),
          bitmap(CreateCompatibleBitmap(target, width, height)), previous(SelectObject(memory, bitmap))
    {
        SetLayeredWindowAttributes(window, Key, Opacity, LWA_COLORKEY | LWA_ALPHA);
    }
    ~Sheet()
    {
        SelectObject(memory, previous);
        DeleteObject(bitmap);
        DeleteDC(memory);
        ReleaseDC(window, target);
        DestroyWindow(window);
    }
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;

    void Clear() const { PatBlt(memory, 0, 0, width, height, PATCOPY); }
    void Copy() const { BitBlt(target, 0, 0, width, height, memory, 0, 0, SRCCOPY); }
    void DrawSegment() const;

    int width;
    int height;
    HWND window;
    HDC target;
    HDC memory;

private:
    HBITMAP bitmap;
    HGDIOBJ previous;
};

void Sheet::DrawSegment() const
{
    using namespace Gdiplus::DllExports;
    constexpr Gdiplus::ARGB Red = 0xFFFF0000;
    constexpr float Width = 6;
    Gdiplus::GpGraphics* graphics = nullptr;
    Gdiplus::GpPen* pen = nullptr;
    GdipCreateFromHDC(memory, &graphics);
    GdipCreatePen1(Red, Width, Gdiplus::UnitWorld, &pen);
    GdipSetPenStartCap(pen, Gdiplus::LineCapRound);
    GdipSetPenEndCap(pen, Gdiplus::LineCapRound);
    GdipDrawLineI(graphics, pen, StrokesPart.left, StrokesPart.top, StrokesPart.right, StrokesPart.bottom);
    GdipDeletePen(pen);
    GdipDeleteGraphics(graphics);
}

void CostOfInputs(const Sheet& sheet)
{
    RECT part{};
    Cost("`timeGetTime`", timeGetTime);
    Cost("`InvalidateRect`", [&] { InvalidateRect(sheet.window, nullptr, FALSE); });
    Cost("`GetUpdateRect`", [&] { GetUpdateRect(sheet.window, &part, FALSE); });
    Cost("`GetShellWindow` and `GetWindowRect`", [&] { GetWindowRect(GetShellWindow(), &part); });
    Cost("`GetClientRect`", [&] { GetClientRect(sheet.window, &part); });
}

void CostOfFrames(const Sheet& sheet)
{
    PAINTSTRUCT paint{};
    Cost("`BeginPaint` and `EndPaint`", [&] {
        BeginPaint(sheet.window, &paint);
        EndPaint(sheet.window, &paint);
    });
    Cost("`GetDC` and `ReleaseDC`", [&] { ReleaseDC(sheet.window, GetDC(sheet.window)); });
    Cost("`CreateSolidBrush`, `SelectObject` twice and `DeleteObject`", [&] {
        HBRUSH brush = CreateSolidBrush(Key);
        SelectObject(sheet.memory, SelectObject(sheet.memory, brush));
        DeleteObject(brush);
    });
    Cost("`IntersectClipRect` and `SelectClipRgn`", [&] {
        ConfineTo(sheet.memory, StrokesPart);
        SelectClipRgn(sheet.memory, nullptr);
    });
    Cost("`PatBlt` of everything", [&] { sheet.Clear(); });
    Cost("`BitBlt` of everything", [&] { sheet.Copy(); });
    ConfineTo(sheet.memory, StrokesPart);
    Cost("`PatBlt`, confined to a stroke", [&] { sheet.Clear(); });
    SelectClipRgn(sheet.memory, nullptr);
    ConfineTo(sheet.target, StrokesPart);
    Cost("`BitBlt`, confined to a stroke", [&] { sheet.Copy(); });
    SelectClipRgn(sheet.target, nullptr);
    Cost("GDI+'s seven calls for a segment", [&] { sheet.DrawSegment(); });
}

} // namespace

int main()
{
    ULONG_PTR token = 0;
    const Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&token, &input, nullptr);
    {
        const Sheet sheet;
        std::cout << "| Call, on a window of " << sheet.width << " x " << sheet.height
                  << " | µs |\n|---|---|\n";
        CostOfInputs(sheet);
        CostOfFrames(sheet);
    }
    Gdiplus::GdiplusShutdown(token);
    return 0;
}
