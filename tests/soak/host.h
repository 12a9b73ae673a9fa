// The host of the soak: the delivered library with all that a host may do to it, and what it holds.
#pragma once

#include "lumora/records.h"
#include "support/fakes/memory.h"
#include "support/fakes/shell.h"
#include "support/library/library.h"
#include "support/screen/screen.h"

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace zq::LM::soak {

enum class BackEnd { GDI, Direct2D };

// What the process holds of the system's, while the library does nothing.
struct Holdings {
    std::size_t gdiObjects = 0;
    std::size_t userObjects = 0;
    std::size_t kernelHandles = 0;
    std::size_t windows = 0; // of overlays
    std::size_t dialogs = 0;
    std::size_t memoryBlocks = 0; // of the library's own; 0 where its allocator is not the one that is known
    double privateKilobytes = 0;
};

class Host {
public:
    // Begins at the screen's origin.
    static constexpr RECT Screen = {0, 0, 800, 600};
    static constexpr RECT PenArea = {40, 100, 760, 560};

    Host();
    ~Host();
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    // The instance goes and another one comes, with the back-end chosen last.
    void Restart();

    // Takes effect with the next input, which draws nothing and rebuilds.
    void Choose(BackEnd backEnd);
    BackEnd Chosen() const { return chosen; }

    void SetRecord(const LM_Params& record);
    void SetLogLevel(std::uint32_t level) { library.SetDebugLevel(level); }
    void OpenSettings() const;
    static void CloseSettings();

    // Hands over samples and has them painted; how many microseconds that took, unless it was a rebuild.
    std::optional<double> Write(const std::vector<LM_PenData>& samples);

    void PumpFor(DWORD milliseconds);

    // Pumps until the ink of the last input is past its life by 200 ms and, on a machine that does not keep
    // up, two ticks could wipe it. False when no tick has seen it alive, so that none wipes it.
    bool WaitForInkToGo();

    // Whether the screen has anything but the ground below the overlay.
    bool ShowsAnything() const;

    // Windows that rebuilds have left since the last Rest.
    std::size_t LeftWindows() const;
    std::size_t Rebuilds() const { return rebuilds; } // since then too

    // Nothing is left but one new instance by GDI, of which no ink was drawn.
    Holdings Rest();

    unsigned WindowsMade() const { return windowsMade; }
    unsigned Classes() const;

private:
    void Create_();
    void Destroy_();
    void Dispatch_(const MSG& message);
    HWND Overlay_() const { return library.GetWindowHandle(); }

    test::Library library;
    test::ShellStandIn shell{library.Module(), Screen};
    test::Backdrop backdrop;
    std::optional<test::MemoryStandIn> memory;
    BackEnd chosen = BackEnd::GDI;
    bool rebuildIsDue = false;
    std::size_t rebuilds = 0;
    unsigned windowsMade = 0;
    double inkLife = 0; // in seconds
    double inkBegin = 0;
    bool tickSawInk = false; // of the last input
    unsigned ticks = 0;
};

} // namespace zq::LM::soak
