// The callbacks themselves: how values pass through them, what a missing one does and when they are
// destroyed.
#include "support/engine_test.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace zq::LM::test {
namespace {

// Six callables that do nothing, for a test to replace some of.
struct CallbackSet {
    ClearFunction clear = [] {};
    PresentFunction present = [] {};
    PickColorFunction pickColor = [](bool) { return 0U; };
    SignedLineFunction drawLine = [](int, int, int, unsigned, int, int, int, unsigned) {};
    SignedLineFunction eraseLine = [](int, int, int, unsigned, int, int, int, unsigned) {};
    DrawPenDataFunction drawPenData = [](std::vector<PenData>*, unsigned, unsigned) {};

    void BindTo(Drawing& drawing)
    {
        drawing.SetCallbacks(std::move(clear), std::move(present), std::move(pickColor), std::move(drawLine),
                             std::move(eraseLine), std::move(drawPenData));
    }
};

class Callbacks : public EngineTest {
protected:
    void AddSegment() { Add({Sample({100, 200}), Sample({110, 210})}); }

    void DrawOutlineOnly()
    {
        Set([](Params& params) {
            params.line = 0;
            params.outline = 1;
        });
    }

    CallbackSet callbacks;
};

TEST_F(Callbacks, WidthsWithTheTopBitArriveAsNegativeNumbers)
{
    std::vector<int> widths;
    callbacks.eraseLine = [&](int, int, int w1, unsigned, int, int, int w2, unsigned) { widths = {w1, w2}; };
    callbacks.BindTo(drawing);
    DrawOutlineOnly();
    Set([](Params& params) { params.brushSize = 3; });
    AddSegment();
    drawing.DrawLumoraLines();
    EXPECT_EQ(widths, (std::vector<int>{-1, -1})); // 0xFFFFFFFF
}

TEST_F(Callbacks, ColoursWithTheTopBitArriveUnchanged)
{
    std::vector<unsigned> colours;
    callbacks.drawLine = [&](int, int, int, unsigned c1, int, int, int, unsigned c2) { colours = {c1, c2}; };
    callbacks.BindTo(drawing);
    Set([](Params& params) { params.inkColor = 0xFFFFFFFF; });
    AddSegment();
    drawing.DrawLumoraLines();
    EXPECT_EQ(colours, (std::vector<unsigned>{0xFFFFFFFF, 0xFFFFFFFF}));
}

TEST_F(Callbacks, LaterOnesReplaceEarlierOnes)
{
    AddSegment();
    callbacks.BindTo(drawing);
    EXPECT_EQ(Frame(), Calls{});
}

TEST_F(Callbacks, PenDataCallbackGetsTheLiveSetItselfEveryTime)
{
    std::vector<const void*> addresses;
    callbacks.drawPenData = [&](std::vector<PenData>* samples, unsigned, unsigned) {
        addresses.push_back(samples);
        samples->back().x = 77;
    };
    callbacks.BindTo(drawing);
    DrawOutlineOnly();
    drawing.SetVectorOutline(true);
    AddSegment();
    drawing.DrawLumoraLines();
    drawing.DrawLumoraLines();
    ASSERT_EQ(addresses.size(), 2U);
    EXPECT_EQ(addresses[0], addresses[1]);
    EXPECT_EQ(LiveSamples().size(), 0U) << "the recording set is not bound here";
    calls.BindTo(drawing);
    EXPECT_EQ(LiveX(), (std::vector<std::int32_t>{100, 77}));
}

TEST_F(Callbacks, NewEngineHasNone)
{
    Drawing fresh;
    EXPECT_THROW(fresh.DrawLumoraLines(), std::bad_function_call);
}

TEST_F(Callbacks, MissingClearRaises)
{
    int presented = 0;
    callbacks.clear = nullptr;
    callbacks.present = [&] { ++presented; };
    callbacks.BindTo(drawing);
    EXPECT_THROW(drawing.DrawLumoraLines(), std::bad_function_call);
    EXPECT_EQ(presented, 0);
}

TEST_F(Callbacks, MissingPresentRaisesAfterEverythingElse)
{
    int cleared = 0;
    int lines = 0;
    callbacks.clear = [&] { ++cleared; };
    callbacks.drawLine = [&](int, int, int, unsigned, int, int, int, unsigned) { ++lines; };
    callbacks.present = nullptr;
    callbacks.BindTo(drawing);
    AddSegment();
    EXPECT_THROW(drawing.DrawLumoraLines(), std::bad_function_call);
    EXPECT_EQ(cleared, 1);
    EXPECT_EQ(lines, 1);
}

TEST_F(Callbacks, MissingPickRaisesBeforeTheFrameIsCleared)
{
    int cleared = 0;
    callbacks.clear = [&] { ++cleared; };
    callbacks.pickColor = nullptr;
    callbacks.BindTo(drawing);
    Set([](Params& params) { params.colorPicker = 1; });
    AddSegment();
    EXPECT_THROW(drawing.DrawLumoraLines(), std::bad_function_call);
    EXPECT_EQ(cleared, 0);
}

TEST_F(Callbacks, MissingPickRaisesForTheSwatchToo)
{
    callbacks.pickColor = nullptr;
    callbacks.BindTo(drawing);
    Set([](Params& params) { params.colorPicker = 1; });
    AddAt(0, {100, 200}, Hovering);
    EXPECT_THROW(drawing.DrawLumoraLines(), std::bad_function_call);
}

TEST_F(Callbacks, MissingDrawLineRaises)
{
    callbacks.drawLine = nullptr;
    callbacks.BindTo(drawing);
    AddSegment();
    EXPECT_THROW(drawing.DrawLumoraLines(), std::bad_function_call);
}

TEST_F(Callbacks, MissingEraseLineRaises)
{
    callbacks.eraseLine = nullptr;
    callbacks.BindTo(drawing);
    DrawOutlineOnly();
    AddSegment();
    EXPECT_THROW(drawing.DrawLumoraLines(), std::bad_function_call);
}

TEST_F(Callbacks, MissingDrawPenDataRaises)
{
    callbacks.drawPenData = nullptr;
    callbacks.BindTo(drawing);
    DrawOutlineOnly();
    drawing.SetVectorOutline(true);
    AddSegment();
    EXPECT_THROW(drawing.DrawLumoraLines(), std::bad_function_call);
}

TEST_F(Callbacks, MissingOnesThatNobodyNeedsDoNotMatter)
{
    callbacks.pickColor = nullptr;
    callbacks.eraseLine = nullptr;
    callbacks.drawPenData = nullptr;
    callbacks.BindTo(drawing);
    AddSegment();
    EXPECT_NO_THROW(drawing.DrawLumoraLines());
}

TEST_F(Callbacks, EngineStaysUsableAfterAMissingOne)
{
    callbacks.drawLine = nullptr;
    callbacks.BindTo(drawing);
    AddSegment();
    EXPECT_THROW(drawing.DrawLumoraLines(), std::bad_function_call);
    calls.BindTo(drawing);
    AddAt(1, {120, 220});
    EXPECT_EQ(Drawn().size(), 2U);
    EXPECT_EQ(drawing.LivePointsNum(), 3);
}

TEST_F(Callbacks, TextCallbackIsNeverCalled)
{
    int texts = 0;
    drawing.SetDrawTextCallback([&](int, int, unsigned, unsigned, const char*) { ++texts; });
    AddSegment();
    AddAt(1, {120, 220}, Hovering);
    Frame();
    EXPECT_EQ(texts, 0);
}

TEST(CallbackLifetime, EndsInReverseOrderOfTheEnginesMembers)
{
    std::vector<std::string> ended;
    const auto mark = [&ended](std::string name) {
        return std::shared_ptr<void>(nullptr, [&ended, name](void*) { ended.push_back(name); });
    };
    {
        Drawing drawing;
        drawing.SetCallbacks([m = mark("clear")] {}, [m = mark("present")] {},
                             [m = mark("pick")](bool) { return 0U; },
                             [m = mark("draw")](int, int, int, unsigned, int, int, int, unsigned) {},
                             [m = mark("erase")](int, int, int, unsigned, int, int, int, unsigned) {},
                             [m = mark("pen data")](std::vector<PenData>*, unsigned, unsigned) {});
        drawing.SetDrawTextCallback([m = mark("text")](int, int, unsigned, unsigned, const char*) {});
        EXPECT_EQ(ended, std::vector<std::string>{}) << "the callables are moved, not copied away";
    }
    EXPECT_EQ(ended,
              (std::vector<std::string>{"pen data", "text", "erase", "draw", "pick", "present", "clear"}));
}

TEST(CallbackLifetime, EndsWhenAnotherSetReplacesThem)
{
    int ended = 0;
    const auto mark = [&] { return std::shared_ptr<void>(nullptr, [&ended](void*) { ++ended; }); };
    Drawing drawing;
    CallbackSet first;
    first.clear = [m = mark()] {};
    first.drawLine = [m = mark()](int, int, int, unsigned, int, int, int, unsigned) {};
    first.BindTo(drawing);
    EXPECT_EQ(ended, 0);
    CallbackSet second;
    second.BindTo(drawing);
    EXPECT_EQ(ended, 2);
}

} // namespace
} // namespace zq::LM::test
