// The settings dialog's life and messages.
#include "settings/settings_dialog.h"

#include "platform/win32/gdi_owners.h"
#include "render/key_fill.h"
#include "resources/resource_ids.h"

#include <commctrl.h>

#include <utility>

namespace zq::LM {

namespace {

SettingsDialog* g_settingsDialog = nullptr; // whom the dialog procedure serves
HWND g_hiddenDialog = nullptr;              // the dialog that was closed last

// A process has a limited number of windows, so of the closed dialogs only the last one is kept. A window of
// another thread stays: only that thread could destroy it.
void KeepAsTheOnlyHidden(HWND window)
{
    HWND earlier = std::exchange(g_hiddenDialog, window);
    if (earlier != nullptr) {
        DestroyWindow(earlier);
    }
}

} // namespace

SettingsDialog::SettingsDialog(HWND parent, HMODULE module) : parent(parent), module(module)
{
    g_settingsDialog = this;
}

void SettingsDialog::OnEnd()
{
    record = nullptr; // the Core has freed it by now, and closing still sends messages
    if (dialog != nullptr) {
        SendMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0); // harmless when it died with its owner
    }
    if (dialog != nullptr && IsWindow(dialog)) {
        OnClose_(); // the procedure serves a later object by now
    }
    if (g_settingsDialog == this) {
        g_settingsDialog = nullptr;
    }
}

void SettingsDialog::Open()
{
    if (dialog != nullptr || opening) {
        return;
    }
    const Hold hold(*this);
    opening = true;
    HWND made = CreateDialogParamW(module, MAKEINTRESOURCEW(DialogSettings), parent, Procedure_, 0);
    opening = false;
    if (made != dialog) {
        DestroyWindow(made); // closed while it was being made; the system has shown it all the same
    }
}

void SettingsDialog::Refresh()
{
    const Hold hold(*this);
    Refresh_();
}

void SettingsDialog::Refresh_()
{
    if (dialog != nullptr && Shows_(dialog)) {
        picker.Follow(record->inkColor);
        UpdateControls_(dialog);
    }
}

// Always answers 0: the system handles every message too.
INT_PTR CALLBACK SettingsDialog::Procedure_(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCDESTROY && window == g_hiddenDialog) {
        g_hiddenDialog = nullptr;
    }
    SettingsDialog* served = g_settingsDialog;
    if (served != nullptr && served->IsServed_(window, message)) {
        const Hold hold(*served);
        served->OnMessage_(window, message, wParam, lParam);
    }
    return 0;
}

// A closed dialog's window goes on getting messages, and its controls no longer stand for the record.
bool SettingsDialog::IsServed_(HWND window, UINT message) const
{
    return window == dialog || (opening && message == WM_INITDIALOG);
}

void SettingsDialog::OnMessage_(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    constexpr WPARAM SystemCommandBits = 0xFFF0; // the system uses the low ones itself
    if (message == WM_INITDIALOG) {
        OnInit_(window);
    } else if (message == WM_SYSCOMMAND) {
        if ((wParam & SystemCommandBits) == SC_CLOSE) {
            OnClose_();
        }
    } else if (Shows_(window)) {
        OnUse_(window, message, wParam, lParam);
    }
}

void SettingsDialog::OnInit_(HWND window)
{
    opening = false;
    dialog = window;
    dragging = false;
    InitCommonControls();
    Refresh_();
    if (Shows_(window)) {
        picker.Build(GetDlgItem(window, ValueBarArea), GetDlgItem(window, WheelArea));
    }
}

// Only hidden: host code may still hold the handle. It goes with its overlay, or when another is closed.
void SettingsDialog::OnClose_()
{
    HWND closing = std::exchange(dialog, nullptr);
    EndDrag_();
    KeepAsTheOnlyHidden(closing);
    EndDialog(closing, 0);
}

void SettingsDialog::OnUse_(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_PAINT:
        OnPaint_(window);
        break;
    case WM_CTLCOLORSTATIC: // a control near the colours is being painted, perhaps over them
        ShowColours_(window);
        break;
    case WM_HSCROLL:
        ReadTrackbars_(window);
        break;
    case WM_COMMAND:
        OnCommand_(window, LOWORD(wParam), HIWORD(wParam));
        break;
    case WM_LBUTTONDOWN:
    case WM_POINTERDOWN:
        dragging = true;
        SetCapture(window); // the release is to arrive, wherever it happens
        DragPicker_(window);
        break;
    case WM_MOUSEMOVE:
        DragPicker_(window);
        break;
    case WM_LBUTTONUP:
        EndDrag_();
        break;
    case WM_CAPTURECHANGED:
        dragging = dragging && reinterpret_cast<HWND>(lParam) == window;
        break;
    default:
        break;
    }
}

void SettingsDialog::OnPaint_(HWND window) const
{
    {
        const PaintSession nothingOfItsOwn(window);
    }
    ShowColours_(window);
}

void SettingsDialog::OnCommand_(HWND window, int id, unsigned notification)
{
    switch (id) {
    case CheckLine:
    case CheckCursor:
    case CheckOutline:
    case CheckZebraMode:
    case CheckPressure:
    case CheckOffset:
    case TrackbarBrushSize:
        ReadCheckBoxes_(window);
        break;
    case ButtonColorPicker:
        record->colorPicker = 1;
        break;
    case EditBrushSize:
    case EditInkLife:
    case EditFramesPerSecond:
        if (notification == EN_CHANGE) {
            ReadEdit_(window, id);
        }
        break;
    default:
        break;
    }
}

// While the button is down: the colour under the pointer goes into the record, and what is shown follows the
// record.
void SettingsDialog::DragPicker_(HWND window)
{
    POINT point{};
    if (!dragging || !Shows_(window) || !GetCursorPos(&point) || !picker.Take(point)) {
        return;
    }
    record->inkColor = RoundedReference(RgbFromHsv(picker.Colour()));
    Refresh_();
}

// Forgotten first: giving the capture back tells of it.
void SettingsDialog::EndDrag_()
{
    if (std::exchange(dragging, false)) {
        ReleaseCapture();
    }
}

void SettingsDialog::ShowColours_(HWND window) const
{
    if (!Shows_(window)) {
        return;
    }
    if (HWND swatch = GetDlgItem(window, SwatchArea)) {
        const WindowDC dc(swatch);
        RECT client{};
        GetClientRect(swatch, &client);
        FillRectangle(dc.Get(), client, record->inkColor);
    }
    picker.Show();
}

} // namespace zq::LM
