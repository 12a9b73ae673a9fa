// What a DirectComposition back-end may leave behind.
#include "support/library/leftovers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zq::LM::test {

void ExpectOnlyDevicesLeft(const CompositionStandIn& composition, int devices)
{
    std::map<std::string, int> left;
    if (devices != 0) {
        left["CompositionDevice"] = devices;
    }
    EXPECT_EQ(composition.Living(), left);
    const std::map<std::string, int> held = composition.Held();
    EXPECT_EQ(held.size(), static_cast<std::size_t>(devices));
    for (const auto& [name, references] : held) {
        EXPECT_TRUE(name.starts_with("CompositionDevice#")) << name << " is held";
        EXPECT_EQ(references, 1) << name;
    }
    EXPECT_THAT(composition.ReleasedTooOften(), testing::IsEmpty());
}

} // namespace zq::LM::test
