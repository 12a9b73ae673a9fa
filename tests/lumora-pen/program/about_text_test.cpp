// What "About" says.
#include "program/about_text.h"

#include "lumora/version.h"

#include <gmock/gmock.h>

namespace lumora_pen {

namespace {

using testing::HasSubstr;
using testing::Not;

TEST(About, NamesBothVersionsAndTheBackEnd)
{
    const std::string text = AboutText({BackEndName::GDI, {}, "C:\\pen.json", "1.2.3.4", {}, {}});
    EXPECT_THAT(text, HasSubstr("Lumora Pen " + std::to_string(LUMORA_VERSION_MAJOR) + '.'));
    EXPECT_THAT(text, HasSubstr("Library 1.2.3.4, drawing by GDI"));
    EXPECT_THAT(text, HasSubstr("C:\\pen.json"));
    EXPECT_THAT(text, Not(HasSubstr("cannot be read")));
}

TEST(About, SaysSoWhenTheLibraryHasNoVersion)
{
    EXPECT_THAT(AboutText({}), HasSubstr("Library of unknown version"));
}

TEST(About, NamesPensThatCannotBeRead)
{
    EXPECT_THAT(AboutText({BackEndName::GDI, {}, "", "", {"Old tablet"}, {}}),
                HasSubstr("The reports of \"Old tablet\" cannot be read"));
}

TEST(About, NamesPensWithoutAMonitor)
{
    EXPECT_THAT(AboutText({BackEndName::GDI, {}, "", "", {}, {"Desk tablet"}}),
                HasSubstr("to which monitor \"Desk tablet\" belongs"));
}

TEST(About, LeavesOutAKeyThatIsOff)
{
    AboutFacts facts;
    EXPECT_THAT(AboutText(facts), HasSubstr("Ctrl+Alt+B begins"));
    facts.settings.keys[static_cast<std::size_t>(KeyCommand::Board)] = {};
    EXPECT_THAT(AboutText(facts), Not(HasSubstr("begins")));
}

} // namespace

} // namespace lumora_pen
