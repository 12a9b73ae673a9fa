// One writes at a time.
#include "input/one_writer.h"

#include <gmock/gmock.h>

namespace lumora_pen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr Source Pen = 7;
constexpr Source Finger = 12;

class Writing : public testing::Test {
protected:
    static InputSample At(double x, std::int32_t pressure) { return {x, 50, pressure, 1000}; }

    static std::vector<std::int32_t> PressuresOf(const InputBatch& batch)
    {
        std::vector<std::int32_t> pressures;
        for (const InputSample& sample : batch.samples) {
            pressures.push_back(sample.pressure);
        }
        return pressures;
    }

    std::vector<InputBatch> taken;
    OneWriter writer{[this](const InputBatch& batch) { taken.push_back(batch); }};
};

TEST_F(Writing, StrokeIsHandedOutInTheBatchesOfItsMessages)
{
    writer.Down(Pen, {At(1, 500)});
    writer.Move(Pen, {At(2, 600), At(3, 700)});
    writer.Up(Pen, {At(4, 700), At(5, 0)});
    ASSERT_THAT(taken, SizeIs(3));
    EXPECT_THAT(PressuresOf(taken[0]), ElementsAre(500));
    EXPECT_THAT(PressuresOf(taken[1]), ElementsAre(600, 700));
    EXPECT_THAT(PressuresOf(taken[2]), ElementsAre(700, 0));
    EXPECT_EQ(taken[2].samples.back().x, 5);
    for (const InputBatch& batch : taken) {
        EXPECT_EQ(batch.source, Pen);
        EXPECT_FALSE(batch.isCancelled);
    }
    EXPECT_TRUE(writer.IsFree());
}

TEST_F(Writing, StrokeBeginsWithATouch)
{
    writer.Down(Pen, {At(1, 0), At(2, 0), At(3, 500)});
    ASSERT_THAT(taken, SizeIs(1));
    EXPECT_THAT(PressuresOf(taken[0]), ElementsAre(500));
    EXPECT_TRUE(writer.IsWriting(Pen));
}

TEST_F(Writing, StrokeEndsWithoutPressureWhateverTheLiftReports)
{
    writer.Down(Pen, {At(1, 500)});
    writer.Up(Pen, {At(2, 500)});
    EXPECT_THAT(PressuresOf(taken.back()), ElementsAre(0));
    EXPECT_EQ(taken.back().samples[0].x, 2);
}

TEST_F(Writing, StrokeEndsAtItsLastPlaceWhereTheLiftTellsNothing)
{
    writer.Down(Pen, {At(1, 500)});
    writer.Move(Pen, {At(2, 500)});
    writer.Up(Pen, {});
    EXPECT_THAT(PressuresOf(taken.back()), ElementsAre(0));
    EXPECT_EQ(taken.back().samples[0].x, 2);
}

TEST_F(Writing, StrokeEndsWhereThePenNoLongerTouches)
{
    writer.Down(Pen, {At(1, 500)});
    writer.Move(Pen, {At(2, 500), At(3, 0), At(4, 0)});
    EXPECT_THAT(PressuresOf(taken.back()), ElementsAre(500, 0));
    EXPECT_TRUE(writer.IsFree());
    writer.Up(Pen, {At(5, 0)});
    EXPECT_THAT(taken, SizeIs(2));
}

TEST_F(Writing, EmptyBatchIsNotHandedOut)
{
    writer.Down(Pen, {});
    writer.Move(Pen, {});
    EXPECT_THAT(taken, IsEmpty());
    writer.Down(Pen, {At(1, 500)});
    writer.Move(Pen, {});
    EXPECT_THAT(taken, SizeIs(1));
}

TEST_F(Writing, SecondOneDoesNotWrite)
{
    writer.Down(Pen, {At(1, 500)});
    writer.Down(Finger, {At(100, 900)});
    writer.Move(Finger, {At(101, 900)});
    writer.Down(Mouse, {At(300, 900)});
    writer.Up(Finger, {At(102, 0)});
    EXPECT_THAT(taken, SizeIs(1));
    EXPECT_TRUE(writer.IsWriting(Pen));
}

TEST_F(Writing, PalmThatStaysWhenThePenLiftsDoesNotWriteEither)
{
    writer.Down(Pen, {At(1, 500)});
    writer.Down(Finger, {At(100, 900)});
    writer.Up(Pen, {At(2, 0)});
    writer.Move(Finger, {At(101, 900)});
    writer.Up(Finger, {At(102, 0)});
    EXPECT_THAT(taken, SizeIs(2));
    writer.Down(Finger, {At(100, 900)}); // now it is meant
    EXPECT_TRUE(writer.IsWriting(Finger));
}

