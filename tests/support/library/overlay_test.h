// The common set-up of tests that drive the real library: it is loaded fresh, and the system around it stands
// still.
#pragma once

#include "support/fakes/clock.h"
#include "support/fakes/debugger.h"
#include "support/fakes/graphics_device.h"
#include "support/fakes/shell.h"
#include "support/fakes/timer.h"
#include "support/library/library.h"
#include "support/screen/screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <optional>
#include <type_traits>
#include <vector>

namespace zq::LM::test {

// Messages and commands of the overlay window.
inline constexpr UINT TrayMessage = 32814;
inline constexpr WPARAM SettingsCommand = 40001;
inline constexpr WPARAM SaveCommand = 40002;
inline constexpr WPARAM ChooseDirectComposition = 40020;
inline constexpr WPARAM ChooseDirect2D = 40021;
inline constexpr WPARAM ChooseGDI = 40022;

inline constexpr int FullPressure = 32767;

inline LM_PenData Sample(int x, int y, int pressure = FullPressure)
{
    LM_PenData sample{};
    sample.time = 1;
    sample.x = x;
    sample.y = y;
    sample.pressure = pressure;
    return sample;
}

class OverlayTest : public ::testing::Test {
protected:
    static constexpr RECT Desktop = {200, 60, 840, 540};

    // The command's back-end is active from the start of the next instance, so that no window of another is
    // left behind.
    void Select(WPARAM command);
    HWND CreateWithGDI();

    // Takes the quit message of the destroyed window out of the queue.
    void DestroyAndForget();

    LM_Params Params() const;
    void SetParams(const LM_Params& params) const { library.SetParams(&params); }
    template <typename Field> void SetField(Field LM_Params::*field, std::type_identity_t<Field> value) const
    {
        LM_Params params = Params();
        params.*field = value;
        SetParams(params);
    }
    void Input(const std::vector<LM_PenData>& samples) const;
    void InputNothing() const; // no samples, but not no array: that would be no input at all
    void Paint() const; // and waits until it is on the screen; Wine 10 paints again what has become visible
    void PaintOnce() const; // one frame exactly
    static void PaintAgain(HWND window);
    void InputAndPaint(const std::vector<LM_PenData>& samples) const;

    // Paints what is due in one frame, which runs to its end: one that raises an exception validates the
    // window too. The frame carries the information overlay.
    void PaintWhole();

    void Tick() const { SendMessageW(library.GetWindowHandle(), WM_TIMER, 12345, 0); }
    void Choose(WPARAM command) const { SendMessageW(library.GetWindowHandle(), WM_COMMAND, command, 0); }
    bool IsInvalid() const { return GetUpdateRect(library.GetWindowHandle(), nullptr, FALSE) != 0; }

    // The module with the system's own graphics devices, for a stand-in that needs them.
    HMODULE ModuleWithDevices();

    void TearDown() override;

    Library library;
    ClockStandIn clock{library.Module()};
    DebuggerStandIn debugger{library.Module()};
    ShellStandIn shell{library.Module(), Desktop};
    TimerStandIn timer{library.Module()};
    std::optional<NoGraphicsDevice> noDevice{std::in_place, library.Module()};
};

} // namespace zq::LM::test
