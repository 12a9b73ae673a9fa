// The common set-up of the C++ layer's tests: an Overlay of the delivered library on GDI, over a green
// window.
#pragma once

#include "lumora/lumora.hpp"
#include "support/library/ink_on_screen.h"

#include <optional>
#include <string>

namespace zq::LM::test {

inline lumora::OverlayOptions OnGDI()
{
    lumora::OverlayOptions options;
    options.backEnd = lumora::BackEnd::GDI;
    return options;
}

// What the call throws; empty when it throws nothing.
template <typename Call> std::string ErrorOf(Call call)
{
    try {
        call();
    } catch (const lumora::Error& error) {
        return error.what();
    }
    return {};
}

// The quit message that waits in this thread's queue, taken out; nothing without one.
inline std::optional<WPARAM> TakeQuitMessage()
{
    MSG message;
    if (PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) == 0) {
        return std::nullopt;
    }
    return message.wParam;
}

class LayerTest : public OpaqueInkOnScreen {
protected:
    void Start() override { overlay.emplace(OnGDI(), functions); }
    void TearDown() override { overlay.reset(); }

    lumora::Library functions = lumora::Library::Load();
    std::optional<lumora::Overlay> overlay;
};

} // namespace zq::LM::test
