// The command line: every option, every mistake, and the way to the instance that runs already.
#include "settings/options.h"
#include "text/file_name.h"

#include "lumora/version.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

namespace lumora_pen {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using Arguments = std::vector<std::string>;

Options Read(const Arguments& arguments)
{
    const OptionsReading reading = ReadOptions(arguments);
    EXPECT_FALSE(reading.isDone) << reading.text;
    EXPECT_FALSE(reading.isMistake);
    EXPECT_EQ(reading.text, "");
    return reading.options;
}

std::string MistakeIn(const Arguments& arguments)
{
    const OptionsReading reading = ReadOptions(arguments);
    EXPECT_TRUE(reading.isDone);
    EXPECT_TRUE(reading.isMistake);
    return reading.text;
}

void ExpectSame(const Options& left, const Options& right)
{
    EXPECT_EQ(left.settingsFile, right.settingsFile);
    EXPECT_EQ(left.board, right.board);
    EXPECT_EQ(left.colour, right.colour);
    EXPECT_EQ(left.backEnd, right.backEnd);
    EXPECT_EQ(left.recordFile, right.recordFile);
    EXPECT_EQ(left.quit, right.quit);
    EXPECT_EQ(left.logLevel, right.logLevel);
}

TEST(Options, AreAllOffWithoutArguments) { ExpectSame(Read({}), Options()); }

TEST(Options, AreTakenTogether)
{
    const Options options = Read({"--settings", "a b.json", "--board", "--colour", "3", "--back-end", "gdi",
                                  "--record", "ä.svc", "--log-level", "255"});
    EXPECT_EQ(options.settingsFile, "a b.json");
    EXPECT_TRUE(options.board);
    EXPECT_EQ(options.colour, "3");
    EXPECT_EQ(options.backEnd, BackEndName::GDI);
    EXPECT_EQ(options.recordFile, "ä.svc");
    EXPECT_FALSE(options.quit);
    EXPECT_EQ(options.logLevel, 255U);
}

TEST(Options, MayHaveAnEqualsSign)
{
    const Options options = Read({"--settings=a=b.json", "--colour=#0000ff", "--log-level=0"});
    EXPECT_EQ(options.settingsFile, "a=b.json");
    EXPECT_EQ(options.colour, "0000FF");
    EXPECT_EQ(options.logLevel, 0U);
}

TEST(Options, KnowSixColoursAndAllOthersByTheirParts)
{
    for (const char* const number : {"1", "2", "3", "4", "5", "6"}) {
        EXPECT_EQ(Read({"--colour", number}).colour, number);
    }
    EXPECT_EQ(Read({"--colour", "00aBfF"}).colour, "00ABFF");
    EXPECT_EQ(Read({"--colour", "#123456"}).colour, "123456");
}

TEST(Options, KnowTheBackEnds)
{
    EXPECT_EQ(Read({"--back-end", "composition"}).backEnd, BackEndName::Composition);
    EXPECT_EQ(Read({"--back-end", "direct2d"}).backEnd, BackEndName::Direct2D);
    EXPECT_EQ(Read({"--back-end", "gdi"}).backEnd, BackEndName::GDI);
}

TEST(Options, KnowQuitAlone) { EXPECT_TRUE(Read({"--quit"}).quit); }

TEST(Options, TakeTheLastOfSeveralValues)
{
    EXPECT_EQ(Read({"--colour", "1", "--board", "--colour", "2", "--board"}).colour, "2");
}

TEST(Options, TakeNamesOfAnyLetters)
{
    for (const char* const name :
         {"[a,b].json", "-x", "/etc/pen.json", R"(C:\pen.json)", "{}", "%%", "a\nb", "\"a\"", "'a'", "#"}) {
        EXPECT_EQ(Read({"--settings", name}).settingsFile, name);
        EXPECT_EQ(Read({"--record", name}).recordFile, name);
    }
}

struct Wrong {
    Arguments arguments;
    std::vector<const char*> named; // what the mistake has to name
};

class WrongOptions : public testing::TestWithParam<Wrong> {};

TEST_P(WrongOptions, AreNamedWithTheirValue)
{
    const std::string text = MistakeIn(GetParam().arguments);
    EXPECT_THAT(text, StartsWith("lumora-pen: "));
    EXPECT_THAT(text, testing::EndsWith("\nlumora-pen --help tells all options.\n"));
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 2) << text;
    for (const char* const named : GetParam().named) {
        EXPECT_THAT(text, HasSubstr(named));
    }
}

