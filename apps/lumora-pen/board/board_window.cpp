// The Board's window.
#include "board/board_window.h"

#include "board/press_and_hold.h"
#include "ink/cross_cursor.h"
#include "input/virtual_screen.h"

#include <utility>

#include <tpcshrd.h>

namespace lumora_pen {

namespace {

constexpr wchar_t Name[] = L"Lumora Pen Board";
constexpr DWORD Style = WS_POPUP;
constexpr DWORD ExtendedStyle =
    WS_EX_LAYERED | WS_EX_TOPMOST | WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW; // the keys stay where they were

HCURSOR MakeCross()
{
    const int width = GetSystemMetrics(SM_CXCURSOR);
    const int height = GetSystemMetrics(SM_CYCURSOR);
    const CursorMasks masks = CrossMasks(width, height);
    return CreateCursor(GetModuleHandleW(nullptr), masks.hotX, masks.hotY, width, height, masks.keep.data(),
                        masks.white.data());
}

} // namespace

BoardWindow::BoardWindow(TakeInput take) : input(std::move(take)), cursor(MakeCross()) {}

BoardWindow::~BoardWindow()
{
    Hide();
    if (cursor != nullptr) {
        DestroyCursor(cursor);
    }
}

BoardState BoardWindow::Show(HWND overlay)
{
    const bool isEnding = !IsShown() && window != nullptr; // it is just telling of its last stroke
    if (IsShown() || isEnding) {
        PlaceBelow(overlay);
        return state;
    }
    const PixelRectangle area = VirtualScreen();
    if (!MakeWindow_(area)) {
        return BoardState::Hidden;
    }
    state = BoardState::TakesInputAndInk;
    if (!canvas.Make(area) || !Present_(area)) {
        ShowGround_();
    }
    PlaceBelow(overlay);
    return state;
}

void BoardWindow::Hide()
{
    if (IsShown()) {
        state = BoardState::Hidden;
        ShowWindow(window, SW_HIDE); // before all that may take its time
        DestroyWindow(window);
    }
}

// Shows it too: shown by itself, a window comes to lie on top.
void BoardWindow::PlaceBelow(HWND overlay)
{
    constexpr UINT ShowThere = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER | SWP_SHOWWINDOW;
    if (!IsShown()) {
        return;
    }
    if (overlay == nullptr || !SetWindowPos(window, overlay, 0, 0, 0, 0, ShowThere)) {
        SetWindowPos(window, HWND_TOPMOST, 0, 0, 0, 0, ShowThere);
    }
}

bool BoardWindow::Draw(std::span<const InkPoint> points, const lumora::Colour& colour)
{
    return Present_(canvas.Draw(points, colour));
}

bool BoardWindow::Wipe() { return Present_(canvas.Wipe()); }

std::exception_ptr BoardWindow::TakeFailure() { return std::exchange(failure, nullptr); }

LRESULT CALLBACK BoardWindow::Procedure_(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCCREATE) {
        void* made = reinterpret_cast<const CREATESTRUCTW*>(lParam)->lpCreateParams;
        static_cast<BoardWindow*>(made)->window = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(made));
    }
    auto* self = reinterpret_cast<BoardWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self == nullptr) {
        return DefWindowProcW(window, message, wParam, lParam);
    }
    try {
        return self->Handle_(message, wParam, lParam);
    } catch (...) {
        self->failure = std::current_exception();
        return 0;
    }
}

LRESULT BoardWindow::Handle_(UINT message, WPARAM wParam, LPARAM lParam)
{
    HWND handled = window; // a message of input may end it
    auto answer = input.Take(handled, message, wParam, lParam);
    if (!answer) {
        answer = TakeOther_(message, wParam, lParam);
    }
    return answer ? *answer : DefWindowProcW(handled, message, wParam, lParam);
}

