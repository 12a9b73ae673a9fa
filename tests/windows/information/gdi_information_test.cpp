// The information overlay on the GDI back-end: texts without bars, through the unmodified library.
#include "support/overlay_test.h"
#include "support/system_calls.h"

#include <string>
#include <vector>

namespace zq::LM::test {

namespace {

using Lines = std::vector<std::string>;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr COLORREF Green = RGB(0, 128, 0);

class GdiInformationTest : public OverlayTest {
protected:
    GdiInformationTest() { CreateWithGDI(); }
    ~GdiInformationTest() override { library.SetDebugLevel(0); }

    void RecordDrawing()
    {
        calls.Record<"TextOutW">("GDI32.dll", TextOutW);
        calls.Record<"SetTextColor">("GDI32.dll", SetTextColor);
        calls.Record<"PatBlt">("GDI32.dll", PatBlt);
        calls.Record<"BitBlt">("GDI32.dll", BitBlt);
    }

    // An input without samples, whose frame is due.
    void AskForAFrame() const
    {
        const LM_PenData unused{};
        library.InputPenDataArray(&unused, 0);
    }

    void Repaint() const
    {
        AskForAFrame();
        Paint();
    }

    Lines CallsOfAFrame()
    {
        RecordDrawing();
        calls.Take();
        AskForAFrame();
        PaintOnce();
        Lines drawn = calls.Take();
        SettleScreen();
        return drawn;
    }

    // Whether any pixel of this part of the overlay is not the backdrop's.
    static bool ShowsSomething(int left, int top, int right, int bottom)
    {
        const RECT part = {Desktop.left + left, Desktop.top + top, Desktop.left + right,
                           Desktop.top + bottom};
        const auto size = static_cast<std::size_t>((right - left) * (bottom - top));
        return TakePicture(part).Count(Green) != size;
    }
    static bool OverlayShowsSomething() { return ShowsSomething(0, 0, 640, 480); }

