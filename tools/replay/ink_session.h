// One overlay of the library, from its creation with the wished back-end and parameters to its end.
#pragma once

#include "options.h"
#include "placement.h"

#include "lumora/library.hpp"

#include <cstdint>
#include <span>

namespace lumora::replay {

class InkSession {
public:
    // Throws ReplayError when the library makes no window.
    InkSession(const Library& inkLibrary, const Options& options);
    ~InkSession();
    InkSession(const InkSession&) = delete;
    InkSession& operator=(const InkSession&) = delete;

    HWND Window() const { return window; }

    // What of the primary screen the overlay covers.
    ScreenSize DrawableSize() const;

    std::uint32_t InkLifeMs() const;

    void Input(std::span<const LM_PenData> samples) const;

    // Takes effect with the next input, which makes a new window and draws nothing.
    void Choose(BackEnd backEnd) const;

    // Gives a dialog of the overlay its keyboard; true when the message was for one and has been served.
    bool ServeDialog(MSG& message) const;

    // Painted by another window than before: the library made a new one after its back-end was changed.
    void RefreshWindow() { window = library.getWindowHandle(); }

private:
    void Create_();
    void Destroy_() const;

    const Library& library;
    HWND window = nullptr;
};

} // namespace lumora::replay
