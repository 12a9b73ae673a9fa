// A host, a person and other programs at their worst: exports, messages and the mouse in any order, thousands
// of times.
#include "library/host/interrupting_host.h"
#include "resources/resource_ids.h"
#include "support/library/object_counts.h"

#include <commctrl.h>
#include <commdlg.h>
#include <shellapi.h>

#include <cstdlib>
#include <cstring>
#include <iterator>
#include <random>

namespace zq::LM::test {

class Storm : public InterruptingHost, public testing::WithParamInterface<unsigned> {
protected:
    Storm() : random(GetParam())
    {
        calls.Answer<"Shell_NotifyIconW">(Shell_NotifyIconW, [](auto...) { return TRUE; });
        calls.Answer<"TrackPopupMenu">(TrackPopupMenu, [](auto...) { return TRUE; });
        calls.Answer<"GetSaveFileNameA">(GetSaveFileNameA, [](auto...) { return FALSE; });
        calls.Answer<"SetForegroundWindow">(SetForegroundWindow, [](auto...) { return TRUE; });
    }

    // LUMORA_TEST_STORM says how many steps; without it few.
    static int StepCount()
    {
        constexpr int Few = 1000;
        const char* wanted = std::getenv("LUMORA_TEST_STORM");
        return wanted != nullptr ? static_cast<int>(std::strtol(wanted, nullptr, 10)) : Few;
    }

    void TakeStep()
    {
        switch (Random(12)) {
        case 0:
        case 1:
        case 2:
            Write();
            break;
        case 3:
            Use();
            break;
        case 4:
            ChangeLife();
            break;
        case 5:
        case 6:
            SendToOverlay();
            break;
        case 7:
            Command();
            break;
        case 8:
            MoveMouse();
            break;
        case 9:
            UseDialog();
            break;
        case 10:
            MoveShell();
            break;
        default:
            Wait();
            break;
        }
    }

    // Between steps: what was given back stays untouched, and windows that were left go.
    void LookAround()
    {
        ExpectNoSheet();
        DestroyLeftWindows(library.GetWindowHandle());
        KeepFreedMemory();
        calls.Take();
        debugger.Clear();
    }

private:
    int Random(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }
    bool OneIn(int count) { return Random(count) == 0; }
    // Most ink goes, and most is narrow: each line as wide as the screen takes the system a tenth of a
    // second.
    int Life() { return OneIn(20) ? static_cast<int>(random()) : Random(1000); }
    unsigned Width() { return OneIn(20) ? random() : static_cast<unsigned>(Random(60)); }
    template <typename Record> Record RandomBytes()
    {
        Record record;
        unsigned char bytes[sizeof(Record)];
        for (unsigned char& byte : bytes) {
            byte = static_cast<unsigned char>(random());
        }
        std::memcpy(&record, bytes, sizeof(record));
        return record;
    }

    void Write();
    void Use();
    void ChangeLife();
    void SendToOverlay();
    void Command();
    void MoveMouse();
    void UseDialog();
    void MoveShell();
    void Wait();

