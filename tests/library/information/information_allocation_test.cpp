// The information overlay takes no memory: a frame allocates with it what it allocates without it.
#include "support/fakes/memory.h"
#include "support/library/overlay_test.h"

namespace zq::LM::test {

namespace {

class InformationAllocationTest : public OverlayTest {
protected:
    InformationAllocationTest() { CreateWithGDI(); }
    ~InformationAllocationTest() override { library.SetDebugLevel(0); }

    unsigned AllocationsOfTenFrames(std::uint32_t level)
    {
        constexpr int Frames = 10;
        library.SetDebugLevel(level);
        unsigned allocations = 0;
        memory.RefuseWhen([&](std::size_t, unsigned number) {
            allocations = number;
            return false;
        });
        for (int i = 0; i < Frames; ++i) {
            InputAndPaint({Sample(100, 100), Sample(150, 100)});
            clock.Advance(1000); // the samples of the frame before are gone
        }
        memory.RefuseNothing();
        return allocations;
    }

    MemoryStandIn memory{library.Module()};
};

TEST_F(InformationAllocationTest, FramesWithItAllocateNothing)
{
    EXPECT_GT(AllocationsOfTenFrames(0), 0U) << "the stores of samples grow first: the count works";
    EXPECT_EQ(AllocationsOfTenFrames(0), 0U);
    EXPECT_EQ(AllocationsOfTenFrames(1), 0U);
}

} // namespace

} // namespace zq::LM::test
