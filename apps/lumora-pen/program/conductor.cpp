// The program's course: its loop, strokes and modes.
#include "program/conductor.h"
#include "program/composition_probe.h"

#include <shellscalingapi.h>
#include <timeapi.h>

#include <cmath>
#include <utility>

namespace lumora_pen {

namespace {

constexpr DWORD WritingTickMs = 10;
constexpr DWORD IdleTickMs = 50;
constexpr std::uint32_t RestingMs = 100; // until a pen that says nothing is told once more
constexpr std::uint32_t SeldomMs = 1000;

HICON ProgramIcon()
{
    constexpr int IconNumber = 1; // in the resources
    return static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IconNumber), IMAGE_ICON,
                                         GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON),
                                         LR_SHARED));
}

bool IsDown(int key) { return GetAsyncKeyState(key) < 0; }

unsigned ModifiersDown()
{
    return (IsDown(VK_MENU) ? AltModifier : 0U) | (IsDown(VK_CONTROL) ? ControlModifier : 0U) |
           (IsDown(VK_SHIFT) ? ShiftModifier : 0U) |
           (IsDown(VK_LWIN) || IsDown(VK_RWIN) ? WindowsModifier : 0U);
}

// Where several keyboard layouts are installed, letting go of Ctrl+Shift or Alt+Shift changes to the next
// one, unless another key came meanwhile. This one means nothing to anybody.
void KeepKeyboardLayout()
{
    constexpr WORD UnassignedKey = 0xE8;
    if (GetKeyboardLayoutList(0, nullptr) < 2) {
        return;
    }
    std::array<INPUT, 2> inputs{};
    for (INPUT& input : inputs) {
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = UnassignedKey;
    }
    inputs[1].ki.dwFlags = KEYEVENTF_KEYUP;
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

int DpiAt(const InputSample& sample)
{
    const POINT place = {std::lround(sample.x), std::lround(sample.y)};
    UINT across = UnscaledDpi;
    UINT down = UnscaledDpi;
    GetDpiForMonitor(MonitorFromPoint(place, MONITOR_DEFAULTTONEAREST), MDT_EFFECTIVE_DPI, &across, &down);
    return static_cast<int>(down);
}

BackEndName BackEndHere(BackEndName wanted)
{
    return wanted == BackEndName::Composition && !HasCompositionEngine() ? BackEndName::GDI : wanted;
}

} // namespace

Conductor::Conductor(const Options& options, SettingsStore& settingsStore)
    : store(settingsStore), window(*this), icon(window.Handle(), IconMessage, ProgramIcon()),
      ink(BackEndHere(options.backEnd.value_or(store.Get().backEnd)), options.logLevel.value_or(0)),
      keys(window.Handle()), raw(
                                 window.Handle(), [this](const InputBatch& batch) { TakeBatch_(batch); },
                                 [this] { return doing.holds; }),
      board([this](const InputBatch& batch) { TakeBatch_(batch); })
{
    icon.Add();
    TellReplacement_(options.backEnd.value_or(store.Get().backEnd));
    TakeOptions_(options);
    Apply_();
    ApplyStyle_();
    window.Listen(true);
}

Conductor::~Conductor() { window.Listen(false); }

void Conductor::Run()
{
    MSG message = {};
    while (!isDone) {
        MsgWaitForMultipleObjectsEx(0, nullptr, feed.IsWriting() || doing.holds ? WritingTickMs : IdleTickMs,
                                    QS_ALLINPUT, MWMO_INPUTAVAILABLE);
        // Each window of the library's posts WM_QUIT when it goes, whoever ended it: this program ends by
        // isDone.
        while (!isDone && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
            if (message.message != WM_QUIT && !ink.HandleDialogMessage(message)) {
                TranslateMessage(&message);
                DispatchMessageW(&message);
            }
            OnTimer(); // here too: while there is something to paint, timers wait
        }
        OnTimer();
    }
    EndStroke_();
    LookAtDialog_();
    std::string failures;
    for (const auto& failure : {WriteRecord_(), store.Keep()}) {
        failures += failure ? *failure + '\n' : "";
    }
    if (!failures.empty()) {
        failures.pop_back();
        throw lumora::Error(failures); // a balloon would go with the icon
    }
}

void Conductor::TakeBatch_(const InputBatch& batch)
{
    Guard_([&] {
        const bool wasWriting = feed.IsWriting();
        const StrokeSteps steps = feed.Take(batch);
        if (steps.begins && !wasWriting) {
            if (batch.source == Mouse && doing.mode == Mode::Trail) {
                KeepKeyboardLayout();
            }
            if (const int here = DpiAt(steps.samples.front()); here != dpi) {
                LookAtDialog_();
                dpi = here;
                ApplyStyle_();
            }
        }
        TakeSteps_(steps);
        if (recordFile.is_open()) {
            record.Add(steps.samples);
        }
    });
}

void Conductor::TakeSteps_(const StrokeSteps& steps)
{
    if (steps.samples.empty()) {
        return;
    }
    lastSample = GetTickCount();
    ink.Input(steps.samples);
    if (KeepsInk(doing.mode, store.Get())) {
        board.Take(steps, style, lastSample);
    }
}

