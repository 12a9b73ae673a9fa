// The road from a sample to a line call: what it allocates, and what happens when memory runs out on it.
#include "support/counted_allocations.h"
#include "support/engine_test.h"
#include "support/log_level.h"

#include <gtest/gtest.h>

#include <new>

namespace zq::LM::test {
namespace {

// Callbacks that count instead of recording: they allocate nothing of their own.
class AllocationTest : public EngineTest {
protected:
    AllocationTest()
    {
        const auto line = [this](int, int, int, unsigned, int, int, int, unsigned) { ++called; };
        drawing.SetCallbacks([this] { ++called; }, [this] { ++called; }, [](bool) { return 0x00ABCDEFU; },
                             line, line, [this](std::vector<PenData>*, unsigned, unsigned) { ++called; });
    }

    // One batch of the host's, a frame and the timer's ageing, at a standing rate: samples go as others come.
    void Turn()
    {
        drawing.AddPenDataAry(batch.data(), batch.size());
        drawing.DrawLumoraLines();
        AdvanceClock(10);
        drawing.DeleteOldPenData();
        drawing.LivePointsNum();
        drawing.PenReoprtRate();
    }

    void WarmUp()
    {
        for (int turn = 0; turn < 100; ++turn) {
            Turn();
        }
    }

    std::size_t AllocationsOf100Turns()
    {
        const CountedAllocations allocations;
        for (int turn = 0; turn < 100; ++turn) {
            Turn();
        }
        return allocations.Count();
    }

    std::vector<PenData> batch = {Sample({1, 1}), Sample({2, 1}), Sample({3, 1})};
    std::int64_t called = 0;
};

TEST_F(AllocationTest, CounterSeesAnAllocation)
{
    const CountedAllocations allocations;
    const std::vector<PenData> samples(3);
    const std::vector<std::size_t> sizes = allocations.Sizes();
    ASSERT_EQ(sizes.size(), 1U);
    EXPECT_EQ(sizes[0], samples.size() * sizeof(PenData));
}

TEST_F(AllocationTest, StrokesAllocateNothingAfterWarmUp)
{
    WarmUp();
    called = 0;
    EXPECT_EQ(AllocationsOf100Turns(), 0U);
    EXPECT_GT(called, 100 * 20) << "the turns drew nothing";
}

TEST_F(AllocationTest, HollowStrokesAllocateNothingAfterWarmUp)
{
    Set([](Params& params) {
        params.line = 0;
        params.outline = params.zebraMode = params.useOffset = 1;
    });
    WarmUp();
    EXPECT_EQ(AllocationsOf100Turns(), 0U);
    drawing.SetVectorOutline(true);
    EXPECT_EQ(AllocationsOf100Turns(), 0U);
}

TEST_F(AllocationTest, CursorAndPickingAllocateNothingAfterWarmUp)
{
    batch.back().pressure = Hovering;
    WarmUp();
    EXPECT_EQ(AllocationsOf100Turns(), 0U);
    Set([](Params& params) { params.colorPicker = 1; });
    EXPECT_EQ(AllocationsOf100Turns(), 0U);
    batch.back().pressure = Touching;
    EXPECT_EQ(AllocationsOf100Turns(), 0U);
}

TEST_F(AllocationTest, NewEngineAndRecordCopiesAllocateNothing)
{
    const CountedAllocations allocations;
    const Drawing fresh;
    Set([](Params& params) { params.brushSize = 3; });
    drawing.EnabledOptions(0xFFFFFFFF);
    EXPECT_EQ(allocations.Count(), 0U);
}

TEST_F(AllocationTest, BeforeWarmUpOnlyTheTwoSampleSetsGrow)
{
    const CountedAllocations adding;
    drawing.AddPenDataAry(batch.data(), batch.size());
    const std::vector<std::size_t> pending = adding.Sizes();
    const CountedAllocations frame;
    drawing.DrawLumoraLines();
    const std::vector<std::size_t> live = frame.Sizes();
    EXPECT_GE(pending.size(), 1U);
    EXPECT_LE(pending.size(), batch.size()) << "at most one growth a sample";
    EXPECT_EQ(live.size(), 1U) << "the move appends in one insertion";
    for (const std::size_t size : pending) {
        EXPECT_EQ(size % sizeof(PenData), 0U) << size;
    }
    for (const std::size_t size : live) {
        EXPECT_EQ(size % sizeof(PenData), 0U) << size;
    }
}

TEST_F(AllocationTest, EmptiedSetsKeepTheirRoom)
{
    const PenData marker = Sample({0, 1});
    drawing.AddPenDataAry(batch.data(), batch.size());
    drawing.DrawLumoraLines();
    const CountedAllocations allocations;
    drawing.AddPenDataAry(batch.data(), batch.size()); // what a move has emptied
    drawing.AddPenDataAry(&marker, 1);
    drawing.AddPenDataAry(batch.data(), batch.size()); // what a reset marker has emptied
    drawing.ClearLivePenData();
    drawing.DrawLumoraLines();
    EXPECT_EQ(allocations.Count(), 0U);
    EXPECT_EQ(drawing.LivePointsNum(), 3);
}

TEST_F(AllocationTest, FilteredOutLinesAllocateNothing)
{
    WarmUp();
    const LogLevel level(NORMAL);
    EXPECT_EQ(AllocationsOf100Turns(), 0U);
}

TEST_F(AllocationTest, AddingWithoutMemoryRaisesAndLeavesTheEngineUsable)
{
    {
        const NoMemory noMemory;
        EXPECT_THROW(drawing.AddPenDataAry(batch.data(), batch.size()), std::bad_alloc);
    }
    EXPECT_EQ(drawing.LivePointsNum(), 0);
    drawing.AddPenDataAry(batch.data(), batch.size());
    drawing.DrawLumoraLines();
    EXPECT_EQ(drawing.LivePointsNum(), 3);
}

TEST_F(AllocationTest, AddingThatRunsOutOfMemoryCountsWhatHasComeIn)
{
    const std::vector<PenData> some(4, batch.front());
    const std::vector<PenData> more(1000, batch.front());
    const PenData marker{};
    drawing.AddPenDataAry(some.data(), some.size());
    drawing.AddPenDataAry(&marker, 1);
    {
        const NoMemory noMemory;
        EXPECT_THROW(drawing.AddPenDataAry(more.data(), more.size()), std::bad_alloc);
    }
    const std::int64_t count = drawing.LivePointsNum();
    EXPECT_GE(count, 4);
    drawing.DrawLumoraLines();
    EXPECT_EQ(drawing.LivePointsNum(), count);
}

TEST_F(AllocationTest, FrameWithoutMemoryRaisesAndKeepsThePendingSamples)
{
    drawing.AddPenDataAry(batch.data(), batch.size());
    {
        const NoMemory noMemory;
        EXPECT_THROW(drawing.DrawLumoraLines(), std::bad_alloc);
    }
    EXPECT_EQ(called, 0) << "no part of a frame is drawn";
    drawing.DrawLumoraLines();
    EXPECT_EQ(drawing.LivePointsNum(), 3);
}

} // namespace
} // namespace zq::LM::test
