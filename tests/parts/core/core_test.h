// A Core of the test program's own, with parts that note what they are asked among its calls to the system.
#pragma once

#include "core/core.h"
#include "support/fakes/back_end.h"
#include "support/fakes/clock.h"
#include "support/fakes/debugger.h"
#include "support/fakes/graphics_device.h"
#include "support/fakes/shell.h"
#include "support/fakes/timer.h"
#include "support/hook/hooks.h"
#include "support/screen/screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace zq::LM::test {

using Lines = std::vector<std::string>;

// The makers of a Core with three fake back-ends and a view that only notes what it is asked; without a
// server.
extern const Makers FakeMakers;
std::unique_ptr<DrawingLib> NoBackEnd(PaintRecord& record);

// Among the calls of the test that runs.
void Note(const std::string& line);

class CoreTest : public ::testing::Test {
protected:
    static constexpr RECT Desktop = {200, 60, 840, 540};

    CoreTest();
    ~CoreTest() override;

    static void Activate(RenderingType type) { g_renderingType = type; }
    static HMODULE Program() { return GetModuleHandleW(nullptr); }

    void MakeCore(RenderingType type = RenderingType::GDI);

    // A window that owes no paint; the calls so far are dropped.
    HWND CreateWindowed(RenderingType type = RenderingType::GDI);

    // The window ends first, as a host's does.
    void DestroyWindowAndCore();

    void RecordDestruction();
    void RecordHotkey(); // nothing of it reaches the system
    void RecordTray();   // nor of the icon; the program has no resources, so they are stood in for

    // Of the Core that was made last.
    static FakeBackEnd& BackEnd(RenderingType type);

    const Params& Record() const { return *core->Ink().Get(); }
    Params EngineRecord() const;
    void SetParams(const Params& params) { core->Ink().Replace(params); }
    void Tick() { SendMessageW(core->Window(), WM_TIMER, 0, 0); }

    ShellStandIn shell{Program(), Desktop};
    TimerStandIn timer{Program()};
    NoGraphicsDevice noDevice{Program()};
    ClockStandIn clock{Program()};
    Hooks calls{Program()};
    Makers makers = FakeMakers;
    Owned<Core> core;
};

PenData Touch(std::int32_t x);

} // namespace zq::LM::test
