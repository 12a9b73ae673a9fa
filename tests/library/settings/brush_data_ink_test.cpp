// Brush data through the library's export: what it changes of the ink on the screen, and of the host's
// buffer.
#include "lumora/brush_data.h"
#include "support/hook/import_hook.h"
#include "support/library/ink_on_screen.h"

#include <winsock2.h>

#include <algorithm>

namespace zq::LM::test {
namespace {

using lumora::BrushDataMessage;

class BrushDataInk : public OpaqueInkOnScreen {
protected:
    void Set(BrushDataMessage message) { library.SetData_from_App(message.data(), message.size()); }
};

TEST_F(BrushDataInk, InkColorChangesTheColourOnTheScreen)
{
    Stroke(100, 200, 100);
    ASSERT_EQ(Look().At(150, 100), Red);
    Set(lumora::MakeInkColor(Blue));
    Refresh();
    EXPECT_EQ(Look().At(150, 100), Blue);
    EXPECT_EQ(Look().Count(Red), 0U);
}

TEST_F(BrushDataInk, BrushSizeChangesTheWidthOnTheScreen)
{
    Stroke(100, 200, 100);
    ASSERT_NEAR(CountInColumn(Look(), 150, Red), 10, 1);
    Set(lumora::MakeBrushSize(1, 30));
    Refresh();
    EXPECT_NEAR(CountInColumn(Look(), 150, Red), 30, 1);
}

TEST_F(BrushDataInk, BrushSizesLowerBoundIsTheLeastThatPressureGives)
{
    params.usePressure = 1;
    Apply();
    Set(lumora::MakeBrushSize(20, 30));
    Stroke(100, 200, 100, 1);
    EXPECT_NEAR(CountInColumn(Look(), 150, Red), 20, 1);
}

TEST_F(BrushDataInk, InkDecayTimeChangesHowLongInkStays)
{
    Stroke(100, 200, 100);
    clock.Advance(300);
    Refresh();
    ASSERT_EQ(Look().At(150, 100), Red);
    Set(lumora::MakeInkDecayTime(300));
    Refresh();
    EXPECT_EQ(Look().Count(Red), 0U);
}

TEST_F(BrushDataInk, BrushParamsChangesColourAndWidthAtOnce)
{
    Stroke(100, 200, 100);
    Set(lumora::MakeBrushParams(Blue, 1, 30));
    Refresh();
    EXPECT_NEAR(CountInColumn(Look(), 150, Blue), 30, 1);
}

TEST_F(BrushDataInk, NothingLeavesTheInkAsItIs)
{
    Stroke(100, 200, 100);
    const Picture before = Look();
    Set(lumora::MakeNothing());
    Refresh();
    EXPECT_EQ(Look().Differences(before), 0U);
}

TEST_F(BrushDataInk, EndsColourPickingAndStrokesAreDrawnAgain)
{
    params.colorPicker = 1;
    Apply();
    Set(lumora::MakeInkColor(Blue));
    EXPECT_EQ(Params().colorPicker, 0);
    Stroke(100, 200, 100);
    EXPECT_EQ(Look().At(150, 100), Blue);
}

TEST_F(BrushDataInk, ShowsWithTheNextPaintOnly)
{
    Hook<"InvalidateRect", decltype(InvalidateRect)> invalidations(library.Module());
    Set(lumora::MakeInkColor(Blue));
    EXPECT_EQ(invalidations.Count(), 0U);
}

TEST_F(BrushDataInk, ZeroesTheFirst17Of26BytesOfTheHostsMessage)
{
    const BrushDataMessage before = lumora::MakeInkColor(Blue);
    BrushDataMessage message = before;
    library.SetData_from_App(message.data(), message.size());
    ASSERT_EQ(message.size(), 26U);
    EXPECT_TRUE(std::all_of(message.begin(), message.begin() + 17, [](auto byte) { return byte == 0; }));
    EXPECT_TRUE(std::equal(message.begin() + 17, message.end(), before.begin() + 17));
}

TEST_F(BrushDataInk, DoesNotDependOnTheSizeThatTheHostGives)
{
    for (const std::uint64_t size : {std::uint64_t{0}, std::uint64_t{1}, ~std::uint64_t{0}}) {
        Apply();
        BrushDataMessage message = lumora::MakeInkColor(Blue);
        library.SetData_from_App(message.data(), size);
        EXPECT_EQ(Params().inkColor, Blue);
    }
}

// The server exists in the library, behind a setting that nothing turns on.
TEST_F(BrushDataInk, NeverStartsWinsock)
{
    Hook<"WSAStartup", decltype(WSAStartup)> starts(library.Module());
    library.SetDebugLevel(1);
    debugger.Clear();
    library.Create();
    Set(lumora::MakeInkColor(Blue));
    Tick();
    DestroyAndForget();
    EXPECT_EQ(starts.Count(), 0U);
    EXPECT_THAT(debugger.Texts(), ::testing::Not(::testing::Contains(::testing::HasSubstr("TCP/IP"))));
}

} // namespace
} // namespace zq::LM::test
