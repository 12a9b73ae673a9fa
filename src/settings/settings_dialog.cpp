// The settings dialog: shows the Core's parameter record and changes it in place.
#include "settings/settings_dialog.h"

#include "ink/truncation.h"
#include "platform/win32/gdi_owners.h"
#include "render/key_fill.h"
#include "resources/resource_ids.h"
#include "settings/entered_numbers.h"

#include <commctrl.h>

#include <cstddef>
#include <cstdio>
#include <cstring>
#include <iterator>

namespace zq::LM {

namespace {

SettingsDialog* g_settingsDialog = nullptr; // whom the dialog procedure serves

struct CheckBox {
    int id;
    std::uint8_t Params::*flag;
};

constexpr CheckBox CheckBoxes[] = {
    {CheckLine, &Params::line},
    {CheckCursor, &Params::cursor},
    {CheckOutline, &Params::outline},
    {CheckZebraMode, &Params::zebraMode},
    {CheckPressure, &Params::usePressure},
    {CheckOffset, &Params::useOffset},
};

void SetUpTrackbar(HWND dialog, int id, std::uint32_t most, std::uint32_t step, std::uint32_t position)
{
    SendDlgItemMessageW(dialog, id, TBM_SETRANGE, TRUE, MAKELPARAM(0, most));
    SendDlgItemMessageW(dialog, id, TBM_SETTICFREQ, step, 0);
    SendDlgItemMessageW(dialog, id, TBM_SETPAGESIZE, 0, static_cast<LPARAM>(step));
    SendDlgItemMessageW(dialog, id, TBM_SETPOS, TRUE, static_cast<std::int32_t>(position));
}

std::uint32_t TrackbarPosition(HWND dialog, int id)
{
    return static_cast<std::uint32_t>(SendDlgItemMessageW(dialog, id, TBM_GETPOS, 0, 0));
}

// Tells the dialog of the change at once.
void ShowNumber(HWND dialog, int id, std::uint32_t number) { SetDlgItemInt(dialog, id, number, TRUE); }

void ShowTriple(HWND dialog, int id, double first, double second, double third)
{
    HWND edit = GetDlgItem(dialog, id);
    if (edit == nullptr) {
        return;
    }
    char text[64];
    static_cast<void>( // always fits
        std::snprintf(text, std::size(text), "(%3d, %3d, %3d)", TruncateToSigned(first),
                      TruncateToSigned(second), TruncateToSigned(third)));
    SetWindowTextA(edit, text);
    UpdateWindow(edit);
}

} // namespace

SettingsDialog::SettingsDialog(HWND parent, HMODULE module) : parent(parent), module(module)
{
    g_settingsDialog = this;
}

SettingsDialog::~SettingsDialog()
{
    record = nullptr; // the Core has freed it by now, and closing still sends messages
    if (dialog != nullptr) {
        SendMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0); // harmless when it died with its owner
    }
    if (g_settingsDialog == this) {
        g_settingsDialog = nullptr;
    }
}

void SettingsDialog::Open()
{
    if (dialog == nullptr) {
        dialog = CreateDialogParamW(module, MAKEINTRESOURCEW(DialogSettings), parent, Procedure_, 0);
    }
}

void SettingsDialog::Refresh()
{
    if (dialog == nullptr || record == nullptr) {
        return;
    }
    picker.Follow(record->inkColor);
    UpdateControls_();
}

// Always answers 0: the system handles every message too.
INT_PTR CALLBACK SettingsDialog::Procedure_(HWND window, UINT message, WPARAM wParam, LPARAM)
{
    constexpr WPARAM SystemCommandBits = 0xFFF0; // the system uses the low ones itself
    if (g_settingsDialog == nullptr) {
        return 0;
    }
    if (message == WM_SYSCOMMAND) {
        if ((wParam & SystemCommandBits) == SC_CLOSE) {
            g_settingsDialog->OnClose_();
        }
    } else if (g_settingsDialog->record != nullptr) {
        g_settingsDialog->OnMessage_(window, message, wParam);
    }
    return 0;
}

void SettingsDialog::OnMessage_(HWND window, UINT message, WPARAM wParam)
{
    switch (message) {
    case WM_INITDIALOG:
        OnInit_(window);
        break;
    case WM_PAINT:
        OnPaint_(window);
        break;
    case WM_CTLCOLORSTATIC: // a control near the colours is being painted, perhaps over them
        ShowColours_();
        break;
    case WM_HSCROLL:
        ReadTrackbars_();
        break;
    case WM_COMMAND:
        OnCommand_(LOWORD(wParam), HIWORD(wParam));
        break;
    case WM_LBUTTONDOWN:
    case WM_POINTERDOWN:
        dragging = true;
        DragPicker_();
        break;
    case WM_MOUSEMOVE:
        DragPicker_();
        break;
    case WM_LBUTTONUP:
        dragging = false;
        break;
    default:
        break;
    }
}

void SettingsDialog::OnInit_(HWND window)
{
    dialog = window;
    InitCommonControls();
    Refresh();
    picker.Build(GetDlgItem(dialog, ValueBarArea), GetDlgItem(dialog, WheelArea));
}

