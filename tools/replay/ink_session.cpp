// Creation and end of the library's instance.
#include "ink_session.h"
#include "replay_error.h"

#include <algorithm>

namespace lumora::replay {

namespace {

// The commands of the overlay's menu that choose a back-end.
WPARAM CommandOf(BackEnd backEnd)
{
    constexpr WPARAM CommandComposition = 40020;
    constexpr WPARAM CommandDirect2D = 40021;
    constexpr WPARAM CommandGdi = 40022;
    switch (backEnd) {
    case BackEnd::Gdi:
        return CommandGdi;
    case BackEnd::Direct2D:
        return CommandDirect2D;
    case BackEnd::Composition:
        break;
    }
    return CommandComposition;
}

} // namespace

InkSession::InkSession(const Library& inkLibrary, const Options& options) : library(inkLibrary)
{
    // Before the window exists: the level decides whether the library shows its user interface.
    library.setDebugLevel(options.logLevel);
    Create_();
    if (options.backEnd != BackEnd::Composition) {
        // The back-end outlives the instance, so a second instance starts with it and no window of the first
        // is left.
        Choose(options.backEnd);
        Destroy_();
        Create_();
    }
    LM_Params params = {};
    library.getCopiedParams(&params);
    ApplyInk(options.ink, params);
    library.setParams(&params);
}

InkSession::~InkSession() { Destroy_(); }

ScreenSize InkSession::DrawableSize() const
{
    RECT client = {};
    GetClientRect(window, &client);
    return {std::min<std::int32_t>(client.right, GetSystemMetrics(SM_CXSCREEN)),
            std::min<std::int32_t>(client.bottom, GetSystemMetrics(SM_CYSCREEN))};
}

std::uint32_t InkSession::InkLifeMs() const
{
    LM_Params params = {};
    library.getCopiedParams(&params);
    return params.inkDecayTime;
}

void InkSession::Input(std::span<const LM_PenData> samples) const
{
    library.inputPenDataArray(samples.data(), samples.size());
}

void InkSession::Choose(BackEnd backEnd) const
{
    SendMessageW(library.getWindowHandle(), WM_COMMAND, CommandOf(backEnd), 0);
}

bool InkSession::ServeDialog(MSG& message) const
{
    HWND root = GetAncestor(message.hwnd, GA_ROOT);
    return window != nullptr && GetWindow(root, GW_OWNER) == window && IsDialogMessageW(root, &message) != 0;
}

void InkSession::Create_()
{
    window = library.create();
    if (window == nullptr) {
        library.destroy();
        throw ReplayError("the library could not create its overlay window");
    }
}

void InkSession::Destroy_() const
{
    library.destroy();
    // The end of the window asks this thread to quit; nobody else is to see that.
    MSG message = {};
    PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
}

} // namespace lumora::replay
