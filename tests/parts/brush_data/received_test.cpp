// Brush data of unknown origin: short, lying and overlong messages do no harm; whole ones work as on the
// host's road.
#include "settings/brush_data.h"

#include "support/brush_data_bytes.h"
#include "support/distinct_params.h"

#include <gtest/gtest.h>

namespace zq::LM {

using test::Bytes;
using test::Message;
using test::Same;

namespace {

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

// Every beginning of every message, and the whole: AddressSanitizer watches the end of the bytes.
TEST_F(ReceivedBrushData, GivesTheSameRecordAsTheHostsRoadAndWhatIsMissingIsZero)
{
    for (const Bytes& message : {test::InkColorMessage(), test::BrushSizeMessage(),
                                 test::InkDecayTimeMessage(), test::BrushParamsMessage()}) {
        for (std::size_t length = 0; length <= message.size(); ++length) {
            Bytes beginning(message.begin(), message.begin() + static_cast<std::ptrdiff_t>(length));
            beginning.shrink_to_fit();
            Bytes padded = beginning;
            padded.resize(BrushDataReach, 0);
            params = DefaultParams;
            params.colorPicker = 1;
            Params hosts = params;
            EXPECT_EQ(Decode(beginning), DecodeBrushData(hosts, padded.data())) << "length " << length;
            EXPECT_TRUE(Same(params, hosts)) << "length " << length;
        }
        EXPECT_FALSE(Same(params, DefaultParams));
    }
}

// The terminating 0 may be missing: it is the first of the zeroes behind.
TEST_F(ReceivedBrushData, ANameWithoutEndAndPayloadSetsZero)
{
    Bytes name = test::NameBytes("BrushParams");
    name.pop_back();
    name.pop_back();
    EXPECT_EQ(Decode(name), BrushDataKind::BrushParams);
    EXPECT_EQ(params.inkColor, 0U);
    EXPECT_EQ(params.minBrushSize, 0U);
    EXPECT_EQ(params.brushSize, 0U);
}

TEST_F(ReceivedBrushData, ASizeBeyondTheMessageWipesNothingOutside)
{
    for (const std::uint32_t size : {5U, 255U, 256U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
        EXPECT_EQ(Decode(Message("InkColor", size, {0x11, 0x22, 0x33, 0x00})), BrushDataKind::InkColor);
        EXPECT_EQ(params.inkColor, 0x00332211U);
    }
}

TEST_F(ReceivedBrushData, BytesBehindTheLongestMessageDoNotMatter)
{
    Bytes message = test::BrushParamsMessage();
    EXPECT_EQ(message.size(), BrushDataReach);
    message.resize(256, 0xEE);
    EXPECT_EQ(Decode(message), BrushDataKind::BrushParams);
    EXPECT_EQ(params.brushSize, 300U);
}

} // namespace
} // namespace zq::LM
