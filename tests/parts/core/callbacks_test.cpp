// The ink engine's callbacks: what each hands to which back-end, and when nothing happens.
#include "core/bindings.h"
#include "parts/core/core_test.h"
#include "support/log_level.h"

#include <climits>

namespace zq::LM::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CallbacksTest : public CoreTest {
protected:
    CallbacksTest() { CreateWindowed(); }

    // Every callback once; the pick's result.
    static unsigned CallAll()
    {
        std::vector<PenData> samples(2);
        ClearCallback();
        PresentCallback();
        DrawLineCallback(1, 2, 4, 0x00202020, 3, 4, 4, 0x00202020);
        EraseLineCallback(1, 2, 4, 0x00202020, 3, 4, 4, 0x00202020);
        DrawPenDataCallback(&samples, 4, 0x00202020);
        DrawTextCallback(1, 2, 3, 0x00202020, "text");
        return PickScreenColorCallback(true);
    }
};

TEST_F(CallbacksTest, ClearAndPresentReachTheActiveBackEnd)
{
    ClearCallback();
    PresentCallback();
    EXPECT_THAT(calls.Take(), ElementsAre("2: Clear()", "2: Present()"));
}

TEST_F(CallbacksTest, TheActiveTypeDecidesEachTime)
{
    Activate(RenderingType::DirectComposition);
    ClearCallback();
    Activate(RenderingType::Direct2D);
    ClearCallback();
    Activate(RenderingType::GDI);
    ClearCallback();
    EXPECT_THAT(calls.Take(), ElementsAre("0: Clear()", "1: Clear()", "2: Clear()"));
}

TEST_F(CallbacksTest, ClearAndPresentNeedAWindow)
{
    DestroyWindow(core->Window());
    ClearCallback();
    PresentCallback();
    EXPECT_THAT(calls.Take(), IsEmpty());
}

TEST_F(CallbacksTest, LinesNeedNoWindow)
{
    DestroyWindow(core->Window());
    DrawLineCallback(1, 2, 4, 0, 3, 4, 4, 0);
    EXPECT_THAT(calls.Take(), ElementsAre("2: DrawLine(1, 2, 4, 0xFF000000, 3, 4, 4, 0xFF000000)"));
}

TEST_F(CallbacksTest, ALineHasOneOpaqueColourAndOneWidth)
{
    struct End {
        unsigned width;
        unsigned colour;
    };
    struct {
        const char* of;
        End from;
        End to;
        const char* drawn;
    } const lines[] = {
        {"equal ends", {10, 0x00102030}, {10, 0x00102030}, "10, 0xFF102030"},
        {"widths that are rounded down", {3, 0}, {4, 0}, "3, 0xFF000000"},
        {"widths that wrap at 32 bits", {0xFFFFFFFF, 0}, {1, 0}, "0, 0xFF000000"},
        {"colours that are mixed without a carry limit", {2, 0x000000FF}, {2, 0x0000FF00}, "2, 0xFF007FFF"},
        {"the key, which has a substitute", {2, 0x00FF00FF}, {2, 0x00FF00FF}, "2, 0xFFFE00FF"},
        {"colours that mix to the key, which neither has", {2, 0x01FE01FE}, {2, 0}, "2, 0xFFFE00FF"},
        {"the key but for its alpha", {2, 0x01FF00FF}, {2, 0x01FF00FF}, "2, 0xFFFF00FF"},
    };
    for (const auto& [of, from, to, drawn] : lines) {
        DrawLineCallback(-1, 2, from.width, from.colour, 300, -4, to.width, to.colour);
        const std::string end = drawn;
        EXPECT_THAT(calls.Take(), ElementsAre("2: DrawLine(-1, 2, " + end + ", 300, -4, " + end + ")")) << of;
    }
}

TEST_F(CallbacksTest, ErasingDrawsInTheKeyWithAlpha0)
{
    EraseLineCallback(1, 2, 5, 0x00202020, 3, 4, 8, 0xFFFFFFFF);
    EraseLineCallback(1, 1, 0xFFFFFFFF, 0, 2, 2, 1, 0); // widths wrap at 32 bits
    EXPECT_THAT(calls.Take(), ElementsAre("2: DrawLine(1, 2, 6, 0xFF00FF, 3, 4, 6, 0xFF00FF)",
                                          "2: DrawLine(1, 1, 0, 0xFF00FF, 2, 2, 0, 0xFF00FF)"));
}

TEST_F(CallbacksTest, PenDataPassesUnchanged)
{
    std::vector<PenData> samples(3);
    DrawPenDataCallback(&samples, 0xFFFFFFFF, 0x00FF00FF);
    EXPECT_THAT(calls.Take(), ElementsAre("2: DrawPenData(0xFFFFFFFF, 0xFF00FF)"));
    EXPECT_EQ(BackEnd(RenderingType::GDI).lastSamples, &samples);
}

TEST_F(CallbacksTest, TextIsConvertedAndItsSizeIgnored)
{
    DrawTextCallback(-7, 12, 99, 0x44332211, "Ink");
    EXPECT_THAT(calls.Take(), ElementsAre("2: DrawText(\"Ink\", -7, 12, 0x44332211)"));
}

