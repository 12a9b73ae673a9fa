// What the information overlay draws for given facts: every call with its place, colour and text.
#include "ui/information_overlay.h"

#include "support/fakes/back_end.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

namespace zq::LM::test {

namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsSupersetOf;
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
        DrawInformationOverlay(backEnd, renderScale, facts);
        return calls.Take();
    }

    InformationFacts facts;
    CallLog calls;
    FakeBackEnd backEnd{0, calls};
};

std::string Line(const std::string& text, int y)
{
    return "0: DrawText(\"" + text + "\", 670, " + std::to_string(y) + ", 0xFFFF60)";
}
std::string PenBar(const std::string& end) { return "0: FillRect(640, 336, " + end + ", 360, 0x7FFF33FF)"; }
std::string DrawingBar(const std::string& end)
{
    return "0: FillRect(640, 400, " + end + ", 424, 0x7F00FF00)";
}

TEST_F(InformationOverlayTest, IsAPanelTwoBarsAndEightLines)
{
    EXPECT_THAT(
        Draw(),
        ElementsAre("0: FillRect(640, 300, 1000, 444, 0x447F7F7F)", PenBar("880"),
                    "0: DrawText(\"Pen Report Rate (Max 300 Hz)\", 640, 288, 0xFFFF33FF)", DrawingBar("790"),
                    "0: DrawText(\"Reflesh Rate ( Max 120 Hz)\", 640, 352, 0xFF00FF00)",
                    Line("DLL Menu : Ctrl + Alt + Shirt + S", 32), Line("Version = { 1, 2, 3, 4 }", 56),
                    Line("Frequency (Drawing) = 125", 80), Line("Frequency (Pen Data) = 200", 104),
                    Line("Rendering Type = GDI", 128), Line("Screen = {  10,   20, 1010,  720}", 152),
                    Line("Position = ( 321,   45)", 176), Line("Pressure =  1234", 200)));
}

TEST_F(InformationOverlayTest, BarsFillThePanelAt300InWholePixelsAndAreNotStoppedThere)
{
    for (const auto& [rate, end] : {std::pair(0U, "640"), std::pair(1U, "641"), std::pair(4U, "644"),
                                    std::pair(300U, "1000"), std::pair(4000U, "5440")}) {
        facts.penRate = facts.drawingRate = rate;
        EXPECT_THAT(Draw(), IsSupersetOf({PenBar(end), DrawingBar(end)}));
    }
}

TEST_F(InformationOverlayTest, TheProductsOfTheBarsWrapAt32Bits)
{
    facts.penRate = 11930464;     // times 360 is the last product that fits
    facts.drawingRate = 11930465; // and this the first that wraps, to 104
    EXPECT_THAT(Draw(), IsSupersetOf({std::string("0: FillRect(640, 336, 0xDA768C, 360, 0x7FFF33FF)"),
                                      DrawingBar("640")}));
}

TEST_F(InformationOverlayTest, NumbersKeepTheirPlacesAndTheirWholeRange)
{
    facts.drawingRate = 7;
    facts.penRate = 0xFFFFFFFF; // beyond the signed numbers
    facts.version = {0, 65535, 32768, 0};
    facts.shell = {-1920, -5, 12345, 0};
    facts.lastPenData.x = INT_MIN;
    facts.lastPenData.y = INT_MAX;
    facts.lastPenData.pressure = INT_MIN;
    EXPECT_THAT(Draw(),
                IsSupersetOf({Line("Frequency (Drawing) =   7", 80), Line("Frequency (Pen Data) =  -1", 104),
                              Line("Version = { 0, 65535, 32768, 0 }", 56),
                              Line("Screen = {-1920,   -5, 12345,    0}", 152),
                              Line("Position = (-2147483648, 2147483647)", 176),
                              Line("Pressure = -2147483648", 200)}));
}

TEST_F(InformationOverlayTest, EveryRenderingTypeHasItsName)
{
    for (const auto& [type, name] : {std::pair(0, "Direct Composition"), std::pair(1, "Direct2D"),
                                     std::pair(2, "GDI"), std::pair(3, "???"), std::pair(-1, "???")}) {
        facts.renderingType = static_cast<RenderingType>(type);
        EXPECT_THAT(Draw(), Contains(Line(std::string("Rendering Type = ") + name, 128)));
    }
}

TEST_F(InformationOverlayTest, ThePortIsTheLastLineWhereThereIsOne)
{
    EXPECT_THAT(Draw(), Not(Contains(HasSubstr("Port"))));
    facts.port = 44056;
    EXPECT_EQ(Draw().back(), Line("Port Number = 44056", 224));
}

TEST_F(InformationOverlayTest, TheRecordsFirstFieldChoosesTheColourOfTheLinesAlone)
{
    for (const auto& [index, colour] :
         {std::pair(0U, ", 0xFFFF60)"), std::pair(1U, ", 0x40FF40)"), std::pair(2U, ", 0x4040FF)"),
          std::pair(3U, ", 0x4040FF)"), std::pair(0xFFFFFFFFU, ", 0x4040FF)")}) {
        facts.textColour = index;
        const std::vector<std::string> lines = Draw();
        ASSERT_EQ(lines.size(), 13U);
        EXPECT_THAT(lines[2], HasSubstr(", 0xFFFF33FF)"));
        EXPECT_THAT(lines[4], HasSubstr(", 0xFF00FF00)"));
        EXPECT_THAT(std::vector(lines.begin() + 5, lines.end()), Each(HasSubstr(colour)));
    }
}

TEST_F(InformationOverlayTest, TheDebugSwitchPutsARedLineAboveTheOthers)
{
    facts.debugSwitch = true;
    facts.port = 1;
    EXPECT_THAT(Draw(), IsSupersetOf({std::string("0: DrawText(\"(DEBUG_)\", 670, 32, 255)"),
                                      Line("DLL Menu : Ctrl + Alt + Shirt + S", 56),
                                      Line("Version = { 1, 2, 3, 4 }", 80), Line("Port Number = 1", 248)}));
}

TEST_F(InformationOverlayTest, OnANarrowScreenItBeginsLeftOfIt)
{
    facts.screenWidth = 256;
    EXPECT_THAT(Draw(), IsSupersetOf({"0: FillRect(-104, 300, 256, 444, 0x447F7F7F)",
                                      "0: FillRect(-104, 336, 136, 360, 0x7FFF33FF)",
                                      "0: DrawText(\"Pressure =  1234\", -74, 200, 0xFFFF60)"}));
}

TEST_F(InformationOverlayTest, TheScaleMovesTextsAndNotBars)
{
    EXPECT_THAT(
        Draw(1.5),
        IsSupersetOf({std::string("0: FillRect(640, 300, 1000, 444, 0x447F7F7F)"), PenBar("880"),
                      std::string("0: DrawText(\"Pen Report Rate (Max 300 Hz)\", 960, 432, 0xFFFF33FF)"),
                      std::string("0: DrawText(\"Version = { 1, 2, 3, 4 }\", 1005, 84, 0xFFFF60)")}));
}

} // namespace

} // namespace zq::LM::test
