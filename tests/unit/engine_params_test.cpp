// The engine's own copy of the parameter record: what comes in and goes out.
#include "support/engine_test.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>

namespace zq::LM::test {
namespace {

using EngineParams = EngineTest;
using ParamsBytes = std::array<unsigned char, sizeof(Params)>;

ParamsBytes BytesOf(const Params& params)
{
    ParamsBytes bytes{};
    std::memcpy(bytes.data(), &params, bytes.size());
    return bytes;
}

TEST_F(EngineParams, AreTheDefaultsAtFirst) { EXPECT_EQ(BytesOf(Record()), BytesOf(DefaultParams)); }

TEST_F(EngineParams, ComeBackByteForByte)
{
    ParamsBytes bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<unsigned char>(0xFF - i);
    }
    Params params{};
    std::memcpy(&params, bytes.data(), bytes.size());
    drawing.SetParams(&params);
    EXPECT_EQ(BytesOf(Record()), bytes);
}

TEST_F(EngineParams, AreCopiedNotKept)
{
    Params params = DefaultParams;
    params.brushSize = 7;
    drawing.SetParams(&params);
    params.brushSize = 8;
    EXPECT_EQ(Record().brushSize, 7U);
}

TEST_F(EngineParams, NullInChangesNothing)
{
    Set([](Params& params) { params.brushSize = 7; });
    drawing.SetParams(nullptr);
    EXPECT_EQ(Record().brushSize, 7U);
}

TEST_F(EngineParams, NullOutIsIgnored)
{
    drawing.GetCopiedParams(nullptr);
    EXPECT_EQ(BytesOf(Record()), BytesOf(DefaultParams));
}

TEST_F(EngineParams, EnabledOptionsFollowTheRecord)
{
    EXPECT_EQ(drawing.EnabledOptions(0xFFFFFFFF), 0x0013U);
    Set([](Params& params) {
        params.cursor = 0;
        params.colorPicker = 1;
    });
    EXPECT_EQ(drawing.EnabledOptions(0xFFFFFFFF), 0x1012U);
    EXPECT_EQ(drawing.EnabledOptions(0x1007), 0x1002U);
    EXPECT_EQ(drawing.EnabledOptions(0), 0U);
}

TEST_F(EngineParams, FramesWithoutPickingLeaveTheRecordAlone)
{
    AddAt(0, {10, 10});
    AddAt(1, {20, 10}, Hovering);
    Frame();
    EXPECT_EQ(BytesOf(Record()), BytesOf(DefaultParams));
}

} // namespace
} // namespace zq::LM::test
