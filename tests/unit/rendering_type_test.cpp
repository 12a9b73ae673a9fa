// The active back-end's type and the line that consulting it writes.
#include "render/rendering_type.h"

#include "log/debug_log.h"
#include "support/log_level.h"
#include "support/recorded_log.h"

#include <gtest/gtest.h>

namespace zq::LM {
namespace {

using test::LogLine;
using Lines = std::vector<LogLine>;

class RenderingTypeTest : public testing::Test {
protected:
    ~RenderingTypeTest() override { g_renderingType = RenderingType::DirectComposition; }

    static Lines LinesOfConsulting(RenderingType type)
    {
        const test::RecordedLog log;
        g_renderingType = type;
        EXPECT_EQ(GetRenderingType(), type);
        return log.Lines();
    }
};

TEST_F(RenderingTypeTest, IsDirectCompositionAtFirst)
{
    EXPECT_EQ(g_renderingType, RenderingType::DirectComposition);
}

TEST_F(RenderingTypeTest, HasTheBackEndsIndicesAsValues)
{
    EXPECT_EQ(static_cast<int>(RenderingType::DirectComposition), 0);
    EXPECT_EQ(static_cast<int>(RenderingType::Direct2D), 1);
    EXPECT_EQ(static_cast<int>(RenderingType::GDI), 2);
    EXPECT_EQ(sizeof(RenderingType), 4U);
}

TEST_F(RenderingTypeTest, ConsultingNamesDirectComposition)
{
    const test::LogLevel level(DETAILED);
    EXPECT_EQ(LinesOfConsulting(RenderingType::DirectComposition),
              (Lines{{true, "Rendering type is Direct Composition.\n"}}));
}

TEST_F(RenderingTypeTest, ConsultingNamesDirect2D)
{
    const test::LogLevel level(DETAILED);
    EXPECT_EQ(LinesOfConsulting(RenderingType::Direct2D), (Lines{{true, "Rendering type is Direct2D.\n"}}));
}

TEST_F(RenderingTypeTest, ConsultingNamesGdiDirectGdi)
{
    const test::LogLevel level(DETAILED);
    EXPECT_EQ(LinesOfConsulting(RenderingType::GDI), (Lines{{true, "Rendering type is DirectGDI.\n"}}));
}

TEST_F(RenderingTypeTest, ConsultingAnyOtherValueWritesAnEmptyText)
{
    const test::LogLevel level(DETAILED);
    EXPECT_EQ(LinesOfConsulting(static_cast<RenderingType>(3)), (Lines{{true, ""}}));
    EXPECT_EQ(LinesOfConsulting(static_cast<RenderingType>(-1)), (Lines{{true, ""}}));
}

TEST_F(RenderingTypeTest, ConsultingWritesOnEveryCall)
{
    const test::LogLevel level(DETAILED);
    const test::RecordedLog log;
    GetRenderingType();
    GetRenderingType();
    EXPECT_EQ(log.Lines().size(), 2U);
}

TEST_F(RenderingTypeTest, ConsultingWritesNothingBelowDetailed)
{
    const test::LogLevel level(NORMAL);
    EXPECT_EQ(LinesOfConsulting(RenderingType::GDI), Lines{});
}

TEST_F(RenderingTypeTest, AllButDirectCompositionDrawIntoMemory)
{
    EXPECT_FALSE(DrawsIntoMemory(RenderingType::DirectComposition));
    EXPECT_TRUE(DrawsIntoMemory(RenderingType::Direct2D));
    EXPECT_TRUE(DrawsIntoMemory(RenderingType::GDI));
    EXPECT_FALSE(DrawsIntoMemory(static_cast<RenderingType>(3)));
}

} // namespace
} // namespace zq::LM
