// The window below the ink: its text must stay readable, and its clicks must arrive.
#include "note_window.h"
#include "paint_scope.h"

#include <string>

namespace lumora::demo {

namespace {

constexpr wchar_t NoteClass[] = L"Lumora Demo Note";
constexpr wchar_t Paragraph[] = L"The ink lies on a window of its own, above all others. Where there is no "
                                L"ink that window cannot be seen, and it "
                                L"never takes the mouse: what you read here stays readable, and a click on "
                                L"the ink is a click on this window. "
                                L"What was written first goes first, and the pen need not wait for it.";
constexpr int Margin = 20;
constexpr int TextHeight = 20;

unsigned g_clicks = 0; // there is one such window

void PaintNote(HWND window)
{
    const PaintScope scope(window);
    RECT area = {};
    GetClientRect(window, &area);
    const Selected background(scope.dc, CreateSolidBrush(RGB(253, 252, 248)));
    PatBlt(scope.dc, 0, 0, area.right, area.bottom, PATCOPY);

    const Selected font(scope.dc, CreateFontW(-TextHeight, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE,
                                              DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                                              CLEARTYPE_QUALITY, VARIABLE_PITCH | FF_SWISS, L"Segoe UI"));
    SetBkMode(scope.dc, TRANSPARENT);
    SetTextColor(scope.dc, RGB(64, 72, 84));
    InflateRect(&area, -Margin, -Margin);
    area.top += DrawTextW(scope.dc, Paragraph, -1, &area, DT_WORDBREAK) + Margin;
    const std::wstring clicks = L"Clicks that reached this window: " + std::to_wstring(g_clicks);
    DrawTextW(scope.dc, clicks.c_str(), -1, &area, DT_WORDBREAK);
}

LRESULT CALLBACK NoteProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_PAINT:
        PaintNote(window);
        return 0;
    case WM_ERASEBKGND:
        return 1;
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE;
    case WM_WINDOWPOSCHANGING:
        // Without a window manager a raised window comes to lie above other programs' topmost ones.
        reinterpret_cast<WINDOWPOS*>(lParam)->flags |= SWP_NOZORDER;
        return 0;
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
        ++g_clicks;
        InvalidateRect(window, nullptr, FALSE);
        return 0;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    default:
        return DefWindowProcW(window, message, wParam, lParam);
    }
}

} // namespace

HWND CreateNoteWindow(HINSTANCE instance)
{
    WNDCLASSEXW windowClass = {};
    windowClass.cbSize = sizeof(windowClass);
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    windowClass.lpfnWndProc = NoteProcedure;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.lpszClassName = NoteClass;
    RegisterClassExW(&windowClass);

    const int screenWidth = GetSystemMetrics(SM_CXSCREEN);
    const int screenHeight = GetSystemMetrics(SM_CYSCREEN);
    HWND window = CreateWindowExW(0, NoteClass, L"An ordinary window", WS_OVERLAPPEDWINDOW,
                                  screenWidth * 44 / 100, screenHeight * 50 / 100, screenWidth * 50 / 100,
                                  screenHeight * 36 / 100, nullptr, nullptr, instance, nullptr);
    if (window != nullptr) {
        ShowWindow(window, SW_SHOW);
        UpdateWindow(window);
    }
    return window;
}

} // namespace lumora::demo
