// The settings dialog of the real library: opened by its command, driven by messages, read back on the
// screen.
#pragma once

#include "resources/resource_ids.h"
#include "support/fakes/cursor.h"
#include "support/library/object_counts.h"
#include "support/library/overlay_test.h"

#include <commctrl.h>

#include <functional>
#include <string>
#include <vector>

namespace zq::LM::test {

class SettingsDialogTest : public OverlayTest {
protected:
    void SetUp() override { CreateWithGDI(); }

    // The dialog, open and painted.
    HWND Open();
    HWND Dialog() const { return dialog; }
    void Close() const { SendMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0); }
    HWND OpenAndClose();
    void OpenWithColour(COLORREF colour);

    // The library's dialog windows of this thread: all, or those that are not hidden.
    static std::vector<HWND> AllDialogs() { return SettingsDialogs(); }
    static std::vector<HWND> OpenDialogs();

    HWND Control(int id) const { return GetDlgItem(dialog, id); }
    std::string Text(int id) const;
    bool IsChecked(int id) const { return IsDlgButtonChecked(dialog, id) == BST_CHECKED; }
    LRESULT Position(int trackbar) const { return SendMessageW(Control(trackbar), TBM_GETPOS, 0, 0); }

    // As a person's hand does it: the control first, then what it tells the dialog.
    void Type(int edit, const std::string& text) const { SetDlgItemTextA(dialog, edit, text.c_str()); }
    void Click(int button) const { SendMessageW(Control(button), BM_CLICK, 0, 0); }
    void MoveTrackbar(int trackbar, int position) const;

    // The Core's record, which the next pen input hands to the engine.
    LM_Params Record() const;

    // A point of a control's client area on the screen, and the control's client size.
    POINT OnScreen(int id, int x, int y) const;
    SIZE Size(int id) const;

    // The same with a point counted from the middle of the control.
    POINT FromMiddle(int id, int dx, int dy) const;

    Picture Seen(int id) const; // at screen coordinates
    bool SwatchShows(COLORREF colour) const;

    // Dispatches what comes in until the condition holds; false when it never does.
    static bool PumpUntil(const std::function<bool()>& condition);

private:
    HWND dialog = nullptr;
};

} // namespace zq::LM::test