    std::mt19937 random;
};

void Storm::Write()
{
    std::vector<LM_PenData> samples;
    for (int left = Random(6); left > 0; --left) {
        samples.push_back(OneIn(20) ? RandomBytes<LM_PenData>()
                                    : Sample(Random(700) - 20, Random(520) - 20, Random(FullPressure)));
    }
    library.InputPenDataArray(OneIn(50) ? nullptr : samples.data(), samples.size());
    if (OneIn(2)) {
        UpdateWindow(library.GetWindowHandle());
    }
}

void Storm::Use()
{
    LM_Params record = OneIn(3) ? RandomBytes<LM_Params>() : Params();
    record.inkDecayTime = static_cast<std::uint32_t>(Life());
    record.minBrushSize = Width();
    record.brushSize = Width();
    lumora::BrushDataMessage message = OneIn(2) ? lumora::MakeBrushParams(random(), Width(), Width())
                                                : lumora::MakeInkDecayTime(std::uint32_t(Life()));
    constexpr std::uint32_t Levels[] = {0, 0, 0, 1, 2, 3, 4, 255, 256};
    switch (Random(4)) {
    case 0:
        library.SetParams(&record);
        break;
    case 1:
        library.GetCopiedParams(OneIn(20) ? nullptr : &record);
        break;
    case 2:
        library.SetData_from_App(message.data(), message.size());
        break;
    default:
        library.SetDebugLevel(Levels[Random(static_cast<int>(std::size(Levels)))]);
        break;
    }
}

void Storm::ChangeLife()
{
    switch (Random(40)) {
    case 0:
        library.Destroy();
        break;
    case 1:
        ::DestroyWindow(library.GetWindowHandle());
        break;
    case 2:
        SendMessageW(library.GetWindowHandle(), WM_CLOSE, 0, 0);
        break;
    case 3:
    case 4:
        library.Create();
        break;
    default:
        if (library.GetWindowHandle() == nullptr) {
            library.Create();
        }
        break;
    }
}

// None of them carries a pointer.
void Storm::SendToOverlay()
{
    constexpr UINT Messages[] = {
        WM_NULL,       WM_MOVE,          WM_SIZE,           WM_ACTIVATE,       WM_SETFOCUS,
        WM_KILLFOCUS,  WM_ENABLE,        WM_PAINT,          WM_SYSCOLORCHANGE, WM_SHOWWINDOW,
        WM_CANCELMODE, WM_MOUSEACTIVATE, WM_FONTCHANGE,     WM_TIMECHANGE,     WM_DISPLAYCHANGE,
        WM_MOUSEMOVE,  WM_LBUTTONDOWN,   WM_LBUTTONUP,      WM_RBUTTONUP,      WM_TIMER,
        WM_HOTKEY,     TrayMessage,      WM_CAPTURECHANGED, WM_USER,           WM_APP};
    const UINT known = Messages[Random(static_cast<int>(std::size(Messages)))];
    const UINT message = OneIn(10) ? WM_USER + static_cast<UINT>(Random(0xF000)) : known;
    HWND window = library.GetWindowHandle();
    if (OneIn(10)) {
        HDC dc = GetDC(window);
        SendMessageW(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0);
        ReleaseDC(window, dc);
    } else {
        SendMessageW(window, message, random(), static_cast<LPARAM>(random()));
    }
}

void Storm::Command()
{
    constexpr WPARAM Commands[] = {
        CommandSettings,          CommandSaveFrameRates, CommandLogNone, CommandLogBasic, CommandLogAll,
        CommandDirectComposition, CommandDirect2D,       CommandGDI,     CommandGDI};
    const WPARAM known = Commands[Random(static_cast<int>(std::size(Commands)))];
    SendMessageW(library.GetWindowHandle(), WM_COMMAND, OneIn(10) ? random() & 0xFFFF : known, 0);
}

void Storm::MoveMouse()
{
    const POINT point = {Random(1024), Random(768)};
    SetCursorPos(point.x, point.y);
    const LPARAM place = MAKELPARAM(point.x, point.y);
    if (OneIn(3) && SendMessageW(WindowFromPoint(point), WM_NCHITTEST, 0, place) == HTCLIENT) {
        mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0); // a frame held by the mouse would wait for a person
        mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    }
}

void Storm::UseDialog()
{
    constexpr int Edits[] = {EditBrushSize, EditInkLife, EditRgb, EditHsv, EditFramesPerSecond};
    constexpr const char* Texts[] = {"", "-1", "7", "99999999999", "1,2,3", "300,300,300", "x"};
    for (HWND dialog : SettingsDialogs()) {
        const int number = GroupRendering + Random(EditFramesPerSecond - GroupRendering + 1);
        switch (Random(6)) {
        case 0:
            SetDlgItemTextA(dialog, Edits[Random(static_cast<int>(std::size(Edits)))],
                            Texts[Random(static_cast<int>(std::size(Texts)))]);
            break;
        case 1:
            SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(number, Random(0x700)),
                         reinterpret_cast<LPARAM>(GetDlgItem(dialog, number)));
            break;
        case 2:
            SendMessageW(dialog, WM_HSCROLL, MAKEWPARAM(Random(9), Random(200)),
                         reinterpret_cast<LPARAM>(GetDlgItem(dialog, number)));
            break;
        case 3:
            SendMessageW(dialog, WM_LBUTTONDOWN + static_cast<UINT>(Random(2)), 0,
                         MAKELPARAM(Random(400), Random(400)));
            SendMessageW(dialog, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(Random(400), Random(400)));
            break;
        case 4:
            RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
            break;
        default:
            if (OneIn(5)) {
                SendMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
            }
            break;
        }
    }
}

void Storm::MoveShell()
{
    if (OneIn(10)) {
        const int left = Random(300) - 100;
        const int top = Random(200) - 100;
        shell.Move({left, top, left + Random(800), top + Random(600)});
    } else {
        shell.Move(Desktop);
    }
}

void Storm::Wait()
{
    clock.Advance(OneIn(100) ? static_cast<DWORD>(random()) : static_cast<DWORD>(Random(120)));
    SendMessageW(library.GetWindowHandle(), WM_TIMER, 12345, 0);
    if (OneIn(10)) {
        PumpMessages();
    }
}

TEST_P(Storm, PassesAndLeavesAWorkingLibrary)
{
    constexpr int Between = 200;
    const int steps = StepCount();
    for (int i = 0; i < steps && !HasFailure(); ++i) {
        SCOPED_TRACE("step " + std::to_string(i));
        if (i % Between == 0) {
            LookAround();
        }
        TakeStep();
        CheckHandle(library.GetWindowHandle());
    }
    library.SetDebugLevel(0);
    shell.Move(Desktop);
    Select(ChooseGDI);
    ExpectIntact();
}

INSTANTIATE_TEST_SUITE_P(Seeds, Storm, testing::Values(1U, 2U), testing::PrintToStringParamName());

} // namespace zq::LM::test
