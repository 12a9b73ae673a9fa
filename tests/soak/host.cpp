// The host of the soak.
#include "soak/host.h"

#include "resources/resource_ids.h"
#include "soak/clock.h"
#include "support/library/object_counts.h"
#include "support/library/private_memory.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace zq::LM::soak {

namespace {

constexpr COLORREF Ground = RGB(0, 128, 0);
constexpr RECT SeenPart = {0, 64, 800, 600}; // Wine shows tray icons in the screen's upper left corner

void ForgetQuitMessages()
{
    MSG message = {};
    while (PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != 0) {
    }
}

// Wine keeps 64 device contexts for windows, and a region for each that was used since it came. Used all at
// once, they all have one.
void UseCachedContexts(HWND window)
{
    std::array<HDC, 64> contexts{};
    for (HDC& context : contexts) {
        context = GetDC(window);
    }
    for (HDC context : contexts) {
        ReleaseDC(window, context);
    }
}

} // namespace

Host::Host() : backdrop(Screen, Ground)
{
#ifdef __MINGW32__
    memory.emplace(library.Module());
#endif
    Create_();
    Choose(BackEnd::GDI); // the first instance has the default back-end, which needs a composition engine
    Restart();
}

Host::~Host()
{
    Destroy_();
    test::DestroyLeftWindows(nullptr);
}

void Host::Create_()
{
    if (library.Create() == nullptr) {
        throw std::runtime_error("the overlay's window could not be made");
    }
    ++windowsMade;
    rebuildIsDue = false;
}

void Host::Destroy_()
{
    library.Destroy();
    ForgetQuitMessages();
}

void Host::Restart()
{
    Destroy_();
    Create_();
}

// Once another one was chosen, choosing the old one again still rebuilds.
void Host::Choose(BackEnd backEnd)
{
    SendMessageW(Overlay_(), WM_COMMAND, backEnd == BackEnd::GDI ? CommandGDI : CommandDirect2D, 0);
    rebuildIsDue = rebuildIsDue || backEnd != chosen;
    chosen = backEnd;
}

void Host::SetRecord(const LM_Params& record)
{
    inkLife = record.inkDecayTime / 1000.0;
    library.SetParams(&record);
}

void Host::OpenSettings() const { SendMessageW(Overlay_(), WM_COMMAND, CommandSettings, 0); }

void Host::CloseSettings()
{
    for (HWND dialog : test::SettingsDialogs()) {
        if (IsWindowVisible(dialog) != 0) {
            SendMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
        }
    }
}

std::optional<double> Host::Write(const std::vector<LM_PenData>& samples)
{
    const double begin = Seconds();
    inkBegin = begin;
    tickSawInk = false;
    library.InputPenDataArray(samples.data(), samples.size());
    UpdateWindow(Overlay_());
    const double took = Seconds() - begin;
    if (!rebuildIsDue) {
        return took * 1e6;
    }
    rebuildIsDue = false;
    ++rebuilds;
    ++windowsMade;
    return std::nullopt;
}

void Host::Dispatch_(const MSG& message)
{
    constexpr double Doubt = 0.003; // the library's clock counts whole milliseconds
    TranslateMessage(&message);
    DispatchMessageW(&message);
    if (message.message == WM_TIMER && message.hwnd == Overlay_()) {
        ++ticks;
        tickSawInk = tickSawInk || Seconds() < inkBegin + inkLife - Doubt;
    }
}

void Host::PumpFor(DWORD milliseconds)
{
    const double end = Seconds() + milliseconds / 1000.0;
    for (double left = milliseconds; left > 0; left = (end - Seconds()) * 1000) {
        MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(left) + 1, QS_ALLINPUT,
                                    MWMO_INPUTAVAILABLE);
        MSG message = {};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
            Dispatch_(message);
        }
    }
}

bool Host::WaitForInkToGo()
{
    constexpr DWORD AfterLife = 200;
    constexpr DWORD Pause = 10;
    constexpr int MostPauses = 3000;
    PumpFor(static_cast<DWORD>(inkLife * 1000) + 1);
    const unsigned before = ticks;
    PumpFor(AfterLife);
    for (int i = 0; i < MostPauses && ticks < before + 2; ++i) {
        PumpFor(Pause);
    }
    if (ticks < before + 2) {
        throw std::runtime_error("the overlay's timer does not tick");
    }
    test::SettleScreen();
    return tickSawInk;
}

bool Host::ShowsAnything() const
{
    const test::Picture picture = test::TakePicture(SeenPart);
    const RECT bounds = picture.BoundsOfOther(Ground);
    return IsRectEmpty(&bounds) == 0;
}

std::size_t Host::LeftWindows() const
{
    const std::vector<HWND> windows = test::OverlayWindows();
    return windows.size() - static_cast<std::size_t>(std::count(windows.begin(), windows.end(), Overlay_()));
}

Holdings Host::Rest()
{
    constexpr DWORD Moment = 20;
    CloseSettings();
    SetLogLevel(0);
    Choose(BackEnd::GDI);
    Restart();
    test::DestroyLeftWindows(Overlay_());
    UseCachedContexts(Overlay_());
    rebuilds = 0;
    PumpFor(Moment);
    test::SettleScreen();
    Holdings holdings;
    holdings.gdiObjects = test::GdiObjects();
    holdings.userObjects = test::UserObjects();
    holdings.kernelHandles = test::KernelHandles();
    holdings.windows = test::OverlayWindows().size();
    holdings.dialogs = test::SettingsDialogs().size();
    holdings.memoryBlocks = memory ? memory->HeldBlocks() : 0;
    holdings.privateKilobytes = test::PrivateKilobytes();
    return holdings;
}

unsigned Host::Classes() const { return test::OverlayClasses(library.Module()); }

} // namespace zq::LM::soak