INSTANTIATE_TEST_SUITE_P(CommandLines, WrongOptions,
                         testing::Values(Wrong{{"--colour", "7"}, {"--colour", "\"7\"", "1 to 6"}}, //
                                         Wrong{{"--colour", "0"}, {"--colour", "\"0\""}},           //
                                         Wrong{{"--colour", ""}, {"--colour", "\"\""}},             //
                                         Wrong{{"--colour", "red"}, {"--colour", "\"red\""}},       //
                                         Wrong{{"--colour", "12345"}, {"--colour", "\"12345\""}},   //
                                         Wrong{{"--colour", "#1234567"}, {"\"#1234567\""}},         //
                                         Wrong{{"--colour", "##12345"}, {"\"##12345\""}},           //
                                         Wrong{{"--colour", "-12345"}, {"\"-12345\""}},             //
                                         Wrong{{"--colour", "0x1234"}, {"\"0x1234\""}},             //
                                         Wrong{{"--colour"}, {"--colour"}},                         //
                                         Wrong{{"--back-end", "d2d"}, {"--back-end", "\"d2d\"", "direct2d"}},
                                         Wrong{{"--back-end", "GDI"}, {"--back-end", "\"GDI\""}},   //
                                         Wrong{{"--back-end"}, {"--back-end"}},                     //
                                         Wrong{{"--log-level", "256"}, {"--log-level", "\"256\""}}, //
                                         Wrong{{"--log-level", "-1"}, {"--log-level", "\"-1\""}},   //
                                         Wrong{{"--log-level", "1.0"}, {"--log-level", "\"1.0\""}}, //
                                         Wrong{{"--log-level", ""}, {"--log-level", "\"\""}},       //
                                         Wrong{{"--log-level", "99999999999999999999"},
                                               {"\"99999999999999999999\""}},
                                         Wrong{{"--log-level", "all"}, {"--log-level", "\"all\""}}, //
                                         Wrong{{"--settings"}, {"--settings"}},                     //
                                         Wrong{{"--settings="}, {"--settings"}},                    //
                                         Wrong{{"--settings", ""}, {"--settings", "\"\""}},         //
                                         Wrong{{"--settings", "--board"}, {"--settings", "\"--board\""}},
                                         Wrong{{"--settings=", "--board"}, {"--settings", "\"--board\""}},
                                         Wrong{{"--record", "--quit"}, {"--record", "\"--quit\""}}, //
                                         Wrong{{"--record"}, {"--record"}},                         //
                                         Wrong{{"--board=no"}, {"--board takes no value, not \"no\""}},
                                         Wrong{{"--quit="}, {"--quit takes no value, not \"\""}}, //
                                         Wrong{{"--bord"}, {"\"--bord\""}},                       //
                                         Wrong{{"-b"}, {"\"-b\""}},                               //
                                         Wrong{{"/board"}, {"\"/board\""}},                       //
                                         Wrong{{"pen.svc"}, {"\"pen.svc\""}},                     //
                                         Wrong{{"--board", "1"}, {"\"1\""}},                      //
                                         Wrong{{"--", "--board"}, {"is no option"}},              //
                                         Wrong{{"--colour", "a\r\nä"}, {"\"a??ä\""}},             //
                                         Wrong{{""}, {"\"\""}},                                   //
                                         Wrong{{"--quit", "--board"}, {"--quit", "--board"}},
                                         Wrong{{"--settings", "a", "--quit"}, {"--quit", "--settings"}},
                                         Wrong{{"--quit", "--colour", "1"}, {"--quit", "--colour"}},
                                         Wrong{{"--quit", "--back-end", "gdi"}, {"--quit", "--back-end"}},
                                         Wrong{{"--quit", "--record", "a"}, {"--quit", "--record"}},
                                         Wrong{{"--quit", "--log-level", "0"}, {"--quit", "--log-level"}}));

