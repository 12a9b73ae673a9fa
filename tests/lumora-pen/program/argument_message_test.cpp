// Options on their way from a second start to the first.
#include "program/argument_message.h"

#include <gmock/gmock.h>

namespace lumora_pen {

namespace {

using testing::ElementsAre;
using testing::Eq;

TEST(ArgumentMessage, ArrivesAsItWasSent)
{
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{}, {"--board"}, {"--record", "a b\xC3\xA9.svc"}, {"", "", "x"}}) {
        EXPECT_THAT(UnpackArguments(PackArguments(arguments)), Eq(arguments));
    }
}

TEST(ArgumentMessage, WithoutAnEndIsNone) { EXPECT_EQ(UnpackArguments("--board"), std::nullopt); }

TEST(ArgumentMessage, ThatIsTooLongIsNone)
{
    EXPECT_NE(UnpackArguments(std::string(MostArgumentBytes, '\0')), std::nullopt);
    EXPECT_EQ(UnpackArguments(std::string(MostArgumentBytes + 1, '\0')), std::nullopt);
}

} // namespace

} // namespace lumora_pen
