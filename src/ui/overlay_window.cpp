// The overlay window: its class, its creation and its message table.
#include "ui/overlay_window.h"

#include "log/debug_log.h"
#include "platform/dropped.h"
#include "render/rendering_type.h"
#include "render/shell_window.h"
#include "ui/tray.h"

#include <cwchar>
#include <iterator>
#include <utility>

namespace zq::LM {

namespace {

unsigned g_classCounter = 0;

int Width(const RECT& rectangle) { return rectangle.right - rectangle.left; }
int Height(const RECT& rectangle) { return rectangle.bottom - rectangle.top; }

} // namespace

PixelDensity DensityOf(const RECT& shell, int widthMm, int heightMm)
{
    PixelDensity density;
    if (widthMm > 0) {
        density.x = static_cast<double>(shell.right) / widthMm;
    }
    if (heightMm > 0) {
        density.y = static_cast<double>(shell.bottom) / heightMm;
    }
    return density;
}

OverlayWindow::OverlayWindow(WindowEvents& events)
    : events(events), screen(ShellWindowRect().value_or(ScreenWithoutShell))
{
}

bool OverlayWindow::RegisterWindowClass(HMODULE module, WNDPROC procedure)
{
    Dropped( // the name always fits
        std::swprintf(className, std::size(className), L"%ls_%05d", L"Lumora Window Class", g_classCounter));
    g_classCounter = ClassNumberAfter(g_classCounter);

    windowClass = {};
    windowClass.cbSize = sizeof(windowClass);
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = module;
    windowClass.hCursor =
        static_cast<HCURSOR>(LoadImageW(nullptr, IDC_ARROW, IMAGE_CURSOR, 0, 0, LR_DEFAULTSIZE | LR_SHARED));
    windowClass.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    windowClass.lpszClassName = className;
    return RegisterClassExW(&windowClass) != 0;
}

void OverlayWindow::Create()
{
    DWORD extendedStyle = WS_EX_TOPMOST | WS_EX_TOOLWINDOW;
    if (GetRenderingType() == RenderingType::DirectComposition) {
        extendedStyle |= WS_EX_NOREDIRECTIONBITMAP; // shows its composition visual and nothing else
    }
    const RECT place = ShellWindowRect().value_or(screen);
    isCreating = true;
    CreateWindowExW(extendedStyle, className, L"Lumora DLL Window", WS_POPUP | WS_VISIBLE, place.left,
                    place.top, Width(place), Height(place), nullptr, nullptr, windowClass.hInstance, nullptr);
    isCreating = false;
}

LRESULT OverlayWindow::Dispatch(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_CREATE:
        LogAtNormal(L"WM_CREATE ... ");
        window = handle;
        events.OnCreated();
        Log(g_frameLogLevel, L"done\n");
        return 0;
    case WM_DESTROY:
        LogAtNormal(L"WM_DESTROY ... ");
        PostQuitMessage(0);
        hotkey.ForgetWindow();
        timer.ForgetWindow();
        window = nullptr;
        Log(g_frameLogLevel, L"done\n");
        return 0;
    case WM_PAINT:
        Log(g_frameLogLevel, L"WM_PAINT ... ");
        events.OnPaint(std::exchange(isInvalidated, false));
        Log(g_frameLogLevel, L"done\n");
        return 0;
    case WM_ERASEBKGND:
    case WM_SIZE:
        events.OnContentLost();
        return DefWindowProcW(handle, message, wParam, lParam);
    case WM_COMMAND:
        LogAtNormal(L"WM_COMMAND ... ");
        events.OnCommand(LOWORD(wParam));
        Log(g_frameLogLevel, L"done\n");
        return 0;
    case WM_TIMER:
        Log(g_frameLogLevel, L"WM_TIMER ... ");
        events.OnTick();
        Log(g_frameLogLevel, L"done.\n");
        return 0;
    case WM_HOTKEY: // any registered hotkey opens the tray's menu, by the tray's own way: hence both pairs of
                    // lines
        Log(g_frameLogLevel, L"WM_HOTKEY ... ");
        Log(g_frameLogLevel, L"WM_USER_DEF_TRAY_MESSAGE ... ");
        events.OnMenuWanted();
        Log(g_frameLogLevel, L"done.\n");
        Log(g_frameLogLevel, L"done.\n");
        return 0;
    case TrayMessage: {
        Log(g_frameLogLevel, L"WM_USER_DEF_TRAY_MESSAGE ... ");
        const LRESULT result = ServeTrayMessage_(handle, wParam, lParam);
        Log(g_frameLogLevel, L"done.\n");
        return result;
    }
    default:
        if (message == shellRestarted && shellRestarted != 0) {
            events.OnShellRestarted();
        }
        return DefWindowProcW(handle, message, wParam, lParam);
    }
}

