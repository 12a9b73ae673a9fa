// The ink engine's callbacks: what each hands to which back-end, and when nothing happens.
#include "support/core_test.h"

#include <climits>

namespace zq::LM {

namespace {

using test::LogLevel;
using test::LogLine;
using test::RecordedLog;
using testing::ElementsAre;
using testing::IsEmpty;

class CallbacksTest : public test::CoreTest {
protected:
    CallbacksTest() { CreateWindowOfCore(); }

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
    EXPECT_THAT(Take(), ElementsAre("2: Clear()", "2: Present()"));
}

TEST_F(CallbacksTest, TheActiveTypeDecidesEachTime)
{
    Activate(RenderingType::DirectComposition);
    ClearCallback();
    Activate(RenderingType::Direct2D);
    ClearCallback();
    Activate(RenderingType::GDI);
    ClearCallback();
    EXPECT_THAT(Take(), ElementsAre("0: Clear()", "1: Clear()", "2: Clear()"));
}

TEST_F(CallbacksTest, ClearAndPresentNeedAWindow)
{
    DestroyWindow(TheCore().Window());
    ClearCallback();
    PresentCallback();
    EXPECT_THAT(Take(), IsEmpty());
}

TEST_F(CallbacksTest, LinesNeedNoWindow)
{
    DestroyWindow(TheCore().Window());
    DrawLineCallback(1, 2, 4, 0, 3, 4, 4, 0);
    EXPECT_THAT(Take(), ElementsAre("2: DrawLine(1, 2, 0x4, 0xff000000, 3, 4, 0x4, 0xff000000)"));
}

TEST_F(CallbacksTest, ALineHasOneOpaqueColourAndOneWidth)
{
    DrawLineCallback(-1, 2, 10, 0x00102030, 300, -4, 10, 0x00102030);
    EXPECT_THAT(Take(), ElementsAre("2: DrawLine(-1, 2, 0xa, 0xff102030, 300, -4, 0xa, 0xff102030)"));
}

TEST_F(CallbacksTest, Widths3And4Give3)
{
    DrawLineCallback(1, 1, 3, 0, 2, 2, 4, 0);
    EXPECT_THAT(Take(), ElementsAre("2: DrawLine(1, 1, 0x3, 0xff000000, 2, 2, 0x3, 0xff000000)"));
}

TEST_F(CallbacksTest, WidthsWrapAt32Bits)
{
    DrawLineCallback(1, 1, 0xFFFFFFFF, 0, 2, 2, 1, 0);
    EraseLineCallback(1, 1, 0xFFFFFFFF, 0, 2, 2, 1, 0);
    EXPECT_THAT(Take(), ElementsAre("2: DrawLine(1, 1, 0, 0xff000000, 2, 2, 0, 0xff000000)",
                                    "2: DrawLine(1, 1, 0, 0xff00ff, 2, 2, 0, 0xff00ff)"));
}

TEST_F(CallbacksTest, ColoursAreMixedWithoutACarryLimit)
{
    DrawLineCallback(1, 1, 2, 0x000000FF, 2, 2, 2, 0x0000FF00);
    EXPECT_THAT(Take(), ElementsAre("2: DrawLine(1, 1, 0x2, 0xff007fff, 2, 2, 0x2, 0xff007fff)"));
}

TEST_F(CallbacksTest, InkInTheKeyIsDrawnInItsSubstitute)
{
    DrawLineCallback(1, 1, 2, 0x00FF00FF, 2, 2, 2, 0x00FF00FF);
    EXPECT_THAT(Take(), ElementsAre("2: DrawLine(1, 1, 0x2, 0xfffe00ff, 2, 2, 0x2, 0xfffe00ff)"));
}

TEST_F(CallbacksTest, ColoursThatMixToTheKeyAreSubstitutedToo)
{
    DrawLineCallback(1, 1, 2, 0x01FE01FE, 2, 2, 2, 0x00000000); // neither end has the key's colour
    EXPECT_THAT(Take(), ElementsAre("2: DrawLine(1, 1, 0x2, 0xfffe00ff, 2, 2, 0x2, 0xfffe00ff)"));
}

TEST_F(CallbacksTest, TheKeyIsComparedOverAll32Bits)
{
    DrawLineCallback(1, 1, 2, 0x01FF00FF, 2, 2, 2, 0x01FF00FF);
    EXPECT_THAT(Take(), ElementsAre("2: DrawLine(1, 1, 0x2, 0xffff00ff, 2, 2, 0x2, 0xffff00ff)"));
}

TEST_F(CallbacksTest, ErasingDrawsInTheKeyWithAlpha0)
{
    EraseLineCallback(1, 2, 5, 0x00202020, 3, 4, 8, 0xFFFFFFFF);
    EXPECT_THAT(Take(), ElementsAre("2: DrawLine(1, 2, 0x6, 0xff00ff, 3, 4, 0x6, 0xff00ff)"));
}

TEST_F(CallbacksTest, PenDataPassesUnchanged)
{
    std::vector<PenData> samples(3);
    DrawPenDataCallback(&samples, 0xFFFFFFFF, 0x00FF00FF);
    EXPECT_THAT(Take(), ElementsAre("2: DrawPenData(0xffffffff, 0xff00ff)"));
    EXPECT_EQ(recorded.backEnds[2]->lastSamples, &samples);
}

TEST_F(CallbacksTest, TextIsConvertedAndItsSizeIgnored)
{
    DrawTextCallback(-7, 12, 99, 0x44332211, "Ink");
    EXPECT_THAT(Take(), ElementsAre("2: DrawText(Ink, -7, 12, 0x44332211)"));
}

TEST_F(CallbacksTest, TextIsCutAfter100Bytes)
{
    const std::string letters(100, 'a');
    DrawTextCallback(1, 2, 3, 0, (letters + "bcd").c_str());
    EXPECT_THAT(Take(), ElementsAre("2: DrawText(" + letters + ", 1, 2, 0)"));
}

TEST_F(CallbacksTest, TextKeepsTheWholeRangeOfCoordinates)
{
    DrawTextCallback(INT_MIN, INT_MAX, 3, 0, "a");
    EXPECT_THAT(Take(), ElementsAre("2: DrawText(a, -2147483648, 2147483647, 0)"));
}

TEST_F(CallbacksTest, EveryLookupWritesTheTypesLineAtLevel3)
{
    const LogLevel level(DETAILED);
    const RecordedLog log;
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
    const RecordedLog log;
    ClearCallback();
    EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_F(CallbacksTest, ATypeThatDoesNotExistWritesAnEmptyLineAndDrawsNothing)
{
    const LogLevel level(DETAILED);
    for (const int type : {3, -1, INT_MAX, INT_MIN}) {
        Activate(static_cast<RenderingType>(type));
        const RecordedLog log;
        ClearCallback();
        DrawLineCallback(1, 1, 2, 0, 2, 2, 2, 0);
        DrawTextCallback(1, 1, 1, 1, "a");
        EXPECT_THAT(log.Lines(), ElementsAre(LogLine{true, ""}, LogLine{true, ""}, LogLine{true, ""}));
        EXPECT_THAT(Take(), IsEmpty());
    }
}

TEST_F(CallbacksTest, APlaceWithoutABackEndDrawsNothing)
{
    TheCore().AllBackEnds()[2].reset();
    Take();
    CallAll();
    EXPECT_THAT(Take(), IsEmpty());
}

TEST_F(CallbacksTest, WithoutAnyBackEndNothingHappens)
{
    TheCore().AllBackEnds().clear();
    Take();
    CallAll();
    EXPECT_THAT(Take(), IsEmpty());
}

TEST_F(CallbacksTest, AfterTheCoresEndNothingHappens)
{
    EndCore();
    EXPECT_EQ(CallAll(), 0U);
    EXPECT_THAT(Take(), IsEmpty());
}

TEST_F(CallbacksTest, WithoutACoreNothingHappens)
{
    SetWindowCore(nullptr);
    EXPECT_EQ(CallAll(), 0U);
    EXPECT_THAT(Take(), IsEmpty());
    SetWindowCore(&TheCore());
}

TEST_F(CallbacksTest, WithoutACoreEveryMessageGives0)
{
    const HWND other =
        CreateWindowExW(0, L"STATIC", L"text", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    SetWindowCore(nullptr);
    EXPECT_EQ(WindowProcedure(other, WM_NCCREATE, 0, 0), 0);
    EXPECT_EQ(WindowProcedure(other, WM_GETTEXTLENGTH, 0, 0), 0);
    EXPECT_EQ(WindowProcedure(other, WM_NCHITTEST, 0, 0), 0);
    EXPECT_EQ(WindowProcedure(other, WM_PAINT, 0, 0), 0);
    SetWindowCore(&TheCore());
    EXPECT_EQ(WindowProcedure(other, WM_GETTEXTLENGTH, 0, 0), 4) << "the default answer, to compare with";
    DestroyWindow(other);
}

TEST_F(CallbacksTest, TheCoreWhoseWindowWasMadeLastIsReached)
{
    test::RecordedCore second;
    SetWindowCore(&second.Get());
    DrawLineCallback(1, 1, 2, 0, 2, 2, 2, 0);
    EXPECT_THAT(Take(), IsEmpty());
    EXPECT_EQ(second.Take().size(), 1U);
    SetWindowCore(&TheCore());
}

TEST_F(CallbacksTest, TheEndOfAnotherCoreLeavesTheReachedOneAlone)
{
    {
        test::RecordedCore second;
    }
    ClearCallback();
    EXPECT_THAT(Take(), ElementsAre("2: Clear()"));
}

} // namespace

} // namespace zq::LM
