// When a frame carries the information overlay, and what the Core tells it.
#include "core/bindings.h"
#include "support/core_test.h"
#include "support/system_stand_ins.h"

#include <string>
#include <vector>

namespace zq::LM {

namespace {

using test::AdvanceClock;
using test::LogLevel;
using test::LogLine;
using test::RecordedLog;
using test::SetClock;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class CoreInformationTest : public test::CoreTest {
protected:
    static constexpr RECT Desktop = {200, 60, 840, 540};

    // The end of a frame alone: what lies in it is another matter.
    std::vector<std::string> Present()
    {
        PresentCallback();
        return Take();
    }

    // A frame with so many samples in it, the last of them so long after the others.
    std::vector<std::string> FrameWith(std::size_t samples, std::uint32_t span)
    {
        PenData sample{};
        sample.time = 1;
        sample.x = sample.y = 100;
        sample.pressure = 1;
        for (std::size_t i = 0; i < samples; ++i) {
            if (i + 1 == samples) {
                AdvanceClock(span);
            }
            TheCore().InputPenData(&sample, 1);
        }
        Take();
        UpdateWindow(TheCore().Window());
        return Take();
    }

    // The frequency that the second of two frames shows.
    std::string DrawingRateAfter(std::uint32_t milliseconds)
    {
        const LogLevel level(BASIC);
        Present();
        AdvanceClock(milliseconds);
        return Present().at(7);
    }

    test::ShellStandIn shell{GetModuleHandleW(nullptr), Desktop};
};

// With a window over the shell's desktop.
class ShellCoreTest : public CoreInformationTest {
protected:
    ShellCoreTest() { CreateWindowOfCore(); }
};

TEST_F(ShellCoreTest, AtLevel0AFrameCarriesNoInformation)
{
    EXPECT_THAT(Present(), ElementsAre("2: Present()"));
}

TEST_F(ShellCoreTest, AtAnyOtherLevelEveryFrameCarriesItJustBeforeItIsPresented)
{
    for (const std::uint32_t number : {1U, 2U, 3U, 7U, 254U, 255U, 0xFFFFFFFFU}) {
        const LogLevel level(number);
        for (int frame = 0; frame < 2; ++frame) {
            const std::vector<std::string> calls = Present();
            ASSERT_EQ(calls.size(), 14U) << number;
            EXPECT_EQ(calls.front(), "2: FillRect(280, 300, 640, 444, 0x447f7f7f)");
            EXPECT_EQ(calls[5], "2: DrawText(DLL Menu : Ctrl + Alt + Shirt + S, 310, 32, 0xffff60)");
            EXPECT_EQ(calls.back(), "2: Present()");
        }
    }
}

TEST_F(ShellCoreTest, AChangedLevelCountsFromTheNextFrame)
{
    {
        const LogLevel level(BASIC);
        EXPECT_EQ(Present().size(), 14U);
    }
    EXPECT_EQ(Present().size(), 1U);
    const LogLevel level(ALL);
    EXPECT_EQ(Present().size(), 14U);
}

TEST_F(ShellCoreTest, InformationLiesAboveTheInk)
{
    const LogLevel level(BASIC);
    const std::vector<std::string> calls = FrameWith(2, 0);
    ASSERT_EQ(calls.size(), 16U);
    EXPECT_EQ(calls[0], "2: Clear()");
    EXPECT_THAT(calls[1], HasSubstr("DrawLine"));
    EXPECT_THAT(calls[2], HasSubstr("FillRect"));
}

TEST_F(ShellCoreTest, EveryBackEndIsGivenBarsAndTexts)
{
    const LogLevel level(BASIC);
    const std::pair<RenderingType, std::string> types[] = {
        {RenderingType::DirectComposition, "0: DrawText(Rendering Type = Direct Composition, "},
        {RenderingType::Direct2D, "1: DrawText(Rendering Type = Direct2D, "},
        {RenderingType::GDI, "2: DrawText(Rendering Type = GDI, "}};
    for (const auto& [type, line] : types) {
        Activate(type);
        const std::vector<std::string> calls = Present();
        ASSERT_EQ(calls.size(), 14U);
        EXPECT_EQ(calls[9], line + "310, 128, 0xffff60)");
    }
    Activate(RenderingType::GDI);
}

TEST_F(ShellCoreTest, TwoFramesInOneMillisecondShowADrawingFrequencyOf0)
{
    EXPECT_EQ(DrawingRateAfter(0), "2: DrawText(Frequency (Drawing) =   0, 310, 80, 0xffff60)");
}

TEST_F(ShellCoreTest, OneMillisecondBetweenFramesShowsADrawingFrequencyOf1000)
{
    EXPECT_EQ(DrawingRateAfter(1), "2: DrawText(Frequency (Drawing) = 1000, 310, 80, 0xffff60)");
}

TEST_F(ShellCoreTest, EightMillisecondsBetweenFramesShowADrawingFrequencyOf125)
{
    EXPECT_EQ(DrawingRateAfter(8), "2: DrawText(Frequency (Drawing) = 125, 310, 80, 0xffff60)");
}

TEST_F(ShellCoreTest, ASecondBetweenFramesShowsADrawingFrequencyOf1)
{
    EXPECT_EQ(DrawingRateAfter(1000), "2: DrawText(Frequency (Drawing) =   1, 310, 80, 0xffff60)");
}

TEST_F(ShellCoreTest, MoreThanASecondBetweenFramesShowsADrawingFrequencyOf0)
{
    EXPECT_EQ(DrawingRateAfter(1001), "2: DrawText(Frequency (Drawing) =   0, 310, 80, 0xffff60)");
}

TEST_F(ShellCoreTest, TheFirstFrameCountsFromTheClocksStart)
{
    const LogLevel level(BASIC);
    SetClock(4);
    EXPECT_EQ(Present().at(7), "2: DrawText(Frequency (Drawing) = 250, 310, 80, 0xffff60)");
}

TEST_F(ShellCoreTest, TheDrawingFrequencyHoldsOverAWrapOfTheClock)
{
    SetClock(0xFFFFFFFC);
    EXPECT_EQ(DrawingRateAfter(8), "2: DrawText(Frequency (Drawing) = 125, 310, 80, 0xffff60)");
}

TEST_F(ShellCoreTest, TheDrawingFrequencyHasABarOfItsOwn)
{
    const LogLevel level(BASIC);
    Present();
    AdvanceClock(8);
    EXPECT_EQ(Present().at(3), "2: FillRect(280, 400, 430, 424, 0x7f00ff00)"); // 125 * 360 / 300
}

TEST_F(ShellCoreTest, FramesAtLevel0AreNotMeasured)
{
    {
        const LogLevel level(BASIC);
        Present();
    }
    AdvanceClock(500);
    Present();
    const LogLevel level(BASIC);
    AdvanceClock(500);
    EXPECT_EQ(Present().at(7), "2: DrawText(Frequency (Drawing) =   1, 310, 80, 0xffff60)");
}

TEST_F(ShellCoreTest, TheTimeOfTheFrameBeforeOutlivesTheInstance)
{
    const LogLevel level(BASIC);
    Present();
    AdvanceClock(20);
    test::RecordedCore second;
    SetWindowCore(&second.Get());
    second.Get().CreateOverlayWindow(); // draws a frame
    EXPECT_THAT(second.Take(), Contains("2: DrawText(Frequency (Drawing) =  50, 310, 80, 0xffff60)"));
    DestroyWindow(second.Get().Window());
    SetWindowCore(&TheCore());
}

TEST_F(ShellCoreTest, AFrameWithoutSamplesShowsAPenFrequencyOf0)
{
    const LogLevel level(BASIC);
    const std::vector<std::string> calls = Present();
    EXPECT_EQ(calls.at(1), "2: FillRect(280, 336, 280, 360, 0x7fff33ff)");
    EXPECT_EQ(calls.at(8), "2: DrawText(Frequency (Pen Data) =   0, 310, 104, 0xffff60)");
}

TEST_F(ShellCoreTest, ThreeSamplesIn10MillisecondsShowAPenFrequencyOf300)
{
    const LogLevel level(BASIC);
    const std::vector<std::string> calls = FrameWith(3, 10);
    EXPECT_THAT(calls, Contains("2: FillRect(280, 336, 640, 360, 0x7fff33ff)"));
    EXPECT_THAT(calls, Contains("2: DrawText(Frequency (Pen Data) = 300, 310, 104, 0xffff60)"));
}

TEST_F(ShellCoreTest, FourSamplesIn1MillisecondShowAPenFrequencyOf4000)
{
    const LogLevel level(BASIC);
    const std::vector<std::string> calls = FrameWith(4, 1);
    EXPECT_THAT(calls, Contains("2: FillRect(280, 336, 5080, 360, 0x7fff33ff)"));
    EXPECT_THAT(calls, Contains("2: DrawText(Frequency (Pen Data) = 4000, 310, 104, 0xffff60)"));
}

TEST_F(ShellCoreTest, TheVersionIsTheLibrarysOwn)
{
    const LogLevel level(BASIC);
    const FileVersion& version = TheCore().Version();
    EXPECT_EQ(Present().at(6), "2: DrawText(Version = { " + std::to_string(version.major) + ", " +
                                   std::to_string(version.minor) + ", " + std::to_string(version.build) +
                                   ", " + std::to_string(version.revision) + " }, 310, 56, 0xffff60)");
}

TEST_F(ShellCoreTest, TheLastSampleOfTheLastInputIsShown)
{
    const LogLevel level(BASIC);
    PenData samples[2]{};
    samples[1].x = -17;
    samples[1].y = 4321;
    samples[1].pressure = 32767;
    TheCore().InputPenData(samples, 2);
    const std::vector<std::string> calls = Present();
    EXPECT_EQ(calls.at(11), "2: DrawText(Position = ( -17, 4321), 310, 176, 0xffff60)");
    EXPECT_EQ(calls.at(12), "2: DrawText(Pressure = 32767, 310, 200, 0xffff60)");
}

TEST_F(ShellCoreTest, BeforeAnyInputPositionAndPressureAre0)
{
    const LogLevel level(BASIC);
    const std::vector<std::string> calls = Present();
    EXPECT_EQ(calls.at(11), "2: DrawText(Position = (   0,    0), 310, 176, 0xffff60)");
    EXPECT_EQ(calls.at(12), "2: DrawText(Pressure =     0, 310, 200, 0xffff60)");
}

TEST_F(ShellCoreTest, TheRecordsFirstFieldChoosesTheColour)
{
    const LogLevel level(BASIC);
    const std::pair<std::uint32_t, std::string> colours[] = {
        {0, "0xffff60"}, {1, "0x40ff40"}, {2, "0x4040ff"}, {3, "0x4040ff"}, {0xFFFFFFFF, "0x4040ff"}};
    for (const auto& [field, colour] : colours) {
        Params params = DefaultParams;
        params.reserved0 = field;
        TheCore().SetParams(params);
        EXPECT_EQ(Present().at(12), "2: DrawText(Pressure =     0, 310, 200, " + colour + ")");
    }
}

TEST_F(ShellCoreTest, TheShellsPlaceIsReadForEachFrame)
{
    const LogLevel level(BASIC);
    EXPECT_EQ(Present().at(10), "2: DrawText(Screen = { 200,   60,  840,  540}, 310, 152, 0xffff60)");
    shell.Move({-10, 20, 1014, 788});
    const std::vector<std::string> calls = Present();
    EXPECT_EQ(calls.at(10), "2: DrawText(Screen = { -10,   20, 1014,  788}, 310, 152, 0xffff60)")
        << "the place is the overlay's until it follows";
}

TEST_F(ShellCoreTest, ThereIsNoLineForAPort)
{
    const LogLevel level(ALL);
    EXPECT_THAT(Present(), Not(Contains(HasSubstr("Port Number"))));
}

TEST_F(ShellCoreTest, AFrameLooksUpItsBackEndOnceAtItsEnd)
{
    const LogLevel level(DETAILED);
    const RecordedLog log;
    PresentCallback();
    EXPECT_THAT(log.Lines(), ElementsAre(LogLine{true, "Rendering type is DirectGDI.\n"}));
}

TEST_F(ShellCoreTest, TheLockOfThePenFrequencyIsLoggedAtAllOnly)
{
    for (const std::uint32_t number : {254U, 255U}) {
        const LogLevel level(number);
        const RecordedLog log;
        PresentCallback();
        EXPECT_EQ(log.Texts().size(), number == ALL ? 3U : 1U);
    }
    const LogLevel level(ALL);
    const RecordedLog log;
    PresentCallback();
    EXPECT_THAT(log.Texts(), ElementsAre("Rendering type is DirectGDI.\n", "\tPenReoprtRate is locked.\n",
                                         "\tPenReoprtRate is unlocked.\n"));
}

TEST_F(ShellCoreTest, WithoutAWindowThereIsNoInformation)
{
    const LogLevel level(BASIC);
    DestroyWindow(TheCore().Window());
    EXPECT_THAT(Present(), ElementsAre());
}

TEST_F(ShellCoreTest, WithoutABackEndThereIsNoInformation)
{
    const LogLevel level(BASIC);
    TheCore().AllBackEnds()[2].reset();
    Take();
    EXPECT_THAT(Present(), ElementsAre());
}

TEST_F(ShellCoreTest, AfterTheCoresEndThereIsNoInformation)
{
    const LogLevel level(BASIC);
    EndCore();
    EXPECT_THAT(Present(), ElementsAre());
}

TEST_F(CoreInformationTest, WithoutAShellTheCoresOwnRectangleServes)
{
    shell.Remove();
    test::RecordedCore second; // a Core takes its rectangle while it is made
    SetWindowCore(&second.Get());
    second.Get().CreateOverlayWindow();
    second.Take();
    const LogLevel level(BASIC);
    PresentCallback();
    const std::vector<std::string> calls = second.Take();
    EXPECT_EQ(calls.at(0), "2: FillRect(-104, 300, 256, 444, 0x447f7f7f)");
    EXPECT_EQ(calls.at(10), "2: DrawText(Screen = {   0,    0,  256,  256}, -74, 152, 0xffff60)");
    DestroyWindow(second.Get().Window());
    SetWindowCore(&TheCore());
}

} // namespace

} // namespace zq::LM
