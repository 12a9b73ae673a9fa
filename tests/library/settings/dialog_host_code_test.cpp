// Nearly every call of the settings dialog can run code of the host, which may call the library there:
// nothing that was given back is used, no window of an ended dialog stays, and the next instance works.
#include "library/settings/settings_dialog_test.h"
#include "lumora/brush_data.h"
#include "support/fakes/memory.h"
#include "support/hook/hooks.h"
#include "support/library/object_counts.h"

#include <cstdio>
#include <string>
#include <utility>

namespace zq::LM::test {
namespace {

using ::testing::IsEmpty;

class DialogAndHost : public SettingsDialogTest {
protected:
    // What the host does from within.
    void Act(const std::string& act)
    {
        if (act == "Destroy") {
            library.Destroy();
        } else if (act == "Create") {
            library.Create();
        } else if (act == "Rebuild") {
            Choose(ChooseDirectComposition);
            Input({Sample(1, 1)});
        } else if (act == "SetParams") {
            LM_Params params = Params();
            params.brushSize = 77;
            params.inkDecayTime = 777;
            SetParams(params);
        } else if (act == "BrushData") {
            lumora::BrushDataMessage message = lumora::MakeBrushSize(1, 77);
            library.SetData_from_App(message.data(), message.size());
        } else if (act == "Close") {
            CloseAll();
        } else {
            FAIL() << act;
        }
    }

    static void CloseAll()
    {
        for (HWND open : OpenDialogs()) {
            SendMessageW(open, WM_SYSCOMMAND, SC_CLOSE, 0);
        }
    }

    static bool Ends(const std::string& act)
    {
        return act == "Destroy" || act == "Create" || act == "Rebuild";
    }

    void ExpectWorking(const std::string& act)
    {
        PumpMessages();
        EXPECT_EQ(freed.Written(), 0U);
        HWND overlay = library.GetWindowHandle();
        EXPECT_EQ(overlay != nullptr, act != "Destroy");
        EXPECT_EQ(IsWindow(overlay), overlay != nullptr);
        if (Ends(act)) {
            EXPECT_THAT(OpenDialogs(), IsEmpty());
        } else {
            ExpectConsistent();
        }
        DestroyAndForget();
        Select(ChooseGDI);
        EXPECT_TRUE(IsWindow(library.Create()));
        Choose(SettingsCommand);
        EXPECT_EQ(OpenDialogs().size(), 1U);
        DestroyAndForget();
        DestroyLeftWindows(nullptr);
        PumpMessages();
        EXPECT_THAT(AllDialogs(), IsEmpty());
    }

    // An open dialog shows the record, and a closed one has left it alone.
    void ExpectConsistent()
    {
        const LM_Params record = Record();
        EXPECT_GE(record.brushSize, 10U);
        EXPECT_GE(record.inkDecayTime, 100U);
        EXPECT_EQ(record.line + record.cursor + record.usePressure, 3);
        for (HWND open : OpenDialogs()) {
            EXPECT_EQ(GetDlgItemInt(open, EditBrushSize, nullptr, TRUE), record.brushSize);
            EXPECT_EQ(SendDlgItemMessageW(open, TrackbarBrushSize, TBM_GETPOS, 0, 0), record.brushSize);
            EXPECT_EQ(GetDlgItemInt(open, EditInkLife, nullptr, TRUE), record.inkDecayTime);
            EXPECT_EQ(SendDlgItemMessageW(open, TrackbarInkLife, TBM_GETPOS, 0, 0), record.inkDecayTime);
        }
    }

