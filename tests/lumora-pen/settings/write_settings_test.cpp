// The settings' text as it is written: all of it comes back, and what others have put there stays.
#include "settings/settings.h"
#include "settings/settings_text.h"

#include <gmock/gmock.h>

namespace lumora_pen {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

// Nothing in it is a default.
Settings Unusual()
{
    Settings settings;
    settings.palette = {{{1, 2, 3}, {4, 5, 6}, {7, 8, 9}, {10, 11, 12}, {13, 14, 15}, {255, 254, 253}}};
    settings.colour = 5;
    settings.width = 33;
    settings.trailLifeMs = 777;
    settings.boardLifeMs = 888;
    settings.backEnd = BackEndName::GDI;
    settings.trailWithPen = false;
    settings.trailWithMouse = false;
    settings.crossHair = true;
    settings.outline = true;
    settings.pressure = false;
    settings.offset = true;
    settings.zebra = true;
    settings.hold = {AltModifier, 2};
    for (unsigned i = 0; i < KeyCommandCount; ++i) {
        settings.keys[i] = {WindowsModifier, 0x70 + i};
    }
    return settings;
}

constexpr char WholeFile[] = R"({
  "version": 1,
  "palette": [
    "#E02020",
    "#2060E0",
    "#109040",
    "#F0A000",
    "#9030C0",
    "#181818"
  ],
  "colour": 1,
  "width": 6,
  "trail-life-ms": 2000,
  "board-life-ms": 0,
  "back-end": "composition",
  "trail-with-pen": true,
  "trail-with-mouse": true,
  "cross-hair": false,
  "outline": false,
  "pressure": true,
  "offset": false,
  "zebra": false,
  "hold": "Ctrl+Shift",
  "keys": {
    "board": "Ctrl+Alt+B",
    "wipe": "Ctrl+Alt+Backspace",
    "end-board": "Escape",
    "wipe-board": "Delete",
    "wider": "Plus",
    "narrower": "Minus",
    "colour-1": "1",
    "colour-2": "2",
    "colour-3": "3",
    "colour-4": "4",
    "colour-5": "5",
    "colour-6": "6"
  }
}
)";

TEST(WriteSettings, WritesAFileThatAPersonCanEdit) { EXPECT_EQ(WriteSettings(Settings(), ""), WholeFile); }

TEST(WriteSettings, WritesWhatReadsBackAsTheSame)
{
    for (const Settings& settings : {Settings(), Unusual()}) {
        const SettingsReading reading = ReadSettings(WriteSettings(settings, ""));
        EXPECT_EQ(reading.settings, settings);
        EXPECT_THAT(reading.complaints, IsEmpty());
    }
}

TEST(WriteSettings, OverAnyOthersWritesTheNewOnesOnly)
{
    EXPECT_EQ(WriteSettings(Settings(), WriteSettings(Unusual(), "")), WholeFile);
}

// Each field by itself, or two that are mixed up would pass.
TEST(EqualSettings, AreEqualInEveryField)
{
    const Settings usual;
    const Settings other = Unusual();
    EXPECT_EQ(usual, Settings());
    const std::vector<void (*)(Settings&, const Settings&)> fields = {
        [](Settings& s, const Settings& o) { s.palette[3] = o.palette[3]; },
        [](Settings& s, const Settings& o) { s.colour = o.colour; },
        [](Settings& s, const Settings& o) { s.width = o.width; },
        [](Settings& s, const Settings& o) { s.trailLifeMs = o.trailLifeMs; },
        [](Settings& s, const Settings& o) { s.boardLifeMs = o.boardLifeMs; },
        [](Settings& s, const Settings& o) { s.backEnd = o.backEnd; },
        [](Settings& s, const Settings& o) { s.trailWithPen = o.trailWithPen; },
        [](Settings& s, const Settings& o) { s.trailWithMouse = o.trailWithMouse; },
        [](Settings& s, const Settings& o) { s.crossHair = o.crossHair; },
        [](Settings& s, const Settings& o) { s.outline = o.outline; },
        [](Settings& s, const Settings& o) { s.pressure = o.pressure; },
        [](Settings& s, const Settings& o) { s.offset = o.offset; },
        [](Settings& s, const Settings& o) { s.zebra = o.zebra; },
        [](Settings& s, const Settings& o) { s.hold.modifiers = o.hold.modifiers; },
        [](Settings& s, const Settings& o) { s.hold.button = o.hold.button; },
        [](Settings& s, const Settings& o) { s.keys[11].key = o.keys[11].key; },
        [](Settings& s, const Settings& o) { s.keys[11].modifiers = o.keys[11].modifiers; },
    };
    for (std::size_t i = 0; i < fields.size(); ++i) {
        Settings settings;
        fields[i](settings, other);
        EXPECT_FALSE(settings == usual) << "field " << i;
        EXPECT_EQ(ReadSettings(WriteSettings(settings, "")).settings, settings) << "field " << i;
    }
}

