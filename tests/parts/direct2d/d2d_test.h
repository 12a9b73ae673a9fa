// The common set-up of tests that link the Direct2D back-end: on a bitmap of their own, with its calls
// recorded.
#pragma once

#include "render/d2d.h"
#include "render/line_rules.h"
#include "support/composition/composition_stand_in.h"
#include "support/fakes/shell.h"
#include "support/screen/test_bitmap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace zq::LM::test {

using Lines = std::vector<std::string>;

class D2DTest : public testing::Test {
protected:
    static constexpr int Width = 160;
    static constexpr int Height = 100;
    static constexpr COLORREF Green = RGB(0, 128, 0);
    static constexpr COLORREF Red = RGB(255, 0, 0);
    static constexpr unsigned OpaqueRed = 0xFF0000FF;

    D2DTest();
    ~D2DTest() override;

    static HMODULE Program() { return GetModuleHandleW(nullptr); }

    // Gives the calls of its set-up.
    Lines MakeBackEnd();

    // A back-end that serves the window and draws into the bitmap; its calls so far are dropped.
    void MakeBoundBackEnd();

    // What is drawn between a frame's brackets, by its calls.
    template <typename Drawing> Lines CallsOf(Drawing drawing)
    {
        backEnd->Clear();
        graphics.Take();
        drawing(*backEnd);
        Lines calls = graphics.Take();
        backEnd->Present();
        return calls;
    }

    // The bitmap after a frame.
    template <typename Drawing> Picture PictureOf(Drawing drawing)
    {
        CallsOf(drawing);
        return bitmap.Look();
    }

    // Ends the back-end; everything is released then.
    void TearDown() override;

    HWND window;
    ShellStandIn shell{Program(), {0, 0, Width, Height}};
    TestBitmap bitmap{Width, Height, Green};
    CompositionStandIn graphics{Program()};
    PaintRecord record;
    std::unique_ptr<D2D> backEnd;
};

} // namespace zq::LM::test
