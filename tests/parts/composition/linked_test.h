// The common set-up of tests that link the back-end: on a window of their own, and on the stand-in for the
// system's composition engine, put under the test program itself.
#pragma once

#include "render/direct_composition.h"
#include "support/composition/composition_stand_in.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace zq::LM::test {

using Lines = std::vector<std::string>;

class LinkedTest : public testing::Test {
protected:
    static constexpr int Width = 320;
    static constexpr int Height = 200;

    LinkedTest();
    ~LinkedTest() override;

    // Gives the result, and drops its calls.
    bool SetUpChain();

    // What is drawn between a frame's brackets, by its calls.
    template <typename Drawing> Lines CallsOf(Drawing drawing)
    {
        backEnd->Clear();
        composition.Take();
        drawing(*backEnd);
        Lines calls = composition.Take();
        backEnd->Present();
        return calls;
    }

    std::uint32_t PixelAt(UINT x, UINT y) const { return composition.LastFrame().At(x, y); }

    // Ends the back-end; everything but one device for each set-up is released then.
    void TearDown() override;

    int setUps = 1;
    HWND window;
    CompositionStandIn composition{GetModuleHandleW(nullptr)};
    std::unique_ptr<DirectComposition> backEnd = std::make_unique<DirectComposition>();
};

} // namespace zq::LM::test
