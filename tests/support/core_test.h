// A Core with recording back-ends and a window, linked into the test program: what its tests start from.
#pragma once

#include "core/bindings.h"
#include "render/rendering_type.h"
#include "support/fake_clock.h"
#include "support/log_level.h"
#include "support/recorded_log.h"
#include "support/recording_back_ends.h"
#include "support/screen/screen.h"
#include "support/system_stand_ins.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace zq::LM::test {

class CoreTest : public testing::Test {
protected:
    static constexpr std::uint32_t Start = 100'000;

    CoreTest()
    {
        SetClock(Start);
        Activate(RenderingType::GDI);
    }
    ~CoreTest() override
    {
        CloseWindow_();
        g_renderingType = RenderingType::DirectComposition;
    }

    static void Activate(RenderingType type) { g_renderingType = type; }

    // The Core becomes the one that the callbacks reach; what the window's set-up called is dropped.
    void CreateWindowOfCore()
    {
        recorded.Get().CreateOverlayWindow();
        recorded.Take();
    }

    void EndCore()
    {
        CloseWindow_();
        recorded.End();
        recorded.Take();
    }

    Core& TheCore() { return recorded.Get(); }
    std::vector<std::string> Take() { return recorded.Take(); }

    Params EngineParams()
    {
        Params params{};
        TheCore().GetEngineParams(&params);
        return params;
    }

    NoGraphicsDevice noDevice{GetModuleHandleW(nullptr)};
    RecordedCore recorded;

private:
    // Its quit message is taken out of the queue.
    void CloseWindow_()
    {
        if (recorded.HasCore() && TheCore().Window() != nullptr) {
            DestroyWindow(TheCore().Window());
        }
        PumpMessages();
    }
};

} // namespace zq::LM::test
