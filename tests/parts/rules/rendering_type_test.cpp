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

TEST(RenderingTypes, HaveTheBackEndsIndicesAsValuesAndDirectCompositionFirst)
{
    EXPECT_EQ(g_renderingType, RenderingType::DirectComposition);
    EXPECT_EQ(static_cast<int>(RenderingType::DirectComposition), 0);
    EXPECT_EQ(static_cast<int>(RenderingType::Direct2D), 1);
    EXPECT_EQ(static_cast<int>(RenderingType::GDI), 2);
    EXPECT_EQ(sizeof(RenderingType), 4U);
}

TEST(RenderingTypes, EachConsultingNamesTheTypeFromDetailedOn)
{
    const char* const direct2D = "Rendering type is Direct2D.\n";
    for (const auto& [type, line] : {std::pair{0, "Rendering type is Direct Composition.\n"},
                                     {1, direct2D},
                                     {1, direct2D},
                                     {2, "Rendering type is DirectGDI.\n"},
                                     {3, ""},
                                     {-1, ""}}) {
        g_renderingType = static_cast<RenderingType>(type);
        const test::RecordedLog log;
        {
            const test::LogLevel level(NORMAL);
            EXPECT_EQ(GetRenderingType(), g_renderingType);
        }
        EXPECT_EQ(log.Lines(), Lines{});
        const test::LogLevel level(DETAILED);
        EXPECT_EQ(GetRenderingType(), g_renderingType);
        EXPECT_EQ(log.Lines(), (Lines{{true, line}}));
    }
    g_renderingType = RenderingType::DirectComposition;
}

TEST(RenderingTypes, EachChoiceHoldsFromThenOnAndIsNamedFromBasicOn)
{
    for (const auto& [type, line] : {std::pair{0, "Direct Composition is set.\n"},
                                     {1, "Direct2D is set.\n"},
                                     {2, "GDI is set.\n"},
                                     {3, ""}}) {
        const test::RecordedLog log;
        ChooseRenderingType(static_cast<RenderingType>(type));
        EXPECT_EQ(log.Lines(), Lines{});
        const test::LogLevel level(BASIC);
        ChooseRenderingType(static_cast<RenderingType>(type));
        EXPECT_EQ(static_cast<int>(g_renderingType), type);
        EXPECT_EQ(log.Lines(), (Lines{{true, line}}));
    }
    g_renderingType = RenderingType::DirectComposition;
}

TEST(RenderingTypes, AllButDirectCompositionDrawIntoMemory)
{
    EXPECT_FALSE(DrawsIntoMemory(RenderingType::DirectComposition));
    EXPECT_TRUE(DrawsIntoMemory(RenderingType::Direct2D));
    EXPECT_TRUE(DrawsIntoMemory(RenderingType::GDI));
    EXPECT_FALSE(DrawsIntoMemory(static_cast<RenderingType>(3)));
}

} // namespace
} // namespace zq::LM
