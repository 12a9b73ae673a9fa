// The overlay's care.
#include "program/ink_overlay.h"

#include "program/scope_flag.h"

#include <cmath>
#include <utility>

namespace lumora_pen {

namespace {

constexpr std::array<lumora::BackEnd, 3> BackEnds = {lumora::BackEnd::DirectComposition,
                                                     lumora::BackEnd::Direct2D, lumora::BackEnd::GDI};

} // namespace

InkOverlay::InkOverlay(BackEndName first, unsigned level)
    : library(lumora::Library::Load()), backEnd(first), logLevel(level)
{
    Make_();
}

// While a window goes or comes the system may call this program, which may want another one already: the call
// that is under way sees to it.
void InkOverlay::Make_()
{
    if (isMaking) {
        return;
    }
    const ScopeFlag making(isMaking);
    std::pair<BackEndName, unsigned> made;
    do {
        made = {backEnd, logLevel};
        MakeOne_();
    } while (made != std::pair(backEnd, logLevel));
}

void InkOverlay::MakeOne_()
{
    std::exchange(overlay, std::nullopt).reset(); // nobody reaches one that is going
    overlay.emplace(lumora::OverlayOptions{BackEnds[static_cast<std::size_t>(backEnd)], logLevel}, library);
    if (wanted) {
        overlay->WriteParams(*wanted);
    }
}

void InkOverlay::Use(BackEndName other, unsigned level)
{
    backEnd = other;
    logLevel = level;
    Make_();
}

void InkOverlay::SetStyle(const lumora::Params& style)
{
    wanted = style;
    if (overlay) {
        overlay->WriteParams(style);
        overlay->Input({}); // or the new looks would wait for the next sample
    }
}

lumora::Params InkOverlay::Style()
{
    return overlay ? overlay->ReadParams() : wanted.value_or(lumora::Params());
}

void InkOverlay::Input(const std::vector<InputSample>& samples)
{
    if (!overlay) {
        return;
    }
    const POINT origin = overlay->Origin();
    batch.clear();
    for (const InputSample& sample : samples) {
        const POINT place = {std::lround(sample.x), std::lround(sample.y)};
        batch.push_back(lumora::Overlay::SampleAt(place, sample.pressure, origin));
    }
    overlay->Input(batch);
}

void InkOverlay::Wipe()
{
    if (!overlay) {
        return;
    }
    const lumora::Params style = overlay->ReadParams();
    lumora::Params none = style;
    none.inkDecayTime = std::chrono::milliseconds(0); // all ink is older than that
    overlay->WriteParams(none);
    overlay->Input({});
    UpdateWindow(overlay->Window());
    if (overlay) {
        overlay->WriteParams(style);
    }
}

void InkOverlay::OpenDialog()
{
    if (overlay) {
        overlay->OpenSettings();
    }
}

bool InkOverlay::IsDialogOpen() const
{
    HWND window = Window();
    const auto isDialog = [](HWND other, LPARAM owner) -> BOOL {
        const bool isOpen =
            GetWindow(other, GW_OWNER) == reinterpret_cast<HWND>(owner) && IsWindowVisible(other) != 0;
        return isOpen ? FALSE : TRUE;
    };
    return window != nullptr &&
           EnumThreadWindows(GetCurrentThreadId(), isDialog, reinterpret_cast<LPARAM>(window)) == 0;
}

bool InkOverlay::LookAfter(std::uint32_t now)
{
    const bool hasBegunAgain = now < lastLook;
    lastLook = now;
    if (isMaking || (!hasBegunAgain && Window() != nullptr)) {
        return false;
    }
    Make_();
    return true;
}

bool IsAnotherOverlayShown()
{
    bool isShown = false;
    for (HWND other = nullptr;
         (other = FindWindowExW(nullptr, other, nullptr, L"Lumora DLL Window")) != nullptr;) {
        DWORD process = 0;
        GetWindowThreadProcessId(other, &process);
        isShown = isShown || process != GetCurrentProcessId();
    }
    return isShown;
}

} // namespace lumora_pen
