// Brush data of unknown origin: short, lying and overlong messages do no harm; whole ones work as on the
// host's road.
#include "settings/brush_data.h"

#include "support/brush_data_bytes.h"

#include <gtest/gtest.h>

#include <cstring>

namespace zq::LM {

using test::BrushParamsMessage;
using test::BrushSizeMessage;
using test::Bytes;
using test::InkColorMessage;
using test::InkDecayTimeMessage;
using test::Message;

namespace {

bool IsDefault(const Params& params) { return std::memcmp(&params, &DefaultParams, sizeof(params)) == 0; }

class ReceivedBrushData : public ::testing::Test {
protected:
    BrushDataKind Decode(const Bytes& received)
    {
        const Bytes before = received;
        const BrushDataKind kind = DecodeReceivedBrushData(params, received);
        EXPECT_EQ(received, before); // the wipe stays in a copy
        return kind;
    }

    Params params = DefaultParams;
};

TEST_F(ReceivedBrushData, GivesTheSameRecordAsTheHostsRoad)
{
    for (const Bytes& message :
         {InkColorMessage(), BrushSizeMessage(), InkDecayTimeMessage(), BrushParamsMessage()}) {
        params = DefaultParams;
        params.colorPicker = 1;
        Params hosts = params;
        Bytes buffer = message;
        EXPECT_EQ(Decode(message), DecodeBrushData(hosts, buffer.data()));
        EXPECT_EQ(std::memcmp(&params, &hosts, sizeof(params)), 0);
        EXPECT_FALSE(IsDefault(params));
    }
}

TEST_F(ReceivedBrushData, NoBytesAreNoMessage)
{
    EXPECT_EQ(Decode({}), BrushDataKind::Nothing);
    EXPECT_TRUE(IsDefault(params));
}

// Every beginning of every message: AddressSanitizer watches the end of the bytes.
TEST_F(ReceivedBrushData, WhatIsMissingOfAMessageIsZero)
{
    for (const Bytes& message :
         {InkColorMessage(), BrushSizeMessage(), InkDecayTimeMessage(), BrushParamsMessage()}) {
        for (std::size_t length = 0; length < message.size(); ++length) {
            Bytes beginning(message.begin(), message.begin() + static_cast<std::ptrdiff_t>(length));
            beginning.shrink_to_fit();
            Bytes padded = beginning;
            padded.resize(BrushDataReach, 0);
            Params expected = DefaultParams;
            params = DefaultParams;
            EXPECT_EQ(Decode(beginning), DecodeBrushData(expected, padded.data())) << "length " << length;
            EXPECT_EQ(std::memcmp(&params, &expected, sizeof(params)), 0) << "length " << length;
        }
    }
}

TEST_F(ReceivedBrushData, ANameWithoutItsPayloadSetsZero)
{
    EXPECT_EQ(Decode(test::NameBytes("BrushParams")), BrushDataKind::BrushParams);
    EXPECT_EQ(params.inkColor, 0U);
    EXPECT_EQ(params.minBrushSize, 0U);
    EXPECT_EQ(params.brushSize, 0U);
}

// The terminating 0 may be missing: it is the first of the zeroes behind.
TEST_F(ReceivedBrushData, ANameCutBeforeItsEndIsTheName)
{
    Bytes name = test::NameBytes("InkColor");
    name.pop_back();
    name.pop_back();
    EXPECT_EQ(Decode(name), BrushDataKind::InkColor);
    EXPECT_EQ(params.inkColor, 0U);
}

TEST_F(ReceivedBrushData, ASizeBeyondTheMessageWipesNothingOutside)
{
    for (const std::uint32_t size : {5U, 255U, 256U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
        EXPECT_EQ(Decode(Message("InkColor", size, {0x11, 0x22, 0x33, 0x00})), BrushDataKind::InkColor);
        EXPECT_EQ(params.inkColor, 0x00332211U);
    }
}

TEST_F(ReceivedBrushData, BytesBehindTheMessageDoNotMatter)
{
    Bytes message = BrushParamsMessage();
    message.resize(256, 0xEE);
    EXPECT_EQ(Decode(message), BrushDataKind::BrushParams);
    EXPECT_EQ(params.brushSize, 300U);
}

TEST_F(ReceivedBrushData, ReachIsTheLongestMessage)
{
    EXPECT_EQ(BrushParamsMessage().size(), BrushDataReach);
}

} // namespace
} // namespace zq::LM