void SettingsDialog::OnPaint_(HWND window) const
{
    {
        const PaintSession nothingOfItsOwn(window);
    }
    ShowColours_();
}

// The window is ended, not destroyed: it stays hidden until its owner dies, and the next opening makes a new
// one.
void SettingsDialog::OnClose_()
{
    HWND closing = dialog;
    dialog = nullptr;
    EndDialog(closing, 0);
}

void SettingsDialog::OnCommand_(int id, unsigned notification)
{
    switch (id) {
    case CheckLine:
    case CheckCursor:
    case CheckOutline:
    case CheckZebraMode:
    case CheckPressure:
    case CheckOffset:
    case TrackbarBrushSize:
        ReadCheckBoxes_();
        break;
    case ButtonColorPicker:
        record->colorPicker = 1;
        break;
    case EditBrushSize:
    case EditInkLife:
    case EditFramesPerSecond:
        if (notification == EN_CHANGE) {
            ReadEdit_(id);
        }
        break;
    default:
        break;
    }
}

// Each shown number comes back as a change of its edit, whose limits then hold.
void SettingsDialog::ReadTrackbars_()
{
    record->brushSize = TrackbarPosition(dialog, TrackbarBrushSize);
    ShowNumber(dialog, EditBrushSize, record->brushSize);
    record->inkDecayTime = TrackbarPosition(dialog, TrackbarInkLife);
    ShowNumber(dialog, EditInkLife, record->inkDecayTime);
    framesPerSecond = TrackbarPosition(dialog, TrackbarFramesPerSecond);
    ShowNumber(dialog, EditFramesPerSecond, framesPerSecond);
}

// The brush size's edit is read along, without its limits.
void SettingsDialog::ReadCheckBoxes_()
{
    constexpr int TextSize = 512;
    for (const CheckBox& box : CheckBoxes) {
        record->*box.flag = IsDlgButtonChecked(dialog, box.id) == BST_CHECKED ? 1 : 0;
    }
    char text[TextSize] = "";
    GetDlgItemTextA(dialog, EditBrushSize, text, TextSize);
    record->brushSize = EnteredNumber(text);
}

void SettingsDialog::ReadEdit_(int id)
{
    constexpr int TextSize = 128;
    constexpr std::size_t ComparedBytes = offsetof(Params, reserved31); // the last byte does not count
    char text[TextSize] = "";
    if (GetDlgItemTextA(dialog, id, text, TextSize) == 0) {
        return;
    }
    const std::uint32_t number = EnteredNumber(text);
    Params changed = *record;
    if (id == EditBrushSize) {
        changed.brushSize = LimitedBrushSize(number, record->minBrushSize);
    } else if (id == EditInkLife) {
        changed.inkDecayTime = LimitedInkDecayTime(number);
    } else {
        framesPerSecond = LimitedFramesPerSecond(number);
    }
    const bool differs = std::memcmp(&changed, record, ComparedBytes) != 0;
    if (differs) {
        *record = changed;
    }
    if (differs || id == EditFramesPerSecond) {
        SetUpTrackbars_();
    }
}

// While the button is down: the colour under the pointer goes into the record, and what is shown follows the
// record.
void SettingsDialog::DragPicker_()
{
    POINT point{};
    if (!dragging || !GetCursorPos(&point) || !picker.Take(point)) {
        return;
    }
    record->inkColor = RoundedReference(RgbFromHsv(picker.Colour()));
    Refresh();
}

void SettingsDialog::SetUpTrackbars_() const
{
    SetUpTrackbar(dialog, TrackbarBrushSize, MostBrushSize, 10, record->brushSize);
    SetUpTrackbar(dialog, TrackbarInkLife, MostInkDecayTime, 100, record->inkDecayTime);
    SetUpTrackbar(dialog, TrackbarFramesPerSecond, MostFramesPerSecond, 10, framesPerSecond);
}

void SettingsDialog::UpdateControls_() const
{
    for (const CheckBox& box : CheckBoxes) {
        CheckDlgButton(dialog, box.id, record->*box.flag != 0 ? BST_CHECKED : BST_UNCHECKED);
    }
    SetUpTrackbars_();
    ShowNumber(dialog, EditBrushSize, record->brushSize);
    ShowNumber(dialog, EditInkLife, record->inkDecayTime);
    ShowNumber(dialog, EditFramesPerSecond, framesPerSecond);
    const Hsv& hsv = picker.Colour();
    ShowTriple(dialog, EditHsv, hsv.hue, hsv.saturation, hsv.value);
    const Rgb rgb = RgbFromHsv(hsv);
    ShowTriple(dialog, EditRgb, rgb.red, rgb.green, rgb.blue);
}

void SettingsDialog::ShowColours_() const
{
    if (HWND swatch = GetDlgItem(dialog, SwatchArea)) {
        const WindowDC dc(swatch);
        RECT client{};
        GetClientRect(swatch, &client);
        FillRectangle(dc.Get(), client, record->inkColor);
    }
    picker.Show();
}

} // namespace zq::LM
