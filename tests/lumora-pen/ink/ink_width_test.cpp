// How wide the library draws.
#include "ink/ink_width.h"

#include "ink/params.h"

#include <gtest/gtest.h>

namespace lumora_pen {
namespace {

// The library's own rule, for what a person can choose.
TEST(InkWidth, IsTheLibrarys)
{
    for (const std::uint32_t brushSize : {1U, 6U, 77U, 200U}) {
        for (const std::uint32_t minBrushSize : {1U, 5U, 300U}) {
            lumora::Params ink;
            ink.brushSize = brushSize;
            ink.minBrushSize = minBrushSize;
            const LM_Params record = lumora::ToRecord(ink);
            for (std::int32_t pressure = 1; pressure <= 32768; pressure += 11) {
                ASSERT_EQ(static_cast<std::uint32_t>(InkWidth(ink, pressure)),
                          zq::LM::SegmentWidth(record, pressure))
                    << brushSize << ' ' << minBrushSize << ' ' << pressure;
            }
        }
    }
}

TEST(InkWidth, IsTheLibrarysWithoutPressureToo)
{
    lumora::Params ink;
    ink.usePressure = false;
    EXPECT_EQ(InkWidth(ink, 1), 10);
    EXPECT_EQ(zq::LM::SegmentWidth(lumora::ToRecord(ink), 1), 10U);
    ink.usePressure = true;
    ink.maxPressure = 0;
    EXPECT_EQ(InkWidth(ink, 1), 10);
    EXPECT_EQ(zq::LM::SegmentWidth(lumora::ToRecord(ink), 1), 10U);
}

} // namespace
} // namespace lumora_pen
