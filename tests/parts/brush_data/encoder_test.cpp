// The host's encoder of brush data, byte by byte and through the decoder.
#include "lumora/brush_data.h"

#include "settings/brush_data.h"
#include "support/brush_data_bytes.h"

#include <gtest/gtest.h>

namespace zq::LM {
namespace {

TEST(BrushDataEncoder, WritesEveryByteOfEachKind)
{
    EXPECT_EQ(lumora::MakeNothing(), test::Message("Nothing", 0, {}));
    EXPECT_EQ(lumora::MakeInkColor(0x00332211), test::InkColorMessage());
    EXPECT_EQ(lumora::MakeBrushSize(1, 30), test::BrushSizeMessage());
    EXPECT_EQ(lumora::MakeInkDecayTime(1500), test::InkDecayTimeMessage());
    EXPECT_EQ(lumora::MakeBrushParams(0x00665544, 7, 300), test::BrushParamsMessage());
}

TEST(BrushDataEncoder, IsUnderstoodByTheDecoder)
{
    Params params = DefaultParams;
    const auto decode = [&params](lumora::BrushDataMessage message) {
        return DecodeBrushData(params, message.data());
    };
    EXPECT_EQ(decode(lumora::MakeNothing()), BrushDataKind::Nothing);
    EXPECT_EQ(decode(lumora::MakeInkColor(0x89ABCDEF)), BrushDataKind::InkColor);
    EXPECT_EQ(params.inkColor, 0x89ABCDEFU);
    EXPECT_EQ(decode(lumora::MakeBrushSize(0xFFFFFFFF, 0x01020304)), BrushDataKind::BrushSize);
    EXPECT_EQ(params.minBrushSize, 0xFFFFFFFFU);
    EXPECT_EQ(params.brushSize, 0x01020304U);
    EXPECT_EQ(decode(lumora::MakeInkDecayTime(0x80000001)), BrushDataKind::InkDecayTime);
    EXPECT_EQ(params.inkDecayTime, 0x80000001U);
    EXPECT_EQ(decode(lumora::MakeBrushParams(1, 2, 3)), BrushDataKind::BrushParams);
    EXPECT_EQ(params.inkColor, 1U);
    EXPECT_EQ(params.minBrushSize, 2U);
    EXPECT_EQ(params.brushSize, 3U);
}

} // namespace
} // namespace zq::LM