    Backdrop backdrop{Desktop, Green};
    SystemCalls calls{library.Module()};
};

TEST_F(GdiInformationTest, IsTenTextsAndNoBarsInTheBitmap)
{
    library.SetDebugLevel(1);
    Input({Sample(100, 100, 0), Sample(321, 45, 0)});
    Repaint();
    clock.Advance(8);
    const Lines drawn = CallsOfAFrame();
    // Three copies of its shadow come before each text.
    constexpr std::size_t CallsOfAText = 6;
    constexpr std::size_t Texts = 10;
    ASSERT_EQ(drawn.size(), 1 + Texts * CallsOfAText + 1);
    EXPECT_TRUE(drawn.front().starts_with("PatBlt(*, 0, 0, 640, 480, ")) << "the frame is cleared first";
    EXPECT_TRUE(drawn.back().starts_with("BitBlt(")) << "and copied last";
    Lines texts;
    for (std::size_t i = 0; i < Texts; ++i) {
        const std::size_t first = 1 + i * CallsOfAText;
        EXPECT_EQ(drawn[first], "SetTextColor(*, 0xC0C0C0)");
        texts.push_back(drawn[first + 4]);
        texts.push_back(drawn[first + 5]);
    }
    std::string version = VersionLine();
    version = version.substr(version.find('(') + 1);
    version = "Version = { " + version.substr(0, version.find(')')) + " }";
    const std::string colour = "SetTextColor(*, 0xFFFF60)";
    EXPECT_THAT(texts, ElementsAre("SetTextColor(*, 0xFFFF33FF)",
                                   "TextOutW(*, 280, 288, \"Pen Report Rate (Max 300 Hz)\", 28)",
                                   "SetTextColor(*, 0xFF00FF00)",
                                   "TextOutW(*, 280, 352, \"Reflesh Rate ( Max 120 Hz)\", 26)", colour,
                                   "TextOutW(*, 310, 32, \"DLL Menu : Ctrl + Alt + Shirt + S\", 33)", colour,
                                   "TextOutW(*, 310, 56, \"" + version + "\", " +
                                       std::to_string(version.size()) + ")",
                                   colour, "TextOutW(*, 310, 80, \"Frequency (Drawing) = 125\", 25)", colour,
                                   "TextOutW(*, 310, 104, \"Frequency (Pen Data) =   0\", 26)", colour,
                                   "TextOutW(*, 310, 128, \"Rendering Type = GDI\", 20)", colour,
                                   "TextOutW(*, 310, 152, \"Screen = { 200,   60,  840,  540}\", 33)", colour,
                                   "TextOutW(*, 310, 176, \"Position = ( 321,   45)\", 23)", colour,
                                   "TextOutW(*, 310, 200, \"Pressure =     0\", 16)"));
}

TEST_F(GdiInformationTest, TextsShowOnTheScreenAndBarsDoNot)
{
    library.SetDebugLevel(1);
    Repaint();
    clock.Advance(1); // a bar, if there were one, would be full
    Repaint();
    for (const int top : {32, 56, 80, 104, 128, 152, 176, 200, 288, 352}) {
        EXPECT_TRUE(ShowsSomething(280, top, 640, top + 20)) << "text at " << top;
    }
    EXPECT_FALSE(ShowsSomething(280, 312, 640, 352));
    EXPECT_FALSE(ShowsSomething(280, 376, 640, 480));
    EXPECT_FALSE(ShowsSomething(0, 0, 280, 480));
}

TEST_F(GdiInformationTest, AtLevel0ThereIsNone)
{
    clock.Advance(8);
    const Lines drawn = CallsOfAFrame();
    ASSERT_EQ(drawn.size(), 2U);
    EXPECT_TRUE(drawn[0].starts_with("PatBlt("));
    EXPECT_TRUE(drawn[1].starts_with("BitBlt("));
    EXPECT_FALSE(OverlayShowsSomething());
}

TEST_F(GdiInformationTest, NothingOfItRemainsOnTheScreenAfterItsLevelIs0AndTheNextPaint)
{
    library.SetDebugLevel(1);
    Repaint();
    EXPECT_TRUE(OverlayShowsSomething());
    library.SetDebugLevel(0);
    Repaint();
    EXPECT_FALSE(OverlayShowsSomething());
}

TEST_F(GdiInformationTest, TheMenusLevelsSwitchItOnAndOffWithTheirOwnRepaint)
{
    constexpr WPARAM LogNone = 40010;
    for (const WPARAM level : {40011U, 40012U, 40013U, 40014U}) {
        Choose(level);
        Paint();
        EXPECT_TRUE(OverlayShowsSomething()) << "command " << level;
        Choose(LogNone);
        Paint();
        EXPECT_FALSE(OverlayShowsSomething()) << "after command " << level;
    }
}

TEST_F(GdiInformationTest, AChangeOfTheLevelRepaintsNothing)
{
    RecordDrawing();
    calls.Record<"InvalidateRect">("USER32.dll", InvalidateRect);
    PumpMessages();
    calls.Take();
    for (const std::uint32_t level : {1U, 255U, 0U}) {
        library.SetDebugLevel(level);
        EXPECT_FALSE(IsInvalid());
        PumpMessages();
    }
    EXPECT_THAT(calls.Take(), IsEmpty());
}

TEST_F(GdiInformationTest, ItsTextStaysUntilTheNextPaint)
{
    library.SetDebugLevel(1);
    Repaint();
    library.SetDebugLevel(0);
    SettleScreen();
    EXPECT_TRUE(OverlayShowsSomething());
}

TEST_F(GdiInformationTest, TheDyingInksLastFrameCarriesItToo)
{
    library.SetDebugLevel(1);
    InputAndPaint({Sample(100, 240), Sample(200, 240)});
    Tick();
    clock.Advance(1000);
    RecordDrawing();
    calls.Take();
    Tick();
    PaintOnce();
    EXPECT_EQ(calls.Count("TextOutW"), 40U);
}

} // namespace

} // namespace zq::LM::test
