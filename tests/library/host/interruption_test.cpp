// Every call of the library in which code of the host can run, and everything that the host may do there.
#include "library/host/interrupting_host.h"
#include "platform/win32/gdiplus_flat.h"
#include "support/row_name.h"

#include <commdlg.h>
#include <shellapi.h>

#include <cstdio>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace zq::LM::test {

namespace {

bool IsOfLibrary(HWND window)
{
    wchar_t name[64]{};
    GetClassNameW(window, name, 64);
    const std::wstring_view text = name;
    return text.starts_with(L"Lumora Window Class_") || text == L"#32770";
}

} // namespace

class Interruption : public InterruptingHost {
public:
    // The system's calls in which host code runs.
    void CreateWindows() { Interrupt<"CreateWindowExW">(CreateWindowExW); }
    void DestroyWindows() { Interrupt<"DestroyWindow">(::DestroyWindow); }
    void MoveWindows() { Interrupt<"SetWindowPos">(SetWindowPos); }
    void StyleWindows() { Interrupt<"SetWindowLongW">(SetWindowLongW); }
    void LayerWindows() { Interrupt<"SetLayeredWindowAttributes">(SetLayeredWindowAttributes); }
    void BeginPaints() { Interrupt<"BeginPaint">(BeginPaint); }
    void EndPaints() { Interrupt<"EndPaint">(EndPaint); }
    void NotifyShell() { Interrupt<"Shell_NotifyIconW">(Shell_NotifyIconW); }
    void ComeForward() { Interrupt<"SetForegroundWindow">(SetForegroundWindow); }
    void OpenMenus() { Interrupt<"TrackPopupMenu">(TrackPopupMenu); }
    void DestroyMenus() { Interrupt<"DestroyMenu">(::DestroyMenu); }
    void AskForFiles() { Interrupt<"GetSaveFileNameA">(GetSaveFileNameA); }
    void CreateDialogs() { Interrupt<"CreateDialogParamW">(CreateDialogParamW); }
    void SendMessages() { Interrupt<"SendMessageW">(::SendMessageW); }
    void EndDialogs() { Interrupt<"EndDialog">(EndDialog); }
    void MakeDevices() { Interrupt<"D3D11CreateDevice">(D3D11CreateDevice); }
    void DrawLines() { Interrupt<"GdipDrawLineI">(Gdiplus::DllExports::GdipDrawLineI); }
    void WriteLog() { Interrupt<"OutputDebugStringW">(OutputDebugStringW); }
    void TellVersions() { Interrupt<"OutputDebugStringA">(OutputDebugStringA); } // while a Core is made

protected:
    // What would wait for a person, or reach the shell, is answered; a test may put an interruption on top.
    Interruption()
    {
        calls.Answer<"Shell_NotifyIconW">(Shell_NotifyIconW, [](auto...) { return TRUE; });
        calls.Answer<"TrackPopupMenu">(TrackPopupMenu, [](auto...) { return TRUE; });
        calls.Answer<"GetSaveFileNameA">(GetSaveFileNameA, [](auto...) { return FALSE; });
        calls.Answer<"SetForegroundWindow">(SetForegroundWindow, [](auto...) { return TRUE; });
        Select(ChooseGDI);
    }
    ~Interruption() override
    {
        if (interruptions > 0) {
            std::printf("%u interruptions\n", interruptions);
        }
    }

    // Lives, interrupted once at each call in turn, until there is none left to interrupt.
    void InterruptEachCall(Moment moment, const Action& action)
    {
        InterruptEachCall(moment, action.name, [this, &action] { (this->*action.run)(); });
    }
    void InterruptEachCall(Moment moment, const std::string& name, const std::function<void()>& action);

    unsigned interruptions = 0;
};

