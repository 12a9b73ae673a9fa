// The information overlay on each back-end: what is seen of it, when it comes and goes, and that ink keeps
// its colour beside it.
#include "support/hook/hooks.h"
#include "support/library/back_end_test.h"
#include "support/row_name.h"

namespace zq::LM::test {

namespace {

constexpr WPARAM LogNone = 40010;
constexpr WPARAM LogLevels[] = {40011, 40012, 40013, 40014};

class InformationTest : public BackEndTest, public testing::WithParamInterface<BackEnd> {
protected:
    InformationTest() : BackEndTest(GetParam()) {}
    ~InformationTest() override { library.SetDebugLevel(0); }

    // Whether anything but the window below is seen in this part of the overlay.
    bool ShowsSomething(const RECT& part) const
    {
        const auto size = static_cast<std::size_t>((part.right - part.left) * (part.bottom - part.top));
        return Look(part).Count(Green) != size;
    }

    bool FillsRectangles() const { return backEnd.command == ChooseDirectComposition; }
};

TEST_P(InformationTest, ShowsEveryTextInItsLineAndBarsWhereTheBackEndFillsRectangles)
{
    library.SetDebugLevel(1);
    Refresh();
    clock.Advance(1); // a bar, if there is one, is full
    Refresh();
    for (const int top : {32, 56, 80, 104, 128, 152, 176, 200}) {
        EXPECT_TRUE(ShowsSomething({310, top, 640, top + 20})) << "text at " << top;
    }
    for (const int top : {288, 352}) {
        EXPECT_TRUE(ShowsSomething({280, top, 640, top + 12})) << "text at " << top;
    }
    EXPECT_EQ(ShowsSomething({280, 312, 640, 352}), FillsRectangles());
    EXPECT_EQ(ShowsSomething({280, 376, 640, 480}), FillsRectangles());
    EXPECT_FALSE(ShowsSomething({0, 0, 280, 480}));
}

TEST_P(InformationTest, IsNotThereAtLevel0)
{
    clock.Advance(8);
    Refresh();
    EXPECT_TRUE(ShowsNothing());
}

TEST_P(InformationTest, StaysUntilTheNextPaintAndThenLeavesNothing)
{
    library.SetDebugLevel(1);
    Refresh();
    library.SetDebugLevel(0);
    SettleScreen();
    EXPECT_FALSE(ShowsNothing());
    Refresh();
    EXPECT_TRUE(ShowsNothing());
}

TEST_P(InformationTest, AChangeOfTheLevelRepaintsNothing)
{
    Hooks calls(library.Module());
    calls.Record<"InvalidateRect">(InvalidateRect);
    calls.Record<"BeginPaint">(BeginPaint);
    for (const std::uint32_t level : {1U, 255U, 0U}) {
        library.SetDebugLevel(level);
        EXPECT_FALSE(IsInvalid());
        PumpMessages();
    }
    EXPECT_THAT(calls.Take(), testing::IsEmpty());
    EXPECT_TRUE(ShowsNothing());
}

TEST_P(InformationTest, TheMenusLevelsSwitchItOnAndOffWithTheirOwnRepaint)
{
    for (const WPARAM level : LogLevels) {
        Choose(level);
        Paint();
        EXPECT_FALSE(ShowsNothing()) << "command " << level;
        Choose(LogNone);
        Paint();
        EXPECT_TRUE(ShowsNothing()) << "after command " << level;
    }
}

TEST_P(InformationTest, InkKeepsItsColourBesideIt)
{
    library.SetDebugLevel(1);
    for (int i = 0; i < 2; ++i) { // the second frame begins with the brush of the last bar
        Stroke(100, 200, 240);
        EXPECT_EQ(Look().At(150, 240), Red);
    }
}

TEST_P(InformationTest, TheFirstFrameOfAWindowMayCarryIt)
{
    DestroyAndForget();
    library.SetDebugLevel(1); // where there is a bitmap, that frame comes before it
    EXPECT_NE(library.Create(), nullptr);
    Refresh();
    EXPECT_TRUE(ShowsSomething({310, 32, 640, 56}));
}

INSTANTIATE_TEST_SUITE_P(Each, InformationTest, testing::ValuesIn(AllBackEnds), RowName());

class InformationOnGDI : public BackEndTest {
protected:
    InformationOnGDI() : BackEndTest(GDIBackEnd) {}
    ~InformationOnGDI() override { library.SetDebugLevel(0); }
};

TEST_F(InformationOnGDI, TheDyingInksLastFrameCarriesItToo)
{
    library.SetDebugLevel(1);
    Stroke(100, 200, 240);
    Tick();
    clock.Advance(params.inkDecayTime);
    Hooks calls(library.Module());
    calls.Record<"TextOutW">(TextOutW);
    Tick();
    PaintOnce();
    EXPECT_EQ(calls.Count("TextOutW"), 40U); // ten texts of four copies
}

} // namespace

} // namespace zq::LM::test
