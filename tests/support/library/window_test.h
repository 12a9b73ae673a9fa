// The common set-up of the overlay window's tests: the real library with its calls to the system recorded.
#pragma once

#include "support/hook/hooks.h"
#include "support/library/overlay_test.h"

#include <string>
#include <vector>

namespace zq::LM::test {

using Lines = std::vector<std::string>;

class WindowTest : public OverlayTest {
protected:
    WindowTest() { calls.Name(shell.Window(), "shell"); }

    void SelectGDI() { Select(ChooseGDI); }

    // Everything that a creation does with the system, but for what a version resource needs.
    void RecordCreation();
    void RecordPainting();
    void RecordHotkey(bool taken); // nothing of it reaches the system
    void RecordInvalidations();

    // A segment of full width in the default ink, and where it lies.
    void InputStroke() const { Input({Sample(100, 100), Sample(150, 100)}); }
    static constexpr COLORREF Ink = 0x00202020;

    // What lies below the overlay, and all that is seen.
    static constexpr COLORREF Green = RGB(0, 128, 0);
    static constexpr RECT WholeScreen = {0, 0, 1024, 768};

    std::size_t Invalidations() const { return calls.Count("InvalidateRect"); }

    Hooks calls{library.Module()};
};

} // namespace zq::LM::test
