// Lumora's overlay for this program: in the style asked for, and made anew whenever it has to be.
#pragma once

#include "input/input.h"
#include "settings/settings.h"

#include "lumora/lumora.hpp"

#include <cstdint>
#include <optional>

namespace lumora_pen {

class InkOverlay {
public:
    // Throws lumora::Error when the library cannot be loaded, has other records, or makes no window.
    InkOverlay(BackEndName first, unsigned level);

    // Null while there is no overlay; then ink goes nowhere.
    HWND Window() const { return overlay ? overlay->Window() : nullptr; }
    BackEndName BackEnd() const { return backEnd; }
    unsigned LogLevel() const { return logLevel; }

    // Makes the overlay anew; its ink goes. Throws lumora::Error; then there is none.
    void Use(BackEndName other, unsigned level);

    void SetStyle(const lumora::Params& style);
    // With what a person has changed in the library's dialog.
    lumora::Params Style();

    // Hands over screen positions, oldest first.
    void Input(const std::vector<InputSample>& samples);

    // Takes all ink off the screen, now.
    void Wipe();

    void OpenDialog();
    bool IsDialogOpen() const;
    bool HandleDialogMessage(MSG& message) const { return overlay && overlay->HandleDialogMessage(message); }

    // Makes the overlay anew when its window has gone, and when the system's millisecond clock has begun
    // again: ink from before that would stay for ever. True when it did. Throws lumora::Error.
    bool LookAfter(std::uint32_t now);

private:
    void Make_();
    void MakeOne_();

    lumora::Library library;
    BackEndName backEnd;
    unsigned logLevel;
    bool isMaking = false;
    std::optional<lumora::Overlay> overlay;
    std::optional<lumora::Params> wanted; // the style that was set last
    std::vector<LM_PenData> batch;        // kept for its memory
    std::uint32_t lastLook = 0;
};

// True when a window of the library's belongs to another process.
bool IsAnotherOverlayShown();

} // namespace lumora_pen
