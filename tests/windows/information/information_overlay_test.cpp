// What the information overlay draws for given facts: every call with its place, colour and text.
#include "ui/information_overlay.h"

#include "support/recording_back_ends.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <utility>
#include <vector>

namespace zq::LM {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class InformationOverlayTest : public testing::Test {
protected:
    InformationOverlayTest()
    {
        facts.screenWidth = 1000;
        facts.drawingRate = 125;
        facts.penRate = 200;
        facts.version = {1, 2, 3, 4};
        facts.renderingType = RenderingType::GDI;
        facts.shell = {10, 20, 1010, 720};
        facts.lastPenData.x = 321;
        facts.lastPenData.y = 45;
        facts.lastPenData.pressure = 1234;
    }

    std::vector<std::string> Draw(double renderScale = 1.0)
    {
        InformationOverlay(backEnd, renderScale, facts).Draw();
        return std::exchange(calls, {});
    }

    InformationFacts facts;

private:
    std::vector<std::string> calls;
    test::RecordingBackEnd backEnd{0, calls};
};

TEST_F(InformationOverlayTest, IsAPanelTwoBarsAndEightLines)
{
    EXPECT_THAT(Draw(), ElementsAre("0: FillRect(640, 300, 1000, 444, 0x447f7f7f)",
                                    "0: FillRect(640, 336, 880, 360, 0x7fff33ff)",
                                    "0: DrawText(Pen Report Rate (Max 300 Hz), 640, 288, 0xffff33ff)",
                                    "0: FillRect(640, 400, 790, 424, 0x7f00ff00)",
                                    "0: DrawText(Reflesh Rate ( Max 120 Hz), 640, 352, 0xff00ff00)",
                                    "0: DrawText(DLL Menu : Ctrl + Alt + Shirt + S, 670, 32, 0xffff60)",
                                    "0: DrawText(Version = { 1, 2, 3, 4 }, 670, 56, 0xffff60)",
                                    "0: DrawText(Frequency (Drawing) = 125, 670, 80, 0xffff60)",
                                    "0: DrawText(Frequency (Pen Data) = 200, 670, 104, 0xffff60)",
                                    "0: DrawText(Rendering Type = GDI, 670, 128, 0xffff60)",
                                    "0: DrawText(Screen = {  10,   20, 1010,  720}, 670, 152, 0xffff60)",
                                    "0: DrawText(Position = ( 321,   45), 670, 176, 0xffff60)",
                                    "0: DrawText(Pressure =  1234, 670, 200, 0xffff60)"));
}

TEST_F(InformationOverlayTest, BarsAreEmptyAt0)
{
    facts.penRate = facts.drawingRate = 0;
    EXPECT_THAT(Draw(), testing::IsSupersetOf({"0: FillRect(640, 336, 640, 360, 0x7fff33ff)",
                                               "0: FillRect(640, 400, 640, 424, 0x7f00ff00)"}));
}

TEST_F(InformationOverlayTest, BothBarsFillThePanelAt300)
{
    facts.penRate = facts.drawingRate = 300;
    EXPECT_THAT(Draw(), testing::IsSupersetOf({"0: FillRect(640, 336, 1000, 360, 0x7fff33ff)",
                                               "0: FillRect(640, 400, 1000, 424, 0x7f00ff00)"}));
}

TEST_F(InformationOverlayTest, BarsRunBeyondThePanelAt4000)
{
    facts.penRate = facts.drawingRate = 4000;
    EXPECT_THAT(Draw(), testing::IsSupersetOf({"0: FillRect(640, 336, 5440, 360, 0x7fff33ff)",
                                               "0: FillRect(640, 400, 5440, 424, 0x7f00ff00)"}));
}

TEST_F(InformationOverlayTest, BarsGrowInWholePixels)
{
    facts.penRate = 1;     // 1.2 pixels
    facts.drawingRate = 4; // 4.8 pixels
    EXPECT_THAT(Draw(), testing::IsSupersetOf({"0: FillRect(640, 336, 641, 360, 0x7fff33ff)",
                                               "0: FillRect(640, 400, 644, 424, 0x7f00ff00)"}));
}

TEST_F(InformationOverlayTest, TheProductsOfTheBarsWrapAt32Bits)
{
    facts.penRate = 11930464;     // times 360 is the last product that fits
    facts.drawingRate = 11930465; // and this the first that wraps, to 104
    EXPECT_THAT(Draw(), testing::IsSupersetOf({"0: FillRect(640, 336, 14317196, 360, 0x7fff33ff)",
                                               "0: FillRect(640, 400, 640, 424, 0x7f00ff00)"}));
}

TEST_F(InformationOverlayTest, RatesAreShownInThreePlacesAndMoreWhereNeeded)
{
    facts.drawingRate = 7;
    facts.penRate = 4000;
    EXPECT_THAT(Draw(), testing::IsSupersetOf({"0: DrawText(Frequency (Drawing) =   7, 670, 80, 0xffff60)",
                                               "0: DrawText(Frequency (Pen Data) = 4000, 670, 104, "
                                               "0xffff60)"}));
}

TEST_F(InformationOverlayTest, ARateBeyondTheSignedNumbersReadsAsNegative)
{
    facts.penRate = 0xFFFFFFFF;
    EXPECT_THAT(Draw(), Contains("0: DrawText(Frequency (Pen Data) =  -1, 670, 104, 0xffff60)"));
}

TEST_F(InformationOverlayTest, NumbersOfTheVersionAreUnsigned)
{
    facts.version = {0, 65535, 32768, 0};
    EXPECT_THAT(Draw(), Contains("0: DrawText(Version = { 0, 65535, 32768, 0 }, 670, 56, 0xffff60)"));
}

TEST_F(InformationOverlayTest, EveryRenderingTypeHasItsName)
{
    const std::pair<RenderingType, const char*> names[] = {
        {RenderingType::DirectComposition, "Direct Composition"},
        {RenderingType::Direct2D, "Direct2D"},
        {RenderingType::GDI, "GDI"},
        {static_cast<RenderingType>(3), "???"},
        {static_cast<RenderingType>(-1), "???"}};
    for (const auto& [type, name] : names) {
        facts.renderingType = type;
        EXPECT_THAT(Draw(),
                    Contains("0: DrawText(Rendering Type = " + std::string(name) + ", 670, 128, 0xffff60)"));
    }
}

TEST_F(InformationOverlayTest, NumbersOfTheScreenMayBeNegativeAndLong)
{
    facts.shell = {-1920, -5, 12345, 0};
    EXPECT_THAT(Draw(), Contains("0: DrawText(Screen = {-1920,   -5, 12345,    0}, 670, 152, 0xffff60)"));
}

TEST_F(InformationOverlayTest, PositionAndPressureKeepTheWholeRange)
{
    facts.lastPenData.x = INT_MIN;
    facts.lastPenData.y = INT_MAX;
    facts.lastPenData.pressure = INT_MIN;
    EXPECT_THAT(Draw(), testing::IsSupersetOf(
                            {"0: DrawText(Position = (-2147483648, 2147483647), 670, 176, 0xffff60)",
                             "0: DrawText(Pressure = -2147483648, 670, 200, 0xffff60)"}));
}

TEST_F(InformationOverlayTest, ThePortIsTheLastLine)
{
    facts.port = 44056;
    EXPECT_EQ(Draw().back(), "0: DrawText(Port Number = 44056, 670, 224, 0xffff60)");
}

TEST_F(InformationOverlayTest, WithoutAServerThereIsNoLineForItsPort)
{
    EXPECT_THAT(Draw(), Not(Contains(HasSubstr("Port"))));
}

TEST_F(InformationOverlayTest, TheRecordsFirstFieldChoosesTheColourOfTheLinesAlone)
{
    const std::pair<std::uint32_t, std::string> colours[] = {
        {0, "0xffff60"}, {1, "0x40ff40"}, {2, "0x4040ff"}};
    for (const auto& [index, colour] : colours) {
        facts.textColour = index;
        const std::vector<std::string> calls = Draw();
        ASSERT_EQ(calls.size(), 13U);
        EXPECT_THAT(calls[2], HasSubstr(", 0xffff33ff)"));
        EXPECT_THAT(calls[4], HasSubstr(", 0xff00ff00)"));
        for (std::size_t i = 5; i < calls.size(); ++i) {
            EXPECT_THAT(calls[i], HasSubstr(", " + colour + ")"));
        }
    }
}

TEST_F(InformationOverlayTest, AnIndexBeyondTheColoursGivesTheLast)
{
    for (const std::uint32_t index : {3U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
        facts.textColour = index;
        EXPECT_THAT(Draw(), Contains("0: DrawText(Pressure =  1234, 670, 200, 0x4040ff)"));
    }
}

TEST_F(InformationOverlayTest, TheDebugSwitchPutsARedLineAboveTheOthers)
{
    facts.debugSwitch = true;
    facts.port = 1;
    const std::vector<std::string> calls = Draw();
    ASSERT_EQ(calls.size(), 15U);
    EXPECT_EQ(calls[4], "0: DrawText(Reflesh Rate ( Max 120 Hz), 640, 352, 0xff00ff00)");
    EXPECT_EQ(calls[5], "0: DrawText((DEBUG_), 670, 32, 0xff)");
    EXPECT_EQ(calls[6], "0: DrawText(DLL Menu : Ctrl + Alt + Shirt + S, 670, 56, 0xffff60)");
    EXPECT_EQ(calls[7], "0: DrawText(Version = { 1, 2, 3, 4 }, 670, 80, 0xffff60)");
    EXPECT_EQ(calls[14], "0: DrawText(Port Number = 1, 670, 248, 0xffff60)");
}

TEST_F(InformationOverlayTest, OnANarrowScreenItBeginsLeftOfIt)
{
    facts.screenWidth = 256;
    EXPECT_THAT(Draw(), testing::IsSupersetOf({"0: FillRect(-104, 300, 256, 444, 0x447f7f7f)",
                                               "0: FillRect(-104, 336, 136, 360, 0x7fff33ff)",
                                               "0: DrawText(Pressure =  1234, -74, 200, 0xffff60)"}));
}

TEST_F(InformationOverlayTest, TheScaleMovesTextsAndNotBars)
{
    EXPECT_THAT(Draw(1.5),
                testing::IsSupersetOf({"0: FillRect(640, 300, 1000, 444, 0x447f7f7f)",
                                       "0: FillRect(640, 336, 880, 360, 0x7fff33ff)",
                                       "0: DrawText(Pen Report Rate (Max 300 Hz), 960, 432, 0xffff33ff)",
                                       "0: DrawText(Version = { 1, 2, 3, 4 }, 1005, 84, 0xffff60)"}));
}

} // namespace

} // namespace zq::LM