std::optional<LRESULT> BoardWindow::TakeOther_(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_MOUSEACTIVATE:
    case WM_POINTERACTIVATE:
        return MA_NOACTIVATE; // which is PA_NOACTIVATE too
    case WM_TABLET_QUERYSYSTEMGESTURESTATUS:
        return PressAndHoldAnswer();
    case WM_SETCURSOR:
        if (LOWORD(lParam) != HTCLIENT || cursor == nullptr) {
            return std::nullopt;
        }
        SetCursor(cursor);
        return TRUE;
    case WM_DISPLAYCHANGE:
    case WM_DPICHANGED:
        FollowScreen_();
        return 0;
    case WM_ERASEBKGND:
        PaintGround_(reinterpret_cast<HDC>(wParam));
        return 1;
    case WM_DESTROY: // by Hide, or by somebody else
        state = BoardState::Hidden;
        input.End();
        return std::nullopt;
    case WM_NCDESTROY:
        ForgetPressAndHold(window);
        window = nullptr;
        canvas.Free();
        owed = {};
        return std::nullopt;
    default:
        return std::nullopt;
    }
}

bool BoardWindow::MakeWindow_(const PixelRectangle& area)
{
    WNDCLASSW description = {};
    description.lpfnWndProc = Procedure_;
    description.hInstance = GetModuleHandleW(nullptr);
    description.hCursor = LoadCursorW(nullptr, IDC_CROSS);
    description.lpszClassName = Name;
    RegisterClassW(&description); // which fails, as it may, from the second time on
    CreateWindowExW(ExtendedStyle, Name, Name, Style, area.left, area.top, area.Width(), area.Height(),
                    nullptr, nullptr, description.hInstance, this);
    if (window != nullptr) {
        SwitchPressAndHoldOff(window);
    }
    return window != nullptr;
}

// A window that the system paints, as good as see-through: it takes input and needs no bitmap of ours.
void BoardWindow::ShowGround_()
{
    canvas.Free();
    state = BoardState::TakesInput;
    // One that was shown by its own bitmap begins anew.
    SetWindowLongPtrW(window, GWL_EXSTYLE, static_cast<LONG_PTR>(ExtendedStyle & ~DWORD{WS_EX_LAYERED}));
    SetWindowLongPtrW(window, GWL_EXSTYLE, static_cast<LONG_PTR>(ExtendedStyle));
    SetLayeredWindowAttributes(window, 0, 1, LWA_ALPHA);
}

void BoardWindow::FollowScreen_()
{
    const PixelRectangle area = VirtualScreen();
    if (state == BoardState::TakesInputAndInk && !(canvas.MoveTo(area) && Present_(area))) {
        ShowGround_();
    }
    SetWindowPos(window, nullptr, area.left, area.top, area.Width(), area.Height(),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

// What could not be shown is shown with what comes next.
bool BoardWindow::Present_(const PixelRectangle& changed)
{
    if (state != BoardState::TakesInputAndInk) {
        return false;
    }
    owed = Around(owed, changed);
    if (!owed.IsEmpty() && !UpdateWindow_(owed)) {
        return false;
    }
    owed = {};
    return true;
}

// The part alone, or all of the window where the system does not take a part.
bool BoardWindow::UpdateWindow_(const PixelRectangle& part)
{
    const PixelRectangle area = canvas.Area();
    POINT place = {area.left, area.top};
    SIZE size = {area.Width(), area.Height()};
    POINT from = {0, 0};
    BLENDFUNCTION blend = {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    const RECT dirty = {part.left - area.left, part.top - area.top, part.right - area.left,
                        part.bottom - area.top};
    UPDATELAYEREDWINDOWINFO update = {};
    update.cbSize = sizeof(update);
    update.pptDst = &place;
    update.psize = &size;
    update.hdcSrc = canvas.DC();
    update.pptSrc = &from;
    update.pblend = &blend;
    update.dwFlags = ULW_ALPHA;
    update.prcDirty = &dirty;
    return UpdateLayeredWindowIndirect(window, &update) ||
           UpdateLayeredWindow(window, nullptr, &place, &size, canvas.DC(), &from, 0, &blend, ULW_ALPHA);
}

void BoardWindow::PaintGround_(HDC dc) const
{
    RECT client = {};
    if (state == BoardState::TakesInput && GetClientRect(window, &client)) {
        FillRect(dc, &client, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    }
}

} // namespace lumora_pen
