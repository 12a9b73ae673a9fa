// The command line: every option, its limits and every mistake.
#include "options.h"

#include <gmock/gmock.h>

namespace lumora::replay {
namespace {

using testing::HasSubstr;

Options Parse(const std::vector<std::string>& arguments)
{
    const auto parsed = ParseOptions(arguments);
    if (const auto* error = std::get_if<OptionsError>(&parsed)) {
        ADD_FAILURE() << error->reason;
        return {};
    }
    return std::get<Options>(parsed);
}

std::string ErrorOf(const std::vector<std::string>& arguments)
{
    const auto parsed = ParseOptions(arguments);
    const auto* error = std::get_if<OptionsError>(&parsed);
    return error != nullptr ? error->reason : "accepted";
}

LM_Params ParamsWith(const std::vector<std::string>& arguments)
{
    LM_Params params = {};
    params.inkDecayTime = 100;
    params.inkColor = 0x00202020;
    params.minBrushSize = 1;
    params.brushSize = 10;
    params.maxPressure = 32767;
    params.line = params.cursor = params.usePressure = 1;
    std::vector<std::string> all = {"a.svc"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    ApplyInk(Parse(all).ink, params);
    return params;
}

TEST(Options, DefaultsAreTheLibrarysBackEndAtRecordedSpeedWithoutLog)
{
    const Options options = Parse({"a.svc"});
    EXPECT_EQ(options.recording, "a.svc");
    EXPECT_EQ(options.backEnd, BackEnd::Composition);
    EXPECT_EQ(options.speed, 1.0);
    EXPECT_EQ(options.logLevel, 0U);
    EXPECT_TRUE(options.library.empty());
    EXPECT_TRUE(options.screenshots.empty());
    EXPECT_TRUE(options.switches.empty());
    EXPECT_FALSE(options.help);
}

TEST(Options, BackEndsAreNamed)
{
    EXPECT_EQ(Parse({"a", "--backend", "gdi"}).backEnd, BackEnd::Gdi);
    EXPECT_EQ(Parse({"a", "--backend", "d2d"}).backEnd, BackEnd::Direct2D);
    EXPECT_EQ(Parse({"a", "--backend", "composition"}).backEnd, BackEnd::Composition);
}

TEST(Options, LaterValueWins)
{
    EXPECT_EQ(Parse({"a", "--backend", "d2d", "--backend", "gdi"}).backEnd, BackEnd::Gdi);
    EXPECT_EQ(ParamsWith({"--life", "5", "--life", "7"}).inkDecayTime, 7U);
}

TEST(Options, RecordingMayStandAfterOptions) { EXPECT_EQ(Parse({"--zebra", "a.svc"}).recording, "a.svc"); }

TEST(Options, NameAfterTwoDashesMayBeginWithADash) { EXPECT_EQ(Parse({"--", "-a.svc"}).recording, "-a.svc"); }

TEST(Options, SpeedMayHaveDecimals) { EXPECT_EQ(Parse({"a", "--speed", "2.5"}).speed, 2.5); }

TEST(Options, SpeedLimitsAreAccepted)
{
    EXPECT_EQ(Parse({"a", "--speed", "0.001"}).speed, 0.001);
    EXPECT_EQ(Parse({"a", "--speed", "1000"}).speed, 1000.0);
}

TEST(Options, ScreenshotIsMomentAndFile)
{
    const Options options = Parse({"a", "--screenshot", "250:shot.png"});
    ASSERT_EQ(options.screenshots.size(), 1U);
    EXPECT_EQ(options.screenshots[0].atMs, 250U);
    EXPECT_EQ(options.screenshots[0].file, "shot.png");
}

TEST(Options, ScreenshotFileMayHoldColons)
{
    EXPECT_EQ(Parse({"a", "--screenshot", "0:C:\\b.png"}).screenshots.at(0).file, "C:\\b.png");
}

TEST(Options, ScreenshotsComeInOrderOfTime)
{
    const Options options = Parse({"a", "--screenshot", "9:x.png", "--screenshot", "3:y.png"});
    ASSERT_EQ(options.screenshots.size(), 2U);
    EXPECT_EQ(options.screenshots[0].file, "y.png");
}

TEST(Options, SwitchIsMomentAndBackEnd)
{
    const Options options = Parse({"a", "--switch", "250:d2d"});
    ASSERT_EQ(options.switches.size(), 1U);
    EXPECT_EQ(options.switches[0].atMs, 250U);
    EXPECT_EQ(options.switches[0].backEnd, BackEnd::Direct2D);
}

TEST(Options, SwitchesComeInOrderOfTime)
{
    const Options options = Parse({"a", "--switch", "9:gdi", "--switch", "3:composition"});
    ASSERT_EQ(options.switches.size(), 2U);
    EXPECT_EQ(options.switches[0].backEnd, BackEnd::Composition);
    EXPECT_EQ(options.switches[1].backEnd, BackEnd::Gdi);
}

TEST(Options, LogLevelAndLibraryAreTaken)
{
    const Options options = Parse({"a", "--log-level", "255", "--dll", "b.dll"});
    EXPECT_EQ(options.logLevel, 255U);
    EXPECT_EQ(options.library, "b.dll");
}

TEST(Options, TimeUnitIsNamed)
{
    EXPECT_EQ(Parse({"a"}).timeUnit, std::nullopt);
    EXPECT_EQ(Parse({"a", "--time-unit", "s"}).timeUnit, TimeUnit::Seconds);
    EXPECT_EQ(Parse({"a", "--time-unit", "ms"}).timeUnit, TimeUnit::Milliseconds);
    EXPECT_EQ(Parse({"a", "--time-unit", "us"}).timeUnit, TimeUnit::Microseconds);
}

TEST(Options, SaveTakesAFileOfAKnownKind)
{
    EXPECT_EQ(Parse({"a", "--save", "b.svc"}).save, "b.svc");
    EXPECT_EQ(Parse({"a", "--save", "B.InkML"}).save, "B.InkML");
    EXPECT_FALSE(Parse({"a", "--save", "b.svc"}).overwrite);
}

TEST(Options, SaveGoesWithOverwriteAndTimeUnit)
{
    const Options options = Parse({"--overwrite", "--time-unit", "s", "a", "--save", "b.svc"});
    EXPECT_EQ(options.save, "b.svc");
    EXPECT_TRUE(options.overwrite);
}

TEST(Options, HelpNeedsNoRecording) { EXPECT_TRUE(Parse({"--help"}).help); }

TEST(Options, HelpIsGivenWhateverFollows) { EXPECT_TRUE(Parse({"--help", "--nonsense"}).help); }

TEST(InkOptions, NoOptionLeavesTheRecordAsItIs)
{
    const LM_Params params = ParamsWith({});
    EXPECT_EQ(params.inkDecayTime, 100U);
    EXPECT_EQ(params.inkColor, 0x00202020U);
    EXPECT_EQ(params.minBrushSize, 1U);
    EXPECT_EQ(params.brushSize, 10U);
    EXPECT_EQ(params.maxPressure, 32767U);
    EXPECT_EQ(params.line, 1);
    EXPECT_EQ(params.outline, 0);
    EXPECT_EQ(params.cursor, 1);
    EXPECT_EQ(params.usePressure, 1);
    EXPECT_EQ(params.useOffset, 0);
    EXPECT_EQ(params.zebraMode, 0);
    EXPECT_EQ(params.colorPicker, 0);
}

TEST(InkOptions, ColourIsWrittenRedFirstAndStoredRedLast)
{
    EXPECT_EQ(ParamsWith({"--colour", "1a2B3c"}).inkColor, 0x003C2B1AU);
}

TEST(InkOptions, NumbersReachTheirFields)
{
    const LM_Params params =
        ParamsWith({"--brush", "20", "--min-brush", "3", "--max-pressure", "1024", "--life", "2500"});
    EXPECT_EQ(params.brushSize, 20U);
    EXPECT_EQ(params.minBrushSize, 3U);
    EXPECT_EQ(params.maxPressure, 1024U);
    EXPECT_EQ(params.inkDecayTime, 2500U);
}

TEST(InkOptions, ZeroIsANumberLikeAnyOther) { EXPECT_EQ(ParamsWith({"--brush", "0"}).brushSize, 0U); }

TEST(InkOptions, OutlineTurnsTheOutlineOn) { EXPECT_EQ(ParamsWith({"--outline"}).outline, 1); }

TEST(InkOptions, NoLineTurnsTheStrokesOff) { EXPECT_EQ(ParamsWith({"--no-line"}).line, 0); }

TEST(InkOptions, NoCursorTurnsTheCrossHairOff) { EXPECT_EQ(ParamsWith({"--no-cursor"}).cursor, 0); }

TEST(InkOptions, NoPressureTurnsThePressureOff) { EXPECT_EQ(ParamsWith({"--no-pressure"}).usePressure, 0); }

TEST(InkOptions, OffsetTurnsTheOffsetOn) { EXPECT_EQ(ParamsWith({"--offset"}).useOffset, 1); }

TEST(InkOptions, PickColourBeginsThePicking) { EXPECT_EQ(ParamsWith({"--pick-colour"}).colorPicker, 1); }

TEST(InkOptions, ZebraTurnsTheBandsOn) { EXPECT_EQ(ParamsWith({"--zebra"}).zebraMode, 1); }

TEST(Options, PixelsAreNotScaledWhenWanted)
{
    EXPECT_FALSE(std::get<Options>(ParseOptions({"a.svc"})).pixels);
    EXPECT_TRUE(std::get<Options>(ParseOptions({"a.svc", "--pixels"})).pixels);
}

TEST(OptionMistakes, NoRecording) { EXPECT_EQ(ErrorOf({}), "no recording is given"); }

TEST(OptionMistakes, EmptyRecordingName) { EXPECT_THAT(ErrorOf({""}), HasSubstr("empty")); }

TEST(OptionMistakes, TwoRecordings) { EXPECT_THAT(ErrorOf({"a", "b"}), HasSubstr("only one recording")); }

TEST(OptionMistakes, UnknownOption) { EXPECT_EQ(ErrorOf({"a", "--what"}), "unknown option \"--what\""); }

TEST(OptionMistakes, MissingValue)
{
    EXPECT_EQ(ErrorOf({"a", "--speed"}), "--speed needs a number from 0.001 to 1000");
}

TEST(OptionMistakes, UnknownBackEnd)
{
    EXPECT_EQ(ErrorOf({"a", "--backend", "GL"}), "--backend needs gdi, d2d or composition, not \"GL\"");
}

TEST(OptionMistakes, SaveBesideAnOptionAboutPlaying)
{
    EXPECT_EQ(ErrorOf({"a", "--save", "b.svc", "--speed", "2"}),
              "--save plays nothing, so --speed cannot stand beside it");
    EXPECT_EQ(ErrorOf({"--zebra", "a", "--save", "b.svc"}),
              "--save plays nothing, so --zebra cannot stand beside it");
    EXPECT_EQ(ErrorOf({"a", "--dll", "b.dll", "--save", "b.svc"}),
              "--save plays nothing, so --dll cannot stand beside it");
}

TEST(OptionMistakes, AreOneLineWhateverTheyQuote)
{
    EXPECT_EQ(ErrorOf({"--a\r\nb"}), "unknown option \"--a??b\"");
    EXPECT_EQ(ErrorOf({"a", "ä\n"}), "only one recording can be played, not \"a\" and \"ä?\"");
}

TEST(OptionMistakes, OverwriteWithoutSave)
{
    EXPECT_EQ(ErrorOf({"a", "--overwrite"}), "--overwrite needs --save");
}

class BadValue : public testing::TestWithParam<std::vector<std::string>> {};

TEST_P(BadValue, IsRefusedWithItsOption)
{
    std::vector<std::string> arguments = {"a"};
    arguments.insert(arguments.end(), GetParam().begin(), GetParam().end());
    const std::string& option = GetParam().front();
    EXPECT_THAT(ErrorOf(arguments),
                testing::AllOf(testing::StartsWith(option + " needs"), HasSubstr(", not \"")));
}

INSTANTIATE_TEST_SUITE_P(
    Speed, BadValue,
    testing::Values(std::vector<std::string>{"--speed", "0"}, std::vector<std::string>{"--speed", "-1"},
                    std::vector<std::string>{"--speed", "1001"}, std::vector<std::string>{"--speed", "fast"},
                    std::vector<std::string>{"--speed", "nan"}, std::vector<std::string>{"--speed", "inf"},
                    std::vector<std::string>{"--speed", "2x"}, std::vector<std::string>{"--speed", ""}));

INSTANTIATE_TEST_SUITE_P(Screenshot, BadValue,
                         testing::Values(std::vector<std::string>{"--screenshot", "a.png"},
                                         std::vector<std::string>{"--screenshot", "5:"},
                                         std::vector<std::string>{"--screenshot", ":a.png"},
                                         std::vector<std::string>{"--screenshot", "-5:a.png"},
                                         std::vector<std::string>{"--screenshot", "x:a.png"}));

INSTANTIATE_TEST_SUITE_P(Switch, BadValue,
                         testing::Values(std::vector<std::string>{"--switch", "gdi"},
                                         std::vector<std::string>{"--switch", "5:"},
                                         std::vector<std::string>{"--switch", ":gdi"},
                                         std::vector<std::string>{"--switch", "-5:gdi"},
                                         std::vector<std::string>{"--switch", "5:GL"}));

INSTANTIATE_TEST_SUITE_P(Files, BadValue,
                         testing::Values(std::vector<std::string>{"--save", "b.txt"},
                                         std::vector<std::string>{"--save", "svc"},
                                         std::vector<std::string>{"--save", ""},
                                         std::vector<std::string>{"--time-unit", "min"},
                                         std::vector<std::string>{"--time-unit", ""}));

INSTANTIATE_TEST_SUITE_P(Numbers, BadValue,
                         testing::Values(std::vector<std::string>{"--brush", "-1"},
                                         std::vector<std::string>{"--min-brush", "1.5"},
                                         std::vector<std::string>{"--max-pressure", "4294967296"},
                                         std::vector<std::string>{"--life", "long"},
                                         std::vector<std::string>{"--log-level", "all"},
                                         std::vector<std::string>{"--dll", ""},
                                         std::vector<std::string>{"--colour", "12345"},
                                         std::vector<std::string>{"--colour", "#12345"},
                                         std::vector<std::string>{"--colour", "12345g"}));

TEST(SelftestOption, NeedsNoRecording)
{
    const auto parsed = ParseOptions({"--selftest", "report.txt", "--dll", "other.dll"});
    ASSERT_TRUE(std::holds_alternative<Options>(parsed));
    EXPECT_EQ(std::get<Options>(parsed).selftest, "report.txt");
    EXPECT_EQ(std::get<Options>(parsed).library, "other.dll");
}

TEST(SelftestOption, StandsAlone)
{
    for (const auto& [arguments, reason] :
         {std::pair<std::vector<std::string>, const char*>{{"--selftest", "a.txt", "b.svc"},
                                                           "--selftest plays no recording, not \"b.svc\""},
          {{"--selftest", "a.txt", "--speed", "2"}, "--speed cannot stand beside --selftest"},
          {{"--save", "b.svc", "--selftest", "a.txt"}, "--save cannot stand beside --selftest"},
          {{"--zebra", "--selftest", "a.txt"}, "--zebra cannot stand beside --selftest"},
          {{"--selftest"}, "--selftest needs the name of a file"},
          {{"--selftest", ""}, "--selftest needs the name of a file, not \"\""}}) {
        const auto parsed = ParseOptions(arguments);
        ASSERT_TRUE(std::holds_alternative<OptionsError>(parsed)) << reason;
        EXPECT_EQ(std::get<OptionsError>(parsed).reason, reason);
    }
}

TEST(Help, NamesEveryOptionAndStatus)
{
    const std::string help = HelpText();
    for (const char* text :
         {"--backend",     "--switch",    "--speed",        "--screenshot", "--colour",
          "--brush",       "--min-brush", "--max-pressure", "--life",       "--outline",
          "--no-line",     "--no-cursor", "--no-pressure",  "--offset",     "--zebra",
          "--pick-colour", "--log-level", "--dll",          "--help",       "--save",
          "--overwrite",   "--time-unit", "--selftest",     "--pixels",     "Exit status"}) {
        EXPECT_THAT(help, HasSubstr(text));
    }
}

} // namespace
} // namespace lumora::replay