TEST_F(Writing, LiftThatWasLostEndsTheStrokeBeforeTheNext)
{
    writer.Down(Pen, {At(1, 500)});
    writer.Down(Pen, {At(50, 600)});
    ASSERT_THAT(taken, SizeIs(3));
    EXPECT_THAT(PressuresOf(taken[1]), ElementsAre(0));
    EXPECT_EQ(taken[1].samples[0].x, 1);
    EXPECT_THAT(PressuresOf(taken[2]), ElementsAre(600));
}

TEST_F(Writing, CancelledStrokeEndsAndSaysSo)
{
    writer.Down(Pen, {At(1, 500)});
    writer.Cancel(Pen);
    ASSERT_THAT(taken, SizeIs(2));
    EXPECT_TRUE(taken[1].isCancelled);
    EXPECT_THAT(PressuresOf(taken[1]), ElementsAre(0));
    EXPECT_EQ(taken[1].samples[0].x, 1);
    writer.Cancel(Pen);
    EXPECT_THAT(taken, SizeIs(2));
}

TEST_F(Writing, CancelOfAnotherIsNothing)
{
    writer.Down(Pen, {At(1, 500)});
    writer.Cancel(Finger);
    EXPECT_THAT(taken, SizeIs(1));
    EXPECT_TRUE(writer.IsWriting(Pen));
}

TEST_F(Writing, HoveringPenIsHandedOutWithoutPressure)
{
    writer.Move(Pen, {At(1, 0), At(2, 0)});
    ASSERT_THAT(taken, SizeIs(1));
    EXPECT_THAT(PressuresOf(taken[0]), ElementsAre(0, 0));
    EXPECT_TRUE(writer.IsFree());
}

TEST_F(Writing, HoverBesideAWriterIsNothing)
{
    writer.Down(Finger, {At(100, 900)});
    writer.Move(Pen, {At(1, 0)});
    writer.Leave(Pen);
    EXPECT_THAT(taken, SizeIs(1));
}

TEST_F(Writing, PenThatLeavesIsToldOnceAtItsLastPlace)
{
    writer.Move(Pen, {At(1, 0), At(2, 0)});
    writer.Leave(Finger);
    EXPECT_THAT(taken, SizeIs(1));
    writer.Leave(Pen);
    writer.Leave(Pen);
    ASSERT_THAT(taken, SizeIs(2));
    EXPECT_THAT(PressuresOf(taken[1]), ElementsAre(0));
    EXPECT_EQ(taken[1].samples[0].x, 2);
}

TEST_F(Writing, WriterThatLeavesEndsItsStroke)
{
    writer.Down(Pen, {At(1, 500)});
    writer.Leave(Pen);
    ASSERT_THAT(taken, SizeIs(2));
    EXPECT_THAT(PressuresOf(taken[1]), ElementsAre(0));
    EXPECT_FALSE(taken[1].isCancelled);
}

TEST_F(Writing, PenThatHoveredBeforeItWroteLeavesOnce)
{
    writer.Move(Pen, {At(1, 0)});
    writer.Down(Pen, {At(1, 500)});
    writer.Leave(Pen);
    EXPECT_THAT(taken, SizeIs(3));
}

TEST_F(Writing, EndIsThatOfWhoeverWrites)
{
    writer.End();
    EXPECT_THAT(taken, IsEmpty());
    writer.Down(Finger, {At(100, 900)});
    writer.End();
    ASSERT_THAT(taken, SizeIs(2));
    EXPECT_EQ(taken[1].source, Finger);
    EXPECT_THAT(PressuresOf(taken[1]), ElementsAre(0));
    EXPECT_TRUE(writer.IsFree());
}

TEST_F(Writing, EndIsThatOfWhoeverHovers)
{
    writer.Move(Pen, {At(1, 0)});
    writer.End();
    writer.End();
    EXPECT_THAT(taken, SizeIs(2));
}

TEST(WriterWhoIsStopped, ByThoseWhoTakeTheStrokeEndsIt)
{
    std::vector<InputBatch> taken;
    OneWriter* itself = nullptr;
    OneWriter writer([&](const InputBatch& batch) {
        taken.push_back(batch);
        itself->End();
    });
    itself = &writer;
    writer.Down(Pen, {{1, 50, 500, 1000}});
    ASSERT_THAT(taken, SizeIs(2));
    EXPECT_EQ(taken[1].samples[0].pressure, 0);
    EXPECT_TRUE(writer.IsFree());
}

} // namespace
} // namespace lumora_pen
