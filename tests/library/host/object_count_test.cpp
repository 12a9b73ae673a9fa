// What lives of an instance leave behind in the system: exactly what stays on purpose, and nothing else.
//
// On purpose stay: a window class for each window made, since windows that a change of the back-end leaves
// behind live on with theirs; the device context that each window's creation measures the screen with, which
// the system takes back together with its window; and, for each change of the back-end, the window before it.
#include "library/host/working_overlay.h"
#include "support/fakes/memory.h"
#include "support/library/object_counts.h"

#include <ostream>

namespace zq::LM {
namespace {

using test::Sample;

struct Counts {
    std::size_t gdiObjects = 0;
    std::size_t kernelHandles = 0;
    std::size_t windows = 0;
    std::size_t memoryBlocks = 0;
    bool operator==(const Counts&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Counts& counts)
{
    return out << counts.gdiObjects << " GDI objects, " << counts.kernelHandles << " kernel handles, "
               << counts.windows << " windows, " << counts.memoryBlocks << " memory blocks";
}

class ObjectCount : public WorkingOverlayTest {
protected:
    Counts Count() const
    {
        test::PumpMessages();
        return {test::GdiObjects(), test::KernelHandles(), test::OverlayWindows().size(),
                memory.HeldBlocks()};
    }

    void LiveThroughOnce()
    {
        const HWND window = library.Create();
        SetParams(RedInk());
        InputStroke();
        UpdateWindow(window);
        SendMessageW(window, WM_TIMER, 12345, 0);
        library.Destroy();
        test::PumpMessages();
    }

    // Changes the back-end so many times and ends with GDI active.
    void SwitchTimes(int times)
    {
        for (int i = 0; i < times; ++i) {
            Choose(i % 2 == 0 ? test::ChooseDirectComposition : test::ChooseGDI);
            InputStroke(); // rebuilds
            InputStroke();
            UpdateWindow(library.GetWindowHandle());
        }
    }

    // What the process makes once is made before the first count.
    template <typename Work> void ExpectNoGrowth(int times, Work work)
    {
        constexpr int WarmUp = 3;
        for (int i = 0; i < WarmUp; ++i) {
            work();
        }
        const Counts before = Count();
        for (int i = 0; i < times; ++i) {
            work();
        }
        EXPECT_EQ(Count(), before);
    }
    void ExpectNoGrowthOfLives(int lives)
    {
        ExpectNoGrowth(lives, [this] { LiveThroughOnce(); });
    }

    test::MemoryStandIn memory{library.Module()};
};

TEST_F(ObjectCount, DoesNotGrowWithLivesUnderGDI)
{
    CreateWithGDI();
    DestroyAndForget();
    ExpectNoGrowthOfLives(500);
}

TEST_F(ObjectCount, DoesNotGrowWithLivesUnderDirectComposition) { ExpectNoGrowthOfLives(50); }

TEST_F(ObjectCount, DoesNotGrowWithLivesUnderDirect2D)
{
    Select(test::ChooseDirect2D);
    ExpectNoGrowthOfLives(50);
}

TEST_F(ObjectCount, DoesNotGrowWithLivesThatHaveAUserInterface)
{
    library.SetDebugLevel(1);
    ExpectNoGrowthOfLives(50);
    EXPECT_EQ(GlobalFindAtomW(L"Lumora Hotkey"), 0);
}

TEST_F(ObjectCount, DoesNotGrowWithReplacedInstances)
{
    CreateWithGDI();
    ExpectNoGrowth(50, [this] {
        library.Create();
        Paint();
    });
}

TEST_F(ObjectCount, DoesNotGrowWithFramesAndInput)
{
    CreateWithGDI();
    SetParams(RedInk());
    const auto frame = [&] {
        InputStroke();
        UpdateWindow(library.GetWindowHandle());
        clock.Advance(Life);
        Tick();
    };
    frame();
    Counts before = Count();
    for (int i = 0; i < 500; ++i) {
        frame();
    }
    before.memoryBlocks = Count().memoryBlocks; // sample sets keep what they have grown to
    EXPECT_EQ(Count(), before);
}

TEST_F(ObjectCount, DoesNotGrowWithScreenChanges)
{
    CreateWithGDI();
    const auto follow = [&](LONG width) {
        shell.Move({0, 0, width, 300});
        InputStroke();
        UpdateWindow(library.GetWindowHandle());
    };
    ExpectNoGrowth(50, [&] {
        follow(300);
        follow(400);
    });
}

TEST_F(ObjectCount, GrowsByOneClassForEachWindow)
{
    LiveThroughOnce();
    const unsigned before = test::OverlayClasses(library.Module());
    ASSERT_GT(before, 0U);
    for (int i = 0; i < 20; ++i) {
        LiveThroughOnce();
    }
    EXPECT_EQ(test::OverlayClasses(library.Module()), before + 20);
}

// What the system keeps for a window that is shown differs; with the window it must all be gone.
TEST_F(ObjectCount, ChangesOfTheBackEndLeaveNothingButTheirWindows)
{
    CreateWithGDI();
    const auto switchAndCloseLeftWindows = [&] {
        SwitchTimes(10);
        test::DestroyLeftWindows(library.GetWindowHandle());
        return Count();
    };
    switchAndCloseLeftWindows();
    const Counts before = switchAndCloseLeftWindows();
    EXPECT_EQ(before.windows, 1U);
    EXPECT_EQ(switchAndCloseLeftWindows(), before);
}

} // namespace
} // namespace zq::LM