void Interruption::InterruptEachCall(Moment moment, const std::string& name,
                                     const std::function<void()>& action)
{
    constexpr unsigned Plenty = 200;
    for (unsigned number = 1; !HasFailure(); ++number) {
        ASSERT_LE(number, Plenty) << "there is no end to them";
        SCOPED_TRACE(name + " in call " + std::to_string(number));
        Select(ChooseGDI);
        KeepFreedMemory();
        Arm(moment, number, action);
        Live();
        const bool wasInterrupted = HasFired();
        ExpectIntact();
        if (!wasInterrupted) {
            EXPECT_GT(number, 1U) << "the call is never made";
            return;
        }
        ++interruptions;
    }
}

struct Call {
    const char* name;
    void (Interruption::*interrupt)();
};

class EachCall : public Interruption, public testing::WithParamInterface<Call> {};

TEST_P(EachCall, MayBeInterruptedByAnything)
{
    (this->*GetParam().interrupt)();
    for (const Action& action : Actions) {
        for (const Moment moment : {Moment::Before, Moment::After}) {
            InterruptEachCall(moment, action);
        }
    }
}

// Where the host's action makes such a call itself, the host acts once more in it.
TEST_P(EachCall, MayBeInterruptedWithinAnInterruption)
{
    (this->*GetParam().interrupt)();
    for (const Action& outer : Actions) {
        for (const Action& inner : Actions) {
            const auto act = [&] {
                Arm(Moment::After, 1, [&] { (this->*inner.run)(); });
                (this->*outer.run)();
                Disarm();
            };
            InterruptEachCall(Moment::After, std::string(outer.name).append(" and then ").append(inner.name),
                              act);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Calls, EachCall,
                         testing::Values(Call{"CreateWindowExW", &Interruption::CreateWindows},
                                         Call{"DestroyWindow", &Interruption::DestroyWindows},
                                         Call{"SetWindowPos", &Interruption::MoveWindows},
                                         Call{"SetWindowLongW", &Interruption::StyleWindows},
                                         Call{"SetLayeredWindowAttributes", &Interruption::LayerWindows},
                                         Call{"BeginPaint", &Interruption::BeginPaints},
                                         Call{"EndPaint", &Interruption::EndPaints},
                                         Call{"Shell_NotifyIconW", &Interruption::NotifyShell},
                                         Call{"SetForegroundWindow", &Interruption::ComeForward},
                                         Call{"TrackPopupMenu", &Interruption::OpenMenus},
                                         Call{"GetSaveFileNameA", &Interruption::AskForFiles},
                                         Call{"CreateDialogParamW", &Interruption::CreateDialogs},
                                         Call{"SendMessageW", &Interruption::SendMessages},
                                         Call{"EndDialog", &Interruption::EndDialogs},
                                         Call{"D3D11CreateDevice", &Interruption::MakeDevices},
                                         Call{"GdipDrawLineI", &Interruption::DrawLines}),
                         RowName());

// A handler of the debugger's output is host code as well. There are many lines, so one moment of each is
// enough.
TEST_F(Interruption, EachLineOfTheLogMayBeInterruptedByTheInstancesEnd)
{
    WriteLog();
    InterruptEachCall(Moment::After, Actions.front());
}

// The host's last word counts, whatever it has interrupted.
TEST_F(Interruption, AnInstanceThatIsMadeWhileAnotherIsBeingMadeIsTheOne)
{
    HWND inside = nullptr;
    library.SetDebugLevel(1);
    TellVersions();
    Arm(Moment::Before, 1, [&] { inside = library.Create(); });
    EXPECT_EQ(library.Create(), inside);
    EXPECT_TRUE(HasFired());
    EXPECT_EQ(library.GetWindowHandle(), inside);
}

TEST_F(Interruption, AnInstanceThatIsMadeWhileAnotherIsRebuiltIsTheOne)
{
    HWND inside = nullptr;
    library.SetDebugLevel(1);
    library.Create();
    Choose(ChooseDirect2D);
    TellVersions();
    Arm(Moment::Before, 1, [&] { inside = library.Create(); });
    InputStroke();
    EXPECT_TRUE(HasFired());
    EXPECT_EQ(library.GetWindowHandle(), inside);
}

TEST_F(Interruption, AFrameThatHasLostItsInstanceIsNotShown)
{
    library.Create();
    InputStroke();
    DrawLines();
    calls.Record<"BitBlt">(BitBlt);
    Arm(Moment::After, 1, [this] { library.Destroy(); });
    UpdateWindow(library.GetWindowHandle());
    EXPECT_TRUE(HasFired());
    EXPECT_EQ(calls.Count("BitBlt"), 0U);
}

// The messages of the library's windows, which a hook or a subclass of the host sees before the library does.
class EachMessage : public Interruption, public testing::WithParamInterface<UINT> {
protected:
    EachMessage()
    {
        g_current = this;
        hook = SetWindowsHookExW(WH_CALLWNDPROC, Hook_, nullptr, GetCurrentThreadId());
    }
    ~EachMessage() override
    {
        UnhookWindowsHookEx(hook);
        g_current = nullptr;
    }

private:
    static LRESULT CALLBACK Hook_(int code, WPARAM wParam, LPARAM lParam)
    {
        const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        if (sent.message == GetParam() && IsOfLibrary(sent.hwnd)) {
            g_current->Reach(Moment::Before);
        }
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    inline static EachMessage* g_current = nullptr;
    HHOOK hook;
};

TEST_P(EachMessage, MayBeInterruptedByAnything)
{
    for (const Action& action : Actions) {
        InterruptEachCall(Moment::Before, action);
    }
}

INSTANTIATE_TEST_SUITE_P(Messages, EachMessage,
                         testing::Values(WM_NCCREATE, WM_CREATE, WM_WINDOWPOSCHANGED, WM_SHOWWINDOW,
                                         WM_STYLECHANGED, WM_ERASEBKGND, WM_PAINT, WM_INITDIALOG,
                                         WM_SYSCOMMAND, WM_DESTROY, WM_NCDESTROY),
                         [](const auto& each) { return "Number" + std::to_string(each.param); });

// The plainest case, without any hook: a window of the host's that ends the overlay when it loses the
// activation.
class HostWindow : public Interruption {
protected:
    HostWindow()
    {
        g_action = nullptr;
        window = CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 60, 180, 120,
                                 nullptr, nullptr, nullptr, nullptr);
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure_));
        SetActiveWindow(window);
    }
    ~HostWindow() override
    {
        g_action = nullptr;
        ::DestroyWindow(window);
    }

    // Each action once, when the leaving takes the activation from the host's window.
    template <typename Prepare, typename Leave> void ExpectIntactWhenLeft(Prepare prepare, Leave leave)
    {
        for (const Action& action : Actions) {
            SCOPED_TRACE(action.name);
            KeepFreedMemory();
            prepare();
            SetActiveWindow(window);
            g_action = [this, &action] { (this->*action.run)(); };
            leave();
            EXPECT_FALSE(g_action) << "nothing has taken the activation";
            ++interruptions;
            ExpectIntact();
        }
    }

private:
    static LRESULT CALLBACK Procedure_(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_ACTIVATE && LOWORD(wParam) == WA_INACTIVE && g_action) {
            std::exchange(g_action, nullptr)();
        }
        return DefWindowProcW(handle, message, wParam, lParam);
    }

    inline static std::function<void()> g_action;
    HWND window;
};

TEST_F(HostWindow, MayEndTheInstanceWhenTheDialogTakesTheActivation)
{
    ExpectIntactWhenLeft([this] { library.Create(); }, [this] { Choose(SettingsCommand); });
}

TEST_F(HostWindow, MayEndTheInstanceWhenTheOverlayTakesTheActivation)
{
    ExpectIntactWhenLeft([] {}, [this] { CheckHandle(library.Create()); });
}

} // namespace zq::LM::test