LRESULT OverlayWindow::ServeTrayMessage_(HWND handle, WPARAM wParam, LPARAM lParam)
{
    switch (lParam) {
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
        events.OnMenuWanted();
        return 0;
    case WM_LBUTTONDBLCLK: // its first click has opened the menu
        return 0;
    default:
        return DefWindowProcW(handle, TrayMessage, wParam, lParam);
    }
}

bool OverlayWindow::Owns(HWND handle, UINT message) const
{
    return handle == window || (window == nullptr && isCreating && message == WM_CREATE);
}

void OverlayWindow::ListenForShell() { shellRestarted = RegisterWindowMessageW(L"TaskbarCreated"); }

void OverlayWindow::MeasurePixels()
{
    HDC dc = GetDC(window); // never released: one device context stays behind for each window made
    const RECT shell = ShellWindowRect().value_or(screen);
    const int widthMm = GetDeviceCaps(dc, HORZSIZE);
    const int heightMm = GetDeviceCaps(dc, VERTSIZE);
    pixelsPerMm = DensityOf(shell, widthMm, heightMm);
}

void OverlayWindow::StartTimer()
{
    constexpr UINT PeriodMilliseconds = 50;
    timer.Start(window, PeriodMilliseconds);
}

bool OverlayWindow::MakeClickThrough()
{
    constexpr LONG ClickThrough = WS_EX_TRANSPARENT | WS_EX_LAYERED;
    const LONG style = GetWindowLongW(window, GWL_EXSTYLE);
    if (SetWindowLongW(window, GWL_EXSTYLE, style | ClickThrough) != 0) {
        return true;
    }
    return (GetWindowLongW(window, GWL_EXSTYLE) & ClickThrough) == ClickThrough;
}

bool OverlayWindow::FitToScreen()
{
    RECT client{};
    GetClientRect(window, &client);
    // Only when both differ.
    if (Width(client) == Width(screen) || Height(client) == Height(screen)) {
        return false;
    }
    SetWindowPos(window, HWND_TOPMOST, 0, 0, Width(screen), Height(screen), SWP_SHOWWINDOW);
    return true;
}

bool OverlayWindow::FollowScreen()
{
    const std::optional<RECT> shell = ShellWindowRect();
    if (!shell || EqualRect(&*shell, &screen)) {
        return false;
    }
    screen = *shell;
    SetWindowPos(window, HWND_TOPMOST, screen.left, screen.top, Width(screen), Height(screen),
                 SWP_SHOWWINDOW);
    return true;
}

void OverlayWindow::Invalidate()
{
    if (window == nullptr) {
        return; // a null window would be the whole desktop
    }
    if (RECT part{}; !std::exchange(isInvalidated, true) && GetUpdateRect(window, &part, FALSE) != 0) {
        events.OnWanted(part);
    }
    Log(g_frameLogLevel, L"InvalidateRect is called.\n");
    InvalidateRect(window, nullptr, FALSE);
}

} // namespace zq::LM
