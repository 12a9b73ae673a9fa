// What set-ups of the composition chain leave in the system: one composition device each, on purpose, and
// none of the system's other objects.
#include "support/object_counts.h"
#include "windows/composition/composition_test.h"
#include "windows/composition/leftovers.h"

#include <ostream>
#include <random>

namespace zq::LM::test {

namespace {

constexpr const wchar_t* ClassPrefix = L"Lumora Window Class_";

struct Counts {
    std::size_t gdiObjects = 0;
    std::size_t kernelHandles = 0;
    bool operator==(const Counts&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Counts& counts)
{
    return out << counts.gdiObjects << " GDI objects, " << counts.kernelHandles << " kernel handles";
}

class CompositionObjectCount : public CompositionTest {
protected:
    // Without the windows that rebuilds leave behind, which keep what the system gives each window.
    Counts CountWithoutLeftWindows() const
    {
        for (const HWND window : WindowsOfClass(ClassPrefix)) {
            if (window != library.GetWindowHandle()) {
                DestroyWindow(window);
            }
        }
        PumpMessages();
        return {GdiObjects(), KernelHandles()};
    }
};

TEST_F(CompositionObjectCount, DoesNotGrowWithLives)
{
    const auto live = [&] {
        library.Create();
        FrameWith({Sample(100, 100), Sample(200, 100)});
        DestroyAndForget();
        return CountWithoutLeftWindows();
    };
    composition.Show(false);
    live();
    live();
    const Counts before = live();
    for (int i = 0; i < 10; ++i) {
        live();
    }
    EXPECT_EQ(live(), before);
    setUps = 14;
}

TEST_F(CompositionObjectCount, DoesNotGrowWithFrames)
{
    CreateQuietly();
    FrameWith({Sample(100, 100), Sample(200, 100)});
    const Counts before = CountWithoutLeftWindows();
    for (int i = 0; i < 100; ++i) {
        FrameWith({Sample(100, 100 + i), Sample(200, 100 + i)});
    }
    EXPECT_EQ(CountWithoutLeftWindows(), before);
}

// One seed, one process.
class CompositionRebuildSeries : public CompositionObjectCount, public testing::WithParamInterface<unsigned> {
protected:
    // Changes to the other back-end so many times, with input and ink at random moments in between.
    void Rebuild(int times)
    {
        for (int i = 0; i < times; ++i) {
            isComposition = !isComposition;
            Choose(isComposition ? ChooseDirectComposition : ChooseGDI);
            if (random() % 2 == 0) {
                Paint(); // the newly chosen back-end, which knows no window yet
            }
            Input({Sample(1, 1)});
            setUps += isComposition ? 1 : 0;
            if (random() % 2 == 0) {
                FrameWith({Sample(100, 100), Sample(200, 100)});
            }
        }
        FrameWith({Sample(100, 100), Sample(200, 100)});
    }

    std::minstd_rand random{GetParam()};
    bool isComposition = true;
};

TEST_P(CompositionRebuildSeries, LeavesWindowsAndDevicesAndNothingElse)
{
    CreateQuietly();
    Rebuild(20); // what the process makes once, and keeps for so many windows, is made before the first count
    const Counts before = CountWithoutLeftWindows();
    Rebuild(20);
    EXPECT_EQ(WindowsOfClass(ClassPrefix).size(), 21U);
    EXPECT_EQ(CountWithoutLeftWindows(), before);
}

INSTANTIATE_TEST_SUITE_P(Seeds, CompositionRebuildSeries, testing::Values(1U, 2U, 3U));

} // namespace

} // namespace zq::LM::test
