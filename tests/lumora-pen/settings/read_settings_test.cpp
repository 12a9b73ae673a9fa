// The settings' text: what is taken, what is not, and what a person is told.
#include "settings/settings.h"
#include "settings/settings_text.h"
#include "support/row_name.h"

#include <gmock/gmock.h>

#include <functional>

namespace lumora_pen {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Change = std::function<void(Settings&)>;

Hotkey& KeyOf(Settings& settings, KeyCommand command)
{
    return settings.keys[static_cast<std::size_t>(command)];
}

Settings Changed(const Change& change)
{
    Settings settings;
    change(settings);
    return settings;
}

TEST(DefaultSettings, HaveTheKeysThatAreKnown)
{
    const Settings settings;
    EXPECT_EQ(TextOf(settings.hold), "Ctrl+Shift");
    const std::vector<std::string> keys = {
        "Ctrl+Alt+B", "Ctrl+Alt+Backspace", "Escape", "Delete", "Plus", "Minus", "1", "2", "3", "4", "5",
        "6"};
    const std::vector<std::string> names = {"board",    "wipe",     "end-board", "wipe-board",
                                            "wider",    "narrower", "colour-1",  "colour-2",
                                            "colour-3", "colour-4", "colour-5",  "colour-6"};
    for (std::size_t i = 0; i < KeyCommandCount; ++i) {
        EXPECT_EQ(TextOf(settings.keys[i]), keys[i]);
        EXPECT_EQ(KeyDefaults()[i].name, names[i]);
        EXPECT_EQ(static_cast<std::size_t>(KeyDefaults()[i].command), i);
    }
}

TEST(ReadSettings, OfAnEmptyObjectGivesTheDefaultsWithoutAWord)
{
    const SettingsReading reading = ReadSettings("{}");
    EXPECT_EQ(reading.settings, Settings());
    EXPECT_THAT(reading.complaints, IsEmpty());
    EXPECT_FALSE(reading.isBroken);
}

struct GoodMember {
    const char* name;
    const char* json;
    Change change;
};

class GoodMembers : public testing::TestWithParam<GoodMember> {};

TEST_P(GoodMembers, AreTaken)
{
    const SettingsReading reading = ReadSettings(GetParam().json);
    EXPECT_EQ(reading.settings, Changed(GetParam().change));
    EXPECT_THAT(reading.complaints, IsEmpty());
    EXPECT_FALSE(reading.isBroken);
}

INSTANTIATE_TEST_SUITE_P(
    ReadSettings, GoodMembers,
    testing::Values(
        GoodMember{"Version", R"({"version": 1})", [](Settings&) {}},
        GoodMember{"ByteOrderMark", "\xEF\xBB\xBF{\"width\": 9}", [](Settings& s) { s.width = 9; }},
        GoodMember{"Unknown", R"({"unknown": [null, {"width": 3}]})", [](Settings&) {}},
        GoodMember{
            "Palette", R"({"palette": ["#000001", "#00aB00", "FF0000", "#123456", "#FFFFFF", "#000000", 7]})",
            [](Settings& s) {
                s.palette = {
                    {{0, 0, 1}, {0, 0xAB, 0}, {255, 0, 0}, {0x12, 0x34, 0x56}, {255, 255, 255}, {0, 0, 0}}};
            }},
        GoodMember{"FirstColour", R"({"colour": 1})", [](Settings& s) { s.colour = 0; }},
        GoodMember{"LastColour", R"({"colour": 6})", [](Settings& s) { s.colour = 5; }},
        GoodMember{"LeastWidth", R"({"width": 1})", [](Settings& s) { s.width = 1; }},
        GoodMember{"MostWidth", R"({"width": 100.0})", [](Settings& s) { s.width = 100; }},
        GoodMember{"LeastTrailLife", R"({"trail-life-ms": 100})", [](Settings& s) { s.trailLifeMs = 100; }},
        GoodMember{"MostTrailLife", R"({"trail-life-ms": 60000})",
                   [](Settings& s) { s.trailLifeMs = 60000; }},
        GoodMember{"NoBoardLife", R"({"board-life-ms": 0})", [](Settings&) {}},
        GoodMember{"LeastBoardLife", R"({"board-life-ms": 100})", [](Settings& s) { s.boardLifeMs = 100; }},
        GoodMember{"MostBoardLife", R"({"board-life-ms": 60000})",
                   [](Settings& s) { s.boardLifeMs = 60000; }},
        GoodMember{"Composition", R"({"back-end": "composition"})", [](Settings&) {}},
        GoodMember{"Direct2D", R"({"back-end": "direct2d"})",
                   [](Settings& s) { s.backEnd = BackEndName::Direct2D; }},
        GoodMember{"GDI", R"({"back-end": "gdi"})", [](Settings& s) { s.backEnd = BackEndName::GDI; }},
        GoodMember{"Switches", R"({"trail-with-pen": false, "trail-with-mouse": false, "cross-hair": true})",
                   [](Settings& s) {
                       s.trailWithPen = s.trailWithMouse = false;
                       s.crossHair = true;
                   }},
        GoodMember{"Hold", R"({"hold": "alt + xbutton2"})",
                   [](Settings& s) {
                       s.hold = {AltModifier, 6};
                   }},
        GoodMember{"Keys", R"({"keys": {"board": "F9", "wipe": "off", "unknown": 1, "colour-6": "Ctrl+6"}})",
                   [](Settings& s) {
                       KeyOf(s, KeyCommand::Board) = {0, 0x78};
                       KeyOf(s, KeyCommand::Wipe) = {};
                       KeyOf(s, KeyCommand::Colour6) = {ControlModifier, '6'};
                   }},
        GoodMember{"SeveralKeysOff", R"({"keys": {"board": "off", "wipe": "off", "wider": "off"}})",
                   [](Settings& s) {
                       KeyOf(s, KeyCommand::Board) = KeyOf(s, KeyCommand::Wipe) =
                           KeyOf(s, KeyCommand::Wider) = {};
                   }}),
    zq::LM::test::RowName());

struct BadMember {
    const char* name;
    const char* json;
    const char* complaint;
    Change change = [](Settings&) {};
};

class BadMembers : public testing::TestWithParam<BadMember> {};

// What stands beside the mistake is taken all the same.
TEST_P(BadMembers, AreSaidAndTheRestIsTaken)
{
    std::string json = GetParam().json;
    json.insert(1, R"("back-end": "gdi", )");
    const SettingsReading reading = ReadSettings(json);
    Settings expected = Changed(GetParam().change);
    expected.backEnd = BackEndName::GDI;
    EXPECT_EQ(reading.settings, expected);
    EXPECT_THAT(reading.complaints, ElementsAre(GetParam().complaint));
    EXPECT_FALSE(reading.isBroken);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, BadMembers,
    testing::Values(
        BadMember{"TooWide", R"({"width": 101})",
                  R"("width" cannot be 101, only a whole number from 1 to 100; it is 100 now.)",
                  [](Settings& s) { s.width = 100; }},
        BadMember{"TooNarrow", R"({"width": 0})",
                  R"("width" cannot be 0, only a whole number from 1 to 100; it is 1 now.)",
                  [](Settings& s) { s.width = 1; }},
        BadMember{"HugeWidth", R"({"width": 1e300})",
                  R"("width" cannot be 1e+300, only a whole number from 1 to 100; it is 100 now.)",
                  [](Settings& s) { s.width = 100; }},
        BadMember{
            "NegativeWidth", R"({"width": -9223372036854775808})",
            R"("width" cannot be -9223372036854775808, only a whole number from 1 to 100; it is 1 now.)",
            [](Settings& s) { s.width = 1; }},
        BadMember{"BrokenWidth", R"({"width": 6.6})",
                  R"("width" cannot be 6.6, only a whole number from 1 to 100; it is 7 now.)",
                  [](Settings& s) { s.width = 7; }},
        BadMember{"WidthAsText", R"({"width": "9"})",
                  R"("width" cannot be "9", only a whole number from 1 to 100; it is 6 now.)"},
        BadMember{"WidthAsNull", R"({"width": null})",
                  R"("width" cannot be null, only a whole number from 1 to 100; it is 6 now.)"},
        BadMember{"ShortTrailLife", R"({"trail-life-ms": 99})",
                  R"("trail-life-ms" cannot be 99, only a whole number from 100 to 60000; it is 100 now.)",
                  [](Settings& s) { s.trailLifeMs = 100; }},
        BadMember{
            "LongTrailLife", R"({"trail-life-ms": 60001})",
            R"("trail-life-ms" cannot be 60001, only a whole number from 100 to 60000; it is 60000 now.)",
            [](Settings& s) { s.trailLifeMs = 60000; }},
        BadMember{
            "ShortBoardLife", R"({"board-life-ms": 99})",
            R"("board-life-ms" cannot be 99, only 0, which is for ever, or at least 100; it is 100 now.)",
            [](Settings& s) { s.boardLifeMs = 100; }},
        BadMember{"NegativeBoardLife", R"({"board-life-ms": -1})",
                  R"("board-life-ms" cannot be -1, only a whole number from 0 to 60000; it is 0 now.)"},
        BadMember{
            "LongBoardLife", R"({"board-life-ms": 1000000})",
            R"("board-life-ms" cannot be 1000000, only a whole number from 0 to 60000; it is 60000 now.)",
            [](Settings& s) { s.boardLifeMs = 60000; }},
        BadMember{"NoSuchColour", R"({"colour": 7})",
                  R"("colour" cannot be 7, only a whole number from 1 to 6; it is 1 now.)"},
        BadMember{"ColourNought", R"({"colour": 0})",
                  R"("colour" cannot be 0, only a whole number from 1 to 6; it is 1 now.)"},
        BadMember{"ColourBetween", R"({"colour": 2.5})",
                  R"("colour" cannot be 2.5, only a whole number from 1 to 6; it is 1 now.)"},
        BadMember{"ColourAsText", R"({"colour": "red"})",
                  R"("colour" cannot be "red", only a whole number from 1 to 6; it is 1 now.)"},
        BadMember{"VersionAsText", R"({"version": "1"})",
                  R"("version" cannot be "1", only 1 or a newer one; it is 1 now.)"},
        BadMember{"OldVersion", R"({"version": 0})",
                  R"("version" cannot be 0, only 1 or a newer one; it is 1 now.)"}),
    zq::LM::test::RowName());

INSTANTIATE_TEST_SUITE_P(
    Texts, BadMembers,
    testing::Values(
        BadMember{
            "PaletteAsText", R"({"palette": "red"})",
            R"("palette" cannot be "red", only 6 colours as "#RRGGBB"; it is filled with the usual colours now.)"},
        BadMember{
            "ShortPalette", R"({"palette": ["#010203"]})",
            R"("palette" cannot be ["#010203"], only 6 colours as "#RRGGBB"; it is filled with the usual colours now.)",
            [](Settings& s) {
                s.palette[0] = {1, 2, 3};
            }},
        BadMember{"NoColour",
                  R"({"palette": ["#010203", "#010203", "#01020", "#010203", "#010203", "#010203"]})",
                  R"("palette.3" cannot be "#01020", only a colour as "#RRGGBB"; it is "#109040" now.)",
                  [](Settings& s) {
                      const lumora::Colour usual = s.palette[2];
                      s.palette.fill({1, 2, 3});
                      s.palette[2] = usual;
                  }},
        BadMember{"ColourAsNumber",
                  R"({"palette": [65280, "#010203", "#010203", "#010203", "#010203", "#010203"]})",
                  R"("palette.1" cannot be 65280, only a colour as "#RRGGBB"; it is "#E02020" now.)",
                  [](Settings& s) {
                      const lumora::Colour usual = s.palette[0];
                      s.palette.fill({1, 2, 3});
                      s.palette[0] = usual;
                  }},
        BadMember{"SwitchAsNumber", R"({"trail-with-pen": 0})",
                  R"("trail-with-pen" cannot be 0, only true or false; it is true now.)"},
        BadMember{"SwitchAsText", R"({"cross-hair": "true"})",
                  R"("cross-hair" cannot be "true", only true or false; it is false now.)"},
        BadMember{
            "HoldAsKey", R"({"hold": "Ctrl+B"})",
            R"("hold" cannot be "Ctrl+B", only some of Ctrl, Alt, Shift, Win and a mouse button, such as "Ctrl+RightButton"; it is "Ctrl+Shift" now.)"},
        BadMember{
            "HoldAsNumber", R"({"hold": 5})",
            R"("hold" cannot be 5, only some of Ctrl, Alt, Shift, Win and a mouse button, such as "Ctrl+RightButton"; it is "Ctrl+Shift" now.)"},
        BadMember{
            "KeysAsText", R"({"keys": "F9"})",
            R"("keys" cannot be "F9", only an object with a key for each name; it is the usual keys now.)"},
        BadMember{
            "NoKey", R"({"keys": {"board": "Ctrl+Ä", "wipe": "F8"}})",
            R"("keys.board" cannot be "Ctrl+Ä", only a key such as "Ctrl+Alt+B" or "F9", or "off"; it is "Ctrl+Alt+B" now.)",
            [](Settings& s) {
                KeyOf(s, KeyCommand::Wipe) = {0, 0x77};
            }},
        BadMember{
            "KeyAsSwitch", R"({"keys": {"wider": false}})",
            R"("keys.wider" cannot be false, only a key such as "Ctrl+Alt+B" or "F9", or "off"; it is "Plus" now.)"},
        BadMember{"SameKeys", R"({"keys": {"wipe": "Delete"}})",
                  R"("keys.wipe" and "keys.wipe-board" are both "Delete": only one of them can work.)",
                  [](Settings& s) {
                      KeyOf(s, KeyCommand::Wipe) = {0, 0x2E};
                  }},
        BadMember{
            "LineEnds", R"({"hold": "a\n\tb"})",
            R"("hold" cannot be "a\n\tb", only some of Ctrl, Alt, Shift, Win and a mouse button, such as "Ctrl+RightButton"; it is "Ctrl+Shift" now.)"}),
    zq::LM::test::RowName());

TEST(ReadSettings, KnowsBackEndsInOneSpelling)
{
    const SettingsReading reading = ReadSettings(R"({"back-end": "GDI"})");
    EXPECT_EQ(reading.settings, Settings());
    EXPECT_THAT(
        reading.complaints,
        ElementsAre(
            R"("back-end" cannot be "GDI", only "composition", "direct2d" or "gdi"; it is "composition" now.)"));
}

TEST(ReadSettings, HasOneComplaintForEachMistake)
{
    const SettingsReading reading =
        ReadSettings(R"({"width": "a", "hold": 1, "cross-hair": 2, "keys": {"wipe": 3}})");
    EXPECT_THAT(reading.complaints, ElementsAre(HasSubstr("width"), HasSubstr("cross-hair"),
                                                HasSubstr("hold"), HasSubstr("keys.wipe")));
}

TEST(ReadSettings, SaysThatTheyAreNewerAndTakesWhatItKnows)
{
    const SettingsReading reading = ReadSettings(R"({"version": 2, "width": 9, "ruler": true})");
    EXPECT_EQ(reading.settings, Changed([](Settings& s) { s.width = 9; }));
    EXPECT_THAT(
        reading.complaints,
        ElementsAre(
            "These settings are of version 2, newer than this program, which knows version 1: what it "
            "does not know is kept and has no effect."));
}

TEST(ReadSettings, CutsALongValueBetweenLetters)
{
    // After the quotation mark the 61st byte is a letter's second one.
    std::string letters;
    for (int i = 0; i < 100; ++i) {
        letters += "\xC3\xA4";
    }
    const SettingsReading reading = ReadSettings(R"({"cross-hair": ")" + letters + "\"}");
    EXPECT_THAT(reading.complaints, ElementsAre(R"("cross-hair" cannot be ")" + letters.substr(0, 58) +
                                                "..., only true or false; it is false now."));
}