    FreedMemory freed{library.Module()};
};

// Each call of the dialog in turn, in each of its uses.
class EachCallOfTheDialog : public DialogAndHost,
                            public testing::WithParamInterface<std::tuple<std::string, std::string>> {
protected:
    EachCallOfTheDialog()
    {
        Watch_<"BeginPaint">(BeginPaint);
        Watch_<"CheckDlgButton">(CheckDlgButton);
        calls.Answer<"CreateDialogParamW">(CreateDialogParamW, CreateWatchedDialog_);
        Watch_<"CreateDialogParamW">(CreateDialogParamW);
        Watch_<"DestroyWindow">(DestroyWindow);
        Watch_<"EndDialog">(EndDialog);
        Watch_<"GetDlgItemTextA">(GetDlgItemTextA);
        Watch_<"IsDlgButtonChecked">(IsDlgButtonChecked);
        Watch_<"ReleaseCapture">(ReleaseCapture);
        Watch_<"SendDlgItemMessageW">(SendDlgItemMessageW);
        Watch_<"SendMessageW">(SendMessageW);
        Watch_<"SetCapture">(SetCapture);
        Watch_<"SetDlgItemInt">(SetDlgItemInt);
        Watch_<"SetWindowTextA">(SetWindowTextA);
        Watch_<"UpdateWindow">(UpdateWindow);
    }

    // False when the use has fewer calls.
    bool ActInCall(unsigned number, const std::string& act, const std::string& use)
    {
        if (use != "Open") {
            Open();
        }
        if (use == "CloseSecond") {
            Close();
            Open();
        }
        callsUntilAct = number;
        whatToDo = act;
        inUse = use;
        Use();
        const bool acted = callsUntilAct == 0;
        callsUntilAct = 0;
        return acted;
    }

private:
    void Use()
    {
        if (inUse == "Open") {
            Choose(SettingsCommand);
        } else if (inUse == "Refresh") {
            SetField(&LM_Params::brushSize, 33);
        } else if (inUse == "Slide") {
            MoveTrackbar(TrackbarInkLife, 300);
        } else if (inUse == "Check") {
            SendMessageW(Dialog(), WM_COMMAND, CheckOffset, 0);
        } else if (inUse == "Type") {
            SendMessageW(Dialog(), WM_COMMAND, MAKEWPARAM(EditBrushSize, EN_CHANGE), 0);
        } else if (inUse == "Drag") {
            Drag();
        } else if (inUse == "Paint") {
            RedrawWindow(Dialog(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        } else {
            Close();
        }
    }

    void Drag()
    {
        CursorStandIn cursor(library.Module());
        HWND dialog = Dialog();
        cursor.Set(FromMiddle(WheelArea, 20, 0));
        SendMessageW(dialog, WM_LBUTTONDOWN, MK_LBUTTON, 0);
        SendMessageW(dialog, WM_MOUSEMOVE, MK_LBUTTON, 0);
        SendMessageW(dialog, WM_LBUTTONUP, 0, 0);
    }

    template <FixedText name, typename Result, typename... Arguments>
    void Watch_(Result(WINAPI* function)(Arguments...))
    {
        calls.Record<name>(function).After([this](Arguments...) {
            if (callsUntilAct != 0 && MayAct_(name.text) && --callsUntilAct == 0) {
                SCOPED_TRACE(name.text);
                Act(whatToDo);
            }
        });
    }

    // The system's own controls do not stand being destroyed inside what they tell their dialog. And what a
    // drag shows is what a refresh shows.
    bool MayAct_(const std::string& function) const
    {
        return g_controlMessages == 0 &&
               (inUse != "Drag" || function == "SetCapture" || function == "ReleaseCapture");
    }

    static HWND CreateWatchedDialog_(HINSTANCE module, LPCWSTR name, HWND owner, DLGPROC procedure,
                                     LPARAM parameter)
    {
        g_procedure = procedure;
        return CreateDialogParamW(module, name, owner, WatchedProcedure_, parameter);
    }

    static INT_PTR CALLBACK WatchedProcedure_(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        const bool fromControl = message == WM_CTLCOLORSTATIC || (message == WM_COMMAND && lParam != 0);
        g_controlMessages += fromControl ? 1 : 0;
        const INT_PTR result = g_procedure(window, message, wParam, lParam);
        g_controlMessages -= fromControl ? 1 : 0;
        return result;
    }

    inline static DLGPROC g_procedure = nullptr;
    inline static int g_controlMessages = 0;
    Hooks calls{library.Module()};
    unsigned callsUntilAct = 0;
    std::string whatToDo;
    std::string inUse;
};

TEST_P(EachCallOfTheDialog, MayRunCodeOfTheHost)
{
    const auto& [use, act] = GetParam();
    unsigned number = 1;
    while (ActInCall(number, act, use)) {
        SCOPED_TRACE(number);
        ExpectWorking(act);
        library.Create();
        ++number;
    }
    EXPECT_GT(number, 1U);
    std::printf("%u interruptions\n", number - 1);
}

INSTANTIATE_TEST_SUITE_P(
    Settings, EachCallOfTheDialog,
    testing::Combine(testing::Values("Open", "Refresh", "Slide", "Check", "Type", "Drag", "Paint", "Close",
                                     "CloseSecond"),
                     testing::Values("Destroy", "Create", "Rebuild", "SetParams", "Close")),
    [](const auto& info) { return std::get<0>(info.param) + "And" + std::get<1>(info.param); });

// Host code as the system runs it: a window that loses the activation to the dialog, and a hook that hears of
// each window while it is made.
class DialogBeingMade : public DialogAndHost, public testing::WithParamInterface<const char*> {
protected:
    ~DialogBeingMade() override { g_test = nullptr; }

    static void ActOnce()
    {
        if (DialogBeingMade* acting = std::exchange(g_test, nullptr)) {
            acting->Act(GetParam());
        }
    }

    static LRESULT CALLBACK ActWhenLeft(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_ACTIVATE && LOWORD(wParam) == WA_INACTIVE) {
            ActOnce();
        }
        return DefWindowProcW(window, message, wParam, lParam);
    }

    static LRESULT CALLBACK ActWhenMade(int code, WPARAM wParam, LPARAM lParam)
    {
        if (code == HCBT_CREATEWND && --g_windowsUntilAct == 0) {
            ActOnce();
        }
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    inline static DialogBeingMade* g_test = nullptr;
    inline static int g_windowsUntilAct = 0;
};

TEST_P(DialogBeingMade, MayTakeTheActivationFromAWindowOfTheHost)
{
    WNDCLASSW description{};
    description.lpfnWndProc = ActWhenLeft;
    description.lpszClassName = L"Window of the host";
    RegisterClassW(&description);
    HWND host = CreateWindowW(description.lpszClassName, L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 80, 80,
                              nullptr, nullptr, nullptr, nullptr);
    SetActiveWindow(host);
    g_test = this;
    Choose(SettingsCommand);
    EXPECT_EQ(g_test, nullptr); // it has acted
    ExpectWorking(GetParam());
    DestroyWindow(host);
}

TEST_P(DialogBeingMade, MayRunCodeOfTheHostBeforeItKnowsItsWindow)
{
    for (const int windows : {1, 2, 20}) { // the dialog's own, its first control, one of the last
        SCOPED_TRACE(windows);
        library.Create();
        HHOOK hook = SetWindowsHookExW(WH_CBT, ActWhenMade, nullptr, GetCurrentThreadId());
        g_windowsUntilAct = windows;
        g_test = this;
        Choose(SettingsCommand);
        EXPECT_EQ(g_test, nullptr);
        UnhookWindowsHookEx(hook);
        ExpectWorking(GetParam());
    }
}

INSTANTIATE_TEST_SUITE_P(Settings, DialogBeingMade,
                         testing::Values("Destroy", "Create", "Rebuild", "SetParams", "BrushData", "Close"),
                         [](const auto& info) { return std::string(info.param); });

} // namespace
} // namespace zq::LM::test