TEST_F(CallbacksTest, TextIsCutAfter100Bytes)
{
    const std::string letters(100, 'a');
    DrawTextCallback(1, 2, 3, 0, (letters + "bcd").c_str());
    EXPECT_THAT(calls.Take(), ElementsAre("2: DrawText(\"" + letters + "\", 1, 2, 0)"));
}

TEST_F(CallbacksTest, TextKeepsTheWholeRangeOfCoordinates)
{
    DrawTextCallback(INT_MIN, INT_MAX, 3, 0, "a");
    EXPECT_THAT(calls.Take(), ElementsAre("2: DrawText(\"a\", -2147483648, 0x7FFFFFFF, 0)"));
}

TEST_F(CallbacksTest, EveryLookupWritesTheTypesLineAtLevel3)
{
    const LogLevel level(DETAILED);
    const DebuggerStandIn log(Program());
    ClearCallback();
    Activate(RenderingType::Direct2D);
    DrawLineCallback(1, 1, 2, 0, 2, 2, 2, 0);
    EraseLineCallback(1, 1, 2, 0, 2, 2, 2, 0);
    Activate(RenderingType::DirectComposition);
    PresentCallback();
    EXPECT_THAT(log.Lines(), ElementsAre(LogLine{true, "Rendering type is DirectGDI.\n"},
                                         LogLine{true, "Rendering type is Direct2D.\n"},
                                         LogLine{true, "Rendering type is Direct2D.\n"},
                                         LogLine{true, "Rendering type is Direct Composition.\n"}));
}

TEST_F(CallbacksTest, LookupsAreSilentAtLevel2)
{
    const LogLevel level(NORMAL);
    const DebuggerStandIn log(Program());
    ClearCallback();
    EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_F(CallbacksTest, ATypeThatDoesNotExistWritesAnEmptyLineAndDrawsNothing)
{
    const LogLevel level(DETAILED);
    for (const int type : {3, -1, INT_MAX, INT_MIN}) {
        Activate(static_cast<RenderingType>(type));
        const DebuggerStandIn log(Program());
        ClearCallback();
        DrawLineCallback(1, 1, 2, 0, 2, 2, 2, 0);
        DrawTextCallback(1, 1, 1, 1, "a");
        EXPECT_THAT(log.Lines(), ElementsAre(LogLine{true, ""}, LogLine{true, ""}, LogLine{true, ""}));
        EXPECT_THAT(calls.Take(), IsEmpty());
    }
}

TEST_F(CallbacksTest, APlaceWithoutABackEndDrawsNothing)
{
    DestroyWindowAndCore();
    makers.backEnds[2] = NoBackEnd;
    CreateWindowed();
    CallAll();
    EXPECT_THAT(calls.Take(), IsEmpty());
}

TEST_F(CallbacksTest, AfterTheCoresEndNothingHappens)
{
    DestroyWindowAndCore();
    calls.Take();
    EXPECT_EQ(CallAll(), 0U);
    EXPECT_THAT(calls.Take(), IsEmpty());
}

TEST_F(CallbacksTest, WithoutACoreNothingHappens)
{
    ReachCore(nullptr);
    EXPECT_EQ(CallAll(), 0U);
    EXPECT_THAT(calls.Take(), IsEmpty());
    ReachCore(core.get());
}

TEST_F(CallbacksTest, WithoutACoreEveryMessageGives0)
{
    const HWND other =
        CreateWindowExW(0, L"STATIC", L"text", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    ReachCore(nullptr);
    EXPECT_EQ(WindowProcedure(other, WM_NCCREATE, 0, 0), 0);
    EXPECT_EQ(WindowProcedure(other, WM_GETTEXTLENGTH, 0, 0), 0);
    EXPECT_EQ(WindowProcedure(other, WM_NCHITTEST, 0, 0), 0);
    EXPECT_EQ(WindowProcedure(other, WM_PAINT, 0, 0), 0);
    ReachCore(core.get());
    EXPECT_EQ(WindowProcedure(other, WM_GETTEXTLENGTH, 0, 0), 4) << "the default answer, to compare with";
    DestroyWindow(other);
}

TEST_F(CallbacksTest, TheCoreWhoseWindowWasMadeLastIsReached)
{
    makers.backEnds[2] = NoBackEnd;
    const Owned<Core> second(new Core({.module = Program()}, makers));
    ReachCore(second.get());
    DrawLineCallback(1, 1, 2, 0, 2, 2, 2, 0);
    EXPECT_THAT(calls.Take(), IsEmpty());
    ReachCore(core.get());
    DrawLineCallback(1, 1, 2, 0, 2, 2, 2, 0);
    EXPECT_EQ(calls.Take().size(), 1U);
}

TEST_F(CallbacksTest, TheEndOfAnotherCoreLeavesTheReachedOneAlone)
{
    {
        const Owned<Core> second(new Core({.module = Program()}, makers));
    }
    calls.Take();
    ClearCallback();
    EXPECT_THAT(calls.Take(), ElementsAre("2: Clear()"));
}

} // namespace

} // namespace zq::LM::test
