// The settings dialog's check boxes, trackbars and edits: how they are read and shown.
#include "settings/settings_dialog.h"

#include "ink/truncation.h"
#include "platform/dropped.h"
#include "resources/resource_ids.h"
#include "settings/entered_numbers.h"

#include <commctrl.h>

#include <array>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <iterator>

namespace zq::LM {

// A trackbar and the edit that shows its number.
struct Trackbar {
    int id;
    int edit;
    std::uint32_t most;
    std::uint32_t step;
    std::uint32_t Params::*number; // null: the dialog's own frame rate
};

namespace {

constexpr Trackbar Trackbars[] = {
    {TrackbarBrushSize, EditBrushSize, MostBrushSize, 10, &Params::brushSize},
    {TrackbarInkLife, EditInkLife, MostInkDecayTime, 100, &Params::inkDecayTime},
    {TrackbarFramesPerSecond, EditFramesPerSecond, MostFramesPerSecond, 10, nullptr},
};

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

void ShowTriple(HWND dialog, int id, double first, double second, double third)
{
    HWND edit = GetDlgItem(dialog, id);
    if (edit == nullptr) {
        return;
    }
    char text[64];
    Dropped( // always fits
        std::snprintf(text, std::size(text), "(%3d, %3d, %3d)", TruncateToSigned(first),
                      TruncateToSigned(second), TruncateToSigned(third)));
    SetWindowTextA(edit, text);
    UpdateWindow(edit);
}

} // namespace

std::uint32_t& SettingsDialog::Number_(const Trackbar& trackbar)
{
    return trackbar.number != nullptr ? record->*trackbar.number : framesPerSecond;
}

// The host may change the record while a control is read. The dialog shows its change by then, so what was
// read is old. A window that it has destroyed reads as 0.
bool SettingsDialog::IsStill_(const Params& before, HWND window) const
{
    return Shows_(window) && IsWindow(window) && std::memcmp(&before, record, sizeof(before)) == 0;
}

// All of them before the first is shown: its edit's change may set all trackbars up from the record.
void SettingsDialog::ReadTrackbars_(HWND window)
{
    const Params before = *record;
    std::array<std::uint32_t, std::size(Trackbars)> positions{};
    for (std::size_t i = 0; i < positions.size(); ++i) {
        positions[i] =
            static_cast<std::uint32_t>(SendDlgItemMessageW(window, Trackbars[i].id, TBM_GETPOS, 0, 0));
    }
    if (!IsStill_(before, window)) {
        return;
    }
    for (std::size_t i = 0; i < positions.size(); ++i) {
        Number_(Trackbars[i]) = positions[i];
    }
    ShowNumbers_(window);
}

// The brush size's edit is read along, without its limits.
void SettingsDialog::ReadCheckBoxes_(HWND window)
{
    constexpr int TextSize = 512;
    const Params before = *record;
    Params changed = before;
    for (const CheckBox& box : CheckBoxes) {
        changed.*box.flag = IsDlgButtonChecked(window, box.id) == BST_CHECKED ? 1 : 0;
    }
    char text[TextSize] = "";
    GetDlgItemTextA(window, EditBrushSize, text, TextSize);
    changed.brushSize = EnteredNumber(text);
    if (IsStill_(before, window)) {
        *record = changed;
    }
}

void SettingsDialog::ReadEdit_(HWND window, int id)
{
    constexpr int TextSize = 128;
    constexpr std::size_t ComparedBytes = offsetof(Params, reserved31); // the last byte does not count
    const Params before = *record;
    char text[TextSize] = "";
    if (GetDlgItemTextA(window, id, text, TextSize) == 0 || !IsStill_(before, window)) {
        return;
    }
    const std::uint32_t number = EnteredNumber(text);
    Params changed = before;
    if (id == EditBrushSize) {
        changed.brushSize = LimitedBrushSize(number, before.minBrushSize);
    } else if (id == EditInkLife) {
        changed.inkDecayTime = LimitedInkDecayTime(number);
    } else {
        framesPerSecond = LimitedFramesPerSecond(number);
    }
    const bool differs = std::memcmp(&changed, &before, ComparedBytes) != 0;
    if (differs) {
        *record = changed;
    }
    if (differs || id == EditFramesPerSecond) {
        SetUpTrackbars_(window);
    }
}

void SettingsDialog::SetUpTrackbars_(HWND window)
{
    for (const Trackbar& trackbar : Trackbars) {
        SendDlgItemMessageW(window, trackbar.id, TBM_SETRANGE, TRUE, MAKELPARAM(0, trackbar.most));
        SendDlgItemMessageW(window, trackbar.id, TBM_SETTICFREQ, trackbar.step, 0);
        SendDlgItemMessageW(window, trackbar.id, TBM_SETPAGESIZE, 0, static_cast<LPARAM>(trackbar.step));
        if (!Shows_(window)) {
            return;
        }
        SendDlgItemMessageW(window, trackbar.id, TBM_SETPOS, TRUE,
                            static_cast<std::int32_t>(Number_(trackbar)));
    }
}

// Tells the dialog of each change at once, whose limits then hold.
void SettingsDialog::ShowNumbers_(HWND window)
{
    for (const Trackbar& trackbar : Trackbars) {
        if (Shows_(window)) {
            SetDlgItemInt(window, trackbar.edit, Number_(trackbar), TRUE);
        }
    }
}

void SettingsDialog::UpdateControls_(HWND window)
{
    for (const CheckBox& box : CheckBoxes) {
        if (Shows_(window)) {
            CheckDlgButton(window, box.id, record->*box.flag != 0 ? BST_CHECKED : BST_UNCHECKED);
        }
    }
    SetUpTrackbars_(window);
    ShowNumbers_(window);
    if (!Shows_(window)) {
        return;
    }
    const Hsv& hsv = picker.Colour();
    ShowTriple(window, EditHsv, hsv.hue, hsv.saturation, hsv.value);
    const Rgb rgb = RgbFromHsv(hsv);
    ShowTriple(window, EditRgb, rgb.red, rgb.green, rgb.blue);
}

} // namespace zq::LM
