// The information overlay on the DirectComposition back-end: texts and bars, through the unmodified library.
#include "windows/composition/composition_test.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace zq::LM::test {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class CompositionInformationTest : public CompositionTest {
protected:
    CompositionInformationTest() { CreateQuietly(); }
    ~CompositionInformationTest() override { library.SetDebugLevel(0); }

    // What the next frame draws besides ink, so long after the one before.
    Lines InformationAfter(DWORD milliseconds)
    {
        Frame();
        clock.Advance(milliseconds);
        return InformationOf(Frame());
    }

    static Lines InformationOf(const Lines& calls)
    {
        Lines drawn;
        std::copy_if(calls.begin(), calls.end(), std::back_inserter(drawn), [](const std::string& call) {
            return call.find(".DrawText(") != std::string::npos ||
                   call.find(".FillRectangle(") != std::string::npos;
        });
        return drawn;
    }

    bool FrameIsEmpty() const
    {
        const test::Frame& frame = composition.LastFrame();
        return frame.Count(0) == frame.pixels.size();
    }

    // Of the last frame's pixel, to within rounding.
    void ExpectPixelNear(UINT x, UINT y, std::uint32_t expected) const
    {
        const std::uint32_t pixel = PixelAt(x, y);
        for (const int shift : {0, 8, 16, 24}) {
            EXPECT_NEAR((pixel >> shift) & 0xFF, (expected >> shift) & 0xFF, 2)
                << std::hex << pixel << " at " << std::dec << x << ", " << y;
        }
    }
};

TEST_F(CompositionInformationTest, IsDrawnAfterTheInkAndBeforeTheFramesEnd)
{
    library.SetDebugLevel(1);
    const Lines calls = FrameWith({Sample(100, 100), Sample(150, 120)});
    const auto at = [&](const std::string& text) {
        return std::find_if(calls.begin(), calls.end(),
                            [&](const std::string& call) { return call.find(text) != std::string::npos; });
    };
    EXPECT_LT(at(".DrawLine("), at(".FillRectangle("));
    EXPECT_LT(at("Pressure ="), at(".EndDraw("));
    EXPECT_LT(at(".EndDraw("), at("SwapChain#1.Present("));
    EXPECT_NE(at("SwapChain#1.Present("), calls.end());
}

// Each text has a rectangle of one line, 24 wide for each character.
TEST_F(CompositionInformationTest, HasEveryBarAndTextInItsPlace)
{
    library.SetDebugLevel(1);
    LM_Params params = Params();
    params.inkDecayTime = 1000;
    SetParams(params);
    Input({Sample(100, 100), Sample(101, 100, 0)});
    clock.Advance(10);
    Input({Sample(-17, 300, 1234)});     // the third sample in 10 ms
    std::string version = VersionLine(); // with the numbers in parentheses
    version = version.substr(version.find('(') + 1);
    version = "Version = { " + version.substr(0, version.find(')')) + " }";
    const auto text = [](const std::string& line, int x, int y, const std::string& brush) {
        return "DeviceContext#1.DrawText(\"" + line + "\", " + std::to_string(line.size()) +
               ", TextFormat#1, {" + std::to_string(x) + ", " + std::to_string(y) + ", " +
               std::to_string(x + 24 * static_cast<int>(line.size())) + ", " + std::to_string(y + 24) +
               "}, " + brush + ", 0, 0)";
    };
    Frame();
    clock.Advance(8);
    Lines drawn = InformationOf(Frame());
    // Which brush it was is another matter.
    for (std::string& call : drawn) {
        const std::size_t brush = call.find("Brush#");
        ASSERT_NE(brush, std::string::npos);
        const std::size_t end = call.find_first_not_of("0123456789", brush + 6);
        call.replace(brush, end - brush, "Brush");
    }
    EXPECT_THAT(drawn, ElementsAre("DeviceContext#1.FillRectangle({280, 300, 640, 444}, Brush)",
                                   "DeviceContext#1.FillRectangle({280, 336, 640, 360}, Brush)", // 300
                                   text("Pen Report Rate (Max 300 Hz)", 280, 288, "Brush"),
                                   "DeviceContext#1.FillRectangle({280, 400, 430, 424}, Brush)", // 125
                                   text("Reflesh Rate ( Max 120 Hz)", 280, 352, "Brush"),
                                   text("DLL Menu : Ctrl + Alt + Shirt + S", 310, 32, "Brush"),
                                   text(version, 310, 56, "Brush"),
                                   text("Frequency (Drawing) = 125", 310, 80, "Brush"),
                                   text("Frequency (Pen Data) = 300", 310, 104, "Brush"),
                                   text("Rendering Type = Direct Composition", 310, 128, "Brush"),
                                   text("Screen = { 200,   60,  840,  540}", 310, 152, "Brush"),
                                   text("Position = ( -17,  300)", 310, 176, "Brush"),
                                   text("Pressure =  1234", 310, 200, "Brush")));
}

