// A host that does what hosts do.
#include "library/faults/fault_host.h"

#include "library/settings/settings_dialog_test.h"
#include "lumora/brush_data.h"
#include "support/library/object_counts.h"

#include <commdlg.h>
#include <shellapi.h>

#include <exception>
#include <new>

namespace zq::LM::test {

FaultHost::FaultHost()
{
    calls.Answer<"Shell_NotifyIconW">(Shell_NotifyIconW, [](auto...) { return TRUE; });
    calls.Answer<"TrackPopupMenu">(TrackPopupMenu, [](auto...) { return TRUE; });
    calls.Answer<"GetSaveFileNameA">(GetSaveFileNameA, [](auto...) { return FALSE; });
    calls.Answer<"SetForegroundWindow">(SetForegroundWindow, [](auto...) { return TRUE; });
}

void FaultHost::Try_(const std::function<void()>& call)
{
    try {
        call();
    } catch (const std::bad_alloc&) {
        EXPECT_TRUE(HasFailed()) << "memory was there";
    } catch (const std::exception& exception) {
        ADD_FAILURE() << "raised to the host: " << exception.what();
    }
}

void FaultHost::Create()
{
    Try_([this] {
        const HWND window = library.Create();
        EXPECT_EQ(library.GetWindowHandle(), window);
        EXPECT_TRUE(window == nullptr || IsWindow(window));
    });
}

void FaultHost::Destroy()
{
    Try_([this] { library.Destroy(); });
    EXPECT_EQ(library.GetWindowHandle(), nullptr);
}

void FaultHost::Write()
{
    const LM_PenData samples[] = {Sample(300, 240), Sample(340, 240), Sample(350, 260, 4000),
                                  Sample(350, 262, 0)};
    Try_([&] { library.InputPenDataArray(samples, std::size(samples)); });
    PaintFrame();
}

void FaultHost::Age()
{
    Send(WM_TIMER, 12345, 0);
    clock.Advance(10 * Life);
    Send(WM_TIMER, 12345, 0);
    PaintFrame();
}

void FaultHost::Send(UINT message, WPARAM wParam, LPARAM lParam) const
{
    if (const HWND window = library.GetWindowHandle()) { // a null window's message would wait for ever
        SendMessageW(window, message, wParam, lParam);
    }
}

void FaultHost::SendBrushData()
{
    for (lumora::BrushDataMessage message :
         {lumora::MakeNothing(), lumora::MakeInkColor(Red), lumora::MakeBrushSize(1, 30),
          lumora::MakeInkDecayTime(Life), lumora::MakeBrushParams(Red, 2, 20)}) {
        Try_([&] { library.SetData_from_App(message.data(), message.size()); });
    }
}

void FaultHost::UseDialog()
{
    Send(WM_COMMAND, SettingsCommand, 0);
    for (const HWND dialog : SettingsDialogs()) {
        UpdateWindow(dialog);
        SetDlgItemTextA(dialog, EditBrushSize, "25");
        SetDlgItemTextA(dialog, EditRgb, "10,20,30");
        SendMessageW(dialog, WM_HSCROLL, MAKEWPARAM(TB_THUMBTRACK, 7),
                     reinterpret_cast<LPARAM>(GetDlgItem(dialog, TrackbarInkLife)));
        SendMessageW(GetDlgItem(dialog, CheckOutline), BM_CLICK, 0, 0);
        SendMessageW(GetDlgItem(dialog, ButtonColorPicker), BM_CLICK, 0, 0);
        SendMessageW(dialog, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(100, 100));
        SendMessageW(dialog, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(120, 90));
        SendMessageW(dialog, WM_LBUTTONUP, 0, MAKELPARAM(120, 90));
        UpdateWindow(dialog);
        SendMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
    }
}

} // namespace zq::LM::test