TEST(WriteSettings, KeepsUnknownMembersInTheirPlaces)
{
    const std::string previous = R"({"ruler": {"width": 1.5, "list": [null, "ä", "\u0001"]}, "width": 9,
        "keys": {"undo": "Ctrl+Z", "board": "F9"}, "version": 1, "last": false})";
    SettingsReading reading = ReadSettings(previous);
    EXPECT_THAT(reading.complaints, IsEmpty());
    reading.settings.width = 10;
    const std::string text = WriteSettings(reading.settings, previous);
    EXPECT_EQ(text.substr(0, text.find("  \"palette\"")), R"({
  "ruler": {
    "width": 1.5,
    "list": [
      null,
      "ä",
      "\u0001"
    ]
  },
  "width": 10,
  "keys": {
    "undo": "Ctrl+Z",
    "board": "F9",
    "wipe": "Ctrl+Alt+Backspace",
    "end-board": "Escape",
    "wipe-board": "Delete",
    "wider": "Plus",
    "narrower": "Minus",
    "colour-1": "1",
    "colour-2": "2",
    "colour-3": "3",
    "colour-4": "4",
    "colour-5": "5",
    "colour-6": "6"
  },
  "version": 1,
  "last": false,
)");
    EXPECT_EQ(ReadSettings(text).settings, reading.settings);
    EXPECT_EQ(WriteSettings(reading.settings, text), text);
}

TEST(WriteSettings, KeepsMoreColoursThanOurs)
{
    const std::string text = WriteSettings(
        Settings(),
        R"({"palette": ["#000000", "#000000", "#000000", "#000000", "#000000", "#000000", "#ABCDEF", 8]})");
    EXPECT_THAT(text, HasSubstr("\"#181818\",\n    \"#ABCDEF\",\n    8\n  ],"));
    EXPECT_THAT(text, testing::Not(HasSubstr("#000000")));
}

TEST(WriteSettings, KeepsANewerVersionsNumberAndMembers)
{
    const std::string text = WriteSettings(Unusual(), R"({"version": 3, "ruler": true})");
    EXPECT_THAT(text, testing::StartsWith("{\n  \"version\": 3,\n  \"ruler\": true,\n"));
    EXPECT_EQ(ReadSettings(text).settings, Unusual());
}

class WrongMembers : public testing::TestWithParam<const char*> {};

TEST_P(WrongMembers, GiveWayToTheRightOnes) { EXPECT_EQ(WriteSettings(Settings(), GetParam()), WholeFile); }

INSTANTIATE_TEST_SUITE_P(
    WriteSettings, WrongMembers,
    testing::Values(R"({"version": "2"})", R"({"version": 0})", R"({"version": null})",
                    R"({"version": 1, "palette": 5})", R"({"version": 1, "palette": {}})",
                    R"({"version": 1, "palette": ["#000000"], "colour": [], "width": {}})",
                    R"({"version": 1, "palette": [[], [], 3]})", "", "null", "[1]", "{\"version\": 1",
                    "{\"version\": 7"));

TEST(WriteSettings, LeavesOutIndentsBeforeItLeavesOutWhatOthersWrote)
{
    std::string list = "0";
    for (int i = 0; i < 20'000; ++i) {
        list += ",0";
    }
    const std::string text = WriteSettings(Unusual(), R"({"version": 1, "list": [)" + list + "]}");
    EXPECT_THAT(text, testing::StartsWith(R"({"version":1,"list":[)" + list + "],"));
    EXPECT_EQ(ReadSettings(text).settings, Unusual());
}

// Or the next start would refuse them, and they would be lost.
TEST(WriteSettings, StaysWithinWhatIsRead)
{
    const std::string previous = R"({"full": ")" + std::string(MostSettingsBytes - 12, 'x') + "\"}";
    ASSERT_FALSE(ReadSettings(previous).isBroken);
    EXPECT_EQ(WriteSettings(Settings(), previous), WholeFile);
}

TEST(WriteSettings, PutsKeysInThePlaceOfWhatIsNone)
{
    const std::string text = WriteSettings(Settings(), R"({"keys": ["F9"]})");
    EXPECT_EQ(ReadSettings(text).settings, Settings());
    EXPECT_THAT(ReadSettings(text).complaints, IsEmpty());
}

} // namespace
} // namespace lumora_pen
