// lumora-replay at play, on the real screen: ink while the pen writes, nothing afterwards.
#include "program_run.h"

#include <algorithm>
#include <cstdint>
#include <memory>

#include <objidl.h>

// GDI+'s header calls min and max, which the system's headers are told not to define.
namespace Gdiplus {
using std::max;
using std::min;
} // namespace Gdiplus
#include <gdiplus.h>

namespace lumora::replay {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr char StandInLine[] = "a stand-in takes the place of the system's composition engine\n";

class Play : public Program {
protected:
    Play() { Gdiplus::GdiplusStartup(&gdiplus, &input, nullptr); }
    ~Play() override { Gdiplus::GdiplusShutdown(gdiplus); }

    void SetUp() override
    {
        Write("stroke.svc", Stroke(10)); // 1500 ms
    }

    // The programs with the same sources differ only by the engine under the library.
    Outcome PlayWithStandIn(const std::wstring& options)
    {
        return Run(L"stroke.svc --colour FF0000 --life 1000 --brush 20 --no-pressure " + options,
                   L"lumora-replay-standin.exe");
    }

    // Of a saved screenshot; opaque red is the composition's, GDI's may be blended with what lies below.
    int ReddishPixels(const std::wstring& file) const
    {
        Gdiplus::Bitmap picture((folder / file).c_str());
        int count = 0;
        for (UINT y = 0; y < picture.GetHeight(); ++y) {
            for (UINT x = 0; x < picture.GetWidth(); ++x) {
                Gdiplus::Color colour;
                picture.GetPixel(static_cast<INT>(x), static_cast<INT>(y), &colour);
                count += colour.GetR() >= 128 && colour.GetG() < 64 && colour.GetB() < 64 ? 1 : 0;
            }
        }
        return count;
    }

    // One straight stroke, a sample every so many milliseconds.
    static std::string Stroke(int period)
    {
        constexpr int Samples = 151;
        std::ostringstream text;
        text << Samples << "\n";
        for (int i = 0; i < Samples; ++i) {
            text << 1000 + i * 30 << " " << 3000 + i * 5 << " " << i * period << " 1 0 900 20000\n";
        }
        return text.str();
    }

private:
    Gdiplus::GdiplusStartupInput input;
    ULONG_PTR gdiplus = 0;
};

constexpr int FewestInkPixels = 500;

TEST_F(Play, ShowsInkOnTheDefaultBackEndAndTakesItAway)
{
    const Outcome outcome = PlayWithStandIn(L"--screenshot 1400:ink.png --screenshot 3200:gone.png");
    EXPECT_EQ(outcome.status, 0U) << outcome.error;
    EXPECT_THAT(outcome.output, testing::StartsWith(StandInLine));
    EXPECT_GT(ReddishPixels(L"ink.png"), FewestInkPixels);
    EXPECT_EQ(ReddishPixels(L"gone.png"), 0);
}

// Each rebuild may take a busy machine some hundred milliseconds, in which play goes on.
TEST_F(Play, FollowsSwitchesOfTheBackEnd)
{
    Write("stroke.svc", Stroke(40)); // 6 s
    const Outcome outcome =
        PlayWithStandIn(L"--life 2500 --switch 50:gdi --screenshot 2800:gdi.png --switch 2850:composition "
                        L"--screenshot 5900:back.png --screenshot 9500:gone.png");
    EXPECT_EQ(outcome.status, 0U) << outcome.error;
    EXPECT_GT(ReddishPixels(L"gdi.png"), FewestInkPixels);
    EXPECT_GT(ReddishPixels(L"back.png"), FewestInkPixels);
    EXPECT_EQ(ReddishPixels(L"gone.png"), 0);
}

TEST_F(Play, NeedsNoEngineUnderGDI)
{
    const Outcome outcome =
        Run(L"stroke.svc --backend gdi --colour FF0000 --life 1000 --brush 20 --no-pressure "
            L"--screenshot 500:ink.png");
    EXPECT_EQ(outcome.status, 0U) << outcome.error;
    EXPECT_THAT(outcome.output, Not(HasSubstr("stand-in")));
    EXPECT_THAT(outcome.output, HasSubstr("saved ink.png"));
    EXPECT_GT(ReddishPixels(L"ink.png"), FewestInkPixels);
}

// The stand-in composes, so that all three back-ends have something to show.
TEST_F(Play, SelftestWritesWhatItSawOfEveryBackEnd)
{
    const Outcome outcome = Run(L"--selftest report.txt", L"lumora-replay-standin.exe");
    EXPECT_EQ(outcome.status, 0U) << outcome.error;
    const std::string report = Content("report.txt");
    EXPECT_THAT(report, testing::StartsWith("lumora self-test\n"));
    EXPECT_THAT(
        report,
        HasSubstr("\ncomposition\n  overlay               made\n  ink                   all   (DIFFERS"));
    EXPECT_THAT(report, HasSubstr("\nd2d\n  overlay               made\n  ink                   all\n"));
    EXPECT_THAT(report, HasSubstr("\ngdi\n  overlay               made\n  ink                   all\n"));
    EXPECT_THAT(report, Not(HasSubstr("still there")));
    EXPECT_THAT(report, Not(HasSubstr("stop at the overlay")));
    EXPECT_THAT(outcome.output, HasSubstr("2 findings differ from Wine"));
}

TEST_F(Play, SelftestWithoutAPlaceForItsReportIsOneLineWithStatus1)
{
    const Outcome outcome = Run(L"--selftest missing/report.txt");
    EXPECT_EQ(outcome.status, 1U);
    EXPECT_THAT(outcome.error, HasSubstr("the report cannot be written to missing"));
}

} // namespace
} // namespace lumora::replay
