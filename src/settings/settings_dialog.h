// The settings dialog: shows the Core's parameter record and changes it in place.
#pragma once

#include "ink/params.h"
#include "platform/win32/windows_header.h"
#include "settings/params_view.h"
#include "settings/picker_controls.h"

#include <cstdint>

namespace zq::LM {

// Modeless, on the thread of its owner window. There is nothing to apply: every change goes straight into the
// record.
class SettingsDialog final : public ParamsView {
public:
    SettingsDialog(HWND parent, HMODULE module);
    ~SettingsDialog() override;
    SettingsDialog(const SettingsDialog&) = delete;
    SettingsDialog& operator=(const SettingsDialog&) = delete;

    // The record may be gone when this object ends.
    void SetRecord(Params* shownRecord) { record = shownRecord; }

    void Open() override;
    void Refresh() override;

private:
    static INT_PTR CALLBACK Procedure_(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    void OnMessage_(HWND window, UINT message, WPARAM wParam);
    void OnInit_(HWND window);
    void OnPaint_(HWND window) const;
    void OnClose_();
    void OnCommand_(int id, unsigned notification);

    void ReadTrackbars_();
    void ReadCheckBoxes_();
    void ReadEdit_(int id);
    void DragPicker_();

    void SetUpTrackbars_() const;
    void UpdateControls_() const;
    void ShowColours_() const;

    HWND dialog = nullptr; // null while it is closed
    HWND parent;
    HMODULE module;
    PickerControls picker;
    bool dragging = false;
    Params* record = nullptr;
    std::uint32_t framesPerSecond = 60; // shown, and read by nothing else
};

} // namespace zq::LM
