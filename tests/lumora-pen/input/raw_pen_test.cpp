// A pen's way from the messages of Raw Input to samples.
#include "fake_input.h"

#include "support/counted_allocations.h"

namespace lumora_pen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class RawPen : public InputTest {
protected:
    RawPen() { input.SetPens(true); }
};

TEST_F(RawPen, AllReportsOfAMessageAreOneBatchOldestFirst)
{
    Send({TouchReport(0, 0, 4095), TouchReport(14688, 8262, 2048), TouchReport(29376, 16524, 0)});
    ASSERT_THAT(batches, SizeIs(1));
    EXPECT_EQ(batches[0].source, FirstRawPen);
    EXPECT_FALSE(batches[0].isCancelled);
    EXPECT_THAT(Places(), ElementsAre(At(0, 0), At(959.5, 539.5), At(1919, 1079)));
    EXPECT_THAT(Pressures(), ElementsAre(FullPressure, 16388, 1));
    EXPECT_EQ(batches[0].samples[2].time, 4000U);
}

TEST_F(RawPen, HoveringPenIsHandedOutWithoutPressure)
{
    Send({Report(0, 0, 0, Near)});
    EXPECT_THAT(Pressures(), ElementsAre(0));
}

TEST_F(RawPen, LiftedAndDepartedPenHasNoPressure)
{
    Send({TouchReport(29376, 0, 4095)});
    Send({Report(0, 0, 0, Near), Report(0, 0, 0, 0), Report(0, 0, 0, 0)});
    EXPECT_THAT(Pressures(), ElementsAre(FullPressure, 0, 0));
    EXPECT_THAT(batches, SizeIs(2));
}

TEST_F(RawPen, EraserDoesNotWriteAndTheBarrelsSwitchDoes)
{
    Send({Report(0, 0, 4095, Tip | Near | Inverted), Report(0, 0, 4095, Tip | Near | Barrel)});
    EXPECT_THAT(Pressures(), ElementsAre(0, FullPressure));
}

TEST_F(RawPen, PensHaveNumbersOfTheirOwn)
{
    const HANDLE other = Handle(0x2002);
    plugged[other] = {};
    plugged[other].x = {0, 9600};
    plugged[other].y = {0, 7200};
    plugged[other].pressure = LogicalRange{0, 256};
    MapTo(other, {1920, 0, 5760, 2160});
    Send({TouchReport(29376, 16524, 4095)});
    Send(other, {TouchReport(2400, 5400, 128)});
    ASSERT_THAT(batches, SizeIs(2));
    EXPECT_NE(batches[0].source, batches[1].source);
    EXPECT_THAT(Places(), ElementsAre(At(1919, 1079), At(2879.75, 1619.25)));
    EXPECT_THAT(Pressures(), ElementsAre(FullPressure, 16384));
}

TEST_F(RawPen, LongMessageIsReadWhole)
{
    Send(std::vector<ReportBytes>(500, TouchReport(0, 0, 1)));
    EXPECT_THAT(Places(), SizeIs(500));
}

TEST_F(RawPen, ReportsCostNoMemoryInTheLongRun)
{
    const std::vector<ReportBytes> reports(8, TouchReport(14688, 8262, 2048));
    Send(reports);
    keepsBatches = false;
    SendBytes();
    const zq::LM::test::CountedAllocations allocations;
    for (int i = 0; i < 100; ++i) {
        SendBytes();
    }
    EXPECT_EQ(allocations.Count(), 0U);
}

TEST_F(RawPen, TakerMayCallBack)
{
    RawInput* again = nullptr;
    std::vector<std::size_t> sizes;
    RawInput nested(
        window,
        [&](const InputBatch& batch) {
            sizes.push_back(batch.samples.size());
            if (sizes.size() == 1) {
                again->SetPens(false); // which ends the stroke
            }
            sizes.push_back(batch.samples.size());
        },
        [] { return false; });
    again = &nested;
    nested.SetPens(true);
    Send({TouchReport(0, 0, 1), TouchReport(1, 1, 1)});
    nested.OnInput(nullptr);
    EXPECT_THAT(sizes, ElementsAre(2, 1, 1, 2));
    nested.OnInput(nullptr);
    EXPECT_THAT(sizes, SizeIs(4));
}

TEST_F(RawPen, ReportsThatWereOnTheirWayWhenPensWereSwitchedOffWriteNothing)
{
    input.SetPens(false);
    Send({TouchReport(0, 0, 4095)});
    EXPECT_THAT(batches, IsEmpty());
}

} // namespace
} // namespace lumora_pen