struct BrokenText {
    const char* name;
    std::string text;
    const char* reason;
};

class BrokenTexts : public testing::TestWithParam<BrokenText> {};

TEST_P(BrokenTexts, GiveTheDefaultsAndAreSaid)
{
    const SettingsReading reading = ReadSettings(GetParam().text);
    EXPECT_TRUE(reading.isBroken);
    EXPECT_EQ(reading.settings, Settings());
    EXPECT_THAT(reading.complaints,
                ElementsAre(std::string("The settings cannot be read: ") + GetParam().reason + "."));
}

std::string Nested(std::size_t levels) { return R"({"a":)" + std::string(levels - 1, '['); }

INSTANTIATE_TEST_SUITE_P(
    ReadSettings, BrokenTexts,
    testing::Values(BrokenText{"Empty", "", "it is empty"},                                            //
                    BrokenText{"Blank", "\n\n", "line 3 is no JSON"},                                  //
                    BrokenText{"Array", "[]", "it is no JSON object"},                                 //
                    BrokenText{"Null", "null", "it is no JSON object"},                                //
                    BrokenText{"CutOff", "{\"width\": 9,\n\"col", "line 2 is no JSON"},                //
                    BrokenText{"SecondLine", "{\n\"width\": ,\n}", "line 2 is no JSON"},               //
                    BrokenText{"TwoObjects", "{}{}", "line 1 is no JSON"},                             //
                    BrokenText{"Comment", "{} // mine", "line 1 is no JSON"},                          //
                    BrokenText{"NoUtf8", "{\"a\": \"\xFF\"}", "line 1 is no JSON"},                    //
                    BrokenText{"Zeros", std::string(4096, '\0'), "line 1 is no JSON"},                 //
                    BrokenText{"HugeNumber", "{\"a\": 1e999}", "it holds a number that is too large"}, //
                    BrokenText{"Deep", Nested(33), "it is nested more than 32 levels deep"},           //
                    BrokenText{"DeepAndOpen", std::string(60000, '['),
                               "it is nested more than 32 levels deep"},
                    BrokenText{"Large", "{}" + std::string(65535, ' '), "it is larger than 65536 bytes"}),
    zq::LM::test::RowName());

TEST(ReadSettings, GoesAsDeepAndAsLongAsItSays)
{
    EXPECT_FALSE(ReadSettings(Nested(32) + std::string(31, ']') + "}").isBroken);
    EXPECT_FALSE(ReadSettings("{}" + std::string(65534, ' ')).isBroken);
    EXPECT_FALSE(ReadSettings(R"({"a": "[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[\"[[[\\"})")
                     .isBroken); // no nesting in a text
    std::string wide = R"({"a": [0)";
    for (int i = 0; i < 1000; ++i) {
        wide += ",[{}]";
    }
    EXPECT_FALSE(ReadSettings(wide + "]}").isBroken);
}

} // namespace
} // namespace lumora_pen
