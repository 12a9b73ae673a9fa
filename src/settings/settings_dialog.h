// The settings dialog: shows the Core's parameter record and changes it in place.
#pragma once

#include "ink/params.h"
#include "platform/win32/windows_header.h"
#include "settings/params_view.h"
#include "settings/picker_controls.h"

#include <cstdint>

namespace zq::LM {

struct Trackbar;

// Modeless, on the thread of its owner window. Whatever a person does to a control is in the record at once.
//
// Nearly every call of it can run code of the host, which may change the record, close the dialog or end this
// object. So the dialog's own messages hold the object, and what goes on after such a call asks Shows_ first.
class SettingsDialog final : public ParamsView {
public:
    SettingsDialog(HWND parent, HMODULE module);

    // The record may be gone when this object ends.
    void SetRecord(Params* shownRecord) { record = shownRecord; }

    void Open() override;
    void Refresh() override;

private:
    static INT_PTR CALLBACK Procedure_(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    void OnEnd() override;

    // Whether this window is the open dialog still, and the record there.
    bool Shows_(HWND window) const { return Lives() && dialog == window && record != nullptr; }

    void Refresh_();
    bool IsServed_(HWND window, UINT message) const;
    void OnMessage_(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void OnInit_(HWND window);
    void OnClose_();
    void OnUse_(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void OnPaint_(HWND window) const;
    void OnCommand_(HWND window, int id, unsigned notification);

    void DragPicker_(HWND window);
    void EndDrag_();
    void ShowColours_(HWND window) const;

    // In settings_dialog_controls.cpp.
    std::uint32_t& Number_(const Trackbar& trackbar);
    bool IsStill_(const Params& before, HWND window) const;
    void ReadTrackbars_(HWND window);
    void ReadCheckBoxes_(HWND window);
    void ReadEdit_(HWND window, int id);
    void SetUpTrackbars_(HWND window);
    void ShowNumbers_(HWND window);
    void UpdateControls_(HWND window);

    HWND dialog = nullptr; // null while it is closed
    bool opening = false;  // until its window says that it is there
    HWND parent;
    HMODULE module;
    PickerControls picker;
    bool dragging = false;
    Params* record = nullptr;
    std::uint32_t framesPerSecond = 60; // for show: no frame is paced by it
};

} // namespace zq::LM
