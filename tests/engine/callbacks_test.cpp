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

// Six callables that note when they run, for a test to replace some of.
struct CallbackSet {
    std::vector<std::string> ran;
    ClearFunction clear = [this] { ran.push_back("clear"); };
    PresentFunction present = [this] { ran.push_back("present"); };
    PickColorFunction pickColor = [this](bool) { return ran.push_back("pick"), 0U; };
    SignedLineFunction drawLine = [this](int, int, int, unsigned, int, int, int, unsigned) {
        ran.push_back("line");
    };
    SignedLineFunction eraseLine = [this](int, int, int, unsigned, int, int, int, unsigned) {
        ran.push_back("erase");
    };
    DrawPenDataFunction drawPenData = [this](std::vector<PenData>*, unsigned, unsigned) {
        ran.push_back("samples");
    };

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

    // Binds what is left of the set; what ran until the frame raised.
    std::string RanBeforeTheFrameRaised()
    {
        callbacks.BindTo(drawing);
        EXPECT_THROW(drawing.DrawLumoraLines(), std::bad_function_call);
        std::string all;
        for (const std::string& one : callbacks.ran) {
            all += one + " ";
        }
        return all;
    }

    CallbackSet callbacks;
};

TEST_F(Callbacks, WidthsAndColoursWithTheTopBitPassUnchanged)
{
    std::vector<int> widths;
    std::vector<unsigned> colours;
    callbacks.eraseLine = [&](int, int, int w1, unsigned c1, int, int, int w2, unsigned c2) {
        widths = {w1, w2};
        colours = {c1, c2};
    };
    callbacks.BindTo(drawing);
    DrawOutlineOnly();
    Set([](Params& params) {
        params.brushSize = 3;
        params.inkColor = 0xFFFFFFFF;
    });
    AddSegment();
    drawing.DrawLumoraLines();
    EXPECT_EQ(widths, (std::vector<int>{-1, -1})); // 0xFFFFFFFF
    EXPECT_EQ(colours, (std::vector<unsigned>{0xFFFFFFFF, 0xFFFFFFFF}));
}

TEST_F(Callbacks, PenDataCallbackGetsTheLiveSetItself)
{
    callbacks.drawPenData = [&](std::vector<PenData>* samples, unsigned, unsigned) {
        samples->back().x = 77;
    };
    callbacks.BindTo(drawing);
    DrawOutlineOnly();
    drawing.SetVectorOutline(true);
    AddSegment();
    drawing.DrawLumoraLines();
    calls.BindTo(drawing);
    EXPECT_EQ(LiveX(), (std::vector<std::int32_t>{100, 77}));
}

TEST_F(Callbacks, MissingClearRaisesAsInANewEngine)
{
    callbacks.clear = nullptr;
    EXPECT_EQ(RanBeforeTheFrameRaised(), "");
    Drawing fresh;
    EXPECT_THROW(fresh.DrawLumoraLines(), std::bad_function_call);
}

TEST_F(Callbacks, MissingPresentRaisesAfterEverythingElse)
{
    callbacks.present = nullptr;
    AddSegment();
    EXPECT_EQ(RanBeforeTheFrameRaised(), "clear line ");
}

TEST_F(Callbacks, MissingPickRaisesBeforeTheFrameIsClearedOrForTheSwatch)
{
    callbacks.pickColor = nullptr;
    Set([](Params& params) { params.colorPicker = 1; });
    AddSegment();
    EXPECT_EQ(RanBeforeTheFrameRaised(), "");
    AddAt(0, {100, 200}, Hovering);
    EXPECT_THROW(drawing.DrawLumoraLines(), std::bad_function_call);
    EXPECT_EQ(callbacks.ran, std::vector<std::string>{"clear"});
}

TEST_F(Callbacks, MissingLinesRaiseWhereTheyAreNeeded)
{
    callbacks.eraseLine = nullptr;
    AddSegment();
    callbacks.BindTo(drawing);
    EXPECT_NO_THROW(drawing.DrawLumoraLines());
    DrawOutlineOnly();
    EXPECT_THROW(drawing.DrawLumoraLines(), std::bad_function_call);
    CallbackSet others;
    others.drawLine = nullptr;
    others.BindTo(drawing);
    EXPECT_THROW(drawing.DrawLumoraLines(), std::bad_function_call);
    EXPECT_EQ(others.ran, std::vector<std::string>{"clear"});
}

TEST_F(Callbacks, MissingDrawPenDataRaisesAndTheEngineStaysUsable)
{
    callbacks.drawPenData = nullptr;
    DrawOutlineOnly();
    drawing.SetVectorOutline(true);
    AddSegment();
    EXPECT_EQ(RanBeforeTheFrameRaised(), "clear ");
    calls.BindTo(drawing);
    AddAt(1, {120, 220});
    EXPECT_EQ(Drawn(), Calls{DrawPenData(3, 10, Ink)});
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

TEST(CallbackLifetime, EndsWithTheNextSetOrInReverseOrderOfTheEnginesMembers)
{
    std::vector<std::string> ended;
    const auto mark = [&ended](const std::string& name) {
        return std::shared_ptr<void>(nullptr, [&ended, name](void*) { ended.push_back(name); });
    };
    {
        Drawing drawing;
        drawing.SetCallbacks([m = mark("first")] {}, {}, {}, {}, {}, {});
        EXPECT_EQ(ended, std::vector<std::string>{}) << "the callables are moved, not copied away";
        drawing.SetCallbacks([m = mark("clear")] {}, [m = mark("present")] {},
                             [m = mark("pick")](bool) { return 0U; },
                             [m = mark("draw")](int, int, int, unsigned, int, int, int, unsigned) {},
                             [m = mark("erase")](int, int, int, unsigned, int, int, int, unsigned) {},
                             [m = mark("pen data")](std::vector<PenData>*, unsigned, unsigned) {});
        drawing.SetDrawTextCallback([m = mark("text")](int, int, unsigned, unsigned, const char*) {});
        EXPECT_EQ(std::exchange(ended, {}), std::vector<std::string>{"first"});
    }
    EXPECT_EQ(ended,
              (std::vector<std::string>{"pen data", "text", "erase", "draw", "pick", "present", "clear"}));
}

} // namespace
} // namespace zq::LM::test
