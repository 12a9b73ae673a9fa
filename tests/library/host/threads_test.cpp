// A host that feeds from another thread while the overlay's thread paints.
#include "library/host/working_overlay.h"

#include <atomic>
#include <thread>

namespace zq::LM {
namespace {

using test::Sample;

constexpr int Rounds = 2000;

class FeedingThread : public WorkingOverlayTest {
protected:
    void SetUp() override { window = CreateWithGDI(); }

    LM_Params Record(std::uint32_t width) const
    {
        LM_Params params = RedInk();
        params.minBrushSize = width;
        params.brushSize = width;
        params.maxPressure = width;
        return params;
    }

    // Paints as long as the thread works, and then shows that a stroke still appears.
    template <typename Work, typename Between> void PaintWhile(Work work, Between between)
    {
        std::atomic<bool> done = false;
        std::thread thread([&] {
            work();
            done = true;
        });
        do {
            test::PumpMessages();
            UpdateWindow(window);
            SendMessageW(window, WM_TIMER, 12345, 0);
            clock.Advance(300); // keeps the painted strokes short
            between();
        } while (!done);
        thread.join();
        ExpectWorking();
    }

    template <typename Work> void PaintWhile(Work work)
    {
        PaintWhile(work, [] {});
    }

    HWND window = nullptr;
};

TEST_F(FeedingThread, MayInputSamples)
{
    SetParams(Record(3));
    PaintWhile([this] {
        for (int i = 1; i <= Rounds; ++i) {
            Input({Sample(i % 500 + 1, 100, 1), Sample(i % 500 + 2, 102, i % 3)});
        }
    });
}

TEST_F(FeedingThread, MaySetParametersThatAreNeverSeenHalfWritten)
{
    constexpr std::uint32_t ManyRounds = 5'000'000;
    constexpr int CopiesBetweenPaints = 1000;
    int torn = 0;
    SetParams(Record(1));
    PaintWhile(
        [this] {
            for (std::uint32_t i = 0; i < ManyRounds; ++i) {
                SetParams(Record(i % 20 + 1));
            }
        },
        [this, &torn] {
            for (int i = 0; i < CopiesBetweenPaints; ++i) {
                const LM_Params copied = Params(); // its three numbers were written together
                torn +=
                    copied.brushSize != copied.minBrushSize || copied.brushSize != copied.maxPressure ? 1 : 0;
            }
        });
    EXPECT_EQ(torn, 0);
}

TEST_F(FeedingThread, MayDoAllOfIt)
{
    PaintWhile([this] {
        for (int i = 1; i <= Rounds; ++i) {
            Input({Sample(i % 500 + 1, i % 300 + 1, 1), Sample(0, 0), Sample(i % 400 + 1, 50, 1)});
            SetParams(Record(static_cast<std::uint32_t>(i % 5)));
            Params();
            library.GetWindowHandle();
        }
    });
}

} // namespace
} // namespace zq::LM