TEST_F(CompositionInformationTest, HasItsColours)
{
    library.SetDebugLevel(1);
    LM_Params params = Params();
    params.reserved0 = 2;
    SetParams(params);
    Frame();
    composition.Take();
    const Lines calls = Frame();
    Lines brushes;
    for (const std::string& call : calls) {
        const std::string maker = "DeviceContext#1.CreateSolidColorBrush(";
        if (call.starts_with(maker)) {
            brushes.push_back(call.substr(maker.size(), call.find('}') + 1 - maker.size()));
        }
    }
    ASSERT_EQ(brushes.size(), 13U);
    EXPECT_EQ(brushes[0], "{0.498039, 0.498039, 0.498039, 0.266667}");
    EXPECT_EQ(brushes[1], "{1, 0.2, 1, 0.498039}");
    EXPECT_EQ(brushes[2], "{1, 0.2, 1, 1}");
    EXPECT_EQ(brushes[3], "{0, 1, 0, 0.498039}");
    EXPECT_EQ(brushes[4], "{0, 1, 0, 1}");
    for (std::size_t i = 5; i < brushes.size(); ++i) {
        EXPECT_EQ(brushes[i], "{1, 0.25098, 0.25098, 1}");
    }
}

TEST_F(CompositionInformationTest, BarsFollowTheDrawingFrequency)
{
    library.SetDebugLevel(1);
    EXPECT_THAT(InformationAfter(0), Contains(testing::HasSubstr("FillRectangle({280, 400, 280, 424}")));
    EXPECT_THAT(InformationAfter(1), Contains(testing::HasSubstr("FillRectangle({280, 400, 1480, 424}")));
    EXPECT_THAT(InformationAfter(8), Contains(testing::HasSubstr("FillRectangle({280, 400, 430, 424}")));
    EXPECT_THAT(InformationAfter(1000), Contains(testing::HasSubstr("FillRectangle({280, 400, 281, 424}")));
}

TEST_F(CompositionInformationTest, BarsShowThroughTheirPanel)
{
    library.SetDebugLevel(1);
    InformationAfter(8);
    ExpectPixelNear(290, 390, 0x44222222); // the panel: 0x7F of a share of 0x44
    ExpectPixelNear(630, 390, 0x44222222);
    ExpectPixelNear(290, 412, 0xA1119011); // the drawing bar of half opacity above it
    ExpectPixelNear(420, 412, 0xA1119011);
    ExpectPixelNear(440, 412, 0x44222222); // 125 of 300
    ExpectPixelNear(270, 390, 0);
    ExpectPixelNear(290, 450, 0);
}

TEST_F(CompositionInformationTest, TextsShowInTheirLines)
{
    library.SetDebugLevel(1);
    Frame();
    constexpr std::uint32_t Text = 0xFF60FFFF; // 0x00FFFF60 with red in the low byte
    for (const UINT top : {32U, 56U, 80U, 104U, 128U, 152U, 176U, 200U}) {
        int shown = 0;
        for (UINT y = top; y < top + 24; ++y) {
            for (UINT x = 310; x < 640; ++x) {
                shown += PixelAt(x, y) == Text ? 1 : 0;
            }
        }
        EXPECT_GT(shown, 20) << "line at " << top;
    }
}

TEST_F(CompositionInformationTest, AtLevel0ThereIsNone)
{
    EXPECT_THAT(InformationAfter(8), IsEmpty());
    EXPECT_TRUE(FrameIsEmpty());
}

TEST_F(CompositionInformationTest, NothingOfItRemainsInTheFrameAfterItsLevelIs0)
{
    library.SetDebugLevel(1);
    Frame();
    EXPECT_FALSE(FrameIsEmpty());
    library.SetDebugLevel(0);
    EXPECT_THAT(InformationOf(Frame()), IsEmpty());
    EXPECT_TRUE(FrameIsEmpty());
}

TEST_F(CompositionInformationTest, AChangeOfTheLevelRepaintsNothing)
{
    for (const std::uint32_t level : {1U, 255U, 0U}) {
        library.SetDebugLevel(level);
        EXPECT_FALSE(IsInvalid());
        UpdateWindow(library.GetWindowHandle());
        EXPECT_EQ(composition.Count("SwapChain.Present"), 0U);
    }
}

TEST_F(CompositionInformationTest, TheLastFrameStaysUntilTheNextPaint)
{
    library.SetDebugLevel(1);
    Frame();
    library.SetDebugLevel(0);
    PumpMessages();
    EXPECT_FALSE(FrameIsEmpty());
}

TEST_F(CompositionInformationTest, InkKeepsItsColourBesideTheBars)
{
    library.SetDebugLevel(1);
    LM_Params params = Params();
    params.inkColor = 0x000000FF;
    SetParams(params);
    for (int i = 0; i < 2; ++i) { // the second frame begins with the brush of the last bar
        FrameWith({Sample(100, 240), Sample(200, 240)});
        EXPECT_EQ(PixelAt(150, 240), 0xFFFF0000U);
    }
}

} // namespace

} // namespace zq::LM::test
