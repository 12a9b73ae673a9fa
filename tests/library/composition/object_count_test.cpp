// What set-ups of the composition chain leave in the system: one composition device each, on purpose, and
// none of the system's other objects.
#include "support/library/composition_test.h"
#include "support/library/leftovers.h"
#include "support/library/object_counts.h"

#include <utility>

namespace zq::LM::test {

namespace {

using Counts = std::pair<std::size_t, std::size_t>; // GDI objects and kernel handles

class CompositionObjectCount : public CompositionTest {
protected:
    // Without the windows that rebuilds leave behind, which keep what the system gives each window.
    Counts CountWithoutLeftWindows() const
    {
        DestroyLeftWindows(library.GetWindowHandle());
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
    for (int i = 0; i < 4; ++i) {
        live();
    }
    EXPECT_EQ(live(), before);
    setUps = 8;
}

TEST_F(CompositionObjectCount, DoesNotGrowWithFrames)
{
    CreateQuietly();
    FrameWith({Sample(100, 100), Sample(200, 100)});
    const Counts before = CountWithoutLeftWindows();
    for (int i = 0; i < 30; ++i) {
        FrameWith({Sample(100, 100 + i), Sample(200, 100 + i)});
    }
    EXPECT_EQ(CountWithoutLeftWindows(), before);
}

TEST_F(CompositionObjectCount, DoesNotGrowWithRebuilds)
{
    constexpr int Pairs = 4;
    const auto rebuild = [&](WPARAM command) {
        Choose(command);
        Paint(); // by the newly chosen back-end, which knows no window yet
        Input({Sample(1, 1)});
        FrameWith({Sample(100, 100), Sample(200, 100)});
    };
    const auto changeBackAndForth = [&] {
        for (int i = 0; i < Pairs; ++i) {
            rebuild(ChooseGDI);
            rebuild(ChooseDirectComposition);
        }
        setUps += Pairs;
    };
    CreateQuietly();
    changeBackAndForth(); // what the process makes once, and keeps for so many windows, comes before the
                          // count
    const Counts before = CountWithoutLeftWindows();
    changeBackAndForth();
    EXPECT_EQ(OverlayWindows().size(), 2U * Pairs + 1);
    EXPECT_EQ(CountWithoutLeftWindows(), before);
}

} // namespace

} // namespace zq::LM::test