void Conductor::EndStroke_()
{
    Guard_([&] { TakeSteps_(feed.End(GetTickCount())); });
}

void Conductor::Wipe_()
{
    EndStroke_();
    ink.Wipe();
    board.Wipe();
}

void Conductor::Tick_()
{
    const std::uint32_t now = GetTickCount();
    if (now - lastTick < WritingTickMs) {
        return;
    }
    lastTick = now;
    LookAtHoldKey_();
    if (feed.IsWriting() && now - lastSample >= RestingMs) {
        TakeSteps_(feed.Rest(now));
    }
    board.DryWhatIsDue(now);
    if (const auto failure = store.KeepWhenDue(now)) {
        Say_(*failure);
    }
    if (now - lastLook >= SeldomMs) {
        lastLook = now;
        LookAtDialog_();
        LookAtFile_();
        LookAfterOverlay_();
    }
}

void Conductor::LookAfterOverlay_()
{
    try {
        if (ink.LookAfter(timeGetTime())) {
            hasToldNoOverlay = false;
            Apply_();
        }
    } catch (const lumora::Error& failure) {
        if (!std::exchange(hasToldNoOverlay, true)) { // it is tried again every second
            Say_(failure.what());
        }
    }
}

void Conductor::LookAtHoldKey_()
{
    const HoldKey& hold = store.Get().hold;
    const bool isButtonDown = hold.button == 0 || IsDown(static_cast<int>(hold.button));
    const bool holds = doing.mode == Mode::Trail && store.Get().trailWithMouse &&
                       IsHeld(hold, ModifiersDown(), isButtonDown);
    if (holds == doing.holds) {
        return;
    }
    if (!holds) {
        raw.LookAtMouse(); // the way up to here was written, whenever this is noticed
    }
    doing.holds = holds;
    raw.LookAtMouse();
    if (!holds) {
        EndStroke_();
    }
    Apply_();
}

Settings Conductor::CurrentSettings_()
{
    LookAtDialog_();
    return store.Get();
}

void Conductor::Apply_()
{
    const Needs needs = NeedsOf(doing, store.Get());
    if (!raw.SetMouse(needs.mouse)) {
        Say_("The system does not tell what the mouse does: on the Board it writes all the same.");
    }
    if (!raw.SetPens(needs.pens)) {
        Say_("The system does not tell what pens do: on the Board they write all the same.");
    }
    if (needs.board && ink.Window() != nullptr) {
        board.Show(ink.Window());
    } else {
        board.Hide();
    }
    feed.SetHover(store.Get().crossHair);
    if (keys.Set(needs.keys)) {
        TellTakenKeys_();
    }
}

void Conductor::ApplyStyle_()
{
    style = StyleFor(doing.mode, store.Get(), dpi, ink.Style());
    board.ChangeColour(style.inkColor);
    ink.SetStyle(style);
}

void Conductor::TakeWaitingInput_()
{
    constexpr std::array<std::pair<UINT, UINT>, 3> Kinds = {
        {{WM_INPUT, WM_INPUT}, {WM_MOUSEFIRST, WM_MOUSELAST}, {WM_POINTERUPDATE, WM_POINTERUP}}};
    MSG message = {};
    for (const auto& [first, last] : Kinds) {
        while (PeekMessageW(&message, nullptr, first, last, PM_REMOVE) != 0) {
            DispatchMessageW(&message);
        }
    }
}

void Conductor::ChangeSettings_(const Settings& changed)
{
    store.Set(changed);
    Apply_();
    ApplyStyle_();
}

void Conductor::ChangeMode_(Mode mode)
{
    if (mode == doing.mode) {
        return;
    }
    EnterMode_(mode);
    if (mode == Mode::Board && !keys.Has(KeyCommand::Board) && !keys.Has(KeyCommand::EndBoard)) {
        EnterMode_(Mode::Trail); // the mouse would reach nothing, not even the menu
        Say_("The Board has no key by which it could be ended: choose another one in the menu under Keys.");
    } else if (mode == Mode::Board && !board.KeepsInk()) {
        Say_("There is no memory for the Board's ink: it goes by itself.");
    }
}

void Conductor::EnterMode_(Mode mode)
{
    EndStroke_();
    LookAtDialog_(); // what it shows is of the mode that ends
    if (doing.mode == Mode::Board) {
        Wipe_(); // its ink stays as long as it does
    }
    doing = {mode, false};
    Apply_();
    ApplyStyle_();
    icon.SetTip(mode == Mode::Board ? "Lumora Pen: Board" : "Lumora Pen");
}

void Conductor::UseOverlay_(BackEndName backEnd, unsigned logLevel)
{
    EndStroke_();
    LookAtDialog_(); // it goes with the overlay
    const BackEndName here = BackEndHere(backEnd);
    if (here != ink.BackEnd() || logLevel != ink.LogLevel()) {
        ink.Use(here, logLevel);
        Apply_(); // the Board lies below the new window
        ApplyStyle_();
    }
    TellReplacement_(backEnd);
}

void Conductor::TellReplacement_(BackEndName wanted)
{
    if (ink.BackEnd() != wanted) {
        Say_("This system has no composition engine, so Lumora Pen draws by GDI. To keep that, choose GDI in "
             "the menu under Back-end.");
    }
}

} // namespace lumora_pen
