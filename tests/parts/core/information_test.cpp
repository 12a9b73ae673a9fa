// When a frame carries the information overlay, and what the Core tells it.
#include "core/bindings.h"
#include "parts/core/core_test.h"
#include "support/log_level.h"

namespace zq::LM::test {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;

constexpr std::size_t WholeFrame = 14; // calls at the end of a frame that carries it

// With a window over the shell's desktop.
class CoreInformationTest : public CoreTest {
protected:
    CoreInformationTest() { CreateWindowed(); }

    // The end of a frame alone: what lies in it is another matter.
    Lines Present()
    {
        PresentCallback();
        return calls.Take();
    }

    // A frame with so many samples in it, the last of them so long after the others.
    Lines FrameWith(int samples, DWORD span)
    {
        const PenData sample = Touch(100);
        for (int i = 0; i < samples; ++i) {
            if (i + 1 == samples) {
                clock.Advance(span);
            }
            core->InputPenData(&sample, 1);
        }
        calls.Take();
        UpdateWindow(core->Window());
        return calls.Take();
    }
};

std::string Line(const std::string& text, int y)
{
    return "2: DrawText(\"" + text + "\", 310, " + std::to_string(y) + ", 0xFFFF60)";
}
std::string DrawingRate(const std::string& shown) { return Line("Frequency (Drawing) = " + shown, 80); }

TEST_F(CoreInformationTest, AtLevel0AFrameCarriesNoInformation)
{
    EXPECT_THAT(Present(), ElementsAre("2: Present()"));
}

TEST_F(CoreInformationTest, AtAnyOtherLevelEveryFrameCarriesItJustBeforeItIsPresented)
{
    for (const std::uint32_t number : {1U, 2U, 3U, 7U, 254U, 255U, 0xFFFFFFFFU}) {
        const LogLevel level(number);
        for (int frame = 0; frame < 2; ++frame) {
            const Lines lines = Present();
            ASSERT_EQ(lines.size(), WholeFrame) << number;
            EXPECT_EQ(lines.front(), "2: FillRect(280, 300, 640, 444, 0x447F7F7F)");
            EXPECT_EQ(lines[5], Line("DLL Menu : Ctrl + Alt + Shirt + S", 32));
            EXPECT_EQ(lines.back(), "2: Present()");
        }
    }
    EXPECT_EQ(Present().size(), 1U) << "the level of this frame counts";
}

TEST_F(CoreInformationTest, LiesAboveTheInk)
{
    const LogLevel level(BASIC);
    const Lines lines = FrameWith(2, 0);
    ASSERT_EQ(lines.size(), WholeFrame + 2);
    EXPECT_EQ(lines[0], "2: Clear()");
    EXPECT_THAT(lines[1], HasSubstr("DrawLine"));
    EXPECT_THAT(lines[2], HasSubstr("FillRect"));
}

TEST_F(CoreInformationTest, EveryBackEndIsGivenBarsAndTexts)
{
    const LogLevel level(BASIC);
    for (const auto& [type, name] :
         {std::pair(RenderingType::DirectComposition, "0: DrawText(\"Rendering Type = Direct Composition\""),
          std::pair(RenderingType::Direct2D, "1: DrawText(\"Rendering Type = Direct2D\""),
          std::pair(RenderingType::GDI, "2: DrawText(\"Rendering Type = GDI\"")}) {
        Activate(type);
        const Lines lines = Present();
        ASSERT_EQ(lines.size(), WholeFrame);
        EXPECT_THAT(lines[9], HasSubstr(name));
    }
}

// The drawing frequency by the time between two frames.
struct Interval {
    DWORD milliseconds;
    const char* shown;
};

class DrawingRateTest : public CoreInformationTest, public testing::WithParamInterface<Interval> {};

TEST_P(DrawingRateTest, IsThatOfTheTimeSinceTheFrameBefore)
{
    const LogLevel level(BASIC);
    Present();
    clock.Advance(GetParam().milliseconds);
    EXPECT_EQ(Present().at(7), DrawingRate(GetParam().shown));
}

INSTANTIATE_TEST_SUITE_P(Intervals, DrawingRateTest,
                         testing::Values(Interval{0, "  0"}, Interval{1, "1000"}, Interval{8, "125"},
                                         Interval{1000, "  1"}, Interval{1001, "  0"}));

TEST_F(CoreInformationTest, TheFirstFrameCountsFromTheClocksStart)
{
    const LogLevel level(BASIC);
    clock.Set(4);
    EXPECT_EQ(Present().at(7), DrawingRate("250"));
}

TEST_F(CoreInformationTest, TheDrawingRateHoldsOverAWrapOfTheClockAndHasABar)
{
    const LogLevel level(BASIC);
    clock.Set(0xFFFFFFFC);
    Present();
    clock.Set(4);
    EXPECT_THAT(Present(), IsSupersetOf({DrawingRate("125"),
                                         std::string("2: FillRect(280, 400, 430, 424, 0x7F00FF00)")}));
}

TEST_F(CoreInformationTest, FramesAtLevel0AreNotMeasured)
{
    {
        const LogLevel level(BASIC);
        Present();
    }
    clock.Advance(500);
    Present();
    const LogLevel level(BASIC);
    clock.Advance(500);
    EXPECT_EQ(Present().at(7), DrawingRate("  1"));
}

TEST_F(CoreInformationTest, TheTimeOfTheFrameBeforeOutlivesTheInstance)
{
    const LogLevel level(BASIC);
    Present();
    DestroyWindowAndCore();
    clock.Advance(20);
    MakeCore();
    core->CreateOverlayWindow(); // draws a frame
    EXPECT_THAT(calls.Take(), Contains(DrawingRate(" 50")));
}

TEST_F(CoreInformationTest, ThePenRateIsThatOfTheLiveSamples)
{
    const LogLevel level(BASIC);
    EXPECT_THAT(Present(), IsSupersetOf({std::string("2: FillRect(280, 336, 280, 360, 0x7FFF33FF)"),
                                         Line("Frequency (Pen Data) =   0", 104)}));
    EXPECT_THAT(FrameWith(3, 10), IsSupersetOf({std::string("2: FillRect(280, 336, 640, 360, 0x7FFF33FF)"),
                                                Line("Frequency (Pen Data) = 300", 104)}));
}

TEST_F(CoreInformationTest, TheVersionIsTheModulesOwn)
{
    const LogLevel level(BASIC);
    calls.Answer<"GetFileVersionInfoSizeW">(GetFileVersionInfoSizeW,
                                            [](LPCWSTR, DWORD*) -> DWORD { return 1; });
    calls.Answer<"GetFileVersionInfoW">(GetFileVersionInfoW,
                                        [](LPCWSTR, DWORD, DWORD, void*) { return TRUE; });
    calls.Answer<"VerQueryValueW">(VerQueryValueW, [](LPCVOID, LPCWSTR, void** block, UINT*) {
        static VS_FIXEDFILEINFO info{};
        info.dwFileVersionMS = 0x00010002;
        info.dwFileVersionLS = 0x00030004;
        *block = &info;
        return TRUE;
    });
    DestroyWindowAndCore();
    CreateWindowed();
    EXPECT_EQ(Present().at(6), Line("Version = { 1, 2, 3, 4 }", 56));
}

TEST_F(CoreInformationTest, TheLastSampleOfTheLastInputIsShown)
{
    const LogLevel level(BASIC);
    EXPECT_THAT(Present(),
                IsSupersetOf({Line("Position = (   0,    0)", 176), Line("Pressure =     0", 200)}));
    PenData samples[2]{};
    samples[1].x = -17;
    samples[1].y = 4321;
    samples[1].pressure = 32767;
    core->InputPenData(samples, 2);
    EXPECT_THAT(Present(),
                IsSupersetOf({Line("Position = ( -17, 4321)", 176), Line("Pressure = 32767", 200)}));
}

TEST_F(CoreInformationTest, TheRecordsFirstFieldChoosesTheColour)
{
    const LogLevel level(BASIC);
    Params params = DefaultParams;
    params.reserved0 = 1;
    SetParams(params);
    EXPECT_THAT(Present(), Contains("2: DrawText(\"Pressure =     0\", 310, 200, 0x40FF40)"));
}

TEST_F(CoreInformationTest, TheShellsPlaceIsReadForEachFrame)
{
    const LogLevel level(BASIC);
    EXPECT_THAT(Present(), Contains(Line("Screen = { 200,   60,  840,  540}", 152)));
    shell.Move({-10, 20, 1014, 788});
    EXPECT_THAT(Present(), Contains(Line("Screen = { -10,   20, 1014,  788}", 152)))
        << "the place is the overlay's until it follows";
}

TEST_F(CoreInformationTest, WithoutAShellTheCoresOwnRectangleServes)
{
    shell.Remove();
    DestroyWindowAndCore();
    CreateWindowed(); // a Core takes its rectangle while it is made
    const LogLevel level(BASIC);
    EXPECT_THAT(Present(),
                IsSupersetOf({"2: FillRect(-104, 300, 256, 444, 0x447F7F7F)",
                              "2: DrawText(\"Screen = {   0,    0,  256,  256}\", -74, 152, 0xFFFF60)"}));
}

TEST_F(CoreInformationTest, ThereIsNoLineForAPort)
{
    const LogLevel level(ALL);
    EXPECT_THAT(Present(), Not(Contains(HasSubstr("Port Number"))));
}

TEST_F(CoreInformationTest, LooksUpItsBackEndOnceAndThePenRateIsLockedInSightOfAllOnly)
{
    for (const std::uint32_t number : {254U, 255U}) {
        const LogLevel level(number);
        const DebuggerStandIn log(Program());
        PresentCallback();
        EXPECT_EQ(log.Texts(), number == ALL
                                   ? (Lines{"Rendering type is DirectGDI.\n", "\tPenReoprtRate is locked.\n",
                                            "\tPenReoprtRate is unlocked.\n"})
                                   : Lines{"Rendering type is DirectGDI.\n"});
    }
}

TEST_F(CoreInformationTest, WithoutAWindowThereIsNone)
{
    const LogLevel level(BASIC);
    DestroyWindow(core->Window());
    EXPECT_THAT(Present(), IsEmpty());
}

TEST_F(CoreInformationTest, AfterTheCoresEndThereIsNone)
{
    const LogLevel level(BASIC);
    DestroyWindowAndCore();
    calls.Take();
    EXPECT_THAT(Present(), IsEmpty());
}

} // namespace

} // namespace zq::LM::test