TEST(HelpOption, SaysAllThatAPersonHasToKnow)
{
    const OptionsReading reading = ReadOptions({"--help"});
    EXPECT_TRUE(reading.isDone);
    EXPECT_FALSE(reading.isMistake);
    for (const char* const word :
         {"--settings", "--board", "--colour", "--back-end", "--record", "--quit", "--log-level", "--help",
          "--version", "#RRGGBB", "composition, direct2d or gdi", "keyboard layout", "AltGr", "Exit status",
          "0   ended as asked", "1   something failed; with --quit also: none is running",
          "2   the command line is wrong", "3   another Lumora Pen was running and has taken these options",
          "lumora-replay"}) {
        EXPECT_THAT(reading.text, HasSubstr(word));
    }
    EXPECT_EQ(ReadOptions({"-h"}).text, reading.text);
    EXPECT_EQ(ReadOptions({"--wrong", "--quit", "--help", "--board"}).text, reading.text);
}

TEST(HelpOption, NamesTheKeysThatHold)
{
    const std::string text = ReadOptions({"--help"}).text;
    const Settings settings;
    EXPECT_THAT(text, HasSubstr("The hold key is " + TextOf(settings.hold) + " "));
    for (const KeyCommand command :
         {KeyCommand::Board, KeyCommand::Wipe, KeyCommand::EndBoard, KeyCommand::WipeBoard}) {
        EXPECT_THAT(text,
                    HasSubstr("\n  " + TextOf(settings.keys[static_cast<std::size_t>(command)]) + "  "));
    }
    const auto key = [&](KeyCommand command) {
        return TextOf(settings.keys[static_cast<std::size_t>(command)]);
    };
    EXPECT_THAT(text, HasSubstr(key(KeyCommand::Wider) + ", " + key(KeyCommand::Narrower) + " "));
    EXPECT_THAT(text, HasSubstr("\n  " + key(KeyCommand::Colour1) + " to " + key(KeyCommand::Colour6) + " "));
}

TEST(HelpOption, FitsATerminal)
{
    std::istringstream lines(ReadOptions({"--help"}).text);
    for (std::string line; std::getline(lines, line);) {
        EXPECT_LE(line.size(), 120U) << line;
    }
}

TEST(VersionOption, SaysTheVersionOfTheHeader)
{
    const OptionsReading reading = ReadOptions({"--version"});
    EXPECT_TRUE(reading.isDone);
    EXPECT_FALSE(reading.isMistake);
    EXPECT_EQ(reading.text, "Lumora Pen " + std::to_string(LUMORA_VERSION_MAJOR) + "." +
                                std::to_string(LUMORA_VERSION_MINOR) + "." +
                                std::to_string(LUMORA_VERSION_BUILD) + "." +
                                std::to_string(LUMORA_VERSION_REVISION) + "\n");
}

TEST(ArgumentsOfOptions, AreNoneForNone) { EXPECT_THAT(ArgumentsOf(Options()), IsEmpty()); }

TEST(ArgumentsOfOptions, AreReadBackAsTheSame)
{
    Options options;
    options.settingsFile =
        lumora::text::Utf8Of(std::filesystem::current_path() / lumora::text::PathOf("ä [b].json"));
    options.board = true;
    options.colour = "00FF00";
    options.backEnd = BackEndName::Direct2D;
    options.recordFile = lumora::text::Utf8Of(std::filesystem::current_path() / "--a b.svc");
    options.logLevel = 0; // which may end what an earlier start has asked for
    ExpectSame(Read(ArgumentsOf(options)), options);

    Options quit;
    quit.quit = true;
    EXPECT_THAT(ArgumentsOf(quit), ElementsAre("--quit"));
    ExpectSame(Read(ArgumentsOf(quit)), quit);
}

TEST(ArgumentsOfOptions, NameFilesFromTheirRoot)
{
    Options options;
    options.settingsFile = "pen.json";
    options.recordFile = "-ä.svc";
    EXPECT_THAT(
        ArgumentsOf(options),
        ElementsAre("--settings", lumora::text::Utf8Of(std::filesystem::current_path() / "pen.json"),
                    "--record",
                    lumora::text::Utf8Of(std::filesystem::current_path() / lumora::text::PathOf("-ä.svc"))));
}

} // namespace
} // namespace lumora_pen
